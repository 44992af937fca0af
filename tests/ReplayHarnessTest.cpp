// The replay harness's pieces that need no GL: recorded floats and the PNG
// files that hold the frames compared by the end-to-end test.
#include "oru_replay/Image.h"
#include "oru_replay/Replay.h"

#include <gtest/gtest.h>

#include <cstdio>
#include <fstream>
#include <iterator>
#include <string>
#include <vector>

using Oru::Replay::Image;

namespace
{

Image pattern(unsigned int width, unsigned int height)
{
    Image image;
    image.width = width;
    image.height = height;
    for (unsigned int i = 0; i < width * height * 4; ++i)
        image.rgba.push_back(static_cast<unsigned char>(i * 7 + i / 251));
    return image;
}

std::string readFile(std::string const& path)
{
    std::ifstream in(path, std::ios::binary);
    return std::string((std::istreambuf_iterator<char>(in)), std::istreambuf_iterator<char>());
}

} // namespace

TEST(ReplayHarnessTest, MakeFloatRestoresTheRecordedBits)
{
    const float one = makeFloat(1065353216);
    EXPECT_EQ(1.0f, one);
    const float negative = makeFloat(-1071644672);
    EXPECT_EQ(-2.5f, negative);
    // As in a recorded glTexParameterfv: the float truncated into an int.
    int values[] = { makeFloat(1069547520) /* 1.5 */, makeFloat(-1071644672) /* -2.5 */ };
    EXPECT_EQ(1, values[0]);
    EXPECT_EQ(-2, values[1]);
}

TEST(ReplayHarnessTest, PngFilesKeepEveryPixelAndRowOrder)
{
    // 200 x 100 needs two stored deflate blocks.
    for (Image const& image : { pattern(3, 2), pattern(200, 100) })
    {
        const std::string path = "oru_harness_test.png";
        ASSERT_TRUE(Oru::Replay::writePng(path, image));
        const std::string file = readFile(path);
        EXPECT_EQ(std::string("\x89PNG\r\n\x1a\n", 8), file.substr(0, 8));
        EXPECT_EQ(std::string("IEND\xae\x42\x60\x82", 8), file.substr(file.size() - 8)); // the fixed CRC of IEND

        Image back;
        ASSERT_TRUE(Oru::Replay::readPng(path, back));
        EXPECT_EQ(image.width, back.width);
        EXPECT_EQ(image.height, back.height);
        EXPECT_EQ(image.rgba, back.rgba);
        EXPECT_EQ(0u, Oru::Replay::differingPixels(image, back));

        // A damaged chunk is refused.
        std::string damaged = file;
        damaged[40] ^= 1;
        std::ofstream(path, std::ios::binary | std::ios::trunc) << damaged;
        EXPECT_FALSE(Oru::Replay::readPng(path, back));
        std::remove(path.c_str());
    }
}

TEST(ReplayHarnessTest, DifferingPixelsAreCounted)
{
    const Image a = pattern(4, 4);
    Image b = a;
    b.rgba[4 * 5 + 3] ^= 0x80; // one pixel's alpha
    b.rgba[4 * 9] ^= 1;        // another pixel's red
    EXPECT_EQ(2u, Oru::Replay::differingPixels(a, b));
    EXPECT_EQ(16u, Oru::Replay::differingPixels(a, pattern(4, 3)));
}
