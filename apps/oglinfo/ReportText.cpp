#include "ReportText.h"

#include "oru_ogl/extensionator/CatalogueCounts.h"
#include "oru_ogl/extensionator/Extensions.h"

using namespace Oru::OGL;

namespace
{

bool isWgl(DriverReport::Extension const& e)
{
    return e.id >= WGL_3DFX_MULTISAMPLE;
}

template <typename Predicate>
unsigned int countIf(DriverReport const& report, bool wgl, Predicate predicate)
{
    unsigned int count = 0;
    for (DriverReport::Extension const& e : report.extensions)
        count += (isWgl(e) == wgl && predicate(e)) ? 1 : 0;
    return count;
}

void printHeader(std::FILE* out, DriverReport const& report)
{
    std::fprintf(out, "oru_ogl        %s\n", report.layerVersion.c_str());
    std::fprintf(out, "GL_VENDOR      %s\n", report.vendor.c_str());
    std::fprintf(out, "GL_RENDERER    %s\n", report.renderer.c_str());
    std::fprintf(out, "GL_VERSION     %s\n", report.version.c_str());
    std::fprintf(out, "  parsed as    major %u, minor %u, ", report.major, report.minor);
    if (report.hasRelease)
        std::fprintf(out, "release %u", report.release);
    else
        std::fprintf(out, "no release");
    std::fprintf(out, ", additional info \"%s\"\n", report.additionalInfo.c_str());
    std::fprintf(out, "GLSL           %s\n",
                 report.shadingLanguageVersion.empty() ? "(none)" : report.shadingLanguageVersion.c_str());
    std::fprintf(out, "vendor class   %s\n", report.vendorClass.c_str());
}

void printCapabilities(std::FILE* out, DriverReport const& report)
{
    std::fprintf(out, "\nCapabilities\n");
    for (DriverReport::Capability const& capability : report.capabilities)
        std::fprintf(out, "  %-28s %s\n", capability.label, capability.value ? "yes" : "no");
    std::fprintf(out, "  %-28s %u\n", "texture units", report.textureUnits);
    std::fprintf(out, "\nLimits\n");
    for (auto const& limit : report.limits)
        std::fprintf(out, "  %-36s %d\n", limit.first.c_str(), limit.second);
}

void printMissing(std::FILE* out, DriverReport::Extension const& e)
{
    for (std::string const& name : e.missingEntryPoints())
        std::fprintf(out, "  %s is advertised but lacks %s\n", e.name.c_str(), name.c_str());
}

void printUnknown(std::FILE* out, DriverReport const& report)
{
    std::fprintf(out, "\nAdvertised but not in the catalogue (%zu)\n", report.unknownExtensions.size());
    for (std::string const& name : report.unknownExtensions)
        std::fprintf(out, "  %s\n", name.c_str());
}

void printPixelFormatTable(std::FILE* out, PixelFormatTable const& table)
{
    std::fprintf(out, "\nPixel formats of the context's device context (%zu, from %s)\n", table.formats.size(),
                 table.source.c_str());
    if (table.formats.empty())
        return;
    std::fprintf(out, "  %5s", "index");
    for (auto const& column : table.formats.front().values)
        std::fprintf(out, " %s", column.first.c_str());
    std::fprintf(out, "\n");
    for (PixelFormatTable::Row const& row : table.formats)
    {
        std::fprintf(out, "  %5d", row.index);
        for (auto const& column : row.values)
        {
            // Each value right-aligned under its column's name.
            const int width = static_cast<int>(column.first.size());
            if (column.first == "acceleration" || column.first == "pixelType")
                std::fprintf(out, " %*s0x%04X", width - 6, "", column.second);
            else
                std::fprintf(out, " %*d", width, column.second);
        }
        std::fprintf(out, "\n");
    }
}

} // namespace

void printSummary(std::FILE* out, DriverReport const& report)
{
    printHeader(out, report);
    const auto advertised = [](DriverReport::Extension const& e) { return e.advertised; };
    const auto loaded = [](DriverReport::Extension const& e) { return e.loaded; };
    std::fprintf(out, "\nCatalogue      GL: %u advertised of %u, %u loaded; WGL: %u advertised of %u, %u loaded\n",
                 countIf(report, false, advertised), catalogue::kFirstWGLExtensionId, countIf(report, false, loaded),
                 countIf(report, true, advertised), catalogue::kExtensionIdCount - catalogue::kFirstWGLExtensionId,
                 countIf(report, true, loaded));
    std::fprintf(out, "Unknown        %zu advertised extensions not in the catalogue\n",
                 report.unknownExtensions.size());
    std::fprintf(out, "Core versions  loaded:");
    bool anyCore = false;
    for (unsigned int id = 0; id <= OPEN_GL_2_1; ++id)
    {
        if (report.extensions[id].loaded)
            std::fprintf(out, " %s", report.extensions[id].name.c_str() + 11);
        anyCore = anyCore || report.extensions[id].loaded;
    }
    std::fprintf(out, "%s\n", anyCore ? "" : " none");
    for (DriverReport::Extension const& e : report.extensions)
    {
        if (e.advertised && !e.loaded)
        {
            printMissing(out, e);
            if (!e.note.empty() && e.id == OPEN_GL_1_2)
                std::fprintf(out, "  (%s)\n", e.note.c_str());
        }
    }
    printCapabilities(out, report);
    std::fprintf(out, "\n(--full lists every core version and extension and the pixel formats; --functions every "
                      "entry point; --json for scripts)\n");
}

void printFull(std::FILE* out, DriverReport const& report)
{
    printHeader(out, report);
    printCapabilities(out, report);
    std::fprintf(out, "\nCore versions and extensions (id, name, entry points, advertised, loaded)\n");
    for (DriverReport::Extension const& e : report.extensions)
    {
        std::fprintf(out, "  %3u %-42s %3zu  %-3s %-3s", e.id, e.name.c_str(), e.entryPoints.size(),
                     e.advertised ? "yes" : "-", e.loaded ? "yes" : "-");
        const std::vector<std::string> missing = e.missingEntryPoints();
        if (!missing.empty())
            std::fprintf(out, "  lacks %zu: %s%s", missing.size(), missing.front().c_str(),
                         missing.size() > 1 ? ", ..." : "");
        else if (!e.note.empty())
            std::fprintf(out, "  (%s)", e.note.c_str());
        std::fprintf(out, "\n");
    }
    printUnknown(out, report);
    std::fprintf(out, "\nPixel formats chosen for a window\n");
    for (DriverReport::ChosenPixelFormat const& f : report.chosenPixelFormats)
    {
        if (f.created)
            std::fprintf(out, "  %-48s format %3d: R%d G%d B%d A%d S%d D%d, %d samples\n", f.request.c_str(), f.index,
                         f.red, f.green, f.blue, f.alpha, f.stencil, f.depth, f.samples);
        else
            std::fprintf(out, "  %-48s not available: %s\n", f.request.c_str(), f.error.c_str());
    }
    printPixelFormatTable(out, report.pixelFormats);
}

void printFunctions(std::FILE* out, DriverReport const& report)
{
    // As glewinfo: each id with its verdict, then each entry point with its own.
    std::fprintf(out, "Entry points by core version and extension: OK when the driver resolves it, MISSING when\n"
                      "not; \"loaded\" when start-up set its pointer variable.\n");
    for (DriverReport::Extension const& e : report.extensions)
    {
        if (e.entryPoints.empty())
            continue;
        std::fprintf(out, "\n%s (%s%s)\n", e.name.c_str(), e.advertised ? "advertised" : "not advertised",
                     e.loaded ? ", loaded" : "");
        for (DriverReport::EntryPoint const& entryPoint : e.entryPoints)
            std::fprintf(out, "  %-50s %s%s\n", entryPoint.name.c_str(), entryPoint.available ? "OK" : "MISSING",
                         entryPoint.loaded ? ", loaded" : "");
    }
}
