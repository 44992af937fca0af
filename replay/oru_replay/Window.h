#ifndef ORU_REPLAY_WINDOW_H
#define ORU_REPLAY_WINDOW_H

#include <windows.h>

#include <string>

namespace Oru
{
namespace Replay
{

/// A borderless window whose client area is exactly width x height, with a
/// double-buffered RGBA8, depth 24, stencil 8 pixel format set on its DC. The
/// replay and the programs that record use the same one, so that a replayed
/// frame can be compared with the recorded program's pixel for pixel.
class Window
{
public:
    /// A hidden window with a client area of width x height and a pixel format set.
    /// Never throws: valid() and error() tell whether it was made.
    /// @param width  client width in pixels
    /// @param height client height in pixels
    Window(int width, int height);
    ~Window();
    Window(Window const&) = delete;
    Window& operator=(Window const&) = delete;

    /// Whether the window and its pixel format were made.
    bool valid() const { return dc_ != nullptr; }
    /// Why the window or its pixel format could not be made.
    std::string const& error() const { return error_; }

    /// The window.
    HWND handle() const { return window_; }
    /// Its device context, with the pixel format set.
    HDC deviceContext() const { return dc_; }
    /// Client width in pixels.
    int width() const { return width_; }
    /// Client height in pixels.
    int height() const { return height_; }

private:
    HWND window_ = nullptr;
    HDC dc_ = nullptr;
    int width_;
    int height_;
    std::string error_;
};

} // namespace Replay
} // namespace Oru

#endif
