// oglinfo: what OpenGL this machine offers, as the layer sees it.
#include "DriverReport.h"

#include "oru_ogl/LibraryOGL.h"
#include "oru_ogl/Version.h"
#include "oru_ogl/ogl/ContextOffscreen.h"

#include "oru_core/Exceptions.h"

#include <cstdio>
#include <cstring>
#include <memory>

namespace
{

const char kUsage[] =
    "usage: oglinfo [--full | --json | --version | --help] [--compatibility-core-versions]\n"
    "\n"
    "Creates an offscreen OpenGL context, starts the oru_ogl layer for it and reports\n"
    "the driver: vendor, renderer and version (and how the layer parsed it), which of\n"
    "the layer's core versions and extensions are advertised and loaded, the answers\n"
    "of its capability questions, texture units and the main limits.\n"
    "\n"
    "  (none)     a short summary\n"
    "  --full     every core version and extension of the catalogue, and the pixel\n"
    "             formats the layer chooses for a few buffer formats\n"
    "  --json     everything, as one JSON object\n"
    "  --version  the version of oru_ogl, without creating a context\n"
    "  --help     this text\n"
    "  --compatibility-core-versions\n"
    "             start the layer with that option: on a compatibility context of\n"
    "             3.0 or later the 1.2 to 2.1 cores are loaded and marked\n"
    "\n"
    "Exit status: 0 on success, 1 when no context could be made or the layer could\n"
    "not start, 2 for a bad argument.\n";

} // namespace

int main(int argc, char** argv)
{
    enum { Summary, Full, Json } mode = Summary;
    Oru::OGL::ExtensionManager::InitOptions options;
    for (int i = 1; i < argc; ++i)
    {
        if (!std::strcmp(argv[i], "--help") || !std::strcmp(argv[i], "-h"))
        {
            std::fputs(kUsage, stdout);
            return 0;
        }
        if (!std::strcmp(argv[i], "--version"))
        {
            std::printf("oglinfo (oru_ogl %s)\n", ORU_OGL_VERSION_STRING);
            return 0;
        }
        if (!std::strcmp(argv[i], "--full"))
            mode = Full;
        else if (!std::strcmp(argv[i], "--json"))
            mode = Json;
        else if (!std::strcmp(argv[i], "--compatibility-core-versions"))
            options.setCompatibilityCoreVersions(true);
        else
        {
            std::fprintf(stderr, "oglinfo: unknown argument '%s'\n\n%s", argv[i], kUsage);
            return 2;
        }
    }

    try
    {
        Oru::OGL::ContextOffscreen context;
        Oru::OGL::Library::initializeExtensionator(&context, options);
        const DriverReport report = gatherDriverReport();
        if (mode == Json)
            printJson(report);
        else if (mode == Full)
            printFull(report);
        else
            printSummary(report);
        Oru::OGL::Library::terminateExtensionator();
        wglMakeCurrent(nullptr, nullptr);
    }
    catch (Oru::ExceptionBase const& e)
    {
        std::fprintf(stderr, "oglinfo: cannot create an OpenGL context and start the layer: %s\n", e.what());
        return 1;
    }
    return 0;
}
