// oru_bench: what the layer costs on this machine, as a markdown table.
//
//   oru_bench [--markdown FILE] [--only SECTION,...] [--legacy-rows FILE]
//
// Every figure compares variants timed side by side in this run; see Bench.h
// for the method. The cold start-up figures start fresh copies of this program
// (--cold), and a run under another driver setting returns its rows to a file
// (--section NAME --rows FILE): that is why those modes exist.

#include "Bench.h"

#include "oru_ogl/LibraryOGL.h"
#include "oru_ogl/ogl/ContextOffscreen.h"

#include "oru_core/Exceptions.h"

#include <windows.h>

#include <GL/gl.h>

#include <cstdio>
#include <ctime>
#include <fstream>
#include <memory>
#include <sstream>

namespace bench
{

void captureSection(Environment& env, Rows& rows);
void startupLegacySection(Environment& env, Rows& rows);
extern std::string gLegacyRows;

} // namespace bench

namespace
{

using namespace bench;

// The table, in order. Figures 2 and 3 need the tracer and the recorder; they
// report "not measured" in a build without them.
const Section kSections[] = {
    { "interception", interceptionSection },
    { "decorators", decoratorSection },
    { "bulk", bulkDataSection },
    { "tokens", tokenNameSection },
    { "startup", startupSection },
    { "startup-gl21", startupLegacySection },
    { "context", contextSection },
    { "capture", captureSection },
};

std::string glText(GLenum name)
{
    const GLubyte* text = glGetString(name);
    return text ? reinterpret_cast<char const*>(text) : "";
}

std::string registryText(char const* key, char const* value)
{
    char text[256] = {};
    DWORD size = sizeof(text) - 1;
    if (RegGetValueA(HKEY_LOCAL_MACHINE, key, value, RRF_RT_REG_SZ, nullptr, text, &size) != ERROR_SUCCESS)
        return "?";
    std::string result(text);
    result.erase(0, result.find_first_not_of(' '));
    return result;
}

std::string wineVersion()
{
    typedef char const*(CDECL * Version)();
    const Version version =
        reinterpret_cast<Version>(reinterpret_cast<void*>(GetProcAddress(GetModuleHandleA("ntdll.dll"), "wine_get_version")));
    return version ? std::string("Wine ") + version() : "Windows";
}

// The host's load average, when the program runs under Wine on Linux.
std::string loadAverage()
{
    std::ifstream in("Z:\\proc\\loadavg");
    std::string one, five, fifteen;
    if (!(in >> one >> five >> fifteen))
        return "?";
    return one + " " + five + " " + fifteen;
}

std::string today()
{
    SYSTEMTIME t;
    GetLocalTime(&t);
    char text[32];
    std::snprintf(text, sizeof(text), "%04d-%02d-%02d %02d:%02d", t.wYear, t.wMonth, t.wDay, t.wHour, t.wMinute);
    return text;
}

std::string programPath()
{
    char path[MAX_PATH];
    GetModuleFileNameA(nullptr, path, MAX_PATH);
    return path;
}

std::string cell(std::string text)
{
    for (std::string::size_type p = text.find('|'); p != std::string::npos; p = text.find('|', p + 2))
        text.replace(p, 1, "\\|");
    return text;
}

std::string markdown(Rows const& rows, std::string const& loadBefore, std::string const& loadAfter, double seconds)
{
    SYSTEM_INFO system;
    GetSystemInfo(&system);
    std::ostringstream out;
    out << "# Benchmarks {#benchmarks}\n\n"
        << "What the layer costs, measured by `scripts/bench.sh` (program `bench/`). Each ratio compares variants\n"
        << "timed side by side in the same run: batches of each variant in turn (A, B, A, B, ...), the median\n"
        << "batch of each round, the median over rounds; a ratio is the median of the per-round ratios.\n"
        << "Absolute figures are medians per operation, for context; they depend on the machine and its load.\n\n"
        << "| | |\n|---|---|\n"
        << "| date | " << today() << " |\n"
        << "| machine | " << cell(registryText("HARDWARE\\DESCRIPTION\\System\\CentralProcessor\\0", "ProcessorNameString"))
        << ", " << system.dwNumberOfProcessors << " logical processors |\n"
        << "| platform | " << wineVersion() << ", MinGW-w64 g++ Release build (x86-64) |\n"
        << "| OpenGL | " << cell(glText(GL_RENDERER)) << "; " << cell(glText(GL_VERSION)) << " |\n"
        << "| load average (1, 5, 15 min) | " << loadBefore << " before, " << loadAfter << " after |\n"
        << "| run time | " << formatNumber(seconds, 0) << " s |\n\n"
        << "| figure | variant | absolute | ratio | goal | met? |\n|---|---|---|---|---|---|\n";
    for (Row const& r : rows)
        out << "| " << cell(r.figure) << " | " << cell(r.variant) << " | " << cell(r.absolute) << " | " << cell(r.ratio)
            << " | " << cell(r.goal) << " | " << cell(r.met) << " |\n";
    return out.str();
}

void printRows(Rows const& rows, std::size_t from)
{
    for (std::size_t i = from; i < rows.size(); ++i)
    {
        Row const& r = rows[i];
        std::printf("  %-60s %-40s %s%s%s\n", r.variant.c_str(), r.absolute.c_str(), r.ratio.c_str(),
                    r.met.empty() ? "" : "  met: ", r.met.c_str());
    }
    std::fflush(stdout);
}

bool selected(std::string const& only, char const* name)
{
    if (only.empty())
        return true;
    std::istringstream names(only);
    for (std::string n; std::getline(names, n, ',');)
        if (n == name)
            return true;
    return false;
}

int run(std::vector<std::string> const& args)
{
    if (!args.empty() && args[0] == "--cold")
        return coldStartupMain(std::vector<std::string>(args.begin() + 1, args.end()));

    std::string markdownPath, only, rowsPath;
    for (std::size_t i = 0; i + 1 < args.size(); i += 2)
    {
        if (args[i] == "--markdown")
            markdownPath = args[i + 1];
        else if (args[i] == "--only")
            only = args[i + 1];
        else if (args[i] == "--section") // a fresh process for one section, rows to a file
            only = args[i + 1];
        else if (args[i] == "--rows")
            rowsPath = args[i + 1];
        else if (args[i] == "--legacy-rows")
            gLegacyRows = args[i + 1];
        else
        {
            std::fprintf(stderr, "usage: oru_bench [--markdown FILE] [--only SECTION,...] [--legacy-rows FILE]\n");
            return 2;
        }
    }

    const std::string loadBefore = loadAverage();
    const double start = now();
    std::unique_ptr<Oru::OGL::ContextOffscreen> context(new Oru::OGL::ContextOffscreen());
    Oru::OGL::Library::initializeExtensionator(context.get(), Oru::OGL::ExtensionManager::InitOptions());
    Environment env = { context.get(), programPath() };

    Rows rows;
    for (Section const& section : kSections)
    {
        if (!selected(only, section.name))
            continue;
        if (rowsPath.empty())
            log("== %s", section.name);
        const std::size_t from = rows.size();
        section.run(env, rows);
        if (rowsPath.empty())
            printRows(rows, from);
    }

    Oru::OGL::Library::terminateExtensionator();
    if (!rowsPath.empty())
    {
        writeRows(rowsPath, rows);
        return 0;
    }
    if (!markdownPath.empty())
    {
        std::ofstream out(markdownPath, std::ios::binary);
        out << markdown(rows, loadBefore, loadAverage(), now() - start);
        if (!out)
        {
            std::fprintf(stderr, "cannot write %s\n", markdownPath.c_str());
            return 1;
        }
        log("wrote %s", markdownPath.c_str());
    }
    context.reset();
    return 0;
}

} // namespace

namespace bench
{

// Start-up again with the driver reporting OpenGL 2.1. Mesa reads the override
// from the environment the program starts with, so scripts/bench.sh runs that
// part first (--section startup --rows FILE under MESA_GL_VERSION_OVERRIDE=2.1)
// and hands its rows over with --legacy-rows.
std::string gLegacyRows;

void startupLegacySection(Environment&, Rows& rows)
{
    const Rows legacy = gLegacyRows.empty() ? Rows() : readRows(gLegacyRows);
    if (legacy.empty())
    {
        rows.push_back({ "5. Start-up, GL_VERSION 2.1", "not measured: run through scripts/bench.sh", "", "", "", "" });
        return;
    }
    rows.insert(rows.end(), legacy.begin(), legacy.end());
}

} // namespace bench

int main(int argc, char** argv)
{
    try
    {
        return run(std::vector<std::string>(argv + 1, argv + argc));
    }
    catch (Oru::ExceptionBase const& e)
    {
        std::fprintf(stderr, "oru_bench: %s\n", e.what());
    }
    catch (std::exception const& e)
    {
        std::fprintf(stderr, "oru_bench: %s\n", e.what());
    }
    return 1;
}
