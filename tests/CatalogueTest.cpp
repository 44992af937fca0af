// The extension catalogue without a driver: ids, names, look-ups, loader sizes,
// and loaders run against a scripted resolver.
#include "oru_ogl/extensionator/EntryPoints.h"
#include "oru_ogl/extensionator/ExtensionCatalogue.h"
#include "oru_ogl/extensionator/windows/WglEntryPoints.h"

#include <gtest/gtest.h>

#include <set>
#include <string>
#include <vector>

using Oru::OGL::ExtensionCatalogue;
using Oru::OGL::teExtension;
namespace OGL = Oru::OGL;
namespace catalogue = Oru::OGL::catalogue;

namespace
{

teExtension id(unsigned int value)
{
    return static_cast<teExtension>(value);
}

// How many entry points each id's loader fetches, ids 0 to 334.
const unsigned int kExpectedCounts[] = {
    4, 46, 45, 19, 93, 6, 0, 1, 0, 0, 5, 8, 0, 2, 3, 0, 0, 2, 0, 4,  // 0-19
    3, 0, 1, 0, 1, 0, 0, 0, 0, 32, 5, 1, 34, 8, 0, 2, 0, 39, 0, 0,  // 20-39
    0, 0, 0, 7, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 10, 11, 62, 3, 16, 0,  // 40-59
    0, 0, 0, 1, 3, 4, 14, 2, 2, 2, 0, 0, 0, 0, 0, 12, 3, 37, 0, 0,  // 60-79
    0, 3, 1, 1, 1, 0, 1, 0, 0, 0, 0, 2, 2, 13, 2, 5, 2, 1, 6, 2,  // 80-99
    1, 5, 18, 1, 1, 17, 0, 4, 2, 34, 10, 0, 1, 1, 0, 3, 0, 2, 2, 0,  // 100-119
    0, 0, 4, 0, 6, 0, 2, 1, 0, 2, 17, 0, 0, 0, 0, 1, 0, 3, 0, 1,  // 120-139
    0, 1, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 6, 0, 0, 6, 1, 0, 0,  // 140-159
    0, 9, 42, 3, 1, 1, 0, 6, 0, 0, 0, 2, 0, 0, 0, 8, 0, 0, 4, 2,  // 160-179
    5, 0, 0, 1, 24, 0, 0, 0, 3, 0, 0, 9, 7, 0, 0, 6, 0, 0, 0, 1,  // 180-199
    1, 0, 12, 46, 0, 0, 7, 0, 3, 2, 2, 2, 13, 2, 0, 0, 0, 0, 0, 0,  // 200-219
    0, 0, 0, 11, 2, 0, 64, 0, 0, 0, 0, 0, 0, 0, 0, 6, 0, 0, 0, 0,  // 220-239
    0, 0, 0, 0, 2, 2, 0, 2, 0, 2, 2, 0, 0, 2, 0, 0, 6, 0, 0, 0,  // 240-259
    0, 0, 1, 0, 1, 17, 1, 0, 0, 0, 1, 0, 1, 0, 0, 0, 4, 1, 0, 0,  // 260-279
    0, 0, 0, 0, 0, 0, 0, 0, 7, 0, 1, 0, 8, 0, 1, 0, 7, 40, 0, 0,  // 280-299
    1, 0, 1, 4, 1, 2, 0, 5, 3, 0, 3, 0, 0, 0, 4, 1, 0, 2, 0, 5,  // 300-319
    3, 0, 2, 2, 4, 12, 4, 4, 4, 0, 5, 0, 0, 2, 6,  // 320-334
};

} // namespace

// The counts that the exported interface fixes; everything else takes them
// from the catalogue (CatalogueCounts.h).
TEST(CatalogueTest, TheCatalogueHasTheInterfacesNumbers)
{
    EXPECT_EQ(6u, catalogue::kCoreVersionCount);
    EXPECT_EQ(301u, catalogue::kFirstWGLExtensionId);
    EXPECT_EQ(335u, catalogue::kExtensionIdCount);
    EXPECT_EQ(336u, catalogue::kGL11FunctionCount);
    EXPECT_EQ(1165u, catalogue::kGLEntryPointCount);
    EXPECT_EQ(79u, catalogue::kWGLEntryPointCount);
    EXPECT_EQ(1501u, catalogue::kGLOperationCount);
    EXPECT_EQ(20u, catalogue::kWGLOperationCount);
    EXPECT_EQ(739u, catalogue::kUnsupportedRecordCount);
    EXPECT_EQ(378, OGL::UNKNOWN_EXTENSION);
}

TEST(CatalogueTest, EveryLoaderFetchesItsNumberOfEntryPoints)
{
    ASSERT_EQ(catalogue::kExtensionIdCount, sizeof(kExpectedCounts) / sizeof(kExpectedCounts[0]));
    unsigned int gl = 0, wgl = 0;
    std::set<std::string> names; // no function belongs to two ids
    for (unsigned int i = 0; i < catalogue::kExtensionIdCount; ++i)
    {
        EXPECT_EQ(kExpectedCounts[i], ExtensionCatalogue::entryPointCount(id(i))) << ExtensionCatalogue::name(id(i));
        (i < catalogue::kFirstWGLExtensionId ? gl : wgl) += ExtensionCatalogue::entryPointCount(id(i));
        for (unsigned int k = 0; k < ExtensionCatalogue::entryPointCount(id(i)); ++k)
            names.insert(ExtensionCatalogue::entryPointName(id(i), k));
    }
    EXPECT_EQ(catalogue::kGLEntryPointCount, gl);
    EXPECT_EQ(catalogue::kWGLEntryPointCount, wgl);
    EXPECT_EQ(gl + wgl, names.size());
    EXPECT_EQ(0u, ExtensionCatalogue::entryPointCount(id(catalogue::kExtensionIdCount)));
    EXPECT_EQ(0u, ExtensionCatalogue::entryPointCount(OGL::UNKNOWN_EXTENSION));
}

TEST(CatalogueTest, EnumeratorsAndNameStrings)
{
    const std::pair<int, teExtension> ids[] = {
        { 0, OGL::OPEN_GL_1_2 },        { 5, OGL::OPEN_GL_2_1 },         { 32, OGL::GL_ARB_MULTITEXTURE },
        { 105, OGL::GL_EXT_FRAMEBUFFER_OBJECT }, { 88, OGL::GL_EXT_CG_SHADER }, { 300, OGL::GL_WIN_SWAP_HINT },
        { 307, OGL::WGL_ARB_PBUFFER }, { 334, OGL::WGL_OML_SYNC_CONTROL }, { 378, OGL::UNKNOWN_EXTENSION },
    };
    for (auto const& row : ids)
        EXPECT_EQ(row.first, row.second);

    EXPECT_STREQ("GL_VERSION_1_2", ExtensionCatalogue::name(OGL::OPEN_GL_1_2));
    EXPECT_STREQ("GL_VERSION_2_1", ExtensionCatalogue::name(OGL::OPEN_GL_2_1));
    EXPECT_STREQ("GL_ARB_pixel_buffer_object", ExtensionCatalogue::name(OGL::GL_ARB_PIXEL_BUFFER_OBJECT));
    EXPECT_STREQ("WGL_ARB_pbuffer", ExtensionCatalogue::name(OGL::WGL_ARB_PBUFFER));
    EXPECT_EQ(nullptr, ExtensionCatalogue::name(id(catalogue::kExtensionIdCount)));
    EXPECT_EQ(nullptr, ExtensionCatalogue::name(OGL::UNKNOWN_EXTENSION));
}

TEST(CatalogueTest, NameLookUpsAreWholeAndCaseSensitive)
{
    EXPECT_EQ(OGL::GL_ARB_MULTITEXTURE, ExtensionCatalogue::glExtension("GL_ARB_multitexture"));
    EXPECT_EQ(OGL::UNKNOWN_EXTENSION, ExtensionCatalogue::glExtension("GL_ARB_multitexture_x"));
    EXPECT_EQ(OGL::UNKNOWN_EXTENSION, ExtensionCatalogue::glExtension("GL_ARB_multitextur"));
    EXPECT_EQ(OGL::UNKNOWN_EXTENSION, ExtensionCatalogue::glExtension("gl_arb_multitexture"));
    EXPECT_EQ(OGL::UNKNOWN_EXTENSION, ExtensionCatalogue::glExtension(""));
    EXPECT_EQ(OGL::UNKNOWN_EXTENSION, ExtensionCatalogue::glExtension(nullptr));
    EXPECT_EQ(OGL::OPEN_GL_2_0, ExtensionCatalogue::glExtension("GL_VERSION_2_0"));
    EXPECT_EQ(OGL::GL_EXT_CG_SHADER, ExtensionCatalogue::glExtension("GL_EXT_Cg_shader"));

    EXPECT_EQ(OGL::WGL_ARB_PBUFFER, ExtensionCatalogue::wglExtension("WGL_ARB_pbuffer"));
    EXPECT_EQ(OGL::UNKNOWN_EXTENSION, ExtensionCatalogue::glExtension("WGL_ARB_pbuffer"));
    EXPECT_EQ(OGL::UNKNOWN_EXTENSION, ExtensionCatalogue::wglExtension("GL_ARB_multitexture"));
}

TEST(CatalogueTest, EveryNameMapsBackToItsIdInItsOwnLookUpOnly)
{
    for (unsigned int i = 0; i < catalogue::kExtensionIdCount; ++i)
    {
        char const* name = ExtensionCatalogue::name(id(i));
        ASSERT_NE(nullptr, name) << i;
        const bool isWgl = i >= catalogue::kFirstWGLExtensionId;
        EXPECT_EQ(isWgl ? OGL::UNKNOWN_EXTENSION : id(i), ExtensionCatalogue::glExtension(name)) << name;
        EXPECT_EQ(isWgl ? id(i) : OGL::UNKNOWN_EXTENSION, ExtensionCatalogue::wglExtension(name)) << name;
    }
}

TEST(CatalogueTest, TellingRows)
{
    auto entryPoints = [](teExtension ext) {
        std::vector<std::string> names;
        for (unsigned int k = 0; k < ExtensionCatalogue::entryPointCount(ext); ++k)
            names.push_back(ExtensionCatalogue::entryPointName(ext, k));
        return names;
    };
    EXPECT_EQ((std::vector<std::string>{ "glDrawRangeElements", "glTexImage3D", "glTexSubImage3D",
                                         "glCopyTexSubImage3D" }),
              entryPoints(OGL::OPEN_GL_1_2));
    EXPECT_EQ((std::vector<std::string>{ "glUniformMatrix2x3fv", "glUniformMatrix3x2fv", "glUniformMatrix2x4fv",
                                         "glUniformMatrix4x2fv", "glUniformMatrix3x4fv", "glUniformMatrix4x3fv" }),
              entryPoints(OGL::OPEN_GL_2_1));
    const std::vector<std::string> gl15 = entryPoints(OGL::OPEN_GL_1_5);
    EXPECT_EQ("glGenQueries", gl15.front());
    EXPECT_EQ("glGetBufferPointerv", gl15.back());
    const std::vector<std::string> gl20 = entryPoints(OGL::OPEN_GL_2_0);
    EXPECT_EQ("glBlendEquationSeparate", gl20.front());
    EXPECT_EQ("glDrawBuffers", gl20[1]);
    EXPECT_EQ("glVertexAttribPointer", gl20.back());
    EXPECT_EQ((std::vector<std::string>{ "glDrawBuffersARB" }), entryPoints(OGL::GL_ARB_DRAW_BUFFERS));
    EXPECT_TRUE(entryPoints(OGL::GL_ARB_FRAGMENT_PROGRAM).empty());
    EXPECT_EQ((std::vector<std::string>{ "glAddSwapHintRectWIN" }), entryPoints(OGL::GL_WIN_SWAP_HINT));
    EXPECT_EQ((std::vector<std::string>{ "wglGetSwapIntervalEXT", "wglSwapIntervalEXT" }),
              entryPoints(OGL::WGL_EXT_SWAP_CONTROL));
}

// A driver played by the test: resolves every name except one, and counts.
namespace
{

int gResolved = 0;
char const* gMissing = "";
int gFake = 0;

PROC WINAPI scriptedResolver(LPCSTR name)
{
    ++gResolved;
    return std::string(name) == gMissing ? nullptr : reinterpret_cast<PROC>(&gFake);
}

class ScriptedDriver
{
public:
    explicit ScriptedDriver(char const* missing)
    {
        gResolved = 0;
        gMissing = missing;
        previous_ = ExtensionCatalogue::setProcAddressResolver(&scriptedResolver);
    }
    ~ScriptedDriver() { ExtensionCatalogue::setProcAddressResolver(previous_); }

private:
    ExtensionCatalogue::ProcAddressResolver previous_;
};

} // namespace

TEST(CatalogueTest, DispatchOfIdsOutsideItsRangeFetchesNothing)
{
    ScriptedDriver driver("");
    EXPECT_FALSE(ExtensionCatalogue::loadGL(id(catalogue::kFirstWGLExtensionId)));
    EXPECT_FALSE(ExtensionCatalogue::loadGL(OGL::UNKNOWN_EXTENSION));
    EXPECT_FALSE(ExtensionCatalogue::loadWGL(id(0)));
    EXPECT_FALSE(ExtensionCatalogue::loadWGL(id(300)));
    EXPECT_FALSE(ExtensionCatalogue::loadWGL(id(catalogue::kExtensionIdCount)));
    EXPECT_EQ(0, gResolved);

    EXPECT_TRUE(ExtensionCatalogue::loadGL(OGL::GL_ARB_FRAGMENT_PROGRAM)); // nothing to fetch
    EXPECT_TRUE(ExtensionCatalogue::loadWGL(OGL::WGL_ARB_MULTISAMPLE));
    EXPECT_EQ(0, gResolved);
}

TEST(CatalogueTest, ALoaderStopsAtTheFirstMissingEntryPoint)
{
    // Keep the real values to put back.
    const PFN_cgmDrawRangeElements drawRangeElements = _cgmDrawRangeElements;
    const PFN_cgmTexImage3D texImage3D = _cgmTexImage3D;
    const PFN_cgmTexSubImage3D texSubImage3D = _cgmTexSubImage3D;
    const PFN_cgmCopyTexSubImage3D copyTexSubImage3D = _cgmCopyTexSubImage3D;
    _cgmCopyTexSubImage3D = reinterpret_cast<PFN_cgmCopyTexSubImage3D>(&gResolved); // a value to see it untouched
    {
        ScriptedDriver driver("glTexSubImage3D");
        EXPECT_FALSE(ExtensionCatalogue::loadGL(OGL::OPEN_GL_1_2));
        EXPECT_EQ(3, gResolved);
    }
    EXPECT_EQ(reinterpret_cast<void*>(&gFake), reinterpret_cast<void*>(_cgmDrawRangeElements));
    EXPECT_EQ(reinterpret_cast<void*>(&gFake), reinterpret_cast<void*>(_cgmTexImage3D));
    EXPECT_EQ(nullptr, _cgmTexSubImage3D);
    EXPECT_EQ(reinterpret_cast<void*>(&gResolved), reinterpret_cast<void*>(_cgmCopyTexSubImage3D));
    EXPECT_TRUE(ExtensionCatalogue::isEntryPointLoaded(OGL::OPEN_GL_1_2, 1));
    EXPECT_FALSE(ExtensionCatalogue::isEntryPointLoaded(OGL::OPEN_GL_1_2, 2));
    EXPECT_STREQ("glTexSubImage3D", ExtensionCatalogue::missingEntryPoint(OGL::OPEN_GL_1_2));

    {
        ScriptedDriver driver("");
        EXPECT_TRUE(ExtensionCatalogue::loadGL(OGL::OPEN_GL_1_2));
        EXPECT_EQ(4, gResolved);
    }
    EXPECT_EQ(nullptr, ExtensionCatalogue::missingEntryPoint(OGL::OPEN_GL_1_2));

    _cgmDrawRangeElements = drawRangeElements;
    _cgmTexImage3D = texImage3D;
    _cgmTexSubImage3D = texSubImage3D;
    _cgmCopyTexSubImage3D = copyTexSubImage3D;
}

TEST(CatalogueTest, WglLoadersFillTheWglPointers)
{
    const PFN_wcgmSwapIntervalEXT swapInterval = _wcgmSwapIntervalEXT;
    const PFN_wcgmGetSwapIntervalEXT getSwapInterval = _wcgmGetSwapIntervalEXT;
    {
        ScriptedDriver driver("wglSwapIntervalEXT");
        EXPECT_FALSE(ExtensionCatalogue::loadWGL(OGL::WGL_EXT_SWAP_CONTROL));
    }
    EXPECT_EQ(reinterpret_cast<void*>(&gFake), reinterpret_cast<void*>(_wcgmGetSwapIntervalEXT));
    EXPECT_EQ(nullptr, _wcgmSwapIntervalEXT);
    _wcgmSwapIntervalEXT = swapInterval;
    _wcgmGetSwapIntervalEXT = getSwapInterval;
}
