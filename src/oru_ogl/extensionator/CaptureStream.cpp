#include "oru_ogl/extensionator/CaptureStream.h"

#include <cstring>

namespace Oru
{
namespace OGL
{

using namespace capture;

CaptureStream::CaptureStream(CaptureWriter& writer, bool storeFrames) : writer_(writer), storeFrames_(storeFrames)
{
    writer_.lock();
    writer_.put(kMagic, sizeof(kMagic));
    writer_.put(kFormatVersion);
    writer_.put(storeFrames ? kFramesStored : std::uint32_t(0));
    writer_.put(std::uint64_t(0));
    writer_.unlock();
}

void CaptureStream::switchThread(DWORD thread)
{
    thread_ = thread;
    writer_.put(static_cast<std::uint16_t>(kThread));
    writer_.put(static_cast<std::uint32_t>(thread));
}

void CaptureStream::define(unsigned int operation)
{
    defined_[operation] = true;
    char const* name = operationName(operation);
    const auto length = static_cast<std::uint16_t>(std::strlen(name));
    writer_.put(static_cast<std::uint16_t>(kDefine));
    writer_.put(static_cast<std::uint16_t>(operation));
    writer_.put(length);
    writer_.put(name, length);
}

CaptureStream::ContextState& CaptureStream::context()
{
    const HGLRC current = wglGetCurrentContext();
    auto found = contexts_.find(current);
    if (found == contexts_.end())
    {
        found = contexts_.emplace(current, ContextState()).first;
        if (current)
            found->second.features = GLStateProbe::features();
    }
    return found->second;
}

CaptureStream::Window CaptureStream::windowOf(HDC device) const
{
    RECT client = {};
    if (HWND window = WindowFromDC(device))
        GetClientRect(window, &client);
    return Window{ client.right - client.left, client.bottom - client.top };
}

void CaptureStream::currentContext()
{
    const HGLRC context = wglGetCurrentContext();
    const HDC device = wglGetCurrentDC();
    if (!context || !device)
        return;
    lock();
    surfaceLocked(device);
    openControl(kCurrentContext);
    writer_.put(reinterpret_cast<std::uint64_t>(device));
    writer_.put(reinterpret_cast<std::uint64_t>(context));
    unlock();
}

void CaptureStream::surface(HDC device)
{
    if (!device)
        return;
    lock();
    surfaceLocked(device);
    unlock();
}

void CaptureStream::surfaceLocked(HDC device)
{
    const Window window = windowOf(device);
    auto known = surfaces_.find(device);
    if (known != surfaces_.end() && known->second.width == window.width && known->second.height == window.height)
        return;
    surfaces_[device] = window;

    PIXELFORMATDESCRIPTOR format = {};
    const int index = GetPixelFormat(device);
    if (index > 0)
        DescribePixelFormat(device, index, sizeof(format), &format);
    const std::uint8_t bits[] = { format.cColorBits, format.cRedBits, format.cGreenBits, format.cBlueBits,
                                  format.cAlphaBits, format.cDepthBits, format.cStencilBits,
                                  static_cast<std::uint8_t>((format.dwFlags & PFD_DOUBLEBUFFER) ? 1 : 0) };
    openControl(kSurface);
    writer_.put(reinterpret_cast<std::uint64_t>(device));
    writer_.put(static_cast<std::int32_t>(window.width));
    writer_.put(static_cast<std::int32_t>(window.height));
    writer_.put(bits, sizeof(bits));
}

void CaptureStream::frame(HDC device)
{
    if (!wglGetCurrentContext() || !device)
        return;
    const Window window = windowOf(device);
    lock();
    surfaceLocked(device);
    const ContextFeatures features = context().features;
    unlock();
    // Read outside the lock: other threads' calls need not wait for it.
    const std::vector<unsigned char> pixels = GLStateProbe::backBuffer(features, window.width, window.height);
    lock();
    openControl(kFrame);
    writer_.put(reinterpret_cast<std::uint64_t>(device));
    writer_.put(static_cast<std::uint32_t>(frames_++));
    writer_.put(static_cast<std::uint32_t>(window.width));
    writer_.put(static_cast<std::uint32_t>(window.height));
    writer_.put(frameChecksum(pixels.data(), pixels.size()));
    writer_.put(static_cast<std::uint8_t>(storeFrames_ ? 1 : 0));
    if (storeFrames_)
        writer_.put(pixels.data(), pixels.size());
    unlock();
}

} // namespace OGL
} // namespace Oru
