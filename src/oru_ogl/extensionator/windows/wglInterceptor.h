#ifndef ORU_OGL_EXTENSIONATOR_WINDOWS_WGLINTERCEPTOR_H
#define ORU_OGL_EXTENSIONATOR_WINDOWS_WGLINTERCEPTOR_H

#include "oru_ogl/OglExport.h"

#include <windows.h>

namespace Oru
{
namespace OGL
{

class wglInterceptorDecorator;

/// The WGL interception chain, built like the GL one: one operation per WGL
/// function (wcgm plus the name without "wgl"; SwapBuffers is GDI's), taking
/// the caller's file and line first. The bottom, a wglErrorChecker, performs
/// the call; decorators such as wglRekorder are pushed above it.
class ORU_OGL_API wglInterceptor
{
public:
    /// The top of the chain; the first call creates a wglErrorChecker.
    static wglInterceptor* Instance()
    {
        return gInterceptor ? gInterceptor : createDefaultChain();
    }

    /// Deletes the default checker. Every decorator must have been popped.
    static void destroy();

    /// Pushes a decorator on the current chain, whatever object this is called
    /// on. The caller keeps ownership.
    void addInterceptor(wglInterceptorDecorator* decorator);

    /// Pops the top decorator, or returns null when only the checker is left.
    wglInterceptorDecorator* popInterceptor();

    /// wglCopyContext: copies the state groups in mask from one rendering context to another.
    virtual BOOL wcgmCopyContext(const char* file, unsigned int line, HGLRC hglrcSrc, HGLRC hglrcDst, UINT mask) = 0;
    /// wglCreateContext: a new rendering context for the device context.
    virtual HGLRC wcgmCreateContext(const char* file, unsigned int line, HDC hdc) = 0;
    /// wglCreateLayerContext: a new rendering context for a layer plane.
    virtual HGLRC wcgmCreateLayerContext(const char* file, unsigned int line, HDC hdc, int iLayerPlane) = 0;
    /// wglDeleteContext.
    virtual BOOL wcgmDeleteContext(const char* file, unsigned int line, HGLRC hglrc) = 0;
    /// wglGetCurrentContext: the calling thread's current rendering context.
    virtual HGLRC wcgmGetCurrentContext(const char* file, unsigned int line) = 0;
    /// wglGetCurrentDC: the calling thread's current device context.
    virtual HDC wcgmGetCurrentDC(const char* file, unsigned int line) = 0;
    /// wglGetProcAddress.
    virtual PROC wcgmGetProcAddress(const char* file, unsigned int line, LPCSTR lpszProc) = 0;
    /// wglMakeCurrent.
    virtual BOOL wcgmMakeCurrent(const char* file, unsigned int line, HDC hdc, HGLRC hglrc) = 0;
    /// wglShareLists: hglrc2 shares hglrc1's display lists.
    virtual BOOL wcgmShareLists(const char* file, unsigned int line, HGLRC hglrc1, HGLRC hglrc2) = 0;
    /// wglUseFontBitmapsA.
    virtual BOOL wcgmUseFontBitmapsA(const char* file, unsigned int line, HDC hdc, DWORD first, DWORD count,
                                     DWORD listBase) = 0;
    /// wglUseFontBitmapsW.
    virtual BOOL wcgmUseFontBitmapsW(const char* file, unsigned int line, HDC hdc, DWORD first, DWORD count,
                                     DWORD listBase) = 0;
    /// SwapBuffers (GDI's).
    virtual BOOL wcgmSwapBuffers(const char* file, unsigned int line, HDC hdc) = 0;
    /// wglUseFontOutlinesA.
    virtual BOOL wcgmUseFontOutlinesA(const char* file, unsigned int line, HDC hdc, DWORD first, DWORD count,
                                      DWORD listBase, FLOAT deviation, FLOAT extrusion, int format,
                                      LPGLYPHMETRICSFLOAT lpgmf) = 0;
    /// wglUseFontOutlinesW.
    virtual BOOL wcgmUseFontOutlinesW(const char* file, unsigned int line, HDC hdc, DWORD first, DWORD count,
                                      DWORD listBase, FLOAT deviation, FLOAT extrusion, int format,
                                      LPGLYPHMETRICSFLOAT lpgmf) = 0;
    /// wglDescribeLayerPlane.
    virtual BOOL wcgmDescribeLayerPlane(const char* file, unsigned int line, HDC hdc, int iPixelFormat,
                                        int iLayerPlane, UINT nBytes, LPLAYERPLANEDESCRIPTOR plpd) = 0;
    /// wglSetLayerPaletteEntries.
    virtual int wcgmSetLayerPaletteEntries(const char* file, unsigned int line, HDC hdc, int iLayerPlane, int iStart,
                                           int cEntries, const COLORREF* pcr) = 0;
    /// wglGetLayerPaletteEntries.
    virtual int wcgmGetLayerPaletteEntries(const char* file, unsigned int line, HDC hdc, int iLayerPlane, int iStart,
                                           int cEntries, COLORREF* pcr) = 0;
    /// wglRealizeLayerPalette.
    virtual BOOL wcgmRealizeLayerPalette(const char* file, unsigned int line, HDC hdc, int iLayerPlane,
                                         BOOL bRealize) = 0;
    /// wglSwapLayerBuffers.
    virtual BOOL wcgmSwapLayerBuffers(const char* file, unsigned int line, HDC hdc, UINT fuPlanes) = 0;
    /// wglSwapMultipleBuffers.
    virtual DWORD wcgmSwapMultipleBuffers(const char* file, unsigned int line, UINT n, const WGLSWAP* ps) = 0;

protected:
    wglInterceptor();
    // Not virtual: interceptors are deleted as what they are (the checker by
    // destroy(), decorators by their owners, through the decorator's virtual
    // destructor), never as a bare wglInterceptor.
    ~wglInterceptor();

private:
    wglInterceptor(wglInterceptor const&) = delete;
    wglInterceptor& operator=(wglInterceptor const&) = delete;

    static wglInterceptor* createDefaultChain();

    static wglInterceptor* gInterceptor;
};

/// Base of the WGL interceptors that do their own work and forward each call
/// to the next interceptor (not owned).
class ORU_OGL_API wglInterceptorDecorator : public wglInterceptor
{
public:
    /// No next interceptor until addInterceptor() or setInterceptor().
    wglInterceptorDecorator();
    /// Forwards to next.
    explicit wglInterceptorDecorator(wglInterceptor* next);
    virtual ~wglInterceptorDecorator();

    /// Sets the next interceptor.
    void setInterceptor(wglInterceptor* next) { pInterceptor_ = next; }
    /// The next interceptor.
    wglInterceptor* interceptor() { return pInterceptor_; }
    /// The next interceptor.
    wglInterceptor const* interceptor() const { return pInterceptor_; }

protected:
    /// The next interceptor (not owned).
    wglInterceptor* pInterceptor_;
};

/// The bottom of the WGL chain: performs each call and returns its result as
/// it is. Despite the name it checks nothing: WGL failures are left to the
/// callers, who know which of them matter.
class ORU_OGL_API wglErrorChecker : public wglInterceptor
{
public:
    wglErrorChecker();

    BOOL wcgmCopyContext(const char* file, unsigned int line, HGLRC hglrcSrc, HGLRC hglrcDst, UINT mask) override;
    HGLRC wcgmCreateContext(const char* file, unsigned int line, HDC hdc) override;
    HGLRC wcgmCreateLayerContext(const char* file, unsigned int line, HDC hdc, int iLayerPlane) override;
    BOOL wcgmDeleteContext(const char* file, unsigned int line, HGLRC hglrc) override;
    HGLRC wcgmGetCurrentContext(const char* file, unsigned int line) override;
    HDC wcgmGetCurrentDC(const char* file, unsigned int line) override;
    PROC wcgmGetProcAddress(const char* file, unsigned int line, LPCSTR lpszProc) override;
    BOOL wcgmMakeCurrent(const char* file, unsigned int line, HDC hdc, HGLRC hglrc) override;
    BOOL wcgmShareLists(const char* file, unsigned int line, HGLRC hglrc1, HGLRC hglrc2) override;
    BOOL wcgmUseFontBitmapsA(const char* file, unsigned int line, HDC hdc, DWORD first, DWORD count,
                             DWORD listBase) override;
    BOOL wcgmUseFontBitmapsW(const char* file, unsigned int line, HDC hdc, DWORD first, DWORD count,
                             DWORD listBase) override;
    BOOL wcgmSwapBuffers(const char* file, unsigned int line, HDC hdc) override;
    BOOL wcgmUseFontOutlinesA(const char* file, unsigned int line, HDC hdc, DWORD first, DWORD count, DWORD listBase,
                              FLOAT deviation, FLOAT extrusion, int format, LPGLYPHMETRICSFLOAT lpgmf) override;
    BOOL wcgmUseFontOutlinesW(const char* file, unsigned int line, HDC hdc, DWORD first, DWORD count, DWORD listBase,
                              FLOAT deviation, FLOAT extrusion, int format, LPGLYPHMETRICSFLOAT lpgmf) override;
    BOOL wcgmDescribeLayerPlane(const char* file, unsigned int line, HDC hdc, int iPixelFormat, int iLayerPlane,
                                UINT nBytes, LPLAYERPLANEDESCRIPTOR plpd) override;
    int wcgmSetLayerPaletteEntries(const char* file, unsigned int line, HDC hdc, int iLayerPlane, int iStart,
                                   int cEntries, const COLORREF* pcr) override;
    int wcgmGetLayerPaletteEntries(const char* file, unsigned int line, HDC hdc, int iLayerPlane, int iStart,
                                   int cEntries, COLORREF* pcr) override;
    BOOL wcgmRealizeLayerPalette(const char* file, unsigned int line, HDC hdc, int iLayerPlane, BOOL bRealize) override;
    BOOL wcgmSwapLayerBuffers(const char* file, unsigned int line, HDC hdc, UINT fuPlanes) override;
    DWORD wcgmSwapMultipleBuffers(const char* file, unsigned int line, UINT n, const WGLSWAP* ps) override;

    virtual ~wglErrorChecker();
};

} // namespace OGL
} // namespace Oru

#endif
