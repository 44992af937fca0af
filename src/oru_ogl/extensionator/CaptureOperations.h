#ifndef ORU_OGL_EXTENSIONATOR_CAPTUREOPERATIONS_H
#define ORU_OGL_EXTENSIONATOR_CAPTUREOPERATIONS_H

/// \file
/// The numbers the capture gives the operations of the GL and WGL chains:
/// the GL operations in the chain's order, then the WGL ones. A capture names
/// each number it uses in a Define record, so that a reader of another
/// catalogue maps them by name.

#include "oru_ogl/OglExport.h"

#include <cstdint>

namespace Oru
{
namespace OGL
{
namespace capture
{

/// kGL plus the stem for a GL operation (kGLTexImage2D), kWGL plus the stem for
/// a WGL one (kWGLMakeCurrent, kWGLSwapBuffers), then the count.
enum Operation : std::uint16_t
{
#ifndef ORU_DOXYGEN
#define ORU_GL_OPERATION(Ret, Stem, ...) kGL##Stem,
#include "oru_ogl/extensionator/Operations.def"
#define ORU_WGL_OPERATION(Ret, Stem, ...) kWGL##Stem,
#include "oru_ogl/extensionator/windows/WglOperations.def"
#endif
    kOperationCount ///< the number of operations
};

/// The function an operation calls.
/// @param operation a capture::Operation
/// @return "glColor4f", "wglMakeCurrent", "SwapBuffers"; null past kOperationCount
ORU_OGL_API char const* operationName(unsigned int operation);
/// The operation of a function.
/// @param name the function's name, as operationName() gives it
/// @return its operation, or kOperationCount when the catalogue does not know it
ORU_OGL_API unsigned int operationNumber(char const* name);

} // namespace capture
} // namespace OGL
} // namespace Oru

#endif
