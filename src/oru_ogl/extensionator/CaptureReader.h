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
    /// An error about one record.
    /// @param text      what is wrong
    /// @param offset    where the record begins
    /// @param callIndex the call's index, or the next call's
    CaptureError(std::string const& text, std::uint64_t offset, std::uint64_t callIndex);
    /// Where in the file the record that failed begins.
    /// @return the byte offset
    std::uint64_t offset() const { return offset_; }
    /// The index of the call that failed, or of the next call for other records.
    /// @return the index, from 0
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
    bool floating = false;     ///< float or double
    bool isSigned = false;     ///< a signed integer
    unsigned char raw[8] = {}; ///< the scalar's bytes, little-endian
    /// Pointers: how the capture wrote it, and what it holds.
    capture::PointerKind kind = capture::PointerKind::Null;
    std::uint64_t address = 0;          ///< the pointer as the program passed it
    std::uint64_t length = 0;           ///< Data, Output, OutputKept
    unsigned char const* data = nullptr; ///< Data's bytes; Strings' first length field
    std::uint32_t count = 0;            ///< Strings
    unsigned char const* kept = nullptr; ///< OutputKept: the bytes the call wrote

    /// The scalar's bytes as a T (T no larger than the scalar's size).
    /// @return the value
    template <class T>
    T as() const
    {
        T value{};
        std::memcpy(&value, raw, sizeof(T) < size ? sizeof(T) : size);
        return value;
    }
    /// An integer scalar, sign-extended where signed.
    /// @return the value (a float's truncated)
    long long integer() const;
    /// The value a scalar stands for, floats included.
    /// @return the value
    double number() const;
    /// Strings: one string's characters.
    /// @param i which, from 0
    /// @return its characters; empty past count
    std::string text(std::uint32_t i) const;
};

/// One record of a capture.
struct ORU_OGL_API CaptureRecord
{
    /// What the record is (CaptureFormat.h says what each holds).
    enum class Kind
    {
        Call,           ///< a GL or WGL call
        Surface,        ///< a window's size and pixel format
        Frame,          ///< a presented frame
        ClientArray,    ///< a client vertex array for the draw that follows
        BufferContents, ///< what a program wrote into a mapped buffer
        Thread,         ///< calls of another thread follow
        CurrentContext  ///< the context current when the capture began
    };
    Kind kind = Kind::Call;       ///< what the record is
    std::uint64_t offset = 0;     ///< of the record in the file
    std::uint64_t callIndex = 0;  ///< of the call; of the next call for other records

    // Call
    unsigned int operation = 0;   ///< this library's operation number
    unsigned int argumentCount = 0; ///< the operation's parameters
    static constexpr unsigned int kMaxArguments = 16; ///< more than any operation has
    CapturedArgument arguments[kMaxArguments];         ///< the first argumentCount are the call's
    bool hasResult = false;  ///< the operation returns something
    CapturedArgument result; ///< what the call returned, when hasResult

    // Surface, Frame, CurrentContext
    std::uint64_t device = 0;  ///< the device context, as the program saw it
    std::uint64_t context = 0; ///< CurrentContext: the rendering context
    int width = 0;             ///< of the window or frame
    int height = 0;            ///< of the window or frame
    std::uint8_t pixelFormat[8] = {}; ///< colour, red, green, blue, alpha, depth, stencil bits, double-buffered
    std::uint32_t frame = 0;     ///< Frame: its number, from 0
    std::uint64_t checksum = 0;  ///< Frame: capture::frameChecksum of its pixels

    // ClientArray, BufferContents (target in type, offset in first)
    capture::ArrayKind array = capture::ArrayKind::Vertex; ///< which array
    std::uint32_t unit = 0;   ///< texture unit or attribute index
    std::int32_t size = 0;    ///< components per vertex
    std::uint32_t type = 0;   ///< component type; BufferContents: the buffer target
    std::int32_t stride = 0;  ///< as the program gave it (0: packed)
    bool normalized = false;  ///< attributes: normalized
    std::uint64_t first = 0;  ///< first byte held, from the array's (or mapping's) start
    std::uint64_t length = 0; ///< bytes held
    /// ClientArray, BufferContents: the bytes; Frame: the pixels, or null when not stored.
    unsigned char const* data = nullptr;

    // Thread
    std::uint32_t thread = 0; ///< Thread: the captured thread's id
};

/// Reads a capture written by CaptureSession, record by record. The whole file
/// is held in memory; records point into it.
class ORU_OGL_API CaptureReader
{
public:
    /// Opens and checks the header.
    /// @param path the capture
    /// @throws CaptureError "cannot open the capture '<path>'"; "not a capture: the file
    ///         does not begin with the ORUCAPT header"; "the capture has format version
    ///         <n>, newer than the versions this reader knows (up to <m>): read it with a
    ///         newer oru_ogl"
    explicit CaptureReader(std::string const& path);
    /// Reads from bytes already in memory.
    /// @param bytes the capture
    /// @throws CaptureError as the other constructor, for a header that is no capture's
    explicit CaptureReader(std::vector<unsigned char> bytes);

    /// The capture's format version.
    /// @return the header's version
    std::uint32_t version() const { return version_; }
    /// Whether Frame records hold their pixels.
    /// @return the header's flag
    bool framesStored() const { return (flags_ & capture::kFramesStored) != 0; }
    /// Bytes of the whole capture.
    /// @return its size
    std::uint64_t size() const { return bytes_.size(); }

    /// The next record.
    /// @param record filled with the record
    /// @return false at the end
    /// @throws CaptureError "capture truncated: the file ends at byte <n>, inside the call
    ///         at byte offset <o> (call index <i>)" or "corrupt capture: <what> in the call
    ///         at byte offset <o> (call index <i>)" (record for other records); the reader
    ///         is then at its end
    bool next(CaptureRecord& record);
    /// Back to the first record.
    void rewind();
    /// Calls read so far.
    /// @return the count
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
