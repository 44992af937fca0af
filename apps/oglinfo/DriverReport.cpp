#include "DriverReport.h"

#include "oru_ogl/InternalWindow.h"
#include "oru_ogl/Version.h"
#include "oru_ogl/extensionator/ExtensionCatalogue.h"
#include "oru_ogl/extensionator/ExtensionManager.h"
#include "oru_ogl/extensionator/windows/WglEntryPoints.h"
#include "oru_ogl/ogl/ContextWindowed.h"
#include "oru_ogl/ogl/TextureUnit.h"

#include "oru_core/Exceptions.h"

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

std::vector<std::string> words(std::string const& text)
{
    std::vector<std::string> result;
    std::istringstream in(text);
    for (std::string word; in >> word;)
        result.push_back(word);
    return result;
}

// The GLSL version exists from OpenGL 2.0 on, or with GL_ARB_shading_language_100.
std::string shadingLanguageVersion(bool supported)
{
    return supported ? glText(GL_SHADING_LANGUAGE_VERSION) : "";
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

DriverReport::ChosenPixelFormat tryPixelFormat(char const* name, BufferFormat::tePredefined predefined,
                                         Context::teBuffering buffering, Context::teMultisample samples)
{
    DriverReport::ChosenPixelFormat result = {};
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

    report.extensionsString = glText(GL_EXTENSIONS);
    if (_wcgmGetExtensionsStringARB)
        report.wglExtensionsString = _wcgmGetExtensionsStringARB(wglGetCurrentDC());
    const std::vector<std::string> glList = words(report.extensionsString);
    const std::vector<std::string> wglList = words(report.wglExtensionsString);
    const std::set<std::string> glNames(glList.begin(), glList.end());
    const std::set<std::string> wglNames(wglList.begin(), wglList.end());
    for (std::string const& name : glList)
        if (ExtensionCatalogue::glExtension(name.c_str()) == UNKNOWN_EXTENSION)
            report.unknownExtensions.push_back(name);
    for (std::string const& name : wglList)
        if (ExtensionCatalogue::wglExtension(name.c_str()) == UNKNOWN_EXTENSION)
            report.unknownExtensions.push_back(name);

    const unsigned int coreVersions[][2] = { { 1, 2 }, { 1, 3 }, { 1, 4 }, { 1, 5 }, { 2, 0 }, { 2, 1 } };
    for (unsigned int id = 0; id <= WGL_OML_SYNC_CONTROL; ++id)
    {
        const teExtension ext = static_cast<teExtension>(id);
        DriverReport::Extension row;
        row.id = id;
        row.name = ExtensionCatalogue::name(ext);
        if (id <= OPEN_GL_2_1)
            row.advertised = versionReaches(manager, coreVersions[id][0], coreVersions[id][1]);
        else
            row.advertised = (id < WGL_3DFX_MULTISAMPLE ? glNames : wglNames).count(row.name) != 0;
        row.loaded = manager->isSupported(ext);
        for (unsigned int k = 0; k < ExtensionCatalogue::entryPointCount(ext); ++k)
        {
            char const* name = ExtensionCatalogue::entryPointName(ext, k);
            row.entryPoints.push_back(
                { name, ExtensionCatalogue::isEntryPointLoaded(ext, k), ExtensionCatalogue::resolve(name) != nullptr });
        }
        // Start-up loads core versions only for 1.x and 2.x drivers, and never 2.1.
        if (row.advertised && !row.loaded && row.missingEntryPoints().empty())
        {
            if (id == OPEN_GL_2_1)
                row.note = "2.1 is not loaded at start-up";
            else if (id <= OPEN_GL_2_0 && report.major >= 3)
                row.note = "core versions are not loaded for drivers reporting 3.0 or later";
        }
        report.extensions.push_back(row);
    }
    report.shadingLanguageVersion = shadingLanguageVersion(
        report.extensions[OPEN_GL_2_0].advertised || glNames.count("GL_ARB_shading_language_100") != 0);

    report.capabilities = {
        { "clampToEdge", "clamp to edge", manager->supportsClampToEdge() },
        { "multitexture", "multitexture", manager->supportsMultiTexture() },
        { "drawBuffers", "draw buffers", manager->supportsDrawBuffers() },
        { "texture3D", "3D textures", manager->supportsTexture3D() },
        { "floatingPointTextures", "floating-point textures", manager->supportsFloatingPointTextures() },
        { "nonPowerOfTwoTextures", "non-power-of-two textures", manager->supportsNonPowerOfTwoTextures() },
        { "renderToTexture", "render to texture", manager->supportsRenderToTexture() },
        { "renderToTextureRectangle", "render to texture rectangle", manager->supportsRenderToTextureRectangle() },
        { "pixelBuffers", "pixel buffers", manager->supportsPixelBuffers() },
        { "verticalRetraceControl", "vertical retrace control", Context::supportsVerticalRetraceControl() },
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

    report.pixelFormats = PixelFormatTable::read(wglGetCurrentDC());
    report.chosenPixelFormats = {
        tryPixelFormat("eRGB8", BufferFormat::eRGB8, Context::eSingleBuffered, Context::eNoMultisample),
        tryPixelFormat("eRGBA8_S8D24", BufferFormat::eRGBA8_S8D24, Context::eDoubleBuffered, Context::eNoMultisample),
        tryPixelFormat("eRGBA8_S8D24", BufferFormat::eRGBA8_S8D24, Context::eDoubleBuffered, Context::e4Samples),
        tryPixelFormat("eRGBA16F", BufferFormat::eRGBA16F, Context::eDoubleBuffered, Context::eNoMultisample),
        tryPixelFormat("eR32F_S8D24", BufferFormat::eR32F_S8D24, Context::eDoubleBuffered, Context::eNoMultisample),
    };
    return report;
}

std::vector<std::string> DriverReport::Extension::missingEntryPoints() const
{
    std::vector<std::string> missing;
    if (advertised)
        for (EntryPoint const& entryPoint : entryPoints)
            if (!entryPoint.available)
                missing.push_back(entryPoint.name);
    return missing;
}

