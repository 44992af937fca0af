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
    ContextWrapped(HDC device, HGLRC rendering);
    virtual ~ContextWrapped();
};

} // namespace OGL
} // namespace Oru

#endif
