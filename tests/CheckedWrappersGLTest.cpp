// Checked wrappers against the driver: with the start-up option on, a GL error
// made by a wrapper member is raised at that member, named after it; with the
// option off (the default) the same calls raise nothing and leave the error to
// the caller, as before. Run at the driver's own version and at 2.1.
#include "support/GLSLGLTest.h"
#include "support/Raises.h"

#include "oru_ogl/ExceptionOGL.h"
#include "oru_ogl/LibraryOGL.h"
#include "oru_ogl/extensionator/ExtensionManager.h"
#include "oru_ogl/ogl/ContextOffscreen.h"
#include "oru_ogl/ogl/PixelUnpackParameters.h"
#include "oru_ogl/ogl/Program.h"
#include "oru_ogl/ogl/Texture2.h"
#include "oru_ogl/ogl/TextureUnit.h"

#include <functional>
#include <string>
#include <vector>

using Oru::OGL::ExceptionOGL;
using Oru::OGL::ExtensionManager;
using Oru::OGL::Library;
using Oru::OGL::PixelUnpackParameters;
using Oru::OGL::Program;
using Oru::OGL::Texture;
using Oru::OGL::Texture2D;
using Oru::OGL::TextureUnit;
using OruTest::glInteger;
using OruTest::Raised;
using OruTest::raisedBy;

namespace
{

class CheckedWrappersGLTest : public OruTest::LayerGLTest
{
protected:
    // Starts the layer again for the fixture's context with the option set.
    static void restart(bool checked)
    {
        Library::terminateExtensionator();
        ExtensionManager::InitOptions options;
        options.setCheckedWrappers(checked);
        Library::initializeExtensionator(&context(), options);
    }

    void TearDown() override
    {
        restart(false);
        LayerGLTest::TearDown();
    }

    // What the action raised as ExceptionOGL, the line left out: the member's
    // name in the message is what tells the caller where the error came from.
    static Raised raisedAt(std::function<void()> const& action)
    {
        Raised raised = raisedBy<ExceptionOGL>(action);
        raised.line = 0;
        return raised;
    }
};

} // namespace

TEST_F(CheckedWrappersGLTest, TheOptionIsOffByDefaultAndKeptByTheManager)
{
    ExtensionManager::InitOptions options;
    EXPECT_FALSE(options.checkedWrappers());
    options.setCheckedWrappers(true);
    EXPECT_TRUE(ExtensionManager::InitOptions(options).checkedWrappers());
    restart(true);
    EXPECT_TRUE(ExtensionManager::Instance()->initOptions().checkedWrappers());
}

TEST_F(CheckedWrappersGLTest, TextureErrorsRaiseAtTheMemberOnlyWhenChecked)
{
    std::vector<unsigned char> image(16 * 16 * 4);
    for (bool checked : { false, true })
    {
        SCOPED_TRACE(checked ? "checked" : "unchecked");
        restart(checked);
        Texture2D texture(Texture::RGBA8, 16, 16, false);
        TextureUnit::Unit(0)->bind(&texture);
        auto tooLarge = [] { Texture2D(Texture::RGBA8, 1 << 20, 1 << 20, false); };
        auto outside = [&] {
            texture.subImage(0, 8, 8, 16, 16, Texture::Format::RGBA, Texture::UNSIGNED_BYTE, image.data(),
                             PixelUnpackParameters());
        };
        glPixelStorei(GL_UNPACK_ROW_LENGTH, 3);
        if (checked)
        {
            EXPECT_EQ(Raised::at("ogl/Texture2.cpp", 0, "Texture2::Texture2: invalid value", GL_INVALID_VALUE),
                      raisedAt(tooLarge));
            EXPECT_EQ(Raised::at("ogl/Texture2.cpp", 0, "Texture2::subImage: invalid value", GL_INVALID_VALUE),
                      raisedAt(outside));
            EXPECT_EQ(3, glInteger(GL_UNPACK_ROW_LENGTH)) << "the pixel-store state is restored on the raise";
            EXPECT_EQ(static_cast<GLenum>(GL_NO_ERROR), glGetError()) << "the check took the error";
        }
        else
        {
            EXPECT_EQ(Raised(), raisedAt(tooLarge));
            EXPECT_EQ(static_cast<GLenum>(GL_INVALID_VALUE), glGetError()) << "left to the caller";
            EXPECT_EQ(Raised(), raisedAt(outside));
            EXPECT_EQ(static_cast<GLenum>(GL_INVALID_VALUE), glGetError()) << "left to the caller";
        }
        glPixelStorei(GL_UNPACK_ROW_LENGTH, 0);
    }
}

// The check runs at the member's end, so an error that a raw GL call left
// pending is reported by the next checked member, which did nothing wrong.
TEST_F(CheckedWrappersGLTest, AnErrorPendingBeforeTheMemberIsReportedByIt)
{
    restart(true);
    Texture2D texture(Texture::RGBA8, 4, 4, false);
    TextureUnit::Unit(0)->bind(&texture);
    glEnable(0xFFFF); // GL_INVALID_ENUM, unchecked
    EXPECT_EQ(Raised::at("ogl/Texture.cpp", 0, "Texture::setFilter: invalid enumerant", GL_INVALID_ENUM),
              raisedAt([&] { texture.setFilter(Texture::LINEAR, Texture::LINEAR); }));
    EXPECT_EQ(Raised(), raisedAt([&] { texture.setFilter(Texture::LINEAR, Texture::LINEAR); }));
}

TEST_F(CheckedWrappersGLTest, UniformErrorsRaiseAtTheSetterOnlyWhenChecked)
{
    if (!Program::isSupported())
        GTEST_SKIP() << "OpenGL 2.0 is not marked";
    const char* fragment = "#version 110\nuniform vec4 v;\nvoid main() { gl_FragColor = v; }\n";
    float triples[6] = {};
    for (bool checked : { false, true })
    {
        SCOPED_TRACE(checked ? "checked" : "unchecked");
        restart(checked);
        Program program;
        OruTest::load(program, OruTest::kVertexSource, fragment);
        program.link(true);
        program.enable();
        const int v = program.getUniformLocation("v");
        // ints into a vec4, by name and unchecked by location; vec3 triples
        // (setUniform4 with floats) into a vec4.
        const std::vector<std::pair<std::string, std::function<void()>>> wrong = {
            { "Program::setUniform", [&] { program.setUniform("v", 1, 2, 3, 4); } },
            { "Program::setUniform_Unsafe", [&] { program.setUniform_Unsafe(v, 1, 2, 3, 4); } },
            { "Program::setUniform4", [&] { program.setUniform4(v, 2, triples); } },
        };
        for (auto const& setter : wrong)
        {
            if (checked)
            {
                EXPECT_EQ(Raised::at("ogl/Program.cpp", 0, setter.first + ": invalid operation", GL_INVALID_OPERATION),
                          raisedAt(setter.second));
            }
            else
            {
                EXPECT_EQ(Raised(), raisedAt(setter.second)) << setter.first;
                EXPECT_EQ(static_cast<GLenum>(GL_INVALID_OPERATION), glGetError()) << setter.first;
            }
        }
        EXPECT_EQ(Raised(), raisedAt([&] { program.setUniform("v", 1.0f, 2.0f, 3.0f, 4.0f); }));
        program.disable();
    }
}
