// The version resource of each DLL, read from the file the process loaded,
// carries the version that oru_ogl/Version.h announces.
#include "oru_ogl/TokenName.h"
#include "oru_ogl/Version.h"

#include "oru_core/Exceptions.h"

#include <gtest/gtest.h>

#include <windows.h>

#include <cstdio>
#include <string>
#include <vector>

namespace
{

struct VersionResource
{
    std::string path;
    std::string error; // empty when the resource was read
    VS_FIXEDFILEINFO fixed = {};
    std::vector<char> data;
    std::string block; // "\StringFileInfo\040904b0\"

    std::string text(char const* key) const
    {
        char* value = nullptr;
        UINT length = 0;
        const std::string query = block + key;
        if (!VerQueryValueA(data.data(), query.c_str(), reinterpret_cast<void**>(&value), &length) || !value)
            return "<no " + std::string(key) + ">";
        return std::string(value, length && value[length - 1] == '\0' ? length - 1 : length);
    }
};

VersionResource readVersionResource(char const* moduleName)
{
    VersionResource resource;
    auto fail = [&resource](std::string const& why) {
        resource.error = why;
        return resource;
    };
    const HMODULE module = GetModuleHandleA(moduleName);
    if (!module)
        return fail(std::string(moduleName) + " is not loaded");
    char path[MAX_PATH] = {};
    GetModuleFileNameA(module, path, MAX_PATH);
    resource.path = path;

    DWORD ignored = 0;
    const DWORD size = GetFileVersionInfoSizeA(path, &ignored);
    if (size == 0)
        return fail(resource.path + " has no version resource");
    resource.data.resize(size);
    if (!GetFileVersionInfoA(path, 0, size, resource.data.data()))
        return fail("GetFileVersionInfoA failed for " + resource.path);

    VS_FIXEDFILEINFO* fixed = nullptr;
    UINT length = 0;
    if (!VerQueryValueA(resource.data.data(), "\\", reinterpret_cast<void**>(&fixed), &length) || !fixed ||
        length < sizeof(VS_FIXEDFILEINFO))
        return fail(resource.path + " has no fixed file information");
    resource.fixed = *fixed;

    // The string table of the first language and code page listed.
    WORD* translation = nullptr;
    if (!VerQueryValueA(resource.data.data(), "\\VarFileInfo\\Translation", reinterpret_cast<void**>(&translation),
                        &length) ||
        length < 2 * sizeof(WORD))
        return fail(resource.path + " lists no translation");
    char block[64];
    std::snprintf(block, sizeof(block), "\\StringFileInfo\\%04x%04x\\", translation[0], translation[1]);
    resource.block = block;
    return resource;
}

const DWORD kVersionMS = (ORU_OGL_VERSION_MAJOR << 16) | ORU_OGL_VERSION_MINOR;
const DWORD kVersionLS = ORU_OGL_VERSION_PATCH << 16;

class VersionTest : public ::testing::TestWithParam<char const*>
{
protected:
    void SetUp() override
    {
        // Referencing one function of each DLL keeps both loaded by this program.
        ASSERT_STREQ("GL_TRUE", boolToString(1));
        ASSERT_EQ(42, Oru::InternalException("f", 42, "m").line());
    }
};

} // namespace

TEST(VersionHeaderTest, TheStringSpellsTheNumbers)
{
    const std::string expected = std::to_string(ORU_OGL_VERSION_MAJOR) + "." +
                                 std::to_string(ORU_OGL_VERSION_MINOR) + "." +
                                 std::to_string(ORU_OGL_VERSION_PATCH);
    EXPECT_EQ(expected, ORU_OGL_VERSION_STRING);
    EXPECT_EQ(ORU_OGL_VERSION_MAJOR * 10000 + ORU_OGL_VERSION_MINOR * 100 + ORU_OGL_VERSION_PATCH, ORU_OGL_VERSION);
}

TEST_P(VersionTest, FileAndProductVersionAreTheHeadersVersion)
{
    const VersionResource resource = readVersionResource(GetParam());
    ASSERT_TRUE(resource.error.empty()) << resource.error;
    EXPECT_EQ(0xFEEF04BDu, resource.fixed.dwSignature);
    EXPECT_EQ(kVersionMS, resource.fixed.dwFileVersionMS) << resource.path;
    EXPECT_EQ(kVersionLS, resource.fixed.dwFileVersionLS) << resource.path;
    EXPECT_EQ(kVersionMS, resource.fixed.dwProductVersionMS) << resource.path;
    EXPECT_EQ(kVersionLS, resource.fixed.dwProductVersionLS) << resource.path;
    EXPECT_EQ(static_cast<DWORD>(VFT_DLL), resource.fixed.dwFileType);

    EXPECT_EQ(ORU_OGL_VERSION_STRING, resource.text("FileVersion"));
    EXPECT_EQ(ORU_OGL_VERSION_STRING, resource.text("ProductVersion"));
    EXPECT_EQ("oru_ogl", resource.text("ProductName"));
}

TEST_P(VersionTest, DescriptionAndFileNameNameTheDll)
{
    const VersionResource resource = readVersionResource(GetParam());
    ASSERT_TRUE(resource.error.empty()) << resource.error;
    const std::string dll = GetParam();
    const std::string stem = dll.substr(0, dll.find('.'));
    EXPECT_EQ(dll, resource.text("OriginalFilename"));
    const std::string description = resource.text("FileDescription");
    EXPECT_EQ(0u, description.find(stem + ": ")) << description;
    EXPECT_GT(description.size(), stem.size() + 2) << description;
}

INSTANTIATE_TEST_SUITE_P(Dlls, VersionTest, ::testing::Values("oru_ogl.dll", "oru_core.dll"));
