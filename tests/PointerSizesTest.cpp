// PointerSizes: the catalogue's description of pointer parameters and the byte
// counts computed from it for sample calls, against counts worked out by hand
// from GL's unpack and pack rules.
#include "oru_ogl/extensionator/PointerSizes.h"

#include <gtest/gtest.h>

#include <initializer_list>
#include <vector>

using Oru::OGL::PixelStore;
using Oru::OGL::PointerParameter;
using Oru::OGL::PointerSizes;
using Oru::OGL::kUnknownBytes;

namespace
{

const unsigned int kRgb = 0x1907, kRgba = 0x1908;
const unsigned int kUnsignedByte = 0x1401, kShort = 0x1402, kUnsignedShort = 0x1403, kFloat = 0x1406;
const unsigned int kUnsignedShort565 = 0x8363, k3Bytes = 0x1408;

// Bytes behind parameter `index` of `operation` for a call with these arguments.
std::size_t bytes(char const* operation, unsigned int index, std::initializer_list<long long> call,
                  PixelStore const& store = PixelStore())
{
    PointerParameter const* parameter = PointerSizes::find(operation, index);
    EXPECT_NE(parameter, nullptr) << operation << " " << index;
    if (!parameter)
        return 0;
    std::vector<long long> arguments(call);
    return PointerSizes::bytes(*parameter, arguments.data(), store);
}

PixelStore store(long long alignment, long long rowLength = 0, long long skipPixels = 0, long long skipRows = 0)
{
    PixelStore s;
    s.alignment = alignment;
    s.rowLength = rowLength;
    s.skipPixels = skipPixels;
    s.skipRows = skipRows;
    return s;
}

} // namespace

TEST(PointerSizesTest, DescribesTheParametersOfTheCatalogue)
{
    struct Expected
    {
        char const* operation;
        unsigned int index;
        PointerParameter::Direction direction;
        PointerParameter::When when;
        PointerParameter::Binding binding;
        PointerParameter::Rule rule;
    };
    using D = PointerParameter::Direction;
    using W = PointerParameter::When;
    using B = PointerParameter::Binding;
    using R = PointerParameter::Rule;
    const Expected expected[] = {
        { "cgmTexImage2D", 8, D::In, W::Call, B::PixelUnpackBuffer, R::Image2D },
        { "cgmReadPixels", 6, D::Out, W::Call, B::PixelPackBuffer, R::Image2D },
        { "cgmGetTexImage", 4, D::Out, W::Call, B::PixelPackBuffer, R::TexImage },
        { "cgmDrawElements", 3, D::In, W::Call, B::ElementArrayBuffer, R::Typed },
        { "cgmVertexPointer", 3, D::In, W::Draw, B::ArrayBuffer, R::VertexArray },
        { "cgmSelectBuffer", 1, D::Out, W::Later, B::None, R::Count },
        { "cgmFeedbackBuffer", 2, D::Out, W::Later, B::None, R::Count },
        { "cgmGetFloatv", 1, D::Out, W::Call, B::None, R::Values },
        { "cgmShaderSource", 2, D::In, W::Call, B::None, R::Strings },
        { "cgmCompressedTexImage2D", 7, D::In, W::Call, B::PixelUnpackBuffer, R::Count },
        { "cgmGetUniformfv", 2, D::Out, W::Call, B::None, R::Uniform },
        { "wcgmGetProcAddress", 0, D::In, W::Call, B::None, R::String },
        { "wcgmGetLayerPaletteEntries", 4, D::Out, W::Call, B::None, R::Count },
    };
    for (Expected const& e : expected)
    {
        PointerParameter const* p = PointerSizes::find(e.operation, e.index);
        ASSERT_NE(p, nullptr) << e.operation;
        EXPECT_EQ(p->direction, e.direction) << e.operation;
        EXPECT_EQ(p->when, e.when) << e.operation;
        EXPECT_EQ(p->binding, e.binding) << e.operation;
        EXPECT_EQ(p->rule, e.rule) << e.operation;
    }
    // Scalars have no row; every row names a parameter of a distinct pair.
    EXPECT_EQ(PointerSizes::find("cgmTexImage2D", 3), nullptr);
    EXPECT_EQ(PointerSizes::find("cgmEnable", 0), nullptr);
    EXPECT_EQ(PointerSizes::end() - PointerSizes::begin(), 906);
}

TEST(PointerSizesTest, ImagesFollowTheUnpackRules)
{
    // glTexImage2D(target, level, internalformat, width, height, border, format, type, pixels)
    const auto texImage2D = [](long long w, long long h, unsigned int format, unsigned int type, PixelStore const& s) {
        return bytes("cgmTexImage2D", 8, { 0x0DE1, 0, 0, w, h, 0, format, type }, s);
    };
    // 3x2 RGB bytes: rows of 9 bytes padded to 12; the last row ends at its 9th byte.
    EXPECT_EQ(texImage2D(3, 2, kRgb, kUnsignedByte, store(4)), 12u + 9u);
    EXPECT_EQ(texImage2D(3, 2, kRgb, kUnsignedByte, store(1)), 18u);
    // Row length 5: 15 bytes padded to 16, then the last row's 9.
    EXPECT_EQ(texImage2D(3, 2, kRgb, kUnsignedByte, store(4, 5)), 16u + 9u);
    // Skipping 1 pixel and 1 row under row length 5: 3 + 16 bytes before the first pixel.
    EXPECT_EQ(texImage2D(3, 2, kRgb, kUnsignedByte, store(4, 5, 1, 1)), 3u + 16u + 16u + 9u);
    // Shorts smaller than the alignment of 8: rows of 18 bytes padded to 24.
    EXPECT_EQ(texImage2D(3, 2, kRgb, kShort, store(8)), 24u + 18u);
    // Floats are at least as wide as the alignment: no padding, 48 bytes a row.
    EXPECT_EQ(texImage2D(3, 2, kRgba, kFloat, store(4)), 96u);
    // A packed type is one value per pixel: 6 bytes a row, padded to 8.
    EXPECT_EQ(texImage2D(3, 2, kRgb, kUnsignedShort565, store(4)), 8u + 6u);
    // An unknown format cannot be sized; an empty image has no bytes.
    EXPECT_EQ(texImage2D(3, 2, 0x1234, kUnsignedByte, store(4)), kUnknownBytes);
    EXPECT_EQ(texImage2D(0, 2, kRgb, kUnsignedByte, store(4)), 0u);

    // glTexImage3D: 2x2x2 RGBA bytes, image height 3, one image skipped:
    // rows of 8 bytes, images of 24; 24 skipped + 24 + 8 + 8.
    PixelStore s3 = store(4);
    s3.imageHeight = 3;
    s3.skipImages = 1;
    EXPECT_EQ(bytes("cgmTexImage3D", 9, { 0x806F, 0, 0, 2, 2, 2, 0, kRgba, kUnsignedByte }, s3), 64u);
    // glTexImage2D ignores both: 2 rows of 8.
    EXPECT_EQ(texImage2D(2, 2, kRgba, kUnsignedByte, s3), 16u);
    // glTexImage1D ignores skipped rows: 1 skipped pixel + 3.
    EXPECT_EQ(bytes("cgmTexImage1D", 7, { 0x0DE0, 0, 0, 3, 0, kRgb, kUnsignedByte }, store(4, 0, 1, 7)), 3u + 9u);
}

TEST(PointerSizesTest, BitmapsStipplesAndReadsCountBitsAndPackState)
{
    // glBitmap(width, height, ...): 10 bits need 2 bytes, rows padded to 4.
    EXPECT_EQ(bytes("cgmBitmap", 6, { 10, 3, 0, 0, 0, 0 }, store(4)), 4u + 4u + 2u);
    // Skipped pixels are bits: 3 still end in the second byte, 7 reach a third.
    EXPECT_EQ(bytes("cgmBitmap", 6, { 10, 3, 0, 0, 0, 0 }, store(4, 0, 3)), 4u + 4u + 2u);
    EXPECT_EQ(bytes("cgmBitmap", 6, { 10, 3, 0, 0, 0, 0 }, store(1, 0, 7)), 2u + 2u + 3u);
    // The polygon stipple is 32x32 bits, rows of 4 bytes; an alignment of 8 pads all but the last.
    EXPECT_EQ(bytes("cgmPolygonStipple", 0, {}, store(4)), 128u);
    EXPECT_EQ(bytes("cgmGetPolygonStipple", 0, {}, store(8)), 31u * 8u + 4u);
    // glReadPixels(x, y, width, height, format, type, pixels) under the pack state.
    EXPECT_EQ(bytes("cgmReadPixels", 6, { 0, 0, 3, 2, kRgb, kUnsignedByte }, store(4)), 21u);
}

TEST(PointerSizesTest, CountsTypesEnumsAndMaps)
{
    // Count expressions, in elements of the pointee: glUniform4fv(location, count, value).
    EXPECT_EQ(bytes("cgmUniform4fv", 2, { 0, 2 }), 2u * 4u * sizeof(float));
    EXPECT_EQ(bytes("cgmLoadMatrixf", 0, {}), 16u * sizeof(float));
    EXPECT_EQ(bytes("cgmGenTextures", 1, { 5 }), 5u * 4u);
    EXPECT_EQ(bytes("cgmGenTextures", 1, { -1 }), 0u);
    // glCallLists(n, type, lists) and glDrawElements(mode, count, type, indices): by type.
    EXPECT_EQ(bytes("cgmCallLists", 2, { 5, k3Bytes }), 15u);
    EXPECT_EQ(bytes("cgmDrawElements", 3, { 4, 6, kUnsignedShort }), 12u);
    EXPECT_EQ(bytes("cgmDrawElements", 3, { 4, 6, 0x9999 }), kUnknownBytes);
    // Values per pname; an unlisted one and one that depends on state stay unknown.
    EXPECT_EQ(bytes("cgmLightfv", 2, { 0x4000, 0x1204 }), 3u * sizeof(float));         // GL_SPOT_DIRECTION
    EXPECT_EQ(bytes("cgmLightfv", 2, { 0x4000, 0x1203 }), 4u * sizeof(float));         // GL_POSITION
    EXPECT_EQ(bytes("cgmGetDoublev", 1, { 0x0BA6 }), 16u * sizeof(double));             // GL_MODELVIEW_MATRIX
    EXPECT_EQ(bytes("cgmGetIntegerv", 1, { 0x0BA2 }), 4u * sizeof(int));                // GL_VIEWPORT
    EXPECT_EQ(bytes("cgmGetBooleanv", 1, { 0x0B44 }), 1u);                              // GL_CULL_FACE
    EXPECT_EQ(bytes("cgmGetIntegerv", 1, { 0x86A3 }), kUnknownBytes);          // GL_COMPRESSED_TEXTURE_FORMATS
    EXPECT_EQ(bytes("cgmGetIntegerv", 1, { 0x7777 }), kUnknownBytes);
    // A map target is 1 value as a glGet pname but 3 per control point of glMap1.
    EXPECT_EQ(PointerSizes::values(0x0D97), 1);                                        // GL_MAP1_VERTEX_3
    EXPECT_EQ(PointerSizes::mapValues(0x0D97), 3);
    // glMap1f(target, u1, u2, stride, order, points): order 4, stride 3 -> 3*3 + 3 floats.
    EXPECT_EQ(bytes("cgmMap1f", 5, { 0x0D97, 0, 0, 3, 4 }), 12u * sizeof(float));
    // glMap2f(target, u1, u2, ustride, uorder, v1, v2, vstride, vorder, points): 3 + 1*3 + 2*6.
    EXPECT_EQ(bytes("cgmMap2f", 9, { 0x0DB7, 0, 0, 3, 2, 0, 0, 6, 3 }), 18u * sizeof(float));
    // Sizes that need the data or the GL state are not guessed.
    EXPECT_EQ(bytes("wcgmGetProcAddress", 0, {}), kUnknownBytes);
    EXPECT_EQ(bytes("cgmGetTexImage", 4, { 0x0DE1, 0, kRgb, kUnsignedByte }), kUnknownBytes);
}
