#ifndef ORU_OGL_OGL_WRAPPERCALL_H
#define ORU_OGL_OGL_WRAPPERCALL_H

// The wrappers' GL calls, written ORU_WRAPPER_GL glTexParameteri(target, pname,
// value); so that they read like the calls they are. By default each one is
// the plain GL call (OpenGL 1.1 from the system library, the rest through its
// _cgm pointer) behind one test of a flag. With the start-up option
// InitOptions::setWrappersThroughChain(true) each goes through the current
// interceptor instead, carrying the wrapper's own file and line, so that a
// tracer, a recorder or any decorator on the chain sees the wrappers' calls
// among the client's. The chain's bottom then checks them like any other
// call: a GL error raises ExceptionOGL from the wrapper's call (see the
// option for what that means to callers).
//
// Destructors, and the scopes that restore state on the way out, write
// ORU_WRAPPER_GL_NOTHROW: the call is routed just the same, but what the chain
// raises is dropped, since a destructor must not throw (while an exception
// unwinds it would end the program). Private to the library.

#include "oru_ogl/extensionator/EntryPoints.h"
#include "oru_ogl/extensionator/OpenGLInterceptor.h"
#include "oru_ogl/extensionator/OperationList.h"

namespace Oru
{
namespace OGL
{

class WrapperCall
{
public:
    /// A call site of a wrapper: its file and line, and whether what the
    /// chain raises is dropped (in destructors).
    WrapperCall(char const* file, unsigned int line, bool noThrow)
        : file_(file)
        , line_(line)
        , noThrow_(noThrow)
    {
    }

    /// Set from the options at start-up and cleared at shutdown.
    static void switchOn(bool on);

#define ORU_WRAPPER_CALL(Ret, Stem, Params, Args, direct)                                                 \
    Ret gl##Stem(ORU_OP_PLAIN Params) const                                                               \
    {                                                                                                     \
        if (!bThroughChain_)                                                                              \
            return direct(ORU_OP_PLAIN Args);                                                             \
        return routed([&] { return OpenGLInterceptor::Instance()->cgm##Stem(file_, line_ ORU_OP_TAIL Args); }); \
    }
#define ORU_WRAPPER_CALL_Direct(Ret, Stem, Params, Args) ORU_WRAPPER_CALL(Ret, Stem, Params, Args, ::gl##Stem)
#define ORU_WRAPPER_CALL_Bracket(Ret, Stem, Params, Args) ORU_WRAPPER_CALL(Ret, Stem, Params, Args, ::gl##Stem)
#define ORU_WRAPPER_CALL_Loaded(Ret, Stem, Params, Args) ORU_WRAPPER_CALL(Ret, Stem, Params, Args, _cgm##Stem)
#define ORU_GL_OPERATION(Ret, Stem, Owner, Call, Record, Params, Args, Kinds) \
    ORU_WRAPPER_CALL_##Call(Ret, Stem, Params, Args)
#include "oru_ogl/extensionator/Operations.def"
#undef ORU_WRAPPER_CALL
#undef ORU_WRAPPER_CALL_Direct
#undef ORU_WRAPPER_CALL_Bracket
#undef ORU_WRAPPER_CALL_Loaded

    /// The call of a member chosen at run time: ORU_WRAPPER_GL invoke(&WrapperCall::glBindTexture, target, name).
    template <class Member, class... Arguments>
    auto invoke(Member member, Arguments... arguments) const
    {
        return (this->*member)(arguments...);
    }

private:
    // The call down the chain; in a destructor, what it raises is dropped and
    // the call answers a zero value.
    template <class Call>
    auto routed(Call call) const -> decltype(call())
    {
        if (!noThrow_)
            return call();
        try
        {
            return call();
        }
        catch (...)
        {
            return decltype(call())();
        }
    }

    static bool bThroughChain_;

    char const* file_;
    unsigned int line_;
    bool noThrow_;
};

} // namespace OGL
} // namespace Oru

/// Prefix for a wrapper's GL call.
#define ORU_WRAPPER_GL ::Oru::OGL::WrapperCall(__FILE__, __LINE__, false).
/// The same in a destructor or a restoring scope: never throws.
#define ORU_WRAPPER_GL_NOTHROW ::Oru::OGL::WrapperCall(__FILE__, __LINE__, true).

#endif
