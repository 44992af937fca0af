#include "RawWglContext.h"

#include <cstdio>

namespace OruTest
{

RawWglContext::RawWglContext()
{
    char name[64];
    std::snprintf(name, sizeof(name), "OruTestGL%p", static_cast<void*>(this));
    className_ = name;

    WNDCLASSEXA windowClass = {};
    windowClass.cbSize = sizeof(windowClass);
    windowClass.style = CS_OWNDC;
    windowClass.lpfnWndProc = DefWindowProcA;
    windowClass.hInstance = GetModuleHandleA(nullptr);
    windowClass.lpszClassName = className_.c_str();
    if (!RegisterClassExA(&windowClass))
    {
        fail("RegisterClassExA");
        return;
    }

    window_ = CreateWindowExA(0, className_.c_str(), "", WS_OVERLAPPEDWINDOW | WS_CLIPSIBLINGS | WS_CLIPCHILDREN,
                              0, 0, 256, 256, nullptr, nullptr, windowClass.hInstance, nullptr);
    if (!window_)
    {
        fail("CreateWindowExA");
        return;
    }
    dc_ = GetDC(window_);
    if (!dc_)
    {
        fail("GetDC");
        return;
    }

    PIXELFORMATDESCRIPTOR pfd = {};
    pfd.nSize = sizeof(pfd);
    pfd.nVersion = 1;
    pfd.dwFlags = PFD_DRAW_TO_WINDOW | PFD_SUPPORT_OPENGL | PFD_DOUBLEBUFFER;
    pfd.iPixelType = PFD_TYPE_RGBA;
    pfd.cColorBits = 24;
    pfd.cDepthBits = 24;
    pfd.cStencilBits = 8;
    const int format = ChoosePixelFormat(dc_, &pfd);
    if (format == 0 || !SetPixelFormat(dc_, format, &pfd))
    {
        fail("ChoosePixelFormat/SetPixelFormat");
        return;
    }
    rc_ = wglCreateContext(dc_);
    if (!rc_)
    {
        fail("wglCreateContext");
        return;
    }
}

RawWglContext::~RawWglContext()
{
    if (rc_)
    {
        if (wglGetCurrentContext() == rc_)
            wglMakeCurrent(nullptr, nullptr);
        wglDeleteContext(rc_);
    }
    if (dc_)
        ReleaseDC(window_, dc_);
    if (window_)
        DestroyWindow(window_);
    UnregisterClassA(className_.c_str(), GetModuleHandleA(nullptr));
}

void RawWglContext::makeCurrent() const
{
    wglMakeCurrent(dc_, rc_);
}

void RawWglContext::fail(char const* what)
{
    error_ = std::string(what) + " failed, error " + std::to_string(GetLastError());
}

} // namespace OruTest
