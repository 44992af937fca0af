#ifndef ORU_APPS_OGLINFO_DRIVERREPORT_H
#define ORU_APPS_OGLINFO_DRIVERREPORT_H

#include <string>
#include <utility>
#include <vector>

// Everything oglinfo reports, gathered once from a started layer.
struct DriverReport
{
    struct Extension
    {
        unsigned int id;
        std::string name;
        unsigned int entryPoints;
        bool advertised;
        bool loaded;
        std::string missingEntryPoint; // set when advertised but its loader failed
        std::string note;              // why an advertised id was not loaded otherwise
    };

    struct PixelFormat
    {
        std::string request;  // "eRGBA8_S8D24, double-buffered, 4 samples"
        bool created;
        std::string error;    // why not, when not created
        int index;
        int red, green, blue, alpha, stencil, depth;
        int samples;
    };

    std::string layerVersion;  // oru_ogl's own, "0.1.0"
    std::string vendor, renderer, version;
    unsigned int major, minor;
    bool hasRelease;
    unsigned int release;
    std::string additionalInfo;
    std::string vendorClass;

    std::vector<Extension> extensions;                  // every id of the catalogue
    std::vector<std::pair<std::string, bool>> capabilities;
    unsigned int textureUnits;
    std::vector<std::pair<std::string, int>> limits;
    std::vector<PixelFormat> pixelFormats;
};

/// Fills the report; the layer must be started and its context current.
DriverReport gatherDriverReport();

void printSummary(DriverReport const& report);
void printFull(DriverReport const& report);
void printJson(DriverReport const& report);

#endif
