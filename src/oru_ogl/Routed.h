#ifndef ORU_OGL_ROUTED_H
#define ORU_OGL_ROUTED_H

/// \file
/// Routes a whole translation unit's GL and WGL calls through the interception
/// chains without a change to its source. Force it in front of the unit
/// (GCC and Clang: -include oru_ogl/Routed.h; MSVC: /FI oru_ogl/Routed.h) and
/// link the program to oru_ogl. Then
/// - every call of a GL function the layer knows, glDrawElements(...), becomes
///   ORU_GL glDrawElements(...): checked by the error checker (a GL error throws
///   ExceptionOGL naming the unit's file and line) and seen by the decorators
///   pushed above it;
/// - every call of a WGL or GDI function of the WGL chain (wglCreateContext,
///   wglMakeCurrent, wglShareLists, wglGetProcAddress, SwapBuffers, ...) goes
///   to the WGL chain's top with the file and line first;
/// - the process gets one Oru::OGL::RoutedProcess, which starts the layer for
///   the first context the program makes current and traces to the file named
///   by ORU_TRACE when that variable is set.
///
/// The macros are function-like, so only calls are rewritten. A program that
/// keeps wglGetProcAddress results in variables named after the functions,
///     glCreateShader = (PFNGLCREATESHADERPROC)wglGetProcAddress("glCreateShader");
/// still compiles, and its calls glCreateShader(...) go through the chain; the
/// variable itself is then no longer called. Calls through variables named
/// otherwise (pglCreateShader(...)) and calls of functions the layer does not
/// know go to the driver directly, unchecked and untraced.
///
/// The process's RoutedProcess is a C++17 inline variable defined here: one
/// object for all the program's units that include this header, built before
/// main() and destroyed after it returns.
///
/// Everything that declares the functions is included first, so that no
/// declaration is rewritten and the program's own later includes of
/// `GL/gl.h`, `GL/glext.h` or `windows.h` add nothing.

#include <windows.h>

#include <GL/gl.h>
#include <GL/glu.h>

#include "oru_ogl/extensionator/GLCall.h"
#include "oru_ogl/extensionator/GLTypes.h"
#include "oru_ogl/extensionator/RoutedProcess.h"
#include "oru_ogl/extensionator/windows/wglInterceptor.h"

namespace Oru
{
namespace OGL
{
namespace detail
{
/// The set-up of the process for its routed units.
inline RoutedProcess routedProcess;
} // namespace detail
} // namespace OGL
} // namespace Oru

#include "oru_ogl/RoutedCalls.inc"

#endif
