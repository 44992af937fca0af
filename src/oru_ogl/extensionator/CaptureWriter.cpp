#include "oru_ogl/extensionator/CaptureWriter.h"

#include <algorithm>
#include <cstdio>
#include <cstring>
#include <utility>

namespace Oru
{
namespace OGL
{

namespace
{
// Written buffers kept for reuse: enough for the writer to stay a little behind.
const std::size_t kSpareBuffers = 4;
// Buffers the thread keeps ready: memory the system has mapped in already,
// since the first touch of each page of fresh memory costs more than the
// capture's own work.
const std::size_t kReadyBuffers = 2;

std::unique_ptr<char[]> touchedBuffer(std::size_t size)
{
    std::unique_ptr<char[]> bytes(new char[size]);
    std::memset(bytes.get(), 0, size);
    return bytes;
}
} // namespace

CaptureWriter::CaptureWriter(Sink sink, std::size_t bufferSize, std::size_t backlog)
    : sink_(std::move(sink)), bufferSize_(bufferSize), backlog_(backlog), capacity_(bufferSize),
      active_(touchedBuffer(bufferSize))
{
    thread_ = std::thread([this] { run(); });
}

CaptureWriter::~CaptureWriter()
{
    lock();
    handOff(0);
    unlock();
    {
        std::unique_lock<std::mutex> guard(mutex_);
        stopping_ = true;
    }
    changed_.notify_all();
    thread_.join();
}

CaptureWriter::Sink CaptureWriter::fileSink(std::string const& path)
{
    std::shared_ptr<std::FILE> file(std::fopen(path.c_str(), "wb"), [](std::FILE* f) {
        if (f)
            std::fclose(f);
    });
    if (!file)
        return nullptr;
    return [file](char const* bytes, std::size_t length) {
        return std::fwrite(bytes, 1, length, file.get()) == length && std::fflush(file.get()) == 0;
    };
}

void CaptureWriter::flush()
{
    handOff(0);
}

void CaptureWriter::drain()
{
    lock();
    handOff(0);
    unlock();
    std::unique_lock<std::mutex> guard(mutex_);
    changed_.wait(guard, [this] { return queue_.empty() && !writing_; });
}

void CaptureWriter::makeRoom(std::size_t n)
{
    handOff(n);
}

// Queues the filled buffer and continues in a spare one of at least `next`
// bytes, waiting only while the backlog is over its limit.
void CaptureWriter::handOff(std::size_t next)
{
    if (used_ == 0 && next <= capacity_)
        return;
    const std::size_t needed = std::max(next, bufferSize_);
    Buffer fresh;
    {
        std::unique_lock<std::mutex> guard(mutex_);
        if (used_ != 0)
        {
            changed_.wait(guard, [this] { return queued_ < backlog_; });
            queue_.push_back(Buffer{ std::move(active_), capacity_, used_ });
            queued_ += used_;
        }
        auto reusable = std::find_if(spare_.begin(), spare_.end(), [needed](Buffer const& b) { return b.capacity >= needed; });
        if (reusable != spare_.end())
        {
            fresh = std::move(*reusable);
            spare_.erase(reusable);
        }
    }
    changed_.notify_all();
    if (!fresh.bytes)
    {
        fresh.bytes.reset(new char[needed]);
        fresh.capacity = needed;
    }
    handedOff_ += used_;
    active_ = std::move(fresh.bytes);
    capacity_ = fresh.capacity;
    used_ = 0;
}

void CaptureWriter::run()
{
    std::unique_lock<std::mutex> guard(mutex_);
    for (;;)
    {
        changed_.wait(guard, [this] { return !queue_.empty() || stopping_ || spare_.size() < kReadyBuffers; });
        if (queue_.empty() && stopping_)
            return;
        if (queue_.empty())
        {
            guard.unlock();
            Buffer ready{ touchedBuffer(bufferSize_), bufferSize_, 0 };
            guard.lock();
            spare_.push_back(std::move(ready));
            continue;
        }
        Buffer buffer = std::move(queue_.front());
        queue_.pop_front();
        writing_ = true;
        guard.unlock();
        const bool written = failed_ || !sink_ || sink_(buffer.bytes.get(), buffer.used);
        guard.lock();
        if (!written && !failed_)
        {
            failed_ = true;
            std::fprintf(stderr, "oru_ogl capture: the capture stream cannot be written; the rest is dropped\n");
        }
        queued_ -= buffer.used;
        writing_ = false;
        // Oversized buffers (one big record) are not kept.
        if (spare_.size() < kSpareBuffers && buffer.capacity == bufferSize_)
        {
            buffer.used = 0;
            spare_.push_back(std::move(buffer));
        }
        changed_.notify_all();
    }
}

} // namespace OGL
} // namespace Oru
