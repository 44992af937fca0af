#include "oru_ogl/extensionator/windows/wglInterceptor.h"

#include "oru_ogl/extensionator/InterceptorChain.h"
#include "oru_ogl/extensionator/OperationList.h"

namespace Oru
{
namespace OGL
{

namespace
{
using Chain = detail::InterceptorChain<wglInterceptor, wglErrorChecker, wglInterceptorDecorator>;

// destroy() with a decorator on top reports here.
const detail::ReportedSite kDestroyRefusal = {
    __FILE__, 47, "Enforce dynamic_cast<wglErrorChecker *>(gInterceptor) != NULL"};
} // namespace

// The top of the WGL chain, one per process.
wglInterceptor* wglInterceptor::gInterceptor = nullptr;

wglInterceptor::wglInterceptor() = default;

wglInterceptor::~wglInterceptor() = default;

wglInterceptor* wglInterceptor::createDefaultChain()
{
    return Chain::createDefault(gInterceptor);
}

void wglInterceptor::addInterceptor(wglInterceptorDecorator* decorator)
{
    Chain::push(gInterceptor, decorator);
}

wglInterceptorDecorator* wglInterceptor::popInterceptor()
{
    return Chain::pop(gInterceptor);
}

void wglInterceptor::destroy()
{
    Chain::destroy(gInterceptor, kDestroyRefusal);
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

#define ORU_WGL_OPERATION(Ret, Stem, Function, Params, Args)                                          \
    Ret wglErrorChecker::wcgm##Stem(const char*, unsigned int ORU_OP_TAIL Params)                     \
    {                                                                                                 \
        return ::Function(ORU_OP_PLAIN Args);                                                         \
    }
#include "oru_ogl/extensionator/windows/WglOperations.def"

} // namespace OGL
} // namespace Oru
