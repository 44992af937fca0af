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
///
///     OpenGLInterceptor::Instance()->cgmTexParameteri(__FILE__, __LINE__, target, pname, value);
///
/// (or writes ORU_GL glTexParameteri(target, pname, value); with GLCall.h).
/// The bottom of the chain, an OpenGLErrorChecker, makes the call and turns a
/// GL error into an ExceptionOGL naming that file and line; decorators pushed
/// above it (tracer, recorder) do their work and forward the call.
class ORU_OGL_API OpenGLInterceptor
{
public:
    /// The top of the chain; the first call creates the default chain, a single
    /// OpenGLErrorChecker.
    static OpenGLInterceptor* Instance()
    {
        return gInterceptor ? gInterceptor : createDefaultChain();
    }

    /// The error checker when it is the whole chain (no decorator pushed), else
    /// null. Call sites use it to do the checker's work without a virtual call
    /// (defined inline in OpenGLErrorChecker.h).
    static inline OpenGLErrorChecker* loneChecker();

    /// Deletes the default error checker. Every decorator must have been popped.
    static void destroy();

    /// Pushes a decorator on the current chain (whatever object this is called
    /// on): it forwards to the former top. The caller keeps ownership.
    void addInterceptor(OpenGLInterceptorDecorator* decorator);

    /// Pops the top decorator and returns it, or returns null when only the
    /// error checker is left.
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
