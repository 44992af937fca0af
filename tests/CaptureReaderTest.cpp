// A capture that is cut off or makes no sense is refused with a message naming
// where, never read past its end: every way of spoiling a small capture.
#include "oru_ogl/extensionator/CaptureReader.h"

#include <gtest/gtest.h>

#include <cstring>
#include <string>
#include <vector>

namespace OGL = Oru::OGL;
using namespace OGL::capture;

namespace
{

// A capture written byte by byte: the header, then whatever a test appends.
struct Bytes
{
    std::vector<unsigned char> data;

    Bytes()
    {
        put(kMagic, sizeof(kMagic));
        put32(kFormatVersion);
        put32(0);
        put(std::uint64_t(0));
    }
    void put(void const* bytes, std::size_t n)
    {
        auto const* at = static_cast<unsigned char const*>(bytes);
        data.insert(data.end(), at, at + n);
    }
    template <class T>
    void put(T value) { put(&value, sizeof(value)); }
    void put16(std::uint16_t value) { put(value); }
    void put32(std::uint32_t value) { put(value); }
    void define(std::uint16_t number, std::string const& name)
    {
        put16(kDefine);
        put16(number);
        put16(static_cast<std::uint16_t>(name.size()));
        put(name.data(), name.size());
    }
    void colour() // glColor4f(1, 0, 0, 1) as operation 7
    {
        put16(7);
        for (float value : { 1.0f, 0.0f, 0.0f, 1.0f })
            put(value);
    }
};

// What reading every record raises, or "" when it reads to the end.
std::string readAll(std::vector<unsigned char> bytes, std::uint64_t* offset = nullptr, std::uint64_t* call = nullptr)
{
    try
    {
        OGL::CaptureReader reader(std::move(bytes));
        OGL::CaptureRecord record;
        while (reader.next(record))
        {
        }
        return "";
    }
    catch (OGL::CaptureError const& error)
    {
        if (offset)
            *offset = error.offset();
        if (call)
            *call = error.callIndex();
        return error.what();
    }
}

TEST(CaptureReaderTest, ReadsWhatItWasGiven)
{
    Bytes capture;
    capture.define(7, "glColor4f");
    capture.colour();
    capture.colour();
    OGL::CaptureReader reader(capture.data);
    OGL::CaptureRecord record;
    ASSERT_TRUE(reader.next(record));
    EXPECT_EQ(static_cast<unsigned int>(kGLColor4f), record.operation);
    EXPECT_EQ(4u, record.argumentCount);
    EXPECT_EQ(1.0f, record.arguments[0].as<float>());
    ASSERT_TRUE(reader.next(record));
    EXPECT_EQ(1u, record.callIndex);
    EXPECT_FALSE(reader.next(record));
}

TEST(CaptureReaderTest, CutOffAnywhereNamesTheRecordAndTheCall)
{
    Bytes capture;
    capture.define(7, "glColor4f");
    capture.colour();
    const std::size_t secondCall = capture.data.size();
    capture.colour();
    // Every cut inside the second call: its offset and index 1, never a crash.
    for (std::size_t cut = secondCall + 1; cut < capture.data.size(); ++cut)
    {
        std::uint64_t offset = 0, call = 0;
        const std::string text =
            readAll(std::vector<unsigned char>(capture.data.begin(), capture.data.begin() + cut), &offset, &call);
        // Cut inside the tag, it cannot tell a call from another record.
        EXPECT_EQ("capture truncated: the file ends at byte " + std::to_string(cut) + ", inside the " +
                      (cut == secondCall + 1 ? "record" : "call") + " at byte offset " + std::to_string(secondCall) +
                      " (call index 1)",
                  text);
        EXPECT_EQ(secondCall, offset);
        EXPECT_EQ(1u, call);
    }
    // A cut inside the header: no capture at all.
    EXPECT_EQ("not a capture: the file does not begin with the ORUCAPT header",
              readAll(std::vector<unsigned char>(capture.data.begin(), capture.data.begin() + 20)));
}

TEST(CaptureReaderTest, NonsenseIsRefusedWithWhatAndWhere)
{
    struct Case
    {
        char const* what;
        std::vector<unsigned char> bytes;
        std::string expected;
    };
    std::vector<Case> cases;

    Bytes undefined;
    undefined.colour();
    cases.push_back({ "a call before its Define", undefined.data,
                      "corrupt capture: operation number 7 without a Define record in the call at byte offset 24 (call index 0)" });

    Bytes unknown;
    unknown.define(3, "glFrobnicateWIN");
    cases.push_back({ "a name the catalogue does not know", unknown.data,
                      "corrupt capture: operation 'glFrobnicateWIN', which this reader's catalogue does not know, in the "
                      "record at byte offset 24 (call index 0)" });

    Bytes tag;
    tag.define(7, "glColor4f");
    tag.colour();
    const std::size_t tagAt = tag.data.size();
    tag.put16(0xFFEE);
    cases.push_back({ "an unknown record tag", tag.data,
                      "corrupt capture: record tag 0xffee in the record at byte offset " + std::to_string(tagAt) +
                          " (call index 1)" });

    Bytes pointer;
    pointer.define(2, "glDeleteTextures");
    const std::size_t callAt = pointer.data.size();
    pointer.put16(2);
    pointer.put32(1);
    pointer.put(std::uint8_t(9));
    cases.push_back({ "a pointer kind beyond the known ones", pointer.data,
                      "corrupt capture: pointer kind 9 in the call at byte offset " + std::to_string(callAt) + " (call index 0)" });

    Bytes huge;
    huge.define(2, "glDeleteTextures");
    huge.put16(2);
    huge.put32(1);
    huge.put(std::uint8_t(PointerKind::Data));
    huge.put(std::uint64_t(0x1000));
    huge.put(std::uint64_t(1) << 62);
    cases.push_back({ "a data length far past the end", huge.data,
                      "capture truncated: the file ends at byte " + std::to_string(huge.data.size()) +
                          ", inside the call at byte offset " + std::to_string(callAt) + " (call index 0)" });

    Bytes newer;
    std::uint32_t version = kFormatVersion + 1;
    std::memcpy(&newer.data[8], &version, 4);
    cases.push_back({ "a newer format", newer.data,
                      "the capture has format version " + std::to_string(version) +
                          ", newer than the versions this reader knows (up to " + std::to_string(kFormatVersion) +
                          "): read it with a newer oru_ogl" });

    for (Case const& c : cases)
        EXPECT_EQ(c.expected, readAll(c.bytes)) << c.what;
}

} // namespace
