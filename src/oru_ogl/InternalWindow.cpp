#include "oru_ogl/InternalWindow.h"

#include "oru_ogl/Enforce.h"

#include <cstdio>

namespace Oru
{
namespace OGL
{

namespace
{

const DWORD kExtendedStyle = WS_EX_APPWINDOW | WS_EX_WINDOWEDGE;
const DWORD kStyle = WS_OVERLAPPEDWINDOW | WS_CLIPSIBLINGS | WS_CLIPCHILDREN; // never shown

LRESULT CALLBACK forwardToDefault(HWND window, UINT message, WPARAM wParam, LPARAM lParam)
{
    return DefWindowProcA(window, message, wParam, lParam);
}

// "OpenGL" and the object's address: one class per window, so two windows
// never share a class DC and each unregisters only its own class.
struct ClassName
{
    explicit ClassName(void const* owner) { std::snprintf(text, sizeof(text), "OpenGL%p", owner); }
    char text[32];
};

} // namespace

InternalWindow::InternalWindow()
    : hWnd_(nullptr)
{
    const ClassName name(this);
    const HINSTANCE module = GetModuleHandleA(nullptr);

    WNDCLASSEXA windowClass;
    ZeroMemory(&windowClass, sizeof(windowClass));
    windowClass.cbSize = sizeof(WNDCLASSEXA);
    windowClass.style = CS_CLASSDC;
    windowClass.lpfnWndProc = forwardToDefault;
    windowClass.hInstance = module;
    windowClass.hCursor = LoadCursorA(nullptr, IDC_ARROW);
    windowClass.lpszClassName = name.text;
    if (!RegisterClassExA(&windowClass))
        ORU_THROW("Unable to register window class");

    RECT rect = { 0, 0, 512, 512 };
    AdjustWindowRectEx(&rect, WS_OVERLAPPEDWINDOW, FALSE, kExtendedStyle);
    hWnd_ = CreateWindowExA(kExtendedStyle, name.text, nullptr, kStyle, 0, 0, rect.right - rect.left,
                            rect.bottom - rect.top, nullptr, nullptr, module, nullptr);
    if (!hWnd_)
    {
        UnregisterClassA(name.text, module); // nothing of a failed window stays behind
        ORU_THROW("Unable to create window");
    }
}

InternalWindow::~InternalWindow() noexcept(false)
{
    const HDC hDC = GetDC(hWnd_);
    ORU_VERIFY(hDC != 0);
    if (ReleaseDC(hWnd_, hDC) == 0)
        ORU_THROW("Unable to release the device context");
    DestroyWindow(hWnd_);
    const ClassName name(this);
    if (!UnregisterClassA(name.text, GetModuleHandleA(nullptr)))
        ORU_THROW("Unable to unregister window class");
}

} // namespace OGL
} // namespace Oru
