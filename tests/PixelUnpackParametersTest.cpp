// PixelUnpackParameters as a value: defaults, accessors, alignment from bytes.
#include "oru_ogl/ogl/PixelUnpackParameters.h"

#include "support/Raises.h"

#include <gtest/gtest.h>

using Oru::OGL::PixelUnpackParameters;
using OruTest::raises;

TEST(PixelUnpackParametersTest, DefaultsDescribeTightlyPackedData)
{
    PixelUnpackParameters unpack;
    EXPECT_FALSE(unpack.swapBytes());
    EXPECT_FALSE(unpack.isFirstLSB());
    EXPECT_EQ(0u, unpack.rowLength());
    EXPECT_EQ(0u, unpack.imageHeight());
    EXPECT_EQ(0u, unpack.skipPixels());
    EXPECT_EQ(0u, unpack.skipRows());
    EXPECT_EQ(0u, unpack.skipImages());
    EXPECT_EQ(PixelUnpackParameters::ALIGN_1, unpack.alignment());
}

TEST(PixelUnpackParametersTest, EachFieldKeepsItsOwnValueAndCopiesCarryAll)
{
    PixelUnpackParameters unpack;
    unpack.enableSwapBytes();
    unpack.makeFirstLSB();
    unpack.setRowLength(11);
    unpack.setImageHeight(12);
    unpack.setSkipPixels(13);
    unpack.setSkipRows(14);
    unpack.setSkipImages(15);
    unpack.setAlignment(PixelUnpackParameters::ALIGN_4);

    PixelUnpackParameters copy(unpack);
    PixelUnpackParameters assigned;
    assigned = unpack;
    for (PixelUnpackParameters* p : { &unpack, &copy, &assigned })
    {
        EXPECT_TRUE(p->swapBytes());
        EXPECT_TRUE(p->isFirstLSB());
        EXPECT_EQ(11u, p->rowLength());
        EXPECT_EQ(12u, p->imageHeight());
        EXPECT_EQ(13u, p->skipPixels());
        EXPECT_EQ(14u, p->skipRows());
        EXPECT_EQ(15u, p->skipImages());
        EXPECT_EQ(PixelUnpackParameters::ALIGN_4, p->alignment());
    }

    unpack.disableSwapBytes();
    unpack.makeFirstMSB();
    EXPECT_FALSE(unpack.swapBytes());
    EXPECT_FALSE(unpack.isFirstLSB());
    EXPECT_TRUE(copy.swapBytes());
}

TEST(PixelUnpackParametersTest, AlignmentFromBytesTakesOnlyWhatGLTakes)
{
    PixelUnpackParameters unpack;
    unpack.setAlignment(8u);
    EXPECT_EQ(PixelUnpackParameters::ALIGN_8, unpack.alignment());
    unpack.setAlignment(2u);
    EXPECT_EQ(PixelUnpackParameters::ALIGN_2, unpack.alignment());
    unpack.setAlignment(4u);
    EXPECT_EQ(PixelUnpackParameters::ALIGN_4, unpack.alignment());

    const char* const text = "!\"Unsupported aligment in PixelUnpackParameters::setAlignment!\"";
    for (unsigned int bytes : { 0u, 3u, 16u })
    {
        EXPECT_TRUE(raises([&] { unpack.setAlignment(bytes); }, "ogl/PixelUnpackParameters.cpp", 175, text))
            << bytes;
        EXPECT_EQ(PixelUnpackParameters::ALIGN_4, unpack.alignment()) << "unchanged after " << bytes;
    }
    unpack.setAlignment(1u);
    EXPECT_EQ(PixelUnpackParameters::ALIGN_1, unpack.alignment());
}
