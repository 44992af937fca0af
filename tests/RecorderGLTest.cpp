// Tracer, recorder and the WGL chain in front of the real driver.
#include "support/GLTest.h"
#include "support/Raises.h"
#include "support/StreamText.h"

#include "oru_ogl/ExceptionOGL.h"
#include "oru_ogl/extensionator/OpenGLRekorder.h"
#include "oru_ogl/extensionator/OpenGLTracer.h"
#include "oru_ogl/extensionator/windows/wglRekorder.h"

#include "oru_core/Exceptions.h"

#include <cstdint>
#include <cstdio>
#include <sstream>
#include <string>

using Oru::OGL::ExceptionOGL;
using Oru::OGL::OpenGLInterceptor;
using Oru::OGL::OpenGLRekorder;
using Oru::OGL::OpenGLTracer;
using Oru::OGL::wglInterceptor;
using Oru::OGL::wglRekorder;
using OruTest::GLTest;
using OruTest::hexDigits;

namespace
{

class RecorderGLTest : public GLTest
{
protected:
    void SetUp() override
    {
        GLTest::SetUp();
        while (glGetError() != GL_NO_ERROR)
        {
        }
    }
};

} // namespace

// A failing call is traced and recorded before the checker below reports it.
TEST_F(RecorderGLTest, GLErrorsReachTheCallerThroughTracerAndRecorder)
{
    std::ostringstream trace, code, data;
    OpenGLRekorder recorder(code, data, nullptr, true);
    OpenGLTracer tracer(trace);
    OpenGLInterceptor::Instance()->addInterceptor(&recorder);
    OpenGLInterceptor::Instance()->addInterceptor(&tracer);
    const OruTest::Raised raised =
        OruTest::raisedBy<ExceptionOGL>([] { OpenGLInterceptor::Instance()->cgmEnable("client.cpp", 31, 0xFFFF); });
    EXPECT_EQ(OruTest::Raised::at("client.cpp", 31, raised.message, GL_INVALID_ENUM), raised);
    OpenGLInterceptor::Instance()->cgmClearColor("client.cpp", 32, 0.25f, 0, 0, 1);
    EXPECT_EQ(&tracer, OpenGLInterceptor::Instance()->popInterceptor());
    EXPECT_EQ(&recorder, OpenGLInterceptor::Instance()->popInterceptor());

    EXPECT_EQ("client.cpp:31: glEnable(Unknown Token)\n"
              "client.cpp:32: glClearColor(makeFloat(1048576000) /* 0.25 */, makeFloat(0) /* 0 */, "
              "makeFloat(0) /* 0 */, makeFloat(1065353216) /* 1 */)\n",
              trace.str());
    EXPECT_EQ("glEnable(Unknown Token);\t\t// client.cpp, line 31\n"
              "glClearColor(makeFloat(1048576000) /* 0.25 */, makeFloat(0) /* 0 */, makeFloat(0) /* 0 */, "
              "makeFloat(1065353216) /* 1 */);\t\t// client.cpp, line 32\n",
              code.str());
    GLfloat clear[4] = {};
    glGetFloatv(GL_COLOR_CLEAR_VALUE, clear);
    EXPECT_EQ(0.25f, clear[0]);
}

TEST_F(RecorderGLTest, WglCheckerReturnsWhatWglReturns)
{
    wglInterceptor* wgl = wglInterceptor::Instance();
    EXPECT_EQ(context().renderContext(), wgl->wcgmGetCurrentContext("f", 1));
    EXPECT_EQ(context().deviceContext(), wgl->wcgmGetCurrentDC("f", 2));
    const PROC address = wgl->wcgmGetProcAddress("f", 3, "glActiveTexture");
    EXPECT_NE(nullptr, address);
    EXPECT_EQ(wglGetProcAddress("glActiveTexture"), address);
    // A failure is returned, not reported.
    EXPECT_EQ(nullptr, wgl->wcgmGetProcAddress("f", 4, "glNoSuchFunction"));
    EXPECT_FALSE(wgl->wcgmDeleteContext("f", 5, nullptr));
}

TEST_F(RecorderGLTest, RecordedContextCallsReachWgl)
{
    std::ostringstream code, data;
    wglRekorder recorder(code, data, context().deviceContext(), nullptr, false);
    wglInterceptor::Instance()->addInterceptor(&recorder);
    wglInterceptor* wgl = wglInterceptor::Instance();

    const HDC dc = context().deviceContext();
    const HGLRC rc = context().renderContext();
    EXPECT_TRUE(wgl->wcgmMakeCurrent("f", 1, nullptr, nullptr));
    EXPECT_EQ(nullptr, wglGetCurrentContext());
    EXPECT_TRUE(wgl->wcgmMakeCurrent("f", 2, dc, rc));
    EXPECT_EQ(rc, wglGetCurrentContext());
    EXPECT_THROW(wgl->wcgmGetProcAddress("f", 3, "glActiveTexture"), Oru::InternalException);
    EXPECT_EQ(&recorder, wgl->popInterceptor());

    EXPECT_EQ("addCurrentAppDC((HDC)0x" + hexDigits(dc) +
                  ");\n"
                  "GLRekorderMakeCurrent((HDC)0x0, (HGLRC)0x0);\n"
                  "GLRekorderMakeCurrent((HDC)0x" +
                  hexDigits(dc) + ", (HGLRC)0x" + hexDigits(rc) + ");\n",
              code.str());
}
