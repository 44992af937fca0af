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

#define ORU_WGL_OPERATION_TAIL = 0
#include "oru_ogl/extensionator/windows/wglInterceptorOperations.inc"
#undef ORU_WGL_OPERATION_TAIL

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

#define ORU_WGL_OPERATION_TAIL override
#include "oru_ogl/extensionator/windows/wglInterceptorOperations.inc"
#undef ORU_WGL_OPERATION_TAIL

    virtual ~wglErrorChecker();
};

} // namespace OGL
} // namespace Oru

#endif
