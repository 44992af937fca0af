#include "oru_replay/Image.h"

#include <windows.h>

#include <GL/gl.h>

// stb's PNG writer and reader, compiled here and kept private to this file.
#define STB_IMAGE_WRITE_IMPLEMENTATION
#define STB_IMAGE_WRITE_STATIC
#include <stb/stb_image_write.h>
#define STB_IMAGE_IMPLEMENTATION
#define STB_IMAGE_STATIC
#define STBI_ONLY_PNG
#include <stb/stb_image.h>

#include <algorithm>
#include <cstring>

namespace Oru
{
namespace Replay
{

namespace
{

// PNG rows go top row first; ours are bottom-up, as glReadPixels returns them.
std::vector<unsigned char> flipRows(std::vector<unsigned char> const& rgba, unsigned int width, unsigned int height)
{
    const std::size_t stride = std::size_t(width) * 4;
    std::vector<unsigned char> flipped(rgba.size());
    for (unsigned int row = 0; row < height; ++row)
        std::memcpy(&flipped[(height - 1 - row) * stride], &rgba[row * stride], stride);
    return flipped;
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
    if (image.width == 0 || image.height == 0 || image.rgba.size() != std::size_t(image.width) * image.height * 4)
        return false;
    const std::vector<unsigned char> topDown = flipRows(image.rgba, image.width, image.height);
    return stbi_write_png(path.c_str(), static_cast<int>(image.width), static_cast<int>(image.height), 4,
                          topDown.data(), static_cast<int>(image.width * 4)) != 0;
}

bool readPng(std::string const& path, Image& image)
{
    int width = 0, height = 0, channels = 0;
    unsigned char* pixels = stbi_load(path.c_str(), &width, &height, &channels, 4);
    if (!pixels)
        return false;
    image.width = static_cast<unsigned int>(width);
    image.height = static_cast<unsigned int>(height);
    const std::vector<unsigned char> topDown(pixels, pixels + std::size_t(width) * height * 4);
    stbi_image_free(pixels);
    image.rgba = flipRows(topDown, image.width, image.height);
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
