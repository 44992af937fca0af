#include "oru_ogl/extensionator/windows/wglCapture.h"

#include "oru_ogl/extensionator/CaptureCall.h"
#include "oru_ogl/extensionator/OperationList.h"

namespace Oru
{
namespace OGL
{

wglCapture::wglCapture(CaptureStream& stream, wglInterceptor* next) : wglInterceptorDecorator(next), stream_(stream)
{
}

wglCapture::~wglCapture() = default;

#define ORU_WGL_OPERATION(Ret, Stem, Function, Params, Args)                                           \
    Ret wglCapture::wcgm##Stem(const char* file, unsigned int line ORU_OP_TAIL Params)                 \
    {                                                                                                  \
        return detail::captureCall<capture::kWGL##Stem, Ret>(                                          \
            stream_, [&]() -> Ret { return pInterceptor_->wcgm##Stem(file, line ORU_OP_TAIL Args); }   \
                         ORU_OP_TAIL Args);                                                            \
    }
#include "oru_ogl/extensionator/windows/WglOperations.def"

} // namespace OGL
} // namespace Oru
