// The harness side of exported captures that needs no GL: the data file, the
// arguments built from it and the names learnt from results.
#include "oru_replay/CapturedCalls.h"

#include <gtest/gtest.h>

#include <cmath>
#include <cstdio>
#include <cstring>
#include <filesystem>
#include <fstream>

// The program that the exported files would make; these tests run no calls.
const OruCapturedProgram oruCapturedProgram = { "capture.data", 0, 0, 0, nullptr };

namespace Replay = Oru::Replay;

namespace
{

std::string writeData(std::string const& name, std::string bytes)
{
    const std::string path = (std::filesystem::temp_directory_path() / name).string();
    std::ofstream(path, std::ios::binary) << bytes;
    return path;
}

// Magic, size, then at 16 two strings as the capture stores them.
std::string exportedData()
{
    std::string bytes("ORUCDATA", 8);
    bytes.append(8, '\0');
    const char* const texts[] = { "void main()", "{}" };
    for (char const* text : texts)
    {
        const std::uint64_t length = std::strlen(text);
        bytes.append(reinterpret_cast<char const*>(&length), sizeof(length)).append(text);
    }
    const std::uint64_t size = bytes.size();
    std::memcpy(&bytes[8], &size, sizeof(size));
    return bytes;
}

TEST(CapturedCallsTest, TheDataFileMustBeTheExportsOwn)
{
    const std::string data = exportedData();
    std::string error;
    EXPECT_FALSE(Replay::loadCaptureData(writeData("oru_missing_dir/none.data", data), data.size(), error));
    EXPECT_NE(error.find("cannot open the capture's data file"), std::string::npos) << error;
    // Another export's file: another size.
    EXPECT_FALSE(Replay::loadCaptureData(writeData("oru_other.data", data), data.size() + 16, error));
    EXPECT_NE(error.find("is not the data file of this exported capture"), std::string::npos) << error;
    std::string notData = data;
    notData[0] = 'X';
    EXPECT_FALSE(Replay::loadCaptureData(writeData("oru_not.data", notData), data.size(), error));

    ASSERT_TRUE(Replay::loadCaptureData(writeData("oru_exported.data", data), data.size(), error)) << error;
    EXPECT_EQ(std::memcmp(static_cast<char const*>(Replay::data(0)), "ORUCDATA", 8), 0);
    // Strings come back zero-terminated, each whole.
    char const* const* strings = Replay::strings(16, 2);
    EXPECT_STREQ(strings[0], "void main()");
    EXPECT_STREQ(strings[1], "{}");
}

TEST(CapturedCallsTest, NamesAreTheOnesLearntFromResultsAndOutputs)
{
    EXPECT_EQ(Replay::name(Replay::Texture, 40), 40u); // never learnt: itself
    const GLuint generated[] = { 101, 102 };
    Replay::learnNames(Replay::Texture, Replay::CallPointer{ generated }, { 40, 41 });
    EXPECT_EQ(Replay::name(Replay::Texture, 41), 102u);
    EXPECT_EQ(Replay::name(Replay::Buffer, 41), 41u); // spaces apart
    GLuint const* mapped = Replay::names(Replay::Texture, { 41, 40, 0 });
    EXPECT_EQ(mapped[0], 102u);
    EXPECT_EQ(mapped[1], 101u);
    EXPECT_EQ(mapped[2], 0u);

    Replay::learnLists(7, 3, 20);
    EXPECT_EQ(Replay::name(Replay::List, 7), 20u);
    EXPECT_EQ(Replay::name(Replay::List, 9), 22u);
    EXPECT_EQ(Replay::name(Replay::List, 10), 10u);

    // Uniform locations belong to the program in use.
    Replay::learn(Replay::ShaderObject, 1, 11);
    Replay::learn(Replay::ShaderObject, 2, 12);
    Replay::learnLocation(11, 3, 5);
    Replay::learnLocation(12, 3, 6);
    Replay::useProgram(Replay::name(Replay::ShaderObject, 1));
    EXPECT_EQ(Replay::name(Replay::UniformLocation, 3), 5u);
    Replay::useProgram(Replay::name(Replay::ShaderObject, 2));
    EXPECT_EQ(Replay::name(Replay::UniformLocation, 3), 6u);
}

TEST(CapturedCallsTest, OutputRoomAndBitPatterns)
{
    auto* room = static_cast<GLint*>(Replay::output(1, 64));
    room[15] = 7; // 64 bytes of room
    EXPECT_EQ(static_cast<GLint*>(Replay::output(1))[15], 7);
    EXPECT_EQ(static_cast<void const*>(Replay::address(0x1234)), reinterpret_cast<void const*>(0x1234));
    EXPECT_TRUE(std::isinf(Replay::floatBits(0xFF800000u)));
    EXPECT_LT(Replay::floatBits(0xFF800000u), 0.0f);
    EXPECT_TRUE(std::isnan(Replay::doubleBits(0x7FF8000000000000ull)));
}

} // namespace
