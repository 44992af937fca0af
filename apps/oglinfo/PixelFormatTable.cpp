#include "PixelFormatTable.h"

#include "oru_ogl/extensionator/windows/WglEntryPoints.h"

namespace
{

// WGL_ARB_pixel_format and WGL_ARB_multisample attribute names.
const int WGL_NUMBER_PIXEL_FORMATS = 0x2000;
const int WGL_SAMPLE_BUFFERS = 0x2041;
const int WGL_SAMPLES = 0x2042;

struct ArbColumn
{
    char const* key;
    int attribute;
};

const ArbColumn kArbColumns[] = {
    { "drawToWindow", 0x2001 }, { "drawToBitmap", 0x2002 }, { "acceleration", 0x2003 },
    { "supportOpenGL", 0x2010 }, { "doubleBuffer", 0x2011 }, { "stereo", 0x2012 },
    { "pixelType", 0x2013 },     { "colorBits", 0x2014 },    { "redBits", 0x2015 },
    { "greenBits", 0x2017 },     { "blueBits", 0x2019 },     { "alphaBits", 0x201B },
    { "accumBits", 0x201D },     { "depthBits", 0x2022 },    { "stencilBits", 0x2023 },
    { "auxBuffers", 0x2024 },
};

PixelFormatTable describeThroughGdi(HDC dc)
{
    PixelFormatTable table;
    table.source = "DescribePixelFormat";
    PIXELFORMATDESCRIPTOR pfd = {};
    const int count = DescribePixelFormat(dc, 1, sizeof(pfd), &pfd);
    for (int index = 1; index <= count; ++index)
    {
        if (!DescribePixelFormat(dc, index, sizeof(pfd), &pfd))
            continue;
        auto flag = [&](DWORD bit) { return (pfd.dwFlags & bit) ? 1 : 0; };
        // The ARB names for the same facts, so that both sources read alike;
        // acceleration as WGL_NO/GENERIC/FULL_ACCELERATION_ARB.
        const int acceleration = (pfd.dwFlags & PFD_GENERIC_FORMAT)
                                     ? ((pfd.dwFlags & PFD_GENERIC_ACCELERATED) ? 0x2026 : 0x2025)
                                     : 0x2027;
        table.formats.push_back({ index,
                                  { { "drawToWindow", flag(PFD_DRAW_TO_WINDOW) },
                                    { "drawToBitmap", flag(PFD_DRAW_TO_BITMAP) },
                                    { "acceleration", acceleration },
                                    { "supportOpenGL", flag(PFD_SUPPORT_OPENGL) },
                                    { "doubleBuffer", flag(PFD_DOUBLEBUFFER) },
                                    { "stereo", flag(PFD_STEREO) },
                                    { "pixelType", pfd.iPixelType == PFD_TYPE_RGBA ? 0x202B : 0x202C },
                                    { "colorBits", pfd.cColorBits },
                                    { "redBits", pfd.cRedBits },
                                    { "greenBits", pfd.cGreenBits },
                                    { "blueBits", pfd.cBlueBits },
                                    { "alphaBits", pfd.cAlphaBits },
                                    { "accumBits", pfd.cAccumBits },
                                    { "depthBits", pfd.cDepthBits },
                                    { "stencilBits", pfd.cStencilBits },
                                    { "auxBuffers", pfd.cAuxBuffers } } });
    }
    return table;
}

} // namespace

PixelFormatTable PixelFormatTable::read(HDC dc)
{
    int count = 0;
    if (!_wcgmGetPixelFormatAttribivARB ||
        !_wcgmGetPixelFormatAttribivARB(dc, 0, 0, 1, &WGL_NUMBER_PIXEL_FORMATS, &count) || count <= 0)
        return describeThroughGdi(dc);

    PixelFormatTable table;
    table.source = "wglGetPixelFormatAttribivARB";
    std::vector<int> attributes;
    for (ArbColumn const& column : kArbColumns)
        attributes.push_back(column.attribute);
    const int multisample[2] = { WGL_SAMPLE_BUFFERS, WGL_SAMPLES };
    for (int index = 1; index <= count; ++index)
    {
        std::vector<int> values(attributes.size());
        if (!_wcgmGetPixelFormatAttribivARB(dc, index, 0, static_cast<UINT>(attributes.size()), attributes.data(),
                                            values.data()))
            continue;
        Row row = { index, {} };
        for (size_t i = 0; i < attributes.size(); ++i)
            row.values.emplace_back(kArbColumns[i].key, values[i]);
        // Asked apart: a driver without WGL_ARB_multisample refuses the whole query.
        int samples[2] = { 0, 0 };
        if (!_wcgmGetPixelFormatAttribivARB(dc, index, 0, 2, multisample, samples))
            samples[0] = samples[1] = 0;
        row.values.emplace_back("sampleBuffers", samples[0]);
        row.values.emplace_back("samples", samples[1]);
        table.formats.push_back(row);
    }
    return table;
}
