#include "oru_ogl/extensionator/CaptureCall.h"

#include "oru_ogl/extensionator/EntryPoints.h"

#include <algorithm>
#include <array>
#include <cstring>
#include <limits>
#include <string>
#include <vector>

namespace Oru
{
namespace OGL
{
namespace detail
{

using namespace capture;
using Row = PointerParameter;

namespace
{

constexpr unsigned int kMaxParameters = 16;

// The catalogue's rows by operation number and parameter index, made once.
std::vector<std::array<Row const*, kMaxParameters>> const& rowTable()
{
    static const std::vector<std::array<Row const*, kMaxParameters>> table = [] {
        std::vector<std::array<Row const*, kMaxParameters>> rows(kOperationCount);
        for (Row const* row = PointerSizes::begin(); row != PointerSizes::end(); ++row)
        {
            const std::string name(row->operation);
            unsigned int operation = kOperationCount;
            if (name.compare(0, 3, "cgm") == 0)
                operation = operationNumber(("gl" + name.substr(3)).c_str());
            else if (name.compare(0, 4, "wcgm") == 0)
            {
                operation = operationNumber(("wgl" + name.substr(4)).c_str());
                if (operation == kOperationCount)
                    operation = operationNumber(name.substr(4).c_str());
            }
            if (operation < kOperationCount && row->index < kMaxParameters)
                rows[operation][row->index] = row;
        }
        return rows;
    }();
    return table;
}

GLenum bindingQuery(Row::Binding binding)
{
    switch (binding)
    {
    case Row::Binding::PixelUnpackBuffer: return GL_PIXEL_UNPACK_BUFFER_BINDING;
    case Row::Binding::PixelPackBuffer: return GL_PIXEL_PACK_BUFFER_BINDING;
    case Row::Binding::ArrayBuffer: return GL_ARRAY_BUFFER_BINDING;
    case Row::Binding::ElementArrayBuffer: return GL_ELEMENT_ARRAY_BUFFER_BINDING;
    case Row::Binding::None: break;
    }
    return 0;
}

bool isImage(Row::Rule rule)
{
    return rule == Row::Rule::Image1D || rule == Row::Rule::Image2D || rule == Row::Rule::Image3D;
}

GLint integer(GLenum query)
{
    GLint value = 0;
    glGetIntegerv(query, &value);
    return value;
}

// One vertex array in client memory, as a draw reads it.
struct ClientArray
{
    ArrayKind kind;
    unsigned int unit;
    GLint size;
    GLenum type;
    GLint stride;
    GLboolean normalized;
    void const* pointer;
};

// The fixed-function arrays: what to ask GL about each.
struct FixedArray
{
    ArrayKind kind;
    GLenum array, pointer, size, type, stride, binding;
    GLint fixedSize;
    GLenum fixedType;
    bool needsFogAndSecondary;
};

const FixedArray kFixedArrays[] = {
    { ArrayKind::Vertex, GL_VERTEX_ARRAY, GL_VERTEX_ARRAY_POINTER, GL_VERTEX_ARRAY_SIZE, GL_VERTEX_ARRAY_TYPE,
      GL_VERTEX_ARRAY_STRIDE, GL_VERTEX_ARRAY_BUFFER_BINDING, 0, 0, false },
    { ArrayKind::Normal, GL_NORMAL_ARRAY, GL_NORMAL_ARRAY_POINTER, 0, GL_NORMAL_ARRAY_TYPE, GL_NORMAL_ARRAY_STRIDE,
      GL_NORMAL_ARRAY_BUFFER_BINDING, 3, 0, false },
    { ArrayKind::Color, GL_COLOR_ARRAY, GL_COLOR_ARRAY_POINTER, GL_COLOR_ARRAY_SIZE, GL_COLOR_ARRAY_TYPE,
      GL_COLOR_ARRAY_STRIDE, GL_COLOR_ARRAY_BUFFER_BINDING, 0, 0, false },
    { ArrayKind::Index, GL_INDEX_ARRAY, GL_INDEX_ARRAY_POINTER, 0, GL_INDEX_ARRAY_TYPE, GL_INDEX_ARRAY_STRIDE,
      GL_INDEX_ARRAY_BUFFER_BINDING, 1, 0, false },
    { ArrayKind::EdgeFlag, GL_EDGE_FLAG_ARRAY, GL_EDGE_FLAG_ARRAY_POINTER, 0, 0, GL_EDGE_FLAG_ARRAY_STRIDE,
      GL_EDGE_FLAG_ARRAY_BUFFER_BINDING, 1, GL_UNSIGNED_BYTE, false },
    { ArrayKind::FogCoord, GL_FOG_COORD_ARRAY, GL_FOG_COORD_ARRAY_POINTER, 0, GL_FOG_COORD_ARRAY_TYPE,
      GL_FOG_COORD_ARRAY_STRIDE, GL_FOG_COORD_ARRAY_BUFFER_BINDING, 1, 0, true },
    { ArrayKind::SecondaryColor, GL_SECONDARY_COLOR_ARRAY, GL_SECONDARY_COLOR_ARRAY_POINTER,
      GL_SECONDARY_COLOR_ARRAY_SIZE, GL_SECONDARY_COLOR_ARRAY_TYPE, GL_SECONDARY_COLOR_ARRAY_STRIDE,
      GL_SECONDARY_COLOR_ARRAY_BUFFER_BINDING, 0, 0, true },
};

// Adds the array when it is enabled and reads client memory.
void addFixed(FixedArray const& array, unsigned int unit, ContextFeatures const& features,
              std::vector<ClientArray>& arrays)
{
    if (!glIsEnabled(array.array))
        return;
    if (features.buffers && integer(array.binding) != 0)
        return;
    GLvoid* pointer = nullptr;
    glGetPointerv(array.pointer, &pointer);
    if (!pointer)
        return;
    arrays.push_back(ClientArray{ array.kind, unit, array.size ? integer(array.size) : array.fixedSize,
                                  array.type ? static_cast<GLenum>(integer(array.type)) : array.fixedType,
                                  integer(array.stride), GL_FALSE, pointer });
}

std::vector<ClientArray> clientArrays(ContextFeatures const& features)
{
    std::vector<ClientArray> arrays;
    for (FixedArray const& array : kFixedArrays)
        if (!array.needsFogAndSecondary || features.fogAndSecondary)
            addFixed(array, 0, features, arrays);
    const FixedArray texCoord = { ArrayKind::TexCoord, GL_TEXTURE_COORD_ARRAY, GL_TEXTURE_COORD_ARRAY_POINTER,
                                  GL_TEXTURE_COORD_ARRAY_SIZE, GL_TEXTURE_COORD_ARRAY_TYPE,
                                  GL_TEXTURE_COORD_ARRAY_STRIDE, GL_TEXTURE_COORD_ARRAY_BUFFER_BINDING, 0, 0, false };
    if (features.multitexture && _cgmClientActiveTexture)
    {
        const GLint active = integer(GL_CLIENT_ACTIVE_TEXTURE);
        for (int unit = 0; unit < features.textureCoordUnits; ++unit)
        {
            _cgmClientActiveTexture(GL_TEXTURE0 + unit);
            addFixed(texCoord, static_cast<unsigned int>(unit), features, arrays);
        }
        _cgmClientActiveTexture(static_cast<GLenum>(active));
    }
    else
        addFixed(texCoord, 0, features, arrays);

    for (int index = 0; index < features.vertexAttributes; ++index)
    {
        const auto attribute = static_cast<GLuint>(index);
        auto const value = [attribute](GLenum query) {
            GLint result = 0;
            _cgmGetVertexAttribiv(attribute, query, &result);
            return result;
        };
        if (!value(GL_VERTEX_ATTRIB_ARRAY_ENABLED) || value(GL_VERTEX_ATTRIB_ARRAY_BUFFER_BINDING))
            continue;
        GLvoid* pointer = nullptr;
        _cgmGetVertexAttribPointerv(attribute, GL_VERTEX_ATTRIB_ARRAY_POINTER, &pointer);
        if (pointer)
            arrays.push_back(ClientArray{ ArrayKind::Attribute, attribute, value(GL_VERTEX_ATTRIB_ARRAY_SIZE),
                                          static_cast<GLenum>(value(GL_VERTEX_ATTRIB_ARRAY_TYPE)),
                                          value(GL_VERTEX_ATTRIB_ARRAY_STRIDE),
                                          static_cast<GLboolean>(value(GL_VERTEX_ATTRIB_ARRAY_NORMALIZED)),
                                          pointer });
    }
    return arrays;
}

template <class Index>
void scan(Index const* indices, long long count, long long& first, long long& last)
{
    for (long long i = 0; i < count; ++i)
    {
        first = std::min<long long>(first, indices[i]);
        last = std::max<long long>(last, indices[i]);
    }
}

} // namespace

PointerArguments::PointerArguments(CaptureStream& stream, unsigned int operation, long long const* values)
    : stream_(stream), rows_(rows(operation)), values_(values),
      generates_(std::strncmp(operationName(operation), "glGen", 5) == 0)
{
}

PointerParameter const* const* PointerArguments::rows(unsigned int operation)
{
    return rowTable()[operation].data();
}

CaptureStream::ContextState& PointerArguments::context()
{
    if (!context_)
        context_ = &stream_.context();
    return *context_;
}

void PointerArguments::pointer(unsigned int index, void const* data)
{
    CaptureWriter& writer = stream_.writer();
    const auto address = static_cast<std::uint64_t>(reinterpret_cast<std::uintptr_t>(data));
    Row const* row = index < kMaxParameters ? rows_[index] : nullptr;
    auto const kind = [&writer](PointerKind k) { writer.put(static_cast<std::uint8_t>(k)); };
    if (!data)
        return kind(PointerKind::Null);
    if (!row)
    {
        kind(PointerKind::Unsized);
        return writer.put(address);
    }
    if (row->binding != Row::Binding::None && GLStateProbe::boundBuffer(context().features, bindingQuery(row->binding)))
    {
        kind(PointerKind::Address); // an offset into the bound buffer
        return writer.put(address);
    }
    if (row->when == Row::When::Draw)
    {
        // Client memory that draws read later: captured at each draw.
        if (row->binding == Row::Binding::ArrayBuffer)
            context().clientArrays = true;
        kind(PointerKind::Address);
        return writer.put(address);
    }
    if (row->rule == Row::Rule::Strings)
        return strings(*row, data);

    std::size_t bytes = kUnknownBytes;
    if (row->rule == Row::Rule::String)
        bytes = std::strlen(static_cast<char const*>(data)) + 1;
    else
    {
        const PixelStore store =
            isImage(row->rule) ? GLStateProbe::pixelStore(row->direction == Row::Direction::Out) : PixelStore();
        bytes = PointerSizes::bytes(*row, values_, store);
    }
    if (bytes == kUnknownBytes)
    {
        kind(PointerKind::Unsized);
        return writer.put(address);
    }
    if (row->direction == Row::Direction::Out)
    {
        const bool keep = generates_ && keptCount_ < kMaxKept;
        kind(keep ? PointerKind::OutputKept : PointerKind::Output);
        writer.put(address);
        writer.put(static_cast<std::uint64_t>(bytes));
        if (keep)
        {
            kept_[keptCount_] = data;
            keptLength_[keptCount_++] = bytes;
        }
        return;
    }
    kind(PointerKind::Data);
    writer.put(address);
    writer.put(static_cast<std::uint64_t>(bytes));
    writer.put(data, bytes);
}

// glShaderSource: count strings, each of lengths[i] characters or up to its zero.
void PointerArguments::strings(PointerParameter const& row, void const* data)
{
    CaptureWriter& writer = stream_.writer();
    const long long count = row.arguments[0].isParameter ? values_[row.arguments[0].value] : row.arguments[0].value;
    auto const* lengths = reinterpret_cast<GLint const*>(static_cast<std::uintptr_t>(values_[row.arguments[1].value]));
    auto const* texts = static_cast<GLchar const* const*>(data);
    writer.put(static_cast<std::uint8_t>(PointerKind::Strings));
    writer.put(static_cast<std::uint64_t>(reinterpret_cast<std::uintptr_t>(data)));
    writer.put(static_cast<std::uint32_t>(count));
    for (long long i = 0; i < count; ++i)
    {
        const std::size_t length = lengths && lengths[i] >= 0 ? static_cast<std::size_t>(lengths[i])
                                                              : std::strlen(texts[i]);
        writer.put(static_cast<std::uint64_t>(length));
        writer.put(texts[i], length);
    }
}

void PointerArguments::putKept()
{
    for (int i = 0; i < keptCount_; ++i)
        stream_.writer().put(kept_[i], keptLength_[i]);
}

void beforeUnmap(CaptureStream& stream, GLenum target)
{
    stream.lock();
    CaptureStream::ContextState& state = stream.context();
    auto const mapping = state.mappings.find(target);
    if (mapping != state.mappings.end())
    {
        if (mapping->second.access != GL_READ_ONLY && mapping->second.pointer)
        {
            stream.openControl(kBufferContents);
            CaptureWriter& writer = stream.writer();
            writer.put(static_cast<std::uint32_t>(target));
            writer.put(std::uint64_t(0));
            writer.put(mapping->second.length);
            writer.put(mapping->second.pointer, mapping->second.length);
        }
        state.mappings.erase(mapping);
    }
    stream.unlock();
}

void afterMap(CaptureStream& stream, GLenum target, GLenum access, void* pointer)
{
    if (!pointer || !_cgmGetBufferParameteriv)
        return;
    GLint size = 0;
    _cgmGetBufferParameteriv(target, GL_BUFFER_SIZE, &size);
    stream.lock();
    stream.context().mappings[target] = CaptureStream::ContextState::Mapping{ pointer, std::uint64_t(size), access };
    stream.unlock();
}

bool indexRange(CaptureStream::ContextState& state, long long count, GLenum type, void const* indices,
                long long& first, long long& last)
{
    const std::size_t size = PointerSizes::typeSize(type);
    if (count <= 0 || !size)
        return false;
    std::vector<unsigned char> copy;
    unsigned char const* bytes = static_cast<unsigned char const*>(indices);
    if (GLStateProbe::boundBuffer(state.features, GL_ELEMENT_ARRAY_BUFFER_BINDING))
    {
        copy.resize(static_cast<std::size_t>(count) * size);
        _cgmGetBufferSubData(GL_ELEMENT_ARRAY_BUFFER, static_cast<GLintptr>(reinterpret_cast<std::uintptr_t>(indices)),
                             static_cast<GLsizeiptr>(copy.size()), copy.data());
        bytes = copy.data();
    }
    if (!bytes)
        return false;
    first = std::numeric_limits<long long>::max();
    last = -1;
    if (type == GL_UNSIGNED_BYTE)
        scan(bytes, count, first, last);
    else if (type == GL_UNSIGNED_SHORT)
        scan(reinterpret_cast<GLushort const*>(bytes), count, first, last);
    else
        scan(reinterpret_cast<GLuint const*>(bytes), count, first, last);
    return last >= first;
}

void multiRange(GLint const* firsts, GLsizei const* counts, GLsizei draws, long long& first, long long& last)
{
    first = std::numeric_limits<long long>::max();
    last = -1;
    for (GLsizei i = 0; firsts && counts && i < draws; ++i)
        if (counts[i] > 0)
        {
            first = std::min<long long>(first, firsts[i]);
            last = std::max<long long>(last, firsts[i] + counts[i] - 1);
        }
}

void drawnArrays(CaptureStream& stream, CaptureStream::ContextState& state, long long first, long long last)
{
    CaptureWriter& writer = stream.writer();
    for (ClientArray const& array : clientArrays(state.features))
    {
        const long long components = array.size == GL_BGRA ? 4 : array.size;
        const long long element = components * static_cast<long long>(PointerSizes::typeSize(array.type));
        const long long stride = array.stride ? array.stride : element;
        if (element <= 0)
            continue;
        const auto begin = static_cast<std::uint64_t>(first * stride);
        const auto length = static_cast<std::uint64_t>((last - first) * stride + element);
        stream.openControl(kClientArray);
        writer.put(static_cast<std::uint8_t>(array.kind));
        writer.put(static_cast<std::uint32_t>(array.unit));
        writer.put(static_cast<std::int32_t>(array.size));
        writer.put(static_cast<std::uint32_t>(array.type));
        writer.put(static_cast<std::int32_t>(array.stride));
        writer.put(static_cast<std::uint8_t>(array.normalized));
        writer.put(begin);
        writer.put(length);
        writer.put(static_cast<char const*>(array.pointer) + begin, length);
    }
}

} // namespace detail
} // namespace OGL
} // namespace Oru
