#include "oru_replay/Window.h"

namespace Oru
{
namespace Replay
{

namespace
{

char const* const kClassName = "OruReplayWindow";

bool registerClass()
{
    static bool registered = false;
    if (registered)
        return true;
    WNDCLASSEXA windowClass = {};
    windowClass.cbSize = sizeof(windowClass);
    windowClass.style = CS_OWNDC;
    windowClass.lpfnWndProc = DefWindowProcA;
    windowClass.hInstance = GetModuleHandleA(nullptr);
    windowClass.hCursor = LoadCursorA(nullptr, reinterpret_cast<LPCSTR>(IDC_ARROW));
    windowClass.lpszClassName = kClassName;
    registered = RegisterClassExA(&windowClass) != 0;
    return registered;
}

} // namespace

Window::Window(int width, int height) : width_(width), height_(height)
{
    if (!registerClass())
    {
        error_ = "RegisterClassExA failed";
        return;
    }
    // A popup has no frame: the client area is the window.
    window_ = CreateWindowExA(0, kClassName, "oru_ogl", WS_POPUP | WS_CLIPSIBLINGS | WS_CLIPCHILDREN, 0, 0, width,
                              height, nullptr, nullptr, GetModuleHandleA(nullptr), nullptr);
    if (!window_)
    {
        error_ = "CreateWindowExA failed";
        return;
    }
    HDC dc = GetDC(window_);
    PIXELFORMATDESCRIPTOR pfd = {};
    pfd.nSize = sizeof(pfd);
    pfd.nVersion = 1;
    pfd.dwFlags = PFD_DRAW_TO_WINDOW | PFD_SUPPORT_OPENGL | PFD_DOUBLEBUFFER;
    pfd.iPixelType = PFD_TYPE_RGBA;
    pfd.cColorBits = 24;
    pfd.cAlphaBits = 8;
    pfd.cDepthBits = 24;
    pfd.cStencilBits = 8;
    const int format = dc ? ChoosePixelFormat(dc, &pfd) : 0;
    if (format == 0 || !SetPixelFormat(dc, format, &pfd))
    {
        error_ = "no pixel format for OpenGL";
        if (dc)
            ReleaseDC(window_, dc);
        return;
    }
    dc_ = dc;
}

Window::~Window()
{
    if (dc_)
        ReleaseDC(window_, dc_);
    if (window_)
        DestroyWindow(window_);
}

} // namespace Replay
} // namespace Oru
