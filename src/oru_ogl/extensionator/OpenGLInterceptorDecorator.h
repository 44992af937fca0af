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
    /// A decorator with no next interceptor yet; push it with
    /// OpenGLInterceptor::addInterceptor() or call setInterceptor() before use.
    OpenGLInterceptorDecorator();
    /// A decorator forwarding to next.
    /// @param next the interceptor to forward to; not owned
    explicit OpenGLInterceptorDecorator(OpenGLInterceptor* next);
    virtual ~OpenGLInterceptorDecorator();

    /// Forwards to next from now on.
    /// @param next the interceptor to forward to; not owned
    void setInterceptor(OpenGLInterceptor* next);
    /// The next interceptor.
    /// @return it, or null before one is set
    OpenGLInterceptor* interceptor() { return pInterceptor_; }
    /// The next interceptor.
    /// @return it, or null before one is set
    OpenGLInterceptor const* interceptor() const { return pInterceptor_; }

protected:
    /// The next interceptor, not owned.
    OpenGLInterceptor* pInterceptor_;
};

} // namespace OGL
} // namespace Oru

#endif
