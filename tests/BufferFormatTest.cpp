// BufferFormat: the predefined table and both pixel-format translations.
#include "oru_ogl/ogl/BufferFormat.h"

#include "support/Raises.h"

#include <vector>

using Oru::OGL::BufferFormat;

namespace
{

struct Bits
{
    unsigned int red, green, blue, alpha, stencil, depth;
    bool floatingPoint;
};

Bits bitsOf(BufferFormat const& f)
{
    return { f.redBits(), f.greenBits(), f.blueBits(), f.alphaBits(), f.stencilBits(), f.depthBits(),
             f.floatingPointColor() };
}

bool operator==(Bits const& a, Bits const& b)
{
    return a.red == b.red && a.green == b.green && a.blue == b.blue && a.alpha == b.alpha &&
           a.stencil == b.stencil && a.depth == b.depth && a.floatingPoint == b.floatingPoint;
}

void PrintTo(Bits const& b, std::ostream* os)
{
    *os << "{" << b.red << "," << b.green << "," << b.blue << "," << b.alpha << " s" << b.stencil << " d" << b.depth
        << (b.floatingPoint ? " float}" : "}");
}

BufferFormat predefined(int value)
{
    return BufferFormat(static_cast<BufferFormat::tePredefined>(value));
}

} // namespace

TEST(BufferFormatTest, ConstructorKeepsEveryValueAsGivenStencilBeforeDepth)
{
    BufferFormat f(1, 2, 3, 4, 5, 6, true);
    EXPECT_EQ((Bits{ 1, 2, 3, 4, 5, 6, true }), bitsOf(f));
    BufferFormat huge(4000000000u, 0, 0, 0, 300, 70000, false);
    EXPECT_EQ(4000000000u, huge.redBits());
    EXPECT_EQ(300u, huge.stencilBits());
    EXPECT_EQ(70000u, huge.depthBits());
    BufferFormat& result = (huge = BufferFormat(9, 8, 7, 6, 5, 4, true));
    EXPECT_EQ(&huge, &result);
    EXPECT_EQ((Bits{ 9, 8, 7, 6, 5, 4, true }), bitsOf(huge));
}

TEST(BufferFormatTest, PredefinedFormatsByNumber)
{
    const Bits expected[24] = {
        { 16, 0, 0, 0, 0, 0, true },     { 16, 0, 0, 0, 0, 24, true },    { 16, 0, 0, 0, 8, 24, true },
        { 32, 0, 0, 0, 0, 0, true },     { 32, 0, 0, 0, 0, 24, true },    { 32, 0, 0, 0, 8, 24, true },
        { 16, 16, 0, 0, 0, 0, true },    { 16, 16, 0, 0, 0, 24, true },   { 16, 16, 0, 0, 8, 24, true },
        { 32, 32, 0, 0, 0, 0, true },    { 32, 32, 0, 0, 0, 24, true },   { 32, 32, 0, 0, 8, 24, true },
        { 8, 8, 8, 0, 0, 0, false },     { 8, 8, 8, 0, 0, 24, false },    { 8, 8, 8, 0, 8, 24, false },
        { 8, 8, 8, 8, 0, 0, false },     { 8, 8, 8, 8, 0, 24, false },    { 8, 8, 8, 8, 8, 24, false },
        { 16, 16, 16, 16, 0, 0, true },  { 16, 16, 16, 16, 0, 24, true }, { 16, 16, 16, 16, 8, 24, true },
        { 16, 16, 16, 16, 0, 0, true },  { 16, 16, 16, 16, 0, 24, true }, { 16, 16, 16, 16, 8, 24, true },
    };
    for (int value = 0; value < 24; ++value)
        EXPECT_EQ(expected[value], bitsOf(predefined(value))) << "predefined format " << value;
    // The "32F" RGBA formats really are the 16-bit ones.
    EXPECT_EQ(bitsOf(predefined(BufferFormat::eRGBA16F)), bitsOf(predefined(BufferFormat::eRGBA32F)));
}

TEST(BufferFormatTest, UnknownPredefinedValueIsRefused)
{
    for (int value : { 24, -1, 1000 })
        EXPECT_TRUE(OruTest::raises([&] { predefined(value); }, "ogl/BufferFormat.cpp", 0,
                                    "Trying to construct an buffer-format not recognized by this method"))
            << value;
}

TEST(BufferFormatTest, DescriptorForGdi)
{
    const PIXELFORMATDESCRIPTOR pfd = predefined(BufferFormat::eRGBA8_S8D24).pixelFormatDescriptor(true);
    EXPECT_EQ(40, pfd.nSize);
    EXPECT_EQ(1, pfd.nVersion);
    EXPECT_EQ(0x25u, pfd.dwFlags);
    EXPECT_EQ(PFD_TYPE_RGBA, pfd.iPixelType);
    EXPECT_EQ(32, pfd.cColorBits);
    EXPECT_EQ(8, pfd.cAlphaBits);
    EXPECT_EQ(24, pfd.cDepthBits);
    EXPECT_EQ(8, pfd.cStencilBits);
    // Per-channel bits, shifts, accumulation, aux buffers, layers and masks stay zero.
    EXPECT_EQ(0, pfd.cRedBits + pfd.cGreenBits + pfd.cBlueBits + pfd.cRedShift + pfd.cGreenShift +
                     pfd.cBlueShift + pfd.cAlphaShift);
    EXPECT_EQ(0, pfd.cAccumBits + pfd.cAccumRedBits + pfd.cAccumGreenBits + pfd.cAccumBlueBits +
                     pfd.cAccumAlphaBits + pfd.cAuxBuffers + pfd.iLayerType + pfd.bReserved);
    EXPECT_EQ(0u, pfd.dwLayerMask + pfd.dwVisibleMask + pfd.dwDamageMask);

    EXPECT_EQ(0x24u, predefined(BufferFormat::eRGB8).pixelFormatDescriptor(false).dwFlags);
}

TEST(BufferFormatTest, DescriptorColourBitsWrapButAttributeListDoesNot)
{
    BufferFormat wide(200, 0, 0, 100, 0, 0, false);
    EXPECT_EQ(44, wide.pixelFormatDescriptor(false).cColorBits);
    const std::vector<int> attributes = wide.pixelFormatAttributes(false, 1, false);
    EXPECT_EQ(0x2014, attributes[6]);
    EXPECT_EQ(300, attributes[7]);
}

TEST(BufferFormatTest, AttributeListForAWindowInExactPairOrder)
{
    const std::vector<int> expected = {
        0x2010, 1,      0x2003, 0x2027, 0x2013, 0x202B, 0x2014, 32, 0x2015, 8, 0x2017, 8, 0x2019, 8,
        0x201B, 8,      0x2022, 24,     0x2023, 8,      0x2011, 1,  0x2001, 1, 0,
    };
    EXPECT_EQ(expected, predefined(BufferFormat::eRGBA8_S8D24).pixelFormatAttributes(true, 1, false));
}

TEST(BufferFormatTest, AttributeListForAPixelBufferRefusesWindows)
{
    const std::vector<int> attributes = predefined(BufferFormat::eRGB8).pixelFormatAttributes(false, 0, true);
    const std::vector<int> tail(attributes.end() - 7, attributes.end());
    EXPECT_EQ((std::vector<int>{ 0x2011, 0, 0x202D, 1, 0x2001, 0, 0 }), tail);
}

TEST(BufferFormatTest, MultisamplePairsFollowTheFloatPair)
{
    const std::vector<int> oneSample = predefined(BufferFormat::eRGBA16F).pixelFormatAttributes(true, 1, false);
    ASSERT_EQ(27u, oneSample.size());
    EXPECT_EQ((std::vector<int>{ 0x2001, 1, 0x21A0, 1, 0 }), std::vector<int>(oneSample.end() - 5, oneSample.end()));
    const std::vector<int> attributes = predefined(BufferFormat::eR32F_S8D24).pixelFormatAttributes(true, 4, false);
    EXPECT_EQ((std::vector<int>{ 0x2001, 1, 0x21A0, 1, 0x2041, 1, 0x2042, 4, 0 }),
              std::vector<int>(attributes.end() - 9, attributes.end()));
    // Zero or one sample asks for no sample buffers.
    for (int samples : { 0, 1 })
    {
        const std::vector<int> plain = predefined(BufferFormat::eRGB8).pixelFormatAttributes(true, samples, false);
        EXPECT_EQ(25u, plain.size()) << samples << " samples";
    }
    EXPECT_EQ((std::vector<float>{ 0.0f, 0.0f }), BufferFormat::pixelFormatFloatAttributes());
}
