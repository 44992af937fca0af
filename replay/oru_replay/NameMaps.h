#ifndef ORU_REPLAY_NAMEMAPS_H
#define ORU_REPLAY_NAMEMAPS_H

#include "oru_ogl/extensionator/CaptureReader.h"
#include "oru_ogl/extensionator/GLTypes.h"

#include <cstdint>
#include <unordered_map>
#include <utility>
#include <vector>

namespace Oru
{
namespace OGL
{

/// The names and locations a captured driver gave, mapped to the ones the
/// replaying driver gives, by name space. Each operation's parameters and
/// results that hold such values come from the catalogue's object table.
class NameMaps
{
public:
    /// The name spaces: each maps its captured values on its own.
    enum Space
    {
        Texture, Buffer, Framebuffer, Renderbuffer, Query, List, VertexArray, ShaderObject, ArbProgram,
        UniformLocation, AttributeLocation, kSpaceCount
    };
    /// Where an operation's parameter (index) or result (index -1) is a name.
    struct Use
    {
        int index;   ///< the parameter, or -1 for the result
        Space space; ///< what it names
    };

    NameMaps();

    /// The parameters and result of the operation that hold names.
    std::vector<Use> const& uses(unsigned int operation) const { return uses_[operation]; }

    /// Rewrites the call's scalar names to the replay's (pointer data is mapped
    /// where it is copied, with replayed()).
    void mapArguments(CaptureRecord& call) const;
    /// The replay's name for a captured one: itself when never mapped (0 stays 0).
    std::uint64_t replayed(Space space, std::uint64_t captured) const;
    /// Learns the names a call created: glGen* outputs, results of glCreate*,
    /// glGenLists, glGet*Location. `output` is where the call wrote its names
    /// (by parameter index), `result` what it returned.
    void learn(CaptureRecord const& call, void* const* outputs, long long result);
    /// Learns one name of a space other than UniformLocation.
    void learnName(Space space, std::uint64_t captured, std::uint64_t replayed);
    /// Learns a uniform location of a program (the replay's name of it).
    void learnLocation(std::uint64_t program, std::uint64_t captured, std::uint64_t replayed);

    /// The program glUseProgram made current, for uniform locations.
    void useProgram(std::uint64_t program) { program_ = program; }

private:
    std::uint64_t key(Space space, std::uint64_t value) const;

    std::vector<std::vector<Use>> uses_;
    std::unordered_map<std::uint64_t, std::uint64_t> maps_[kSpaceCount];
    std::uint64_t program_ = 0;
};

} // namespace OGL
} // namespace Oru

#endif
