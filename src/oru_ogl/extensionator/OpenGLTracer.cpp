#include "oru_ogl/extensionator/OpenGLTracer.h"

#include "oru_ogl/extensionator/CallText.h"
#include "oru_ogl/extensionator/OperationList.h"

namespace Oru
{
namespace OGL
{

using detail::CallText;
using namespace detail::argument;

OpenGLTracer::OpenGLTracer(std::ostream& out, OpenGLInterceptor* next)
    : OpenGLInterceptorDecorator(next), outputStream_(&out)
{
}

OpenGLTracer::~OpenGLTracer() = default;

// Each operation writes "file(line): glName(arguments)" and forwards the call.
#define ORU_GL_OPERATION(Ret, Stem, Owner, Call, Record, Params, Args, Kinds)                          \
    Ret OpenGLTracer::cgm##Stem(const char* file, unsigned int line ORU_OP_TAIL Params)                \
    {                                                                                                  \
        CallText oruText(*outputStream_, floatTexts_);                                                 \
        oruText.location(file, line);                                                                  \
        oruText.put("gl" #Stem "(");                                                                   \
        detail::writeArguments<ORU_OP_TAIL Kinds>(oruText ORU_OP_TAIL Args);                           \
        oruText.put(")\n");                                                                            \
        oruText.send();                                                                                \
        return pInterceptor_->cgm##Stem(file, line ORU_OP_TAIL Args);                                  \
    }
#include "oru_ogl/extensionator/Operations.def"

} // namespace OGL
} // namespace Oru
