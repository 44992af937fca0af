// oglreplay's export of a capture as C++, on a capture made here byte by byte:
// what each record becomes, the data file, the parts and the frame range.
// No GL: the exported program itself is built and run by the suite's
// capture_export tests.
#include "../apps/oglreplay/CaptureExport.h"

#include "oru_ogl/extensionator/GLTypes.h"

#include <gtest/gtest.h>

#include <cmath>
#include <cstdlib>
#include <cstring>
#include <filesystem>
#include <fstream>
#include <limits>
#include <map>
#include <sstream>

namespace OGL = Oru::OGL;

namespace
{

// A capture written the way CaptureSession writes one.
class CaptureBytes
{
public:
    CaptureBytes()
    {
        raw("ORUCAPT", 8);
        put<std::uint32_t>(1).put<std::uint32_t>(0).put<std::uint64_t>(0);
    }
    template <class T>
    CaptureBytes& put(T value)
    {
        return raw(&value, sizeof(value));
    }
    CaptureBytes& raw(void const* bytes, std::size_t length)
    {
        auto const* first = static_cast<unsigned char const*>(bytes);
        bytes_.insert(bytes_.end(), first, first + length);
        return *this;
    }
    CaptureBytes& call(std::string const& function)
    {
        auto found = numbers_.find(function);
        if (found == numbers_.end())
        {
            found = numbers_.emplace(function, static_cast<std::uint16_t>(numbers_.size())).first;
            put<std::uint16_t>(0xFF01).put(found->second).put(static_cast<std::uint16_t>(function.size()));
            raw(function.data(), function.size());
        }
        return put(found->second);
    }
    CaptureBytes& data(void const* bytes, std::uint64_t length)
    {
        put<std::uint8_t>(2).put<std::uint64_t>(0x5000).put(length);
        return raw(bytes, static_cast<std::size_t>(length));
    }
    CaptureBytes& presented(unsigned int frame)
    {
        put<std::uint16_t>(0xFF03).put<std::uint64_t>(0x10).put<std::uint32_t>(frame);
        put<std::uint32_t>(2).put<std::uint32_t>(1).put<std::uint64_t>(0xABC0 + frame).put<std::uint8_t>(0);
        return call("SwapBuffers").put<std::uint64_t>(0x10).put<std::int32_t>(1);
    }
    std::vector<unsigned char> const& bytes() const { return bytes_; }

private:
    std::vector<unsigned char> bytes_;
    std::map<std::string, std::uint16_t> numbers_;
};

const unsigned char kPixels[16] = { 1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11, 12, 13, 14, 15, 16 };

// Three frames; the first draws with textures and lists, the others clear and flush.
std::vector<unsigned char> scene()
{
    CaptureBytes capture;
    capture.put<std::uint16_t>(0xFF07).put<std::uint64_t>(0x10).put<std::uint64_t>(0x20);
    const GLuint generated[] = { 7, 9 };
    capture.call("glGenTextures").put<std::int32_t>(2);
    capture.put<std::uint8_t>(5).put<std::uint64_t>(0x6000).put<std::uint64_t>(8).raw(generated, 8);
    capture.call("glBindTexture").put<std::uint32_t>(GL_TEXTURE_2D).put<std::uint32_t>(9);
    for (int upload = 0; upload < 2; ++upload)
    {
        capture.call("glTexImage2D").put<std::uint32_t>(GL_TEXTURE_2D).put<std::int32_t>(0);
        capture.put<std::int32_t>(GL_RGBA).put<std::int32_t>(2).put<std::int32_t>(2).put<std::int32_t>(0);
        capture.put<std::uint32_t>(GL_RGBA).put<std::uint32_t>(GL_UNSIGNED_BYTE).data(kPixels, sizeof(kPixels));
    }
    capture.call("glClearColor").put(0.1f).put(-0.0f).put(1e-40f).put(std::numeric_limits<float>::infinity());
    capture.call("glDeleteTextures").put<std::int32_t>(2).data(generated, sizeof(generated));
    capture.call("glGenLists").put<std::int32_t>(3).put<std::uint32_t>(5);
    capture.call("glCallList").put<std::uint32_t>(6);
    capture.presented(0);
    capture.call("glClear").put<std::uint32_t>(GL_COLOR_BUFFER_BIT);
    capture.presented(1);
    capture.call("glFlush");
    capture.presented(2);
    return capture.bytes();
}

std::string read(std::filesystem::path const& path)
{
    std::ifstream file(path, std::ios::binary);
    std::stringstream text;
    text << file.rdbuf();
    return text.str();
}

class CaptureExportTest : public ::testing::Test
{
protected:
    void SetUp() override
    {
        directory_ = std::filesystem::temp_directory_path() / "oru_capture_export_test";
        std::filesystem::remove_all(directory_);
    }
    void TearDown() override { std::filesystem::remove_all(directory_); }

    OGL::CaptureExport::Result exportScene(OGL::CaptureExport::Options options)
    {
        options.directory = directory_.string();
        options.captureName = "scene.ocap";
        OGL::CaptureReader reader(scene());
        OGL::CaptureExport exporter(options);
        exporter.run(reader);
        return exporter.result();
    }
    // The calls of every part, in order.
    std::string calls(unsigned int parts) const
    {
        std::string all;
        for (unsigned int i = 0; i < parts; ++i)
        {
            char name[32];
            std::snprintf(name, sizeof(name), "calls_%04u.cpp", i);
            all += read(directory_ / name);
        }
        return all;
    }

    std::filesystem::path directory_;
};

TEST_F(CaptureExportTest, CallsAreWrittenWithNamesEnumsExactFloatsAndDataOffsets)
{
    OGL::CaptureExport::Options options;
    const OGL::CaptureExport::Result result = exportScene(options);
    EXPECT_EQ(result.calls, 13u);
    EXPECT_EQ(result.frames, 3u);
    ASSERT_EQ(result.parts, 1u);
    const std::string text = calls(1);
    const char* const kExpected[] = {
        "    currentContext(0x10, 0x20);\n",
        "    glGenTextures(2, output(1, 8));\n    learnNames(Texture, output(1), {7, 9});\n",
        "    glBindTexture(GL_TEXTURE_2D, name(Texture, 9));\n",
        // Both uploads name the one block: equal data is stored once.
        ("    glTexImage2D(GL_TEXTURE_2D, 0, 6408, 2, 2, 0, GL_RGBA, GL_UNSIGNED_BYTE, data(16));\n"
         "    glTexImage2D(GL_TEXTURE_2D, 0, 6408, 2, 2, 0, GL_RGBA, GL_UNSIGNED_BYTE, data(16));\n"),
        "    glClearColor(0x1.99999ap-4f, -0x0p+0f, 0x1.16c2p-133f, floatBits(0x7f800000));\n",
        "    glDeleteTextures(2, names(Texture, {7, 9}));\n",
        "    learnLists(5, 3, glGenLists(3));\n",
        "    glCallList(name(List, 6));\n",
        "    frame(0, 2, 1, 0xabc0ull, nullptr);\n    swapBuffers(0x10);\n",
        "    glFlush();\n    frame(2, 2, 1, 0xabc2ull, nullptr);\n    swapBuffers(0x10);\n}\n",
    };
    std::size_t at = 0;
    for (char const* expected : kExpected)
    {
        const std::size_t found = text.find(expected, at);
        EXPECT_NE(found, std::string::npos) << "missing, or out of order: " << expected << "in:\n" << text;
        at = found == std::string::npos ? at : found;
    }

    // The data file: magic, its own size, then each block 16-byte aligned.
    const std::string data = read(directory_ / "capture.data");
    ASSERT_EQ(data.size(), result.dataBytes);
    ASSERT_EQ(data.size(), 32u);
    EXPECT_EQ(data.substr(0, 8), "ORUCDATA");
    std::uint64_t size = 0;
    std::memcpy(&size, data.data() + 8, sizeof(size));
    EXPECT_EQ(size, data.size());
    EXPECT_EQ(std::memcmp(data.data() + 16, kPixels, sizeof(kPixels)), 0);
    EXPECT_NE(read(directory_ / "capture.cpp").find("{ \"capture.data\", 32ull, 13ull, 1, kParts }"), std::string::npos);
    EXPECT_NE(read(directory_ / "CMakeLists.txt").find("oru_add_capture_replay(capture_replay "), std::string::npos);
}

TEST_F(CaptureExportTest, PartsSplitTheCallsAndTheProgramListsEveryPart)
{
    OGL::CaptureExport::Options options;
    options.callsPerPart = 4;
    const OGL::CaptureExport::Result result = exportScene(options);
    ASSERT_EQ(result.parts, 4u);
    const std::string program = read(directory_ / "capture.cpp");
    for (char const* part : { "capturedCalls0000", "capturedCalls0001", "capturedCalls0002", "capturedCalls0003" })
        EXPECT_NE(program.find(std::string("&Oru::Replay::") + part), std::string::npos) << part;
    EXPECT_NE(read(directory_ / "calls_0003.cpp").find("void capturedCalls0003()\n{\n"), std::string::npos);
    // Split, the calls are the same as whole.
    const std::string split = calls(4);
    EXPECT_NE(split.find("learnLists(5, 3, glGenLists(3));"), std::string::npos);
    EXPECT_NE(split.find("frame(2, 2, 1, 0xabc2ull, nullptr);"), std::string::npos);
}

TEST_F(CaptureExportTest, AFrameRangeKeepsTheCallsBeforeItAndStopsAfterItsLastFrame)
{
    OGL::CaptureExport::Options options;
    options.firstFrame = 1;
    options.lastFrame = 1;
    const OGL::CaptureExport::Result result = exportScene(options);
    const std::string text = calls(result.parts);
    EXPECT_NE(text.find("glDeleteTextures(2, names(Texture, {7, 9}));"), std::string::npos);
    EXPECT_NE(text.find("    // frame 0: presented, not compared (before the exported range)\n    swapBuffers(0x10);"),
              std::string::npos);
    EXPECT_EQ(text.find("frame(0,"), std::string::npos);
    EXPECT_NE(text.find("    glClear(16384);\n    frame(1, 2, 1, 0xabc1ull, nullptr);\n    swapBuffers(0x10);\n}"),
              std::string::npos);
    EXPECT_EQ(text.find("glFlush"), std::string::npos);
    EXPECT_EQ(result.calls, 11u);
}

TEST(CaptureExportLiteralTest, FloatsAndDoublesAreWrittenBitExact)
{
    // Every float read back from its literal has the same bits, subnormals,
    // signed zeros and the extremes included; the others go as bit patterns.
    const std::uint32_t kBits[] = { 0x00000000u, 0x80000000u, 0x00000001u, 0x007FFFFFu, 0x3DCCCCCDu,
                                    0x7F7FFFFFu, 0xC2F6E979u, 0x3F800001u, 0x33D6BF95u };
    for (std::uint32_t bits : kBits)
    {
        float value;
        std::memcpy(&value, &bits, sizeof(value));
        std::string text = OGL::CaptureExport::floatLiteral(value);
        ASSERT_EQ(text.back(), 'f') << text;
        text.pop_back();
        const float parsed = static_cast<float>(std::strtod(text.c_str(), nullptr));
        std::uint32_t back;
        std::memcpy(&back, &parsed, sizeof(back));
        EXPECT_EQ(back, bits) << text;
    }
    EXPECT_EQ(OGL::CaptureExport::floatLiteral(std::numeric_limits<float>::quiet_NaN()), "floatBits(0x7fc00000)");
    EXPECT_EQ(OGL::CaptureExport::floatLiteral(-std::numeric_limits<float>::infinity()), "floatBits(0xff800000)");

    const double kDoubles[] = { 0.1, -1e-310, 1.0 / 3.0, 123456789.123456789 };
    for (double value : kDoubles)
    {
        const std::string text = OGL::CaptureExport::doubleLiteral(value);
        const double parsed = std::strtod(text.c_str(), nullptr);
        EXPECT_EQ(std::memcmp(&value, &parsed, sizeof(value)), 0) << text;
    }
    EXPECT_EQ(OGL::CaptureExport::doubleLiteral(std::numeric_limits<double>::infinity()),
              "doubleBits(0x7ff0000000000000ull)");
}

} // namespace
