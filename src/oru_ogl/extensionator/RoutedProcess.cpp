#include "oru_ogl/extensionator/RoutedProcess.h"

#include "oru_ogl/LibraryOGL.h"
#include "oru_ogl/extensionator/CaptureSession.h"
#include "oru_ogl/extensionator/OpenGLTracer.h"
#include "oru_ogl/extensionator/OperationList.h"
#include "oru_ogl/extensionator/windows/wglInterceptor.h"
#include "oru_ogl/ogl/ContextWrapped.h"

#include <exception>
#include <fstream>
#include <iostream>
#include <memory>
#include <string>

namespace Oru
{
namespace OGL
{

namespace
{

RoutedProcess* gActiveProcess = nullptr;

// The text of whatever was thrown, for a message.
std::string Describe(std::exception_ptr thrown)
{
    try
    {
        std::rethrow_exception(thrown);
    }
    catch (std::exception const& e)
    {
        return e.what();
    }
    catch (...)
    {
        return "an unknown exception";
    }
}

// Forwards every WGL operation as it is; ContextSetUp adds its work to three.
class WglForwarder : public wglInterceptorDecorator
{
public:
#define ORU_WGL_OPERATION(Ret, Stem, Function, Params, Args)                                          \
    Ret wcgm##Stem(const char* file, unsigned int line ORU_OP_TAIL Params) override                  \
    {                                                                                                 \
        return pInterceptor_->wcgm##Stem(file, line ORU_OP_TAIL Args);                                \
    }
#include "oru_ogl/extensionator/windows/WglOperations.def"
};

// Starts the layer for the program's first current context and stops it when
// that context goes; flushes the trace at every presented frame.
class ContextSetUp : public WglForwarder
{
public:
    explicit ContextSetUp(std::ostream* trace) : trace_(trace), started_(false) {}
    ~ContextSetUp() override { stopLayer(); }

    BOOL wcgmMakeCurrent(const char* file, unsigned int line, HDC hdc, HGLRC hglrc) override
    {
        const BOOL made = pInterceptor_->wcgmMakeCurrent(file, line, hdc, hglrc);
        if (made && hglrc && !Library::isExtensionatorInitialized())
            startLayer(hdc, hglrc);
        return made;
    }

    BOOL wcgmDeleteContext(const char* file, unsigned int line, HGLRC hglrc) override
    {
        if (context_ && context_->renderContext() == hglrc)
            stopLayer();
        return pInterceptor_->wcgmDeleteContext(file, line, hglrc);
    }

    BOOL wcgmSwapBuffers(const char* file, unsigned int line, HDC hdc) override
    {
        if (trace_)
            trace_->flush(); // a frame's calls are on disk before it is shown
        return pInterceptor_->wcgmSwapBuffers(file, line, hdc);
    }

    // Stops the layer if this object started it; reports rather than throws.
    void stopLayer()
    {
        if (!started_)
            return;
        started_ = false;
        try
        {
            Library::terminateExtensionator();
        }
        catch (...)
        {
            std::cerr << "oru_ogl: the layer did not stop cleanly: " << Describe(std::current_exception()) << "\n";
        }
        context_.reset();
    }

private:
    // Loads the entry points for the program's context, which is current: the
    // calls the program makes from now on find them. A driver of 3.0 or later
    // gets its 1.2 to 2.1 functions loaded too, as a 2.x program expects.
    void startLayer(HDC hdc, HGLRC hglrc)
    {
        try
        {
            context_.reset(new ContextWrapped(hdc, hglrc));
            ExtensionManager::InitOptions options;
            options.setCompatibilityCoreVersions(true);
            Library::initializeExtensionator(context_.get(), options);
            started_ = true;
        }
        catch (...)
        {
            context_.reset();
            std::cerr << "oru_ogl: the layer could not start for the program's context: "
                      << Describe(std::current_exception()) << "\n";
        }
    }

    std::ostream* trace_;
    std::unique_ptr<ContextWrapped> context_;
    bool started_;
};

// Pops decorator if it is the chain's top: one pushed above it and never
// popped stays, and so does this one (not deleted then, since it is still in use).
template <class Chain, class Decorator>
bool PopIfTop(Decorator* decorator)
{
    if (Chain::Instance() != decorator)
        return false;
    Chain::Instance()->popInterceptor();
    return true;
}

std::string EnvironmentValue(char const* name)
{
    char value[MAX_PATH + 1];
    const DWORD length = GetEnvironmentVariableA(name, value, sizeof(value));
    return length > 0 && length < sizeof(value) ? std::string(value, length) : std::string();
}

} // namespace

RoutedProcess::RoutedProcess()
    : traceFile_(nullptr)
    , tracer_(nullptr)
    , contextSetUp_(nullptr)
    , capture_(nullptr)
{
    if (gActiveProcess)
        return;
    gActiveProcess = this;

    const std::string tracePath = EnvironmentValue("ORU_TRACE");
    if (!tracePath.empty())
        startTrace(tracePath.c_str());

    const std::string capturePath = EnvironmentValue("ORU_CAPTURE");
    if (!capturePath.empty())
        startCapture(capturePath);

    contextSetUp_ = new ContextSetUp(traceFile_);
    wglInterceptor::Instance()->addInterceptor(contextSetUp_);
}

RoutedProcess::~RoutedProcess()
{
    if (gActiveProcess != this)
        return;
    gActiveProcess = nullptr;
    try
    {
        static_cast<ContextSetUp*>(contextSetUp_)->stopLayer();
        if (PopIfTop<wglInterceptor>(contextSetUp_))
            delete contextSetUp_;
        delete capture_; // takes itself off both chains, wherever it is, and writes the rest
        capture_ = nullptr;
        if (tracer_ && PopIfTop<OpenGLInterceptor>(tracer_))
        {
            delete tracer_;
            tracer_ = nullptr;
        }
    }
    catch (...)
    {
        std::cerr << "oru_ogl: the routed calls' set-up did not end cleanly: "
                  << Describe(std::current_exception()) << "\n";
    }
    if (!tracer_)
        delete traceFile_; // flushes and closes; a tracer still in the chain keeps it
}

// Pushed after the tracer, so that a traced call is captured as well.
void RoutedProcess::startCapture(std::string const& path)
{
    try
    {
        capture_ = new CaptureSession(path);
    }
    catch (std::exception const& error)
    {
        std::cerr << error.what() << "; the program runs without a capture\n";
    }
}

bool RoutedProcess::isActive() const
{
    return gActiveProcess == this;
}

std::ostream* RoutedProcess::trace() const
{
    return traceFile_;
}

void RoutedProcess::startTrace(char const* path)
{
    std::unique_ptr<std::ofstream> file(new std::ofstream(path, std::ios::out | std::ios::trunc));
    if (!*file)
    {
        std::cerr << "oru_ogl: cannot write the trace file " << path << "; the program runs untraced\n";
        return;
    }
    traceFile_ = file.release();
    tracer_ = new OpenGLTracer(*traceFile_);
    OpenGLInterceptor::Instance()->addInterceptor(tracer_);
}

} // namespace OGL
} // namespace Oru
