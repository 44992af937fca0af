// Start-up without a driver: parsing the driver's strings, the options, and
// every refusal that comes before a context is needed.
#include "oru_ogl/InternalWindow.h"
#include "oru_ogl/LibraryOGL.h"
#include "oru_ogl/extensionator/ExtensionManager.h"
#include "oru_ogl/ogl/ContextWrapped.h"
#include "oru_ogl/ogl/TextureUnit.h"

#include "support/Raises.h"

#include <cstdint>
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

    // The manager's creation without the checks that Library makes first.
    static void create(Context* context) { ExtensionManager::Create(context, ExtensionManager::InitOptions()); }
};

} // namespace OGL
} // namespace Oru

using Oru::OGL::ExtensionManager;
using Oru::OGL::ExtensionManagerTestAccess;
using Oru::OGL::Library;
using Oru::OGL::TextureUnit;
using Access = ExtensionManagerTestAccess;
using OruTest::Raised;
using OruTest::raisedBy;

// Unreadable numbers keep the values they had (0, 0 here); the release is reset first.
TEST(StartupTest, VersionStrings)
{
    const struct
    {
        char const* text;
        unsigned int major, minor;
        int release;
        char const* additional;
    } rows[] = {
        { "2.0.5399 Build 7", 2, 0, 5399, "Build 7" },
        { "1.5.0 Vendor 91.47", 1, 5, 0, "Vendor 91.47" },
        { "2.1.2 Vendor 169.21", 2, 1, 2, "Vendor 169.21" },
        { "2.1 Vendor", 2, 1, -1, "Vendor" },
        { "1.4", 1, 4, -1, "" },
        { "4.5 (Compatibility Profile) Mesa 22.3.6", 4, 5, -1, "(Compatibility Profile) Mesa 22.3.6" },
        { "3.0.0 - Build 8.15.10.2559", 3, 0, 0, "- Build 8.15.10.2559" },
        { "x.y.z info", 0, 0, -1, "info" },
        { "7", 7, 0, -1, "" },
    };
    for (auto const& row : rows)
    {
        const Access::Version v = Access::parse(row.text);
        EXPECT_EQ(row.major, v.major) << row.text;
        EXPECT_EQ(row.minor, v.minor) << row.text;
        EXPECT_EQ(row.release, v.release) << row.text;
        EXPECT_EQ(row.additional, v.additional) << row.text;
    }
}

TEST(StartupTest, ExtensionStringsSplitOnBlanksOnly)
{
    EXPECT_EQ((std::vector<std::string>{ "GL_A", "GL_B", "GL_C" }), Access::split("GL_A GL_B GL_C"));
    EXPECT_EQ((std::vector<std::string>{ "GL_A", "GL_B" }), Access::split("  GL_A    GL_B  "));
    EXPECT_EQ((std::vector<std::string>{ "GL_A\tGL_B" }), Access::split("GL_A\tGL_B"));
    EXPECT_TRUE(Access::split("").empty());
    EXPECT_TRUE(Access::split("   ").empty());

    // The splitter reads sixteen bytes at a time: names and runs of blanks of
    // every length, across block boundaries, at every alignment of the text.
    std::uint32_t state = 7;
    auto next = [&state] { return (state = state * 1664525u + 1013904223u) >> 8; };
    for (int round = 0; round < 3000; ++round)
    {
        std::string text;
        std::vector<std::string> expected;
        const unsigned int pieces = next() % 12;
        for (unsigned int k = 0; k < pieces; ++k)
        {
            text.append(next() % 4 == 0 ? 1 + next() % 20 : 1, ' ');
            std::string name;
            for (unsigned int n = 1 + next() % 40; n > 0; --n)
                name += static_cast<char>('A' + next() % 60); // letters, digits-like and '_', '\t', never a blank
            expected.push_back(name);
            text += name;
        }
        text.append(next() % 3, ' ');
        const std::string padded = std::string(round % 16, '#') + text;
        std::vector<std::string> tokens = Access::split(padded.substr(round % 16));
        ASSERT_EQ(expected, tokens) << '"' << text << '"';
    }
}

// "ATI" in capitals anywhere, even inside a word, wins; the match is case-sensitive.
TEST(StartupTest, VendorClassesAndNonPowerOfTwo)
{
    const ExtensionManager::teVendor ati = ExtensionManager::VENDOR_ATI, nvidia = ExtensionManager::VENDOR_NVIDIA,
                                     other = ExtensionManager::VENDOR_OTHER;
    const std::pair<char const*, ExtensionManager::teVendor> vendors[] = {
        { "ATI Technologies Inc.", ati }, { "NVIDIA Corporation", nvidia }, { "CREATIVE LABS", ati },
        { "NVIDIA and ATI", ati },        { "Nvidia Corporation", other },  { "ati", other },
        { "Mesa/X.org", other },
    };
    for (auto const& row : vendors)
        EXPECT_EQ(row.second, Access::vendor(row.first)) << row.first;
    // On NVIDIA only the extension counts.
    EXPECT_FALSE(Access::nonPowerOfTwo(nvidia, false, true));
    EXPECT_TRUE(Access::nonPowerOfTwo(nvidia, true, false));
    EXPECT_TRUE(Access::nonPowerOfTwo(ati, false, true));
    EXPECT_TRUE(Access::nonPowerOfTwo(other, false, true));
    EXPECT_FALSE(Access::nonPowerOfTwo(other, false, false));
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
    const std::pair<Raised, Raised> rows[] = {
        { Raised::at("extensionator/ExtensionManager.cpp", 129, "Enforce pInstance_ != NULL"),
          raisedBy([] { ExtensionManager::Instance(); }) },
        { Raised::at("LibraryOGL.cpp", 56, "Enforce pContext != NULL"),
          raisedBy([] { Library::initializeExtensionator(nullptr, ExtensionManager::InitOptions()); }) },
        { Raised::at("extensionator/ExtensionManager.cpp", 556, "Enforce pContext != NULL"),
          raisedBy([] { Access::create(nullptr); }) },
        { Raised::at("LibraryOGL.cpp", 121, "bExtensionatorInitialized_"),
          raisedBy([] { Library::terminateExtensionator(); }) },
        { Raised::at("LibraryOGL.cpp", 138, "Enforce pContext != NULL"),
          raisedBy([] { Oru::OGL::AutoInitializer layer(nullptr); }) },
        { Raised::at("ogl/TextureUnit.cpp", 76, "unit < nMaxTextureUnit_"), raisedBy([] { TextureUnit::Unit(0); }) },
        { Raised::at("ogl/ContextWrapped.cpp", 13, "ContextWrapped::ctor invalid device"), // the device first
          raisedBy([] { Oru::OGL::ContextWrapped(nullptr, nullptr); }) },
        { Raised::at("ogl/ContextWrapped.cpp", 15, "ContextWrapped::ctor invalid rendering context"),
          raisedBy([] { Oru::OGL::ContextWrapped(reinterpret_cast<HDC>(1), nullptr); }) },
    };
    for (auto const& row : rows)
        EXPECT_EQ(row.first, row.second);
    EXPECT_FALSE(Library::isExtensionatorInitialized());
}

TEST(StartupTest, EnvironmentTranslation)
{
    // ADD, BLEND, COMBINE, DECAL, MODULATE, REPLACE.
    OruTest::expectTranslations<TextureUnit::Environment>(
        "ogl/TextureUnit.cpp", { 0x0104, 0x0BE2, 0x8570, 0x2101, 0x2100, 0x1E01 }, TextureUnit::Environment2GL,
        TextureUnit::GL2Environment, 0x8571, "Environment enums are not all properly translated.");
    EXPECT_EQ(249, raisedBy([] { TextureUnit::Environment2GL(static_cast<TextureUnit::Environment>(6)); }).line);
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
