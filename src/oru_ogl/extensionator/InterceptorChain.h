#ifndef ORU_OGL_EXTENSIONATOR_INTERCEPTORCHAIN_H
#define ORU_OGL_EXTENSIONATOR_INTERCEPTORCHAIN_H

#include "oru_ogl/Enforce.h"

#include <new>

namespace Oru
{
namespace OGL
{
namespace detail
{

/// Where a refusal is reported: the file, line and text of its exception.
struct ReportedSite
{
    char const* file;
    int line;
    char const* text;
};

/// The chain mechanism shared by the GL and WGL interception chains: a
/// process-wide top (the chain class's own static pointer, passed in), a
/// Checker at the bottom that the layer creates and owns, and Decorators that
/// their owners push and pop. Like the GL context it serves, a chain belongs to
/// one thread at a time; nothing here is locked.
template <class Interface, class Checker, class Decorator>
struct InterceptorChain
{
    /// Creates the default chain, a single checker. A failed allocation leaves
    /// the chain empty and is reported as null.
    static Checker* createDefault(Interface*& top)
    {
        Checker* checker = new (std::nothrow) Checker();
        top = checker;
        return checker;
    }

    /// Pushes a decorator: it forwards to the former top.
    static void push(Interface*& top, Decorator* decorator)
    {
        decorator->setInterceptor(top);
        top = decorator;
    }

    /// Pops the top decorator, or returns null when only the checker is left.
    static Decorator* pop(Interface*& top)
    {
        Decorator* decorator = dynamic_cast<Decorator*>(top);
        if (!decorator)
            return nullptr; // the checker at the bottom stays
        top = decorator->interceptor();
        return decorator;
    }

    /// Library shutdown. Only the checker, the one interceptor the layer owns,
    /// may be left: decorators belong to whoever pushed them, and deleting the
    /// chain under one would leave its owner forwarding to a deleted checker.
    /// Anything else on top is refused at `refusal`, and the chain stays.
    static void destroy(Interface*& top, ReportedSite const& refusal)
    {
        if (!top)
            return;
        Checker* checker = dynamic_cast<Checker*>(top);
        if (!checker)
            raiseInternal(refusal.file, refusal.line, refusal.text);
        delete checker;
        top = nullptr;
    }
};

} // namespace detail
} // namespace OGL
} // namespace Oru

#endif
