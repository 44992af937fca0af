#ifndef ORU_OGL_EXTENSIONATOR_CAPTURESESSION_H
#define ORU_OGL_EXTENSIONATOR_CAPTURESESSION_H

#include "oru_ogl/extensionator/CaptureStream.h"
#include "oru_ogl/extensionator/OpenGLCapture.h"
#include "oru_ogl/extensionator/windows/wglCapture.h"

#include <string>

namespace Oru
{
namespace OGL
{

/// How a capture is made.
struct CaptureOptions
{
    /// Every presented frame is stored whole, not only its checksum.
    bool storeFrames = false;
    /// Bytes gathered in memory before the writer thread takes them.
    std::size_t bufferSize = std::size_t(8) << 20;
    /// Bytes that may wait for the file before the program waits for it.
    std::size_t backlog = std::size_t(256) << 20;
};

/// A capture of everything that goes down the GL and WGL chains from now on:
/// pushes an OpenGLCapture and a wglCapture, and takes them off again when
/// stopped or destroyed, with the whole stream written. Every finished frame
/// is handed to the file at its SwapBuffers.
///
///     Oru::OGL::CaptureSession capture("scene.oglcap");
///     ... draw, SwapBuffers through the chains ...
///
/// The layer must be initialised for the context before the first captured
/// call (the capture reads state through the layer's loaded entry points).
class ORU_OGL_API CaptureSession
{
public:
    /// Captures into a new file.
    /// @param path    the file, created or emptied
    /// @param options how to capture
    /// @throws std::runtime_error "oru_ogl capture: cannot create the file '<path>'"
    explicit CaptureSession(std::string const& path, CaptureOptions const& options = CaptureOptions());
    /// Captures into a sink (memory, a pipe).
    /// @param sink    where the stream goes, from the capture's thread
    /// @param options how to capture
    explicit CaptureSession(CaptureWriter::Sink sink, CaptureOptions const& options = CaptureOptions());
    /// Stops, when stop() was not called.
    ~CaptureSession();
    CaptureSession(CaptureSession const&) = delete;
    CaptureSession& operator=(CaptureSession const&) = delete;

    /// Takes the capture off both chains (wherever it is in them) and waits
    /// until the sink has every byte. Later calls do nothing.
    void stop();

    /// GL and WGL calls captured so far.
    /// @return the count
    std::uint64_t calls() const { return stream_.calls(); }
    /// Frames presented so far.
    /// @return the count
    unsigned int frames() const { return stream_.frames(); }
    /// Bytes of the stream so far.
    /// @return the count
    std::uint64_t bytes() const { return writer_.size(); }

private:
    void start();

    CaptureWriter writer_;
    CaptureStream stream_;
    OpenGLCapture gl_;
    wglCapture wgl_;
    bool running_ = false;
};

} // namespace OGL
} // namespace Oru

#endif
