#ifndef ORU_OGL_OGL_CONTEXTWINDOWED_H
#define ORU_OGL_OGL_CONTEXTWINDOWED_H

#include "oru_ogl/ogl/Context.h"

namespace Oru
{
namespace OGL
{

/// A rendering context on a window the caller owns. The window stays the
/// caller's; the context is deleted with this object.
class ORU_OGL_API ContextWindowed : public Context
{
public:
    /// A context on the caller's window with the format, buffering and samples asked for, sharing with shareWith unless null.
    ContextWindowed(HWND window, const BufferFormat& format, Context::teBuffering buffering,
                    Context::teMultisample samples, Context* shareWith);
    /// The same with a versioned context (WGL_ARB_create_context) for the attributes.
    ContextWindowed(HWND window, const BufferFormat& format, Context::teBuffering buffering,
                    Context::teMultisample samples, Context* shareWith, const ContextAttributes& attributes);
    virtual ~ContextWindowed() noexcept(false);

    // A copy would own nothing and delete what the original owns.
    ContextWindowed(ContextWindowed const&) = delete;
    ContextWindowed& operator=(ContextWindowed const&) = delete;

protected:
    ContextWindowed();
};

} // namespace OGL
} // namespace Oru

#endif
