// Buffer's translation tables, which need no context.
#include "oru_ogl/ogl/Buffer.h"

#include "support/Raises.h"

#include <gtest/gtest.h>

using Oru::OGL::Buffer;
using OruTest::raises;

// Both tables share the type text; unknown usages between the stream and the
// static group and between static and dynamic are refused too.
TEST(BufferTest, TypesAndUsagesTranslateBothWays)
{
    const char* const text = "Buffer type enums are not all properly translated.";
    OruTest::expectTranslations<Buffer::Type>("ogl/Buffer.cpp", { 0x88EC, 0x88EB, 0x8892, 0x8893 }, Buffer::Type2GL,
                                              Buffer::GL2Type, 0x88EA, text);
    OruTest::expectTranslations<Buffer::Usage>("ogl/Buffer.cpp",
                                               { 0x88E0, 0x88E1, 0x88E2, 0x88E4, 0x88E5, 0x88E6, 0x88E8, 0x88E9, 0x88EA },
                                               Buffer::Usage2GL, Buffer::GL2Usage, 0x88E3, text);
    EXPECT_TRUE(raises([] { Buffer::GL2Usage(0x88E7); }, "ogl/Buffer.cpp", 0, "!\"" + std::string(text) + "\""));
}
