// 5. Start-up: creating the ExtensionManager (what Library::initializeExtensionator
// does before its texture-unit table) against the bare cost of the driver calls
// it makes: wglMakeCurrent, glGetString for the vendor, version and extensions,
// every wglGetProcAddress in the same order, and wglGetExtensionsStringARB.
// Warm: repeated in one process. Cold: the first creation in a fresh process,
// one process per measurement.

#include "Bench.h"

#include "oru_ogl/LibraryOGL.h"
#include "oru_ogl/extensionator/ExtensionCatalogue.h"
#include "oru_ogl/extensionator/ExtensionManager.h"
#include "oru_ogl/ogl/ContextOffscreen.h"

#include <GL/gl.h>

#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <fstream>
#include <memory>

namespace Oru
{
namespace OGL
{

// The manager's creation without the rest of the layer's start-up; the
// manager befriends this name for code outside the library.
struct ExtensionManagerTestAccess
{
    static void create(Context* context) { ExtensionManager::Create(context, ExtensionManager::InitOptions()); }
    static void destroy() { ExtensionManager::Destroy(); }
    static void split(std::string const& text, std::vector<std::string>& names)
    {
        ExtensionManager::TokenizeExtensionString(text, names);
    }
    static unsigned int parseVersion(std::string const& text)
    {
        unsigned int major = 0, minor = 0;
        int release = -1;
        std::string additional;
        ExtensionManager::TokenizeVersionString(text, major, minor, release, additional);
        return major * 100 + minor;
    }
};

} // namespace OGL
} // namespace Oru

namespace bench
{

namespace
{

using Oru::OGL::ContextOffscreen;
using Oru::OGL::ExtensionCatalogue;
using Access = Oru::OGL::ExtensionManagerTestAccess;

const char* const kFigure = "5. Start-up";
const char* const kExtensionsString = "wglGetExtensionsStringARB";

// The names the manager resolves, in its order.
std::vector<std::string>* gRecorded = nullptr;

PROC WINAPI recordingResolver(LPCSTR name)
{
    gRecorded->push_back(name);
    return wglGetProcAddress(name);
}

std::vector<std::string> recordResolvedNames(ContextOffscreen* context)
{
    std::vector<std::string> names;
    gRecorded = &names;
    const ExtensionCatalogue::ProcAddressResolver previous = ExtensionCatalogue::setProcAddressResolver(&recordingResolver);
    Access::create(context);
    ExtensionCatalogue::setProcAddressResolver(previous);
    Access::destroy();
    gRecorded = nullptr;
    return names;
}

typedef const char*(WINAPI* GetExtensionsString)(HDC);

volatile std::uintptr_t gSink;

// The driver calls of one manager creation and nothing else. The names are
// prepared beforehand, and where the extensions string is fetched, so that
// the timed loop only calls the driver.
struct BareStartup
{
    std::vector<std::string> names;
    std::vector<char const*> cnames;
    std::size_t extensionsString = static_cast<std::size_t>(-1);

    void prepare()
    {
        cnames.clear();
        for (std::size_t i = 0; i < names.size(); ++i)
        {
            cnames.push_back(names[i].c_str());
            if (names[i] == kExtensionsString && extensionsString == static_cast<std::size_t>(-1))
                extensionsString = i;
        }
    }

    void run(ContextOffscreen* context) const
    {
        std::uintptr_t sink = 0;
        wglMakeCurrent(context->deviceContext(), context->renderContext());
        sink ^= reinterpret_cast<std::uintptr_t>(glGetString(GL_VENDOR));
        sink ^= reinterpret_cast<std::uintptr_t>(glGetString(GL_VERSION));
        sink ^= reinterpret_cast<std::uintptr_t>(glGetString(GL_EXTENSIONS));
        for (std::size_t i = 0; i < cnames.size(); ++i)
        {
            const PROC address = wglGetProcAddress(cnames[i]);
            sink ^= reinterpret_cast<std::uintptr_t>(address);
            if (i == extensionsString && address)
                sink ^= reinterpret_cast<std::uintptr_t>(
                    reinterpret_cast<GetExtensionsString>(reinterpret_cast<void*>(address))(wglGetCurrentDC()));
        }
        gSink = sink;
    }
};

std::string glVersionLabel()
{
    const GLubyte* version = glGetString(GL_VERSION);
    std::string text = version ? reinterpret_cast<char const*>(version) : "?";
    return "GL_VERSION " + text.substr(0, text.find(' '));
}

void writeNames(std::string const& path, std::vector<std::string> const& names)
{
    std::ofstream out(path, std::ios::binary);
    for (std::string const& name : names)
        out << name << '\n';
}

std::vector<std::string> readNames(std::string const& path)
{
    std::vector<std::string> names;
    std::ifstream in(path, std::ios::binary);
    for (std::string line; std::getline(in, line);)
        names.push_back(line);
    return names;
}

// A cold run's time, and the GL version its process saw.
double readSeconds(std::string const& path, std::string& label)
{
    std::ifstream in(path);
    double seconds = -1.0;
    in >> seconds;
    in >> std::ws;
    std::getline(in, label);
    return seconds;
}

std::string tempPath(char const* stem)
{
    char directory[MAX_PATH];
    GetTempPathA(MAX_PATH, directory);
    return std::string(directory) + "oru_bench_" + std::to_string(GetCurrentProcessId()) + "_" + stem;
}

} // namespace

void startupSection(Environment& env, Rows& rows)
{
    ContextOffscreen* context = env.context;
    const std::string label = glVersionLabel();
    Oru::OGL::Library::terminateExtensionator(); // the manager is rebuilt over and over below

    BareStartup bare;
    bare.names = recordResolvedNames(context);
    bare.prepare();
    unsigned int unresolved = 0;
    for (std::string const& name : bare.names)
        unresolved += wglGetProcAddress(name.c_str()) ? 0 : 1;

    // Warm: manager and bare calls batch by batch in this process.
    std::vector<Variant> variants = {
        { "manager", [&](unsigned int n) {
             double total = 0.0;
             for (unsigned int i = 0; i < n; ++i)
             {
                 const double start = now();
                 Access::create(context);
                 total += now() - start;
                 Access::destroy();
             }
             return total;
         } },
        { "bare", [&](unsigned int n) { return timed(n, [&](unsigned int) { bare.run(context); }); } },
        { "library", [&](unsigned int n) {
             double total = 0.0;
             for (unsigned int i = 0; i < n; ++i)
             {
                 const double start = now();
                 Oru::OGL::Library::initializeExtensionator(context, Oru::OGL::ExtensionManager::InitOptions());
                 total += now() - start;
                 Oru::OGL::Library::terminateExtensionator();
             }
             return total;
         } },
    };
    const std::vector<Timing> warm = compare(variants, Plan{ 15, 3, 10 });

    // The largest part of what the manager adds to the driver calls: the
    // catalogue's look-up of every advertised name.
    const GLubyte* extensionText = glGetString(GL_EXTENSIONS);
    const std::string extensions = extensionText ? reinterpret_cast<char const*>(extensionText) : "";
    const GLubyte* versionText = glGetString(GL_VERSION);
    const std::string version = versionText ? reinterpret_cast<char const*>(versionText) : "";
    std::vector<std::string> advertised;
    Access::split(extensions, advertised);
    std::vector<Oru::OGL::teExtension> advertisedIds;
    std::vector<char const*> loaderNames;
    for (std::string const& name : advertised)
    {
        const Oru::OGL::teExtension id = ExtensionCatalogue::glExtension(name.c_str());
        if (id == Oru::OGL::UNKNOWN_EXTENSION)
            continue;
        advertisedIds.push_back(id);
        for (unsigned int k = 0; k < ExtensionCatalogue::entryPointCount(id); ++k)
        {
            loaderNames.push_back(ExtensionCatalogue::entryPointName(id, k));
            if (!wglGetProcAddress(loaderNames.back()))
                break; // the loader stops at the first entry point the driver lacks
        }
    }
    std::vector<Variant> pieces = {
        { "look-ups", [&](unsigned int n) {
             return timed(n, [&](unsigned int) {
                 unsigned int known = 0;
                 for (std::string const& name : advertised)
                     known += ExtensionCatalogue::glExtension(name.data(), name.size()) != Oru::OGL::UNKNOWN_EXTENSION;
                 gSink = known;
             });
         } },
        { "loaders", [&](unsigned int n) {
             return timed(n, [&](unsigned int) {
                 unsigned int loaded = 0;
                 for (Oru::OGL::teExtension id : advertisedIds)
                     loaded += ExtensionCatalogue::loadGL(id);
                 gSink = loaded;
             });
         } },
        { "loaders' calls", [&](unsigned int n) {
             return timed(n, [&](unsigned int) {
                 std::uintptr_t sink = 0;
                 for (char const* name : loaderNames)
                     sink ^= reinterpret_cast<std::uintptr_t>(wglGetProcAddress(name));
                 gSink = sink;
             });
         } },
        { "version", [&](unsigned int n) {
             return timed(n, [&](unsigned int) { gSink = Access::parseVersion(version); });
         } },
    };
    const std::vector<Timing> piece = compare(pieces, Plan{ 15, 3, 10 });

    // Cold: fresh processes, manager and bare alternately.
    const std::string namesFile = tempPath("names.txt");
    const std::string resultFile = tempPath("cold.txt");
    writeNames(namesFile, bare.names);
    Timing coldManager, coldBare;
    const unsigned int processes = 9;
    std::string coldLabel = label;
    for (unsigned int i = 0; i < processes; ++i)
    {
        std::string seen;
        runChild(env.program, { "--cold", "manager", resultFile });
        coldManager.roundMedians.push_back(readSeconds(resultFile, seen));
        if (seen != label)
            coldLabel = seen;
        runChild(env.program, { "--cold", "bare", resultFile, namesFile });
        coldBare.roundMedians.push_back(readSeconds(resultFile, seen));
        if (seen != label)
            coldLabel = seen;
    }
    DeleteFileA(namesFile.c_str());
    DeleteFileA(resultFile.c_str());
    coldManager.perOperation = median(coldManager.roundMedians);
    coldBare.perOperation = median(coldBare.roundMedians);

    Oru::OGL::Library::initializeExtensionator(context, Oru::OGL::ExtensionManager::InitOptions());

    const bool legacy = label.find(" 2.") != std::string::npos || label.find(" 1.") != std::string::npos;
    const double glewWarm = legacy ? 213e-6 : 305e-6;
    const std::string calls = std::to_string(bare.names.size()) + " `wglGetProcAddress` (" +
                              std::to_string(unresolved) + " null), 3 `glGetString`";
    const std::string head = std::string(kFigure) + ", " + label;

    rows.push_back({ head, "warm: bare driver calls (" + calls + ")", format(warm[1].perOperation, "us", 0), "", "", "" });
    const double warmRatio = ratio(warm[0], warm[1]);
    rows.push_back({ head, "warm: `ExtensionManager` creation", format(warm[0].perOperation, "us", 0),
                     formatRatio(warmRatio, "bare"),
                     "<= 1.2x bare; < " + format(glewWarm, "us", 0) + " (GLEW 2.3.1)",
                     yesNo(warmRatio <= 1.2 && warm[0].perOperation < glewWarm) });
    rows.push_back({ head, "warm: `Library::initializeExtensionator` (manager + texture-unit table)",
                     format(warm[2].perOperation, "us", 0), formatRatio(ratio(warm[2], warm[1]), "bare"), "", "" });
    rows.push_back({ head, "of which: `ExtensionCatalogue::glExtension` for the " + std::to_string(advertised.size()) +
                               " advertised GL names",
                     format(piece[0].perOperation, "us", 1), "", "", "" });
    rows.push_back({ head, "of which: the loaders of the " + std::to_string(advertisedIds.size()) +
                               " advertised ids the catalogue knows",
                     format(piece[1].perOperation, "us", 1),
                     formatRatio(ratio(piece[1], piece[2]), ("their " + std::to_string(loaderNames.size()) +
                                                                " bare `wglGetProcAddress` calls (" +
                                                                format(piece[2].perOperation, "us", 1) + ")").c_str()),
                     "", "" });
    rows.push_back({ head, "of which: reading the numbers of `GL_VERSION`", format(piece[3].perOperation, "us", 1), "", "",
                     "" });
    const std::string coldNote = coldLabel == label ? "" : " (**the fresh processes saw " + coldLabel + "**)";
    rows.push_back({ head, "cold: bare driver calls, first in a process (median of " + std::to_string(processes) + ")" + coldNote,
                     format(coldBare.perOperation, "us", 0), "", "", "" });
    const double coldRatio = ratio(coldManager, coldBare);
    rows.push_back({ head, "cold: first `ExtensionManager` creation in a process (median of " +
                               std::to_string(processes) + ")" + coldNote,
                     format(coldManager.perOperation, "us", 0), formatRatio(coldRatio, "bare"),
                     "<= 1.2x bare; < 3.4 ms (GLEW 2.3.1)", yesNo(coldRatio <= 1.2 && coldManager.perOperation < 3.4e-3) });
}

// A fresh process: one context, then the timed step, written to a file.
int coldStartupMain(std::vector<std::string> const& args)
{
    if (args.size() < 2)
        return 2;
    const bool manager = args[0] == "manager";
    BareStartup bare;
    if (!manager)
    {
        if (args.size() < 3)
            return 2;
        bare.names = readNames(args[2]);
        bare.prepare();
    }
    std::unique_ptr<ContextOffscreen> context(new ContextOffscreen());
    const double start = now();
    if (manager)
        Access::create(context.get());
    else
        bare.run(context.get());
    const double seconds = now() - start;
    if (manager)
        Access::destroy();
    std::FILE* out = std::fopen(args[1].c_str(), "w");
    if (!out)
        return 3;
    std::fprintf(out, "%.9f\n%s\n", seconds, glVersionLabel().c_str());
    std::fclose(out);
    return 0;
}

} // namespace bench
