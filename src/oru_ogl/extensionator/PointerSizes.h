#ifndef ORU_OGL_EXTENSIONATOR_POINTERSIZES_H
#define ORU_OGL_EXTENSIONATOR_POINTERSIZES_H

// Internal to the library: how much data a pointer parameter of a GL or WGL
// operation points to, for capture. Pure computation over the table generated
// from catalogue/pointer_parameters.tsv and pointer_rules.tsv and the pixel
// store state the caller passes in; no GL calls.

#include "oru_ogl/OglExport.h"

#include <cstddef>

namespace Oru
{
namespace OGL
{

/// GL_UNPACK_* or GL_PACK_* state, as the context holds it.
struct PixelStore
{
    long long rowLength = 0;
    long long imageHeight = 0;
    long long skipPixels = 0;
    long long skipRows = 0;
    long long skipImages = 0;
    long long alignment = 4;
};

/// One pointer parameter as the catalogue describes it.
struct PointerParameter
{
    enum class Direction { In, Out, Inout };
    /// Call: the data is there during the call. Draw: vertex arrays, read by
    /// later draw calls. Later: written by later calls (feedback, selection).
    enum class When { Call, Draw, Later };
    /// The buffer binding that turns the pointer into an offset when non-zero.
    enum class Binding { None, PixelUnpackBuffer, PixelPackBuffer, ArrayBuffer, ElementArrayBuffer };
    enum class Rule
    {
        Count, String, Unknown, Values, Typed, Strings, PointerArrays, Image1D, Image2D, Image3D,
        VertexArray, Interleaved, Map1, Map2,
        // Sized by GL state the call does not carry.
        PixelMap, MapQuery, TexImage, CompressedTexImage, TableImage, Uniform
    };
    /// An argument of the rule: the call's parameter `index`, or `value` itself.
    struct Argument
    {
        bool isParameter;
        long long value;
    };
    static constexpr int kMaxArguments = 5;

    char const* operation;        // "cgmTexImage2D", "wcgmGetProcAddress"
    unsigned int index;           // of the parameter in the call
    std::size_t elementSize;      // bytes of what Count and Values count
    Direction direction;
    When when;
    Binding binding;
    Rule rule;
    int argumentCount;
    Argument arguments[kMaxArguments];
};

/// The size where the call's arguments and the pixel store do not decide it:
/// an enum without a known count, a state rule, a string (its length is in the
/// data), a deferred vertex array, an unknown rule.
constexpr std::size_t kUnknownBytes = static_cast<std::size_t>(-1);

/// Sizes in bytes, or kUnknownBytes.
class ORU_OGL_API PointerSizes
{
public:
    /// The catalogue's row for a parameter; nullptr for a parameter that is no pointer.
    static PointerParameter const* find(char const* operation, unsigned int index);
    /// Every row, in the chain's order.
    static PointerParameter const* begin();
    static PointerParameter const* end();

    /// Bytes behind the parameter for a call whose integer-valued parameters are
    /// `call` (indexed like the call's parameters); `store` is the unpack state
    /// for data read, the pack state for data written.
    static std::size_t bytes(PointerParameter const& parameter, long long const* call, PixelStore const& store);

    /// Number of values GL reads or writes for a pname (glGet*, glLight*,
    /// glTexParameter*, ...); 0 when unknown.
    static int values(unsigned int pname);
    /// Values per control point of a glMap1/glMap2 target; 0 when unknown.
    static int mapValues(unsigned int target);
    /// Bytes of an image of the given size under the pixel store's layout,
    /// from the first byte GL touches (skips included) to the last.
    static std::size_t image(int dimensions, long long width, long long height, long long depth,
                             unsigned int format, unsigned int type, PixelStore const& store);
    /// Bytes of one value of a GL data type (GL_3_BYTES is 3); 0 when unknown.
    static std::size_t typeSize(unsigned int type);
};

} // namespace OGL
} // namespace Oru

#endif
