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
    ScopedContextWrapper();
    /// Throws the makeCurrent() failure if the saved pair cannot be restored.
    virtual ~ScopedContextWrapper() noexcept(false);
};

} // namespace OGL
} // namespace Oru

#endif
