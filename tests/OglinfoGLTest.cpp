// oglinfo's report checked against the driver: the test runs the program (it
// sits beside this one), parses what it prints, and asks the driver itself
// through a context of its own.
#include "support/GLTest.h"

#include "oru_ogl/extensionator/ExtensionCatalogue.h"

#include <nlohmann/json.hpp>

#include <GL/gl.h>

#include <cstdio>
#include <set>
#include <sstream>
#include <string>
#include <vector>

using OruTest::GLTest;
using Oru::OGL::ExtensionCatalogue;
using Json = nlohmann::json;

namespace
{

struct ProgramRun
{
    int status;
    std::string output;
};

// Runs oglinfo with the given arguments; stderr joins stdout when asked.
ProgramRun runOglinfo(std::string const& arguments, bool withErrors = false)
{
    char path[MAX_PATH] = {};
    const std::string self(path, GetModuleFileNameA(nullptr, path, MAX_PATH));
    const std::string program = self.substr(0, self.find_last_of("\\/") + 1) + "oglinfo.exe";
    const std::string command = "\"\"" + program + "\" " + arguments + (withErrors ? " 2>&1\"" : "\"");
    ProgramRun run = { -1, "" };
    std::FILE* pipe = _popen(command.c_str(), "rb");
    if (!pipe)
        return run;
    char buffer[4096];
    for (size_t n; (n = std::fread(buffer, 1, sizeof(buffer), pipe)) > 0;)
        run.output.append(buffer, n);
    run.status = _pclose(pipe);
    return run;
}

std::string glString(GLenum name)
{
    const GLubyte* text = glGetString(name);
    return text ? reinterpret_cast<char const*>(text) : "";
}

// A WGL extension function of the driver, or null.
template <typename Function>
Function wglFunction(char const* name)
{
    return reinterpret_cast<Function>(reinterpret_cast<void*>(wglGetProcAddress(name)));
}

std::string wglExtensionsString()
{
    typedef char const*(WINAPI * GetExtensionsString)(HDC);
    auto get = wglFunction<GetExtensionsString>("wglGetExtensionsStringARB");
    return get ? get(wglGetCurrentDC()) : "";
}

std::vector<std::string> words(std::string const& text)
{
    std::vector<std::string> result;
    std::istringstream in(text);
    for (std::string word; in >> word;)
        result.push_back(word);
    return result;
}

// One oglinfo --json for the whole program: it takes a few seconds.
class OglinfoGLTest : public GLTest
{
protected:
    static void SetUpTestSuite()
    {
        GLTest::SetUpTestSuite();
        const ProgramRun run = runOglinfo("--json");
        status_ = run.status;
        text_ = run.output;
        report_ = Json::parse(text_, nullptr, false);
    }

    void SetUp() override
    {
        GLTest::SetUp();
        ASSERT_EQ(0, status_) << text_;
        ASSERT_FALSE(report_.is_discarded()) << "not JSON:\n" << text_;
    }

    static int status_;
    static std::string text_;
    static Json report_;
};

int OglinfoGLTest::status_ = -1;
std::string OglinfoGLTest::text_;
Json OglinfoGLTest::report_;

void collectKeys(Json const& value, std::vector<std::string>& keys)
{
    if (value.is_object())
        for (auto const& item : value.items())
        {
            keys.push_back(item.key());
            collectKeys(item.value(), keys);
        }
    else if (value.is_array())
        for (Json const& element : value)
            collectKeys(element, keys);
}

} // namespace

TEST_F(OglinfoGLTest, DriverStringsAreTheDriversOwn)
{
    EXPECT_EQ(glString(GL_VENDOR), report_["vendor"]);
    EXPECT_EQ(glString(GL_RENDERER), report_["renderer"]);
    EXPECT_EQ(glString(GL_VERSION), report_["version"]);
    EXPECT_EQ(glString(GL_EXTENSIONS), report_["extensionsString"]);
    EXPECT_EQ(wglExtensionsString(), report_["wglExtensionsString"]);

    const std::string version = glString(GL_VERSION);
    const std::vector<std::string> extensions = words(glString(GL_EXTENSIONS));
    const bool hasGlsl = (!version.empty() && version[0] >= '2') ||
                         std::set<std::string>(extensions.begin(), extensions.end()).count("GL_ARB_shading_language_100");
    if (hasGlsl)
        EXPECT_EQ(glString(0x8B8C /* GL_SHADING_LANGUAGE_VERSION */), report_["shadingLanguageVersion"]);
    else
        EXPECT_TRUE(report_["shadingLanguageVersion"].is_null()) << report_["shadingLanguageVersion"];
    while (glGetError() != GL_NO_ERROR)
    {
    }
}

TEST_F(OglinfoGLTest, UnknownExtensionsAreTheAdvertisedOnesTheCatalogueLacks)
{
    std::vector<std::string> expected;
    for (std::string const& name : words(glString(GL_EXTENSIONS)))
        if (ExtensionCatalogue::glExtension(name.c_str()) == Oru::OGL::UNKNOWN_EXTENSION)
            expected.push_back(name);
    for (std::string const& name : words(wglExtensionsString()))
        if (ExtensionCatalogue::wglExtension(name.c_str()) == Oru::OGL::UNKNOWN_EXTENSION)
            expected.push_back(name);
    EXPECT_FALSE(expected.empty()) << "the driver advertises nothing the catalogue lacks: the check proves little";
    EXPECT_EQ(expected, report_["unknownExtensions"].get<std::vector<std::string>>());
}

TEST_F(OglinfoGLTest, EveryEntryPointHasTheDriversStatus)
{
    const Json& extensions = report_["extensions"];
    ASSERT_EQ(335u, extensions.size());
    unsigned int available = 0, missing = 0;
    for (unsigned int id = 0; id < extensions.size(); ++id)
    {
        const Json& extension = extensions[id];
        const auto ext = static_cast<Oru::OGL::teExtension>(id);
        ASSERT_EQ(ExtensionCatalogue::name(ext), extension["name"]);
        const Json& entryPoints = extension["entryPoints"];
        ASSERT_EQ(ExtensionCatalogue::entryPointCount(ext), entryPoints.size()) << extension["name"];
        std::vector<std::string> expectedMissing;
        for (unsigned int k = 0; k < entryPoints.size(); ++k)
        {
            char const* name = ExtensionCatalogue::entryPointName(ext, k);
            ASSERT_EQ(name, entryPoints[k]["name"]);
            const bool resolves = wglGetProcAddress(name) != nullptr;
            EXPECT_EQ(resolves, entryPoints[k]["available"].get<bool>()) << name;
            (resolves ? available : missing) += 1;
            if (extension["advertised"].get<bool>() && !resolves)
                expectedMissing.push_back(name);
            // Start-up sets pointers only of what it loaded, and only ones the driver resolves.
            if (entryPoints[k]["loaded"].get<bool>())
            {
                EXPECT_TRUE(resolves) << name;
            }
        }
        EXPECT_EQ(expectedMissing, extension["missingEntryPoints"].get<std::vector<std::string>>()) << extension["name"];
    }
    EXPECT_GT(available, 0u);
    EXPECT_GT(missing, 0u) << "every entry point resolves: the check proves little";
}

TEST_F(OglinfoGLTest, PixelFormatTableListsEveryFormatOfTheDevice)
{
    HDC dc = context().deviceContext();
    PIXELFORMATDESCRIPTOR pfd = {};
    const int gdiCount = DescribePixelFormat(dc, 1, sizeof(pfd), &pfd);
    ASSERT_GT(gdiCount, 0);

    typedef BOOL(WINAPI * GetAttribiv)(HDC, int, int, UINT, const int*, int*);
    auto getAttribiv = wglFunction<GetAttribiv>("wglGetPixelFormatAttribivARB");
    const Json& table = report_["pixelFormats"];
    const Json& formats = table["formats"];
    if (getAttribiv)
    {
        const int numberOfFormats = 0x2000;
        int arbCount = 0;
        ASSERT_TRUE(getAttribiv(dc, 0, 0, 1, &numberOfFormats, &arbCount));
        EXPECT_EQ("wglGetPixelFormatAttribivARB", table["source"]);
        EXPECT_EQ(static_cast<size_t>(arbCount), formats.size());
    }
    else
    {
        EXPECT_EQ("DescribePixelFormat", table["source"]);
        EXPECT_EQ(static_cast<size_t>(gdiCount), formats.size());
    }
    // The formats GDI describes read the same through either source.
    for (int index = 1; index <= gdiCount && index <= static_cast<int>(formats.size()); ++index)
    {
        ASSERT_TRUE(DescribePixelFormat(dc, index, sizeof(pfd), &pfd));
        const Json& format = formats[index - 1];
        EXPECT_EQ(index, format["index"]);
        EXPECT_EQ(pfd.cColorBits, format["colorBits"]) << index;
        EXPECT_EQ(pfd.cAlphaBits, format["alphaBits"]) << index;
        EXPECT_EQ(pfd.cDepthBits, format["depthBits"]) << index;
        EXPECT_EQ(pfd.cStencilBits, format["stencilBits"]) << index;
        EXPECT_EQ((pfd.dwFlags & PFD_DOUBLEBUFFER) != 0, format["doubleBuffer"] == 1) << index;
    }
}

TEST_F(OglinfoGLTest, OutputIsPlainJsonWithLfLineEnds)
{
    EXPECT_EQ(std::string::npos, text_.find('\r'));
    ASSERT_FALSE(text_.empty());
    EXPECT_EQ('\n', text_.back());
    std::vector<std::string> keys;
    collectKeys(report_, keys);
    for (std::string const& key : keys)
        EXPECT_EQ(std::string::npos, key.find_first_of(" \t")) << "key \"" << key << "\"";
}

TEST_F(OglinfoGLTest, FunctionsListEveryEntryPointOnce)
{
    const ProgramRun run = runOglinfo("--functions");
    ASSERT_EQ(0, run.status) << run.output;
    EXPECT_EQ(std::string::npos, run.output.find('\r'));
    unsigned int catalogued = 0;
    for (unsigned int id = 0; id <= Oru::OGL::WGL_OML_SYNC_CONTROL; ++id)
        catalogued += ExtensionCatalogue::entryPointCount(static_cast<Oru::OGL::teExtension>(id));
    unsigned int listed = 0;
    std::istringstream lines(run.output);
    for (std::string line; std::getline(lines, line);)
    {
        const std::vector<std::string> fields = words(line);
        if (line.rfind("  ", 0) == 0 && fields.size() >= 2 && (fields[1].rfind("OK", 0) == 0 || fields[1] == "MISSING"))
        {
            ++listed;
            EXPECT_EQ(wglGetProcAddress(fields[0].c_str()) != nullptr, fields[1].rfind("OK", 0) == 0) << line;
        }
    }
    EXPECT_EQ(catalogued, listed);
}

TEST(OglinfoTest, ConflictingModesAreRefusedWithAMessage)
{
    for (char const* arguments : { "--full --json", "--json --functions", "--version --full" })
    {
        const ProgramRun run = runOglinfo(arguments, true);
        EXPECT_EQ(2, run.status) << arguments;
        EXPECT_NE(std::string::npos, run.output.find("excludes")) << arguments << ":\n" << run.output;
    }
    const ProgramRun unknown = runOglinfo("--fulll", true);
    EXPECT_EQ(2, unknown.status);
    EXPECT_NE(std::string::npos, unknown.output.find("--fulll")) << unknown.output;
}
