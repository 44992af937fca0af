#ifndef ORU_OGL_OGL_CONTEXTWRAPPED_H
#define ORU_OGL_OGL_CONTEXTWRAPPED_H

#include "oru_ogl/ogl/Context.h"

namespace Oru
{
namespace OGL
{

/// A device context and rendering context that somebody else created and owns,
/// seen as a Context (to start the layer for it, or make it current). Nothing
/// is chosen, made current or released.
class ORU_OGL_API ContextWrapped : public Context
{
public:
    /// Wraps handles the caller keeps owning.
    /// @param device    the device context; not null
    /// @param rendering the rendering context made on it; not null
    /// @throws Oru::InternalException "ContextWrapped::ctor invalid device" or
    ///         "ContextWrapped::ctor invalid rendering context" for a null handle
    ContextWrapped(HDC device, HGLRC rendering);
    /// Releases nothing.
    virtual ~ContextWrapped();
};

} // namespace OGL
} // namespace Oru

#endif
