#ifndef ORU_OGL_EXTENSIONATOR_WINDOWS_WGLCAPTURE_H
#define ORU_OGL_EXTENSIONATOR_WINDOWS_WGLCAPTURE_H

#include "oru_ogl/extensionator/CaptureStream.h"
#include "oru_ogl/extensionator/windows/wglInterceptor.h"

namespace Oru
{
namespace OGL
{

/// The WGL side of a capture: every WGL call into the same CaptureStream as the
/// GL calls, the windows the contexts draw to (Surface records), and the
/// frames: before each SwapBuffers the back buffer's checksum (and, when the
/// capture stores frames, its pixels), after it the stream goes to the file.
class ORU_OGL_API wglCapture : public wglInterceptorDecorator
{
public:
    /// A capture decorator.
    /// @param stream where the calls go
    /// @param next   where they go on to (the chain's top when pushed with addInterceptor)
    explicit wglCapture(CaptureStream& stream, wglInterceptor* next = nullptr);
    virtual ~wglCapture();

#define ORU_WGL_OPERATION_TAIL override
#include "oru_ogl/extensionator/windows/wglInterceptorOperations.inc"
#undef ORU_WGL_OPERATION_TAIL

private:
    CaptureStream& stream_;
};

} // namespace OGL
} // namespace Oru

#endif
