#include "oru_ogl/ogl/ContextOffscreen.h"

#include "oru_ogl/InternalWindow.h"

#include <memory>

namespace Oru
{
namespace OGL
{

ContextOffscreen::ContextOffscreen(Context* shareWith)
    : pWindow_(nullptr)
{
    std::unique_ptr<InternalWindow> window(new InternalWindow());
    initialize(window->handle(), BufferFormat(BufferFormat::eRGB8), eSingleBuffered, eNoMultisample, shareWith);
    pWindow_ = window.release(); // a failed start leaves no hidden window behind
}

ContextOffscreen::ContextOffscreen(const ContextAttributes& attributes, Context* shareWith)
    : pWindow_(nullptr)
{
    std::unique_ptr<InternalWindow> window(new InternalWindow());
    initialize(window->handle(), BufferFormat(BufferFormat::eRGB8), eSingleBuffered, eNoMultisample, nullptr);
    createVersionedContext(attributes, shareWith);
    pWindow_ = window.release();
}

ContextOffscreen::~ContextOffscreen() noexcept(false)
{
    destroyContext();
    ReleaseDC(pWindow_->handle(), hDC_);
    delete pWindow_;
}

} // namespace OGL
} // namespace Oru
