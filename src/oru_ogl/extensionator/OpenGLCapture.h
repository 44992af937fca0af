#ifndef ORU_OGL_EXTENSIONATOR_OPENGLCAPTURE_H
#define ORU_OGL_EXTENSIONATOR_OPENGLCAPTURE_H

#include "oru_ogl/extensionator/CaptureStream.h"
#include "oru_ogl/extensionator/OpenGLInterceptorDecorator.h"

namespace Oru
{
namespace OGL
{

/// Captures every GL call going down the chain into a CaptureStream, with the
/// data its pointers point to (CaptureFormat.h): each call's scalars; the input
/// data of its pointers, sized from the catalogue and, for images, from the
/// unpack state; client-memory vertex arrays at each draw, for the range the
/// draw reads; what a program wrote into mapped buffers, at the unmap; the
/// names glGen* returns. The call goes on to the next interceptor first; its
/// record follows, also when the call throws.
///
/// Used through CaptureSession, which also puts a wglCapture on the WGL chain
/// for contexts and frames.
class ORU_OGL_API OpenGLCapture : public OpenGLInterceptorDecorator
{
public:
    /// A capture decorator.
    /// @param stream where the calls go
    /// @param next   where they go on to (the chain's top when pushed with addInterceptor)
    explicit OpenGLCapture(CaptureStream& stream, OpenGLInterceptor* next = nullptr);
    virtual ~OpenGLCapture();

#define ORU_GL_OPERATION_TAIL override
#include "oru_ogl/extensionator/OpenGLInterceptorOperations.inc"
#undef ORU_GL_OPERATION_TAIL

private:
    CaptureStream& stream_;
};

} // namespace OGL
} // namespace Oru

#endif
