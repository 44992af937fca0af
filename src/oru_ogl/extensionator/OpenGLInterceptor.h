#ifndef ORU_OGL_EXTENSIONATOR_OPENGLINTERCEPTOR_H
#define ORU_OGL_EXTENSIONATOR_OPENGLINTERCEPTOR_H

#include "oru_ogl/OglExport.h"
#include "oru_ogl/extensionator/GLTypes.h"

namespace Oru
{
namespace OGL
{

class OpenGLErrorChecker;
class OpenGLInterceptorDecorator;

/// The GL interception chain: one operation per GL entry point, named cgm plus
/// the GL name without "gl", taking the caller's source file and line first.
/// Client code calls the current interceptor instead of GL,
/// `OpenGLInterceptor::Instance()->cgmTexParameteri(__FILE__, __LINE__, target, pname, value)`,
/// or writes the call with ORU_GL (GLCall.h), which reports a GL error with
/// the file and line of the call:
///
/// @snippet consumer/main.cpp checked call
///
/// The bottom of the chain, an OpenGLErrorChecker, makes the call and turns a
/// GL error into an ExceptionOGL naming that file and line; decorators pushed
/// above it (tracer, recorder) do their work and forward the call; they are
/// pushed and popped by their owner:
///
/// @snippet recorddemo/main.cpp gl chain
class ORU_OGL_API OpenGLInterceptor
{
public:
    /// The top of the chain; the first call creates the default chain, a single
    /// OpenGLErrorChecker.
    /// @return the top interceptor; null only when allocating the default
    ///         chain failed
    static OpenGLInterceptor* Instance()
    {
        return gInterceptor ? gInterceptor : createDefaultChain();
    }

    /// The error checker when it is the whole chain (no decorator pushed), else
    /// null. Call sites use it to do the checker's work without a virtual call
    /// (defined inline in OpenGLErrorChecker.h).
    /// @return the default checker, or null
    static inline OpenGLErrorChecker* loneChecker();

    /// Deletes the default error checker; the next Instance() builds a new
    /// chain. Every decorator must have been popped; without a chain it does
    /// nothing.
    /// @throws Oru::InternalException
    ///         "Enforce dynamic_cast<OpenGLErrorChecker *>(gInterceptor) != NULL"
    ///         while a decorator is on top; the chain then stays as it is
    static void destroy();

    /// Pushes a decorator on the current chain (whatever object this is called
    /// on): it forwards to the former top. The caller keeps ownership.
    /// @param decorator the decorator; not null, not on the chain already
    void addInterceptor(OpenGLInterceptorDecorator* decorator);

    /// Pops the top decorator.
    /// @return the decorator, now the caller's again, or null when only the
    ///         error checker is left
    OpenGLInterceptorDecorator* popInterceptor();

#define ORU_GL_OPERATION_TAIL = 0
#include "oru_ogl/extensionator/OpenGLInterceptorOperations.inc"
#undef ORU_GL_OPERATION_TAIL

    virtual ~OpenGLInterceptor();

protected:
    OpenGLInterceptor();

private:
    OpenGLInterceptor(OpenGLInterceptor const&) = delete;
    OpenGLInterceptor& operator=(OpenGLInterceptor const&) = delete;

    static OpenGLInterceptor* createDefaultChain();

    static OpenGLInterceptor* gInterceptor;
    static OpenGLErrorChecker* gDefaultChecker;
};

} // namespace OGL
} // namespace Oru

#endif
