// Starting the layer against the real driver, under each driver configuration
// of the suite: what the extension manager reads, marks and answers, and the
// texture-unit table it sizes.
#include "oru_ogl/LibraryOGL.h"
#include "oru_ogl/extensionator/EntryPoints.h"
#include "oru_ogl/extensionator/ExtensionCatalogue.h"
#include "oru_ogl/extensionator/ExtensionManager.h"
#include "oru_ogl/ogl/ContextAttributes.h"
#include "oru_ogl/ogl/ContextOffscreen.h"
#include "oru_ogl/ogl/TextureState.h"
#include "oru_ogl/ogl/TextureUnit.h"

#include "support/Raises.h"

#include <cstring>
#include <memory>
#include <set>
#include <sstream>
#include <stdexcept>
#include <string>

using namespace Oru::OGL;
using OruTest::Raised;
using OruTest::raisedBy;

namespace
{

class StartupGLTest : public ::testing::Test
{
protected:
    static void SetUpTestSuite() { context_.reset(new ContextOffscreen()); }
    static void TearDownTestSuite() { context_.reset(); }

    void SetUp() override { ASSERT_FALSE(Library::isExtensionatorInitialized()); }
    void TearDown() override
    {
        if (Library::isExtensionatorInitialized())
            Library::terminateExtensionator();
    }

    static void start() { Library::initializeExtensionator(context_.get(), ExtensionManager::InitOptions()); }

    // What the driver itself says, read independently of the manager.
    struct Driver
    {
        unsigned int major = 0, minor = 0;
        std::set<std::string> extensions;
        bool has(char const* name) const { return extensions.count(name) != 0; }
        bool atLeast(unsigned int ma, unsigned int mi) const { return major > ma || (major == ma && minor >= mi); }
    };

    static Driver driver()
    {
        context_->makeCurrent();
        Driver d;
        char const* version = reinterpret_cast<char const*>(glGetString(GL_VERSION));
        std::sscanf(version, "%u.%u", &d.major, &d.minor);
        std::istringstream names(reinterpret_cast<char const*>(glGetString(GL_EXTENSIONS)));
        for (std::string name; names >> name;)
            d.extensions.insert(name);
        return d;
    }

    static std::unique_ptr<ContextOffscreen> context_;
};

std::unique_ptr<ContextOffscreen> StartupGLTest::context_;

} // namespace

TEST_F(StartupGLTest, StartMakesTheContextCurrentAndReadsItsVersion)
{
    wglMakeCurrent(nullptr, nullptr);
    start();
    EXPECT_TRUE(Library::isExtensionatorInitialized());
    EXPECT_EQ(context_->renderContext(), wglGetCurrentContext());
    const Driver d = driver();
    ExtensionManager* manager = ExtensionManager::Instance();
    EXPECT_EQ(d.major, manager->majorVersion());
    EXPECT_EQ(d.minor, manager->minorVersion());
    const std::string version = reinterpret_cast<char const*>(glGetString(GL_VERSION));
    EXPECT_NE(std::string::npos, version.find(manager->additionalVersionInfo()));
    EXPECT_EQ(ExtensionManager::VENDOR_OTHER, manager->vendor()); // "Mesa/X.org"
    if (!manager->hasReleaseVersion())
    {
        EXPECT_EQ(Raised::at("extensionator/ExtensionManager.cpp", 183, "nReleaseVersion_ != -1"),
                  raisedBy([&] { manager->releaseVersion(); }));
    }
}

TEST_F(StartupGLTest, CoreVersionsAreMarkedOnlyForMajorVersionsOneAndTwo)
{
    start();
    const Driver d = driver();
    ExtensionManager* manager = ExtensionManager::Instance();
    RecordProperty("driver", std::to_string(d.major) + "." + std::to_string(d.minor));
    const bool classic = d.major == 1 || d.major == 2;
    EXPECT_EQ(classic && d.atLeast(1, 2), manager->isSupported(OPEN_GL_1_2));
    EXPECT_EQ(classic && d.atLeast(1, 3), manager->isSupported(OPEN_GL_1_3));
    EXPECT_EQ(classic && d.atLeast(1, 4), manager->isSupported(OPEN_GL_1_4));
    EXPECT_EQ(classic && d.atLeast(1, 5), manager->isSupported(OPEN_GL_1_5));
    EXPECT_EQ(classic && d.atLeast(2, 0), manager->isSupported(OPEN_GL_2_0));
    EXPECT_FALSE(manager->isSupported(OPEN_GL_2_1)); // never, also on a 2.1 driver
}

TEST_F(StartupGLTest, CapabilityQuestionsFollowVersionAndExtensions)
{
    start();
    const Driver d = driver();
    ExtensionManager* manager = ExtensionManager::Instance();
    EXPECT_EQ(d.atLeast(1, 2), manager->supportsClampToEdge());
    EXPECT_EQ(d.atLeast(1, 2) || d.has("GL_EXT_texture3D"), manager->supportsTexture3D());
    // 2.x and later versions alone count for neither of these two.
    EXPECT_EQ((d.major == 1 && d.minor >= 3) || d.has("GL_ARB_multitexture"), manager->supportsMultiTexture());
    EXPECT_EQ(d.major == 2 || d.has("GL_ARB_draw_buffers"), manager->supportsDrawBuffers());
    EXPECT_EQ(d.has("GL_ARB_texture_float") || d.has("GL_ATI_texture_float") || d.has("GL_APPLE_float_pixels"),
              manager->supportsFloatingPointTextures());
    EXPECT_EQ(d.has("GL_ARB_texture_non_power_of_two") || manager->isSupported(OPEN_GL_2_0),
              manager->supportsNonPowerOfTwoTextures());
    EXPECT_EQ(manager->isSupported(WGL_ARB_PIXEL_FORMAT) && manager->isSupported(WGL_ARB_PBUFFER),
              manager->supportsPixelBuffers());
    EXPECT_EQ(manager->isSupported(WGL_ARB_RENDER_TEXTURE), manager->supportsRenderToTexture());
}

TEST_F(StartupGLTest, AdvertisedExtensionsAreMarkedAndOthersAreNot)
{
    start();
    const Driver d = driver();
    ExtensionManager* manager = ExtensionManager::Instance();
    unsigned int marked = 0;
    for (unsigned int id = GL_3DFX_MULTISAMPLE; id <= GL_WIN_SWAP_HINT; ++id)
    {
        const teExtension ext = static_cast<teExtension>(id);
        const bool advertised = d.has(ExtensionCatalogue::name(ext));
        if (!advertised)
            EXPECT_FALSE(manager->isSupported(ext)) << ExtensionCatalogue::name(ext);
        else if (manager->isSupported(ext))
            ++marked;
        else
            EXPECT_NE(nullptr, ExtensionCatalogue::missingEntryPoint(ext)) << ExtensionCatalogue::name(ext);
    }
    EXPECT_GT(marked, 20u);
    EXPECT_TRUE(manager->isSupported(WGL_ARB_EXTENSIONS_STRING));
    EXPECT_TRUE(manager->isSupported(WGL_ARB_PIXEL_FORMAT));
}

namespace
{

PROC WINAPI withoutBindFramebuffer(LPCSTR name)
{
    return std::strcmp(name, "glBindFramebufferEXT") == 0 ? nullptr : wglGetProcAddress(name);
}

} // namespace

TEST_F(StartupGLTest, AnAdvertisedExtensionWithAMissingEntryPointIsNotSupported)
{
    if (!driver().has("GL_EXT_framebuffer_object"))
        GTEST_SKIP() << "the driver does not advertise GL_EXT_framebuffer_object";
    const ExtensionCatalogue::ProcAddressResolver previous =
        ExtensionCatalogue::setProcAddressResolver(&withoutBindFramebuffer);
    start();
    ExtensionCatalogue::setProcAddressResolver(previous);
    EXPECT_FALSE(ExtensionManager::Instance()->isSupported(GL_EXT_FRAMEBUFFER_OBJECT));
    EXPECT_STREQ("glBindFramebufferEXT", ExtensionCatalogue::missingEntryPoint(GL_EXT_FRAMEBUFFER_OBJECT));

    // initialize() fetches again, and leaves the answers as they were.
    EXPECT_TRUE(ExtensionManager::Instance()->initialize(GL_EXT_FRAMEBUFFER_OBJECT));
    EXPECT_NE(nullptr, _cgmBindFramebufferEXT);
    EXPECT_FALSE(ExtensionManager::Instance()->isSupported(GL_EXT_FRAMEBUFFER_OBJECT));
}

TEST_F(StartupGLTest, InitializeFetchesCoreVersionsTheManagerDidNotMark)
{
    start();
    const Driver d = driver();
    if (!d.atLeast(2, 0))
        GTEST_SKIP() << "the driver reports no 2.0";
    EXPECT_TRUE(ExtensionManager::Instance()->initialize(OPEN_GL_2_0));
    EXPECT_NE(nullptr, _cgmCreateShader);
    EXPECT_FALSE(ExtensionManager::Instance()->initialize(UNKNOWN_EXTENSION));
}

TEST_F(StartupGLTest, SecondStartIsRefusedAndTheFirstStays)
{
    start();
    ExtensionManager* first = ExtensionManager::Instance();
    EXPECT_EQ(Raised::at("LibraryOGL.cpp", 60, "!bExtensionatorInitialized_"), raisedBy([] { start(); }));
    EXPECT_TRUE(Library::isExtensionatorInitialized());
    EXPECT_EQ(first, ExtensionManager::Instance());
    Library::terminateExtensionator();
    EXPECT_FALSE(Library::isExtensionatorInitialized());
    EXPECT_EQ(Raised::at("extensionator/ExtensionManager.cpp", 129, "Enforce pInstance_ != NULL"),
              raisedBy([] { ExtensionManager::Instance(); }));
    EXPECT_EQ(Raised::at("ogl/TextureUnit.cpp", 76, "unit < nMaxTextureUnit_"), raisedBy([] { TextureUnit::Unit(0); }));

    // And it starts again.
    start();
    EXPECT_NO_THROW(ExtensionManager::Instance());
}

TEST_F(StartupGLTest, OptionsAreHandedBack)
{
    ExtensionManager::InitOptions options;
    std::string path = "recordings/session";
    options.setRekorderPathname(path);
    options.setFlushOnMakeCurrentMacOnly(false);
    options.setThrowOnNullContext(false);
    Library::initializeExtensionator(context_.get(), options);
    EXPECT_EQ("recordings/session", ExtensionManager::Instance()->initOptions().rekorderPathname());
    EXPECT_FALSE(ExtensionManager::Instance()->initOptions().flushOnMakeCurrentMacOnly());
    EXPECT_FALSE(ExtensionManager::Instance()->initOptions().throwOnNullContext());
}

// With the option, a 3.0 or later compatibility context (Mesa's default one
// here) is treated like a 2.1 driver; older drivers get what they got before.
TEST_F(StartupGLTest, CompatibilityCoreVersionsOption)
{
    EXPECT_FALSE(ExtensionManager::InitOptions().compatibilityCoreVersions());
    ExtensionManager::InitOptions options;
    options.setCompatibilityCoreVersions(true);
    Library::initializeExtensionator(context_.get(), options);
    const Driver d = driver();
    ExtensionManager* manager = ExtensionManager::Instance();
    EXPECT_TRUE(manager->initOptions().compatibilityCoreVersions());
    EXPECT_EQ(d.major, manager->majorVersion()); // reported as it is
    const bool later = d.major >= 3;
    const struct
    {
        teExtension id;
        unsigned int major, minor;
    } cores[] = {{OPEN_GL_1_2, 1, 2}, {OPEN_GL_1_3, 1, 3}, {OPEN_GL_1_4, 1, 4}, {OPEN_GL_1_5, 1, 5}, {OPEN_GL_2_0, 2, 0}};
    for (auto const& core : cores)
        EXPECT_EQ(later || d.atLeast(core.major, core.minor), manager->isSupported(core.id)) << core.major << "." << core.minor;
    EXPECT_EQ(later, manager->isSupported(OPEN_GL_2_1));
}

// A core profile lacks the fixed-function half the wrappers rely on: no marks.
TEST_F(StartupGLTest, CompatibilityCoreVersionsLeaveACoreProfileAlone)
{
    const Driver d = driver();
    if (!d.atLeast(3, 2))
        GTEST_SKIP() << "the driver reports no 3.2, which core profiles need";
    ContextAttributes core(3, 2);
    core.setCompatibilityProfile(false);
    ContextOffscreen coreContext(core);
    ExtensionManager::InitOptions options;
    options.setCompatibilityCoreVersions(true);
    Library::initializeExtensionator(&coreContext, options);
    for (teExtension id : {OPEN_GL_1_2, OPEN_GL_1_3, OPEN_GL_1_4, OPEN_GL_1_5, OPEN_GL_2_0, OPEN_GL_2_1})
        EXPECT_FALSE(ExtensionManager::Instance()->isSupported(id)) << id;
    Library::terminateExtensionator();
    wglMakeCurrent(nullptr, nullptr);
}

TEST_F(StartupGLTest, AutoInitializerScopes)
{
    {
        AutoInitializer layer(context_.get());
        EXPECT_TRUE(Library::isExtensionatorInitialized());
        EXPECT_EQ(Raised::at("LibraryOGL.cpp", 60, "!bExtensionatorInitialized_"),
                  raisedBy([] { AutoInitializer nested(context_.get()); }));
        EXPECT_TRUE(Library::isExtensionatorInitialized());
    }
    EXPECT_FALSE(Library::isExtensionatorInitialized());
    {
        AutoInitializer layer(context_.get());
        layer.release();
    }
    EXPECT_TRUE(Library::isExtensionatorInitialized());
}

// A shutdown that fails in ~AutoInitializer (the layer was stopped by hand) is
// reported, except while another exception leaves the scope: that one is the
// caller's to see, and a throw would end the program.
TEST_F(StartupGLTest, AutoInitializerNeverThrowsOverAnUnwindingException)
{
    const Raised stoppedByHand = Raised::at("LibraryOGL.cpp", 121, "bExtensionatorInitialized_");
    EXPECT_EQ(stoppedByHand, raisedBy([] {
                  AutoInitializer layer(context_.get());
                  Library::terminateExtensionator();
              }));

    std::string caught;
    try
    {
        AutoInitializer layer(context_.get());
        Library::terminateExtensionator();
        throw std::runtime_error("the caller's");
    }
    catch (std::runtime_error const& e)
    {
        caught = e.what();
    }
    EXPECT_EQ("the caller's", caught);

    // Still started when the exception leaves: stopped all the same.
    EXPECT_THROW(
        {
            AutoInitializer layer(context_.get());
            throw std::runtime_error("again");
        },
        std::runtime_error);
    EXPECT_FALSE(Library::isExtensionatorInitialized());

    // Made and ended within a destructor that runs during unwinding: no
    // exception leaves its own scope, so its failure is reported.
    static Raised inDestructor;
    struct EndsAnAutoInitializer
    {
        ~EndsAnAutoInitializer()
        {
            inDestructor = raisedBy([] {
                AutoInitializer layer(context_.get());
                Library::terminateExtensionator();
            });
        }
    };
    EXPECT_THROW(
        {
            EndsAnAutoInitializer ends;
            throw std::runtime_error("outer");
        },
        std::runtime_error);
    EXPECT_EQ(stoppedByHand, inDestructor);
}

TEST_F(StartupGLTest, TextureUnitTableActsOnTheActiveUnit)
{
    start();
    if (!ExtensionManager::Instance()->isSupported(GL_ARB_MULTITEXTURE))
    {
        const Raised raised = raisedBy([] { TextureState::setActiveTexture(0); });
        EXPECT_EQ(0u, raised.message.rfind("glActiveTextureARB is not loaded", 0)) << raised;
        return;
    }
    const unsigned int units = ExtensionManager::Instance()->numberOfTextureUnits();
    ASSERT_GE(units, 2u);
    EXPECT_NO_THROW(TextureUnit::Unit(units - 1));
    EXPECT_EQ(Raised::at("ogl/TextureUnit.cpp", 76, "unit < nMaxTextureUnit_"),
              raisedBy([&] { TextureUnit::Unit(units); }));

    TextureState::setActiveTexture(0);
    EXPECT_EQ(0, TextureState::activeTexture());
    TextureUnit::Unit(1)->enable2D(); // acts on the active unit 0
    EXPECT_TRUE(glIsEnabled(GL_TEXTURE_2D));
    EXPECT_TRUE(TextureUnit::Unit(0)->isEnabled2D());
    TextureState::setActiveTexture(1);
    EXPECT_EQ(1, TextureState::activeTexture());
    EXPECT_FALSE(TextureUnit::Unit(1)->isEnabled2D());
    TextureState::setActiveTexture(0);
    TextureUnit::Unit(0)->disable2D();
    EXPECT_FALSE(glIsEnabled(GL_TEXTURE_2D));

    TextureUnit::Unit(0)->setEnv(TextureUnit::REPLACE);
    GLint mode = 0;
    glGetTexEnviv(GL_TEXTURE_ENV, GL_TEXTURE_ENV_MODE, &mode);
    EXPECT_EQ(GL_REPLACE, mode);
    EXPECT_THROW(TextureUnit::Unit(0)->setEnv(static_cast<TextureUnit::Environment>(9)), Oru::InternalException);
    glGetTexEnviv(GL_TEXTURE_ENV, GL_TEXTURE_ENV_MODE, &mode);
    EXPECT_EQ(GL_REPLACE, mode);
    TextureUnit::Unit(0)->setEnv(TextureUnit::MODULATE);

    EXPECT_TRUE(TextureState::IsTargetSupported(GL_TEXTURE_2D));
    EXPECT_TRUE(TextureState::IsTargetSupported(0x806F));
    EXPECT_EQ(ExtensionManager::Instance()->isSupported(GL_ARB_TEXTURE_RECTANGLE), TextureState::IsTargetSupported(0x84F5));
    EXPECT_FALSE(TextureState::IsTargetSupported(0x8513)); // cube maps are not the layer's
}
