// Contexts against the real driver: which context is current before and after
// every creation and destruction, the classic and extended pixel-format paths,
// sharing, and what a long run of contexts leaves behind.
#include "oru_ogl/InternalWindow.h"
#include "oru_ogl/LibraryOGL.h"
#include "oru_ogl/extensionator/ExtensionCatalogue.h"
#include "oru_ogl/extensionator/windows/WglEntryPoints.h"
#include "oru_ogl/ogl/ContextOffscreen.h"
#include "oru_ogl/ogl/ContextWindowed.h"
#include "oru_ogl/ogl/ContextWrapped.h"
#include "oru_ogl/ogl/ScopedContextWrapper.h"

#include "support/Raises.h"

#include <psapi.h>

#include <memory>
#include <string>

using namespace Oru::OGL;

namespace
{

// Exposes the protected steps of context creation.
class ProbeContext : public ContextWindowed
{
public:
    using Context::choosePixelFormat;
    using Context::createRenderingContext;
    using Context::initializeExtensions;
    using Context::setPixelFormat;
};

template <class Action>
std::string failureOf(Action&& action)
{
    return OruTest::raisedBy<Oru::ExceptionBase>(action).message;
}

int windowsOfThisThread()
{
    int count = 0;
    EnumThreadWindows(
        GetCurrentThreadId(), [](HWND, LPARAM counter) -> BOOL { return ++*reinterpret_cast<int*>(counter), TRUE; },
        reinterpret_cast<LPARAM>(&count));
    return count;
}

int pixelFormatAttribute(HDC dc, int format, int attribute)
{
    int value = -1;
    _wcgmGetPixelFormatAttribivARB(dc, format, 0, 1, &attribute, &value);
    return value;
}

// Red, green, blue, [alpha,] stencil and depth bits.
std::vector<int> bitDepths(Context& context, bool alpha)
{
    int r, g, b, a, s, d;
    context.getBitDepths(&r, &g, &b, &a, &s, &d);
    return alpha ? std::vector<int>{r, g, b, a, s, d} : std::vector<int>{r, g, b, s, d};
}

class ContextGLTest : public ::testing::Test
{
protected:
    void SetUp() override { wglMakeCurrent(nullptr, nullptr); }
    void TearDown() override
    {
        if (Library::isExtensionatorInitialized())
            Library::terminateExtensionator();
        wglMakeCurrent(nullptr, nullptr);
    }
};

} // namespace

TEST_F(ContextGLTest, CreatingAndDestroyingKeepsTheCallersCurrentContext)
{
    {
        ContextOffscreen alone;
        EXPECT_EQ(nullptr, wglGetCurrentContext()) << "creation left the new context current";
    }
    EXPECT_EQ(nullptr, wglGetCurrentContext());

    ContextOffscreen outer;
    outer.makeCurrent();
    {
        ContextOffscreen inner;
        EXPECT_EQ(outer.renderContext(), wglGetCurrentContext());
        EXPECT_EQ(outer.deviceContext(), wglGetCurrentDC());
    }
    EXPECT_EQ(outer.renderContext(), wglGetCurrentContext()) << "destroying another context changed the current one";

    {
        ContextOffscreen current;
        current.makeCurrent();
        EXPECT_EQ(current.renderContext(), wglGetCurrentContext());
    }
    EXPECT_EQ(nullptr, wglGetCurrentContext()) << "destroying the current context left something current";
}

TEST_F(ContextGLTest, OffscreenContextsAreEightBitRgbWithoutDepthOrStencil)
{
    ContextOffscreen context;
    EXPECT_EQ((std::vector<int>{8, 8, 8, 0, 0}), bitDepths(context, false));
    PIXELFORMATDESCRIPTOR pfd = {};
    DescribePixelFormat(context.deviceContext(), GetPixelFormat(context.deviceContext()), sizeof(pfd), &pfd);
    EXPECT_EQ(0u, pfd.dwFlags & PFD_DOUBLEBUFFER);
}

TEST_F(ContextGLTest, TwoOffscreenContextsHaveTheirOwnWindowClassesAndShareLists)
{
    std::unique_ptr<ContextOffscreen> first(new ContextOffscreen());
    ContextOffscreen second(first.get());
    char firstClass[64] = "", secondClass[64] = "";
    GetClassNameA(WindowFromDC(first->deviceContext()), firstClass, sizeof(firstClass));
    GetClassNameA(WindowFromDC(second.deviceContext()), secondClass, sizeof(secondClass));
    EXPECT_EQ(0u, std::string(firstClass).rfind("OpenGL", 0)) << firstClass;
    EXPECT_STRNE(firstClass, secondClass);

    first->makeCurrent();
    const GLuint list = glGenLists(1);
    glNewList(list, GL_COMPILE);
    glEndList();
    second.makeCurrent();
    EXPECT_EQ(GL_TRUE, glIsList(list)) << "lists are not shared";

    first.reset();
    WNDCLASSEXA info = {};
    info.cbSize = sizeof(info);
    EXPECT_FALSE(GetClassInfoExA(GetModuleHandleA(nullptr), firstClass, &info));
    EXPECT_EQ(second.renderContext(), wglGetCurrentContext());
    glClear(GL_COLOR_BUFFER_BIT);
    EXPECT_EQ(static_cast<GLenum>(GL_NO_ERROR), glGetError());
}

TEST_F(ContextGLTest, ClassicPathNeedsNoStartedLayer)
{
    InternalWindow window;
    ContextWindowed context(window.handle(), BufferFormat(BufferFormat::eRGBA8_S8D24), Context::eDoubleBuffered,
                            Context::eNoMultisample, nullptr);
    EXPECT_EQ((std::vector<int>{8, 8, 8, 8, 8, 24}), bitDepths(context, true));
    EXPECT_EQ(nullptr, wglGetCurrentContext());
}

TEST_F(ContextGLTest, ExtendedPathNeedsTheLayerAndCleansUpAfterItself)
{
    InternalWindow window;
    const int windowsBefore = windowsOfThisThread();
    for (BufferFormat format : { BufferFormat(BufferFormat::eRGBA8_S8D24), BufferFormat(BufferFormat::eRGBA16F),
                                 BufferFormat(10, 10, 10, 2, 0, 0, false) })
    {
        const Context::teMultisample samples =
            format.floatingPointColor() || format.redBits() == 10 ? Context::eNoMultisample : Context::e4Samples;
        // A LogicalException that is not an InternalException passes through
        // the inner catch to the outer one.
        EXPECT_EQ("Enforce pInstance_ != NULL", failureOf([&] {
                      EXPECT_FALSE(OruTest::raisedBy<Oru::InternalException>([&] {
                                       ContextWindowed context(window.handle(), format, Context::eDoubleBuffered,
                                                               samples, nullptr);
                                   }).raised)
                          << "the recovery must rethrow as a LogicalException";
                  }));
        EXPECT_EQ(nullptr, wglGetCurrentContext());
        EXPECT_EQ(windowsBefore, windowsOfThisThread()) << "a hidden window was left behind";
    }
}

TEST_F(ContextGLTest, ExtendedPathChoosesWhatWasAskedFor)
{
    ContextOffscreen layerContext;
    AutoInitializer layer(&layerContext);
    wglMakeCurrent(nullptr, nullptr); // the extended path must make its own throw-away context
    InternalWindow window;
    const int windowsBefore = windowsOfThisThread();
    {
        ContextWindowed multisampled(window.handle(), BufferFormat(BufferFormat::eRGBA8_S8D24),
                                     Context::eDoubleBuffered, Context::e4Samples, nullptr);
        const int format = GetPixelFormat(multisampled.deviceContext());
        EXPECT_EQ(4, pixelFormatAttribute(multisampled.deviceContext(), format, 0x2042)); // WGL_SAMPLES_ARB
        EXPECT_EQ(1, pixelFormatAttribute(multisampled.deviceContext(), format, 0x2011)); // WGL_DOUBLE_BUFFER_ARB
        EXPECT_EQ((std::vector<int>{8, 8, 8, 8, 8, 24}), bitDepths(multisampled, true));
        EXPECT_EQ(nullptr, wglGetCurrentContext());
        EXPECT_EQ(windowsBefore, windowsOfThisThread());
    }

    // Float colour and 10-bit red go the extended way too; what the driver
    // offers decides whether a format is found.
    InternalWindow other;
    for (BufferFormat format : { BufferFormat(BufferFormat::eRGBA16F), BufferFormat(10, 10, 10, 2, 0, 0, false) })
    {
        try
        {
            ContextWindowed context(other.handle(), format, Context::eDoubleBuffered, Context::eNoMultisample, nullptr);
            EXPECT_EQ(static_cast<int>(format.redBits()), bitDepths(context, false)[0]);
        }
        catch (Oru::LogicalException const& e)
        {
            EXPECT_STREQ("Can't find suitable pixel format.", e.message());
        }
        EXPECT_EQ(nullptr, wglGetCurrentContext());
    }
}

namespace
{

PROC WINAPI withoutChoosePixelFormat(LPCSTR name)
{
    return std::string(name) == "wglChoosePixelFormatARB" ? nullptr : wglGetProcAddress(name);
}

} // namespace

TEST_F(ContextGLTest, ExtendedPathWithoutChoosePixelFormatIsRefusedAndCleansUp)
{
    ContextOffscreen layerContext;
    AutoInitializer layer(&layerContext);
    wglMakeCurrent(nullptr, nullptr);
    InternalWindow window;
    const int windowsBefore = windowsOfThisThread();
    const ExtensionCatalogue::ProcAddressResolver previous =
        ExtensionCatalogue::setProcAddressResolver(&withoutChoosePixelFormat);
    const std::string failure = failureOf([&] {
        ContextWindowed context(window.handle(), BufferFormat(BufferFormat::eRGBA8_S8D24), Context::eDoubleBuffered,
                                Context::e4Samples, nullptr);
    });
    ExtensionCatalogue::setProcAddressResolver(previous);
    EXPECT_EQ("wglChoosePixelFormatARB extension not supported", failure);
    EXPECT_EQ(nullptr, wglGetCurrentContext());
    EXPECT_EQ(windowsBefore, windowsOfThisThread()) << "the throw-away context's window was left behind";
    EXPECT_EQ(0, GetPixelFormat(GetDC(window.handle())));
}

TEST_F(ContextGLTest, MultisamplingWithoutDoubleBufferingIsRefusedBeforeAnyPixelFormatIsSet)
{
    ContextOffscreen layerContext;
    AutoInitializer layer(&layerContext);
    layerContext.makeCurrent();
    InternalWindow window;
    EXPECT_EQ("Double buffering required with multisampling.", failureOf([&] {
                  ContextWindowed context(window.handle(), BufferFormat(BufferFormat::eRGBA8),
                                          Context::eSingleBuffered, Context::e4Samples, nullptr);
              }));
    EXPECT_EQ(0, GetPixelFormat(GetDC(window.handle())));
    EXPECT_EQ(layerContext.renderContext(), wglGetCurrentContext());
}

TEST_F(ContextGLTest, ProtectedStepsRefuseBadArguments)
{
    InternalWindow window;
    ProbeContext probe;
    EXPECT_EQ("Context::setPixelFormat invalid pixel format -1", failureOf([&] { probe.setPixelFormat(GetDC(window.handle()), -1); }));
    EXPECT_EQ("Context::setPixelFormat invalid pixel format 0", failureOf([&] { probe.setPixelFormat(GetDC(window.handle()), 0); }));
    EXPECT_EQ("Context:choosePixelFormat invalid device context",
              failureOf([&] { probe.choosePixelFormat(nullptr, BufferFormat(BufferFormat::eRGB8), false); }));
    EXPECT_EQ("Context:createRenderingContext invalid device context", failureOf([&] { probe.createRenderingContext(nullptr); }));

    ContextOffscreen current;
    current.makeCurrent(); // wglChoosePixelFormatARB can be had: the device context is checked next
    EXPECT_EQ("Context:choosePixelFormat invalid device context", failureOf([&] {
                  probe.choosePixelFormat(nullptr, BufferFormat(BufferFormat::eRGB8), Context::eDoubleBuffered,
                                          Context::eNoMultisample, Context::eWindow);
              }));
    EXPECT_EQ(OruTest::Raised::at("ogl/Context_WIN_OS.cpp", 69,
                                  "We can't initialize Extensions automatically any more with the new Singleton scheme"),
              OruTest::raisedBy([&] { probe.initializeExtensions(); }));
}

TEST_F(ContextGLTest, WrappedAndScopedContexts)
{
    ContextOffscreen owner;
    {
        ContextWrapped wrapped(owner.deviceContext(), owner.renderContext());
        {
            ScopedContextWrapper saved; // nothing current
            wrapped.makeCurrent();
            EXPECT_EQ(owner.renderContext(), wglGetCurrentContext());
        }
        EXPECT_EQ(nullptr, wglGetCurrentContext());
    }
    // The wrapped context released nothing.
    owner.makeCurrent();
    EXPECT_EQ(owner.renderContext(), wglGetCurrentContext());
    {
        ScopedContextWrapper saved;
        ContextOffscreen other;
        other.makeCurrent();
    }
    EXPECT_EQ(owner.renderContext(), wglGetCurrentContext());
}

TEST_F(ContextGLTest, VerticalRetraceControl)
{
    ContextOffscreen context;
    AutoInitializer layer(&context);
    if (!Context::supportsVerticalRetraceControl())
    {
        EXPECT_EQ("ContextWindowed::enableSyncToVerticalRetrace unsupported feature",
                  failureOf([&] { context.enableSyncToVerticalRetrace(true); }));
        return;
    }
    context.enableSyncToVerticalRetrace(true);
    EXPECT_EQ(1, _wcgmGetSwapIntervalEXT());
    context.enableSyncToVerticalRetrace(false);
    EXPECT_EQ(0, _wcgmGetSwapIntervalEXT());
}

// A thousand offscreen contexts leave no window, class or context behind, and
// cost no more memory than the platform's own window, pixel format and context
// cycle measured beside them: under Wine that cycle alone keeps about 10 KB
// each time (its window bookkeeping), so "flat" means "nothing on top of it".
TEST_F(ContextGLTest, ManyContextsLeaveNothingBehind)
{
    // The commit charge: Wine reports it (its PrivateUsage is always 0).
    auto committed = [] {
        PROCESS_MEMORY_COUNTERS counters = {};
        GetProcessMemoryInfo(GetCurrentProcess(), &counters, sizeof(counters));
        return static_cast<long long>(counters.PagefileUsage);
    };
    InternalWindow classOwner; // registers a class the platform cycle can reuse
    char className[64] = "";
    GetClassNameA(classOwner.handle(), className, sizeof(className));
    auto platformCycle = [&] {
        const HWND window = CreateWindowExA(0, className, nullptr, WS_OVERLAPPEDWINDOW, 0, 0, 64, 64, nullptr,
                                            nullptr, GetModuleHandleA(nullptr), nullptr);
        const HDC dc = GetDC(window);
        PIXELFORMATDESCRIPTOR pfd = BufferFormat(BufferFormat::eRGB8).pixelFormatDescriptor(false);
        SetPixelFormat(dc, ChoosePixelFormat(dc, &pfd), &pfd);
        wglDeleteContext(wglCreateContext(dc));
        ReleaseDC(window, dc);
        DestroyWindow(window);
    };
    char lastClass[64] = "";
    auto layerCycle = [&] {
        ContextOffscreen context;
        GetClassNameA(WindowFromDC(context.deviceContext()), lastClass, sizeof(lastClass));
    };
    ASSERT_GT(committed(), 0) << "the process's commit charge cannot be read here";
    for (int i = 0; i < 30; ++i) // the driver's own caches settle first
    {
        platformCycle();
        layerCycle();
    }

    // Wine's heap grows in large steps: the two cycles take turns in small
    // rounds, so that the steps fall on both alike.
    const int windowsBefore = windowsOfThisThread();
    long long platform = 0, layer = 0;
    for (int round = 0; round < 40; ++round)
    {
        long long mark = committed();
        for (int i = 0; i < 25; ++i)
            platformCycle();
        platform += committed() - mark;
        mark = committed();
        for (int i = 0; i < 25; ++i)
            layerCycle();
        layer += committed() - mark;
    }
    RecordProperty("platform_growth", std::to_string(platform));
    RecordProperty("layer_growth", std::to_string(layer));
    std::cout << "  commit charge over 1000 cycles: platform window+format+context " << platform
              << " bytes, ContextOffscreen " << layer << " bytes\n";

    EXPECT_EQ(windowsBefore, windowsOfThisThread());
    EXPECT_EQ(nullptr, wglGetCurrentContext());
    WNDCLASSEXA info = {};
    info.cbSize = sizeof(info);
    EXPECT_FALSE(GetClassInfoExA(GetModuleHandleA(nullptr), lastClass, &info)) << lastClass << " still registered";
    EXPECT_LT(layer, platform + (2ll << 20)) << "the layer keeps memory of its own for every context";
}
