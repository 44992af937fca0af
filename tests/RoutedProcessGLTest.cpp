// RoutedProcess against the driver: the layer follows the contexts that the
// WGL chain sees made current and deleted, ORU_TRACE traces (flushed at
// SwapBuffers), an unwritable trace file is reported, and the end leaves both
// chains as they were.
#include "oru_ogl/LibraryOGL.h"
#include "oru_ogl/extensionator/GLCall.h"
#include "oru_ogl/extensionator/RoutedProcess.h"
#include "oru_ogl/extensionator/windows/wglInterceptor.h"

#include "support/GLTest.h"

#include <cstdio>
#include <fstream>
#include <sstream>
#include <string>

using Oru::OGL::Library;
using Oru::OGL::OpenGLInterceptor;
using Oru::OGL::RoutedProcess;
using Oru::OGL::wglInterceptor;

namespace
{

class RoutedProcessGLTest : public OruTest::GLTest
{
protected:
    void SetUp() override
    {
        GLTest::SetUp();
        SetEnvironmentVariableA("ORU_TRACE", nullptr);
    }
    void TearDown() override { SetEnvironmentVariableA("ORU_TRACE", nullptr); }

    // Whether only the bottom of each chain is left (popping nothing).
    static bool chainsAreBare()
    {
        return OpenGLInterceptor::Instance()->popInterceptor() == nullptr &&
               wglInterceptor::Instance()->popInterceptor() == nullptr;
    }

    static BOOL makeCurrent(HGLRC context)
    {
        return wglInterceptor::Instance()->wcgmMakeCurrent(__FILE__, __LINE__, OruTest::GLTest::context().deviceContext(),
                                                           context);
    }
};

std::string FileText(char const* path)
{
    std::ifstream file(path);
    std::ostringstream text;
    text << file.rdbuf();
    return text.str();
}

TEST_F(RoutedProcessGLTest, StartsTheLayerForTheContextMadeCurrentAndStopsItWhenThatContextIsDeleted)
{
    const HGLRC programs = wglCreateContext(context().deviceContext());
    ASSERT_NE(nullptr, programs);
    {
        RoutedProcess process;
        EXPECT_TRUE(process.isActive());
        EXPECT_EQ(nullptr, process.trace());
        RoutedProcess another; // a second one changes nothing
        EXPECT_FALSE(another.isActive());
        EXPECT_FALSE(Library::isExtensionatorInitialized());

        ASSERT_TRUE(makeCurrent(programs));
        EXPECT_TRUE(Library::isExtensionatorInitialized());
        EXPECT_EQ(programs, wglGetCurrentContext());
        // Another context made current keeps the layer as it is.
        ASSERT_TRUE(makeCurrent(context().renderContext()));
        EXPECT_TRUE(Library::isExtensionatorInitialized());

        EXPECT_TRUE(wglInterceptor::Instance()->wcgmDeleteContext(__FILE__, __LINE__, programs));
        EXPECT_FALSE(Library::isExtensionatorInitialized());
        // The next context made current starts it anew; a null one does not.
        ASSERT_TRUE(makeCurrent(nullptr));
        EXPECT_FALSE(Library::isExtensionatorInitialized());
        ASSERT_TRUE(makeCurrent(context().renderContext()));
        EXPECT_TRUE(Library::isExtensionatorInitialized());
    }
    EXPECT_FALSE(Library::isExtensionatorInitialized());
    EXPECT_TRUE(chainsAreBare());
}

TEST_F(RoutedProcessGLTest, TracesToTheFileNamedByOruTraceFlushedAtEachSwapBuffers)
{
    const char* path = "routed-process-test.trace";
    SetEnvironmentVariableA("ORU_TRACE", path);
    {
        RoutedProcess process;
        ASSERT_NE(nullptr, process.trace());
        ORU_GL glClear(GL_COLOR_BUFFER_BIT); const unsigned int clearLine = __LINE__;
        EXPECT_EQ("", FileText(path)); // not flushed yet
        wglInterceptor::Instance()->wcgmSwapBuffers(__FILE__, __LINE__, context().deviceContext());
        EXPECT_EQ(std::string(__FILE__) + ":" + std::to_string(clearLine) + ": glClear(16384)\n",
                  FileText(path));
        ORU_GL glFlush();
    }
    EXPECT_NE(std::string::npos, FileText(path).find(": glFlush()\n")); // the end flushes the rest
    EXPECT_TRUE(chainsAreBare());
    std::remove(path);
}

TEST_F(RoutedProcessGLTest, AnUnwritableTraceFileIsReportedOnceAndNothingIsTraced)
{
    SetEnvironmentVariableA("ORU_TRACE", "no/such/folder/routed.trace");
    testing::internal::CaptureStderr();
    {
        RoutedProcess process;
        EXPECT_EQ(nullptr, process.trace());
        EXPECT_EQ(nullptr, OpenGLInterceptor::Instance()->popInterceptor()); // no tracer pushed
        ORU_GL glFlush();
    }
    EXPECT_EQ("oru_ogl: cannot write the trace file no/such/folder/routed.trace; the program runs untraced\n",
              testing::internal::GetCapturedStderr());
    EXPECT_TRUE(chainsAreBare());
}

} // namespace
