// The call recorder's text and binary blocks, byte for byte, without a GL
// context: the chain below it is a SilentInterceptor that performs nothing.
#include "oru_ogl/ExceptionOGL.h"
#include "oru_ogl/extensionator/OpenGLErrorChecker.h"
#include "oru_ogl/extensionator/OpenGLRekorder.h"
#include "support/OperationTable.h"
#include "support/StreamText.h"

#include "support/Raises.h"

#include <cmath>
#include <cstdint>
#include <cstdio>
#include <cstring>
#include <functional>
#include <sstream>
#include <string>
#include <vector>

using Oru::OGL::OpenGLInterceptor;
using Oru::OGL::OpenGLRekorder;
using OruTest::hexAddress;
using OruTest::SilentInterceptor;

namespace
{

std::string le32(std::uint32_t value)
{
    return std::string(reinterpret_cast<char const*>(&value), 4);
}

std::string le64(std::uint64_t value)
{
    return std::string(reinterpret_cast<char const*>(&value), 8);
}

std::string bytesOf(void const* p, std::size_t n)
{
    return std::string(static_cast<char const*>(p), n);
}

// The generic read-back head for a block at `offset`.
std::string readBack(std::uint32_t offset)
{
    return "{\n    pBinaryInputStream->seekg(" + std::to_string(offset) +
           ");\n"
           "    unsigned int nSize= 0;\n"
           "    pBinaryInputStream->read((char *)&nSize, sizeof(nSize));\n"
           "    std::vector<char> data(nSize);\n"
           "    pBinaryInputStream->read(&data[0], nSize);\n";
}

class RekorderTest : public ::testing::Test
{
protected:
    std::ostringstream code;
    std::ostringstream data;
    SilentInterceptor bottom;
    OpenGLRekorder plain{ code, data, &bottom, false };
    OpenGLRekorder commented{ code, data, &bottom, true };

    std::string take() { return OruTest::take(code); }
};

} // namespace

TEST_F(RekorderTest, EachCallEndsWithOrWithoutALineComment)
{
    commented.cgmAlphaFunc("f", 12, GL_GREATER, 0.5f);
    EXPECT_EQ("glAlphaFunc(GL_GREATER, makeFloat(1056964608) /* 0.5 */);\t\t// f, line 12\n", take());
    plain.cgmAlphaFunc("f", 12, GL_GREATER, 0.5f);
    EXPECT_EQ("glAlphaFunc(GL_GREATER, makeFloat(1056964608) /* 0.5 */);\n", take());
    EXPECT_EQ(2u, bottom.calls);
    EXPECT_STREQ("cgmAlphaFunc", bottom.lastOperation);
    EXPECT_EQ("", data.str());
}

TEST_F(RekorderTest, ArgumentsAreWrittenByTheirGLType)
{
    const struct
    {
        std::function<void(OpenGLInterceptor&)> call;
        char const* text;
    } cases[] = {
        { [](OpenGLInterceptor& gl) { gl.cgmClearColor("f", 1, 1, 0, 0, 1); },
          "glClearColor(makeFloat(1065353216) /* 1 */, makeFloat(0) /* 0 */, makeFloat(0) /* 0 */, "
          "makeFloat(1065353216) /* 1 */);\n" },
        { [](OpenGLInterceptor& gl) { gl.cgmVertex2f("f", 1, -2.5f, 0.1f); },
          "glVertex2f(makeFloat(-1071644672) /* -2.5 */, makeFloat(1036831949) /* 0.1 */);\n" },
        // Bytes are written as characters, as designed.
        { [](OpenGLInterceptor& gl) { gl.cgmColor3ub("f", 1, 65, 66, 67); }, "glColor3ub(A, B, C);\n" },
        { [](OpenGLInterceptor& gl) { gl.cgmColor3b("f", 1, 'x', 'y', 'z'); }, "glColor3b(x, y, z);\n" },
        { [](OpenGLInterceptor& gl) { gl.cgmColorMask("f", 1, 1, 0, 7, 0); },
          "glColorMask(GL_TRUE, GL_FALSE, GL_TRUE, GL_FALSE);\n" },
        { [](OpenGLInterceptor& gl) { gl.cgmClear("f", 1, GL_COLOR_BUFFER_BIT | GL_DEPTH_BUFFER_BIT); },
          "glClear(16640);\n" },
        { [](OpenGLInterceptor& gl) { gl.cgmRasterPos2i("f", 1, -1, 2147483647); },
          "glRasterPos2i(-1, 2147483647);\n" },
        { [](OpenGLInterceptor& gl) { gl.cgmVertex2s("f", 1, -32768, 7); }, "glVertex2s(-32768, 7);\n" },
        { [](OpenGLInterceptor& gl) { gl.cgmLineStipple("f", 1, 2, 65535); }, "glLineStipple(2, 65535);\n" },
        { [](OpenGLInterceptor& gl) { gl.cgmBindTexture("f", 1, GL_TEXTURE_2D, 4294967295u); },
          "glBindTexture(GL_TEXTURE_2D, 4294967295);\n" },
        { [](OpenGLInterceptor& gl) { gl.cgmDepthRange("f", 1, 1.0 / 3, 1); }, "glDepthRange(0.333333, 1);\n" },
        { [](OpenGLInterceptor& gl) { gl.cgmTranslated("f", 1, 1e-7, -2.5, 123456789); },
          "glTranslated(1e-07, -2.5, 1.23457e+08);\n" },
        { [](OpenGLInterceptor& gl) { gl.cgmUseProgramObjectARB("f", 1, 7); },
          "glUseProgramObjectARB((GLhandleARB)7);\n" },
        // Enums by their kept names, whatever the caller meant.
        { [](OpenGLInterceptor& gl) { gl.cgmBlendFunc("f", 1, GL_ONE, GL_ZERO); },
          "glBlendFunc(GL_CURRENT_BIT, GL_POINTS);\n" },
        { [](OpenGLInterceptor& gl) { gl.cgmEnable("f", 1, 0x0F00); }, "glEnable(Unknown Token);\n" },
        // Results are not recorded.
        { [](OpenGLInterceptor& gl) { gl.cgmIsEnabled("f", 1, GL_BLEND); }, "glIsEnabled(GL_BLEND);\n" },
        { [](OpenGLInterceptor& gl) { gl.cgmGetString("f", 1, GL_VERSION); }, "glGetString(GL_VERSION);\n" },
        { [](OpenGLInterceptor& gl) { gl.cgmEnd("f", 1); }, "glEnd();\n" },
    };
    for (auto const& c : cases)
    {
        c.call(plain);
        EXPECT_EQ(c.text, take());
    }
    EXPECT_EQ(sizeof(cases) / sizeof(cases[0]), bottom.calls);
}

// The comment shows a float as a default-formatted stream does; the bit
// pattern, read back by makeFloat, is what the replay uses.
TEST_F(RekorderTest, FloatsKeepTheirBitsAndShowTheStreamsDefaultFormat)
{
    const float values[] = { 0.0f, -0.0f, 1.0f / 3, 1e-7f, 123456.7f, 3.4028235e38f, 1e-40f, -7.25e12f };
    for (float value : values)
    {
        std::int32_t bits;
        std::memcpy(&bits, &value, sizeof(bits));
        std::ostringstream shown;
        shown << value;
        plain.cgmPointSize("f", 1, value);
        EXPECT_EQ("glPointSize(makeFloat(" + std::to_string(bits) + ") /* " + shown.str() + " */);\n", take());
    }
}

// The same for a spread of bit patterns and of doubles: what the recorder
// writes is what a default-formatted stream writes.
TEST_F(RekorderTest, NumbersReadAsTheStreamWritesThem)
{
    std::uint32_t state = 12345;
    auto next = [&state] { return state = state * 1664525u + 1013904223u; };
    float previous = 0;
    plain.cgmPointSize("f", 1, previous);
    std::string previousText = take();
    for (int k = 0; k < 100000; ++k)
    {
        std::uint32_t bits = next();
        float value;
        std::memcpy(&value, &bits, sizeof(value));
        std::ostringstream shown;
        shown << value;
        plain.cgmPointSize("f", 1, value);
        const std::string text = take();
        ASSERT_EQ("/* " + shown.str() + " */);\n", text.substr(text.find("/* "))) << bits;
        if (k % 2 == 0) // a value seen before is written the same, whatever came between
        {
            plain.cgmPointSize("f", 1, previous);
            ASSERT_EQ(previousText, take());
        }
        previous = value;
        previousText = text;

        const double number = (static_cast<double>(next()) - 2147483648.0) * std::pow(10.0, static_cast<int>(next() % 40) - 20) / 3;
        std::ostringstream written;
        written << number;
        plain.cgmClearDepth("f", 1, number);
        ASSERT_EQ("glClearDepth(" + written.str() + ");\n", take());
    }
    // Ties and values next to them: printf rounds the exact value, half to even.
    const double edges[] = { 1234565, 1234575, 0.5, 2.5e-5, 999999.5, 9999995, 99999.95, 1e-45, 5e-324, 1e300, -1e-300,
                            -0.0, HUGE_VAL, -HUGE_VAL, std::nan(""), -std::nan("") };
    for (double number : edges)
    {
        std::ostringstream written;
        written << number;
        plain.cgmClearDepth("f", 1, number);
        EXPECT_EQ("glClearDepth(" + written.str() + ");\n", take());
    }
}

// Every operation reaches the next interceptor exactly once, under its own
// name; those whose pointer data has no recording say so in one line and
// write no line comment.
TEST_F(RekorderTest, EveryOperationIsRecordedAndForwarded)
{
    alignas(16) static unsigned char scratch[4096]; // zeros: empty strings, counts of 0
    unsigned int unsupported = 0;
    for (unsigned int index = 0; index < OruTest::operationCount; ++index)
    {
        const std::string name = OruTest::operations[index].glName;
        OruTest::invokeOperation(commented, index, "f", 1, scratch);
        ASSERT_EQ(index + 1, bottom.calls) << name;
        ASSERT_EQ("cgm" + name.substr(2), bottom.lastOperation);

        const std::string text = take();
        const std::string refusal = "OpenGLRekorderUnsupported(\"Capturing an OpenGL function (" + name +
                                    ") with pointer parameter requires a specialized implementation!\");\n";
        if (text == refusal)
        {
            ++unsupported;
            EXPECT_TRUE(OruTest::operations[index].takesPointer) << name;
        }
        else
        {
            const bool warned = text.rfind("WARNING!!! Encountered unsupported type", 0) == 0; // pixel type 0
            EXPECT_TRUE(warned || text.find(name + "(") != std::string::npos) << name << ": " << text;
            EXPECT_EQ(std::string::npos, text.find("OpenGLRekorderUnsupported")) << name;
        }
    }
    EXPECT_EQ(739u, unsupported);
}

TEST_F(RekorderTest, ConsecutiveUploadsSeekToTheirOwnBlocks)
{
    const unsigned char rgba[2 * 2 * 4] = { 1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11, 12, 13, 14, 15, 16 };
    const float rgb[3] = { 0.25f, 0.5f, 1.0f };
    commented.cgmTexImage2D("scene.cpp", 40, GL_TEXTURE_2D, 0, GL_RGBA8, 2, 2, 0, GL_RGBA, GL_UNSIGNED_BYTE, rgba);
    EXPECT_EQ(readBack(0) +
                  "    glTexImage2D(GL_TEXTURE_2D, 0, 32856, 2, 2, 0, GL_RGBA, GL_UNSIGNED_BYTE, &data[0]);"
                  "\t\t// scene.cpp, line 40\n}\n",
              take());
    commented.cgmTexSubImage2D("scene.cpp", 41, GL_TEXTURE_2D, 1, 1, 0, 1, 1, GL_RGB, GL_FLOAT, rgb);
    EXPECT_EQ(readBack(0 + 16 + 4) +
                  "    glTexSubImage2D(GL_TEXTURE_2D, 1, 1, 0, 1, 1, GL_RGB, GL_FLOAT, &data[0]);"
                  "\t\t// scene.cpp, line 41\n}\n",
              take());
    EXPECT_EQ(le32(16) + bytesOf(rgba, 16) + le32(12) + bytesOf(rgb, 12), data.str());
    EXPECT_EQ(16u + 4 + 12 + 4, commented.binaryOffset());

    // Packed 8888 words: four bytes per pixel; rows are not padded. Each
    // recorder counts its own bytes.
    data.str("");
    const std::uint32_t words[3] = { 0x11223344, 0x55667788, 0x99AABBCC };
    plain.cgmTexSubImage2DEXT("f", 1, GL_TEXTURE_2D, 0, 0, 0, 3, 1, GL_BGRA, GL_UNSIGNED_INT_8_8_8_8_REV, words);
    EXPECT_EQ(readBack(0) + "    glTexSubImage2DEXT(GL_TEXTURE_2D, 0, 0, 0, 3, 1, GL_BGRA, "
                             "GL_UNSIGNED_INT_8_8_8_8_REV, &data[0]);\n}\n",
              take());
    EXPECT_EQ(le32(12) + bytesOf(words, 12), data.str());
}

// A stream buffer with room for a few bytes that then refuses more; on its
// first flush it notes how much another buffer held by then.
class TinyBuffer : public std::streambuf
{
public:
    explicit TinyBuffer(std::size_t room) : storage_(room) { setp(storage_.data(), storage_.data() + room); }
    std::string written() const { return std::string(pbase(), pptr()); }
    TinyBuffer const* watched = nullptr;
    std::size_t heldAtFirstFlush = std::string::npos;

protected:
    int sync() override
    {
        if (watched && heldAtFirstFlush == std::string::npos)
            heldAtFirstFlush = watched->written().size();
        return 0;
    }

private:
    std::vector<char> storage_;
};

// Block lengths follow the rules of a stream write: nothing goes into a stream
// that has failed, a tied stream is flushed first, a refusing buffer marks
// the stream bad.
TEST_F(RekorderTest, BinaryBlocksKeepTheStreamsStateRules)
{
    const unsigned char rgba[4] = { 1, 2, 3, 4 };
    TinyBuffer small(2);
    std::ostream refusing(&small);
    OpenGLRekorder first(code, refusing, &bottom, false);
    first.cgmTexImage2D("f", 1, GL_TEXTURE_2D, 0, GL_RGBA8, 1, 1, 0, GL_RGBA, GL_UNSIGNED_BYTE, rgba);
    EXPECT_TRUE(refusing.bad());
    EXPECT_EQ(le32(4).substr(0, 2), small.written());

    TinyBuffer roomy(64);
    std::ostream failed(&roomy);
    failed.setstate(std::ios_base::failbit);
    OpenGLRekorder second(code, failed, &bottom, false);
    second.cgmTexImage2D("f", 1, GL_TEXTURE_2D, 0, GL_RGBA8, 1, 1, 0, GL_RGBA, GL_UNSIGNED_BYTE, rgba);
    EXPECT_EQ("", roomy.written());

    TinyBuffer tiedTo(64), target(64);
    std::ostream tie(&tiedTo), tied(&target);
    tied.tie(&tie);
    tiedTo.watched = &target;
    OpenGLRekorder third(code, tied, &bottom, false);
    third.cgmTexImage2D("f", 1, GL_TEXTURE_2D, 0, GL_RGBA8, 1, 1, 0, GL_RGBA, GL_UNSIGNED_BYTE, rgba);
    EXPECT_EQ(0u, tiedTo.heldAtFirstFlush);
    EXPECT_EQ(le32(4) + bytesOf(rgba, 4), target.written());
    EXPECT_TRUE(tied.good());
}

TEST_F(RekorderTest, UploadsWithoutPixelsOrOfUnknownLayoutWriteOneLineAndStillForward)
{
    commented.cgmTexImage2D("f", 1, GL_TEXTURE_2D, 0, GL_RGBA, 4, 4, 0, GL_RGBA, GL_UNSIGNED_BYTE, nullptr);
    EXPECT_EQ("glTexImage2D(GL_TEXTURE_2D, 0, 6408, 4, 4, 0, GL_RGBA, GL_UNSIGNED_BYTE, 0);\n", take());

    const unsigned short pixels[16] = {};
    commented.cgmTexImage2D("f", 2, GL_TEXTURE_2D, 0, GL_RGBA, 2, 2, 0, GL_RGBA, GL_UNSIGNED_SHORT, pixels);
    EXPECT_EQ("WARNING!!! Encountered unsupported type and / or format (type=5123, format=6408).\n", take());
    commented.cgmTexSubImage2D("f", 3, GL_TEXTURE_2D, 0, 0, 0, 2, 2, GL_LUMINANCE, GL_UNSIGNED_BYTE, pixels);
    EXPECT_EQ("WARNING!!! Encountered unsupported type and / or format (type=5121, format=6409).\n", take());

    EXPECT_EQ(3u, bottom.calls);
    EXPECT_STREQ("cgmTexSubImage2D", bottom.lastOperation);
    EXPECT_EQ("", data.str());
    EXPECT_EQ(0u, commented.binaryOffset());
}

TEST_F(RekorderTest, ShaderSourcesAreBlocksWithEightByteLengths)
{
    char const* sources[] = { "void main() {}", "// two" };
    commented.cgmShaderSource("shader.cpp", 7, 3, 2, sources, nullptr);
    const std::string expected =
        "{\n"
        "    pBinaryInputStream->seekg(0);\n"
        "    char *data[2];\n"
        "    std::vector<GLint> lengths_data;\n"
        "    if (0) lengths_data.resize(2);\n"
        "    for (GLsizei n = 0; n < 2; n++)\n"
        "    {\n"
        "        GLint nSize = 0;\n"
        "        pBinaryInputStream->read((char *)&nSize, sizeof(nSize));\n"
        "        if (0) lengths_data[n] = nSize;\n"
        "        data[n] = new char[nSize];\n"
        "        pBinaryInputStream->read(data[n], nSize);\n"
        "    };\n"
        "    if (0)\n"
        "        glShaderSource(3, 2, (const GLchar **)data, &lengths_data[0]);\t\t// shader.cpp, line 7\n"
        "    else\n"
        "        glShaderSource(3, 2, (const GLchar **)data, NULL);\t\t// shader.cpp, line 7\n"
        "    for (GLsizei n = 0; n < 2; n++)\n"
        "    {\n"
        "        delete[] data[n];\n"
        "    }\n"
        "}\n";
    EXPECT_EQ(expected, take());
    // Each string with its terminating zero.
    EXPECT_EQ(le64(15) + std::string("void main() {}", 15) + le64(7) + std::string("// two", 7), data.str());
    EXPECT_EQ((14u + 1 + 8) + (6u + 1 + 8), commented.binaryOffset());

    // With lengths: the caller's lengths, and the pointer decides the replay's branch.
    data.str("");
    const GLint lengths[] = { 4 };
    commented.cgmShaderSourceARB("f", 1, 9, 1, sources, lengths);
    const std::string text = take();
    EXPECT_NE(std::string::npos, text.find("    pBinaryInputStream->seekg(38);\n")) << text;
    EXPECT_NE(std::string::npos, text.find("    if (" + hexAddress(lengths) + ") lengths_data.resize(1);\n"));
    EXPECT_NE(std::string::npos, text.find("        glShaderSourceARB((GLhandleARB)9, 1, (const GLchar **)data, "
                                           "&lengths_data[0]);\t\t// f, line 1\n    else\n"));
    // The ARB replay frees only the first string.
    EXPECT_NE(std::string::npos, text.find("    for (GLsizei n = 0; n < 1; n++)\n    {\n        delete[]"));
    EXPECT_EQ(le64(4) + "void", data.str());
    EXPECT_EQ(38u + 8 + 4, commented.binaryOffset());
}

// The specialised recordings, each compared in full.
TEST_F(RekorderTest, SpecialisedMembersWriteTheirOwnStatementsAndBlocks)
{
    const GLfloat matrix[16] = { 1, 0, 0, 0, 0, 2, 0, 0, 0, 0, 3, 0, 4, 5, 6, 1 };
    const GLdouble matrixd[16] = { 1, 0, 0, 0, 0, 1, 0, 0, 0, 0, 1, 0, 0, 0, 0, 1 };
    const GLuint names[4] = { 5, 6, 0xA1A2A3A4, 0xB1B2B3B4 }; // room for the eight bytes per name copied
    const GLenum buffers[2] = { GL_COLOR_ATTACHMENT0_EXT, 0 };
    const GLfloat uniforms[6] = { 1, 2, 3, 4, 5, 6 };
    const GLint ints[2] = { 3, -4 };
    const GLfloat pair[2] = { 0.5f, -2 };
    const GLfloat triple[3] = { 1, 0, 0.25f };
    const GLfloat border[4] = { 1, 0.5f, 0, 1 };
    GLfloat scratch[16] = {};
    GLint iscratch[16] = {};
    GLsizei length = 0;
    GLenum type = 0;
    GLuint shaders[2] = {};
    GLcharARB log[100] = {};
    unsigned char pixels[16] = {};

    const struct
    {
        std::function<void(OpenGLRekorder&)> call;
        std::string text;
        std::string block;
    } cases[] = {
        { [&](OpenGLRekorder& r) { r.cgmLoadMatrixf("f", 1, matrix); },
          readBack(0) + "    glLoadMatrixf((GLfloat *)&data[0]);\n}\n", le32(64) + bytesOf(matrix, 64) },
        { [&](OpenGLRekorder& r) { r.cgmMultMatrixf("f", 1, matrix); },
          readBack(0) + "    glMultMatrixf(reinterpret_cast<const GLfloat *>(&data[0]));\n}\n",
          le32(64) + bytesOf(matrix, 64) },
        { [&](OpenGLRekorder& r) { r.cgmMultMatrixd("f", 1, matrixd); },
          readBack(0) + "    glMultMatrixd(reinterpret_cast<const GLdouble *>(&data[0]));\n}\n",
          le32(128) + bytesOf(matrixd, 128) },
        { [&](OpenGLRekorder& r) { r.cgmDeleteTextures("f", 1, 2, names); },
          readBack(0) + "    glDeleteTextures(2, reinterpret_cast<const GLuint *>(&data[0]));\n}\n",
          le64(16) + bytesOf(names, 16) },
        { [&](OpenGLRekorder& r) { r.cgmDeleteFramebuffersEXT("f", 1, 1, names); },
          readBack(0) + "    glDeleteFramebuffersEXT(1, reinterpret_cast<const GLuint *>(&data[0]));\n}\n",
          le64(8) + bytesOf(names, 8) },
        { [&](OpenGLRekorder& r) { r.cgmDrawBuffersARB("f", 1, 1, buffers); },
          readBack(0) + "    glDrawBuffersARB(1, reinterpret_cast<const GLenum *>(&data[0]));\n}\n",
          le64(8) + bytesOf(buffers, 8) },
        { [&](OpenGLRekorder& r) { r.cgmGetUniformLocationARB("f", 1, 5, "tint"); },
          readBack(0) + "    glGetUniformLocationARB((GLhandleARB)5, &data[0]);\n}\n", le64(5) + std::string("tint", 5) },
        { [&](OpenGLRekorder& r) { r.cgmUniform3fv("f", 1, 2, 2, uniforms); },
          readBack(0) + "    glUniform3fv(2, 2, reinterpret_cast<const GLfloat *>(&data[0]));\n}\n",
          le32(24) + bytesOf(uniforms, 24) },
        { [&](OpenGLRekorder& r) { r.cgmUniform1ivARB("f", 1, -1, 2, ints); },
          readBack(0) + "    glUniform1ivARB(-1, 2, reinterpret_cast<const GLint *>(&data[0]));\n}\n",
          le32(8) + bytesOf(ints, 8) },
        { [&](OpenGLRekorder& r) { r.cgmGenTextures("f", 1, 3, shaders); },
          "{\n    GLuint textures[3];\n    glGenTextures(3, &textures[0]);\n}\n", "" },
        { [&](OpenGLRekorder& r) { r.cgmGenFramebuffersEXT("f", 1, 2, shaders); },
          "{\n    GLuint framebuffers[2];\n    glGenFramebuffersEXT(2, &framebuffers[0]);\n}\n", "" },
        { [&](OpenGLRekorder& r) { r.cgmGetFloatv("f", 1, GL_VIEWPORT, scratch); },
          "{\n    GLfloat data[4 * 4];\n    glGetFloatv(GL_VIEWPORT, &data[0]);\n}\n", "" },
        { [&](OpenGLRekorder& r) { r.cgmGetObjectParameterivARB("f", 1, 5, 0x8B81, iscratch); },
          "{\n    GLint data[4 * 4];\n    glGetObjectParameterivARB((GLhandleARB)5, GL_COMPILE_STATUS, &data[0]);\n}\n",
          "" },
        { [&](OpenGLRekorder& r) { r.cgmGetTexLevelParameteriv("f", 1, GL_TEXTURE_2D, 0, GL_TEXTURE_WIDTH, iscratch); },
          "{\n    GLint data;\n    glGetTexLevelParameteriv(GL_TEXTURE_2D, 0, GL_TRANSFORM_BIT, &data);\n}\n", "" },
        { [&](OpenGLRekorder& r) { r.cgmGetShaderiv("f", 1, 3, 0x8B81, iscratch); },
          "{\n    int data;\n    glGetShaderiv(3, GL_COMPILE_STATUS, &data);\n}\n", "" },
        { [&](OpenGLRekorder& r) { r.cgmGetProgramInfoLog("f", 1, 4, 100, &length, log); },
          "{\n    std::vector<char> data(100);\n    glGetProgramInfoLog(4, 100, NULL, &data[0]);\n}\n", "" },
        { [&](OpenGLRekorder& r) { r.cgmGetAttachedShaders("f", 1, 4, 2, &length, shaders); },
          "{\n    GLsizei count[2];\n    GLuint shaders[2];\n    glGetAttachedShaders(4, 2, &count[0], &shaders[0]);\n}\n",
          "" },
        { [&](OpenGLRekorder& r) { r.cgmGetActiveUniformARB("f", 1, 9, 1, 31, &length, iscratch, &type, log); },
          "{\n    GLcharARB data[32];\n    GLsizei length;\n    GLint size;\n    GLenum type;\n"
          "    glGetActiveUniformARB((GLhandleARB)9, 1, 31, &length, &size, &type, &data[0]);\n}\n",
          "" },
        { [&](OpenGLRekorder& r) { r.cgmGetInfoLogARB("f", 1, 9, 99, &length, log); },
          "{\n    GLcharARB data[100];\n    GLsizei length;\n    glGetInfoLogARB((GLhandleARB)9, 99, &length, &data[0]);\n}\n",
          "" },
        { [&](OpenGLRekorder& r) { r.cgmGetInfoLogARB("f", 1, 9, 99, nullptr, log); },
          "{\n    GLcharARB data[100];\n    GLsizei length;\n    glGetInfoLogARB((GLhandleARB)9, 99, NULL, &data[0]);\n}\n",
          "" },
        { [&](OpenGLRekorder& r) { r.cgmVertex2fv("f", 1, pair); },
          "{\n    int tmp_i[] = { 1056964608, -1073741824 }; // 0.5, -2\n"
          "    glVertex2fv( reinterpret_cast<float *>(&tmp_i[0]) );\n}\n",
          "" },
        { [&](OpenGLRekorder& r) { r.cgmMultiTexCoord3fvARB("f", 1, GL_TEXTURE1, triple); },
          "{\n    int tmp_i[] = { 1065353216, 0, 1048576000 }; // 1, 0, 0.25\n"
          "    glMultiTexCoord3fvARB(GL_TEXTURE1, reinterpret_cast<float *>(&tmp_i[0]) );\n}\n",
          "" },
        { [&](OpenGLRekorder& r) { r.cgmMultiTexCoord2iv("f", 1, GL_TEXTURE0, ints); },
          "{\n    int tmp_i[] = { 3, -4 }; // 3, -4\n"
          "    glMultiTexCoord2iv(GL_TEXTURE0, reinterpret_cast<int *>(&tmp_i[0]) );\n}\n",
          "" },
        { [&](OpenGLRekorder& r) { r.cgmTexParameterfv("f", 1, GL_TEXTURE_2D, GL_TEXTURE_BORDER_COLOR, border); },
          "{\n    int tmp_i[] = { makeFloat(1065353216) /* 1 */, makeFloat(1056964608) /* 0.5 */, makeFloat(0) /* 0 */, "
          "makeFloat(1065353216) /* 1 */ };\n"
          "    glTexParameterfv(GL_TEXTURE_2D, GL_TEXTURE_BORDER_COLOR, reinterpret_cast<float *>(&tmp_i[0]) );\n}\n",
          "" },
        { [&](OpenGLRekorder& r) { r.cgmReadPixels("f", 1, 0, 1, 2, 2, GL_RGBA, GL_UNSIGNED_BYTE, pixels); },
          "//glReadPixels(0, 1, 2, 2, GL_RGBA, GL_UNSIGNED_BYTE, " + hexAddress(pixels) + ");\n", "" },
    };
    unsigned int forwarded = 0;
    for (auto const& c : cases)
    {
        data.str("");
        OpenGLRekorder recorder(code, data, &bottom, false);
        c.call(recorder);
        EXPECT_EQ(c.text, take());
        EXPECT_EQ(c.block, data.str()) << c.text;
        EXPECT_EQ(c.block.size(), recorder.binaryOffset());
        EXPECT_EQ(++forwarded, bottom.calls) << c.text;
    }
}

// The 2x2 uniform matrices have their own reader and never a line comment.
TEST_F(RekorderTest, UniformMatrix2HasAnUninitialisedSizeAndNoLineComment)
{
    const GLfloat m[8] = { 1, 2, 3, 4, 5, 6, 7, 8 };
    commented.cgmUniformMatrix2fv("f", 1, 3, 2, GL_TRUE, m);
    EXPECT_EQ("{\n"
              "    pBinaryInputStream->seekg(0);\n"
              "    unsigned int nSize;\n"
              "    pBinaryInputStream->read((char *)&nSize, sizeof(nSize));\n"
              "    std::vector<char> data(nSize);\n"
              "    pBinaryInputStream->read(&data[0], nSize);\n"
              "    glUniformMatrix2fv(3, 2, true, reinterpret_cast<const GLfloat *>(&data[0]));\n"
              "}\n",
              take());
    EXPECT_EQ(le32(32) + bytesOf(m, 32), data.str());
    commented.cgmUniformMatrix2fvARB("f", 2, 4, 1, GL_FALSE, m);
    EXPECT_NE(std::string::npos,
              take().find("    glUniformMatrix2fvARB(4, 1, false, reinterpret_cast<const GLfloat *>(&data[0]));\n}\n"));
}

TEST_F(RekorderTest, ANewBinaryStreamContinuesTheOffsets)
{
    const GLfloat m[16] = {};
    plain.cgmLoadMatrixf("f", 1, m);
    std::ostringstream second;
    plain.setBinaryOutputStream(second);
    EXPECT_EQ(&second, plain.binaryOutputStream());
    plain.cgmLoadMatrixf("f", 2, m);
    EXPECT_NE(std::string::npos, take().find("pBinaryInputStream->seekg(68);"));
    EXPECT_EQ(68u, data.str().size());
    EXPECT_EQ(68u, second.str().size());
}

// The recorder writes first and forwards second, so a call that fails is in
// the recording; the exception reaches the caller unchanged.
TEST_F(RekorderTest, ExceptionsPassThroughAfterTheTextIsWritten)
{
    OpenGLInterceptor* checker = OpenGLInterceptor::Instance(); // no GL context: glEnd is refused before GL
    OpenGLRekorder recorder(code, data, checker, true);
    EXPECT_EQ(OruTest::Raised::at("client.cpp", 77, "Unbalanced glEnd()!"),
              OruTest::raisedBy<Oru::OGL::ExceptionOGL>([&] { recorder.cgmEnd("client.cpp", 77); }));
    EXPECT_EQ("glEnd();\t\t// client.cpp, line 77\n", take());
}
