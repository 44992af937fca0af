// The tracer's lines, without a GL context.
#include "oru_ogl/ExceptionOGL.h"
#include "oru_ogl/extensionator/OpenGLTracer.h"
#include "support/OperationTable.h"
#include "support/StreamText.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cstdint>
#include <cstdio>
#include <cstring>
#include <iostream>
#include <sstream>
#include <string>

using Oru::OGL::OpenGLInterceptor;
using Oru::OGL::OpenGLTracer;
using OruTest::hexAddress;
using OruTest::SilentInterceptor;

namespace
{

class TracerTest : public ::testing::Test
{
protected:
    std::ostringstream out;
    SilentInterceptor bottom;
    OpenGLTracer tracer{ out, &bottom };

    std::string take() { return OruTest::take(out); }
};

} // namespace

TEST_F(TracerTest, OneLinePerCallWithTheCallersFileAndLine)
{
    tracer.cgmAlphaFunc("f", 12, GL_GREATER, 0.5f);
    EXPECT_EQ("f:12: glAlphaFunc(GL_GREATER, makeFloat(1056964608) /* 0.5 */)\n", take());
    tracer.cgmEnd("scene.cpp", 3);
    EXPECT_EQ("scene.cpp:3: glEnd()\n", take());
    tracer.cgmColor4ub("f", 4294967295u, 'r', 'g', 'b', 'a');
    EXPECT_EQ("f:4294967295: glColor4ub(r, g, b, a)\n", take());
    tracer.cgmOrtho("f", 5, -1, 1, -0.5, 0.5, 1e-3, 1e9);
    EXPECT_EQ("f:5: glOrtho(-1, 1, -0.5, 0.5, 0.001, 1e+09)\n", take());
    EXPECT_EQ(4u, bottom.calls);
}

TEST_F(TracerTest, CharacterPointersShowTheirTextOtherPointersTheirAddress)
{
    tracer.cgmGetUniformLocation("f", 1, 3, "uColour");
    EXPECT_EQ("f:1: glGetUniformLocation(3, uColour)\n", take());

    // An output array that is not zero-terminated is read up to the first zero.
    const GLuint textures[2] = { 1, 2 };
    GLboolean residences[4] = { 'y', 'e', 's', 0 };
    tracer.cgmAreTexturesResident("f", 2, 2, textures, residences);
    EXPECT_EQ("f:2: glAreTexturesResident(2, " + hexAddress(textures) + ", yes)\n", take());

    const float vertices[3] = {};
    tracer.cgmVertexPointer("f", 3, 3, GL_FLOAT, 0, vertices);
    EXPECT_EQ("f:3: glVertexPointer(3, GL_FLOAT, 0, " + hexAddress(vertices) + ")\n", take());
    tracer.cgmVertexPointer("f", 4, 3, GL_FLOAT, 0, nullptr);
    EXPECT_EQ("f:4: glVertexPointer(3, GL_FLOAT, 0, 0)\n", take());

    // A null string is shown as a null address rather than read.
    tracer.cgmGetUniformLocation("f", 5, 3, nullptr);
    EXPECT_EQ("f:5: glGetUniformLocation(3, 0)\n", take());

    // Pointers to string pointers are addresses.
    char const* sources[] = { "x" };
    tracer.cgmShaderSource("f", 6, 2, 1, sources, nullptr);
    EXPECT_EQ("f:6: glShaderSource(2, 1, " + hexAddress(sources) + ", 0)\n", take());
}

// Texts are measured and copied in blocks: every length at every alignment,
// with bytes after the terminating zero that must not show.
TEST_F(TracerTest, TextsOfEveryLengthAndAlignmentAreWrittenExactly)
{
    alignas(16) char storage[128];
    for (std::size_t offset = 0; offset < 16; ++offset)
        for (std::size_t length = 0; length <= 80; ++length)
        {
            std::memset(storage, 'z', sizeof(storage));
            std::string expected;
            for (std::size_t k = 0; k < length; ++k)
                expected += static_cast<char>('a' + (k * 7 + offset) % 26);
            std::memcpy(storage + offset, expected.c_str(), length + 1);
            tracer.cgmGetAttribLocation(storage + offset, 1, 2, storage + offset);
            ASSERT_EQ(expected + ":1: glGetAttribLocation(2, " + expected + ")\n", take()) << offset << " " << length;
        }
}

// Long arguments go out whole, beyond the tracer's own line buffer.
TEST_F(TracerTest, LongTextIsWrittenWhole)
{
    const std::string file(700, 'd');
    const std::string name(2000, 'n');
    tracer.cgmGetAttribLocation(file.c_str(), 9, 1, name.c_str());
    EXPECT_EQ(file + ":9: glGetAttribLocation(1, " + name + ")\n", take());
}

TEST_F(TracerTest, EveryOperationWritesOneLineAndForwards)
{
    alignas(16) static unsigned char scratch[4096];
    for (unsigned int index = 0; index < OruTest::operationCount; ++index)
    {
        const std::string name = OruTest::operations[index].glName;
        OruTest::invokeOperation(tracer, index, "f", 7, scratch);
        ASSERT_EQ(index + 1, bottom.calls) << name;
        ASSERT_EQ("cgm" + name.substr(2), bottom.lastOperation);
        const std::string line = take();
        EXPECT_EQ(0u, line.rfind("f:7: " + name + "(", 0)) << line;
        EXPECT_EQ(")\n", line.substr(line.size() - 2)) << line;
        EXPECT_EQ(1, std::count(line.begin(), line.end(), '\n')) << line;
    }
}

TEST_F(TracerTest, WritesToStandardOutputUnlessGivenAStream)
{
    OpenGLTracer byDefault;
    EXPECT_EQ(&std::cout, byDefault.outputStream());
    EXPECT_EQ(nullptr, byDefault.interceptor());
    std::ostringstream other;
    byDefault.setOutputStream(other);
    byDefault.setInterceptor(&bottom);
    byDefault.cgmFlush("g", 1);
    EXPECT_EQ("g:1: glFlush()\n", other.str());
}

TEST_F(TracerTest, ExceptionsPassThroughAfterTheLineIsWritten)
{
    OpenGLTracer overChecker(out, OpenGLInterceptor::Instance()); // no GL context: glEnd is refused before GL
    EXPECT_THROW(overChecker.cgmEnd("client.cpp", 5), Oru::OGL::ExceptionOGL);
    EXPECT_EQ("client.cpp:5: glEnd()\n", take());
}
