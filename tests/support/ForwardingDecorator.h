#ifndef ORU_TESTS_SUPPORT_FORWARDINGDECORATOR_H
#define ORU_TESTS_SUPPORT_FORWARDINGDECORATOR_H

#include "oru_ogl/extensionator/OpenGLInterceptorDecorator.h"
#include "oru_ogl/extensionator/OperationList.h"

namespace OruTest
{

// A decorator that counts the calls it forwards and remembers the last.
class ForwardingDecorator : public Oru::OGL::OpenGLInterceptorDecorator
{
public:
    explicit ForwardingDecorator(Oru::OGL::OpenGLInterceptor* next = nullptr) : OpenGLInterceptorDecorator(next) {}

    unsigned int calls = 0;
    char const* lastOperation = nullptr;
    char const* lastFile = nullptr;
    unsigned int lastLine = 0;

#define ORU_GL_OPERATION(Ret, Stem, Owner, Call, Record, Params, Args, Kinds)                          \
    Ret cgm##Stem(const char* file, unsigned int line ORU_OP_TAIL Params) override                     \
    {                                                                                                  \
        ++calls;                                                                                       \
        lastOperation = "cgm" #Stem;                                                                   \
        lastFile = file;                                                                               \
        lastLine = line;                                                                               \
        return pInterceptor_->cgm##Stem(file, line ORU_OP_TAIL Args);                                  \
    }
#include "oru_ogl/extensionator/Operations.def"
};

} // namespace OruTest

#endif
