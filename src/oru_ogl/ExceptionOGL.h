#ifndef ORU_OGL_EXCEPTIONOGL_H
#define ORU_OGL_EXCEPTIONOGL_H

#include "oru_ogl/OglExport.h"
#include "oru_core/Exceptions.h"

namespace Oru
{
namespace OGL
{

/// An error that OpenGL reported after a call made through the error-checking
/// interceptor: the caller's file and line, the GLU text of the error and its code.
class ORU_OGL_API ExceptionOGL : public LogicalException
{
public:
    /// The caller's file and line, the text of the GL error and its number.
    /// @param file        the caller's source file, as its __FILE__
    /// @param line        the caller's line
    /// @param message     the text of the error (gluErrorString)
    /// @param errorNumber the value glGetError returned
    ExceptionOGL(char const* file, unsigned int line, char const* message, unsigned int errorNumber);
    /// Copies the exception, its error number included.
    /// @param other the exception to copy
    ExceptionOGL(ExceptionOGL const& other);
    /// Assigns another exception, its error number included.
    /// @param other the exception to copy
    /// @return this exception
    ExceptionOGL& operator=(ExceptionOGL const& other);
    virtual ~ExceptionOGL();

    /// The value glGetError returned (0 for an unbalanced glBegin or glEnd).
    /// @return the GL error number, GL_INVALID_ENUM say
    unsigned int errorNumber() const;

private:
    unsigned int errorNumber_;
};

} // namespace OGL
} // namespace Oru

#endif
