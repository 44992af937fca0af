// The test platform end to end: a real context, current, answering GL queries.
#include "support/GLTest.h"

#include <GL/gl.h>

#include <cstdlib>
#include <cstring>
#include <string>

using OruTest::GLTest;

namespace
{

std::string glString(GLenum name)
{
    const GLubyte* text = glGetString(name);
    return text ? reinterpret_cast<char const*>(text) : "";
}

} // namespace

TEST_F(GLTest, ContextIsCurrentAndReportsAVersion)
{
    EXPECT_EQ(context().renderContext(), wglGetCurrentContext());
    const std::string version = glString(GL_VERSION);
    RecordProperty("GL_VERSION", version);
    ASSERT_GE(version.size(), 3u);
    EXPECT_TRUE(version[0] >= '1' && version[0] <= '9') << version;
    EXPECT_EQ('.', version[1]) << version;
    EXPECT_FALSE(glString(GL_VENDOR).empty());
    EXPECT_FALSE(glString(GL_RENDERER).empty());
    EXPECT_EQ(static_cast<GLenum>(GL_NO_ERROR), glGetError());
}

// The suite also runs with the driver's version overridden; the override must
// reach the driver through the test platform.
TEST_F(GLTest, DriverVersionFollowsTheOverride)
{
    char const* expected = std::getenv("MESA_GL_VERSION_OVERRIDE");
    if (!expected)
        GTEST_SKIP() << "no version override in this configuration";
    const std::string version = glString(GL_VERSION);
    EXPECT_EQ(0u, version.rfind(expected, 0)) << version << " does not start with " << expected;
}

TEST_F(GLTest, RendersAndReadsBackAPixel)
{
    glViewport(0, 0, 4, 4);
    glClearColor(1.0f, 0.0f, 0.0f, 1.0f);
    glClear(GL_COLOR_BUFFER_BIT);
    glFinish();
    unsigned char pixel[4] = { 0, 0, 0, 0 };
    glReadBuffer(GL_BACK);
    glReadPixels(0, 0, 1, 1, GL_RGBA, GL_UNSIGNED_BYTE, pixel);
    EXPECT_EQ(255, pixel[0]);
    EXPECT_EQ(0, pixel[1]);
    EXPECT_EQ(0, pixel[2]);
    EXPECT_EQ(static_cast<GLenum>(GL_NO_ERROR), glGetError());
}
