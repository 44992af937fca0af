#include "oru_ogl/extensionator/DriverDebugOutput.h"

#include "oru_ogl/Enforce.h"
#include "oru_ogl/ExceptionOGL.h"
#include "oru_ogl/extensionator/ExtensionCatalogue.h"

#include <cstring>
#include <iostream>

namespace Oru
{
namespace OGL
{

namespace
{

// GL_KHR_debug's values; GL_ARB_debug_output uses the same ones for what it has.
const GLenum kDebugOutput = 0x92E0;            // GL_DEBUG_OUTPUT (GL_KHR_debug only)
const GLenum kDebugOutputSynchronous = 0x8242; // GL_DEBUG_OUTPUT_SYNCHRONOUS
const GLenum kDebugTypeError = 0x824C;         // GL_DEBUG_TYPE_ERROR
const GLenum kDontCare = 0x1100;               // GL_DONT_CARE

// A loop of unchecked calls that keeps failing must not grow the queue without end.
const std::size_t kMaxQueued = 256;

typedef void(APIENTRY* SetCallback)(void* callback, void const* user);
typedef void(APIENTRY* MessageControl)(GLenum source, GLenum type, GLenum severity, GLsizei count,
                                        GLuint const* ids, GLboolean enabled);

// The driver's severity constants are not ordered; the layer's are.
DriverDebugOutput::teSeverity severityOf(GLenum severity)
{
    switch (severity)
    {
    case 0x9146: // GL_DEBUG_SEVERITY_HIGH
        return DriverDebugOutput::eHigh;
    case 0x9147: // GL_DEBUG_SEVERITY_MEDIUM
        return DriverDebugOutput::eMedium;
    case 0x9148: // GL_DEBUG_SEVERITY_LOW
        return DriverDebugOutput::eLow;
    default: // GL_DEBUG_SEVERITY_NOTIFICATION
        return DriverDebugOutput::eNotification;
    }
}

char const* severityName(DriverDebugOutput::teSeverity severity)
{
    static char const* const kNames[] = {"notification", "low", "medium", "high"};
    return kNames[severity];
}

// Whether the blank-separated list names the extension (whole names only).
bool advertises(char const* extensions, char const* name)
{
    const std::size_t length = std::strlen(name);
    for (char const* at = extensions; at && (at = std::strstr(at, name)) != nullptr; at += length)
    {
        const bool starts = at == extensions || at[-1] == ' ';
        const bool ends = at[length] == ' ' || at[length] == '\0';
        if (starts && ends)
            return true;
    }
    return false;
}

template <class Function>
Function entryPoint(char const* name)
{
    return reinterpret_cast<Function>(reinterpret_cast<void*>(ExtensionCatalogue::resolve(name)));
}

void writeToStandardError(char const* file, unsigned int line, DriverDebugOutput::Message const& message)
{
    std::cerr << file << "(" << line << "): GL debug message " << message.id << " ("
              << severityName(message.severity) << "): " << message.text << std::endl;
}

} // namespace

bool DriverDebugOutput::bPending_ = false;
DriverDebugOutput* DriverDebugOutput::pActive_ = nullptr;

// Both extensions are looked up by name with the context current: neither is
// in the catalogue, and the entry points are those of this context's driver.
DriverDebugOutput::DriverDebugOutput(teSeverity minimum, Sink const& sink)
    : minimum_(minimum)
    , sink_(sink ? sink : Sink(writeToStandardError))
    , nDropped_(0)
    , setCallback_(nullptr)
{
    char const* extensions = reinterpret_cast<char const*>(glGetString(GL_EXTENSIONS));
    MessageControl control = nullptr;
    const bool khr = advertises(extensions, "GL_KHR_debug");
    if (khr)
    {
        setCallback_ = entryPoint<SetCallback>("glDebugMessageCallback");
        control = entryPoint<MessageControl>("glDebugMessageControl");
    }
    else if (advertises(extensions, "GL_ARB_debug_output"))
    {
        setCallback_ = entryPoint<SetCallback>("glDebugMessageCallbackARB");
        control = entryPoint<MessageControl>("glDebugMessageControlARB");
    }
    if (!setCallback_ || !control)
        ORU_THROW("DriverDebugOutput needs GL_KHR_debug or GL_ARB_debug_output");

    pActive_ = this;
    setCallback_(reinterpret_cast<void*>(&DriverDebugOutput::receive), nullptr);
    // Every severity, so that the minimum asked for decides and not the driver's default.
    control(kDontCare, kDontCare, kDontCare, 0, nullptr, GL_TRUE);
    glEnable(kDebugOutputSynchronous);
    if (khr)
        glEnable(kDebugOutput); // off by default outside debug contexts
}

// Messages still queued belong to nobody any more. A context that is no longer
// current keeps its callback; receive() ignores it, as no output is active.
DriverDebugOutput::~DriverDebugOutput()
{
    if (wglGetCurrentContext())
        setCallback_(nullptr, nullptr);
    pActive_ = nullptr;
    bPending_ = false;
}

// Called by the driver inside a GL call: queue, never throw.
void APIENTRY DriverDebugOutput::receive(GLenum source, GLenum type, GLuint id, GLenum severity, GLsizei length,
                                         char const* text, void const*)
{
    DriverDebugOutput* output = pActive_;
    if (!output)
        return;
    const teSeverity level = severityOf(severity);
    if (type != kDebugTypeError && level < output->minimum_)
        return;
    if (output->queue_.size() == kMaxQueued)
    {
        ++output->nDropped_;
        return;
    }
    const std::size_t size = length >= 0 ? static_cast<std::size_t>(length) : std::strlen(text);
    output->queue_.push_back(Message{source, type, id, level, std::string(text, size)});
    bPending_ = true;
}

// The queue is emptied before anything is thrown, so that a sink that throws or
// an error leaves nothing behind for the next call.
void DriverDebugOutput::deliver(char const* file, unsigned int line, GLenum glError)
{
    DriverDebugOutput* output = pActive_;
    bPending_ = false;
    if (!output)
        return;
    std::vector<Message> messages;
    messages.swap(output->queue_);
    Message const* error = nullptr;
    for (Message const& message : messages)
    {
        if (message.type == kDebugTypeError)
        {
            if (!error)
                error = &message;
        }
        else
            output->sink_(file, line, message);
    }
    if (output->nDropped_ != 0)
    {
        const Message dropped{0, 0, 0, eHigh, std::to_string(output->nDropped_) + " messages dropped: the queue was full"};
        output->nDropped_ = 0;
        output->sink_(file, line, dropped);
    }
    if (error)
        throw ExceptionOGL(file, line, error->text.c_str(), glError);
}

} // namespace OGL
} // namespace Oru
