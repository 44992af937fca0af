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

#include <algorithm>
#include <cstdlib>
#include <cstring>
#include <functional>
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
using OruTest::expectRefusals;
using OruTest::glInteger;
using OruTest::raises;
using F = Oru::OGL::Texture::Format;

namespace
{

const char* const kTexture2 = "ogl/Texture2.cpp";
const GLenum kUnpackBinding = 0x88EF;
const GLenum kPackBinding = 0x88ED;

typedef std::vector<unsigned char> Bytes;

// What a transfer must leave as it found it: every pixel-store mode, the
// buffer and texture bindings and the active unit.
std::vector<GLint> callerState()
{
    std::vector<GLint> state;
    for (int mode = Texture::PACK_SWAP_BYTES; mode <= Texture::UNPACK_ALIGNMENT; ++mode)
        state.push_back(glInteger(Texture::PixelStoreMode2GL(static_cast<Texture::PixelStoreMode>(mode))));
    for (GLenum binding : { kUnpackBinding, kPackBinding, GLenum(GL_TEXTURE_BINDING_1D), GLenum(GL_TEXTURE_BINDING_2D),
                            GLenum(0x806A) /* 3D */, GLenum(0x84E0) /* active unit */ })
        state.push_back(glInteger(binding));
    return state;
}

Bytes pattern(std::size_t size, unsigned int seed)
{
    Bytes bytes(size);
    for (std::size_t i = 0; i < size; ++i)
        bytes[i] = static_cast<unsigned char>((i * 7 + seed * 13 + (i >> 3)) & 0xFF);
    return bytes;
}

// Level 0 of the bound texture, read back with rows of single bytes.
template <class T>
Bytes readBack(T const& texture, std::size_t size, Texture::Format format = F::RGBA,
               Texture::Type type = Texture::UNSIGNED_BYTE)
{
    Bytes back(size, 0xCD);
    texture.getPixelData(back.data(), 0, format, type, 1);
    return back;
}

// What a pack buffer holds from offset on.
Bytes contents(Buffer& buffer, long long offset, std::size_t size)
{
    Bytes bytes(size, 0xCD);
    buffer.bind();
    buffer.getSubData(offset, static_cast<long long>(size), bytes.data());
    Buffer::bindDefaultPackBuffer();
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
    if (!configuration.empty()) // powers-of-two, rectangles-only or npot-only
    {
        ASSERT_EQ(configuration == "npot-only", npot) << configuration;
        ASSERT_EQ(configuration == "rectangles-only", rect) << configuration;
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

TEST_F(TextureGLTest, EveryFormatReadsBackIdenticallyInEveryLayoutAndThroughPixelBuffers)
{
    if (!ExtensionManager::Instance()->supportsFloatingPointTextures())
        GTEST_SKIP() << "no float textures on this driver";
    const std::size_t W = 8, H = 4, offset = 24;
    for (FormatCase const& f : kFormats)
    {
        SCOPED_TRACE(TokenName(Texture::InternalFormat2GL(f.internalFormat)));
        Texture2D texture(f.internalFormat, W, H, false);
        TextureUnit::Unit(0)->bind(&texture);
        const Bytes image = texels(f, W * H, 1);
        const std::size_t row = W * f.bytesPerPixel;

        // Tightly packed, the default layout.
        texture.subImage(0, 0, 0, W, H, f.format, f.type, image.data(), PixelUnpackParameters());
        EXPECT_EQ(image, readBack(texture, image.size(), f.format, f.type));

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
        EXPECT_EQ(expected, readBack(texture, image.size(), f.format, f.type));

        // Rows read back padded to 8 bytes.
        const std::size_t paddedRow = (row + 7) / 8 * 8;
        Bytes padded(paddedRow * H, 0xCD);
        texture.getPixelData(padded.data(), 0, f.format, f.type, 8);
        for (std::size_t y = 0; y < H; ++y)
            EXPECT_EQ(0, std::memcmp(&padded[y * paddedRow], &expected[y * row], row)) << "row " << y;

        // Pixel buffers at an offset, in both directions.
        const Bytes other = texels(f, W * H, 3);
        Bytes staged(offset, 0xEE);
        staged.insert(staged.end(), other.begin(), other.end());
        Buffer unpackBuffer(static_cast<long long>(staged.size()), Buffer::eUnpack, Buffer::eStreamDraw,
                            staged.data());
        texture.subImage(0, 0, 0, W, H, f.format, f.type, &unpackBuffer, offset, PixelUnpackParameters());
        EXPECT_EQ(other, readBack(texture, other.size(), f.format, f.type)) << "uploaded from the buffer";

        Buffer packBuffer(static_cast<long long>(offset + other.size()), Buffer::eUnpack, Buffer::eStreamRead,
                          nullptr);
        ASSERT_TRUE(packBuffer.isPackBuffer());
        texture.getPixelData(&packBuffer, offset, 0, f.format, f.type, 1);
        EXPECT_EQ(other, contents(packBuffer, offset, other.size())) << "read back into the buffer";
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
    EXPECT_EQ(image, contents(buffer, 0, 16));
}

TEST_F(TextureGLTest, OneAndThreeDimensionalRoundTrips)
{
    Texture1D line(Texture::RGBA8, 16, false);
    TextureUnit::Unit(0)->bind(&line);
    const Bytes row = pattern(16 * 4, 4);
    line.subImage(0, 0, 16, F::RGBA, Texture::UNSIGNED_BYTE, row.data(), PixelUnpackParameters());
    EXPECT_EQ(row, readBack(line, row.size()));
    EXPECT_EQ(row.size(), line.pixelDataSize(0, F::RGBA, Texture::UNSIGNED_BYTE));

    Texture3D volume(Texture::RGB8, 4, 2, 2, false);
    TextureUnit::Unit(0)->bind(&volume);
    const Bytes voxels = pattern(4 * 2 * 2 * 3, 5);
    volume.subImage(0, 0, 0, 0, 4, 2, 2, F::RGB, Texture::UNSIGNED_BYTE, voxels.data(), PixelUnpackParameters());
    EXPECT_EQ(voxels, readBack(volume, voxels.size(), F::RGB));

    // A slice from a pixel buffer at an offset, read back into one.
    const Bytes slice = pattern(4 * 2 * 3, 6);
    Bytes staged(5, 0);
    staged.insert(staged.end(), slice.begin(), slice.end());
    Buffer unpackBuffer(static_cast<long long>(staged.size()), Buffer::eUnpack, Buffer::eStreamDraw, staged.data());
    volume.subImage(0, 0, 0, 1, 4, 2, 1, F::RGB, Texture::UNSIGNED_BYTE, &unpackBuffer, 5, PixelUnpackParameters());
    Buffer packBuffer(static_cast<long long>(voxels.size()), Buffer::ePack, Buffer::eStreamRead, nullptr);
    volume.getPixelData(&packBuffer, 0, 0, F::RGB, Texture::UNSIGNED_BYTE, 1);
    Bytes expected = voxels;
    std::copy(slice.begin(), slice.end(), expected.begin() + 24); // the second slice
    EXPECT_EQ(expected, contents(packBuffer, 0, voxels.size()));
}

TEST_F(TextureGLTest, VolumeFromDataUsesTheCallersUnpackStateNotTheParameters)
{
    const Bytes voxels = pattern(2 * 2 * 2 * 4, 7);
    PixelUnpackParameters ignored;
    ignored.setSkipPixels(1);
    ignored.setAlignment(8u);
    glPixelStorei(GL_UNPACK_ALIGNMENT, 1);
    Texture3D volume(Texture::RGBA8, 0, 2, 2, 2, F::RGBA, Texture::UNSIGNED_BYTE, voxels.data(), ignored);
    EXPECT_EQ(1, glInteger(GL_UNPACK_ALIGNMENT));
    EXPECT_EQ(0, glInteger(GL_UNPACK_SKIP_PIXELS));
    glPixelStorei(GL_UNPACK_ALIGNMENT, 4);
    TextureUnit::Unit(0)->bind(&volume);
    EXPECT_EQ(voxels, readBack(volume, voxels.size()));
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

    auto fromMemory = [&](PixelUnpackParameters const& p) {
        texture.subImage(0, 0, 0, 4, 4, F::RGBA, Texture::UNSIGNED_BYTE, image.data(), p);
    };
    auto fromBuffer = [&](PixelUnpackParameters const& p) {
        texture.subImage(0, 0, 0, 4, 4, F::RGBA, Texture::UNSIGNED_BYTE, &buffer, 0, p);
    };
    auto intoBuffer = [&](unsigned int alignment) {
        texture.getPixelData(&buffer, 0, 0, F::RGBA, Texture::UNSIGNED_BYTE, alignment);
    };

    // Runs the transfer, which must raise text from file at line when a file
    // is given, and expects the caller's state as it was just before.
    auto unchanged = [](char const* what, std::function<void()> transfer, char const* file = nullptr, int line = 0,
                        char const* text = nullptr) {
        const std::vector<GLint> before = callerState();
        if (file)
            EXPECT_TRUE(raises(transfer, file, line, text)) << what;
        else
            transfer();
        EXPECT_EQ(before, callerState()) << what;
    };

    TextureUnit::Unit(0)->bind(&texture);
    setCallerState(true);
    unchanged("upload from memory", [&] { fromMemory(layout); });
    unchanged("upload from a buffer", [&] { fromBuffer(layout); });
    unchanged("read-back into memory", [&] { texture.getPixelData(back.data(), 0, F::RGBA, Texture::UNSIGNED_BYTE, 1); });
    unchanged("read-back into a buffer", [&] { intoBuffer(2); });
    // Refused after the push: a bad alignment found by apply().
    const char* const apply = "ogl/PixelUnpackParameters.cpp";
    unchanged("refused upload from memory", [&] { fromMemory(broken); }, apply, 216, "Enum value not recognized");
    unchanged("refused upload from a buffer", [&] { fromBuffer(broken); }, apply, 216, "Enum value not recognized");

    // The buffer is a pack buffer now; bound as such it cannot become an
    // unpack buffer, and bound as an unpack buffer it cannot turn back.
    ASSERT_TRUE(buffer.isPackBuffer());
    buffer.bind();
    unchanged("bound pack buffer", [&] { fromBuffer(layout); }, "ogl/Buffer.cpp", 0,
              "Buffer::convertToUnpackBuffer cannot convert buffer target while bound");
    Buffer::bindDefaultPackBuffer();
    fromBuffer(layout);
    buffer.bind();
    unchanged("bound unpack buffer", [&] { intoBuffer(4); }, "ogl/Buffer.cpp", 0,
              "Buffer::convertToPackBuffer cannot convert buffer target while bound");
    Buffer::bindDefaultUnpackBuffer();

    // A caller's own unpack buffer stays bound across a buffer read-back.
    callersUnpack.bind();
    unchanged("the caller's unpack buffer", [&] {
        buffer.convertToPackBuffer();
        intoBuffer(4);
    });
    Buffer::bindDefaultUnpackBuffer();
    unchanged("bad read-back alignment", [&] { texture.getPixelData(back.data(), 0, F::RGBA, Texture::UNSIGNED_BYTE, 3); },
              "ogl/Texture.cpp", 0, "Invalid row byte alignment (must be of 1, 2, 4, or 8).");
    setCallerState(false);
}

// ---------------------------------------------------------------------------
// Refusals.
// ---------------------------------------------------------------------------

// The checks of a 2D texture in their order: each row of a table passes the
// checks above it; the sizes are checked against level 0 whatever the level,
// from memory, from a pixel buffer and from the framebuffer alike.
TEST_F(TextureGLTest, TwoDimensionalRefusalsInTheirOrder)
{
    Texture2D texture(Texture::RGBA8, 8, 4, true);
    Buffer pack(64, Buffer::ePack, Buffer::eStreamRead, nullptr);
    Buffer unpack(64, Buffer::eUnpack, Buffer::eStreamDraw, nullptr);
    const Bytes image = pattern(8 * 8 * 4, 1);
    Bytes back(8 * 4 * 4);
    auto readInto = [&](F format) { texture.getPixelData(back.data(), 0, format, Texture::UNSIGNED_BYTE, 4); };
    auto readIntoBuffer = [&] { texture.getPixelData(&pack, 0, 0, F::COLOR_INDEX, Texture::UNSIGNED_BYTE, 4); };
    auto fromMemory = [&](int level, std::size_t w, std::size_t h) {
        texture.subImage(level, 0, 0, w, h, F::RGBA, Texture::UNSIGNED_BYTE, image.data(), PixelUnpackParameters());
    };
    auto fromBuffer = [&](int level, std::size_t w, std::size_t h, std::size_t offset) {
        texture.subImage(level, 0, 0, w, h, F::RGBA, Texture::UNSIGNED_BYTE, &unpack, offset, PixelUnpackParameters());
    };
    expectRefusals(kTexture2, {
        { 106, "Texture must be enabled (bound & active)", [&] { texture.setWrap(Texture::REPEAT, Texture::REPEAT); } },
        { 144, "Texture must be bound", [&] { readInto(F::RGBA); } },
        { 167, "Texture must be bound", readIntoBuffer },
    });
    TextureUnit::Unit(0)->bind(&texture);
    texture.setWrap(Texture::REPEAT, Texture::MIRRORED_REPEAT);
    GLint wrap = 0;
    glGetTexParameteriv(GL_TEXTURE_2D, GL_TEXTURE_WRAP_T, &wrap);
    EXPECT_EQ(0x8370, wrap);
    expectRefusals(kTexture2, {
        { 145, "COLOR_INDEX not allowed here!", [&] { readInto(F::COLOR_INDEX); } },
        { 169, "COLOR_INDEX not allowed here!", readIntoBuffer },
    });

    // Lines from memory, from a buffer (at the offset 99, past its end: the
    // offset is checked after the sizes) and copied.
    const struct
    {
        int level;
        std::size_t width, height;
        int lines[3];
        char const* text;
        char const* copyText;
    } rows[] = {
        { -1, 0, 0, { 205, 241, 284 }, "error subimage width of zero supplied",
          "error copySubimage width of zero supplied" },
        { -1, 9, 0, { 206, 242, 285 }, "error subimage height of zero supplied",
          "error copySubimage height of zero supplied" },
        { -1, 9, 9, { 207, 243, 286 }, "a negative texture image mip-map level supplied", nullptr },
        { 0, 9, 9, { 208, 244, 287 }, "width(9) is greater than width of image (8) ", nullptr },
        { 0, 8, 5, { 209, 245, 288 }, "height(5) is greater than width of image (4) ", nullptr },
    };
    for (auto const& r : rows)
    {
        SCOPED_TRACE(r.text);
        EXPECT_TRUE(raises([&] { fromMemory(r.level, r.width, r.height); }, kTexture2, r.lines[0], r.text));
        EXPECT_TRUE(raises([&] { fromBuffer(r.level, r.width, r.height, 99); }, kTexture2, r.lines[1], r.text));
        EXPECT_TRUE(raises([&] { texture.copyTexSubImage(r.level, 0, 0, 0, 0, r.width, r.height); }, kTexture2,
                           r.lines[2], r.copyText ? r.copyText : r.text));
    }
    expectRefusals(kTexture2, {
        { 246, "offset(64) is greater than pixel buffer object size64", [&] { fromBuffer(0, 4, 4, 64); } },
        { 132, std::string("pixelDataSize: Unknown type ") + TokenName(Texture::UNSIGNED_INT),
          [&] { texture.pixelDataSize(0, F::RGBA, Texture::UNSIGNED_INT); } },
    });
    EXPECT_EQ(4096u, Texture2D(Texture::RGBA8, 16, 16, false).pixelDataSize(3, F::RGBA, Texture::FLOAT));

    const char* const mapped = "Pixel Buffer Object cannot be memory mapped during data transfer";
    pack.bind();
    pack.map(0x88B9 /* GL_WRITE_ONLY */);
    expectRefusals(kTexture2, { { 168, mapped, readIntoBuffer } });
    pack.unmap();
    Buffer::bindDefaultPackBuffer();
    unpack.bind();
    unpack.map(0x88B9);
    expectRefusals(kTexture2, { { 247, mapped, [&] { fromBuffer(0, 4, 4, 63); } } });
    unpack.unmap();
    Buffer::bindDefaultUnpackBuffer();
    fromBuffer(0, 1, 1, 60);

    // Level 2 is 2 x 1, but the checks look at level 0: GL refuses instead.
    fromMemory(2, 8, 4);
    EXPECT_EQ(static_cast<GLenum>(GL_INVALID_VALUE), glGetError());
}

TEST_F(TextureGLTest, OneAndThreeDimensionalRefusalsUseTheSameWords)
{
    Texture1D line(Texture::RGBA8, 4, false);
    Texture3D volume(Texture::RGBA8, 4, 4, 2, false);
    const Bytes data = pattern(4 * 4 * 4 * 4, 2);
    const PixelUnpackParameters unpack;
    auto upload1 = [&](int level, std::size_t w) {
        line.subImage(level, 0, w, F::RGBA, Texture::UNSIGNED_BYTE, data.data(), unpack);
    };
    expectRefusals("ogl/Texture1.cpp", {
        { 0, "error subimage width of zero supplied", [&] { upload1(-1, 0); } },
        { 0, "a negative texture image mip-map level supplied", [&] { upload1(-1, 1); } },
        { 0, "width(5) is greater than width of image (4) ", [&] { upload1(0, 5); } },
        { 0, "Texture must be bound", [&] { line.getPixelData(nullptr, 0, F::RGBA, Texture::UNSIGNED_BYTE, 4); } },
        { 0, "error copySubimage width of zero supplied", [&] { line.copyTexSubImage(0, 0, 0, 0, 0); } },
    });

    auto upload3 = [&](std::size_t w, std::size_t h, std::size_t d) {
        volume.subImage(0, 0, 0, 0, w, h, d, F::RGBA, Texture::UNSIGNED_BYTE, data.data(), unpack);
    };
    Buffer buffer(16, Buffer::eUnpack, Buffer::eStreamDraw, nullptr);
    expectRefusals("ogl/Texture3.cpp", {
        { 0, "error subimage depth of zero supplied", [&] { upload3(4, 4, 0); } },
        { 0, "height(5) is greater than width of image (4) ", [&] { upload3(4, 5, 3); } },
        { 0, "depth(3) is greater than depth of image (2) ", [&] { upload3(4, 4, 3); } },
        { 0, "offset(16) is greater than pixel buffer object size16",
          [&] { volume.subImage(0, 0, 0, 0, 1, 1, 1, F::RGBA, Texture::UNSIGNED_BYTE, &buffer, 16, unpack); } },
        { 0, "Texture must be bound", [&] { volume.getPixelData(nullptr, 0, F::RGBA, Texture::UNSIGNED_BYTE, 4); } },
    });
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
