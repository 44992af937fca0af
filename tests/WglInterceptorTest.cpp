// The WGL chain's mechanics and the WGL recorder's text, over a fake bottom
// interceptor (no GL context needed).
#include "oru_ogl/extensionator/windows/wglRekorder.h"

#include "support/Raises.h"
#include "support/StreamText.h"

#include <functional>
#include <sstream>
#include <string>

using Oru::OGL::wglErrorChecker;
using Oru::OGL::wglInterceptor;
using Oru::OGL::wglInterceptorDecorator;
using Oru::OGL::wglRekorder;

namespace
{

const HDC kDC = reinterpret_cast<HDC>(0x2c0b1e);
const HGLRC kContext = reinterpret_cast<HGLRC>(0x10000);
const HGLRC kOther = reinterpret_cast<HGLRC>(0xfedcba9876543210ull);

// Plays WGL: counts the calls that reach it and returns fixed values.
class FakeWgl : public wglInterceptor
{
public:
    unsigned int calls = 0;
    std::string last;

    BOOL wcgmCopyContext(const char*, unsigned int, HGLRC, HGLRC, UINT) override { return note("CopyContext", 2); }
    HGLRC wcgmCreateContext(const char*, unsigned int, HDC) override { return note("CreateContext", kContext); }
    HGLRC wcgmCreateLayerContext(const char*, unsigned int, HDC, int) override { return note("CreateLayerContext", kOther); }
    BOOL wcgmDeleteContext(const char*, unsigned int, HGLRC) override { return note("DeleteContext", 3); }
    HGLRC wcgmGetCurrentContext(const char*, unsigned int) override { return note("GetCurrentContext", kContext); }
    HDC wcgmGetCurrentDC(const char*, unsigned int) override { return note("GetCurrentDC", kDC); }
    PROC wcgmGetProcAddress(const char*, unsigned int, LPCSTR) override { return note("GetProcAddress", PROC(nullptr)); }
    BOOL wcgmMakeCurrent(const char*, unsigned int, HDC, HGLRC) override { return note("MakeCurrent", 4); }
    BOOL wcgmShareLists(const char*, unsigned int, HGLRC, HGLRC) override { return note("ShareLists", 5); }
    BOOL wcgmUseFontBitmapsA(const char*, unsigned int, HDC, DWORD, DWORD, DWORD) override { return note("", 0); }
    BOOL wcgmUseFontBitmapsW(const char*, unsigned int, HDC, DWORD, DWORD, DWORD) override { return note("", 0); }
    BOOL wcgmSwapBuffers(const char*, unsigned int, HDC) override { return note("SwapBuffers", 6); }
    BOOL wcgmUseFontOutlinesA(const char*, unsigned int, HDC, DWORD, DWORD, DWORD, FLOAT, FLOAT, int,
                              LPGLYPHMETRICSFLOAT) override
    {
        return note("", 0);
    }
    BOOL wcgmUseFontOutlinesW(const char*, unsigned int, HDC, DWORD, DWORD, DWORD, FLOAT, FLOAT, int,
                              LPGLYPHMETRICSFLOAT) override
    {
        return note("", 0);
    }
    BOOL wcgmDescribeLayerPlane(const char*, unsigned int, HDC, int, int, UINT, LPLAYERPLANEDESCRIPTOR) override
    {
        return note("", 0);
    }
    int wcgmSetLayerPaletteEntries(const char*, unsigned int, HDC, int, int, int, const COLORREF*) override
    {
        return note("", 0);
    }
    int wcgmGetLayerPaletteEntries(const char*, unsigned int, HDC, int, int, int, COLORREF*) override
    {
        return note("", 0);
    }
    BOOL wcgmRealizeLayerPalette(const char*, unsigned int, HDC, int, BOOL) override { return note("", 0); }
    BOOL wcgmSwapLayerBuffers(const char*, unsigned int, HDC, UINT) override { return note("SwapLayerBuffers", 7); }
    DWORD wcgmSwapMultipleBuffers(const char*, unsigned int, UINT, const WGLSWAP*) override { return note("", 0); }

private:
    template <class Result>
    Result note(char const* name, Result result)
    {
        ++calls;
        last = name;
        return result;
    }
};

class WglRekorderTest : public ::testing::Test
{
protected:
    std::ostringstream code;
    std::ostringstream data;
    FakeWgl fake;

    std::string take() { return OruTest::take(code); }
};

} // namespace

TEST(WglInterceptorTest, ChainIsBuiltAndTakenDownLikeTheGLChain)
{
    wglInterceptor* checker = wglInterceptor::Instance();
    ASSERT_NE(nullptr, dynamic_cast<wglErrorChecker*>(checker));
    EXPECT_EQ(checker, wglInterceptor::Instance());

    wglRekorder a, b;
    EXPECT_EQ(nullptr, a.interceptor());
    wglInterceptor::Instance()->addInterceptor(&a);
    b.addInterceptor(&b); // acts on the chain, not on b
    EXPECT_EQ(&b, wglInterceptor::Instance());
    EXPECT_EQ(&a, b.interceptor());
    EXPECT_EQ(checker, a.interceptor());

    EXPECT_TRUE(OruTest::raises([] { wglInterceptor::destroy(); }, "extensionator/windows/wglInterceptor.cpp", 47,
                                "Enforce dynamic_cast<wglErrorChecker *>(gInterceptor) != NULL"));
    EXPECT_EQ(&b, wglInterceptor::Instance());

    EXPECT_EQ(&b, wglInterceptor::Instance()->popInterceptor());
    EXPECT_EQ(&a, wglInterceptor::Instance()->popInterceptor());
    EXPECT_EQ(nullptr, wglInterceptor::Instance()->popInterceptor());
    wglInterceptor::destroy();
    wglInterceptor::destroy(); // nothing left: does nothing
    wglInterceptor* fresh = wglInterceptor::Instance();
    EXPECT_NE(nullptr, dynamic_cast<wglErrorChecker*>(fresh));
    wglInterceptor::destroy();
}

TEST_F(WglRekorderTest, ConstructionRegistersTheApplicationsDC)
{
    wglRekorder recorder(code, data, kDC, &fake, true);
    EXPECT_EQ("addCurrentAppDC((HDC)0x2c0b1e);\n", take());
    wglRekorder withoutDC(code, data, nullptr, &fake, false);
    EXPECT_EQ("addCurrentAppDC((HDC)0x0);\n", take());
    EXPECT_EQ(0u, fake.calls);
    EXPECT_EQ("", data.str());
}

TEST_F(WglRekorderTest, ContextCallsAreRecordedThenForwarded)
{
    wglRekorder recorder(code, data, kDC, &fake, true);
    take();
    const std::string end = "\t\t// app.cpp, line 40\n";
    const struct
    {
        std::function<long long()> call;
        char const* forwarded;
        long long result;
        std::string text;
    } cases[] = {
        { [&] { return recorder.wcgmMakeCurrent("app.cpp", 40, kDC, nullptr); }, "MakeCurrent", 4,
          "GLRekorderMakeCurrent((HDC)0x2c0b1e, (HGLRC)0x0);" + end },
        { [&] { return reinterpret_cast<long long>(recorder.wcgmCreateContext("app.cpp", 40, kDC)); },
          "CreateContext", 0x10000,
          "GLRekorderCreateWindow((HDC)0x2c0b1e);\n"
          "std::map<HDC, HDC>::iterator iter = hdc_map_.find((HDC)0x2c0b1e);\n"
          "if (iter == hdc_map_.end())\n"
          "{\n"
          "    std::cerr << \"Missing HDC in hdc_map_!\\n\";\n"
          "}\n"
          "hDC_Ours = iter->second;\n"
          "wglCreateContext(hDC_Ours);" +
              end },
        { [&] { return recorder.wcgmCopyContext("app.cpp", 40, kContext, kOther, 7); },
          "CopyContext", 2, "wglCopyContext(0x10000, 0xfedcba9876543210, 7);" + end },
        { [&] { return reinterpret_cast<long long>(recorder.wcgmCreateLayerContext("app.cpp", 40, kDC, -1)); },
          "CreateLayerContext", static_cast<long long>(0xfedcba9876543210ull),
          "wglCreateLayerContext((HDC)0x2c0b1e, -1);" + end },
        { [&] { return recorder.wcgmDeleteContext("app.cpp", 40, kOther); }, "DeleteContext", 3,
          "wglDeleteContext((HGLRC)0xfedcba9876543210);" + end },
        { [&] { return reinterpret_cast<long long>(recorder.wcgmGetCurrentContext("app.cpp", 40)); },
          "GetCurrentContext", 0x10000, "wglGetCurrentContext();" + end },
        { [&] { return reinterpret_cast<long long>(recorder.wcgmGetCurrentDC("app.cpp", 40)); }, "GetCurrentDC",
          0x2c0b1e, "wglGetCurrentDC();" + end },
        { [&] { return recorder.wcgmShareLists("app.cpp", 40, kContext, kOther); }, "ShareLists", 5,
          "wglShareLists((HGLRC)0x10000, (HGLRC)0xfedcba9876543210);" + end },
        { [&] { return recorder.wcgmSwapBuffers("app.cpp", 40, kDC); }, "SwapBuffers", 6,
          "GLRekorderSwapBuffers((HDC)0x2c0b1e);" + end },
        { [&] { return recorder.wcgmSwapLayerBuffers("app.cpp", 40, kDC, WGL_SWAP_MAIN_PLANE); }, "SwapLayerBuffers",
          7, "wglSwapLayerBuffers((HDC)0x2c0b1e, 1);" + end },
    };
    unsigned int calls = 0;
    for (auto const& c : cases)
    {
        EXPECT_EQ(c.result, c.call()) << c.forwarded;
        EXPECT_EQ(++calls, fake.calls);
        EXPECT_EQ(c.forwarded, fake.last);
        EXPECT_EQ(c.text, take());
    }
    EXPECT_EQ("", data.str());

    wglRekorder plain(code, data, kDC, &fake, false);
    take();
    plain.wcgmSwapBuffers("app.cpp", 41, kDC);
    EXPECT_EQ("GLRekorderSwapBuffers((HDC)0x2c0b1e);\n", take());
}

// Each refusal carries its own source line; nothing is written or called.
TEST_F(WglRekorderTest, UnrecordableFunctionsThrowWithoutCallingWGL)
{
    wglRekorder r(code, data, kDC, &fake, true);
    take();
    GLYPHMETRICSFLOAT metrics[1];
    LAYERPLANEDESCRIPTOR plane;
    COLORREF colours[1] = {};
    WGLSWAP swaps[1] = {};
    const struct
    {
        std::function<void()> call;
        int line;
    } cases[] = {
        { [&] { r.wcgmGetProcAddress("f", 1, "glActiveTexture"); }, 96 },
        { [&] { r.wcgmUseFontBitmapsA("f", 1, kDC, 0, 255, 1000); }, 114 },
        { [&] { r.wcgmUseFontBitmapsW("f", 1, kDC, 0, 255, 1000); }, 120 },
        { [&] { r.wcgmUseFontOutlinesA("f", 1, kDC, 0, 1, 1000, 0, 0.1f, WGL_FONT_POLYGONS, metrics); }, 133 },
        { [&] { r.wcgmUseFontOutlinesW("f", 1, kDC, 0, 1, 1000, 0, 0.1f, WGL_FONT_POLYGONS, metrics); }, 140 },
        { [&] { r.wcgmDescribeLayerPlane("f", 1, kDC, 1, 1, sizeof(plane), &plane); }, 147 },
        { [&] { r.wcgmSetLayerPaletteEntries("f", 1, kDC, 1, 0, 1, colours); }, 154 },
        { [&] { r.wcgmGetLayerPaletteEntries("f", 1, kDC, 1, 0, 1, colours); }, 161 },
        { [&] { r.wcgmRealizeLayerPalette("f", 1, kDC, 1, TRUE); }, 167 },
        { [&] { r.wcgmSwapMultipleBuffers("f", 1, 1, swaps); }, 179 },
    };
    for (auto const& c : cases)
        EXPECT_TRUE(OruTest::raises(c.call, "extensionator/windows/wglRekorder.cpp", c.line,
                                    "!\"Missing code to record this wgl function!\""));
    EXPECT_EQ(0u, fake.calls);
    EXPECT_EQ("", take());
}
