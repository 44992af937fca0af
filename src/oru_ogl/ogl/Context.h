#ifndef ORU_OGL_OGL_CONTEXT_H
#define ORU_OGL_OGL_CONTEXT_H

#include "oru_ogl/OglExport.h"
#include "oru_ogl/ogl/BufferFormat.h"
#include "oru_ogl/ogl/ContextAttributes.h"

#include <windows.h>

namespace Oru
{
namespace OGL
{

/// Base of every rendering context: a device context, a rendering context and
/// the pixel format chosen for the device context, and the procedure that
/// creates them. ContextWindowed, ContextOffscreen and ContextWrapped decide
/// which window and format are used and what is released at the end.
///
/// Creating a context never changes which context is current on the calling
/// thread. Failures throw InternalException (from ogl/Context_WIN_OS).
class ORU_OGL_API Context
{
public:
    /// Only eDoubleBuffered asks for a double buffer.
    enum teBuffering
    {
        eSingleBuffered = 0,
        eDoubleBuffered = 1
    };

    /// The value is the number of samples per pixel; above 1 asks for a
    /// multisample buffer. 0 also asks for none, but takes the extended path.
    enum teMultisample
    {
        eNoMultisample = 1,
        e2Samples = 2,
        e4Samples = 4,
        e8Samples = 8,
        e16Samples = 16
    };

    /// What the pixel format must be able to draw to.
    enum teWindowed
    {
        ePixelBuffer = 0,
        eWindow = 1
    };

    virtual ~Context() noexcept(false);

    /// Makes this context current on the calling thread.
    void makeCurrent();
    /// Presents the back buffer (the result is not checked).
    void swapBuffers();
    /// The bit depths of the pixel format set on the device context.
    void getBitDepths(int* red, int* green, int* blue, int* alpha, int* stencil, int* depth) const;

    /// Whether WGL_EXT_swap_control loaded at start-up.
    static bool supportsVerticalRetraceControl();
    /// Sets the swap interval (1 or 0) of the context current now.
    void enableSyncToVerticalRetrace(bool enable);

    /// The rendering context.
    HGLRC renderContext() const { return hRC_; }
    /// The device context.
    HDC deviceContext() const { return hDC_; }

protected:
    Context();

    /// The classic choice, through GDI's ChoosePixelFormat.
    int choosePixelFormat(HDC hdc, const BufferFormat& format, bool doubleBuffered);
    /// The extended choice, through wglChoosePixelFormatARB (needs a current context).
    int choosePixelFormat(HDC hdc, const BufferFormat& format, teBuffering buffering, teMultisample samples,
                          teWindowed target);
    /// Sets the pixel format on the device context.
    void setPixelFormat(HDC hdc, int pixelFormat);
    /// Creates a rendering context on the device context.
    HGLRC createRenderingContext(HDC hdc);
    /// Classic choice, setPixelFormat and createRenderingContext in one.
    HGLRC setupRenderingContext(HDC hdc, const BufferFormat& format, bool doubleBuffered);
    /// The whole creation on a window: pixel format, rendering context, shared
    /// lists; the previously current context is current again afterwards.
    void initialize(HWND window, const BufferFormat& format, teBuffering buffering, teMultisample samples,
                    Context* shareWith);
    /// Replaces the rendering context that initialize() made with one made by
    /// wglCreateContextAttribsARB for the attributes, sharing with shareWith
    /// unless null; the previously current context is current again afterwards.
    void createVersionedContext(const ContextAttributes& attributes, Context* shareWith);
    /// Shares this context's display lists with those of other.
    void shareLists(HGLRC other);
    /// Deletes the rendering context, keeping another current context current.
    void destroyContext();
    /// Always fails: the layer is started by Library or AutoInitializer.
    void initializeExtensions();

    /// Device context.
    HDC hDC_;
    /// Rendering context.
    HGLRC hRC_;
    /// Pixel format chosen for the device context.
    int nPixelFormat_;

private:
    Context(Context const&);
    Context& operator=(Context const&);

    static void setThrowTestException(bool value);
    static bool throwTestException_;
};

} // namespace OGL
} // namespace Oru

#endif
