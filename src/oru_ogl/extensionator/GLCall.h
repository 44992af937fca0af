#ifndef ORU_OGL_EXTENSIONATOR_GLCALL_H
#define ORU_OGL_EXTENSIONATOR_GLCALL_H

/// \file
/// ORU_GL: GL calls written as such and checked through the interception chain.

#include "oru_ogl/extensionator/EntryPoints.h"
#include "oru_ogl/extensionator/OpenGLErrorChecker.h"
#include "oru_ogl/extensionator/OperationList.h"

namespace Oru
{
namespace OGL
{

/// One GL call made through the current interceptor, carrying the caller's
/// file and line. Written through ORU_GL, so that a checked call reads like
/// the call it replaces:  ORU_GL glTexParameteri(GL_TEXTURE_2D, pname, value);
/// While the chain is the error checker alone, the checker's work is done
/// in place, without the virtual call; with decorators pushed, the call
/// goes down the chain. glBegin and glEnd always go down the chain, which
/// keeps track of the pair.
class CallSite
{
public:
    /// The call site: the caller's file and line.
    /// @param file the caller's source file, as its `__FILE__`; kept, not copied
    /// @param line the caller's line, as its `__LINE__`
    CallSite(char const* file, unsigned int line) : file_(file), line_(line) {}

#define ORU_CALL_SITE(Ret, Stem, Params, Args, callee)                                                 \
    Ret gl##Stem(ORU_OP_PLAIN Params) const                                                            \
    {                                                                                                  \
        if (OpenGLErrorChecker* checker = OpenGLInterceptor::loneChecker())                            \
            return checker->perform(file_, line_, callee ORU_OP_TAIL Args);                            \
        return OpenGLInterceptor::Instance()->cgm##Stem(file_, line_ ORU_OP_TAIL Args);                \
    }
#define ORU_CALL_SITE_Direct(Ret, Stem, Params, Args) ORU_CALL_SITE(Ret, Stem, Params, Args, ::gl##Stem)
#define ORU_CALL_SITE_Loaded(Ret, Stem, Params, Args) \
    ORU_CALL_SITE(Ret, Stem, Params, Args, OpenGLErrorChecker::loaded(_cgm##Stem, file_, line_, "gl" #Stem))
#define ORU_CALL_SITE_Bracket(Ret, Stem, Params, Args)                                                 \
    Ret gl##Stem(ORU_OP_PLAIN Params) const                                                            \
    {                                                                                                  \
        return OpenGLInterceptor::Instance()->cgm##Stem(file_, line_ ORU_OP_TAIL Args);                \
    }
#define ORU_GL_OPERATION(Ret, Stem, Owner, Call, Record, Params, Args, Kinds) \
    ORU_CALL_SITE_##Call(Ret, Stem, Params, Args)
#include "oru_ogl/extensionator/Operations.def"
#undef ORU_CALL_SITE
#undef ORU_CALL_SITE_Direct
#undef ORU_CALL_SITE_Loaded
#undef ORU_CALL_SITE_Bracket

private:
    char const* file_;
    unsigned int line_;
};

} // namespace OGL
} // namespace Oru

/// Prefix for a GL call checked through the interception chain.
#define ORU_GL ::Oru::OGL::CallSite(__FILE__, __LINE__).

#endif
