#ifndef ORU_BENCH_FORWARDINGDECORATOR_H
#define ORU_BENCH_FORWARDINGDECORATOR_H

// A decorator that does nothing but forward: what any decorator costs before
// it does its own work.

#include "oru_ogl/extensionator/OpenGLInterceptorDecorator.h"
#include "oru_ogl/extensionator/OperationList.h"

namespace bench
{

class ForwardingDecorator : public Oru::OGL::OpenGLInterceptorDecorator
{
public:
#define ORU_GL_OPERATION(Ret, Stem, Owner, Call, Record, Params, Args, Kinds)                          \
    Ret cgm##Stem(const char* file, unsigned int line ORU_OP_TAIL Params) override                     \
    {                                                                                                  \
        return pInterceptor_->cgm##Stem(file, line ORU_OP_TAIL Args);                                  \
    }
#include "oru_ogl/extensionator/Operations.def"
};

} // namespace bench

#endif
