#ifndef ORU_OGL_EXTENSIONATOR_FLOATTEXTCACHE_H
#define ORU_OGL_EXTENSIONATOR_FLOATTEXTCACHE_H

#include <cstdint>

namespace Oru
{
namespace OGL
{
namespace detail
{

/// The text of recently written floats ("makeFloat(1056964608) /* 0.5 */") by
/// bit pattern, one per tracer or recorder. GL call streams repeat their
/// floats (colours, texture coordinates, 0 and 1), and formatting a float
/// twice over is most of the cost of tracing or recording a call.
struct FloatTextCache
{
    static const unsigned int kEntries = 64;
    /// Room for the longest text (41 characters), copied whole in fixed-size moves.
    static const unsigned int kTextRoom = 48;
    struct Entry
    {
        char text[kTextRoom];
        std::uint32_t bits;
        unsigned char length; // 0: empty
    };
    Entry entries[kEntries];

    FloatTextCache()
    {
        for (Entry& entry : entries)
            entry.length = 0;
    }
};

} // namespace detail
} // namespace OGL
} // namespace Oru

#endif
