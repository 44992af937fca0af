#include "oru_replay/Image.h"

#include <windows.h>

#include <GL/gl.h>

#include <algorithm>
#include <cstdint>
#include <cstring>
#include <fstream>
#include <iterator>

namespace Oru
{
namespace Replay
{

namespace
{

const unsigned char kSignature[8] = { 0x89, 'P', 'N', 'G', '\r', '\n', 0x1A, '\n' };

std::uint32_t crc32(unsigned char const* bytes, std::size_t length, std::uint32_t crc = 0)
{
    static std::uint32_t table[256];
    static bool ready = false;
    if (!ready)
    {
        for (std::uint32_t n = 0; n < 256; ++n)
        {
            std::uint32_t c = n;
            for (int k = 0; k < 8; ++k)
                c = (c & 1) ? 0xEDB88320u ^ (c >> 1) : c >> 1;
            table[n] = c;
        }
        ready = true;
    }
    crc = ~crc;
    for (std::size_t i = 0; i < length; ++i)
        crc = table[(crc ^ bytes[i]) & 0xFF] ^ (crc >> 8);
    return ~crc;
}

void putBig32(std::vector<unsigned char>& out, std::uint32_t value)
{
    out.push_back(static_cast<unsigned char>(value >> 24));
    out.push_back(static_cast<unsigned char>(value >> 16));
    out.push_back(static_cast<unsigned char>(value >> 8));
    out.push_back(static_cast<unsigned char>(value));
}

std::uint32_t big32(unsigned char const* p)
{
    return (std::uint32_t(p[0]) << 24) | (std::uint32_t(p[1]) << 16) | (std::uint32_t(p[2]) << 8) | p[3];
}

void putChunk(std::ofstream& out, char const* type, std::vector<unsigned char> const& data)
{
    std::vector<unsigned char> chunk;
    putBig32(chunk, static_cast<std::uint32_t>(data.size()));
    chunk.insert(chunk.end(), type, type + 4);
    chunk.insert(chunk.end(), data.begin(), data.end());
    putBig32(chunk, crc32(chunk.data() + 4, chunk.size() - 4));
    out.write(reinterpret_cast<char const*>(chunk.data()), static_cast<std::streamsize>(chunk.size()));
}

// The PNG scanlines: a filter byte (none) and the row, top row first.
std::vector<unsigned char> scanlines(Image const& image)
{
    const std::size_t stride = std::size_t(image.width) * 4;
    std::vector<unsigned char> raw;
    raw.reserve((stride + 1) * image.height);
    for (unsigned int y = image.height; y-- > 0;)
    {
        raw.push_back(0);
        raw.insert(raw.end(), image.rgba.begin() + y * stride, image.rgba.begin() + (y + 1) * stride);
    }
    return raw;
}

} // namespace

Image readFramebuffer(unsigned int width, unsigned int height)
{
    Image image;
    image.width = width;
    image.height = height;
    image.rgba.assign(std::size_t(width) * height * 4, 0);
    glPushClientAttrib(GL_CLIENT_PIXEL_STORE_BIT);
    glPixelStorei(GL_PACK_ALIGNMENT, 1);
    glPixelStorei(GL_PACK_ROW_LENGTH, 0);
    glPixelStorei(GL_PACK_SKIP_ROWS, 0);
    glPixelStorei(GL_PACK_SKIP_PIXELS, 0);
    glPixelStorei(GL_PACK_SWAP_BYTES, GL_FALSE);
    glPixelStorei(GL_PACK_LSB_FIRST, GL_FALSE);
    glReadPixels(0, 0, static_cast<GLsizei>(width), static_cast<GLsizei>(height), GL_RGBA, GL_UNSIGNED_BYTE,
                 image.rgba.data());
    glPopClientAttrib();
    return image;
}

bool writePng(std::string const& path, Image const& image)
{
    std::ofstream out(path, std::ios::binary);
    if (!out)
        return false;
    out.write(reinterpret_cast<char const*>(kSignature), sizeof(kSignature));

    std::vector<unsigned char> header;
    putBig32(header, image.width);
    putBig32(header, image.height);
    const unsigned char rest[5] = { 8, 6, 0, 0, 0 }; // 8 bits, RGBA, deflate, no filter choice, not interlaced
    header.insert(header.end(), rest, rest + 5);
    putChunk(out, "IHDR", header);

    // A zlib stream of stored deflate blocks, then the Adler-32 of the data.
    const std::vector<unsigned char> raw = scanlines(image);
    std::vector<unsigned char> zlib = { 0x78, 0x01 };
    std::size_t done = 0;
    do
    {
        const std::size_t length = std::min<std::size_t>(65535, raw.size() - done);
        const bool last = done + length == raw.size();
        zlib.push_back(last ? 1 : 0);
        zlib.push_back(static_cast<unsigned char>(length));
        zlib.push_back(static_cast<unsigned char>(length >> 8));
        zlib.push_back(static_cast<unsigned char>(~length));
        zlib.push_back(static_cast<unsigned char>(~length >> 8));
        zlib.insert(zlib.end(), raw.begin() + done, raw.begin() + done + length);
        done += length;
    } while (done < raw.size());
    std::uint32_t a = 1, b = 0;
    for (unsigned char byte : raw)
    {
        a = (a + byte) % 65521;
        b = (b + a) % 65521;
    }
    putBig32(zlib, (b << 16) | a);
    putChunk(out, "IDAT", zlib);
    putChunk(out, "IEND", {});
    return bool(out);
}

bool readPng(std::string const& path, Image& image)
{
    std::ifstream in(path, std::ios::binary);
    const std::vector<unsigned char> file((std::istreambuf_iterator<char>(in)), std::istreambuf_iterator<char>());
    if (file.size() < 8 || std::memcmp(file.data(), kSignature, 8) != 0)
        return false;
    std::vector<unsigned char> zlib;
    bool header = false;
    for (std::size_t at = 8; at + 12 <= file.size();)
    {
        const std::uint32_t length = big32(&file[at]);
        if (at + 12 + length > file.size() || crc32(&file[at + 4], length + 4) != big32(&file[at + 8 + length]))
            return false;
        unsigned char const* data = &file[at + 8];
        const std::string type(reinterpret_cast<char const*>(&file[at + 4]), 4);
        if (type == "IHDR")
        {
            if (length != 13 || data[8] != 8 || data[9] != 6 || data[12] != 0)
                return false;
            image.width = big32(data);
            image.height = big32(data + 4);
            header = true;
        }
        else if (type == "IDAT")
            zlib.insert(zlib.end(), data, data + length);
        at += 12 + length;
    }
    if (!header || zlib.size() < 2)
        return false;

    std::vector<unsigned char> raw;
    std::size_t at = 2;
    for (bool last = false; !last;)
    {
        if (at + 5 > zlib.size() || (zlib[at] & 0x06) != 0)
            return false; // only stored blocks
        last = zlib[at] & 1;
        const std::size_t length = zlib[at + 1] | (zlib[at + 2] << 8);
        at += 5;
        if (at + length > zlib.size())
            return false;
        raw.insert(raw.end(), zlib.begin() + at, zlib.begin() + at + length);
        at += length;
    }
    const std::size_t stride = std::size_t(image.width) * 4;
    if (raw.size() != (stride + 1) * image.height)
        return false;
    image.rgba.assign(stride * image.height, 0);
    for (unsigned int row = 0; row < image.height; ++row)
    {
        if (raw[row * (stride + 1)] != 0)
            return false; // only unfiltered rows
        std::memcpy(&image.rgba[(image.height - 1 - row) * stride], &raw[row * (stride + 1) + 1], stride);
    }
    return true;
}

unsigned long long differingPixels(Image const& a, Image const& b)
{
    if (a.width != b.width || a.height != b.height || a.rgba.size() != b.rgba.size())
        return std::max<unsigned long long>(std::size_t(a.width) * a.height, std::size_t(b.width) * b.height);
    unsigned long long count = 0;
    for (std::size_t p = 0; p < a.rgba.size(); p += 4)
        count += std::memcmp(&a.rgba[p], &b.rgba[p], 4) != 0;
    return count;
}

} // namespace Replay
} // namespace Oru
