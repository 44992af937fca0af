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

    /// Derived destructors delete what they own and may throw on platform failure.
    virtual ~Context() noexcept(false);

    /// Makes this context current on the calling thread (wglMakeCurrent).
    /// @throws Oru::InternalException "Context::can't make this context current"
    ///         followed at once by GetLastError()'s number
    void makeCurrent();
    /// Presents the back buffer (SwapBuffers); the result is not checked and a
    /// single-buffered context ignores it.
    void swapBuffers();
    /// The bit depths of the pixel format set on the device context
    /// (DescribePixelFormat). Every pointer must be valid.
    /// @param red     receives the red bits
    /// @param green   receives the green bits
    /// @param blue    receives the blue bits
    /// @param alpha   receives the alpha bits
    /// @param stencil receives the stencil bits
    /// @param depth   receives the depth bits
    void getBitDepths(int* red, int* green, int* blue, int* alpha, int* stencil, int* depth) const;

    /// Whether WGL_EXT_swap_control loaded at start-up.
    /// @return true when the extension manager marked it
    /// @throws Oru::InternalException "Enforce pInstance_ != NULL" while the layer is not started
    static bool supportsVerticalRetraceControl();
    /// Sets the swap interval of the context current now (not necessarily this
    /// one), as wglSwapIntervalEXT does.
    /// @param enable true for an interval of 1 (wait for the vertical retrace), false for 0
    /// @throws Oru::InternalException
    ///         "ContextWindowed::enableSyncToVerticalRetrace unsupported feature"
    ///         without WGL_EXT_swap_control; "Enforce pInstance_ != NULL" while the
    ///         layer is not started
    void enableSyncToVerticalRetrace(bool enable);

    /// The rendering context.
    /// @return the HGLRC, null before creation or after a failed one
    HGLRC renderContext() const { return hRC_; }
    /// The device context.
    /// @return the HDC the rendering context draws to
    HDC deviceContext() const { return hDC_; }

protected:
    /// No handles yet; derived constructors create them.
    Context();

    /// The classic choice, through GDI's ChoosePixelFormat.
    /// @param hdc            the device context; not null
    /// @param format         the depths asked for (the floating-point flag is ignored)
    /// @param doubleBuffered whether to ask for a double buffer
    /// @return the pixel format index GDI chose, 1 or more
    /// @throws Oru::InternalException "Context:choosePixelFormat invalid device context"
    ///         for a null hdc; "Cannot create OpenGL Context. Can't find suitable
    ///         format. Windows error " followed by GetLastError()'s number when GDI
    ///         finds none
    int choosePixelFormat(HDC hdc, const BufferFormat& format, bool doubleBuffered);
    /// The extended choice, through wglChoosePixelFormatARB of the context
    /// current now (one must be).
    /// @param hdc       the device context; not null
    /// @param format    the depths and floating-point flag asked for
    /// @param buffering single or double buffered
    /// @param samples   samples per pixel; above 1 needs eDoubleBuffered
    /// @param target    whether the format draws to a window or a pbuffer
    /// @return the first matching pixel format index
    /// @throws Oru::InternalException in this order: "wglChoosePixelFormatARB
    ///         extension not supported" when the current context has no such entry
    ///         point; "Context:choosePixelFormat invalid device context" for a
    ///         null hdc; "Double buffering required with multisampling."; "Can't
    ///         find suitable pixel format." when the driver matches none
    int choosePixelFormat(HDC hdc, const BufferFormat& format, teBuffering buffering, teMultisample samples,
                          teWindowed target);
    /// Sets the pixel format on the device context and remembers it.
    /// @param hdc         the device context
    /// @param pixelFormat the index to set, 1 or more
    /// @throws Oru::InternalException "Context::setPixelFormat invalid pixel format "
    ///         followed by the index for an index below 1; "Context::setPixelFormat
    ///         Unable to set pixel format %i on device context. Window Error: "
    ///         (the %i is literal) followed by GetLastError()'s number when
    ///         SetPixelFormat fails, as it does on a device context that has a format
    void setPixelFormat(HDC hdc, int pixelFormat);
    /// Creates a rendering context on the device context (wglCreateContext).
    /// @param hdc the device context, its pixel format set; not null
    /// @return the new rendering context, owned by the caller
    /// @throws Oru::InternalException "Context:createRenderingContext invalid device context"
    ///         for a null hdc; "Context::createRenderingContext Can't create rendering
    ///         context" when WGL refuses
    HGLRC createRenderingContext(HDC hdc);
    /// Classic choice, setPixelFormat() and createRenderingContext() in one.
    /// @param hdc            the device context; not null
    /// @param format         the depths asked for
    /// @param doubleBuffered whether to ask for a double buffer
    /// @return the new rendering context, owned by the caller
    /// @throws Oru::InternalException what the three steps throw
    HGLRC setupRenderingContext(HDC hdc, const BufferFormat& format, bool doubleBuffered);
    /// The whole creation on a window: pixel format, rendering context, shared
    /// lists; the previously current context is current again afterwards.
    /// Integer formats with one sample take the classic choice; floating-point
    /// colour, multisampling and 10-bit red take the extended one, through a
    /// throw-away context on a hidden window when none is current. On failure
    /// everything made here is released first.
    /// @param window    the window to draw to; its device context is kept
    /// @param format    the depths and floating-point flag asked for
    /// @param buffering single or double buffered
    /// @param samples   samples per pixel
    /// @param shareWith a context to share display lists and objects with, or null
    /// @throws Oru::InternalException "ContextWindowed::ctor invalid DC on window"
    ///         when the window gives no device context; while releasing after a
    ///         failure, "ContextWindowed::ContextWindowed failed to release context:
    ///         fatal exception!" or "ContextWindowed::ContextWindowed failed to
    ///         destroy context: fatal exception!"
    /// @throws Oru::LogicalException a copy, sliced to LogicalException, of any
    ///         other failure of the steps: the texts of choosePixelFormat(),
    ///         setPixelFormat(), createRenderingContext(), shareLists(),
    ///         makeCurrent() and InternalWindow(), and "Enforce pInstance_ != NULL"
    ///         when the extended choice is needed while the layer is not started
    void initialize(HWND window, const BufferFormat& format, teBuffering buffering, teMultisample samples,
                    Context* shareWith);
    /// Replaces the rendering context that initialize() made with one made by
    /// wglCreateContextAttribsARB for the attributes; the previously current
    /// context is current again afterwards. The old context is deleted in
    /// every case, so after a failure the object has no rendering context.
    /// @param attributes the version, profile and flags asked for
    /// @param shareWith  a context to share display lists and objects with, or null
    /// @throws Oru::InternalException "Context::can't make this context current"
    ///         followed by GetLastError()'s number;
    ///         "Context::createVersionedContext WGL_ARB_create_context not supported";
    ///         "Context::createVersionedContext WGL_ARB_create_context_profile not supported"
    ///         when a profile is asked for and the device context does not
    ///         advertise it; "Context::createVersionedContext the driver refused "
    ///         followed by ContextAttributes::description(), ". Windows error " and
    ///         GetLastError()'s number
    void createVersionedContext(const ContextAttributes& attributes, Context* shareWith);
    /// Shares this context's display lists with those of other (wglShareLists).
    /// @param other the context whose lists are shared; it must not have made
    ///              lists or objects of its own yet
    /// @throws Oru::InternalException "Context::shareLists cannot share lists."
    void shareLists(HGLRC other);
    /// Deletes the rendering context, keeping another current context current.
    /// @throws Oru::InternalException "ContextWindowed::~ContextWindowed failed to
    ///         release context: fatal exception!",
    ///         "ContextOffscreen::~ContextWindowed failed to delete rendering context: fatal exception"
    ///         or "!\"ContextOffscreen::~ContextOffscreen failed to restore context\""
    ///         when WGL fails a step
    void destroyContext();
    /// Always fails: the layer is started by Library or AutoInitializer.
    /// @throws Oru::InternalException "We can't initialize Extensions automatically
    ///         any more with the new Singleton scheme", always
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
