#ifndef ORU_BENCH_MEMORYSTREAM_H
#define ORU_BENCH_MEMORYSTREAM_H

// An in-memory output stream that keeps its storage when emptied, so that
// timed batches write into memory that is already there and the bytes
// written are counted exactly.

#include <algorithm>
#include <cstring>
#include <ostream>
#include <streambuf>
#include <vector>

namespace bench
{

class MemoryBuffer : public std::streambuf
{
public:
    explicit MemoryBuffer(std::size_t capacity)
        : storage_(std::max<std::size_t>(capacity, 64))
    {
        clear();
    }

    void clear() { setp(storage_.data(), storage_.data() + storage_.size()); }
    std::size_t size() const { return static_cast<std::size_t>(pptr() - pbase()); }

protected:
    int_type overflow(int_type c) override
    {
        if (traits_type::eq_int_type(c, traits_type::eof()))
            return traits_type::not_eof(c);
        grow(1);
        *pptr() = traits_type::to_char_type(c);
        pbump(1);
        return c;
    }

    std::streamsize xsputn(char const* text, std::streamsize count) override
    {
        const std::size_t n = static_cast<std::size_t>(count);
        if (static_cast<std::size_t>(epptr() - pptr()) < n)
            grow(n);
        std::memcpy(pptr(), text, n);
        advance(n);
        return count;
    }

    // tellp(), and seeks within what was written.
    pos_type seekoff(off_type offset, std::ios_base::seekdir way, std::ios_base::openmode which) override
    {
        if (!(which & std::ios_base::out))
            return pos_type(off_type(-1));
        const off_type base = way == std::ios_base::beg ? 0 : static_cast<off_type>(size());
        if (way == std::ios_base::end || way == std::ios_base::cur || way == std::ios_base::beg)
            return seekpos(pos_type(base + offset), which);
        return pos_type(off_type(-1));
    }

    pos_type seekpos(pos_type position, std::ios_base::openmode which) override
    {
        const off_type target = off_type(position);
        if (!(which & std::ios_base::out) || target < 0 || target > static_cast<off_type>(size()))
            return pos_type(off_type(-1));
        clear();
        advance(static_cast<std::size_t>(target));
        return position;
    }

private:
    void grow(std::size_t more)
    {
        const std::size_t used = size();
        storage_.resize(std::max(storage_.size() * 2, used + more));
        clear();
        advance(used);
    }

    // pbump takes an int; large writes move in steps.
    void advance(std::size_t n)
    {
        while (n > 0)
        {
            const int step = static_cast<int>(std::min<std::size_t>(n, 1u << 30));
            pbump(step);
            n -= static_cast<std::size_t>(step);
        }
    }

    std::vector<char> storage_;
};

class MemoryStream : public std::ostream
{
public:
    explicit MemoryStream(std::size_t capacity = 1 << 20)
        : std::ostream(nullptr)
        , buffer_(capacity)
    {
        rdbuf(&buffer_);
    }

    void reset()
    {
        buffer_.clear();
        clear();
    }
    std::size_t size() const { return buffer_.size(); }

private:
    MemoryBuffer buffer_;
};

} // namespace bench

#endif
