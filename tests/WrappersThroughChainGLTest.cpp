// Wrappers through the chain against the driver: with the start-up option on,
// a tracer pushed on the chain sees the wrappers' own GL calls with their
// source files; with it off (the default) it sees none. Routed calls are
// checked by the chain's error checker; refusals stay as they are and
// destructors never throw. Run in every configuration of the GLSL tests.
#include "support/GLSLGLTest.h"
#include "support/Raises.h"

#include "oru_ogl/ExceptionOGL.h"
#include "oru_ogl/LibraryOGL.h"
#include "oru_ogl/extensionator/ExtensionManager.h"
#include "oru_ogl/extensionator/OpenGLInterceptor.h"
#include "oru_ogl/extensionator/OpenGLTracer.h"
#include "oru_ogl/ogl/ContextOffscreen.h"
#include "oru_ogl/ogl/Framebuffer.h"
#include "oru_ogl/ogl/PixelUnpackParameters.h"
#include "oru_ogl/ogl/Program.h"
#include "oru_ogl/ogl/Texture2.h"
#include "oru_ogl/ogl/TextureUnit.h"

#include <regex>
#include <sstream>
#include <string>
#include <vector>

using namespace Oru::OGL;
using OruTest::glInteger;
using OruTest::Raised;
using OruTest::raisedBy;

namespace
{

class WrappersThroughChainGLTest : public OruTest::LayerGLTest
{
protected:
    // Starts the layer again for the fixture's context, with the options it
    // had and this one set.
    static void restart(bool routed)
    {
        ExtensionManager::InitOptions options = ExtensionManager::Instance()->initOptions();
        options.setWrappersThroughChain(routed);
        Library::terminateExtensionator();
        Library::initializeExtensionator(&context(), options);
    }

    void TearDown() override
    {
        restart(false);
        TextureUnit::Unit(0)->bind2DDefault();
        LayerGLTest::TearDown();
    }
};

// The lines of a trace; each must read "ogl/File.cpp:line: glName(arguments)".
std::vector<std::string> traceLines(std::string const& text)
{
    static const std::regex kLine(R"(ogl/\w+\.cpp:[1-9][0-9]*: gl\w+\(.*\))");
    std::vector<std::string> lines;
    std::istringstream in(text);
    for (std::string line; std::getline(in, line);)
    {
        EXPECT_TRUE(std::regex_match(line, kLine)) << line;
        lines.push_back(line);
    }
    return lines;
}

// Whether a line of the trace comes from file and its call starts with call.
bool traced(std::vector<std::string> const& lines, std::string const& file, std::string const& call)
{
    for (std::string const& line : lines)
        if (line.compare(0, file.size() + 1, file + ":") == 0 && line.compare(line.find(": ") + 2, call.size(), call) == 0)
            return true;
    return false;
}

const char* const kFragment = "#version 110\nuniform vec4 v;\nuniform mat2 m;\n"
                              "void main() { gl_FragColor = v + vec4(m[0], m[1]); }\n";

} // namespace

TEST_F(WrappersThroughChainGLTest, ATracerSeesTheWrappersCallsOnlyWhenRouted)
{
    EXPECT_FALSE(ExtensionManager::InitOptions().wrappersThroughChain());
    std::vector<unsigned char> image(4 * 4 * 4, 0x80);
    const float matrix[4] = { 1.0f, 0.0f, 0.0f, 1.0f };
    std::vector<Raised> refusals;
    for (bool routed : { false, true })
    {
        SCOPED_TRACE(routed ? "routed" : "direct");
        restart(routed);
        EXPECT_EQ(routed, ExtensionManager::Instance()->initOptions().wrappersThroughChain());
        std::ostringstream text;
        OpenGLTracer tracer(text);
        OpenGLInterceptor::Instance()->addInterceptor(&tracer);
        std::string attachCall;
        {
            Texture2D texture(Texture::RGBA8, 4, 4, false);
            TextureUnit::Unit(0)->bind(&texture);
            texture.subImage(0, 0, 0, 4, 4, Texture::Format::RGBA, Texture::UNSIGNED_BYTE, image.data(),
                             PixelUnpackParameters());
            TextureUnit::Unit(0)->bind2DDefault();
            Framebuffer framebuffer;
            refusals.push_back(raisedBy([&] { framebuffer.unbind(); }));
            framebuffer.bind();
            framebuffer.attach(&texture, 0, 0);
            framebuffer.unbind();
            attachCall = "glFramebufferTexture2DEXT(GL_FRAMEBUFFER_EXT, GL_COLOR_ATTACHMENT0_EXT, GL_TEXTURE_2D, " +
                         std::to_string(texture.objectID()) + ", 0)";
            if (Program::isSupported())
            {
                Program program;
                OruTest::load(program, OruTest::kVertexSource, kFragment);
                program.link(true);
                program.enable();
                program.setUniform("v", 1.0f, 2.0f, 3.0f, 4.0f);
                program.setUniformMatrix2("m", matrix, false);
                program.disable();
            }
        }
        EXPECT_EQ(&tracer, OpenGLInterceptor::Instance()->popInterceptor());
        if (!routed)
        {
            EXPECT_EQ("", text.str());
            continue;
        }
        const std::vector<std::string> lines = traceLines(text.str());
        EXPECT_TRUE(traced(lines, "ogl/TextureTransfer.cpp", "glTexImage2D(GL_TEXTURE_2D, 0, "));
        EXPECT_TRUE(traced(lines, "ogl/TextureTransfer.cpp",
                           "glTexSubImage2D(GL_TEXTURE_2D, 0, 0, 0, 4, 4, GL_RGBA, GL_UNSIGNED_BYTE, "));
        EXPECT_TRUE(traced(lines, "ogl/TextureTransfer.cpp", "glPopClientAttrib()")) << "the restoring scope's";
        EXPECT_TRUE(traced(lines, "ogl/Texture.cpp", "glDeleteTextures(1, ")) << "the destructor's";
        EXPECT_TRUE(traced(lines, "ogl/Framebuffer.cpp", "glBindFramebufferEXT(GL_FRAMEBUFFER_EXT, "));
        EXPECT_TRUE(traced(lines, "ogl/Framebuffer.cpp", attachCall));
        if (Program::isSupported())
        {
            EXPECT_TRUE(traced(lines, "ogl/Shader.cpp", "glCompileShader("));
            for (char const* call : { "glLinkProgram(", "glUseProgram(", "glUniform4f(", "glUniformMatrix2fv(" })
                EXPECT_TRUE(traced(lines, "ogl/Program.cpp", call)) << call;
        }
    }
    ASSERT_EQ(2u, refusals.size());
    EXPECT_TRUE(refusals[0].raised);
    EXPECT_EQ(refusals[0], refusals[1]) << "a refusal reports the same file, line and text either way";
}

// Routed, the chain's error checker raises a GL error at the wrapper's call;
// the transfer puts the pixel-store state back on the way out. A destructor
// that meets an error (here one a raw call left pending) drops it and does
// not throw: it would end the program.
TEST_F(WrappersThroughChainGLTest, RoutedErrorsRaiseAtTheWrappersCallButNotInDestructors)
{
    restart(true);
    std::vector<unsigned char> image(16 * 16 * 4);
    Texture2D texture(Texture::RGBA8, 16, 16, false);
    TextureUnit::Unit(0)->bind(&texture);
    glPixelStorei(GL_UNPACK_ROW_LENGTH, 3);
    Raised raised = raisedBy<ExceptionOGL>([&] {
        texture.subImage(0, 8, 8, 16, 16, Texture::Format::RGBA, Texture::UNSIGNED_BYTE, image.data(),
                         PixelUnpackParameters());
    });
    EXPECT_NE(0, raised.line);
    raised.line = 0;
    EXPECT_EQ(Raised::at("ogl/TextureTransfer.cpp", 0, "invalid value", GL_INVALID_VALUE), raised);
    EXPECT_EQ(3, glInteger(GL_UNPACK_ROW_LENGTH)) << "the pixel-store state is restored on the raise";
    glPixelStorei(GL_UNPACK_ROW_LENGTH, 0);

    GLuint name = 0;
    {
        Texture2D doomed(Texture::RGBA8, 4, 4, false);
        name = doomed.objectID();
        glEnable(0xFFFF); // GL_INVALID_ENUM, left pending
    }
    EXPECT_FALSE(glIsTexture(name)) << "the destructor deleted its texture";
    EXPECT_EQ(static_cast<GLenum>(GL_NO_ERROR), glGetError()) << "the chain took the error";
}
