#include "LayerGLTest.h"

#include "oru_ogl/LibraryOGL.h"
#include "oru_ogl/ogl/ContextOffscreen.h"

#include "oru_core/Exceptions.h"

#include <GL/gl.h>

#include <cstdlib>

namespace OruTest
{

std::unique_ptr<Oru::OGL::ContextOffscreen> LayerGLTest::context_;
std::string LayerGLTest::startError_;

// Started once and left running: the process ends with the layer started,
// which is how an application that never shuts down behaves.
void LayerGLTest::SetUpTestSuite()
{
    if (context_ || !startError_.empty())
        return;
    try
    {
        context_.reset(new Oru::OGL::ContextOffscreen());
        // A configuration of the suite may start the layer with the option for
        // drivers of 3.0 and later on.
        Oru::OGL::ExtensionManager::InitOptions options;
        char const* startOptions = std::getenv("ORU_TEST_START_OPTIONS");
        options.setCompatibilityCoreVersions(startOptions && std::string(startOptions) == "compatibility-core-versions");
        Oru::OGL::Library::initializeExtensionator(context_.get(), options);
    }
    catch (Oru::ExceptionBase const& e)
    {
        startError_ = e.what();
    }
}

void LayerGLTest::SetUp()
{
    ASSERT_TRUE(startError_.empty()) << "the layer did not start: " << startError_;
    context_->makeCurrent();
    while (glGetError() != GL_NO_ERROR)
    {
    }
}

void LayerGLTest::TearDown()
{
    EXPECT_EQ(static_cast<GLenum>(GL_NO_ERROR), glGetError()) << "the test left a GL error behind";
}

Oru::OGL::ContextOffscreen& LayerGLTest::context()
{
    return *context_;
}

} // namespace OruTest
