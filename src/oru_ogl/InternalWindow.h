#ifndef ORU_OGL_INTERNALWINDOW_H
#define ORU_OGL_INTERNALWINDOW_H

#include "oru_ogl/OglExport.h"

#include <windows.h>

namespace Oru
{
namespace OGL
{

/// A hidden 512 x 512 window of the layer's own, for offscreen contexts and for
/// the throw-away context of the extended pixel-format choice. Each instance
/// registers its own window class, "OpenGL" followed by its address, so the
/// object must not move while it lives. The window belongs to the thread that
/// created it.
class ORU_OGL_API InternalWindow
{
public:
    /// Registers the window class and creates the hidden window.
    /// @throws Oru::InternalException "Unable to register window class" or
    ///         "Unable to create window" (from InternalWindow); a failed
    ///         window leaves no class registered
    InternalWindow();
    /// Destroys the window and unregisters its class.
    /// @throws Oru::InternalException "hDC != 0", "Unable to release the device
    ///         context" or "Unable to unregister window class" (from InternalWindow)
    ~InternalWindow() noexcept(false);
    InternalWindow(InternalWindow const&) = delete;
    InternalWindow& operator=(InternalWindow const&) = delete;

    /// The window.
    /// @return the hidden window's handle, valid while this object lives
    HWND handle() const { return hWnd_; }

private:
    HWND hWnd_;
};

} // namespace OGL
} // namespace Oru

#endif
