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
    struct Entry
    {
        std::uint32_t bits;
        unsigned char length; // 0: empty
        char text[43];        // the longest is 41 characters
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
