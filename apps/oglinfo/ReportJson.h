#ifndef ORU_APPS_OGLINFO_REPORTJSON_H
#define ORU_APPS_OGLINFO_REPORTJSON_H

#include "DriverReport.h"

#include <string>

/// The whole report as one JSON object (keys in camelCase, in a fixed order),
/// indented by two spaces, with a final newline.
std::string reportJson(DriverReport const& report);

#endif
