#ifndef ORU_OGL_EXTENSIONATOR_CAPTURESTREAM_H
#define ORU_OGL_EXTENSIONATOR_CAPTURESTREAM_H

#include "oru_ogl/OglExport.h"
#include "oru_ogl/extensionator/CaptureFormat.h"
#include "oru_ogl/extensionator/CaptureOperations.h"
#include "oru_ogl/extensionator/CaptureWriter.h"
#include "oru_ogl/extensionator/GLStateProbe.h"

#include <map>
#include <vector>

namespace Oru
{
namespace OGL
{

/// The part of a capture that the GL and WGL decorators share: the records'
/// framing (operation names, threads), the state kept per context, the
/// windows seen, and the frames. Records are written between begin() and
/// end(), which hold the writer's lock.
class ORU_OGL_API CaptureStream
{
public:
    /// What the capture keeps of one context between calls.
    struct ContextState
    {
        ContextFeatures features; ///< what its queries may ask
        /// A vertex array was pointed at client memory: draws look for arrays to capture.
        bool clientArrays = false;
        /// A buffer mapped by the program.
        struct Mapping
        {
            void* pointer;        ///< where the program writes
            std::uint64_t length; ///< bytes mapped
            GLenum access;        ///< as glMapBuffer was asked
        };
        /// Mapped buffers by target.
        std::map<GLenum, Mapping> mappings;
    };

    /// Writes the header.
    /// @param writer      the stream's bytes
    /// @param storeFrames store every presented frame whole, not only its checksum
    CaptureStream(CaptureWriter& writer, bool storeFrames);
    CaptureStream(CaptureStream const&) = delete;
    CaptureStream& operator=(CaptureStream const&) = delete;

    /// The stream's bytes.
    /// @return the writer
    CaptureWriter& writer() { return writer_; }

    /// Takes the writer's lock, for one or more records.
    void lock() { writer_.lock(); }
    /// Gives it back.
    void unlock() { writer_.unlock(); }
    /// Opens the record of a call; locked.
    /// @param operation its capture::Operation
    void openCall(unsigned int operation)
    {
        checkThread();
        if (!defined_[operation])
            define(operation);
        writer_.put(static_cast<std::uint16_t>(operation));
        ++calls_;
    }
    /// Opens a control record; locked.
    /// @param tag its capture::ControlTag
    void openControl(std::uint16_t tag)
    {
        checkThread();
        writer_.put(tag);
    }

    /// The current context's state (created with its features on first use); locked.
    /// @return the state, alive as long as the stream
    ContextState& context();
    /// The record of the context current now, as the capture begins (none without one).
    void currentContext();
    /// A Surface record when the device context is new or its window changed size.
    /// @param device the device context, or null for none
    void surface(HDC device);
    /// A Frame record of the current context's back buffer, which device shows.
    /// @param device the device context about to be presented
    void frame(HDC device);

    /// Calls captured so far.
    /// @return the count
    std::uint64_t calls() const { return calls_; }
    /// Frames captured so far.
    /// @return the count
    unsigned int frames() const { return frames_; }

private:
    struct Window
    {
        int width;
        int height;
    };

    void checkThread()
    {
        const DWORD thread = GetCurrentThreadId();
        if (thread != thread_)
            switchThread(thread);
    }
    void switchThread(DWORD thread);
    void surfaceLocked(HDC device);
    void define(unsigned int operation);
    Window windowOf(HDC device) const;

    CaptureWriter& writer_;
    bool storeFrames_;
    bool defined_[capture::kOperationCount] = {};
    DWORD thread_ = 0;
    std::uint64_t calls_ = 0;
    unsigned int frames_ = 0;
    std::map<HGLRC, ContextState> contexts_;
    std::map<HDC, Window> surfaces_;
};

} // namespace OGL
} // namespace Oru

#endif
