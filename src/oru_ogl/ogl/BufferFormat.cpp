#include "oru_ogl/ogl/BufferFormat.h"

#include "oru_ogl/Enforce.h"

namespace Oru
{
namespace OGL
{

namespace
{

struct PredefinedFormat
{
    unsigned int red, green, blue, alpha, stencil, depth;
    bool floatingPoint;
};

// Indexed by tePredefined.
const PredefinedFormat kPredefined[] = {
    //  R   G   B   A  S8  D24  float
    { 16,  0,  0,  0, 0,  0, true },  // eR16F
    { 16,  0,  0,  0, 0, 24, true },  // eR16F_D24
    { 16,  0,  0,  0, 8, 24, true },  // eR16F_S8D24
    { 32,  0,  0,  0, 0,  0, true },  // eR32F
    { 32,  0,  0,  0, 0, 24, true },  // eR32F_D24
    { 32,  0,  0,  0, 8, 24, true },  // eR32F_S8D24
    { 16, 16,  0,  0, 0,  0, true },  // eRG16F
    { 16, 16,  0,  0, 0, 24, true },  // eRG16F_D24
    { 16, 16,  0,  0, 8, 24, true },  // eRG16F_S8D24
    { 32, 32,  0,  0, 0,  0, true },  // eRG32F
    { 32, 32,  0,  0, 0, 24, true },  // eRG32F_D24
    { 32, 32,  0,  0, 8, 24, true },  // eRG32F_S8D24
    {  8,  8,  8,  0, 0,  0, false }, // eRGB8
    {  8,  8,  8,  0, 0, 24, false }, // eRGB8_D24
    {  8,  8,  8,  0, 8, 24, false }, // eRGB8_S8D24
    {  8,  8,  8,  8, 0,  0, false }, // eRGBA8
    {  8,  8,  8,  8, 0, 24, false }, // eRGBA8_D24
    {  8,  8,  8,  8, 8, 24, false }, // eRGBA8_S8D24
    { 16, 16, 16, 16, 0,  0, true },  // eRGBA16F
    { 16, 16, 16, 16, 0, 24, true },  // eRGBA16F_D24
    { 16, 16, 16, 16, 8, 24, true },  // eRGBA16F_S8D24
    { 16, 16, 16, 16, 0,  0, true },  // eRGBA32F: 16 bits, as eRGBA16F
    { 16, 16, 16, 16, 0, 24, true },  // eRGBA32F_D24: as eRGBA16F_D24
    { 16, 16, 16, 16, 8, 24, true },  // eRGBA32F_S8D24: as eRGBA16F_S8D24
};

const unsigned int kPredefinedCount = sizeof(kPredefined) / sizeof(kPredefined[0]);

// WGL_ARB_pixel_format attribute names and values.
enum : int
{
    WGL_DRAW_TO_WINDOW = 0x2001,
    WGL_ACCELERATION = 0x2003,
    WGL_SUPPORT_OPENGL = 0x2010,
    WGL_DOUBLE_BUFFER = 0x2011,
    WGL_PIXEL_TYPE = 0x2013,
    WGL_COLOR_BITS = 0x2014,
    WGL_RED_BITS = 0x2015,
    WGL_GREEN_BITS = 0x2017,
    WGL_BLUE_BITS = 0x2019,
    WGL_ALPHA_BITS = 0x201B,
    WGL_DEPTH_BITS = 0x2022,
    WGL_STENCIL_BITS = 0x2023,
    WGL_FULL_ACCELERATION = 0x2027,
    WGL_TYPE_RGBA = 0x202B,
    WGL_DRAW_TO_PBUFFER = 0x202D,
    // The ATI float extension's WGL_TYPE_RGBA_FLOAT_ATI value, used here as an
    // attribute name with value 1; drivers have accepted it so for years.
    WGL_FLOAT_COLOR_REQUEST = 0x21A0,
    WGL_SAMPLE_BUFFERS = 0x2041,
    WGL_SAMPLES = 0x2042,
};

} // namespace

BufferFormat::BufferFormat(unsigned int red, unsigned int green, unsigned int blue, unsigned int alpha,
                           unsigned int stencil, unsigned int depth, bool floatingPointColor)
    : red_(red), green_(green), blue_(blue), alpha_(alpha), stencil_(stencil), depth_(depth)
    , floatingPointColor_(floatingPointColor)
{
}

BufferFormat::BufferFormat(tePredefined format)
{
    const unsigned int index = static_cast<unsigned int>(format);
    if (index >= kPredefinedCount)
        ORU_THROW("Trying to construct an buffer-format not recognized by this method");
    const PredefinedFormat& row = kPredefined[index];
    red_ = row.red;
    green_ = row.green;
    blue_ = row.blue;
    alpha_ = row.alpha;
    stencil_ = row.stencil;
    depth_ = row.depth;
    floatingPointColor_ = row.floatingPoint;
}

BufferFormat& BufferFormat::operator=(BufferFormat const& other)
{
    red_ = other.red_;
    green_ = other.green_;
    blue_ = other.blue_;
    alpha_ = other.alpha_;
    stencil_ = other.stencil_;
    depth_ = other.depth_;
    floatingPointColor_ = other.floatingPointColor_;
    return *this;
}

PIXELFORMATDESCRIPTOR BufferFormat::pixelFormatDescriptor(bool doubleBuffered) const
{
    PIXELFORMATDESCRIPTOR pfd;
    ZeroMemory(&pfd, sizeof(pfd));
    pfd.nSize = sizeof(PIXELFORMATDESCRIPTOR);
    pfd.nVersion = 1;
    pfd.dwFlags = PFD_DRAW_TO_WINDOW | PFD_SUPPORT_OPENGL | (doubleBuffered ? PFD_DOUBLEBUFFER : 0);
    pfd.iPixelType = PFD_TYPE_RGBA;
    pfd.cColorBits = static_cast<BYTE>(red_ + blue_ + green_ + alpha_);
    pfd.cAlphaBits = static_cast<BYTE>(alpha_);
    pfd.cDepthBits = static_cast<BYTE>(depth_);
    pfd.cStencilBits = static_cast<BYTE>(stencil_);
    return pfd;
}

std::vector<int> BufferFormat::pixelFormatAttributes(bool doubleBuffered, int samples, bool pixelBuffer) const
{
    std::vector<int> attributes = {
        WGL_SUPPORT_OPENGL, 1,
        WGL_ACCELERATION, WGL_FULL_ACCELERATION,
        WGL_PIXEL_TYPE, WGL_TYPE_RGBA,
        WGL_COLOR_BITS, static_cast<int>(red_ + green_ + blue_ + alpha_),
        WGL_RED_BITS, static_cast<int>(red_),
        WGL_GREEN_BITS, static_cast<int>(green_),
        WGL_BLUE_BITS, static_cast<int>(blue_),
        WGL_ALPHA_BITS, static_cast<int>(alpha_),
        WGL_DEPTH_BITS, static_cast<int>(depth_),
        WGL_STENCIL_BITS, static_cast<int>(stencil_),
        WGL_DOUBLE_BUFFER, doubleBuffered ? 1 : 0,
    };
    if (pixelBuffer)
        attributes.insert(attributes.end(), { WGL_DRAW_TO_PBUFFER, 1, WGL_DRAW_TO_WINDOW, 0 });
    else
        attributes.insert(attributes.end(), { WGL_DRAW_TO_WINDOW, 1 });
    if (floatingPointColor_)
        attributes.insert(attributes.end(), { WGL_FLOAT_COLOR_REQUEST, 1 });
    if (samples > 1)
        attributes.insert(attributes.end(), { WGL_SAMPLE_BUFFERS, 1, WGL_SAMPLES, samples });
    attributes.push_back(0);
    return attributes;
}

std::vector<float> BufferFormat::pixelFormatFloatAttributes()
{
    return { 0.0f, 0.0f };
}

} // namespace OGL
} // namespace Oru
