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
    explicit OpenGLInterceptorDecorator(OpenGLInterceptor* next);
    virtual ~OpenGLInterceptorDecorator();

    void setInterceptor(OpenGLInterceptor* next);
    OpenGLInterceptor* interceptor() { return pInterceptor_; }
    OpenGLInterceptor const* interceptor() const { return pInterceptor_; }

protected:
    OpenGLInterceptor* pInterceptor_;
};

} // namespace OGL
} // namespace Oru

#endif
