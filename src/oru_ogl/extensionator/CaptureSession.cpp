#include "oru_ogl/extensionator/CaptureSession.h"

#include <stdexcept>

namespace Oru
{
namespace OGL
{

namespace
{

CaptureWriter::Sink fileSink(std::string const& path)
{
    CaptureWriter::Sink sink = CaptureWriter::fileSink(path);
    if (!sink)
        throw std::runtime_error("oru_ogl capture: cannot create the file '" + path + "'");
    return sink;
}

// Takes `decorator` out of the chain whose top is `top`, wherever it is.
template <class Interface, class Decorator>
void unlink(Interface* top, Decorator* decorator)
{
    if (top == decorator)
    {
        top->popInterceptor();
        return;
    }
    for (auto* above = dynamic_cast<Decorator*>(top); above;)
    {
        if (above->interceptor() == decorator)
        {
            above->setInterceptor(decorator->interceptor());
            return;
        }
        above = dynamic_cast<Decorator*>(above->interceptor());
    }
}

} // namespace

CaptureSession::CaptureSession(std::string const& path, CaptureOptions const& options)
    : writer_(fileSink(path), options.bufferSize, options.backlog), stream_(writer_, options.storeFrames), gl_(stream_), wgl_(stream_)
{
    start();
}

CaptureSession::CaptureSession(CaptureWriter::Sink sink, CaptureOptions const& options)
    : writer_(std::move(sink), options.bufferSize, options.backlog), stream_(writer_, options.storeFrames), gl_(stream_), wgl_(stream_)
{
    start();
}

void CaptureSession::start()
{
    stream_.currentContext();
    OpenGLInterceptor::Instance()->addInterceptor(&gl_);
    wglInterceptor::Instance()->addInterceptor(&wgl_);
    running_ = true;
}

CaptureSession::~CaptureSession()
{
    stop();
}

void CaptureSession::stop()
{
    if (!running_)
        return;
    running_ = false;
    unlink<OpenGLInterceptor, OpenGLInterceptorDecorator>(OpenGLInterceptor::Instance(), &gl_);
    unlink<wglInterceptor, wglInterceptorDecorator>(wglInterceptor::Instance(), &wgl_);
    writer_.drain();
}

} // namespace OGL
} // namespace Oru
