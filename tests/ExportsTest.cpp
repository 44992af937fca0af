// What oru_ogl.dll exports under plain C names.
#include "support/ModuleExports.h"

#include "oru_ogl/TokenName.h"

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
