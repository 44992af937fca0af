// TokenName and boolToString: the fixed choices among aliases, the edges of the
// table, and the whole generated table against the catalogue it came from.
#include "oru_ogl/TokenName.h"

#include <gtest/gtest.h>

#include <cstring>
#include <iterator>
#include <set>
#include <string>
#include <utility>

namespace
{

struct Row
{
    unsigned int value;
    char const* name;
};

// The catalogue's rows, from the same data file as the library's table.
const Row kCatalogue[] = {
#define ORU_TOKEN(value, name) { value, #name },
#include "oru_ogl/TokenNames.inc"
#undef ORU_TOKEN
};

} // namespace

TEST(TokenNameTest, KeptNamesAmongAliases)
{
    const std::pair<unsigned int, char const*> kept[] = {
        { 0x0000, "GL_POINTS" }, { 0x0001, "GL_CURRENT_BIT" }, { 0x0002, "GL_POINT_BIT" },
        { 0x0003, "GL_LINE_STRIP" }, { 0x0004, "GL_LINE_BIT" }, { 0x0005, "GL_TRIANGLE_STRIP" },
        { 0x0006, "GL_TRIANGLE_FAN" }, { 0x0007, "GL_QUADS" }, { 0x0008, "GL_POLYGON_BIT" }, { 0x0009, "GL_POLYGON" },
        { 0x000A, "GL_LINES_ADJACENCY_EXT" }, { 0x000B, "GL_LINE_STRIP_ADJACENCY_EXT" },
        { 0x000C, "GL_TRIANGLES_ADJACENCY_EXT" }, { 0x000D, "GL_TRIANGLE_STRIP_ADJACENCY_EXT" },
        { 0x0010, "GL_POLYGON_STIPPLE_BIT" }, { 0x0020, "GL_PIXEL_MODE_BIT" }, { 0x0040, "GL_LIGHTING_BIT" },
        { 0x0080, "GL_FOG_BIT" }, { 0x0100, "GL_ACCUM" }, { 0x0200, "GL_NEVER" }, { 0x0400, "GL_STENCIL_BUFFER_BIT" },
        { 0x0500, "GL_INVALID_ENUM" }, { 0x0800, "GL_VIEWPORT_BIT" }, { 0x1000, "GL_TRANSFORM_BIT" },
        { 0x2000, "GL_ENABLE_BIT" }, { 0x4000, "GL_COLOR_BUFFER_BIT" }, { 0x8000, "GL_HINT_BIT" },
        { 0x10000, "GL_EVAL_BIT" }, { 0x20000000, "GL_MULTISAMPLE_BIT" }, { 0x40000000, "GL_TEXCOORD3_BIT_PGI" },
        { 0x80000000, "GL_TEXCOORD4_BIT_PGI" }, { 0xFFFFFFFF, "GL_CLIENT_ALL_ATTRIB_BITS" },
        { 0x84C0, "GL_TEXTURE0" }, { 0x8513, "GL_TEXTURE_CUBE_MAP" }, { 0x812F, "GL_CLAMP_TO_EDGE" },
        { 0x8370, "GL_MIRRORED_REPEAT" }, { 0x84F5, "GL_TEXTURE_RECTANGLE_ARB" }, { 0x8814, "GL_RGBA_FLOAT32_APPLE" },
        { 0x881A, "GL_RGBA_FLOAT16_APPLE" }, { 0x8892, "GL_ARRAY_BUFFER" }, { 0x8B30, "GL_FRAGMENT_SHADER" },
        { 0x8B31, "GL_VERTEX_SHADER" }, { 0x8B40, "GL_PROGRAM_OBJECT_ARB" }, { 0x8B48, "GL_SHADER_OBJECT_ARB" },
        { 0x8B4F, "GL_SHADER_TYPE" }, { 0x8CE0, "GL_COLOR_ATTACHMENT0_EXT" }, { 0x8D40, "GL_FRAMEBUFFER_EXT" },
        { 0x8D41, "GL_RENDERBUFFER_EXT" }, { 0x0DE1, "GL_TEXTURE_2D" }, { 0x0501, "GL_INVALID_VALUE" },
    };
    for (auto const& row : kept)
        EXPECT_STREQ(row.second, TokenName(row.first)) << std::hex << "0x" << row.first;
}

// One static text for every value without a name, and for each named value.
TEST(TokenNameTest, ValuesWithoutANameAreUnknown)
{
    for (unsigned int value : { 0x0F00u, 0xFFFFFFFEu, 0x0Eu, 0x7FFFFFFFu })
        EXPECT_STREQ("Unknown Token", TokenName(value)) << std::hex << value;
    EXPECT_EQ(TokenName(0x0DE1), TokenName(0x0DE1));
    EXPECT_EQ(TokenName(0x0F00), TokenName(0x0F01));
}

TEST(TokenNameTest, EveryCatalogueRowAndNothingBetweenThem)
{
    EXPECT_EQ(2061u, std::size(kCatalogue));
    std::set<unsigned int> values;
    std::set<std::string> names;
    for (Row const& row : kCatalogue)
    {
        values.insert(row.value);
        names.insert(row.name);
        ASSERT_STREQ(row.name, TokenName(row.value)) << std::hex << "0x" << row.value;
    }
    EXPECT_EQ(std::size(kCatalogue), values.size()) << "a value is listed twice";
    EXPECT_EQ(std::size(kCatalogue), names.size()) << "a name is listed twice";

    // Just past every entry, and just before, unless that is an entry too.
    for (unsigned int value : values)
    {
        for (unsigned int neighbour : { value + 1, value - 1 })
        {
            if (!values.count(neighbour))
            {
                ASSERT_STREQ("Unknown Token", TokenName(neighbour)) << std::hex << "0x" << neighbour;
            }
        }
    }
}

TEST(TokenNameTest, BooleansAreTrueUnlessZero)
{
    EXPECT_STREQ("GL_FALSE", boolToString(0));
    for (unsigned char value : { 1, 2, 7, 255 })
        EXPECT_STREQ("GL_TRUE", boolToString(value)) << int(value);
}
