#include "oru_ogl/extensionator/windows/wglInterceptor.h"

#include "oru_ogl/Enforce.h"

#include <new>

namespace Oru
{
namespace OGL
{

// The top of the WGL chain, one per process. Like the GL chain it belongs to
// the thread that owns the contexts, and nothing here is locked.
wglInterceptor* wglInterceptor::gInterceptor = nullptr;

wglInterceptor::wglInterceptor() = default;

wglInterceptor::~wglInterceptor() = default;

wglInterceptor* wglInterceptor::createDefaultChain()
{
    // A failed allocation leaves the chain empty and is reported as null.
    gInterceptor = new (std::nothrow) wglErrorChecker();
    return gInterceptor;
}

void wglInterceptor::addInterceptor(wglInterceptorDecorator* decorator)
{
    decorator->setInterceptor(gInterceptor);
    gInterceptor = decorator;
}

wglInterceptorDecorator* wglInterceptor::popInterceptor()
{
    wglInterceptorDecorator* top = dynamic_cast<wglInterceptorDecorator*>(gInterceptor);
    if (!top)
        return nullptr; // the checker at the bottom stays
    gInterceptor = top->interceptor();
    return top;
}

// Library shutdown: only the checker, the one interceptor the layer owns, may be
// left. A decorator still on top is refused, and the chain stays as it is.
void wglInterceptor::destroy()
{
    if (gInterceptor)
        ORU_ENFORCE(dynamic_cast<wglErrorChecker *>(gInterceptor) != NULL);
    // Deleted as what it is: the base's destructor is not virtual.
    delete static_cast<wglErrorChecker*>(gInterceptor);
    gInterceptor = nullptr;
}

wglInterceptorDecorator::wglInterceptorDecorator()
    : pInterceptor_(nullptr)
{
}

wglInterceptorDecorator::wglInterceptorDecorator(wglInterceptor* next)
    : pInterceptor_(next)
{
}

wglInterceptorDecorator::~wglInterceptorDecorator() = default;

// ---------------------------------------------------------------------------
// wglErrorChecker: the calls themselves, results untouched.

wglErrorChecker::wglErrorChecker() = default;

wglErrorChecker::~wglErrorChecker() = default;

BOOL wglErrorChecker::wcgmCopyContext(const char*, unsigned int, HGLRC hglrcSrc, HGLRC hglrcDst, UINT mask)
{
    return wglCopyContext(hglrcSrc, hglrcDst, mask);
}

HGLRC wglErrorChecker::wcgmCreateContext(const char*, unsigned int, HDC hdc)
{
    return wglCreateContext(hdc);
}

HGLRC wglErrorChecker::wcgmCreateLayerContext(const char*, unsigned int, HDC hdc, int iLayerPlane)
{
    return wglCreateLayerContext(hdc, iLayerPlane);
}

BOOL wglErrorChecker::wcgmDeleteContext(const char*, unsigned int, HGLRC hglrc)
{
    return wglDeleteContext(hglrc);
}

HGLRC wglErrorChecker::wcgmGetCurrentContext(const char*, unsigned int)
{
    return wglGetCurrentContext();
}

HDC wglErrorChecker::wcgmGetCurrentDC(const char*, unsigned int)
{
    return wglGetCurrentDC();
}

PROC wglErrorChecker::wcgmGetProcAddress(const char*, unsigned int, LPCSTR lpszProc)
{
    return wglGetProcAddress(lpszProc);
}

BOOL wglErrorChecker::wcgmMakeCurrent(const char*, unsigned int, HDC hdc, HGLRC hglrc)
{
    return wglMakeCurrent(hdc, hglrc);
}

BOOL wglErrorChecker::wcgmShareLists(const char*, unsigned int, HGLRC hglrc1, HGLRC hglrc2)
{
    return wglShareLists(hglrc1, hglrc2);
}

BOOL wglErrorChecker::wcgmUseFontBitmapsA(const char*, unsigned int, HDC hdc, DWORD first, DWORD count,
                                          DWORD listBase)
{
    return wglUseFontBitmapsA(hdc, first, count, listBase);
}

BOOL wglErrorChecker::wcgmUseFontBitmapsW(const char*, unsigned int, HDC hdc, DWORD first, DWORD count,
                                          DWORD listBase)
{
    return wglUseFontBitmapsW(hdc, first, count, listBase);
}

BOOL wglErrorChecker::wcgmSwapBuffers(const char*, unsigned int, HDC hdc)
{
    return ::SwapBuffers(hdc);
}

BOOL wglErrorChecker::wcgmUseFontOutlinesA(const char*, unsigned int, HDC hdc, DWORD first, DWORD count,
                                           DWORD listBase, FLOAT deviation, FLOAT extrusion, int format,
                                           LPGLYPHMETRICSFLOAT lpgmf)
{
    return wglUseFontOutlinesA(hdc, first, count, listBase, deviation, extrusion, format, lpgmf);
}

BOOL wglErrorChecker::wcgmUseFontOutlinesW(const char*, unsigned int, HDC hdc, DWORD first, DWORD count,
                                           DWORD listBase, FLOAT deviation, FLOAT extrusion, int format,
                                           LPGLYPHMETRICSFLOAT lpgmf)
{
    return wglUseFontOutlinesW(hdc, first, count, listBase, deviation, extrusion, format, lpgmf);
}

BOOL wglErrorChecker::wcgmDescribeLayerPlane(const char*, unsigned int, HDC hdc, int iPixelFormat, int iLayerPlane,
                                             UINT nBytes, LPLAYERPLANEDESCRIPTOR plpd)
{
    return wglDescribeLayerPlane(hdc, iPixelFormat, iLayerPlane, nBytes, plpd);
}

int wglErrorChecker::wcgmSetLayerPaletteEntries(const char*, unsigned int, HDC hdc, int iLayerPlane, int iStart,
                                                int cEntries, const COLORREF* pcr)
{
    return wglSetLayerPaletteEntries(hdc, iLayerPlane, iStart, cEntries, pcr);
}

int wglErrorChecker::wcgmGetLayerPaletteEntries(const char*, unsigned int, HDC hdc, int iLayerPlane, int iStart,
                                                int cEntries, COLORREF* pcr)
{
    return wglGetLayerPaletteEntries(hdc, iLayerPlane, iStart, cEntries, pcr);
}

BOOL wglErrorChecker::wcgmRealizeLayerPalette(const char*, unsigned int, HDC hdc, int iLayerPlane, BOOL bRealize)
{
    return wglRealizeLayerPalette(hdc, iLayerPlane, bRealize);
}

BOOL wglErrorChecker::wcgmSwapLayerBuffers(const char*, unsigned int, HDC hdc, UINT fuPlanes)
{
    return wglSwapLayerBuffers(hdc, fuPlanes);
}

DWORD wglErrorChecker::wcgmSwapMultipleBuffers(const char*, unsigned int, UINT n, const WGLSWAP* ps)
{
    return wglSwapMultipleBuffers(n, ps);
}

} // namespace OGL
} // namespace Oru
