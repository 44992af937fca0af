#ifndef ORU_CORE_VECTOR_H
#define ORU_CORE_VECTOR_H

#include <cstddef>

namespace Oru
{

/// Two single-precision floats in component order.
struct float2
{
    /// Number of components.
    static const std::size_t dimension = 2;
    float x; ///< First component.
    float y; ///< Second component.

    float2() : x(0.0f), y(0.0f) {}
    /// Every component set to v.
    /// @param v the value of each component
    float2(float v) : x(v), y(v) {}
    /// The components in order.
    float2(float x_, float y_) : x(x_), y(y_) {}
};

/// Three single-precision floats in component order.
struct float3
{
    /// Number of components.
    static const std::size_t dimension = 3;
    float x; ///< First component.
    float y; ///< Second component.
    float z; ///< Third component.

    float3() : x(0.0f), y(0.0f), z(0.0f) {}
    /// Every component set to v.
    /// @param v the value of each component
    float3(float v) : x(v), y(v), z(v) {}
    /// The components in order.
    float3(float x_, float y_, float z_) : x(x_), y(y_), z(z_) {}
};

/// Four single-precision floats in component order (colours, positions).
struct float4
{
    /// Number of components.
    static const std::size_t dimension = 4;
    float x; ///< First component.
    float y; ///< Second component.
    float z; ///< Third component.
    float w; ///< Fourth component.

    float4() : x(0.0f), y(0.0f), z(0.0f), w(0.0f) {}
    /// Every component set to v.
    /// @param v the value of each component
    float4(float v) : x(v), y(v), z(v), w(v) {}
    /// The components in order.
    float4(float x_, float y_, float z_, float w_) : x(x_), y(y_), z(z_), w(w_) {}

    /// Component i (0 to 3).
    /// @param i the component's index; not checked
    /// @return the component
    float& operator[](std::size_t i) { return (&x)[i]; }
    /// Component i (0 to 3).
    /// @param i the component's index; not checked
    /// @return the component
    float const& operator[](std::size_t i) const { return (&x)[i]; }
};

} // namespace Oru

#endif
