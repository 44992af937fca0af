#ifndef ORU_OGL_ENFORCE_H
#define ORU_OGL_ENFORCE_H

// The checks of the layer. Each throws Oru::InternalException by value with the
// file and line of the check itself and one of four texts:
//
//   ORU_ENFORCE(pContext != NULL)        "Enforce pContext != NULL"  (caller's precondition)
//   ORU_VERIFY(pInstance_ == 0)          "pInstance_ == 0"           (own invariant, required feature,
//   ORU_VERIFY(!"Unknown enum.")         "!\"Unknown enum.\""         or unreachable branch)
//   ORU_ENFORCE_RANGE(nSize > 0)         "Range error: nSize > 0"
//
// and ORU_THROW(a << b) for a text composed in a string stream, e.g. with
// GetLastError() or a TokenName appended. ORU_REQUIRE_LOADED(_cgmX, "glX")
// refuses a call through an entry-point pointer that was never loaded, naming
// the function, instead of calling through null. Keep each check on one line:
// the line reported is the line of the macro.
//
// Where the line a check reports is fixed by callers who match on it, and the
// code around it moves, the _AT forms take that line as a named constant:
// ORU_ENFORCE_AT(kLine, expr), ORU_VERIFY_AT(kLinkLine, expr) and
// ORU_THROW_AT(kLinkLine, a << b).

#include "oru_ogl/OglExport.h"

#include <sstream>
#include <string>

namespace Oru
{
namespace OGL
{
namespace detail
{
[[noreturn]] ORU_OGL_API void raiseInternal(char const* file, int line, char const* text);
[[noreturn]] ORU_OGL_API void raiseInternal(char const* file, int line, std::string const& text);
[[noreturn]] ORU_OGL_API void raiseNotLoaded(char const* file, int line, char const* function);
} // namespace detail
} // namespace OGL
} // namespace Oru

#define ORU_ENFORCE(expr) \
    do { if (!(expr)) ::Oru::OGL::detail::raiseInternal(__FILE__, __LINE__, "Enforce " #expr); } while (0)

#define ORU_VERIFY(expr) \
    do { if (!(expr)) ::Oru::OGL::detail::raiseInternal(__FILE__, __LINE__, #expr); } while (0)

#define ORU_ENFORCE_RANGE(expr) \
    do { if (!(expr)) ::Oru::OGL::detail::raiseInternal(__FILE__, __LINE__, "Range error: " #expr); } while (0)

#define ORU_THROW(streamed) \
    do { std::ostringstream oruText_; oruText_ << streamed; ::Oru::OGL::detail::raiseInternal(__FILE__, __LINE__, oruText_.str()); } while (0)

#define ORU_ENFORCE_AT(line, expr) \
    do { if (!(expr)) ::Oru::OGL::detail::raiseInternal(__FILE__, line, "Enforce " #expr); } while (0)

#define ORU_VERIFY_AT(line, expr) \
    do { if (!(expr)) ::Oru::OGL::detail::raiseInternal(__FILE__, line, #expr); } while (0)

#define ORU_THROW_AT(line, streamed) \
    do { std::ostringstream oruText_; oruText_ << streamed; ::Oru::OGL::detail::raiseInternal(__FILE__, line, oruText_.str()); } while (0)

#define ORU_REQUIRE_LOADED(pointer, function) \
    do { if (!(pointer)) ::Oru::OGL::detail::raiseNotLoaded(__FILE__, __LINE__, function); } while (0)

#endif
