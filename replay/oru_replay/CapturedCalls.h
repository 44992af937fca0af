#ifndef ORU_REPLAY_CAPTUREDCALLS_H
#define ORU_REPLAY_CAPTUREDCALLS_H

// What the C++ that `oglreplay CAPTURE --export DIR` writes calls on, besides GL
// itself: the capture's data file, the name maps, the windows and contexts of
// the capture, client arrays, mapped buffers and the frame checks. Each call
// does what oglreplay does for the same record, so that the exported program
// and oglreplay draw the same frames.

#include "oru_replay/NameMaps.h"

#include "oru_ogl/extensionator/CaptureFormat.h"

#include <cstdint>
#include <initializer_list>
#include <map>
#include <string>

// Token names, and the GL functions beyond 1.1 bound to the loaded entry points.
#include "oru_ogl/replay/ReplayGL.h"

namespace Oru
{
namespace Replay
{

/// Any pointer the exported calls pass: data of the data file, room for
/// output, a captured address. Converts to whatever pointer the GL parameter is.
struct CallPointer
{
    void const* address; ///< where the data is
    /// The address as the parameter's pointer type.
    template <class T>
    operator T*() const
    {
        return (T*)(address); // GL's parameter types differ in constness only
    }
};

// The name spaces, spelled as the exported calls spell them: name(Texture, 3).
using Space = OGL::NameMaps::Space;
constexpr Space Texture = OGL::NameMaps::Texture;
constexpr Space Buffer = OGL::NameMaps::Buffer;
constexpr Space Framebuffer = OGL::NameMaps::Framebuffer;
constexpr Space Renderbuffer = OGL::NameMaps::Renderbuffer;
constexpr Space Query = OGL::NameMaps::Query;
constexpr Space List = OGL::NameMaps::List;
constexpr Space VertexArray = OGL::NameMaps::VertexArray;
constexpr Space ShaderObject = OGL::NameMaps::ShaderObject;
constexpr Space ArbProgram = OGL::NameMaps::ArbProgram;
constexpr Space UniformLocation = OGL::NameMaps::UniformLocation;
constexpr Space AttributeLocation = OGL::NameMaps::AttributeLocation;
using ArrayKind = OGL::capture::ArrayKind;

// Arguments.
/// The block of the data file at that offset.
CallPointer data(std::uint64_t offset);
/// A captured address, passed on as it is (buffer offsets; client arrays are
/// set again by clientArray before each draw).
CallPointer address(std::uint64_t value);
/// Room of that many bytes for the output of parameter `index` of the next call.
CallPointer output(unsigned int index, std::uint64_t bytes);
/// The output room of parameter `index`, as the last call left it.
CallPointer output(unsigned int index);
/// Room that GL keeps writing to after the call (feedback, selection).
CallPointer lasting(std::uint64_t bytes);
/// The `count` strings of the data file's block at `offset` (u64 length and
/// the characters each), as an array of zero-terminated strings.
CallPointer strings(std::uint64_t offset, std::uint32_t count);
/// The replay's name for a captured one.
std::uint64_t name(Space space, std::uint64_t captured);
/// An array of the replay's names for captured ones.
CallPointer names(Space space, std::initializer_list<GLuint> captured);
/// The float or double of these bits (infinities, NaNs).
float floatBits(std::uint32_t bits);
double doubleBits(std::uint64_t bits);

// Results.
/// The name a call returned, for the captured one.
void learn(Space space, std::uint64_t captured, std::uint64_t replayed);
/// The names a call wrote into output(index), in the order of the captured ones.
void learnNames(Space space, CallPointer written, std::initializer_list<GLuint> captured);
/// glGenLists: a block of `range` names.
void learnLists(std::uint64_t captured, GLsizei range, GLuint replayed);
/// glGetUniformLocation in the replay's program.
void learnLocation(std::uint64_t program, std::uint64_t captured, GLint replayed);
/// glUseProgram: uniform locations are the program's.
void useProgram(std::uint64_t program);
/// glMapBuffer: where bufferContents writes for that target.
void mapped(GLenum target, void* pointer);

// Records of the capture other than GL calls.
void surface(std::uint64_t device, int width, int height);
/// The context current when the capture began.
void currentContext(std::uint64_t device, std::uint64_t context);
void thread(std::uint32_t id);
void clientArray(ArrayKind kind, std::uint32_t unit, GLint size, GLenum type, GLsizei stride, bool normalized,
                 std::uint64_t first, std::uint64_t length, CallPointer bytes);
void bufferContents(GLenum target, std::uint64_t offset, std::uint64_t length, CallPointer bytes);
/// A presented frame, compared with the capture's checksum; `stored` is the
/// captured frame's pixels, or nullptr.
void frame(unsigned int number, int width, int height, std::uint64_t checksum, void const* stored);

// WGL calls, on the replay's own windows and contexts.
void createContext(std::uint64_t device, std::uint64_t context);
void makeCurrent(std::uint64_t device, std::uint64_t context);
void deleteContext(std::uint64_t context);
void shareLists(std::uint64_t context1, std::uint64_t context2);
void copyContext(std::uint64_t source, std::uint64_t destination, UINT mask);
void swapBuffers(std::uint64_t device);
/// A call that cannot be replayed, reported once per call.
void skipped(std::uint64_t call, char const* function, char const* why);

/// How the exported program runs.
struct CaptureOptions
{
    bool compare = true; ///< compare each presented frame with the capture's checksum
    std::map<unsigned int, std::string> pngs; ///< frames to write as PNG
};
/// What the exported program saw.
struct CaptureResult
{
    unsigned int frames = 0;          ///< presented
    unsigned int comparedFrames = 0;  ///< compared with the capture's
    unsigned int differingFrames = 0; ///< of those, differing
    std::uint64_t skipped = 0;        ///< calls of functions the driver lacks
    std::uint64_t glErrors = 0;       ///< GL errors raised
};
/// Reads the data file whole. False, with the reason, when it cannot be read
/// or is not the data of this export.
bool loadCaptureData(std::string const& path, std::uint64_t expectedSize, std::string& error);
/// Runs the exported calls, then releases the contexts and windows.
CaptureResult replayCapture(CaptureOptions const& options);

} // namespace Replay
} // namespace Oru

/// One exported capture (oglreplay --export writes it).
struct OruCapturedProgram
{
    char const* dataFile;     ///< name of the data file next to the program, the default of --data
    std::uint64_t dataSize;   ///< its size in bytes
    std::uint64_t calls;      ///< calls exported
    unsigned int partCount;   ///< the calls, in parts of a few thousand
    void (*const* parts)();   ///< the parts, in order
};
extern const OruCapturedProgram oruCapturedProgram;

#endif
