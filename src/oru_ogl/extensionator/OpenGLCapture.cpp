#include "oru_ogl/extensionator/OpenGLCapture.h"

#include "oru_ogl/extensionator/CaptureCall.h"
#include "oru_ogl/extensionator/OperationList.h"

namespace Oru
{
namespace OGL
{

OpenGLCapture::OpenGLCapture(CaptureStream& stream, OpenGLInterceptor* next)
    : OpenGLInterceptorDecorator(next), stream_(stream)
{
}

OpenGLCapture::~OpenGLCapture() = default;

// Each operation forwards the call, then writes its record.
#define ORU_GL_OPERATION(Ret, Stem, Owner, Call, Record, Params, Args, Kinds)                          \
    Ret OpenGLCapture::cgm##Stem(const char* file, unsigned int line ORU_OP_TAIL Params)               \
    {                                                                                                  \
        return detail::captureCall<capture::kGL##Stem, Ret>(                                           \
            stream_, [&]() -> Ret { return pInterceptor_->cgm##Stem(file, line ORU_OP_TAIL Args); }    \
                         ORU_OP_TAIL Args);                                                            \
    }
#include "oru_ogl/extensionator/Operations.def"

} // namespace OGL
} // namespace Oru
