#ifndef ORU_OGL_EXTENSIONATOR_ROUTEDPROCESS_H
#define ORU_OGL_EXTENSIONATOR_ROUTEDPROCESS_H

/// \file
/// The process's set-up for code routed through the interception chains (oru_ogl/Routed.h).

#include "oru_ogl/OglExport.h"

#include <iosfwd>
#include <string>

namespace Oru
{
namespace OGL
{

class CaptureSession;
class OpenGLTracer;
class wglInterceptorDecorator;

/// What a program that knows nothing of the layer needs for its routed calls,
/// set up for the life of this object:
/// - a WGL decorator that starts the layer (compatibility core versions on)
///   for the first context made current with success, around the program's own
///   handles, so that the GL chain's entry points are loaded; it stops the layer
///   again when the program deletes that context, and the next context made
///   current starts it anew;
/// - with the environment variable ORU_TRACE=&lt;file&gt;, an OpenGLTracer writing to
///   that file, flushed at every SwapBuffers and at the end. A file that cannot
///   be written is reported once on the standard error stream and the program
///   runs untraced;
/// - with ORU_CAPTURE=&lt;file&gt;, a CaptureSession into that file (for oglreplay),
///   which writes every frame at its SwapBuffers and the rest at the end. A
///   file that cannot be created is reported the same way.
/// Only the first object alive in a process does this; another one made while
/// it exists changes nothing. The destructor pops what the constructor pushed,
/// stops the layer if it started it, and throws nothing.
class ORU_OGL_API RoutedProcess
{
public:
    RoutedProcess();
    ~RoutedProcess();
    RoutedProcess(RoutedProcess const&) = delete;
    RoutedProcess& operator=(RoutedProcess const&) = delete;

    /// Whether this object is the one that set up the process.
    /// @return true for the first object alive in the process
    bool isActive() const;
    /// The trace stream.
    /// @return the stream ORU_TRACE names, or null when the process is not traced
    std::ostream* trace() const;

private:
    void startTrace(char const* path);
    void startCapture(std::string const& path);

    std::ofstream* traceFile_;
    OpenGLTracer* tracer_;
    wglInterceptorDecorator* contextSetUp_;
    CaptureSession* capture_;
};

} // namespace OGL
} // namespace Oru

#endif
