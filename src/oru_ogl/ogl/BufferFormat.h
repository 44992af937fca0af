#ifndef ORU_OGL_BUFFERFORMAT_H
#define ORU_OGL_BUFFERFORMAT_H

#include "oru_ogl/OglExport.h"

#include <windows.h>

#include <vector>

namespace Oru
{
namespace OGL
{

/// What framebuffer a new rendering context must have: bit depths of the colour
/// channels, of stencil and depth (stencil comes first), and whether colour is
/// floating point. Values are kept as given, without validation.
class ORU_OGL_API BufferFormat
{
public:
    /// Predefined formats; only the numbers are fixed. 21 to 23 deliberately
    /// equal 18 to 20 (16 bits per channel).
    enum tePredefined
    {
        eR16F = 0, eR16F_D24, eR16F_S8D24,
        eR32F, eR32F_D24, eR32F_S8D24,
        eRG16F, eRG16F_D24, eRG16F_S8D24,
        eRG32F, eRG32F_D24, eRG32F_S8D24,
        eRGB8, eRGB8_D24, eRGB8_S8D24,
        eRGBA8, eRGBA8_D24, eRGBA8_S8D24,
        eRGBA16F, eRGBA16F_D24, eRGBA16F_S8D24,
        eRGBA32F, eRGBA32F_D24, eRGBA32F_S8D24
    };

    /// Bit depths and whether colour is floating point, kept as given.
    /// @param red                bits of red
    /// @param green              bits of green
    /// @param blue               bits of blue
    /// @param alpha              bits of alpha
    /// @param stencil            bits of stencil
    /// @param depth              bits of depth
    /// @param floatingPointColor whether the colour channels are floating point
    BufferFormat(unsigned int red, unsigned int green, unsigned int blue, unsigned int alpha,
                 unsigned int stencil, unsigned int depth, bool floatingPointColor);
    /// One of the predefined formats.
    /// @param format its number, 0 to 23
    /// @throws Oru::InternalException
    ///         "Trying to construct an buffer-format not recognized by this method"
    ///         for a value outside 0 to 23
    BufferFormat(tePredefined format);

    /// Copies the format.
    /// @param other the format to copy
    BufferFormat(BufferFormat const& other) = default;
    /// Assigns another format.
    /// @param other the format to copy
    /// @return this format
    BufferFormat& operator=(BufferFormat const& other);

    /// Red bits.
    /// @return as given
    unsigned int redBits() const { return red_; }
    /// Green bits.
    /// @return as given
    unsigned int greenBits() const { return green_; }
    /// Blue bits.
    /// @return as given
    unsigned int blueBits() const { return blue_; }
    /// Alpha bits.
    /// @return as given
    unsigned int alphaBits() const { return alpha_; }
    /// Stencil bits.
    /// @return as given
    unsigned int stencilBits() const { return stencil_; }
    /// Depth bits.
    /// @return as given
    unsigned int depthBits() const { return depth_; }
    /// Whether colour is floating point.
    /// @return as given
    bool floatingPointColor() const { return floatingPointColor_; }

    /// The request for GDI's ChoosePixelFormat. The colour bits are summed in
    /// 8-bit arithmetic and wrap; the floating-point flag has no place here.
    /// @param doubleBuffered whether to ask for PFD_DOUBLEBUFFER
    /// @return an RGBA, OpenGL, window-drawing descriptor with these depths
    PIXELFORMATDESCRIPTOR pixelFormatDescriptor(bool doubleBuffered) const;

    /// The zero-terminated integer attribute list for wglChoosePixelFormatARB.
    /// @param doubleBuffered whether to ask for a double-buffered format
    /// @param samples        samples per pixel; multisample pairs are added when above 1
    /// @param pixelBuffer    whether the format draws to a pbuffer instead of a window
    /// @return WGL attribute and value pairs, ending in 0
    std::vector<int> pixelFormatAttributes(bool doubleBuffered, int samples, bool pixelBuffer) const;

    /// The float attribute list that goes with it.
    /// @return two zeros
    static std::vector<float> pixelFormatFloatAttributes();

private:
    unsigned int red_;
    unsigned int green_;
    unsigned int blue_;
    unsigned int alpha_;
    unsigned int stencil_;
    unsigned int depth_;
    bool floatingPointColor_;
};

} // namespace OGL
} // namespace Oru

#endif
