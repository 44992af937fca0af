#include "oru_ogl/extensionator/OpenGLInterceptor.h"

#include "oru_ogl/extensionator/InterceptorChain.h"
#include "oru_ogl/extensionator/OpenGLErrorChecker.h"
#include "oru_ogl/extensionator/OpenGLInterceptorDecorator.h"

namespace Oru
{
namespace OGL
{

namespace
{
using Chain = detail::InterceptorChain<OpenGLInterceptor, OpenGLErrorChecker, OpenGLInterceptorDecorator>;

// destroy() with a decorator on top reports here.
const detail::ReportedSite kDestroyRefusal = {
    __FILE__, 59, "Enforce dynamic_cast<OpenGLErrorChecker *>(gInterceptor) != NULL"};
} // namespace

// The top of the chain, one per process.
OpenGLInterceptor* OpenGLInterceptor::gInterceptor = nullptr;
// The bottom of the default chain, while there is one.
OpenGLErrorChecker* OpenGLInterceptor::gDefaultChecker = nullptr;

OpenGLInterceptor::OpenGLInterceptor() = default;

OpenGLInterceptor::~OpenGLInterceptor() = default;

OpenGLInterceptor* OpenGLInterceptor::createDefaultChain()
{
    gDefaultChecker = Chain::createDefault(gInterceptor);
    return gInterceptor;
}

void OpenGLInterceptor::addInterceptor(OpenGLInterceptorDecorator* decorator)
{
    Chain::push(gInterceptor, decorator);
}

OpenGLInterceptorDecorator* OpenGLInterceptor::popInterceptor()
{
    return Chain::pop(gInterceptor);
}

void OpenGLInterceptor::destroy()
{
    Chain::destroy(gInterceptor, kDestroyRefusal);
    gDefaultChecker = nullptr;
}

} // namespace OGL
} // namespace Oru
