// Versioned contexts against the real driver: the version, profile and debug
// flag asked for through WGL_ARB_create_context, sharing, the caller's current
// context, and the refusals when the driver lacks the extension or the version.
#include "oru_ogl/InternalWindow.h"
#include "oru_ogl/extensionator/ExtensionCatalogue.h"
#include "oru_ogl/ogl/ContextAttributes.h"
#include "oru_ogl/ogl/ContextOffscreen.h"
#include "oru_ogl/ogl/ContextWindowed.h"

#include "support/Raises.h"

#include <windows.h>

#include <GL/gl.h>

#include <cstdio>
#include <string>
#include <vector>

using namespace Oru::OGL;
using OruTest::Raised;
using OruTest::raisedBy;

namespace
{

const GLenum kDebugOutput = 0x92E0;          // GL_DEBUG_OUTPUT
const GLenum kContextFlags = 0x821E;         // GL_CONTEXT_FLAGS
const GLint kContextFlagDebugBit = 0x2;      // GL_CONTEXT_FLAG_DEBUG_BIT
const GLenum kContextProfileMask = 0x9126;   // GL_CONTEXT_PROFILE_MASK
const GLint kCompatibilityProfileBit = 0x2;  // GL_CONTEXT_COMPATIBILITY_PROFILE_BIT
const char kContextFile[] = "ogl/Context_WIN_OS.cpp";

// The current context's version, as GL_VERSION reports it.
std::pair<int, int> currentVersion()
{
    std::pair<int, int> version(0, 0);
    std::sscanf(reinterpret_cast<char const*>(glGetString(GL_VERSION)), "%d.%d", &version.first, &version.second);
    return version;
}

ContextAttributes attributesFor(std::pair<int, int> version, bool debug)
{
    ContextAttributes attributes(version.first, version.second);
    attributes.setDebug(debug);
    return attributes;
}

int windowsOfThisThread()
{
    int count = 0;
    EnumThreadWindows(
        GetCurrentThreadId(), [](HWND, LPARAM counter) -> BOOL { return ++*reinterpret_cast<int*>(counter), TRUE; },
        reinterpret_cast<LPARAM>(&count));
    return count;
}

PROC WINAPI withoutCreateContextAttribs(LPCSTR name)
{
    return std::string(name) == "wglCreateContextAttribsARB" ? nullptr : wglGetProcAddress(name);
}

PROC WINAPI withoutExtensionsString(LPCSTR name)
{
    return std::string(name) == "wglGetExtensionsStringARB" ? nullptr : wglGetProcAddress(name);
}

class VersionedContextGLTest : public ::testing::Test
{
protected:
    void SetUp() override
    {
        wglMakeCurrent(nullptr, nullptr);
        plain_.reset(new ContextOffscreen());
        plain_->makeCurrent();
        driverVersion = currentVersion();
        wglMakeCurrent(nullptr, nullptr);
    }
    void TearDown() override
    {
        wglMakeCurrent(nullptr, nullptr);
        plain_.reset();
    }

    // What creating an offscreen context for the attributes raises, with the
    // plain context current; that context must be current again afterwards.
    Raised refusalOf(ContextAttributes const& attributes, ExtensionCatalogue::ProcAddressResolver resolver = nullptr)
    {
        plain_->makeCurrent();
        const int windowsBefore = windowsOfThisThread();
        const ExtensionCatalogue::ProcAddressResolver previous =
            resolver ? ExtensionCatalogue::setProcAddressResolver(resolver) : nullptr;
        const Raised raised = raisedBy([&] { ContextOffscreen context(attributes); });
        if (resolver)
            ExtensionCatalogue::setProcAddressResolver(previous);
        EXPECT_EQ(plain_->renderContext(), wglGetCurrentContext());
        EXPECT_EQ(windowsBefore, windowsOfThisThread()) << "a hidden window was left behind";
        return raised;
    }

    std::unique_ptr<ContextOffscreen> plain_;
    std::pair<int, int> driverVersion;
};

} // namespace

TEST(ContextAttributesTest, AttributeListsAndDescriptions)
{
    struct Case
    {
        int major, minor;
        bool compatibility, debug;
        std::vector<int> list;
        std::string description;
    };
    const Case cases[] = {
        {2, 1, true, false, {0x2091, 2, 0x2092, 1, 0}, "OpenGL 2.1"},
        {2, 1, false, true, {0x2091, 2, 0x2092, 1, 0x2094, 1, 0}, "OpenGL 2.1 debug"},
        {3, 1, true, true, {0x2091, 3, 0x2092, 1, 0x2094, 1, 0}, "OpenGL 3.1 debug"},
        {3, 2, true, true, {0x2091, 3, 0x2092, 2, 0x2094, 1, 0x9126, 2, 0}, "OpenGL 3.2 compatibility profile debug"},
        {4, 5, false, false, {0x2091, 4, 0x2092, 5, 0x9126, 1, 0}, "OpenGL 4.5 core profile"},
    };
    for (Case const& c : cases)
    {
        ContextAttributes attributes(c.major, c.minor);
        EXPECT_TRUE(attributes.compatibilityProfile()); // the default
        attributes.setCompatibilityProfile(c.compatibility);
        attributes.setDebug(c.debug);
        EXPECT_EQ(c.list, attributes.wglAttributes()) << c.description;
        EXPECT_EQ(c.description, attributes.description());
    }
}

TEST_F(VersionedContextGLTest, DebugContextsOfTheDriversVersion)
{
    InternalWindow window;
    ContextOffscreen offscreen(attributesFor(driverVersion, true));
    ContextWindowed windowed(window.handle(), BufferFormat(BufferFormat::eRGBA8), Context::eDoubleBuffered,
                             Context::eNoMultisample, nullptr, attributesFor(driverVersion, true));
    EXPECT_EQ(nullptr, wglGetCurrentContext()) << "creation left a context current";
    for (Context* context : {static_cast<Context*>(&offscreen), static_cast<Context*>(&windowed)})
    {
        context->makeCurrent();
        EXPECT_EQ(driverVersion, currentVersion());
        EXPECT_TRUE(glIsEnabled(kDebugOutput)) << "on from the start only in a debug context";
        if (driverVersion.first >= 3)
        {
            GLint flags = 0;
            glGetIntegerv(kContextFlags, &flags);
            EXPECT_EQ(kContextFlagDebugBit, flags & kContextFlagDebugBit);
        }
        if (attributesFor(driverVersion, true).namesProfile())
        {
            GLint profile = 0;
            glGetIntegerv(kContextProfileMask, &profile);
            EXPECT_EQ(kCompatibilityProfileBit, profile & kCompatibilityProfileBit);
        }
        EXPECT_EQ(static_cast<GLenum>(GL_NO_ERROR), glGetError());
    }
    plain_->makeCurrent();
    EXPECT_FALSE(glIsEnabled(kDebugOutput)) << "the plain context is no debug context";
}

TEST_F(VersionedContextGLTest, SharesWithTheContextGivenAndKeepsTheCallersCurrent)
{
    plain_->makeCurrent();
    GLuint texture = 0;
    glGenTextures(1, &texture);
    glBindTexture(GL_TEXTURE_2D, texture);
    glBindTexture(GL_TEXTURE_2D, 0);
    {
        ContextOffscreen shared(attributesFor(driverVersion, false), plain_.get());
        EXPECT_EQ(plain_->renderContext(), wglGetCurrentContext());
        shared.makeCurrent();
        EXPECT_TRUE(glIsTexture(texture));
        plain_->makeCurrent();
    }
    EXPECT_EQ(plain_->renderContext(), wglGetCurrentContext());
    glDeleteTextures(1, &texture);
}

TEST_F(VersionedContextGLTest, RefusalsNameWhatIsMissing)
{
    const Raised refused = refusalOf(ContextAttributes(9, 9));
    const std::string prefix = "Context::createVersionedContext the driver refused OpenGL 9.9 compatibility profile. "
                               "Windows error ";
    EXPECT_EQ(kContextFile, refused.file);
    EXPECT_EQ(prefix, refused.message.substr(0, prefix.size())) << refused;

    EXPECT_EQ("Context::createVersionedContext WGL_ARB_create_context not supported",
              refusalOf(ContextAttributes(2, 1), &withoutCreateContextAttribs).message);
    EXPECT_EQ("Context::createVersionedContext WGL_ARB_create_context_profile not supported",
              refusalOf(ContextAttributes(3, 2), &withoutExtensionsString).message);
    // Below 3.2 no profile is named, so the profile extension is not needed.
    EXPECT_FALSE(refusalOf(ContextAttributes(2, 1), &withoutExtensionsString).raised);
}
