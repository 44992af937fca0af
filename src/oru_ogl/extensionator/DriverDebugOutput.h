#ifndef ORU_OGL_EXTENSIONATOR_DRIVERDEBUGOUTPUT_H
#define ORU_OGL_EXTENSIONATOR_DRIVERDEBUGOUTPUT_H

#include "oru_ogl/OglExport.h"

#include <windows.h>

#include <GL/gl.h>

#include <functional>
#include <string>
#include <vector>

namespace Oru
{
namespace OGL
{

/// The driver's own debug messages (GL_KHR_debug, else GL_ARB_debug_output),
/// reported at the checked call during which they arrived. Installed at start-up
/// when ExtensionManager::InitOptions::setDriverDebugOutput(true) asks for it.
///
/// The driver's callback only queues: it runs inside a GL call, where throwing
/// would cross the driver's frames. Output is made synchronous, so a message
/// arrives during the call that caused it, and the error checker's check after
/// that call (the chain's and ORU_GL's) hands the queue over: a message of type
/// GL_DEBUG_TYPE_ERROR becomes an ExceptionOGL with the caller's file and line,
/// the others go to the sink when they are at least as severe as asked.
/// Messages caused by calls outside the checked ones (the wrappers call GL
/// directly) wait for the next checked call.
class ORU_OGL_API DriverDebugOutput
{
public:
    /// Severities in rising order (GL_DEBUG_SEVERITY_NOTIFICATION to _HIGH).
    enum teSeverity
    {
        eNotification = 0,
        eLow = 1,
        eMedium = 2,
        eHigh = 3
    };

    /// One message as the driver gave it.
    struct Message
    {
        GLenum source;        ///< GL_DEBUG_SOURCE_...
        GLenum type;          ///< GL_DEBUG_TYPE_...
        GLuint id;            ///< the driver's own number of the message
        teSeverity severity;  ///< its severity
        std::string text;     ///< the driver's text
    };

    /// Receives the messages that are not errors, with the checked call's file and line.
    typedef std::function<void(char const* file, unsigned int line, Message const& message)> Sink;

    /// Installs the callback for the current context and makes its output
    /// synchronous.
    /// @param minimum the least severity of the messages that are not errors to
    ///                pass to the sink
    /// @param sink    where those go; empty for the standard error stream
    /// @throws Oru::InternalException
    ///         "DriverDebugOutput needs GL_KHR_debug or GL_ARB_debug_output" when
    ///         the driver offers neither extension
    DriverDebugOutput(teSeverity minimum, Sink const& sink);
    /// Removes the callback from the current context, if one is current.
    ~DriverDebugOutput();
    DriverDebugOutput(DriverDebugOutput const&) = delete;
    DriverDebugOutput& operator=(DriverDebugOutput const&) = delete;

    /// Whether messages wait for the next check; one test of a flag per checked call.
    /// @return true when the queue holds messages
    static bool hasPending() { return bPending_; }
    /// Hands the waiting messages over: the others to the sink (with a note of
    /// how many were dropped when the queue was full), then the first error as
    /// an exception. The error checker calls it after each checked call.
    /// @param file    the checked call's file
    /// @param line    the checked call's line
    /// @param glError what glGetError answered for the call, the exception's number
    /// @throws Oru::OGL::ExceptionOGL from file and line with the driver's text of
    ///         the first waiting message of type GL_DEBUG_TYPE_ERROR and glError
    ///         as its number; and whatever the sink throws
    static void deliver(char const* file, unsigned int line, GLenum glError);

private:
    static void APIENTRY receive(GLenum source, GLenum type, GLuint id, GLenum severity, GLsizei length,
                                 char const* text, void const* user);

    teSeverity minimum_;
    Sink sink_;
    std::vector<Message> queue_;
    std::size_t nDropped_;
    void(APIENTRY* setCallback_)(void*, void const*);

    static bool bPending_;
    static DriverDebugOutput* pActive_;
};

} // namespace OGL
} // namespace Oru

#endif
