#ifndef ORU_OGL_OGL_SCOPEDCONTEXTWRAPPER_H
#define ORU_OGL_OGL_SCOPEDCONTEXTWRAPPER_H

#include "oru_ogl/ogl/Context.h"

namespace Oru
{
namespace OGL
{

/// Remembers the context current on the calling thread (or that none is) and
/// makes it current again at the end of the scope, unless it still is.
class ORU_OGL_API ScopedContextWrapper : public Context
{
public:
    /// Remembers the current device and rendering context (both null when none is current).
    ScopedContextWrapper();
    /// Makes the remembered pair current again unless it still is; a pair of
    /// nulls releases whatever was made current meanwhile.
    /// @throws Oru::InternalException "Context::can't make this context current"
    ///         followed by GetLastError()'s number when the pair cannot be restored
    virtual ~ScopedContextWrapper() noexcept(false);
};

} // namespace OGL
} // namespace Oru

#endif
