// oglinfo: what OpenGL this machine offers, as the layer sees it.
#include "DriverReport.h"
#include "ReportJson.h"
#include "ReportText.h"

#include "oru_ogl/LibraryOGL.h"
#include "oru_ogl/Version.h"
#include "oru_ogl/extensionator/ExtensionManager.h"
#include "oru_ogl/ogl/ContextOffscreen.h"

#include "oru_core/Exceptions.h"

#include <CLI/CLI.hpp>

#include <fcntl.h>
#include <io.h>

#include <cstdio>
#include <vector>

namespace
{

const int kNoContext = 1;
const int kBadArguments = 2;

const char kDescription[] =
    "Creates an offscreen OpenGL context, starts the oru_ogl layer for it and reports\n"
    "the driver: vendor, renderer, version (and how the layer parsed it) and GLSL\n"
    "version, which of the layer's core versions and extensions are advertised and\n"
    "loaded, the advertised extensions it does not know, the answers of its\n"
    "capability questions, texture units, the main limits and the pixel formats.\n"
    "Without an option: a short summary. The options below are exclusive.";

const char kFooter[] =
    "Exit status: 0 on success, 1 when no context could be made or the layer could\n"
    "not start, 2 for a bad argument.";

} // namespace

int main(int argc, char** argv)
{
    // Output is the same bytes on every system: LF line ends, not the C
    // runtime's CRLF.
    _setmode(_fileno(stdout), _O_BINARY);

    bool full = false, json = false, functions = false, version = false;
    CLI::App app(kDescription, "oglinfo");
    std::vector<CLI::Option*> modes = {
        app.add_flag("--full", full,
                     "every core version and extension of the catalogue, the advertised extensions it does not "
                     "know, the pixel formats the layer chooses for a few buffer formats and every pixel format "
                     "of the device context with its attributes"),
        app.add_flag("--functions", functions,
                     "every entry point of every core version and extension: whether the driver resolves it and "
                     "whether start-up loaded it"),
        app.add_flag("--json", json, "everything, as one JSON object (raw strings and entry points included)"),
        app.add_flag("--version", version, "the version of oru_ogl, without creating a context"),
    };
    for (CLI::Option* mode : modes)
        for (CLI::Option* other : modes)
            if (other != mode)
                mode->excludes(other);
    bool compatibilityCores = false;
    app.add_flag("--compatibility-core-versions", compatibilityCores,
                 "start the layer with that option: on a compatibility context of 3.0 or later the 1.2 to 2.1 "
                 "cores are loaded and marked (goes with any mode)");
    app.footer(kFooter);
    try
    {
        app.parse(argc, argv);
    }
    catch (CLI::CallForHelp const& help)
    {
        return app.exit(help);
    }
    catch (CLI::ParseError const& error)
    {
        app.exit(error);
        return kBadArguments;
    }
    if (version)
    {
        std::printf("oglinfo (oru_ogl %s)\n", ORU_OGL_VERSION_STRING);
        return 0;
    }

    try
    {
        Oru::OGL::ContextOffscreen context;
        Oru::OGL::ExtensionManager::InitOptions options;
        options.setCompatibilityCoreVersions(compatibilityCores);
        Oru::OGL::Library::initializeExtensionator(&context, options);
        const DriverReport report = gatherDriverReport();
        if (json)
            std::fputs(reportJson(report).c_str(), stdout);
        else if (full)
            printFull(stdout, report);
        else if (functions)
            printFunctions(stdout, report);
        else
            printSummary(stdout, report);
        Oru::OGL::Library::terminateExtensionator();
        wglMakeCurrent(nullptr, nullptr);
    }
    catch (Oru::ExceptionBase const& e)
    {
        std::fprintf(stderr, "oglinfo: cannot create an OpenGL context and start the layer: %s\n", e.what());
        return kNoContext;
    }
    return 0;
}
