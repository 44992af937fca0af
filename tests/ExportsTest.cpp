// What oru_ogl.dll exports under plain C names.
#include "support/ModuleExports.h"

#include "oru_ogl/TokenName.h"
#include "oru_ogl/extensionator/EntryPoints.h"
#include "oru_ogl/extensionator/ExtensionCatalogue.h"

#include <gtest/gtest.h>

#include <windows.h>

#include <algorithm>

TEST(ExportsTest, TokenFunctionsHaveUnmangledNames)
{
    // Referencing them keeps the DLL loaded by this program.
    ASSERT_STREQ("GL_TRUE", boolToString(1));
    ASSERT_STREQ("GL_TEXTURE_2D", TokenName(0x0DE1));

    const std::vector<std::string> names = OruTest::exportedNames("oru_ogl.dll");
    ASSERT_FALSE(names.empty()) << "oru_ogl.dll is not loaded";
    EXPECT_EQ(1, std::count(names.begin(), names.end(), "TokenName"));
    EXPECT_EQ(1, std::count(names.begin(), names.end(), "boolToString"));

    const HMODULE module = GetModuleHandleA("oru_ogl.dll");
    typedef char const* (*TokenNameFunction)(unsigned int);
    const TokenNameFunction byName = reinterpret_cast<TokenNameFunction>(
        reinterpret_cast<void*>(GetProcAddress(module, "TokenName")));
    ASSERT_NE(nullptr, byName);
    EXPECT_STREQ("GL_FRAGMENT_SHADER", byName(0x8B30));
}

TEST(ExportsTest, EveryEntryPointPointerIsExported)
{
    PFN_cgmDrawRangeElements volatile keepLoaded = _cgmDrawRangeElements; // keeps the DLL loaded by this program
    (void)keepLoaded;
    const std::vector<std::string> names = OruTest::exportedNames("oru_ogl.dll");
    const long gl = std::count_if(names.begin(), names.end(), [](std::string const& n) { return n.rfind("_cgm", 0) == 0; });
    const long wgl = std::count_if(names.begin(), names.end(), [](std::string const& n) { return n.find("_wcgm") != std::string::npos; });
    EXPECT_EQ(Oru::OGL::catalogue::kGLEntryPointCount, static_cast<unsigned long>(gl));
    EXPECT_EQ(Oru::OGL::catalogue::kWGLEntryPointCount, static_cast<unsigned long>(wgl));

    // GL pointers under their plain names: "_cgm" and the name without "gl".
    for (unsigned int id = 0; id < Oru::OGL::catalogue::kFirstWGLExtensionId; ++id)
    {
        const Oru::OGL::teExtension ext = static_cast<Oru::OGL::teExtension>(id);
        for (unsigned int k = 0; k < Oru::OGL::ExtensionCatalogue::entryPointCount(ext); ++k)
        {
            const std::string variable = std::string("_cgm") + (Oru::OGL::ExtensionCatalogue::entryPointName(ext, k) + 2);
            EXPECT_EQ(1, std::count(names.begin(), names.end(), variable)) << variable;
        }
    }
}
