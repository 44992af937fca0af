#ifndef ORU_APPS_OGLINFO_DRIVERREPORT_H
#define ORU_APPS_OGLINFO_DRIVERREPORT_H

#include "PixelFormatTable.h"

#include <string>
#include <vector>

// Everything oglinfo reports, gathered once from a started layer.
struct DriverReport
{
    struct EntryPoint
    {
        std::string name;
        bool loaded;    // its pointer variable was set at start-up
        bool available; // the driver resolves the name (wglGetProcAddress)
    };

    struct Extension
    {
        unsigned int id;
        std::string name;
        bool advertised;
        bool loaded;
        std::vector<EntryPoint> entryPoints;
        std::string note; // why an advertised id was not loaded, when not for a missing function

        // The entry points an advertised id lacks: those the driver does not resolve.
        std::vector<std::string> missingEntryPoints() const;
    };

    struct Capability
    {
        char const* key;   // JSON key
        char const* label; // text label
        bool value;
    };

    struct ChosenPixelFormat
    {
        std::string request; // "eRGBA8_S8D24, double-buffered, 4 samples"
        bool created;
        std::string error;   // why not, when not created
        int index;
        int red, green, blue, alpha, stencil, depth;
        int samples;
    };

    std::string layerVersion; // oru_ogl's own, "0.1.0"
    std::string vendor, renderer, version, shadingLanguageVersion;
    std::string extensionsString, wglExtensionsString; // as the driver returns them
    unsigned int major, minor;
    bool hasRelease;
    unsigned int release;
    std::string additionalInfo;
    std::string vendorClass;

    std::vector<Extension> extensions;          // every id of the catalogue
    std::vector<std::string> unknownExtensions; // advertised, GL then WGL, not in the catalogue
    std::vector<Capability> capabilities;
    unsigned int textureUnits;
    std::vector<std::pair<std::string, int>> limits;
    std::vector<ChosenPixelFormat> chosenPixelFormats;
    PixelFormatTable pixelFormats; // of the context's device context
};

/// Fills the report; the layer must be started and its context current.
DriverReport gatherDriverReport();

#endif
