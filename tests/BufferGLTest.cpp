// Buffer objects against the driver: the role chosen at construction, the
// binding put back, mapping, sub-range transfers and their refusals.
#include "oru_ogl/extensionator/EntryPoints.h"
#include "oru_ogl/ogl/Buffer.h"

#include "support/LayerGLTest.h"
#include "support/Raises.h"

#include <cstring>
#include <string>
#include <vector>

using Oru::OGL::Buffer;
using OruTest::expectRefusals;
using OruTest::glInteger;

namespace
{

const GLenum kUnpack = 0x88EC;       // GL_PIXEL_UNPACK_BUFFER
const GLenum kArray = 0x8892;        // GL_ARRAY_BUFFER
const GLenum kUnpackBinding = 0x88EF;
const GLenum kPackBinding = 0x88ED;
const GLenum kArrayBinding = 0x8894;
const GLenum kBufferSize = 0x8764;   // GL_BUFFER_SIZE
const GLenum kReadWrite = 0x88BA;    // GL_READ_WRITE
const char* const kSource = "ogl/Buffer.cpp";

class BufferGLTest : public OruTest::LayerGLTest
{
protected:
    void TearDown() override
    {
        Buffer::bindDefaultUnpackBuffer();
        Buffer::bindDefaultPackBuffer();
        Buffer::bindDefaultArrayBuffer();
        Buffer::bindDefaultElementArrayBuffer();
        LayerGLTest::TearDown();
    }

    static GLint storeSize(Buffer& buffer)
    {
        buffer.bind();
        GLint size = -1;
        _cgmGetBufferParameteriv(buffer.target(), kBufferSize, &size);
        return size;
    }
};

} // namespace

TEST_F(BufferGLTest, SupportedAndTheUsageNumberChoosesTheRoleAndTheTypeIsIgnored)
{
    EXPECT_TRUE(Buffer::isSupported());
    Buffer unpack(16, Buffer::eArray, Buffer::eStreamDraw, nullptr);
    EXPECT_TRUE(unpack.isUnpackBuffer());
    EXPECT_EQ(16u, unpack.size());
    EXPECT_EQ(16, storeSize(unpack));

    Buffer pack(8, Buffer::eArray, Buffer::eStreamRead, nullptr);
    EXPECT_TRUE(pack.isPackBuffer());

    const unsigned char data[4] = { 1, 2, 3, 4 };
    Buffer array(4, Buffer::eUnpack, Buffer::eStreamCopy, data);
    EXPECT_TRUE(array.isArrayBuffer());
    EXPECT_EQ(kArray, array.target());

    Buffer staticDraw(4, Buffer::eElementArray, Buffer::eStaticDraw, nullptr);
    EXPECT_TRUE(staticDraw.isUnpackBuffer());
    Buffer dynamicCopy(4, Buffer::ePack, Buffer::eDynamicCopy, nullptr);
    EXPECT_TRUE(dynamicCopy.isUnpackBuffer());
    EXPECT_EQ(Buffer::eDynamicCopy, dynamicCopy.usagePolicy());
    EXPECT_FALSE(dynamicCopy.isElementArrayBuffer());

    unsigned char back[4] = {};
    array.bind();
    array.getSubData(0, 4, back);
    EXPECT_EQ(0, std::memcmp(data, back, 4));
}

TEST_F(BufferGLTest, ConstructionPutsTheUnpackBindingBackOnTheFinalTarget)
{
    Buffer first(4, Buffer::eUnpack, Buffer::eStreamDraw, nullptr);
    first.bind();
    Buffer second(4, Buffer::eUnpack, Buffer::eStreamDraw, nullptr);
    EXPECT_EQ(static_cast<GLint>(first.objectID()), glInteger(kUnpackBinding));
    EXPECT_TRUE(first.isBound());
    EXPECT_FALSE(second.isBound());

    // A pack buffer gets the unpack target's name on the pack target.
    Buffer pack(4, Buffer::eUnpack, Buffer::eStreamRead, nullptr);
    EXPECT_EQ(static_cast<GLint>(first.objectID()), glInteger(kPackBinding));
    EXPECT_EQ(static_cast<GLint>(first.objectID()), glInteger(kUnpackBinding));
}

TEST_F(BufferGLTest, RefusedConstructionsCreateNoName)
{
    GLuint before = 0;
    _cgmGenBuffers(1, &before);
    expectRefusals(kSource, {
        { 0, "Range error: nSize > 0", [] { Buffer(0, Buffer::eUnpack, Buffer::eStreamDraw, nullptr); } },
        { 0, "Range error: nSize > 0", [] { Buffer(-5, Buffer::eUnpack, Buffer::eStreamDraw, nullptr); } },
        { 0, "!\"Buffer type enums are not all properly translated.\"",
          [] { Buffer(4, Buffer::eUnpack, static_cast<Buffer::Usage>(9), nullptr); } },
    });
    GLuint after = 0;
    _cgmGenBuffers(1, &after);
    EXPECT_EQ(before + 1, after) << "a refused buffer took a name";
    _cgmDeleteBuffers(1, &before);
    _cgmDeleteBuffers(1, &after);
}

TEST_F(BufferGLTest, MapTwiceRefusesAndTheFirstPointerStaysValid)
{
    Buffer buffer(8, Buffer::eUnpack, Buffer::eStreamDraw, nullptr);
    buffer.bind();
    unsigned char* p = static_cast<unsigned char*>(buffer.map(kReadWrite));
    ASSERT_NE(nullptr, p);
    EXPECT_TRUE(buffer.isMapped());
    expectRefusals(kSource,
                   { { 0, "Buffer is already mapped (this will cause a GL error)", [&] { buffer.map(kReadWrite); } } });
    for (int i = 0; i < 8; ++i)
        p[i] = static_cast<unsigned char>(10 + i);
    buffer.unmap();
    EXPECT_FALSE(buffer.isMapped());
    expectRefusals(kSource, { { 0, "Buffer must be mapped before umapping it (this will cause a GL error)",
                                [&] { buffer.unmap(); } } });

    unsigned char back[8] = {};
    buffer.getSubData(0, 8, back);
    for (int i = 0; i < 8; ++i)
        EXPECT_EQ(10 + i, back[i]);
}

TEST_F(BufferGLTest, SubDataChecksMappedThenPointerThenOffset)
{
    Buffer buffer(8, Buffer::eUnpack, Buffer::eStreamDraw, nullptr);
    buffer.bind();
    unsigned char data[4] = { 5, 6, 7, 8 };
    expectRefusals(kSource, {
        { 0, "Buffer::subData pointer to data must not be NULL", [&] { buffer.subData(0, 4, nullptr); } },
        { 0, "Buffer::subData pointer to data must not be NULL", [&] { buffer.subData(-1, 4, nullptr); } },
        { 0, "Buffer::subData offset must not be negative", [&] { buffer.subData(-1, 4, data); } },
        { 0, "Buffer::getSubData pointer to data must not be NULL", [&] { buffer.getSubData(0, 4, nullptr); } },
        { 0, "Buffer::getSubData offset must not be negative", [&] { buffer.getSubData(-1, 4, data); } },
    });
    buffer.map(kReadWrite);
    expectRefusals(kSource, {
        { 0, "Buffer::subData buffer cannot be mapped", [&] { buffer.subData(-1, 4, nullptr); } },
        { 0, "Buffer::getSubData buffer cannot be mapped", [&] { buffer.getSubData(-1, 4, nullptr); } },
    });
    buffer.unmap();

    buffer.subData(4, 4, data);
    unsigned char back[4] = {};
    buffer.getSubData(4, 4, back);
    EXPECT_EQ(0, std::memcmp(data, back, 4));
}

TEST_F(BufferGLTest, ConversionRefusedWhileBoundAndFollowedByTheBindingQuery)
{
    Buffer buffer(4, Buffer::eUnpack, Buffer::eStreamDraw, nullptr);
    buffer.bind();
    const std::string whileBound = " cannot convert buffer target while bound";
    expectRefusals(kSource, {
        { 0, "Buffer::convertToArrayBuffer" + whileBound, [&] { buffer.convertToArrayBuffer(); } },
        { 0, "Buffer::convertToPackBuffer" + whileBound, [&] { buffer.convertToPackBuffer(); } },
        { 0, "Buffer::convertToElementArrayBuffer" + whileBound, [&] { buffer.convertToElementArrayBuffer(); } },
        { 0, "Buffer::convertToUnpackBuffer" + whileBound, [&] { buffer.convertToUnpackBuffer(); } },
    });
    EXPECT_TRUE(buffer.isUnpackBuffer());

    // Bound to the array target behind the wrapper's back: not bound as far as
    // the unpack query goes, so the conversion is allowed, and afterwards the
    // array query answers.
    _cgmBindBuffer(kArray, buffer.objectID());
    Buffer::bindDefaultUnpackBuffer();
    EXPECT_FALSE(buffer.isBound());
    buffer.convertToArrayBuffer();
    EXPECT_TRUE(buffer.isArrayBuffer());
    EXPECT_TRUE(buffer.isBound());
    EXPECT_EQ(static_cast<GLint>(buffer.objectID()), glInteger(kArrayBinding));
    Buffer::bindDefaultArrayBuffer();
    EXPECT_FALSE(buffer.isBound());
    buffer.convertToElementArrayBuffer();
    EXPECT_TRUE(buffer.isElementArrayBuffer());
    buffer.bind();
    EXPECT_TRUE(buffer.isBound());
}

TEST_F(BufferGLTest, ObjectAnswersFromGLNotFromTheWrapper)
{
    Buffer buffer(4, Buffer::eUnpack, Buffer::eStreamDraw, nullptr);
    EXPECT_TRUE(buffer.isInitialized());
    EXPECT_FALSE(buffer.isBound());
    _cgmBindBuffer(kUnpack, buffer.objectID());
    EXPECT_TRUE(buffer.isBound());
    EXPECT_EQ(buffer.objectID(), buffer.getBoundID());
    _cgmBindBuffer(kUnpack, 0);
    EXPECT_EQ(0u, buffer.getBoundID());
    EXPECT_FALSE(buffer.isBound());
}
