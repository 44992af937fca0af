#ifndef ORU_OGL_EXTENSIONATOR_CAPTUREREADER_H
#define ORU_OGL_EXTENSIONATOR_CAPTUREREADER_H

#include "oru_ogl/OglExport.h"
#include "oru_ogl/extensionator/CaptureFormat.h"
#include "oru_ogl/extensionator/CaptureOperations.h"

#include <cstdint>
#include <cstring>
#include <stdexcept>
#include <string>
#include <vector>

namespace Oru
{
namespace OGL
{

/// A capture that cannot be read: truncated, corrupt, of a newer format or not
/// a capture at all. The text names the byte offset and the call index.
class ORU_OGL_API CaptureError : public std::runtime_error
{
public:
    CaptureError(std::string const& text, std::uint64_t offset, std::uint64_t callIndex);
    /// Where in the file the record that failed begins.
    std::uint64_t offset() const { return offset_; }
    /// The index of the call that failed, or of the next call for other records.
    std::uint64_t callIndex() const { return callIndex_; }

private:
    std::uint64_t offset_;
    std::uint64_t callIndex_;
};

/// One argument (or the result) of a captured call.
struct ORU_OGL_API CapturedArgument
{
    /// A pointer to data; else a scalar, a handle or a function address.
    bool pointer = false;
    /// Scalars: bytes, and what they hold.
    std::uint8_t size = 0;
    bool floating = false;
    bool isSigned = false;
    unsigned char raw[8] = {};
    /// Pointers: how the capture wrote it, and what it holds.
    capture::PointerKind kind = capture::PointerKind::Null;
    std::uint64_t address = 0;
    std::uint64_t length = 0;           ///< Data, Output, OutputKept
    unsigned char const* data = nullptr; ///< Data's bytes; Strings' first length field
    std::uint32_t count = 0;            ///< Strings
    unsigned char const* kept = nullptr; ///< OutputKept: the bytes the call wrote

    /// The scalar's bytes as a T (T no larger than the scalar's size).
    template <class T>
    T as() const
    {
        T value{};
        std::memcpy(&value, raw, sizeof(T) < size ? sizeof(T) : size);
        return value;
    }
    /// An integer scalar, sign-extended where signed.
    long long integer() const;
    /// The value a scalar stands for, floats included.
    double number() const;
    /// Strings: the i-th string's characters.
    std::string text(std::uint32_t i) const;
};

/// One record of a capture.
struct ORU_OGL_API CaptureRecord
{
    enum class Kind
    {
        Call, Surface, Frame, ClientArray, BufferContents, Thread, CurrentContext
    };
    Kind kind = Kind::Call;
    std::uint64_t offset = 0;     ///< of the record in the file
    std::uint64_t callIndex = 0;  ///< of the call; of the next call for other records

    // Call
    unsigned int operation = 0;   ///< this library's operation number
    unsigned int argumentCount = 0;
    static constexpr unsigned int kMaxArguments = 16;
    CapturedArgument arguments[kMaxArguments];
    bool hasResult = false;
    CapturedArgument result;

    // Surface, Frame, CurrentContext
    std::uint64_t device = 0;
    std::uint64_t context = 0;
    int width = 0;
    int height = 0;
    std::uint8_t pixelFormat[8] = {}; ///< colour, red, green, blue, alpha, depth, stencil bits, double-buffered
    std::uint32_t frame = 0;
    std::uint64_t checksum = 0;

    // ClientArray, BufferContents (target in type, offset in first)
    capture::ArrayKind array = capture::ArrayKind::Vertex;
    std::uint32_t unit = 0;
    std::int32_t size = 0;
    std::uint32_t type = 0;
    std::int32_t stride = 0;
    bool normalized = false;
    std::uint64_t first = 0;
    std::uint64_t length = 0;
    /// ClientArray, BufferContents: the bytes; Frame: the pixels, or null when not stored.
    unsigned char const* data = nullptr;

    // Thread
    std::uint32_t thread = 0;
};

/// Reads a capture written by CaptureSession, record by record. The whole file
/// is held in memory; records point into it.
class ORU_OGL_API CaptureReader
{
public:
    /// Opens and checks the header. Throws CaptureError when the file cannot be
    /// read, is no capture, or has a newer format.
    explicit CaptureReader(std::string const& path);
    /// Reads from bytes already in memory.
    explicit CaptureReader(std::vector<unsigned char> bytes);

    std::uint32_t version() const { return version_; }
    bool framesStored() const { return (flags_ & capture::kFramesStored) != 0; }
    std::uint64_t size() const { return bytes_.size(); }

    /// The next record, or false at the end. Throws CaptureError for a record
    /// that is cut off or makes no sense; the reader is then at its end.
    bool next(CaptureRecord& record);
    /// Back to the first record.
    void rewind();
    /// Calls read so far.
    std::uint64_t calls() const { return calls_; }

private:
    void readHeader();

    std::vector<unsigned char> bytes_;
    std::uint32_t version_ = 0;
    std::uint32_t flags_ = 0;
    std::size_t at_ = 0;
    std::uint64_t calls_ = 0;
    /// The capture's operation numbers mapped to this library's.
    std::vector<unsigned int> operations_;
};

} // namespace OGL
} // namespace Oru

#endif
