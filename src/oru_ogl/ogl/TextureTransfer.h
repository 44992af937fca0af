#ifndef ORU_OGL_OGL_TEXTURETRANSFER_H
#define ORU_OGL_OGL_TEXTURETRANSFER_H

// What Texture1, Texture2 and Texture3 share: storage with its mip chain,
// uploads from memory and from pixel buffers, read-backs and copies, with
// their checks in one order and one wording. What differs by dimension is the
// number of axes and the GL function called; both live here. Private to the
// library.
//
// The checks report the file of the texture class and the line of the member
// that made the transfer, or, for a class whose lines callers match on, the
// lines of its table. With checked wrappers on, each operation ends with the
// GL error check, naming the member ("Texture2::subImage").

#include "oru_ogl/ogl/Texture.h"

#include <cstddef>
#include <string>

namespace Oru
{
namespace OGL
{

class Buffer;
class PixelUnpackParameters;

class TextureTransfer
{
public:
    /// A region of a level: offsets and sizes along x, y, z. Axes the texture
    /// lacks have offset 0 and size 1.
    struct Region
    {
        int x, y, z;
        std::size_t width, height, depth;
    };

    /// The lines one transfer's checks report, in the order they run. Only
    /// the fields a transfer checks are read; 0 stands for one it does not.
    struct Lines
    {
        int zero[3];   // a zero width, height, depth
        int level;     // a negative level
        int larger[3]; // a size larger than the texture's level 0
        int offset;    // a pixel buffer offset at or past its end
        int mapped;    // a mapped pixel buffer
        int unbound;   // a read-back of a texture that is not bound
        int colorIndex; // a read-back as COLOR_INDEX
    };

    /// file and line: the member's, as __FILE__ and __LINE__ give them there.
    TextureTransfer(Texture const& texture, int dimensions, char const* file, int line);

    /// Storage for level 0 and, with mipmaps, every level down to one texel;
    /// nearest filtering and edge clamping. The caller's texture stays bound.
    void allocate(bool mipmaps) const;
    /// One level from data, with the caller's unpack state; no mip chain.
    void allocate(int level, Texture::Format format, Texture::Type type, const void* data) const;

    /// Without a table of lines, the checks report the member's line.
    std::size_t pixelDataSize(Texture::Format format, Texture::Type type) const;

    void getPixelData(void* dst, int level, Texture::Format format, Texture::Type type, unsigned int rowAlignment,
                      Lines const* lines = nullptr) const;
    void getPixelData(Buffer* pbo, std::size_t offset, int level, Texture::Format format, Texture::Type type,
                      unsigned int rowAlignment, Lines const* lines = nullptr) const;

    void subImage(int level, Region const& region, Texture::Format format, Texture::Type type, const void* data,
                  const PixelUnpackParameters& unpack, Lines const* lines = nullptr) const;
    void subImage(int level, Region const& region, Texture::Format format, Texture::Type type, Buffer* pbo,
                  std::size_t offset, const PixelUnpackParameters& unpack, Lines const* lines = nullptr) const;

    /// Copies from the read buffer; region.x, y, z are where the pixels go.
    void copyTexSubImage(int level, Region const& region, int readX, int readY, Lines const* lines = nullptr) const;

private:
    class PixelStoreScope;

    void checkRegion(Lines const* lines, char const* operation, int axes, int level, Region const& region) const;
    [[noreturn]] void raise(int line, std::string const& text) const;
    void checkGL(char const* member) const;
    void texImage(int level, std::size_t const* size, unsigned int format, unsigned int type, const void* data) const;
    void texSubImage(int level, Region const& region, unsigned int format, unsigned int type, const void* pixels) const;
    void setStorageParameters() const;

    Texture const& texture_;
    int dimensions_;
    char const* file_;
    int line_;
};

} // namespace OGL
} // namespace Oru

#endif
