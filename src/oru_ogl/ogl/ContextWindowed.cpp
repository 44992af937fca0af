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
