#ifndef ORU_OGL_EXTENSIONATOR_BITS_H
#define ORU_OGL_EXTENSIONATOR_BITS_H

// Internal to the library: the bit scan behind its sixteen-bytes-at-a-time
// text scanners, with MinGW and MSVC.

#ifdef _MSC_VER
#include <intrin.h>
#endif

namespace Oru
{
namespace OGL
{
namespace detail
{

/// The index of the lowest set bit; the mask must not be zero.
inline unsigned int lowestSetBit(unsigned int mask)
{
#ifdef _MSC_VER
    unsigned long index;
    _BitScanForward(&index, mask);
    return static_cast<unsigned int>(index);
#else
    return static_cast<unsigned int>(__builtin_ctz(mask));
#endif
}

} // namespace detail
} // namespace OGL
} // namespace Oru

#endif
