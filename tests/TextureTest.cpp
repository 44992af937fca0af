// The texture enumerations and their translations, channel counts and sizes:
// everything of Texture that needs no context.
#include "oru_ogl/TokenName.h"
#include "oru_ogl/ogl/Texture.h"

#include "support/Raises.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

using Oru::OGL::Texture;
using OruTest::expectTranslations;
using OruTest::raises;

namespace
{

const char* const kSource = "ogl/Texture.cpp";

} // namespace

// Against the GL values that the registry gives.
TEST(TextureTest, EveryEnumerationTranslatesBothWays)
{
    const std::string tail = " enums are not all properly translated.";
    expectTranslations<Texture::Target>(kSource, { 0x0DE0, 0x0DE1, 0x806F, 0x84F5 }, Texture::Target2GL,
                                        Texture::GL2Target, 0x8513 /* GL_TEXTURE_CUBE_MAP */, "Target" + tail);
    expectTranslations<Texture::TargetBinding>(kSource, { 0x8068, 0x8069, 0x806A, 0x84F6 }, Texture::TargetBinding2GL,
                                               Texture::GL2TargetBinding, 0x0DE1, "Target" + tail);
    expectTranslations<Texture::InternalFormat>(
        kSource,
        { 0x1906, 0x803B, 0x803C, 0x803D, 0x803E, 0x1909, 0x803F, 0x8040, 0x8041, 0x8042,
          0x190A, 0x8043, 0x8044, 0x8045, 0x8046, 0x8047, 0x8048, 0x8049, 0x804A, 0x804B,
          0x804C, 0x804D, 0x2A10, 0x1907, 0x804F, 0x8050, 0x8051, 0x8052, 0x8053, 0x8054,
          0x1908, 0x8055, 0x8056, 0x8057, 0x8058, 0x8059, 0x805A, 0x805B, 0x8814, 0x8815,
          0x8816, 0x8817, 0x8818, 0x8819, 0x881A, 0x881B, 0x881C, 0x881D, 0x881E, 0x881F },
        Texture::InternalFormat2GL, Texture::GL2InternalFormat, 4 /* GL 1.0's component count */, "InternalFormat" + tail);
    EXPECT_EQ(Texture::RGBA8, Texture::GL2InternalFormat(0x8058));
    EXPECT_EQ(Texture::RGBA32F, Texture::GL2InternalFormat(0x8814));
    expectTranslations<Texture::Format>(
        kSource, { 0x1900, 0x1903, 0x1904, 0x1905, 0x1906, 0x1907, 0x80E0, 0x1908, 0x80E1, 0x1909, 0x190A },
        Texture::Format2GL, Texture::GL2Format, 0x1901 /* GL_STENCIL_INDEX */, "Format" + tail);
    expectTranslations<Texture::Type>(kSource,
                                      { 0x1401, 0x1400, 0x1A00, 0x1403, 0x1402, 0x1405, 0x1404, 0x1406, 0x8032, 0x8362,
                                        0x8363, 0x8364, 0x8033, 0x8365, 0x8034, 0x8366, 0x8035, 0x8367, 0x8036, 0x8368,
                                        0x140B },
                                      Texture::Type2GL, Texture::GL2Type, 0x140A /* GL_DOUBLE */, "Type" + tail);
    expectTranslations<Texture::Filter>(kSource, { 0x2600, 0x2601, 0x2700, 0x2701, 0x2702, 0x2703 }, Texture::Filter2GL,
                                        Texture::GL2Filter, 0x2704, "Filter" + tail);
    EXPECT_EQ(Texture::NEAREST_MIPMAP_NEAREST, Texture::GL2Filter(0x2700));
    expectTranslations<Texture::WrapMode>(kSource, { 0x2900, 0x812D, 0x812F, 0x8370, 0x2901 }, Texture::WrapMode2GL,
                                          Texture::GL2WrapMode, 0x812E, "WrapMode" + tail);
    expectTranslations<Texture::PixelStoreMode>(kSource,
                                                { 0x0D00, 0x0D01, 0x0D02, 0x806C, 0x0D04, 0x0D03, 0x806B, 0x0D05, 0x0CF0,
                                                  0x0CF1, 0x0CF2, 0x806E, 0x0CF4, 0x0CF3, 0x806D, 0x0CF5 },
                                                Texture::PixelStoreMode2GL, Texture::GL2PixelStoreMode, 0x0D06,
                                                "PixelStoreMode" + tail);
}

TEST(TextureTest, ChannelsOfInternalFormatsByGroupWithRGB4Refused)
{
    const std::size_t expected[50] = { 1, 1, 1, 1, 1, 1, 1, 1, 1, 1, // alpha, luminance
                                       2, 2, 2, 2, 2, 2, 2,          // luminance-alpha
                                       1, 1, 1, 1, 1,                // intensity
                                       3, 3, 0, 3, 3, 3, 3, 3,       // R3_G3_B2, RGB, RGB4 (refused), RGB5..16
                                       4, 4, 4, 4, 4, 4, 4, 4,       // RGBA .. RGBA16
                                       4, 3, 1, 1, 1, 2,             // 32F
                                       4, 3, 1, 1, 1, 2 };           // 16F
    for (int value = 0; value < 50; ++value)
    {
        if (value == Texture::RGB4)
            continue;
        EXPECT_EQ(expected[value], Texture::Channels(static_cast<Texture::InternalFormat>(value))) << value;
    }
    const char* const text = "InternalFormat enums are not all properly sized.";
    EXPECT_TRUE(raises([] { Texture::Channels(Texture::RGB4); }, kSource, 346, text));
    EXPECT_TRUE(raises([] { Texture::Channels(static_cast<Texture::InternalFormat>(50)); }, kSource, 346, text));
}

TEST(TextureTest, ChannelsOfPixelFormats)
{
    using F = Texture::Format;
    const std::pair<F, std::size_t> rows[] = {
        { F::COLOR_INDEX, 1 }, { F::RED, 1 }, { F::GREEN, 1 }, { F::BLUE, 1 }, { F::ALPHA, 1 }, { F::LUMINANCE, 1 },
        { F::LUMINANCE_ALPHA, 2 }, { F::RGB, 3 }, { F::BGR, 3 }, { F::RGBA, 4 }, { F::BGRA, 4 },
    };
    for (auto const& row : rows)
        EXPECT_EQ(row.second, Texture::Channels(row.first)) << static_cast<int>(row.first);
    EXPECT_TRUE(raises([] { Texture::Channels(static_cast<F>(11)); }, kSource, 381,
                       "InternalFormat enums are not all properly sized."));
}

TEST(TextureTest, SizeInBytesMultipliesChannelBytesChannelsAndTexels)
{
    EXPECT_EQ(128u, Texture::SizeInBytes(Texture::RGBA16F, 4, 4, 1));
    EXPECT_EQ(64u, Texture::SizeInBytes(Texture::LUMINANCE_ALPHA32F, 2, 2, 2));
    EXPECT_EQ(3u * 5 * 7, Texture::SizeInBytes(Texture::RGB8, 5, 7, 1));
    EXPECT_EQ(3u * 5 * 7, Texture::SizeInBytes(Texture::RGB, 5, 7, 1));
    EXPECT_EQ(2u * 3 * 2 * 2, Texture::SizeInBytes(Texture::LUMINANCE16, 3, 2, 2));
    EXPECT_EQ(16u * 8, Texture::SizeInBytes(Texture::RGBA32F, 8, 1, 1));
    EXPECT_EQ(4u, Texture::SizeInBytes(Texture::INTENSITY32F, 1, 1, 1));
    EXPECT_EQ(0u, Texture::SizeInBytes(Texture::RGBA8, 0, 4, 4));
    EXPECT_EQ(-1, Texture::CurrentUnit_DEPRECATED_1_0());
}

TEST(TextureTest, SizeInBytesRefusesFormatsWithoutWholeByteChannelsByTheirLayerValue)
{
    const int unsized[] = { 1, 3, 6, 8, 11, 12, 14, 15, 18, 20, 22, 25, 27, 28, 31, 32, 33, 35, 36 };
    for (int value : unsized)
    {
        const std::string text = std::string("Texture::SizeInBytes Unknown color channels for format ") +
                                 TokenName(static_cast<unsigned int>(value));
        EXPECT_TRUE(raises([&] { Texture::SizeInBytes(static_cast<Texture::InternalFormat>(value), 1, 1, 1); },
                           kSource, 491, text))
            << value;
    }
    const char* const text = "InternalFormat enums are not all properly sized.";
    EXPECT_TRUE(raises([] { Texture::SizeInBytes(Texture::RGB4, 1, 1, 1); }, kSource, 495, text));
    EXPECT_TRUE(raises([] { Texture::SizeInBytes(static_cast<Texture::InternalFormat>(50), 1, 1, 1); }, kSource, 495,
                       text));
}
