// Textures against the driver: storage and mip chains, the size rule, uploads
// from memory and from pixel buffers read back byte for byte, the refusals
// with their lines, and the caller's pixel-store state and bindings left as
// they were by every transfer, including the refused ones.
#include "oru_ogl/TokenName.h"
#include "oru_ogl/extensionator/EntryPoints.h"
#include "oru_ogl/extensionator/ExtensionManager.h"
#include "oru_ogl/ogl/Buffer.h"
#include "oru_ogl/ogl/PixelUnpackParameters.h"
#include "oru_ogl/ogl/Texture1.h"
#include "oru_ogl/ogl/Texture2.h"
#include "oru_ogl/ogl/Texture3.h"
#include "oru_ogl/ogl/TextureState.h"
#include "oru_ogl/ogl/TextureUnit.h"

#include "support/LayerGLTest.h"
#include "support/Raises.h"

#include <cstdlib>
#include <cstring>
#include <string>
#include <vector>

using Oru::OGL::Buffer;
using Oru::OGL::ExtensionManager;
using Oru::OGL::PixelUnpackParameters;
using Oru::OGL::Texture;
using Oru::OGL::Texture1D;
using Oru::OGL::Texture2D;
using Oru::OGL::Texture3D;
using Oru::OGL::TextureRECT;
using Oru::OGL::TextureState;
using Oru::OGL::TextureUnit;
using OruTest::raises;
using F = Oru::OGL::Texture::Format;

namespace
{

const char* const kTexture2 = "ogl/Texture2.cpp";
const GLenum kUnpackBinding = 0x88EF;
const GLenum kPackBinding = 0x88ED;
const GLenum kTextureBinding3D = 0x806A;

typedef std::vector<unsigned char> Bytes;

GLint integer(GLenum name)
{
    GLint value = -1;
    glGetIntegerv(name, &value);
    return value;
}

// What a transfer must leave as it found it.
struct CallerState
{
    std::vector<GLint> values;

    static CallerState capture()
    {
        CallerState state;
        for (int mode = Texture::PACK_SWAP_BYTES; mode <= Texture::UNPACK_ALIGNMENT; ++mode)
            state.values.push_back(integer(Texture::PixelStoreMode2GL(static_cast<Texture::PixelStoreMode>(mode))));
        for (GLenum binding : { kUnpackBinding, kPackBinding, GLenum(GL_TEXTURE_BINDING_1D),
                                GLenum(GL_TEXTURE_BINDING_2D), kTextureBinding3D, GLenum(0x84E0) /* active unit */ })
            state.values.push_back(integer(binding));
        return state;
    }

    bool operator==(CallerState const& other) const { return values == other.values; }
};

std::ostream& operator<<(std::ostream& out, CallerState const& state)
{
    for (GLint v : state.values)
        out << v << ' ';
    return out;
}

Bytes pattern(std::size_t size, unsigned int seed)
{
    Bytes bytes(size);
    for (std::size_t i = 0; i < size; ++i)
        bytes[i] = static_cast<unsigned char>((i * 7 + seed * 13 + (i >> 3)) & 0xFF);
    return bytes;
}

class TextureGLTest : public OruTest::LayerGLTest
{
protected:
    void SetUp() override
    {
        LayerGLTest::SetUp();
        TextureState::setActiveTexture(0);
    }

    void TearDown() override
    {
        TextureState::setActiveTexture(0);
        glBindTexture(GL_TEXTURE_2D, 0);
        glBindTexture(GL_TEXTURE_1D, 0);
        glBindTexture(0x806F /* GL_TEXTURE_3D */, 0);
        Buffer::bindDefaultPackBuffer();
        Buffer::bindDefaultUnpackBuffer();
        LayerGLTest::TearDown();
    }

    // A caller's state that differs from GL's defaults on both sides, so that
    // a transfer that forgot to restore something shows.
    static void setCallerState(bool unusual)
    {
        glPixelStorei(GL_UNPACK_ALIGNMENT, unusual ? 2 : 4);
        glPixelStorei(GL_UNPACK_ROW_LENGTH, unusual ? 3 : 0);
        glPixelStorei(GL_UNPACK_SKIP_ROWS, unusual ? 1 : 0);
        glPixelStorei(GL_PACK_ALIGNMENT, unusual ? 8 : 4);
    }
};

} // namespace

// ---------------------------------------------------------------------------
// Storage.
// ---------------------------------------------------------------------------

// Width, height and depth of each level of the texture bound to target.
std::vector<std::vector<GLint>> levelSizes(GLenum target, GLint levels)
{
    std::vector<std::vector<GLint>> sizes(levels);
    for (GLint level = 0; level < levels; ++level)
        for (GLenum name : { GLenum(GL_TEXTURE_WIDTH), GLenum(GL_TEXTURE_HEIGHT), GLenum(0x8071) /* depth */ })
            sizes[level].push_back(-1), glGetTexLevelParameteriv(target, level, name, &sizes[level].back());
    return sizes;
}

TEST_F(TextureGLTest, MipChainsInOneTwoAndThreeDimensions)
{
    typedef std::vector<std::vector<GLint>> Sizes;
    Texture2D texture(Texture::RGBA8, 4, 1, true);
    TextureUnit::Unit(0)->bind(&texture);
    EXPECT_EQ((Sizes{ { 4, 1, 1 }, { 2, 1, 1 }, { 1, 1, 1 }, { 0, 0, 0 } }), levelSizes(GL_TEXTURE_2D, 4));
    EXPECT_EQ(0u, texture.width(3));
    EXPECT_EQ(1u, texture.width(2));

    Texture1D line(Texture::LUMINANCE8, 8, true);
    TextureUnit::Unit(0)->bind(&line);
    EXPECT_EQ((Sizes{ { 8, 1, 1 }, { 4, 1, 1 }, { 2, 1, 1 }, { 1, 1, 1 }, { 0, 0, 0 } }), levelSizes(GL_TEXTURE_1D, 5));
    Texture3D volume(Texture::RGBA8, 4, 2, 1, true);
    TextureUnit::Unit(0)->bind(&volume);
    EXPECT_EQ((Sizes{ { 4, 2, 1 }, { 2, 1, 1 }, { 1, 1, 1 }, { 0, 0, 0 } }), levelSizes(0x806F, 4));
}

TEST_F(TextureGLTest, StorageLeavesTheCallersTextureBoundAndSetsNearestClampToEdge)
{
    Texture2D previous(Texture::RGBA8, 2, 2, false);
    TextureUnit::Unit(0)->bind(&previous);
    Texture2D texture(Texture::RGB8, 8, 2, true);
    EXPECT_TRUE(previous.isBound());
    EXPECT_FALSE(texture.isBound());

    TextureUnit::Unit(0)->bind(&texture);
    GLint value = 0;
    glGetTexParameteriv(GL_TEXTURE_2D, GL_TEXTURE_MIN_FILTER, &value);
    EXPECT_EQ(GL_NEAREST, value);
    glGetTexParameteriv(GL_TEXTURE_2D, GL_TEXTURE_MAG_FILTER, &value);
    EXPECT_EQ(GL_NEAREST, value);
    glGetTexParameteriv(GL_TEXTURE_2D, GL_TEXTURE_WRAP_T, &value);
    EXPECT_EQ(0x812F, value);
    GLint internalFormat = 0;
    glGetTexLevelParameteriv(GL_TEXTURE_2D, 3, GL_TEXTURE_INTERNAL_FORMAT, &internalFormat);
    EXPECT_EQ(0x8051, internalFormat) << "the last level 1x1 has the format too";
    EXPECT_EQ(8u * 2 * 3, static_cast<unsigned>(texture.sizeInBytes()));
}

// The configurations hide the extensions; ORU_TEST_SIZE_RULE says which one
// this run is, so that a driver that ignored the override does not pass as a
// permissive one.
TEST_F(TextureGLTest, NonPowerOfTwoSizesFollowTheDriversAnswers)
{
    const bool npot = ExtensionManager::Instance()->supportsNonPowerOfTwoTextures();
    const bool rect = TextureRECT::isSupported();
    const char* rule = std::getenv("ORU_TEST_SIZE_RULE");
    const std::string configuration = rule ? rule : "";
    if (configuration == "powers-of-two")
    {
        ASSERT_FALSE(npot || rect) << "the driver still offers non-power-of-two or rectangle textures";
    }
    else if (configuration == "rectangles-only")
    {
        ASSERT_TRUE(!npot && rect);
    }
    else if (configuration == "npot-only")
    {
        ASSERT_TRUE(npot && !rect);
    }

    const char* const text2 = "Texture2::ctor hardware only supports power of two textures";
    if (npot || rect)
    {
        EXPECT_NO_THROW(Texture2D(Texture::RGBA8, 300, 200, false));
        // With rectangles alone the layer lets the size through and the
        // driver, which lacks non-power-of-two 2D textures, refuses it.
        if (!npot)
        {
            EXPECT_EQ(static_cast<GLenum>(GL_INVALID_VALUE), glGetError());
        }
    }
    else
    {
        EXPECT_TRUE(raises([] { Texture2D(Texture::RGBA8, 300, 200, false); }, kTexture2, 41, text2));
        EXPECT_TRUE(raises([] { Texture2D(Texture::RGBA8, 256, 200, false); }, kTexture2, 41, text2));
    }
    if (rect)
    {
        EXPECT_NO_THROW(TextureRECT(Texture::RGBA8, 300, 200));
    }
    if (npot)
    {
        EXPECT_NO_THROW(Texture1D(Texture::RGBA8, 300, false));
        EXPECT_NO_THROW(Texture3D(Texture::RGBA8, 6, 5, 3, false));
    }
    else
    {
        // Rectangles do not lift the rule for one and three dimensions.
        EXPECT_TRUE(raises([] { Texture1D(Texture::RGBA8, 300, false); }, "ogl/Texture1.cpp", 36, text2));
        EXPECT_TRUE(raises([] { Texture3D(Texture::RGBA8, 4, 4, 3, false); }, "ogl/Texture3.cpp", 41,
                           "Texture3::ctor hardware only supports power of two textures"));
        const unsigned char voxel[4 * 4 * 3 * 4] = {};
        EXPECT_TRUE(raises([&] { Texture3D(Texture::RGBA8, 0, 4, 4, 3, F::RGBA, Texture::UNSIGNED_BYTE, voxel,
                                           PixelUnpackParameters()); },
                           "ogl/Texture3.cpp", 128, "Texture3::ctor hardware only supports power of two textures"));
    }
    EXPECT_NO_THROW(Texture2D(Texture::RGBA8, 256, 128, false));
}

// ---------------------------------------------------------------------------
// Round trips.
// ---------------------------------------------------------------------------

namespace
{

struct FormatCase
{
    Texture::InternalFormat internalFormat;
    Texture::Format format;
    Texture::Type type;
    std::size_t bytesPerPixel;
};

const FormatCase kFormats[] = {
    { Texture::RGBA8, F::RGBA, Texture::UNSIGNED_BYTE, 4 },
    { Texture::RGB8, F::RGB, Texture::UNSIGNED_BYTE, 3 },
    { Texture::LUMINANCE8, F::LUMINANCE, Texture::UNSIGNED_BYTE, 1 },
    { Texture::RGBA32F, F::RGBA, Texture::FLOAT, 16 },
};

// Values that survive the format unchanged: bytes for the 8-bit formats,
// small integers as floats for RGBA32F.
Bytes texels(FormatCase const& f, std::size_t pixels, unsigned int seed)
{
    if (f.type != Texture::FLOAT)
        return pattern(pixels * f.bytesPerPixel, seed);
    std::vector<float> values(pixels * 4);
    for (std::size_t i = 0; i < values.size(); ++i)
        values[i] = static_cast<float>((i * 3 + seed) % 1000) * 0.25f - 17.0f;
    Bytes bytes(values.size() * sizeof(float));
    std::memcpy(bytes.data(), values.data(), bytes.size());
    return bytes;
}

} // namespace

TEST_F(TextureGLTest, SubImageFromMemoryReadsBackIdenticallyInEveryLayout)
{
    if (!ExtensionManager::Instance()->supportsFloatingPointTextures())
        GTEST_SKIP() << "no float textures on this driver";
    const std::size_t W = 8, H = 4;
    for (FormatCase const& f : kFormats)
    {
        SCOPED_TRACE(TokenName(Texture::InternalFormat2GL(f.internalFormat)));
        Texture2D texture(f.internalFormat, W, H, false);
        TextureUnit::Unit(0)->bind(&texture);
        const Bytes image = texels(f, W * H, 1);
        const std::size_t row = W * f.bytesPerPixel;

        // Tightly packed, the default layout.
        texture.subImage(0, 0, 0, W, H, f.format, f.type, image.data(), PixelUnpackParameters());
        Bytes back(image.size(), 0xCD);
        texture.getPixelData(back.data(), 0, f.format, f.type, 1);
        EXPECT_EQ(image, back);

        // A 5 x 3 window at (2, 1) of a larger source, 11 pixels a row padded
        // to 8 bytes, 2 pixels and 1 row skipped, written at (3, 1).
        const std::size_t sourceWidth = 11, sourceRows = 5;
        const std::size_t sourceRow = (sourceWidth * f.bytesPerPixel + 7) / 8 * 8;
        Bytes source = texels(f, sourceRow * sourceRows / f.bytesPerPixel + 1, 2);
        source.resize(sourceRow * sourceRows);
        PixelUnpackParameters window;
        window.setRowLength(sourceWidth);
        window.setSkipPixels(2);
        window.setSkipRows(1);
        window.setAlignment(8u);
        texture.subImage(0, 3, 1, 5, 3, f.format, f.type, source.data(), window);
        Bytes expected = image;
        for (std::size_t y = 0; y < 3; ++y)
            std::memcpy(&expected[(1 + y) * row + 3 * f.bytesPerPixel],
                        &source[(1 + y) * sourceRow + 2 * f.bytesPerPixel], 5 * f.bytesPerPixel);
        texture.getPixelData(back.data(), 0, f.format, f.type, 1);
        EXPECT_EQ(expected, back);

        // Rows read back padded to 8 bytes.
        const std::size_t paddedRow = (row + 7) / 8 * 8;
        Bytes padded(paddedRow * H, 0xCD);
        texture.getPixelData(padded.data(), 0, f.format, f.type, 8);
        for (std::size_t y = 0; y < H; ++y)
            EXPECT_EQ(0, std::memcmp(&padded[y * paddedRow], &expected[y * row], row)) << "row " << y;
    }
}

TEST_F(TextureGLTest, SwappedBytesUploadAsTheNativeValues)
{
    Texture2D texture(Texture::LUMINANCE16, 4, 2, false);
    TextureUnit::Unit(0)->bind(&texture);
    const unsigned short values[8] = { 0x0102, 0x0304, 0xA0B0, 0xFFFE, 0x1234, 0x8001, 0x0000, 0x7F7F };
    unsigned short swapped[8];
    for (int i = 0; i < 8; ++i)
        swapped[i] = static_cast<unsigned short>((values[i] >> 8) | (values[i] << 8));
    PixelUnpackParameters unpack;
    unpack.enableSwapBytes();
    texture.subImage(0, 0, 0, 4, 2, F::LUMINANCE, Texture::UNSIGNED_SHORT, swapped, unpack);
    unsigned short back[8] = {};
    texture.getPixelData(back, 0, F::LUMINANCE, Texture::UNSIGNED_SHORT, 2);
    EXPECT_EQ(0, std::memcmp(values, back, sizeof(values)));
}

TEST_F(TextureGLTest, PixelBuffersAtAnOffsetInBothDirections)
{
    if (!ExtensionManager::Instance()->supportsFloatingPointTextures())
        GTEST_SKIP() << "no float textures on this driver";
    const std::size_t W = 4, H = 4, offset = 24;
    for (FormatCase const& f : kFormats)
    {
        SCOPED_TRACE(TokenName(Texture::InternalFormat2GL(f.internalFormat)));
        Texture2D texture(f.internalFormat, W, H, false);
        TextureUnit::Unit(0)->bind(&texture);
        const Bytes image = texels(f, W * H, 3);
        Bytes staged(offset, 0xEE);
        staged.insert(staged.end(), image.begin(), image.end());
        Buffer unpackBuffer(static_cast<long long>(staged.size()), Buffer::eUnpack, Buffer::eStreamDraw,
                            staged.data());
        texture.subImage(0, 0, 0, W, H, f.format, f.type, &unpackBuffer, offset, PixelUnpackParameters());

        Bytes back(image.size(), 0xCD);
        texture.getPixelData(back.data(), 0, f.format, f.type, 1);
        EXPECT_EQ(image, back) << "uploaded from the buffer";

        Buffer packBuffer(static_cast<long long>(offset + image.size()), Buffer::eUnpack, Buffer::eStreamRead,
                          nullptr);
        ASSERT_TRUE(packBuffer.isPackBuffer());
        texture.getPixelData(&packBuffer, offset, 0, f.format, f.type, 1);
        packBuffer.bind();
        Bytes fromBuffer(image.size(), 0xCD);
        packBuffer.getSubData(offset, static_cast<long long>(fromBuffer.size()), fromBuffer.data());
        Buffer::bindDefaultPackBuffer();
        EXPECT_EQ(image, fromBuffer) << "read back into the buffer";
    }
}

TEST_F(TextureGLTest, BuffersOfAnotherRoleAreConvertedForTheTransfer)
{
    Texture2D texture(Texture::RGBA8, 2, 2, false);
    TextureUnit::Unit(0)->bind(&texture);
    const Bytes image = pattern(16, 9);
    Buffer buffer(16, Buffer::eUnpack, Buffer::eStreamRead, image.data()); // a pack buffer
    ASSERT_TRUE(buffer.isPackBuffer());
    texture.subImage(0, 0, 0, 2, 2, F::RGBA, Texture::UNSIGNED_BYTE, &buffer, 0, PixelUnpackParameters());
    EXPECT_TRUE(buffer.isUnpackBuffer());
    Buffer::bindDefaultUnpackBuffer();
    texture.getPixelData(&buffer, 0, 0, F::RGBA, Texture::UNSIGNED_BYTE, 4);
    EXPECT_TRUE(buffer.isPackBuffer());
    Bytes back(16);
    buffer.bind();
    buffer.getSubData(0, 16, back.data());
    Buffer::bindDefaultPackBuffer();
    EXPECT_EQ(image, back);
}

TEST_F(TextureGLTest, OneAndThreeDimensionalRoundTrips)
{
    Texture1D line(Texture::RGBA8, 16, false);
    TextureUnit::Unit(0)->bind(&line);
    const Bytes row = pattern(16 * 4, 4);
    line.subImage(0, 0, 16, F::RGBA, Texture::UNSIGNED_BYTE, row.data(), PixelUnpackParameters());
    Bytes back(row.size());
    line.getPixelData(back.data(), 0, F::RGBA, Texture::UNSIGNED_BYTE, 1);
    EXPECT_EQ(row, back);
    EXPECT_EQ(row.size(), line.pixelDataSize(0, F::RGBA, Texture::UNSIGNED_BYTE));

    Texture3D volume(Texture::RGB8, 4, 2, 2, false);
    TextureUnit::Unit(0)->bind(&volume);
    const Bytes voxels = pattern(4 * 2 * 2 * 3, 5);
    volume.subImage(0, 0, 0, 0, 4, 2, 2, F::RGB, Texture::UNSIGNED_BYTE, voxels.data(), PixelUnpackParameters());
    Bytes backVoxels(voxels.size());
    volume.getPixelData(backVoxels.data(), 0, F::RGB, Texture::UNSIGNED_BYTE, 1);
    EXPECT_EQ(voxels, backVoxels);

    // A slice from a pixel buffer at an offset, read back into one.
    const Bytes slice = pattern(4 * 2 * 3, 6);
    Bytes staged(5, 0);
    staged.insert(staged.end(), slice.begin(), slice.end());
    Buffer unpackBuffer(static_cast<long long>(staged.size()), Buffer::eUnpack, Buffer::eStreamDraw, staged.data());
    volume.subImage(0, 0, 0, 1, 4, 2, 1, F::RGB, Texture::UNSIGNED_BYTE, &unpackBuffer, 5, PixelUnpackParameters());
    Buffer packBuffer(static_cast<long long>(voxels.size()), Buffer::ePack, Buffer::eStreamRead, nullptr);
    volume.getPixelData(&packBuffer, 0, 0, F::RGB, Texture::UNSIGNED_BYTE, 1);
    packBuffer.bind();
    packBuffer.getSubData(0, static_cast<long long>(backVoxels.size()), backVoxels.data());
    Buffer::bindDefaultPackBuffer();
    Bytes expected(voxels.begin(), voxels.begin() + 24);
    expected.insert(expected.end(), slice.begin(), slice.end());
    EXPECT_EQ(expected, backVoxels);
}

TEST_F(TextureGLTest, VolumeFromDataUsesTheCallersUnpackStateNotTheParameters)
{
    const Bytes voxels = pattern(2 * 2 * 2 * 4, 7);
    PixelUnpackParameters ignored;
    ignored.setSkipPixels(1);
    ignored.setAlignment(8u);
    glPixelStorei(GL_UNPACK_ALIGNMENT, 1);
    Texture3D volume(Texture::RGBA8, 0, 2, 2, 2, F::RGBA, Texture::UNSIGNED_BYTE, voxels.data(), ignored);
    EXPECT_EQ(1, integer(GL_UNPACK_ALIGNMENT));
    EXPECT_EQ(0, integer(GL_UNPACK_SKIP_PIXELS));
    glPixelStorei(GL_UNPACK_ALIGNMENT, 4);
    TextureUnit::Unit(0)->bind(&volume);
    Bytes back(voxels.size());
    volume.getPixelData(back.data(), 0, F::RGBA, Texture::UNSIGNED_BYTE, 1);
    EXPECT_EQ(voxels, back);
}

// ---------------------------------------------------------------------------
// The caller's state.
// ---------------------------------------------------------------------------

TEST_F(TextureGLTest, TransfersLeaveTheCallersStateAsTheyFoundIt)
{
    Texture2D texture(Texture::RGBA8, 4, 4, false);
    Buffer buffer(64, Buffer::eUnpack, Buffer::eStreamDraw, nullptr);
    Buffer callersUnpack(4, Buffer::eUnpack, Buffer::eStreamDraw, nullptr);
    const Bytes image = pattern(64, 8);
    Bytes back(64);
    PixelUnpackParameters layout;
    layout.setRowLength(4);
    layout.setSkipRows(0);
    layout.setAlignment(2u);
    PixelUnpackParameters broken;
    broken.setRowLength(9);
    broken.setAlignment(static_cast<PixelUnpackParameters::teAlignment>(4));

    TextureUnit::Unit(0)->bind(&texture);
    setCallerState(true);
    const CallerState before = CallerState::capture();

    texture.subImage(0, 0, 0, 4, 4, F::RGBA, Texture::UNSIGNED_BYTE, image.data(), layout);
    EXPECT_EQ(before, CallerState::capture()) << "upload from memory";
    texture.subImage(0, 0, 0, 4, 4, F::RGBA, Texture::UNSIGNED_BYTE, &buffer, 0, layout);
    EXPECT_EQ(before, CallerState::capture()) << "upload from a buffer";
    texture.getPixelData(back.data(), 0, F::RGBA, Texture::UNSIGNED_BYTE, 1);
    EXPECT_EQ(before, CallerState::capture()) << "read-back into memory";
    texture.getPixelData(&buffer, 0, 0, F::RGBA, Texture::UNSIGNED_BYTE, 2);
    EXPECT_EQ(before, CallerState::capture()) << "read-back into a buffer";

    // Refusals after the push: a bad alignment found by apply(), and buffers
    // that cannot change role while bound.
    const std::string applyText = "Enum value not recognized";
    EXPECT_TRUE(raises([&] { texture.subImage(0, 0, 0, 4, 4, F::RGBA, Texture::UNSIGNED_BYTE, image.data(), broken); },
                       "ogl/PixelUnpackParameters.cpp", 216, applyText));
    EXPECT_EQ(before, CallerState::capture()) << "refused upload from memory";
    EXPECT_TRUE(raises([&] { texture.subImage(0, 0, 0, 4, 4, F::RGBA, Texture::UNSIGNED_BYTE, &buffer, 0, broken); },
                       "ogl/PixelUnpackParameters.cpp", 216, applyText));
    EXPECT_EQ(before, CallerState::capture()) << "refused upload from a buffer";

    // The buffer is a pack buffer now; bound as such it cannot become an
    // unpack buffer, and bound as an unpack buffer it cannot turn back.
    ASSERT_TRUE(buffer.isPackBuffer());
    buffer.bind();
    const CallerState packBound = CallerState::capture();
    EXPECT_TRUE(raises([&] { texture.subImage(0, 0, 0, 4, 4, F::RGBA, Texture::UNSIGNED_BYTE, &buffer, 0, layout); },
                       "ogl/Buffer.cpp", 0, "Buffer::convertToUnpackBuffer cannot convert buffer target while bound"));
    EXPECT_EQ(packBound, CallerState::capture());
    Buffer::bindDefaultPackBuffer();
    texture.subImage(0, 0, 0, 4, 4, F::RGBA, Texture::UNSIGNED_BYTE, &buffer, 0, layout);
    buffer.bind();
    const CallerState unpackBound = CallerState::capture();
    EXPECT_TRUE(raises([&] { texture.getPixelData(&buffer, 0, 0, F::RGBA, Texture::UNSIGNED_BYTE, 4); },
                       "ogl/Buffer.cpp", 0, "Buffer::convertToPackBuffer cannot convert buffer target while bound"));
    EXPECT_EQ(unpackBound, CallerState::capture());
    Buffer::bindDefaultUnpackBuffer();

    // A caller's own unpack buffer stays bound across a buffer upload.
    callersUnpack.bind();
    Buffer::bindDefaultPackBuffer();
    const CallerState withCallersBuffer = CallerState::capture();
    buffer.convertToPackBuffer();
    texture.getPixelData(&buffer, 0, 0, F::RGBA, Texture::UNSIGNED_BYTE, 4);
    EXPECT_EQ(withCallersBuffer, CallerState::capture());
    Buffer::bindDefaultUnpackBuffer();

    // Bad read-back alignments change nothing either.
    const CallerState plain = CallerState::capture();
    EXPECT_TRUE(raises([&] { texture.getPixelData(back.data(), 0, F::RGBA, Texture::UNSIGNED_BYTE, 3); },
                       "ogl/Texture.cpp", 0, "Invalid row byte alignment (must be of 1, 2, 4, or 8)."));
    EXPECT_EQ(plain, CallerState::capture());
    setCallerState(false);
}

// ---------------------------------------------------------------------------
// Refusals.
// ---------------------------------------------------------------------------

TEST_F(TextureGLTest, ReadBackRefusesAnUnboundTextureAMappedBufferAndColorIndex)
{
    Texture2D texture(Texture::RGBA8, 4, 4, false);
    Buffer buffer(64, Buffer::ePack, Buffer::eStreamRead, nullptr);
    Bytes back(64);
    EXPECT_TRUE(raises([&] { texture.getPixelData(back.data(), 0, F::RGBA, Texture::UNSIGNED_BYTE, 4); }, kTexture2,
                       144, "Texture must be bound"));
    EXPECT_TRUE(raises([&] { texture.getPixelData(&buffer, 0, 0, F::COLOR_INDEX, Texture::UNSIGNED_BYTE, 4); },
                       kTexture2, 167, "Texture must be bound"));
    TextureUnit::Unit(0)->bind(&texture);
    EXPECT_TRUE(raises([&] { texture.getPixelData(back.data(), 0, F::COLOR_INDEX, Texture::UNSIGNED_BYTE, 4); },
                       kTexture2, 145, "COLOR_INDEX not allowed here!"));
    EXPECT_TRUE(raises([&] { texture.getPixelData(&buffer, 0, 0, F::COLOR_INDEX, Texture::UNSIGNED_BYTE, 4); },
                       kTexture2, 169, "COLOR_INDEX not allowed here!"));
    buffer.bind();
    buffer.map(0x88B9 /* GL_WRITE_ONLY */);
    EXPECT_TRUE(raises([&] { texture.getPixelData(&buffer, 0, 0, F::COLOR_INDEX, Texture::UNSIGNED_BYTE, 4); },
                       kTexture2, 168, "Pixel Buffer Object cannot be memory mapped during data transfer"));
    buffer.unmap();
}

TEST_F(TextureGLTest, SubImageChecksInOrderAgainstTheLevel0Size)
{
    Texture2D texture(Texture::RGBA8, 8, 4, true);
    TextureUnit::Unit(0)->bind(&texture);
    const Bytes image = pattern(8 * 8 * 4, 1);
    const PixelUnpackParameters unpack;
    auto upload = [&](int level, std::size_t w, std::size_t h) {
        texture.subImage(level, 0, 0, w, h, F::RGBA, Texture::UNSIGNED_BYTE, image.data(), unpack);
    };
    EXPECT_TRUE(raises([&] { upload(-1, 0, 0); }, kTexture2, 205, "error subimage width of zero supplied"));
    EXPECT_TRUE(raises([&] { upload(-1, 9, 0); }, kTexture2, 206, "error subimage height of zero supplied"));
    EXPECT_TRUE(raises([&] { upload(-1, 9, 9); }, kTexture2, 207, "a negative texture image mip-map level supplied"));
    EXPECT_TRUE(raises([&] { upload(0, 9, 9); }, kTexture2, 208, "width(9) is greater than width of image (8) "));
    EXPECT_TRUE(raises([&] { upload(0, 8, 5); }, kTexture2, 209, "height(5) is greater than width of image (4) "));

    // Level 2 is 2 x 1, but the checks look at level 0: GL refuses instead.
    upload(2, 8, 4);
    EXPECT_EQ(static_cast<GLenum>(GL_INVALID_VALUE), glGetError());
}

TEST_F(TextureGLTest, BufferSubImageChecksOffsetAndMappingAfterTheSizes)
{
    Texture2D texture(Texture::RGBA8, 4, 4, false);
    TextureUnit::Unit(0)->bind(&texture);
    Buffer buffer(64, Buffer::eUnpack, Buffer::eStreamDraw, nullptr);
    const PixelUnpackParameters unpack;
    auto upload = [&](int level, std::size_t w, std::size_t h, std::size_t offset) {
        texture.subImage(level, 0, 0, w, h, F::RGBA, Texture::UNSIGNED_BYTE, &buffer, offset, unpack);
    };
    EXPECT_TRUE(raises([&] { upload(-1, 0, 0, 99); }, kTexture2, 241, "error subimage width of zero supplied"));
    EXPECT_TRUE(raises([&] { upload(-1, 1, 0, 99); }, kTexture2, 242, "error subimage height of zero supplied"));
    EXPECT_TRUE(raises([&] { upload(-1, 1, 1, 99); }, kTexture2, 243, "a negative texture image mip-map level supplied"));
    EXPECT_TRUE(raises([&] { upload(0, 5, 1, 99); }, kTexture2, 244, "width(5) is greater than width of image (4) "));
    EXPECT_TRUE(raises([&] { upload(0, 4, 6, 99); }, kTexture2, 245, "height(6) is greater than width of image (4) "));
    EXPECT_TRUE(raises([&] { upload(0, 4, 4, 64); }, kTexture2, 246, "offset(64) is greater than pixel buffer object size64"));
    buffer.bind();
    buffer.map(0x88B9);
    EXPECT_TRUE(raises([&] { upload(0, 4, 4, 63); }, kTexture2, 247,
                       "Pixel Buffer Object cannot be memory mapped during data transfer"));
    buffer.unmap();
    Buffer::bindDefaultUnpackBuffer();
    upload(0, 1, 1, 60);
}

TEST_F(TextureGLTest, CopyChecksWrapAndSizeRefusals)
{
    Texture2D texture(Texture::RGBA8, 4, 4, false);
    EXPECT_TRUE(raises([&] { texture.setWrap(Texture::REPEAT, Texture::REPEAT); }, kTexture2, 106,
                       "Texture must be enabled (bound & active)"));
    TextureUnit::Unit(0)->bind(&texture);
    texture.setWrap(Texture::REPEAT, Texture::MIRRORED_REPEAT);
    GLint wrap = 0;
    glGetTexParameteriv(GL_TEXTURE_2D, GL_TEXTURE_WRAP_T, &wrap);
    EXPECT_EQ(0x8370, wrap);

    EXPECT_TRUE(raises([&] { texture.copyTexSubImage(-1, 0, 0, 0, 0, 0, 0); }, kTexture2, 284,
                       "error copySubimage width of zero supplied"));
    EXPECT_TRUE(raises([&] { texture.copyTexSubImage(-1, 0, 0, 0, 0, 1, 0); }, kTexture2, 285,
                       "error copySubimage height of zero supplied"));
    EXPECT_TRUE(raises([&] { texture.copyTexSubImage(-1, 0, 0, 0, 0, 1, 1); }, kTexture2, 286,
                       "a negative texture image mip-map level supplied"));
    EXPECT_TRUE(raises([&] { texture.copyTexSubImage(0, 0, 0, 0, 0, 5, 1); }, kTexture2, 287,
                       "width(5) is greater than width of image (4) "));
    EXPECT_TRUE(raises([&] { texture.copyTexSubImage(0, 0, 0, 0, 0, 4, 5); }, kTexture2, 288,
                       "height(5) is greater than width of image (4) "));

    EXPECT_EQ(4096u, Texture2D(Texture::RGBA8, 16, 16, false).pixelDataSize(3, F::RGBA, Texture::FLOAT));
    EXPECT_TRUE(raises([&] { texture.pixelDataSize(0, F::RGBA, Texture::UNSIGNED_INT); }, kTexture2, 132,
                       std::string("pixelDataSize: Unknown type ") + TokenName(Texture::UNSIGNED_INT)));
}

TEST_F(TextureGLTest, OneAndThreeDimensionalRefusalsUseTheSameWords)
{
    Texture1D line(Texture::RGBA8, 4, false);
    Texture3D volume(Texture::RGBA8, 4, 4, 2, false);
    const Bytes data = pattern(4 * 4 * 4 * 4, 2);
    const PixelUnpackParameters unpack;
    const char* const t1 = "ogl/Texture1.cpp";
    const char* const t3 = "ogl/Texture3.cpp";
    EXPECT_TRUE(raises([&] { line.subImage(-1, 0, 0, F::RGBA, Texture::UNSIGNED_BYTE, data.data(), unpack); }, t1, 0,
                       "error subimage width of zero supplied"));
    EXPECT_TRUE(raises([&] { line.subImage(-1, 0, 1, F::RGBA, Texture::UNSIGNED_BYTE, data.data(), unpack); }, t1, 0,
                       "a negative texture image mip-map level supplied"));
    EXPECT_TRUE(raises([&] { line.subImage(0, 0, 5, F::RGBA, Texture::UNSIGNED_BYTE, data.data(), unpack); }, t1, 0,
                       "width(5) is greater than width of image (4) "));
    EXPECT_TRUE(raises([&] { line.getPixelData(nullptr, 0, F::RGBA, Texture::UNSIGNED_BYTE, 4); }, t1, 0,
                       "Texture must be bound"));
    EXPECT_TRUE(raises([&] { line.copyTexSubImage(0, 0, 0, 0, 0); }, t1, 0, "error copySubimage width of zero supplied"));

    auto upload3 = [&](std::size_t w, std::size_t h, std::size_t d) {
        volume.subImage(0, 0, 0, 0, w, h, d, F::RGBA, Texture::UNSIGNED_BYTE, data.data(), unpack);
    };
    EXPECT_TRUE(raises([&] { upload3(4, 4, 0); }, t3, 0, "error subimage depth of zero supplied"));
    EXPECT_TRUE(raises([&] { upload3(4, 5, 3); }, t3, 0, "height(5) is greater than width of image (4) "));
    EXPECT_TRUE(raises([&] { upload3(4, 4, 3); }, t3, 0, "depth(3) is greater than depth of image (2) "));
    Buffer buffer(16, Buffer::eUnpack, Buffer::eStreamDraw, nullptr);
    EXPECT_TRUE(raises([&] { volume.subImage(0, 0, 0, 0, 1, 1, 1, F::RGBA, Texture::UNSIGNED_BYTE, &buffer, 16,
                                             unpack); },
                       t3, 0, "offset(16) is greater than pixel buffer object size16"));
    EXPECT_TRUE(raises([&] { volume.getPixelData(nullptr, 0, F::RGBA, Texture::UNSIGNED_BYTE, 4); },
                       t3, 0, "Texture must be bound"));
    EXPECT_EQ(4u * 4 * 2 * 4, volume.pixelDataSize(0, F::RGBA, Texture::UNSIGNED_BYTE));
}

// ---------------------------------------------------------------------------
// The fixed-function helpers.
// ---------------------------------------------------------------------------

TEST_F(TextureGLTest, FixedFunctionHelpersSwitchUnitsAndRestoreWhereTheyOnlyLook)
{
    Texture2D texture(Texture::RGBA8, 2, 2, false);
    texture.enable_DEPRECATED_1_0(1);
    EXPECT_EQ(1, TextureState::activeTexture()) << "enable stays on the unit";
    EXPECT_TRUE(texture.isBound());
    EXPECT_TRUE(glIsEnabled(GL_TEXTURE_2D));

    TextureState::setActiveTexture(0);
    EXPECT_TRUE(texture.isEnabled_DEPRECATED_1_0(1));
    EXPECT_FALSE(texture.isEnabled_DEPRECATED_1_0(Texture::CurrentUnit_DEPRECATED_1_0()));
    EXPECT_EQ(0, TextureState::activeTexture());

    texture.disable_DEPRECATED_1_0(1);
    EXPECT_EQ(0, TextureState::activeTexture());
    EXPECT_FALSE(texture.isEnabled_DEPRECATED_1_0(1));
    EXPECT_TRUE(raises([&] { texture.disable_DEPRECATED_1_0(1); }, "ogl/Texture.cpp", 218,
                       "Texture target is not enabled..can't disable texture"));
    EXPECT_EQ(0, TextureState::activeTexture()) << "restored on the refusal too";
    EXPECT_TRUE(raises([&] { texture.unbind_DEPRECATED_1_0(1); }, "ogl/Texture.cpp", 199, "Texture not bound"));
    EXPECT_EQ(0, TextureState::activeTexture());

    texture.bind_DEPRECATED_1_0(1);
    EXPECT_EQ(1, TextureState::activeTexture());
    TextureState::setActiveTexture(0);
    texture.unbind_DEPRECATED_1_0(1);
    EXPECT_EQ(0, TextureState::activeTexture());
    TextureState::setActiveTexture(1);
    EXPECT_FALSE(texture.isBound());
    glDisable(GL_TEXTURE_2D);
}
