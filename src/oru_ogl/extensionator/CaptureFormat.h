#ifndef ORU_OGL_EXTENSIONATOR_CAPTUREFORMAT_H
#define ORU_OGL_EXTENSIONATOR_CAPTUREFORMAT_H

/// \file
/// The capture stream written by OpenGLCapture and wglCapture and read by
/// CaptureReader. Little-endian, no padding, no alignment.
///
/// Header (24 bytes): the magic "ORUCAPT\0", u32 format version, u32 flags
/// (kFramesStored when every presented frame is stored whole), u64 reserved.
///
/// Then records, each opening with a u16 tag:
/// - tag below kFirstControlTag: a call of the operation that a Define record
///   gave that number: its arguments in order, then its result (unless void),
///   then the output data of Output pointers (see PointerKind).
///   A scalar argument or result is its bytes (sizeof its type). A pointer
///   argument is a PointerKind byte and what that kind says.
/// - Define: u16 number, u16 length, the operation's name ("glColor4f",
///   "wglMakeCurrent", "SwapBuffers"). Written before a number's first call.
/// - Surface: u64 device context, i32 width, i32 height, then the pixel
///   format: u8 colour, red, green, blue, alpha, depth and stencil bits, u8
///   double-buffered. Written when a device context is first seen in a call
///   and whenever its window's size changes.
/// - Frame: u64 device context, u32 frame number (from 0), u32 width, u32
///   height, u64 checksum (frameChecksum of the back buffer read as RGBA
///   bytes, bottom row first), u8 stored, then width*height*4 bytes when
///   stored. Written before the SwapBuffers that presents the frame.
/// - ClientArray: a client-memory vertex array as a draw call reads it,
///   written before that draw call: u8 ArrayKind, u32 unit (texture unit or
///   attribute index), i32 size, u32 type, i32 stride, u8 normalized, u64
///   first byte (from the array's start), u64 length, the bytes.
/// - BufferContents: what the program wrote into a mapped buffer, written
///   before the glUnmapBuffer: u32 target, u64 offset, u64 length, the bytes.
/// - Thread: u32 thread id, written when calls start coming from another thread.
/// - CurrentContext: u64 device context, u64 context: the context that was
///   current when the capture began (after its Surface record).

#include <cstddef>
#include <cstdint>

namespace Oru
{
namespace OGL
{
namespace capture
{

/// The first eight bytes of every capture.
constexpr char kMagic[8] = { 'O', 'R', 'U', 'C', 'A', 'P', 'T', '\0' };
/// The format this library writes; readers refuse newer ones.
constexpr std::uint32_t kFormatVersion = 1;
/// Bytes of the header.
constexpr std::size_t kHeaderSize = 24;
/// Header flag: every Frame record holds its pixels.
constexpr std::uint32_t kFramesStored = 1;

/// Tags from here on are control records; below, calls.
constexpr std::uint16_t kFirstControlTag = 0xFF00;
/// The records that are not calls (see above for what follows each tag).
enum ControlTag : std::uint16_t
{
    kDefine = 0xFF01,         ///< an operation number's name
    kSurface = 0xFF02,        ///< a window's size and pixel format
    kFrame = 0xFF03,          ///< a presented frame's checksum, or the frame
    kClientArray = 0xFF04,    ///< a client-memory vertex array as a draw reads it
    kBufferContents = 0xFF05, ///< what a program wrote into a mapped buffer
    kThread = 0xFF06,         ///< calls from another thread follow
    kCurrentContext = 0xFF07, ///< the context current when the capture began
};

/// How a pointer argument is written.
enum class PointerKind : std::uint8_t
{
    Null = 0,    ///< nothing follows
    Address = 1, ///< u64: a buffer offset, or client memory GL reads later (vertex arrays)
    Data = 2,    ///< u64 address, u64 length, the bytes the call reads
    Output = 3,  ///< u64 address, u64 length: the call writes that much; the replay gives room
    Strings = 4, ///< u64 address, u32 count, per string u64 length and its bytes (no terminator)
    OutputKept = 5, ///< as Output, and the bytes written follow the call's result (generated names)
    Unsized = 6, ///< u64 address: data of a size the capture could not tell; the replay skips the call
};

/// The vertex array a ClientArray record sets.
enum class ArrayKind : std::uint8_t
{
    Vertex,         ///< glVertexPointer
    Normal,         ///< glNormalPointer
    Color,          ///< glColorPointer
    Index,          ///< glIndexPointer
    EdgeFlag,       ///< glEdgeFlagPointer
    FogCoord,       ///< glFogCoordPointer
    SecondaryColor, ///< glSecondaryColorPointer
    TexCoord,       ///< glTexCoordPointer of the texture unit in `unit`
    Attribute       ///< glVertexAttribPointer of the attribute in `unit`
};

/// 64-bit FNV-1a over the bytes: the frame checksum of Frame records.
/// @param bytes  the pixels
/// @param length their count
/// @return the checksum
inline std::uint64_t frameChecksum(unsigned char const* bytes, std::size_t length)
{
    std::uint64_t hash = 14695981039346656037ull;
    for (std::size_t i = 0; i < length; ++i)
        hash = (hash ^ bytes[i]) * 1099511628211ull;
    return hash;
}

} // namespace capture
} // namespace OGL
} // namespace Oru

#endif
