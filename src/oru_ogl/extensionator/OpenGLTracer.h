#ifndef ORU_OGL_EXTENSIONATOR_OPENGLTRACER_H
#define ORU_OGL_EXTENSIONATOR_OPENGLTRACER_H

#include "oru_ogl/extensionator/FloatTextCache.h"
#include "oru_ogl/extensionator/OpenGLInterceptorDecorator.h"

#include <iostream>

namespace Oru
{
namespace OGL
{

/// A readable log of the GL calls: one line per call,
///
///     scene.cpp:12: glAlphaFunc(GL_GREATER, makeFloat(1056964608) /* 0.5 */)
///
/// then the call goes on to the next interceptor. Scalars are written as the
/// recorder writes them; byte and character pointers as the text they point
/// to (up to the first zero, so an array that is not zero-terminated is read
/// past its end), other pointers as addresses. Results are not traced. The
/// stream is not owned and not flushed.
class ORU_OGL_API OpenGLTracer : public OpenGLInterceptorDecorator
{
public:
    /// Traces onto out, forwarding to next.
    /// @param out  the trace stream; not owned, must outlive the tracer
    /// @param next the interceptor to forward to, or null when the tracer is
    ///             pushed with OpenGLInterceptor::addInterceptor()
    explicit OpenGLTracer(std::ostream& out = std::cout, OpenGLInterceptor* next = nullptr);
    virtual ~OpenGLTracer();

    /// The trace stream.
    /// @return the stream, not owned
    std::ostream* outputStream() { return outputStream_; }
    /// The trace stream.
    /// @return the stream, not owned
    std::ostream const* outputStream() const { return outputStream_; }
    /// Traces from now on to out.
    /// @param out the new trace stream; not owned
    void setOutputStream(std::ostream& out) { outputStream_ = &out; }

#define ORU_GL_OPERATION_TAIL override
#include "oru_ogl/extensionator/OpenGLInterceptorOperations.inc"
#undef ORU_GL_OPERATION_TAIL

private:
    std::ostream* outputStream_;
    detail::FloatTextCache floatTexts_;
};

} // namespace OGL
} // namespace Oru

#endif
