#ifndef ORU_APPS_OGLINFO_PIXELFORMATTABLE_H
#define ORU_APPS_OGLINFO_PIXELFORMATTABLE_H

#include <windows.h>

#include <string>
#include <utility>
#include <vector>

// Every pixel format of a device context with its attributes, as visualinfo
// lists them: through DescribePixelFormat, and through
// wglGetPixelFormatAttribivARB where the driver offers it (which also knows
// the formats GDI cannot describe, multisampled ones among them).
struct PixelFormatTable
{
    /// One attribute column: its key (also the JSON key) and, per format, its value.
    struct Row
    {
        int index;                                      ///< 1-based, as SetPixelFormat takes it
        std::vector<std::pair<std::string, int>> values; ///< in column order
    };

    std::string source; ///< "DescribePixelFormat" or "wglGetPixelFormatAttribivARB"
    std::vector<Row> formats;

    /// Reads the table of dc (the ARB attributes need a current context).
    static PixelFormatTable read(HDC dc);
};

#endif
