#ifndef ORU_OGL_EXTENSIONATOR_CAPTUREWRITER_H
#define ORU_OGL_EXTENSIONATOR_CAPTUREWRITER_H

#include "oru_ogl/OglExport.h"

#include <atomic>
#include <condition_variable>
#include <cstdint>
#include <cstring>
#include <deque>
#include <functional>
#include <memory>
#include <mutex>
#include <string>
#include <thread>
#include <vector>

namespace Oru
{
namespace OGL
{

/// The byte stream of a capture. Records are gathered in memory; a filled
/// buffer, and the current one at every frame boundary (flush()), is queued for
/// a writer thread that hands it to the sink. The program goes on with a fresh
/// buffer at once: it waits for the sink only when the queue holds more than
/// the backlog limit, so a disk slower than the program for a while costs
/// memory, not time.
///
/// Records are written between lock() and unlock(): calls may come from
/// several threads.
class ORU_OGL_API CaptureWriter
{
public:
    /// Receives the stream in order; false when it cannot take the bytes (the
    /// capture then drops the rest and says so once on stderr).
    using Sink = std::function<bool(char const* bytes, std::size_t length)>;

    /// Writes to the sink from a thread of its own, in buffers of bufferSize
    /// bytes; the program waits once more than `backlog` bytes are queued.
    /// @param sink       where the stream goes
    /// @param bufferSize bytes gathered before they are queued
    /// @param backlog    bytes that may wait for the sink
    explicit CaptureWriter(Sink sink, std::size_t bufferSize = std::size_t(8) << 20,
                           std::size_t backlog = std::size_t(256) << 20);
    /// Writes everything that is left, then stops the thread.
    ~CaptureWriter();
    CaptureWriter(CaptureWriter const&) = delete;
    CaptureWriter& operator=(CaptureWriter const&) = delete;

    /// A sink that appends to a file, flushing it after every buffer; null when
    /// the file cannot be opened.
    /// @param path the file, created or emptied
    /// @return the sink, or an empty one
    static Sink fileSink(std::string const& path);

    /// Takes the stream for one or more records; spins, as records are short.
    void lock()
    {
        while (busy_.test_and_set(std::memory_order_acquire))
            std::this_thread::yield();
    }
    /// Gives the stream back.
    void unlock() { busy_.clear(std::memory_order_release); }

    /// Room for n more bytes: the place to write them, followed by advance(n).
    /// @param n bytes
    /// @return where to write them
    char* room(std::size_t n)
    {
        if (n > capacity_ - used_)
            makeRoom(n);
        return active_.get() + used_;
    }
    /// The n bytes written at room(n) are part of the stream.
    /// @param n bytes
    void advance(std::size_t n) { used_ += n; }

    /// Appends n bytes.
    /// @param bytes the first
    /// @param n     how many
    void put(void const* bytes, std::size_t n)
    {
        std::memcpy(room(n), bytes, n);
        used_ += n;
    }
    /// Appends a value's bytes.
    /// @param value a trivially copyable value
    template <class T>
    void put(T value)
    {
        static_assert(std::is_trivially_copyable<T>::value, "raw bytes");
        char* at = room(sizeof(T));
        std::memcpy(at, &value, sizeof(T));
        used_ += sizeof(T);
    }

    /// Hands what was written so far to the writer thread (a frame boundary).
    /// Call it locked.
    void flush();
    /// Waits until the sink has everything written so far. Call it unlocked.
    void drain();

    /// Bytes written so far, in memory or beyond.
    /// @return the stream's size
    std::uint64_t size() const { return handedOff_ + used_; }

private:
    struct Buffer
    {
        std::unique_ptr<char[]> bytes;
        std::size_t capacity = 0;
        std::size_t used = 0;
    };

    void makeRoom(std::size_t n);
    void handOff(std::size_t next);
    void run();

    Sink sink_;
    std::atomic_flag busy_ = ATOMIC_FLAG_INIT;
    std::size_t bufferSize_;
    std::size_t backlog_;
    std::size_t capacity_ = 0;
    std::size_t used_ = 0;
    std::unique_ptr<char[]> active_;
    std::uint64_t handedOff_ = 0;

    // What the thread shares, guarded by mutex_: buffers to write, in order,
    // and written ones to use again.
    std::mutex mutex_;
    std::condition_variable changed_;
    std::deque<Buffer> queue_;
    std::vector<Buffer> spare_;
    std::size_t queued_ = 0;
    bool writing_ = false;
    bool stopping_ = false;
    bool failed_ = false;
    std::thread thread_;
};

} // namespace OGL
} // namespace Oru

#endif
