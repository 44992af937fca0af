#include "oru_ogl/extensionator/PointerSizes.h"

#include "oru_ogl/extensionator/GLTypes.h"

#include <cstring>

namespace Oru
{
namespace OGL
{

namespace
{

using D = PointerParameter::Direction;
using W = PointerParameter::When;
using B = PointerParameter::Binding;
using R = PointerParameter::Rule;

#define ORU_ARGUMENT(i) { true, i }
#define ORU_CONSTANT(v) { false, v }
#define ORU_NONE { false, 0 }
#define ORU_POINTER_PARAMETER(operation, index, elementSize, direction, when, binding, rule, count, a0, a1, a2, a3, a4) \
    { #operation, index, elementSize, D::direction, W::when, B::binding, R::rule, count, { a0, a1, a2, a3, a4 } },

const PointerParameter kParameters[] = {
#include "oru_ogl/extensionator/PointerParameters.inc"
};

#undef ORU_POINTER_PARAMETER
#undef ORU_NONE
#undef ORU_CONSTANT
#undef ORU_ARGUMENT

struct EnumCount
{
    unsigned int value;
    int count;
};

// Pnames (glGet*, glLight*, glTexParameter*, ...) and glMap targets; a count
// of 0 stands for values that depend on other state.
const EnumCount kValues[] = {
#define ORU_ENUM_COUNT(table, value, count) ORU_ENUM_COUNT_##table(value, count)
#define ORU_ENUM_COUNT_Values(value, count) { value, count },
#define ORU_ENUM_COUNT_Maps(value, count)
#include "oru_ogl/extensionator/EnumCounts.inc"
#undef ORU_ENUM_COUNT_Maps
#undef ORU_ENUM_COUNT_Values
};
const EnumCount kMaps[] = {
#define ORU_ENUM_COUNT_Values(value, count)
#define ORU_ENUM_COUNT_Maps(value, count) { value, count },
#include "oru_ogl/extensionator/EnumCounts.inc"
#undef ORU_ENUM_COUNT_Maps
#undef ORU_ENUM_COUNT_Values
#undef ORU_ENUM_COUNT
};

template <std::size_t N>
int lookUp(EnumCount const (&table)[N], unsigned int value)
{
    for (EnumCount const& entry : table)
        if (entry.value == value)
            return entry.count;
    return 0;
}

struct PixelType
{
    unsigned int value;
    std::size_t bytes;
    bool packed;  // one value holds the whole pixel
};

const PixelType kTypes[] = {
    { 0x1400, 1, false },  // GL_BYTE
    { 0x1401, 1, false },  // GL_UNSIGNED_BYTE
    { 0x1402, 2, false },  // GL_SHORT
    { 0x1403, 2, false },  // GL_UNSIGNED_SHORT
    { 0x1404, 4, false },  // GL_INT
    { 0x1405, 4, false },  // GL_UNSIGNED_INT
    { 0x1406, 4, false },  // GL_FLOAT
    { 0x1407, 2, false },  // GL_2_BYTES
    { 0x1408, 3, false },  // GL_3_BYTES
    { 0x1409, 4, false },  // GL_4_BYTES
    { 0x140A, 8, false },  // GL_DOUBLE
    { 0x140B, 2, false },  // GL_HALF_FLOAT_ARB
    { 0x8032, 1, true },   // GL_UNSIGNED_BYTE_3_3_2
    { 0x8033, 2, true },   // GL_UNSIGNED_SHORT_4_4_4_4
    { 0x8034, 2, true },   // GL_UNSIGNED_SHORT_5_5_5_1
    { 0x8035, 4, true },   // GL_UNSIGNED_INT_8_8_8_8
    { 0x8036, 4, true },   // GL_UNSIGNED_INT_10_10_10_2
    { 0x8362, 1, true },   // GL_UNSIGNED_BYTE_2_3_3_REV
    { 0x8363, 2, true },   // GL_UNSIGNED_SHORT_5_6_5
    { 0x8364, 2, true },   // GL_UNSIGNED_SHORT_5_6_5_REV
    { 0x8365, 2, true },   // GL_UNSIGNED_SHORT_4_4_4_4_REV
    { 0x8366, 2, true },   // GL_UNSIGNED_SHORT_1_5_5_5_REV
    { 0x8367, 4, true },   // GL_UNSIGNED_INT_8_8_8_8_REV
    { 0x8368, 4, true },   // GL_UNSIGNED_INT_2_10_10_10_REV
    { 0x84FA, 4, true },   // GL_UNSIGNED_INT_24_8_EXT
    { 0x8C3B, 4, true },   // GL_UNSIGNED_INT_10F_11F_11F_REV_EXT
    { 0x8C3E, 4, true },   // GL_UNSIGNED_INT_5_9_9_9_REV_EXT
};
const unsigned int kBitmap = 0x1A00;  // GL_BITMAP: one bit per pixel

const EnumCount kFormatComponents[] = {
    { 0x1900, 1 },  // GL_COLOR_INDEX
    { 0x1901, 1 },  // GL_STENCIL_INDEX
    { 0x1902, 1 },  // GL_DEPTH_COMPONENT
    { 0x1903, 1 },  // GL_RED
    { 0x1904, 1 },  // GL_GREEN
    { 0x1905, 1 },  // GL_BLUE
    { 0x1906, 1 },  // GL_ALPHA
    { 0x1907, 3 },  // GL_RGB
    { 0x1908, 4 },  // GL_RGBA
    { 0x1909, 1 },  // GL_LUMINANCE
    { 0x190A, 2 },  // GL_LUMINANCE_ALPHA
    { 0x8000, 4 },  // GL_ABGR_EXT
    { 0x800C, 4 },  // GL_CMYK_EXT
    { 0x800D, 5 },  // GL_CMYKA_EXT
    { 0x80E0, 3 },  // GL_BGR
    { 0x80E1, 4 },  // GL_BGRA
    { 0x84F9, 1 },  // GL_DEPTH_STENCIL_EXT
    { 0x8D94, 1 },  // GL_RED_INTEGER_EXT
    { 0x8D95, 1 },  // GL_GREEN_INTEGER_EXT
    { 0x8D96, 1 },  // GL_BLUE_INTEGER_EXT
    { 0x8D97, 1 },  // GL_ALPHA_INTEGER_EXT
    { 0x8D98, 3 },  // GL_RGB_INTEGER_EXT
    { 0x8D99, 4 },  // GL_RGBA_INTEGER_EXT
    { 0x8D9A, 3 },  // GL_BGR_INTEGER_EXT
    { 0x8D9B, 4 },  // GL_BGRA_INTEGER_EXT
    { 0x8D9C, 1 },  // GL_LUMINANCE_INTEGER_EXT
    { 0x8D9D, 2 },  // GL_LUMINANCE_ALPHA_INTEGER_EXT
};

PixelType const* pixelType(unsigned int type)
{
    for (PixelType const& entry : kTypes)
        if (entry.value == type)
            return &entry;
    return nullptr;
}

long long roundUp(long long bytes, long long alignment)
{
    return (bytes + alignment - 1) / alignment * alignment;
}

} // namespace

PointerParameter const* PointerSizes::begin()
{
    return kParameters;
}

PointerParameter const* PointerSizes::end()
{
    return kParameters + sizeof(kParameters) / sizeof(kParameters[0]);
}

PointerParameter const* PointerSizes::find(char const* operation, unsigned int index)
{
    for (PointerParameter const* p = begin(); p != end(); ++p)
        if (p->index == index && std::strcmp(p->operation, operation) == 0)
            return p;
    return nullptr;
}

int PointerSizes::values(unsigned int pname)
{
    return lookUp(kValues, pname);
}

int PointerSizes::mapValues(unsigned int target)
{
    return lookUp(kMaps, target);
}

std::size_t PointerSizes::typeSize(unsigned int type)
{
    PixelType const* entry = pixelType(type);
    return entry ? entry->bytes : 0;
}

// From the pointer to the last byte GL touches: the skipped pixels, rows and
// images come first; every row but the last is padded to the alignment, the
// last ends with its last pixel. Row length and image height replace the
// width and height as strides when set. Skipped rows do not apply to 1D
// images, skipped images and image height only to 3D ones. A bitmap row
// holds one bit per pixel and its skipped pixels are bits.
std::size_t PointerSizes::image(int dimensions, long long width, long long height, long long depth,
                                unsigned int format, unsigned int type, PixelStore const& store)
{
    if (width <= 0 || height <= 0 || depth <= 0)
        return 0;
    const long long alignment = store.alignment > 0 ? store.alignment : 1;
    const long long rowPixels = store.rowLength > 0 ? store.rowLength : width;
    const long long skipRows = dimensions >= 2 ? store.skipRows : 0;
    long long rowBytes, skipBytes, lastRowBytes;
    if (type == kBitmap)
    {
        rowBytes = roundUp((rowPixels + 7) / 8, alignment);
        skipBytes = store.skipPixels / 8;
        lastRowBytes = (store.skipPixels % 8 + width + 7) / 8;
    }
    else
    {
        PixelType const* pixel = pixelType(type);
        const int components = lookUp(kFormatComponents, format);
        if (!pixel || components == 0)
            return kUnknownBytes;
        const long long pixelBytes = static_cast<long long>(pixel->bytes) * (pixel->packed ? 1 : components);
        rowBytes = roundUp(pixelBytes * rowPixels, alignment);
        skipBytes = store.skipPixels * pixelBytes;
        lastRowBytes = width * pixelBytes;
    }
    const long long imageRows = dimensions == 3 && store.imageHeight > 0 ? store.imageHeight : height;
    const long long skipImages = dimensions == 3 ? store.skipImages : 0;
    const long long imageBytes = imageRows * rowBytes;
    return static_cast<std::size_t>(skipImages * imageBytes + skipRows * rowBytes + skipBytes +
                                    (depth - 1) * imageBytes + (height - 1) * rowBytes + lastRowBytes);
}

std::size_t PointerSizes::bytes(PointerParameter const& parameter, long long const* call, PixelStore const& store)
{
    long long a[PointerParameter::kMaxArguments] = {};
    for (int i = 0; i < parameter.argumentCount; ++i)
    {
        PointerParameter::Argument const& argument = parameter.arguments[i];
        a[i] = argument.isParameter ? call[argument.value] : argument.value;
    }
    const auto elements = [&](long long count) {
        return count <= 0 ? std::size_t(0) : static_cast<std::size_t>(count) * parameter.elementSize;
    };
    switch (parameter.rule)
    {
    case R::Count:
    {
        long long count = 1;
        for (int i = 0; i < parameter.argumentCount; ++i)
            count *= a[i];
        return elements(count);
    }
    case R::Values:
    {
        const int count = values(static_cast<unsigned int>(a[0]));
        return count == 0 ? kUnknownBytes : elements(count);
    }
    case R::Typed:
    {
        const std::size_t size = typeSize(static_cast<unsigned int>(a[1]));
        return size == 0 ? kUnknownBytes : (a[0] <= 0 ? 0 : static_cast<std::size_t>(a[0]) * size);
    }
    case R::Image1D:
        return image(1, a[0], 1, 1, static_cast<unsigned int>(a[1]), static_cast<unsigned int>(a[2]), store);
    case R::Image2D:
        return image(2, a[0], a[1], 1, static_cast<unsigned int>(a[2]), static_cast<unsigned int>(a[3]), store);
    case R::Image3D:
        return image(3, a[0], a[1], a[2], static_cast<unsigned int>(a[3]), static_cast<unsigned int>(a[4]), store);
    case R::Map1:
    case R::Map2:
    {
        // The last control point's values, after order - 1 strides along each direction.
        const int k = mapValues(static_cast<unsigned int>(a[0]));
        if (k == 0)
            return kUnknownBytes;
        long long span = k;
        for (int i = 1; i + 1 < parameter.argumentCount; i += 2)
        {
            if (a[i + 1] < 1)
                return 0;
            span += (a[i + 1] - 1) * a[i];
        }
        return elements(span);
    }
    default:
        return kUnknownBytes;
    }
}

} // namespace OGL
} // namespace Oru
