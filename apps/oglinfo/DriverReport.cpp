#include "DriverReport.h"

#include "oru_ogl/InternalWindow.h"
#include "oru_ogl/Version.h"
#include "oru_ogl/extensionator/ExtensionCatalogue.h"
#include "oru_ogl/extensionator/ExtensionManager.h"
#include "oru_ogl/extensionator/windows/WglEntryPoints.h"
#include "oru_ogl/ogl/ContextWindowed.h"
#include "oru_ogl/ogl/TextureUnit.h"

#include "oru_core/Exceptions.h"

#include <cstdio>
#include <set>
#include <sstream>

using namespace Oru::OGL;

namespace
{

std::string glText(GLenum name)
{
    const GLubyte* text = glGetString(name);
    return text ? reinterpret_cast<char const*>(text) : "";
}

std::set<std::string> words(std::string const& text)
{
    std::set<std::string> result;
    std::istringstream in(text);
    for (std::string word; in >> word;)
        result.insert(word);
    return result;
}

char const* vendorClassName(ExtensionManager::teVendor vendor)
{
    switch (vendor)
    {
    case ExtensionManager::VENDOR_ATI:
        return "ATI";
    case ExtensionManager::VENDOR_NVIDIA:
        return "NVIDIA";
    default:
        return "other";
    }
}

bool versionReaches(ExtensionManager* manager, unsigned int major, unsigned int minor)
{
    return manager->majorVersion() > major || (manager->majorVersion() == major && manager->minorVersion() >= minor);
}

DriverReport::PixelFormat tryPixelFormat(char const* name, BufferFormat::tePredefined predefined,
                                         Context::teBuffering buffering, Context::teMultisample samples)
{
    DriverReport::PixelFormat result = {};
    std::ostringstream request;
    request << name << (buffering == Context::eDoubleBuffered ? ", double-buffered" : ", single-buffered") << ", "
            << static_cast<int>(samples) << (samples == 1 ? " sample" : " samples");
    result.request = request.str();
    try
    {
        InternalWindow window;
        ContextWindowed context(window.handle(), BufferFormat(predefined), buffering, samples, nullptr);
        result.created = true;
        result.index = GetPixelFormat(context.deviceContext());
        context.getBitDepths(&result.red, &result.green, &result.blue, &result.alpha, &result.stencil, &result.depth);
        const int samplesAttribute = 0x2042; // WGL_SAMPLES_ARB
        if (_wcgmGetPixelFormatAttribivARB)
            _wcgmGetPixelFormatAttribivARB(context.deviceContext(), result.index, 0, 1, &samplesAttribute,
                                           &result.samples);
    }
    catch (Oru::ExceptionBase const& e)
    {
        result.created = false;
        result.error = e.message();
    }
    return result;
}

} // namespace

DriverReport gatherDriverReport()
{
    ExtensionManager* manager = ExtensionManager::Instance();
    DriverReport report = {};
    report.layerVersion = ORU_OGL_VERSION_STRING;
    report.vendor = glText(GL_VENDOR);
    report.renderer = glText(GL_RENDERER);
    report.version = glText(GL_VERSION);
    report.major = manager->majorVersion();
    report.minor = manager->minorVersion();
    report.hasRelease = manager->hasReleaseVersion();
    report.release = report.hasRelease ? manager->releaseVersion() : 0;
    report.additionalInfo = manager->additionalVersionInfo();
    report.vendorClass = vendorClassName(manager->vendor());

    const std::set<std::string> glNames = words(glText(GL_EXTENSIONS));
    std::set<std::string> wglNames;
    if (_wcgmGetExtensionsStringARB)
        wglNames = words(_wcgmGetExtensionsStringARB(wglGetCurrentDC()));
    const unsigned int coreVersions[][2] = { { 1, 2 }, { 1, 3 }, { 1, 4 }, { 1, 5 }, { 2, 0 }, { 2, 1 } };
    for (unsigned int id = 0; id <= WGL_OML_SYNC_CONTROL; ++id)
    {
        const teExtension ext = static_cast<teExtension>(id);
        DriverReport::Extension row;
        row.id = id;
        row.name = ExtensionCatalogue::name(ext);
        row.entryPoints = ExtensionCatalogue::entryPointCount(ext);
        if (id <= OPEN_GL_2_1)
            row.advertised = versionReaches(manager, coreVersions[id][0], coreVersions[id][1]);
        else
            row.advertised = (id < WGL_3DFX_MULTISAMPLE ? glNames : wglNames).count(row.name) != 0;
        row.loaded = manager->isSupported(ext);
        if (row.advertised && !row.loaded)
        {
            // Start-up loads core versions only for 1.x and 2.x drivers, and never 2.1.
            if (id == OPEN_GL_2_1)
                row.note = "2.1 is not loaded at start-up";
            else if (id <= OPEN_GL_2_0 && report.major >= 3)
                row.note = "core versions are not loaded for drivers reporting 3.0 or later";
            else if (ExtensionCatalogue::missingEntryPoint(ext))
                row.missingEntryPoint = ExtensionCatalogue::missingEntryPoint(ext);
        }
        report.extensions.push_back(row);
    }

    report.capabilities = {
        { "clamp to edge", manager->supportsClampToEdge() },
        { "multitexture", manager->supportsMultiTexture() },
        { "draw buffers", manager->supportsDrawBuffers() },
        { "3D textures", manager->supportsTexture3D() },
        { "floating-point textures", manager->supportsFloatingPointTextures() },
        { "non-power-of-two textures", manager->supportsNonPowerOfTwoTextures() },
        { "render to texture", manager->supportsRenderToTexture() },
        { "render to texture rectangle", manager->supportsRenderToTextureRectangle() },
        { "pixel buffers", manager->supportsPixelBuffers() },
        { "vertical retrace control", Context::supportsVerticalRetraceControl() },
    };
    report.textureUnits = manager->numberOfTextureUnits();

    const std::pair<char const*, GLenum> limits[] = {
        { "GL_MAX_TEXTURE_SIZE", GL_MAX_TEXTURE_SIZE },
        { "GL_MAX_3D_TEXTURE_SIZE", 0x8073 },
        { "GL_MAX_RECTANGLE_TEXTURE_SIZE_ARB", 0x84F8 },
        { "GL_MAX_TEXTURE_UNITS", 0x84E2 },
        { "GL_MAX_TEXTURE_IMAGE_UNITS", 0x8872 },
        { "GL_MAX_TEXTURE_COORDS", 0x8871 },
        { "GL_MAX_DRAW_BUFFERS", 0x8824 },
        { "GL_MAX_COLOR_ATTACHMENTS_EXT", 0x8CDF },
        { "GL_MAX_RENDERBUFFER_SIZE_EXT", 0x84E8 },
        { "GL_MAX_VERTEX_ATTRIBS", 0x8869 },
        { "GL_MAX_VIEWPORT_DIMS", GL_MAX_VIEWPORT_DIMS },
    };
    for (auto const& limit : limits)
    {
        GLint values[2] = { 0, 0 };
        glGetIntegerv(limit.second, values);
        report.limits.emplace_back(limit.first, values[0]);
    }
    while (glGetError() != GL_NO_ERROR)
    {
        // a limit the driver does not know leaves its error behind
    }

    report.pixelFormats = {
        tryPixelFormat("eRGB8", BufferFormat::eRGB8, Context::eSingleBuffered, Context::eNoMultisample),
        tryPixelFormat("eRGBA8_S8D24", BufferFormat::eRGBA8_S8D24, Context::eDoubleBuffered, Context::eNoMultisample),
        tryPixelFormat("eRGBA8_S8D24", BufferFormat::eRGBA8_S8D24, Context::eDoubleBuffered, Context::e4Samples),
        tryPixelFormat("eRGBA16F", BufferFormat::eRGBA16F, Context::eDoubleBuffered, Context::eNoMultisample),
        tryPixelFormat("eR32F_S8D24", BufferFormat::eR32F_S8D24, Context::eDoubleBuffered, Context::eNoMultisample),
    };
    return report;
}

// ---------------------------------------------------------------------------
// Output.
// ---------------------------------------------------------------------------

namespace
{

unsigned int countIf(DriverReport const& report, bool wgl, bool (*predicate)(DriverReport::Extension const&))
{
    unsigned int count = 0;
    for (DriverReport::Extension const& e : report.extensions)
        count += ((e.id >= WGL_3DFX_MULTISAMPLE) == wgl && predicate(e)) ? 1 : 0;
    return count;
}

void printHeader(DriverReport const& report)
{
    std::printf("oru_ogl        %s\n", report.layerVersion.c_str());
    std::printf("GL_VENDOR      %s\n", report.vendor.c_str());
    std::printf("GL_RENDERER    %s\n", report.renderer.c_str());
    std::printf("GL_VERSION     %s\n", report.version.c_str());
    std::printf("  parsed as    major %u, minor %u, ", report.major, report.minor);
    if (report.hasRelease)
        std::printf("release %u", report.release);
    else
        std::printf("no release");
    std::printf(", additional info \"%s\"\n", report.additionalInfo.c_str());
    std::printf("vendor class   %s\n", report.vendorClass.c_str());
}

void printCapabilities(DriverReport const& report)
{
    std::printf("\nCapabilities\n");
    for (auto const& capability : report.capabilities)
        std::printf("  %-28s %s\n", capability.first.c_str(), capability.second ? "yes" : "no");
    std::printf("  %-28s %u\n", "texture units", report.textureUnits);
    std::printf("\nLimits\n");
    for (auto const& limit : report.limits)
        std::printf("  %-36s %d\n", limit.first.c_str(), limit.second);
}

bool isAdvertised(DriverReport::Extension const& e) { return e.advertised; }
bool isLoaded(DriverReport::Extension const& e) { return e.loaded; }
bool isIncomplete(DriverReport::Extension const& e) { return e.advertised && !e.loaded; }

} // namespace

void printSummary(DriverReport const& report)
{
    printHeader(report);
    std::printf("\nCatalogue      GL: %u advertised of %u, %u loaded; WGL: %u advertised of %u, %u loaded\n",
                countIf(report, false, isAdvertised), catalogue::kFirstWGLExtensionId, countIf(report, false, isLoaded),
                countIf(report, true, isAdvertised), catalogue::kExtensionIdCount - catalogue::kFirstWGLExtensionId,
                countIf(report, true, isLoaded));
    std::printf("Core versions  loaded:");
    for (unsigned int id = 0; id <= OPEN_GL_2_1; ++id)
    {
        if (report.extensions[id].loaded)
            std::printf(" %s", report.extensions[id].name.c_str() + 11);
    }
    std::printf("%s\n", countIf(report, false, [](DriverReport::Extension const& e) { return e.loaded && e.id <= OPEN_GL_2_1; })
                             ? ""
                             : " none");
    for (DriverReport::Extension const& e : report.extensions)
    {
        if (!isIncomplete(e))
            continue;
        if (!e.missingEntryPoint.empty())
            std::printf("  %s is advertised but lacks %s\n", e.name.c_str(), e.missingEntryPoint.c_str());
        else if (!e.note.empty() && e.id == OPEN_GL_1_2)
            std::printf("  (%s)\n", e.note.c_str());
    }
    printCapabilities(report);
    std::printf("\n(--full lists every core version and extension and the pixel formats chosen; --json for scripts)\n");
}

void printFull(DriverReport const& report)
{
    printHeader(report);
    printCapabilities(report);
    std::printf("\nCore versions and extensions (id, name, entry points, advertised, loaded)\n");
    for (DriverReport::Extension const& e : report.extensions)
    {
        std::printf("  %3u %-42s %3u  %-3s %-3s", e.id, e.name.c_str(), e.entryPoints, e.advertised ? "yes" : "-",
                    e.loaded ? "yes" : "-");
        if (!e.missingEntryPoint.empty())
            std::printf("  lacks %s", e.missingEntryPoint.c_str());
        else if (!e.note.empty())
            std::printf("  (%s)", e.note.c_str());
        std::printf("\n");
    }
    std::printf("\nPixel formats chosen for a window\n");
    for (DriverReport::PixelFormat const& f : report.pixelFormats)
    {
        if (f.created)
            std::printf("  %-48s format %3d: R%d G%d B%d A%d S%d D%d, %d samples\n", f.request.c_str(), f.index,
                        f.red, f.green, f.blue, f.alpha, f.stencil, f.depth, f.samples);
        else
            std::printf("  %-48s not available: %s\n", f.request.c_str(), f.error.c_str());
    }
}

namespace
{

std::string json(std::string const& text)
{
    std::string out = "\"";
    for (unsigned char c : text)
    {
        if (c == '"' || c == '\\')
            out += '\\', out += static_cast<char>(c);
        else if (c < 0x20)
        {
            char escaped[8];
            std::snprintf(escaped, sizeof(escaped), "\\u%04x", c);
            out += escaped;
        }
        else
            out += static_cast<char>(c);
    }
    return out + "\"";
}

char const* json(bool value)
{
    return value ? "true" : "false";
}

} // namespace

void printJson(DriverReport const& report)
{
    std::printf("{\n  \"oruOglVersion\": %s,\n", json(report.layerVersion).c_str());
    std::printf("  \"vendor\": %s,\n  \"renderer\": %s,\n  \"version\": %s,\n", json(report.vendor).c_str(),
                json(report.renderer).c_str(), json(report.version).c_str());
    std::printf("  \"parsedVersion\": {\"major\": %u, \"minor\": %u, \"release\": ", report.major, report.minor);
    if (report.hasRelease)
        std::printf("%u", report.release);
    else
        std::printf("null");
    std::printf(", \"additionalInfo\": %s},\n", json(report.additionalInfo).c_str());
    std::printf("  \"vendorClass\": %s,\n  \"textureUnits\": %u,\n", json(report.vendorClass).c_str(),
                report.textureUnits);
    std::printf("  \"capabilities\": {");
    for (size_t i = 0; i < report.capabilities.size(); ++i)
        std::printf("%s%s: %s", i ? ", " : "", json(report.capabilities[i].first).c_str(),
                    json(report.capabilities[i].second));
    std::printf("},\n  \"limits\": {");
    for (size_t i = 0; i < report.limits.size(); ++i)
        std::printf("%s%s: %d", i ? ", " : "", json(report.limits[i].first).c_str(), report.limits[i].second);
    std::printf("},\n  \"extensions\": [\n");
    for (size_t i = 0; i < report.extensions.size(); ++i)
    {
        DriverReport::Extension const& e = report.extensions[i];
        std::printf("    {\"id\": %u, \"name\": %s, \"entryPoints\": %u, \"advertised\": %s, \"loaded\": %s, "
                    "\"missingEntryPoint\": %s, \"note\": %s}%s\n",
                    e.id, json(e.name).c_str(), e.entryPoints, json(e.advertised), json(e.loaded),
                    e.missingEntryPoint.empty() ? "null" : json(e.missingEntryPoint).c_str(),
                    e.note.empty() ? "null" : json(e.note).c_str(),
                    i + 1 < report.extensions.size() ? "," : "");
    }
    std::printf("  ],\n  \"pixelFormats\": [\n");
    for (size_t i = 0; i < report.pixelFormats.size(); ++i)
    {
        DriverReport::PixelFormat const& f = report.pixelFormats[i];
        std::printf("    {\"request\": %s, \"created\": %s", json(f.request).c_str(), json(f.created));
        if (f.created)
            std::printf(", \"index\": %d, \"red\": %d, \"green\": %d, \"blue\": %d, \"alpha\": %d, \"stencil\": %d, "
                        "\"depth\": %d, \"samples\": %d",
                        f.index, f.red, f.green, f.blue, f.alpha, f.stencil, f.depth, f.samples);
        else
            std::printf(", \"error\": %s", json(f.error).c_str());
        std::printf("}%s\n", i + 1 < report.pixelFormats.size() ? "," : "");
    }
    std::printf("  ]\n}\n");
}
