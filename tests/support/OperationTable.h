#ifndef ORU_TESTS_SUPPORT_OPERATIONTABLE_H
#define ORU_TESTS_SUPPORT_OPERATIONTABLE_H

// Test helpers over the GL operations list: the operations by slot, a call of
// any of them with harmless arguments, and a bottom of the chain that performs
// nothing.

#include "oru_ogl/extensionator/CatalogueCounts.h"
#include "oru_ogl/extensionator/OpenGLInterceptor.h"
#include "oru_ogl/extensionator/OperationList.h"

#include <type_traits>

namespace OruTest
{

using Oru::OGL::OpenGLInterceptor;

// Zero for a scalar, the scratch buffer for a pointer.
template <class Parameter>
Parameter harmlessArgument(void* scratch)
{
    if constexpr (std::is_pointer_v<Parameter>)
        return static_cast<Parameter>(scratch);
    else
        return Parameter{};
}

template <class Ret, class... Parameters>
void callHarmlessly(OpenGLInterceptor& target, Ret (OpenGLInterceptor::*operation)(const char*, unsigned int, Parameters...),
                    char const* file, unsigned int line, void* scratch)
{
    (void)scratch; // unused by operations without parameters
    (target.*operation)(file, line, harmlessArgument<Parameters>(scratch)...);
}

template <class Ret, class... Parameters>
constexpr bool takesPointer(Ret (OpenGLInterceptor::*)(const char*, unsigned int, Parameters...))
{
    return (std::is_pointer_v<Parameters> || ...);
}

struct OperationInfo
{
    char const* glName;
    bool takesPointer;
    void (*call)(OpenGLInterceptor& target, char const* file, unsigned int line, void* scratch);
};

const unsigned int operationCount = Oru::OGL::catalogue::kGLOperationCount;

// The operations in slot order.
const OperationInfo operations[operationCount] = {
#define ORU_GL_OPERATION(Ret, Stem, Owner, Call, Record, Params, Args, Kinds)                          \
    {"gl" #Stem, takesPointer(&OpenGLInterceptor::cgm##Stem),                                          \
     [](OpenGLInterceptor& target, char const* file, unsigned int line, void* scratch) {              \
         callHarmlessly(target, &OpenGLInterceptor::cgm##Stem, file, line, scratch);                   \
     }},
#include "oru_ogl/extensionator/Operations.def"
};

// Calls operation `index` (its slot) on `target` with every scalar argument
// zero and every pointer argument aimed at `scratch`.
inline void invokeOperation(OpenGLInterceptor& target, unsigned int index, char const* file, unsigned int line,
                            void* scratch)
{
    operations[index].call(target, file, line, scratch);
}

template <class Ret>
Ret zero()
{
    if constexpr (std::is_void_v<Ret>)
        return;
    else
        return Ret{};
}

template <class... Values>
void ignore(Values const&...)
{
}

// The bottom of a chain for tests without a GL context: performs nothing,
// returns zero, and remembers the last operation that reached it.
class SilentInterceptor : public OpenGLInterceptor
{
public:
    unsigned int calls = 0;
    char const* lastOperation = nullptr;

#define ORU_GL_OPERATION(Ret, Stem, Owner, Call, Record, Params, Args, Kinds)                          \
    Ret cgm##Stem(const char* file, unsigned int line ORU_OP_TAIL Params) override                     \
    {                                                                                                  \
        ignore(file, line ORU_OP_TAIL Args);                                                           \
        ++calls;                                                                                       \
        lastOperation = "cgm" #Stem;                                                                   \
        return zero<Ret>();                                                                            \
    }
#include "oru_ogl/extensionator/Operations.def"
};

} // namespace OruTest

#endif
