#include "oru_ogl/ogl/ContextWindowed.h"

namespace Oru
{
namespace OGL
{

ContextWindowed::ContextWindowed(HWND window, const BufferFormat& format, Context::teBuffering buffering,
                                 Context::teMultisample samples, Context* shareWith)
{
    initialize(window, format, buffering, samples, shareWith);
}

// The pixel format is chosen as for any context; the first context made on it
// is then replaced by the versioned one, which does the sharing.
ContextWindowed::ContextWindowed(HWND window, const BufferFormat& format, Context::teBuffering buffering,
                                 Context::teMultisample samples, Context* shareWith,
                                 const ContextAttributes& attributes)
{
    initialize(window, format, buffering, samples, nullptr);
    createVersionedContext(attributes, shareWith);
}

ContextWindowed::ContextWindowed() = default;

ContextWindowed::~ContextWindowed() noexcept(false)
{
    if (!hRC_)
        return; // made by a derived class that never created a context
    destroyContext();
    // The device context came from GetDC on the caller's window.
    ReleaseDC(WindowFromDC(hDC_), hDC_);
}

} // namespace OGL
} // namespace Oru
