#include "oru_replay/NameMaps.h"

#include <cstring>
#include <string>

namespace Oru
{
namespace OGL
{

NameMaps::NameMaps() : uses_(capture::kOperationCount)
{
    struct Row
    {
        char const* operation;
        int index;
        Space space;
    };
    static const Row kRows[] = {
#define ORU_OBJECT_PARAMETER(operation, index, space) { #operation, index, space },
#include "oru_ogl/extensionator/ObjectParameters.inc"
#undef ORU_OBJECT_PARAMETER
    };
    for (Row const& row : kRows)
    {
        const unsigned int operation = capture::operationNumber(("gl" + std::string(row.operation + 3)).c_str());
        if (operation < capture::kOperationCount)
            uses_[operation].push_back(Use{ row.index, row.space });
    }
}

// Uniform locations belong to the program in use.
std::uint64_t NameMaps::key(Space space, std::uint64_t value) const
{
    return space == UniformLocation ? (program_ << 32) ^ (value & 0xFFFFFFFFu) : value;
}

std::uint64_t NameMaps::replayed(Space space, std::uint64_t captured) const
{
    auto const& map = maps_[space];
    auto const found = map.find(key(space, captured));
    return found == map.end() ? captured : found->second;
}

void NameMaps::mapArguments(CaptureRecord& call) const
{
    for (Use const& use : uses_[call.operation])
    {
        if (use.index < 0 || static_cast<unsigned int>(use.index) >= call.argumentCount)
            continue;
        CapturedArgument& argument = call.arguments[use.index];
        if (argument.pointer)
            continue;
        const long long value = argument.integer();
        if (value == 0 || value == -1)
            continue; // the default object, or no location
        const std::uint64_t mapped = replayed(use.space, static_cast<std::uint64_t>(value));
        std::memcpy(argument.raw, &mapped, argument.size);
    }
}

void NameMaps::learnName(Space space, std::uint64_t captured, std::uint64_t replayed)
{
    maps_[space][captured] = replayed;
}

void NameMaps::learnLocation(std::uint64_t program, std::uint64_t captured, std::uint64_t replayed)
{
    maps_[UniformLocation][(program << 32) ^ (captured & 0xFFFFFFFFu)] = replayed;
}

void NameMaps::learn(CaptureRecord const& call, void* const* outputs, long long result)
{
    for (Use const& use : uses_[call.operation])
    {
        if (use.index < 0)
        {
            const long long captured = call.result.integer();
            if (captured == 0 || captured == -1)
                continue;
            if (use.space == List)
            {
                // glGenLists(range): a block of names.
                const long long range = call.arguments[0].integer();
                for (long long i = 0; i < range; ++i)
                    learnName(List, static_cast<std::uint64_t>(captured + i), static_cast<std::uint64_t>(result + i));
            }
            else if (use.space == UniformLocation)
                // glGetUniformLocation(program, name): the location in that program.
                learnLocation(static_cast<std::uint64_t>(call.arguments[0].integer()),
                              static_cast<std::uint64_t>(captured), static_cast<std::uint64_t>(result));
            else
                learnName(use.space, static_cast<std::uint64_t>(captured), static_cast<std::uint64_t>(result));
            continue;
        }
        CapturedArgument const& argument = call.arguments[use.index];
        if (argument.kind != capture::PointerKind::OutputKept || !outputs[use.index])
            continue;
        const std::size_t count = static_cast<std::size_t>(argument.length / sizeof(GLuint));
        auto const* mine = static_cast<GLuint const*>(outputs[use.index]);
        for (std::size_t i = 0; i < count; ++i)
        {
            GLuint captured = 0;
            std::memcpy(&captured, argument.kept + i * sizeof(GLuint), sizeof(GLuint));
            learnName(use.space, captured, mine[i]);
        }
    }
}

} // namespace OGL
} // namespace Oru
