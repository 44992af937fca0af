// Start-up without a driver: parsing the driver's strings, the options, and
// every refusal that comes before a context is needed.
#include "oru_ogl/InternalWindow.h"
#include "oru_ogl/LibraryOGL.h"
#include "oru_ogl/extensionator/ExtensionManager.h"
#include "oru_ogl/ogl/ContextWrapped.h"
#include "oru_ogl/ogl/TextureUnit.h"

#include "oru_core/Exceptions.h"

#include <gtest/gtest.h>

#include <functional>
#include <string>
#include <vector>

namespace Oru
{
namespace OGL
{

// The manager's parsing is private; the tests reach it through this friend.
struct ExtensionManagerTestAccess
{
    struct Version
    {
        unsigned int major;
        unsigned int minor;
        int release;
        std::string additional;
    };

    static Version parse(std::string const& text)
    {
        Version v = { 0, 0, 77, "stale" };
        ExtensionManager::TokenizeVersionString(text, v.major, v.minor, v.release, v.additional);
        return v;
    }

    static std::vector<std::string> split(std::string const& text)
    {
        std::vector<std::string> tokens;
        ExtensionManager::TokenizeExtensionString(text, tokens);
        return tokens;
    }

    static ExtensionManager::teVendor vendor(std::string const& text) { return ExtensionManager::VendorFromString(text); }

    static bool nonPowerOfTwo(ExtensionManager::teVendor vendor, bool arb, bool gl20)
    {
        return ExtensionManager::NonPowerOfTwoFlag(vendor, arb, gl20);
    }
};

} // namespace OGL
} // namespace Oru

using Oru::OGL::ExtensionManager;
using Oru::OGL::ExtensionManagerTestAccess;
using Oru::OGL::Library;
using Oru::OGL::TextureUnit;
using Access = ExtensionManagerTestAccess;

namespace
{

struct Refusal
{
    std::string file;
    int line;
    std::string message;
};

Refusal refusalOf(std::function<void()> const& action)
{
    try
    {
        action();
    }
    catch (Oru::InternalException const& e)
    {
        return { e.file(), e.line(), e.message() };
    }
    return { "", 0, "<nothing thrown>" };
}

void expectRefusal(char const* file, int line, char const* message, std::function<void()> const& action)
{
    const Refusal r = refusalOf(action);
    EXPECT_EQ(message, r.message);
    EXPECT_EQ(file, r.file);
    EXPECT_EQ(line, r.line) << message;
}

} // namespace

TEST(StartupTest, VersionStrings)
{
    Access::Version v = Access::parse("2.0.5399 Build 7");
    EXPECT_EQ(2u, v.major);
    EXPECT_EQ(0u, v.minor);
    EXPECT_EQ(5399, v.release);
    EXPECT_EQ("Build 7", v.additional);

    v = Access::parse("1.5.0 Vendor 91.47");
    EXPECT_EQ(1u, v.major);
    EXPECT_EQ(5u, v.minor);
    EXPECT_EQ(0, v.release);
    EXPECT_EQ("Vendor 91.47", v.additional);

    v = Access::parse("2.1.2 Vendor 169.21");
    EXPECT_EQ(2u, v.major);
    EXPECT_EQ(1u, v.minor);
    EXPECT_EQ(2, v.release);
    EXPECT_EQ("Vendor 169.21", v.additional);

    v = Access::parse("2.1 Vendor");
    EXPECT_EQ(1u, v.minor);
    EXPECT_EQ(-1, v.release);
    EXPECT_EQ("Vendor", v.additional);

    v = Access::parse("1.4");
    EXPECT_EQ(1u, v.major);
    EXPECT_EQ(4u, v.minor);
    EXPECT_EQ(-1, v.release);
    EXPECT_EQ("", v.additional);

    v = Access::parse("4.5 (Compatibility Profile) Mesa 22.3.6");
    EXPECT_EQ(4u, v.major);
    EXPECT_EQ(5u, v.minor);
    EXPECT_EQ(-1, v.release);
    EXPECT_EQ("(Compatibility Profile) Mesa 22.3.6", v.additional);

    v = Access::parse("3.0.0 - Build 8.15.10.2559");
    EXPECT_EQ(3u, v.major);
    EXPECT_EQ(0, v.release);
    EXPECT_EQ("- Build 8.15.10.2559", v.additional);
}

TEST(StartupTest, UnreadableVersionNumbersKeepTheirPreviousValues)
{
    Access::Version v = Access::parse("x.y.z info");
    EXPECT_EQ(0u, v.major); // the test's starting value
    EXPECT_EQ(0u, v.minor);
    EXPECT_EQ(-1, v.release); // reset before parsing, then unreadable
    EXPECT_EQ("info", v.additional);

    v = Access::parse("7");
    EXPECT_EQ(7u, v.major);
    EXPECT_EQ(-1, v.release);
    EXPECT_EQ("", v.additional);
}

TEST(StartupTest, ExtensionStringsSplitOnBlanksOnly)
{
    EXPECT_EQ((std::vector<std::string>{ "GL_A", "GL_B", "GL_C" }), Access::split("GL_A GL_B GL_C"));
    EXPECT_EQ((std::vector<std::string>{ "GL_A", "GL_B" }), Access::split("  GL_A    GL_B  "));
    EXPECT_EQ((std::vector<std::string>{ "GL_A\tGL_B" }), Access::split("GL_A\tGL_B"));
    EXPECT_TRUE(Access::split("").empty());
    EXPECT_TRUE(Access::split("   ").empty());
}

TEST(StartupTest, VendorClasses)
{
    EXPECT_EQ(ExtensionManager::VENDOR_ATI, Access::vendor("ATI Technologies Inc."));
    EXPECT_EQ(ExtensionManager::VENDOR_NVIDIA, Access::vendor("NVIDIA Corporation"));
    EXPECT_EQ(ExtensionManager::VENDOR_ATI, Access::vendor("CREATIVE LABS")); // the capitals ATI inside a word
    EXPECT_EQ(ExtensionManager::VENDOR_ATI, Access::vendor("NVIDIA and ATI"));
    EXPECT_EQ(ExtensionManager::VENDOR_OTHER, Access::vendor("Nvidia Corporation"));
    EXPECT_EQ(ExtensionManager::VENDOR_OTHER, Access::vendor("ati"));
    EXPECT_EQ(ExtensionManager::VENDOR_OTHER, Access::vendor("Mesa/X.org"));
}

TEST(StartupTest, NonPowerOfTwoOnNvidiaNeedsTheExtension)
{
    EXPECT_FALSE(Access::nonPowerOfTwo(ExtensionManager::VENDOR_NVIDIA, false, true));
    EXPECT_TRUE(Access::nonPowerOfTwo(ExtensionManager::VENDOR_NVIDIA, true, false));
    EXPECT_TRUE(Access::nonPowerOfTwo(ExtensionManager::VENDOR_ATI, false, true));
    EXPECT_TRUE(Access::nonPowerOfTwo(ExtensionManager::VENDOR_OTHER, false, true));
    EXPECT_FALSE(Access::nonPowerOfTwo(ExtensionManager::VENDOR_OTHER, false, false));
}

TEST(StartupTest, InitOptionsDefaultsAndCopies)
{
    ExtensionManager::InitOptions options;
    EXPECT_TRUE(options.throwOnNullContext());
    EXPECT_TRUE(options.flushOnMakeCurrentMacOnly());
    EXPECT_EQ("", options.rekorderPathname());

    std::string path = "capture/run1";
    options.setRekorderPathname(path);
    options.setThrowOnNullContext(false);
    path = "changed";
    ExtensionManager::InitOptions copy(options);
    EXPECT_EQ("capture/run1", copy.rekorderPathname());
    EXPECT_FALSE(copy.throwOnNullContext());
    ExtensionManager::InitOptions assigned;
    assigned = copy;
    EXPECT_EQ("capture/run1", assigned.rekorderPathname());
}

TEST(StartupTest, RefusalsBeforeStartUp)
{
    EXPECT_FALSE(Library::isExtensionatorInitialized());
    expectRefusal("extensionator/ExtensionManager.cpp", 129, "Enforce pInstance_ != NULL",
                  [] { ExtensionManager::Instance(); });
    expectRefusal("LibraryOGL.cpp", 56, "Enforce pContext != NULL",
                  [] { Library::initializeExtensionator(nullptr, ExtensionManager::InitOptions()); });
    EXPECT_FALSE(Library::isExtensionatorInitialized());
    expectRefusal("LibraryOGL.cpp", 121, "bExtensionatorInitialized_", [] { Library::terminateExtensionator(); });
    expectRefusal("LibraryOGL.cpp", 138, "Enforce pContext != NULL",
                  [] { Oru::OGL::AutoInitializer layer(nullptr); });
    EXPECT_FALSE(Library::isExtensionatorInitialized());
}

TEST(StartupTest, TextureUnitsBeforeStartUp)
{
    expectRefusal("ogl/TextureUnit.cpp", 76, "unit < nMaxTextureUnit_", [] { TextureUnit::Unit(0); });
}

TEST(StartupTest, EnvironmentTranslation)
{
    const std::pair<TextureUnit::Environment, unsigned int> table[] = {
        { TextureUnit::ADD, 0x0104 },     { TextureUnit::BLEND, 0x0BE2 },    { TextureUnit::COMBINE, 0x8570 },
        { TextureUnit::DECAL, 0x2101 },   { TextureUnit::MODULATE, 0x2100 }, { TextureUnit::REPLACE, 0x1E01 },
    };
    for (auto const& row : table)
    {
        EXPECT_EQ(row.second, TextureUnit::Environment2GL(row.first));
        EXPECT_EQ(row.first, TextureUnit::GL2Environment(row.second));
    }
    expectRefusal("ogl/TextureUnit.cpp", 249, "!\"Environment enums are not all properly translated.\"",
                  [] { TextureUnit::Environment2GL(static_cast<TextureUnit::Environment>(6)); });
    EXPECT_EQ("!\"Environment enums are not all properly translated.\"",
              refusalOf([] { TextureUnit::GL2Environment(0x8571); }).message);
}

TEST(StartupTest, WrappedContextChecksDeviceFirst)
{
    const Refusal both = refusalOf([] { Oru::OGL::ContextWrapped(nullptr, nullptr); });
    EXPECT_EQ("ContextWrapped::ctor invalid device", both.message);
    EXPECT_EQ("ogl/ContextWrapped.cpp", both.file);
    const HDC someDevice = reinterpret_cast<HDC>(1);
    EXPECT_EQ("ContextWrapped::ctor invalid rendering context",
              refusalOf([someDevice] { Oru::OGL::ContextWrapped(someDevice, nullptr); }).message);
}

TEST(StartupTest, HiddenWindowsHaveAClassEachAndTakeItAlong)
{
    char className[64] = "";
    {
        Oru::OGL::InternalWindow first;
        Oru::OGL::InternalWindow second;
        ASSERT_NE(nullptr, first.handle());
        EXPECT_FALSE(IsWindowVisible(first.handle()));
        char secondName[64] = "";
        GetClassNameA(first.handle(), className, sizeof(className));
        GetClassNameA(second.handle(), secondName, sizeof(secondName));
        EXPECT_EQ(0u, std::string(className).rfind("OpenGL", 0)) << className;
        EXPECT_STRNE(className, secondName);
        RECT client;
        GetClientRect(first.handle(), &client);
        EXPECT_EQ(512, client.right - client.left);
        EXPECT_EQ(512, client.bottom - client.top);
    }
    WNDCLASSEXA info = {};
    info.cbSize = sizeof(info);
    EXPECT_FALSE(GetClassInfoExA(GetModuleHandleA(nullptr), className, &info)) << className << " still registered";
}
