// The interception chain against the real driver: GL errors pinned to the
// caller's line, glBegin/glEnd pairs, results passed back, extension entry
// points loaded from the driver and called through their pointers.
#include "support/GLTest.h"
#include "support/Raises.h"

#include "oru_ogl/ExceptionOGL.h"
#include "oru_ogl/extensionator/EntryPoints.h"
#include "oru_ogl/extensionator/ExtensionCatalogue.h"
#include "oru_ogl/extensionator/GLCall.h"
#include "oru_ogl/extensionator/windows/WglEntryPoints.h"
#include "support/ForwardingDecorator.h"

#include "oru_core/Exceptions.h"

#include <GL/glu.h>

#include <cstring>
#include <sstream>
#include <string>
#include <vector>

using Oru::OGL::ExceptionOGL;
using Oru::OGL::ExtensionCatalogue;
using Oru::OGL::OpenGLInterceptor;
using Oru::OGL::teExtension;
using OruTest::GLTest;
using OruTest::Raised;
using OruTest::raisedBy;
namespace OGL = Oru::OGL;

namespace
{

const GLenum kNoSuchCapability = 0xFFFF;

class InterceptorGLTest : public GLTest
{
protected:
    void SetUp() override
    {
        GLTest::SetUp();
        while (glGetError() != GL_NO_ERROR)
        {
        }
        gl = OpenGLInterceptor::Instance();
    }
    void TearDown() override
    {
        EXPECT_EQ(static_cast<GLenum>(GL_NO_ERROR), glGetError()) << "a GL error was left behind";
    }

    OpenGLInterceptor* gl = nullptr;
};

std::vector<std::string> split(char const* text)
{
    std::vector<std::string> tokens;
    std::istringstream in(text ? text : "");
    for (std::string token; in >> token;)
        tokens.push_back(token);
    return tokens;
}

std::string gluText(GLenum error)
{
    return reinterpret_cast<char const*>(gluErrorString(error));
}

// The GL error an action raised, file, line, text and number.
template <class Action>
Raised glError(Action&& action)
{
    return raisedBy<ExceptionOGL>(action);
}

} // namespace

TEST_F(InterceptorGLTest, GLErrorCarriesTheCallersFileLineTextAndCode)
{
    EXPECT_FALSE(gluText(GL_INVALID_ENUM).empty());
    const int line = __LINE__ + 1;
    const Raised direct = glError([&] { gl->cgmEnable(__FILE__, __LINE__, kNoSuchCapability); });
    EXPECT_EQ(Raised::at("tests/InterceptorGLTest.cpp", line, gluText(GL_INVALID_ENUM), GL_INVALID_ENUM), direct);
    EXPECT_EQ(Raised::at("caller.cpp", 123, gluText(GL_INVALID_VALUE), GL_INVALID_VALUE),
              glError([&] { gl->cgmLineWidth("caller.cpp", 123, -1.0f); }));
    ORU_GL glDisable(GL_BLEND);
    EXPECT_EQ(GL_FALSE, ORU_GL glIsEnabled(GL_BLEND));
}

// glGetError between glBegin and glEnd would itself raise GL_INVALID_OPERATION,
// which would surface at glEnd.
TEST_F(InterceptorGLTest, NoErrorQueryInsideBeginEnd)
{
    EXPECT_NO_THROW({
        gl->cgmBegin("f", 1, GL_TRIANGLES);
        gl->cgmColor3f("f", 2, 1.0f, 0.0f, 0.0f);
        gl->cgmVertex2f("f", 3, 0.0f, 0.0f);
        gl->cgmVertex2f("f", 4, 1.0f, 0.0f);
        gl->cgmVertex2f("f", 5, 0.0f, 1.0f);
        gl->cgmEnd("f", 6);
    });
}

TEST_F(InterceptorGLTest, ErrorsInsideAPairSurfaceAtItsEnd)
{
    gl->cgmBegin("f", 1, GL_POINTS);
    EXPECT_NO_THROW(gl->cgmEnable("f", 2, GL_BLEND)); // not allowed inside a pair
    EXPECT_EQ(Raised::at("f", 3, gluText(GL_INVALID_OPERATION), GL_INVALID_OPERATION),
              glError([&] { gl->cgmEnd("f", 3); }));
    // The pair is closed although glEnd's check threw.
    EXPECT_NO_THROW({
        gl->cgmBegin("f", 4, GL_POINTS);
        gl->cgmEnd("f", 5);
    });
}

TEST_F(InterceptorGLTest, SecondBeginIsRefusedAndNotCalled)
{
    gl->cgmBegin("f", 1, GL_LINES);
    EXPECT_EQ(Raised::at("f", 2, "Unbalanced glBegin()!"), glError([&] { gl->cgmBegin("f", 2, GL_LINES); }));
    // Had the second glBegin reached GL, glEnd would report GL_INVALID_OPERATION.
    EXPECT_NO_THROW(gl->cgmEnd("f", 3));
}

TEST_F(InterceptorGLTest, EndWithoutBeginIsNotCalled)
{
    EXPECT_EQ(Raised::at("f", 1, "Unbalanced glEnd()!"), glError([&] { gl->cgmEnd("f", 1); }));
    // Had glEnd reached GL outside a pair, an error would be pending now.
    EXPECT_EQ(static_cast<GLenum>(GL_NO_ERROR), glGetError());
}

TEST_F(InterceptorGLTest, ValueReturningCallsReturnGLsValue)
{
    EXPECT_EQ(static_cast<GLenum>(GL_NO_ERROR), gl->cgmGetError("f", 1));
    EXPECT_EQ(glGetString(GL_VERSION), gl->cgmGetString("f", 2, GL_VERSION));
    gl->cgmEnable("f", 3, GL_BLEND);
    EXPECT_EQ(GL_TRUE, gl->cgmIsEnabled("f", 4, GL_BLEND));
    gl->cgmDisable("f", 5, GL_BLEND);
    EXPECT_EQ(GL_FALSE, gl->cgmIsEnabled("f", 6, GL_BLEND));

    const GLuint lists = gl->cgmGenLists("f", 7, 2);
    EXPECT_NE(0u, lists);
    gl->cgmNewList("f", 9, lists, GL_COMPILE);
    gl->cgmEndList("f", 10);
    EXPECT_EQ(GL_TRUE, gl->cgmIsList("f", 11, lists));
    gl->cgmDeleteLists("f", 12, lists, 2);

    GLuint texture = 0;
    gl->cgmGenTextures("f", 13, 1, &texture);
    gl->cgmBindTexture("f", 14, GL_TEXTURE_2D, texture);
    gl->cgmTexImage2D("f", 15, GL_TEXTURE_2D, 0, GL_RGBA, 4, 4, 0, GL_RGBA, GL_UNSIGNED_BYTE, nullptr);
    GLboolean resident = GL_FALSE;
    const GLboolean all = gl->cgmAreTexturesResident("f", 16, 1, &texture, &resident);
    EXPECT_EQ(glAreTexturesResident(1, &texture, &resident), all);
    gl->cgmDeleteTextures("f", 17, 1, &texture);
}

TEST_F(InterceptorGLTest, ExtensionEntryPointsAreCalledThroughTheirPointers)
{
    ASSERT_TRUE(ExtensionCatalogue::loadGL(OGL::OPEN_GL_1_5)) << ExtensionCatalogue::missingEntryPoint(OGL::OPEN_GL_1_5);
    GLuint buffer = 0;
    gl->cgmGenBuffers("f", 1, 1, &buffer);
    ASSERT_NE(0u, buffer);
    gl->cgmBindBuffer("f", 2, GL_ARRAY_BUFFER, buffer);
    EXPECT_EQ(GL_TRUE, gl->cgmIsBuffer("f", 3, buffer));
    EXPECT_EQ(Raised::at("g", 4, gluText(GL_INVALID_ENUM), GL_INVALID_ENUM),
              glError([&] { gl->cgmBindBuffer("g", 4, 0x1234, buffer); }));
    gl->cgmBindBuffer("f", 5, GL_ARRAY_BUFFER, 0);
    gl->cgmDeleteBuffers("f", 6, 1, &buffer);
    EXPECT_EQ(GL_FALSE, gl->cgmIsBuffer("f", 7, buffer));
}

TEST_F(InterceptorGLTest, AnUnloadedEntryPointIsNamedNotCalled)
{
    const PFN_cgmIsBuffer saved = _cgmIsBuffer;
    _cgmIsBuffer = nullptr;
    const Raised raised = raisedBy([&] { gl->cgmIsBuffer("caller.cpp", 77, 1); });
    _cgmIsBuffer = saved;
    EXPECT_EQ(0u, raised.message.rfind("glIsBuffer is not loaded", 0)) << raised;
    EXPECT_EQ(Raised::at("caller.cpp", 77, raised.message), raised);
}

TEST_F(InterceptorGLTest, DecoratorsForwardToTheCheckerWithTheCallersLine)
{
    OruTest::ForwardingDecorator outer, inner;
    gl->addInterceptor(&inner);
    OpenGLInterceptor::Instance()->addInterceptor(&outer);
    EXPECT_EQ(Raised::at("deep.cpp", 5, gluText(GL_INVALID_ENUM), GL_INVALID_ENUM),
              glError([] { OpenGLInterceptor::Instance()->cgmEnable("deep.cpp", 5, kNoSuchCapability); }));
    EXPECT_EQ(1u, outer.calls);
    EXPECT_EQ(1u, inner.calls);
    EXPECT_STREQ("cgmEnable", inner.lastOperation);
    EXPECT_EQ(GL_FALSE, OpenGLInterceptor::Instance()->cgmIsEnabled("x.cpp", 9, GL_BLEND));
    EXPECT_STREQ("cgmIsEnabled", outer.lastOperation);
    EXPECT_EQ(9u, inner.lastLine);
    EXPECT_EQ(&outer, OpenGLInterceptor::Instance()->popInterceptor());
    EXPECT_EQ(&inner, OpenGLInterceptor::Instance()->popInterceptor());
}

// ORU_GL does the checker's work in place while the checker is the whole
// chain, and goes down the chain once a decorator is pushed: the same errors,
// lines, results and glBegin/glEnd rules both ways.
TEST_F(InterceptorGLTest, CallSitesBehaveAlikeWithAndWithoutDecorators)
{
    ASSERT_TRUE(ExtensionCatalogue::loadGL(OGL::OPEN_GL_1_5)) << ExtensionCatalogue::missingEntryPoint(OGL::OPEN_GL_1_5);
    OruTest::ForwardingDecorator decorator;
    for (bool decorated : { false, true })
    {
        SCOPED_TRACE(decorated ? "decorated" : "checker alone");
        if (decorated)
            gl->addInterceptor(&decorator);
        EXPECT_EQ(decorated, OpenGLInterceptor::loneChecker() == nullptr);

        const int line = __LINE__ + 1;
        const Raised error = glError([] { ORU_GL glEnable(kNoSuchCapability); });
        EXPECT_EQ(Raised::at("tests/InterceptorGLTest.cpp", line, gluText(GL_INVALID_ENUM), GL_INVALID_ENUM), error);

        GLuint buffer = 0;
        ORU_GL glGenBuffers(1, &buffer);
        ORU_GL glBindBuffer(GL_ARRAY_BUFFER, buffer);
        EXPECT_EQ(GL_TRUE, ORU_GL glIsBuffer(buffer));
        ORU_GL glBindBuffer(GL_ARRAY_BUFFER, 0);
        ORU_GL glDeleteBuffers(1, &buffer);

        const PFN_cgmIsBuffer saved = _cgmIsBuffer;
        _cgmIsBuffer = nullptr;
        const int unloadedLine = __LINE__ + 1;
        const Raised unloaded = raisedBy([] { ORU_GL glIsBuffer(1); });
        _cgmIsBuffer = saved;
        EXPECT_EQ(0u, unloaded.message.rfind("glIsBuffer is not loaded", 0)) << unloaded;
        EXPECT_EQ(Raised::at("tests/InterceptorGLTest.cpp", unloadedLine, unloaded.message), unloaded);

        EXPECT_NO_THROW({
            ORU_GL glBegin(GL_POINTS);
            ORU_GL glColor4f(1.0f, 0.5f, 0.25f, 1.0f); // no glGetError inside the pair
            ORU_GL glVertex2f(0.0f, 0.0f);
            ORU_GL glEnd();
        });

        if (decorated)
        {
            EXPECT_EQ(11u, decorator.calls);
            EXPECT_EQ(&decorator, gl->popInterceptor());
        }
    }
    const OpenGLInterceptor* lone = OpenGLInterceptor::loneChecker();
    EXPECT_EQ(OpenGLInterceptor::Instance(), lone);
}

// Every advertised extension that the catalogue knows loads, or stops exactly
// at an entry point the driver lacks, with the earlier ones set; returns how
// many were known and how many loaded.
namespace
{

std::pair<unsigned int, unsigned int> loadAdvertised(char const* advertised, bool wgl)
{
    unsigned int known = 0, good = 0;
    for (std::string const& token : split(advertised))
    {
        const teExtension ext = wgl ? ExtensionCatalogue::wglExtension(token.c_str())
                                    : ExtensionCatalogue::glExtension(token.c_str());
        if (ext == OGL::UNKNOWN_EXTENSION)
            continue;
        ++known;
        char const* name = ExtensionCatalogue::name(ext);
        if (wgl ? ExtensionCatalogue::loadWGL(ext) : ExtensionCatalogue::loadGL(ext))
        {
            ++good;
            EXPECT_EQ(nullptr, ExtensionCatalogue::missingEntryPoint(ext)) << name;
            continue;
        }
        char const* missing = ExtensionCatalogue::missingEntryPoint(ext);
        EXPECT_NE(nullptr, missing) << name << " failed without a missing entry point";
        if (!missing)
            continue;
        EXPECT_EQ(nullptr, wglGetProcAddress(missing)) << name << ": " << missing << " does resolve";
        for (unsigned int k = 0; k < ExtensionCatalogue::entryPointCount(ext) &&
                                 ExtensionCatalogue::entryPointName(ext, k) != std::string(missing); ++k)
            EXPECT_TRUE(ExtensionCatalogue::isEntryPointLoaded(ext, k)) << name << " entry " << k;
        std::cout << "  " << name << " lacks " << missing << "\n";
    }
    std::cout << "  " << known << (wgl ? " WGL" : " GL") << " extensions known, " << good << " loaded\n";
    return {known, good};
}

} // namespace

TEST_F(InterceptorGLTest, AdvertisedExtensionsLoad)
{
    const auto gl = loadAdvertised(reinterpret_cast<char const*>(glGetString(GL_EXTENSIONS)), false);
    EXPECT_GT(gl.first, 20u);
    EXPECT_GT(gl.second, 0u);
    ASSERT_TRUE(ExtensionCatalogue::loadWGL(OGL::WGL_ARB_EXTENSIONS_STRING));
    ASSERT_NE(nullptr, _wcgmGetExtensionsStringARB);
    EXPECT_GT(loadAdvertised(_wcgmGetExtensionsStringARB(wglGetCurrentDC()), true).second, 3u);
}

TEST_F(InterceptorGLTest, CoreVersionsUpToTheDriversLoad)
{
    int major = 0, minor = 0;
    std::istringstream(reinterpret_cast<char const*>(glGetString(GL_VERSION))) >> major;
    std::istringstream(std::strchr(reinterpret_cast<char const*>(glGetString(GL_VERSION)), '.') + 1) >> minor;
    const struct
    {
        teExtension id;
        int major, minor;
    } versions[] = { { OGL::OPEN_GL_1_2, 1, 2 }, { OGL::OPEN_GL_1_3, 1, 3 }, { OGL::OPEN_GL_1_4, 1, 4 },
                     { OGL::OPEN_GL_1_5, 1, 5 }, { OGL::OPEN_GL_2_0, 2, 0 }, { OGL::OPEN_GL_2_1, 2, 1 } };
    unsigned int offered = 0;
    for (auto const& version : versions)
    {
        const bool loaded = ExtensionCatalogue::loadGL(version.id);
        if (major > version.major || (major == version.major && minor >= version.minor))
        {
            ++offered;
            EXPECT_TRUE(loaded) << ExtensionCatalogue::name(version.id) << " lacks "
                                << ExtensionCatalogue::missingEntryPoint(version.id);
        }
        else if (!loaded)
        {
            EXPECT_NE(nullptr, ExtensionCatalogue::missingEntryPoint(version.id));
        }
    }
    EXPECT_GE(offered, 4u) << "the driver reports " << major << "." << minor;
}
