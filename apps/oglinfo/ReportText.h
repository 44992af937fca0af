#ifndef ORU_APPS_OGLINFO_REPORTTEXT_H
#define ORU_APPS_OGLINFO_REPORTTEXT_H

#include "DriverReport.h"

#include <cstdio>

// oglinfo's text forms of a report.
void printSummary(std::FILE* out, DriverReport const& report);
void printFull(std::FILE* out, DriverReport const& report);
void printFunctions(std::FILE* out, DriverReport const& report);

#endif
