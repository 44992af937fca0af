#include "ReportJson.h"

#include <nlohmann/json.hpp>

namespace
{

using Json = nlohmann::ordered_json;

Json textOrNull(std::string const& text)
{
    return text.empty() ? Json(nullptr) : Json(text);
}

Json extensionJson(DriverReport::Extension const& e)
{
    Json entryPoints = Json::array();
    for (DriverReport::EntryPoint const& entryPoint : e.entryPoints)
        entryPoints.push_back({ { "name", entryPoint.name },
                                { "available", entryPoint.available },
                                { "loaded", entryPoint.loaded } });
    return { { "id", e.id },
             { "name", e.name },
             { "advertised", e.advertised },
             { "loaded", e.loaded },
             { "missingEntryPoints", e.missingEntryPoints() },
             { "note", textOrNull(e.note) },
             { "entryPoints", entryPoints } };
}

Json chosenPixelFormatJson(DriverReport::ChosenPixelFormat const& f)
{
    Json json = { { "request", f.request }, { "created", f.created } };
    if (!f.created)
    {
        json["error"] = f.error;
        return json;
    }
    json.update({ { "index", f.index },
                  { "red", f.red },
                  { "green", f.green },
                  { "blue", f.blue },
                  { "alpha", f.alpha },
                  { "stencil", f.stencil },
                  { "depth", f.depth },
                  { "samples", f.samples } });
    return json;
}

Json pixelFormatTableJson(PixelFormatTable const& table)
{
    Json formats = Json::array();
    for (PixelFormatTable::Row const& row : table.formats)
    {
        Json format = { { "index", row.index } };
        for (auto const& value : row.values)
            format[value.first] = value.second;
        formats.push_back(format);
    }
    return { { "source", table.source }, { "formats", formats } };
}

} // namespace

std::string reportJson(DriverReport const& report)
{
    Json json;
    json["oruOglVersion"] = report.layerVersion;
    json["vendor"] = report.vendor;
    json["renderer"] = report.renderer;
    json["version"] = report.version;
    json["shadingLanguageVersion"] = textOrNull(report.shadingLanguageVersion);
    json["parsedVersion"] = { { "major", report.major },
                              { "minor", report.minor },
                              { "release", report.hasRelease ? Json(report.release) : Json(nullptr) },
                              { "additionalInfo", report.additionalInfo } };
    json["vendorClass"] = report.vendorClass;
    json["extensionsString"] = report.extensionsString;
    json["wglExtensionsString"] = report.wglExtensionsString;
    json["textureUnits"] = report.textureUnits;
    Json capabilities = Json::object();
    for (DriverReport::Capability const& capability : report.capabilities)
        capabilities[capability.key] = capability.value;
    json["capabilities"] = capabilities;
    Json limits = Json::object();
    for (auto const& limit : report.limits)
        limits[limit.first] = limit.second;
    json["limits"] = limits;
    Json extensions = Json::array();
    for (DriverReport::Extension const& e : report.extensions)
        extensions.push_back(extensionJson(e));
    json["extensions"] = extensions;
    json["unknownExtensions"] = report.unknownExtensions;
    Json chosen = Json::array();
    for (DriverReport::ChosenPixelFormat const& f : report.chosenPixelFormats)
        chosen.push_back(chosenPixelFormatJson(f));
    json["chosenPixelFormats"] = chosen;
    json["pixelFormats"] = pixelFormatTableJson(report.pixelFormats);
    // Driver strings are not promised to be UTF-8: replace what is not.
    return json.dump(2, ' ', false, Json::error_handler_t::replace) + "\n";
}
