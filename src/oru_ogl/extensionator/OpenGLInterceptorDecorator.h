#ifndef ORU_OGL_EXTENSIONATOR_OPENGLINTERCEPTORDECORATOR_H
#define ORU_OGL_EXTENSIONATOR_OPENGLINTERCEPTORDECORATOR_H

#include "oru_ogl/extensionator/OpenGLInterceptor.h"

namespace Oru
{
namespace OGL
{

/// Base of the interceptors that do their own work and forward each call to
/// the next interceptor of the chain. The next interceptor is not owned.
class ORU_OGL_API OpenGLInterceptorDecorator : public OpenGLInterceptor
{
public:
    OpenGLInterceptorDecorator();
    /// A decorator forwarding to next.
    explicit OpenGLInterceptorDecorator(OpenGLInterceptor* next);
    virtual ~OpenGLInterceptorDecorator();

    /// Forwards to next from now on.
    void setInterceptor(OpenGLInterceptor* next);
    /// The next interceptor.
    OpenGLInterceptor* interceptor() { return pInterceptor_; }
    /// The next interceptor.
    OpenGLInterceptor const* interceptor() const { return pInterceptor_; }

protected:
    /// The next interceptor, not owned.
    OpenGLInterceptor* pInterceptor_;
};

} // namespace OGL
} // namespace Oru

#endif
