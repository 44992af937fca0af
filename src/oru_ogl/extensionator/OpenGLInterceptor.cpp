#include "oru_ogl/extensionator/OpenGLInterceptor.h"

#include "oru_ogl/Enforce.h"
#include "oru_ogl/extensionator/OpenGLErrorChecker.h"
#include "oru_ogl/extensionator/OpenGLInterceptorDecorator.h"

#include <new>

namespace Oru
{
namespace OGL
{

// The top of the chain, one per process. Like the GL context it serves, the
// chain belongs to one thread at a time; nothing here is locked.
OpenGLInterceptor* OpenGLInterceptor::gInterceptor = nullptr;
// The bottom of the default chain, while there is one.
OpenGLErrorChecker* OpenGLInterceptor::gDefaultChecker = nullptr;

OpenGLInterceptor::OpenGLInterceptor() = default;

OpenGLInterceptor::~OpenGLInterceptor() = default;

OpenGLInterceptor* OpenGLInterceptor::createDefaultChain()
{
    // A failed allocation leaves the chain empty and is reported as null.
    gDefaultChecker = new (std::nothrow) OpenGLErrorChecker();
    gInterceptor = gDefaultChecker;
    return gInterceptor;
}

void OpenGLInterceptor::addInterceptor(OpenGLInterceptorDecorator* decorator)
{
    decorator->setInterceptor(gInterceptor);
    gInterceptor = decorator;
}

OpenGLInterceptorDecorator* OpenGLInterceptor::popInterceptor()
{
    OpenGLInterceptorDecorator* top = dynamic_cast<OpenGLInterceptorDecorator*>(gInterceptor);
    if (!top)
        return nullptr; // the error checker at the bottom stays
    gInterceptor = top->interceptor();
    return top;
}

// Library shutdown. Only the error checker may be left: decorators are owned by
// whoever pushed them, who pops and deletes them first. Deleting the chain with
// a decorator still on top would leave that owner holding a decorator whose
// next interceptor is gone, so the call is refused and the chain left intact.
void OpenGLInterceptor::destroy()
{
    if (!gInterceptor)
        return;

    // Only the checker is the layer's own: anything else on top is a decorator
    // not popped (a client's own bottom interceptor can only derive from the
    // decorator base, refused as well), and then nothing is deleted.
    ORU_ENFORCE(dynamic_cast<OpenGLErrorChecker *>(gInterceptor) != NULL);
    delete gInterceptor;
    gInterceptor = nullptr;
    gDefaultChecker = nullptr;
}

} // namespace OGL
} // namespace Oru
