// Buffer's translation tables, which need no context.
#include "oru_ogl/ogl/Buffer.h"

#include "support/Raises.h"

#include <gtest/gtest.h>

using Oru::OGL::Buffer;
using OruTest::raises;

namespace
{

const char* const kTranslationText = "!\"Buffer type enums are not all properly translated.\"";

} // namespace

TEST(BufferTest, TypesTranslateBothWays)
{
    const unsigned int targets[] = { 0x88EC, 0x88EB, 0x8892, 0x8893 };
    for (int value = 0; value < 4; ++value)
    {
        const Buffer::Type type = static_cast<Buffer::Type>(value);
        EXPECT_EQ(targets[value], Buffer::Type2GL(type)) << value;
        EXPECT_EQ(type, Buffer::GL2Type(targets[value])) << value;
    }
    EXPECT_TRUE(raises([] { Buffer::Type2GL(static_cast<Buffer::Type>(4)); }, "ogl/Buffer.cpp", 0, kTranslationText));
    EXPECT_TRUE(raises([] { Buffer::GL2Type(0x88EA); }, "ogl/Buffer.cpp", 0, kTranslationText));
}

TEST(BufferTest, UsagesTranslateBothWaysAndShareTheTypeText)
{
    const unsigned int usages[] = { 0x88E0, 0x88E1, 0x88E2, 0x88E4, 0x88E5, 0x88E6, 0x88E8, 0x88E9, 0x88EA };
    for (int value = 0; value < 9; ++value)
    {
        const Buffer::Usage usage = static_cast<Buffer::Usage>(value);
        EXPECT_EQ(usages[value], Buffer::Usage2GL(usage)) << value;
        EXPECT_EQ(usage, Buffer::GL2Usage(usages[value])) << value;
    }
    // Between the stream and the static group, and between static and dynamic.
    EXPECT_TRUE(raises([] { Buffer::GL2Usage(0x88E3); }, "ogl/Buffer.cpp", 0, kTranslationText));
    EXPECT_TRUE(raises([] { Buffer::GL2Usage(0x88E7); }, "ogl/Buffer.cpp", 0, kTranslationText));
    EXPECT_TRUE(raises([] { Buffer::Usage2GL(static_cast<Buffer::Usage>(9)); }, "ogl/Buffer.cpp", 0, kTranslationText));
    EXPECT_TRUE(raises([] { Buffer::Usage2GL(static_cast<Buffer::Usage>(-1)); }, "ogl/Buffer.cpp", 0, kTranslationText));
}
