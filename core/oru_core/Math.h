#ifndef ORU_CORE_MATH_H
#define ORU_CORE_MATH_H

namespace Oru
{

/// True for 1, 2, 4, 8, ...; false for 0 and every other value.
/// @param value any value
/// @return whether value is a power of two
inline bool isPowerOfTwo(unsigned int value)
{
    return value != 0 && (value & (value - 1)) == 0;
}

} // namespace Oru

#endif
