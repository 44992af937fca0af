#include "oru_ogl/extensionator/CaptureWriter.h"

#include <cstdio>
#include <utility>

namespace Oru
{
namespace OGL
{

CaptureWriter::CaptureWriter(Sink sink, std::size_t bufferSize)
    : sink_(std::move(sink)), capacity_(bufferSize), active_(new char[bufferSize]), pending_(new char[bufferSize]),
      pendingCapacity_(bufferSize)
{
    thread_ = std::thread([this] { run(); });
}

CaptureWriter::~CaptureWriter()
{
    lock();
    handOff();
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
    handOff();
}

void CaptureWriter::drain()
{
    lock();
    handOff();
    unlock();
    std::unique_lock<std::mutex> guard(mutex_);
    changed_.wait(guard, [this] { return pendingUsed_ == 0 && !writing_; });
}

void CaptureWriter::makeRoom(std::size_t n)
{
    handOff();
    if (n > capacity_)
    {
        // A record larger than the buffer (a big texture): a buffer of its own size.
        active_.reset(new char[n]);
        capacity_ = n;
    }
}

// Swaps the filled buffer with the one the thread has finished, waiting for it
// when the sink is a whole buffer behind.
void CaptureWriter::handOff()
{
    if (used_ == 0)
        return;
    {
        std::unique_lock<std::mutex> guard(mutex_);
        changed_.wait(guard, [this] { return pendingUsed_ == 0 && !writing_; });
        std::swap(active_, pending_);
        std::swap(capacity_, pendingCapacity_);
        pendingUsed_ = used_;
    }
    changed_.notify_all();
    handedOff_ += used_;
    used_ = 0;
}

void CaptureWriter::run()
{
    std::unique_lock<std::mutex> guard(mutex_);
    for (;;)
    {
        changed_.wait(guard, [this] { return pendingUsed_ != 0 || stopping_; });
        if (pendingUsed_ == 0)
            return;
        writing_ = true;
        const std::size_t length = pendingUsed_;
        guard.unlock();
        const bool written = failed_ || !sink_ || sink_(pending_.get(), length);
        guard.lock();
        if (!written && !failed_)
        {
            failed_ = true;
            std::fprintf(stderr, "oru_ogl capture: the capture stream cannot be written; the rest is dropped\n");
        }
        pendingUsed_ = 0;
        writing_ = false;
        changed_.notify_all();
    }
}

} // namespace OGL
} // namespace Oru
