#ifndef ORU_OGL_OGL_TEXTURETRANSFER_H
#define ORU_OGL_OGL_TEXTURETRANSFER_H

// What Texture1, Texture2 and Texture3 share: storage with its mip chain,
// uploads from memory and from pixel buffers, read-backs and copies, with
// their checks in one order and one wording. What differs by dimension is the
// number of axes and the GL function called; both live here. Private to the
// library.
//
// The checks report the file of the texture class and the lines it passes:
// a class whose lines callers match on passes a table of them, the others
// pass the line of the member (Lines::at(__LINE__)).

#include "oru_ogl/ogl/Texture.h"

#include <cstddef>

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

        /// Every check of the transfer reports the one line.
        static Lines at(int line);
    };

    /// file: the texture class's source, as __FILE__ gives it there.
    TextureTransfer(Texture const& texture, int dimensions, char const* file);

    /// Storage for level 0 and, with mipmaps, every level down to one texel;
    /// nearest filtering and edge clamping. The caller's texture stays bound.
    void allocate(bool mipmaps) const;
    /// One level from data, with the caller's unpack state; no mip chain.
    void allocate(int level, Texture::Format format, Texture::Type type, const void* data) const;

    std::size_t pixelDataSize(int line, Texture::Format format, Texture::Type type) const;

    void getPixelData(Lines const& lines, void* dst, int level, Texture::Format format, Texture::Type type,
                      unsigned int rowAlignment) const;
    void getPixelData(Lines const& lines, Buffer* pbo, std::size_t offset, int level, Texture::Format format,
                      Texture::Type type, unsigned int rowAlignment) const;

    void subImage(Lines const& lines, int level, Region const& region, Texture::Format format, Texture::Type type,
                  const void* data, const PixelUnpackParameters& unpack) const;
    void subImage(Lines const& lines, int level, Region const& region, Texture::Format format, Texture::Type type,
                  Buffer* pbo, std::size_t offset, const PixelUnpackParameters& unpack) const;

    /// Copies from the read buffer; region.x, y, z are where the pixels go.
    void copyTexSubImage(Lines const& lines, int level, Region const& region, int readX, int readY) const;

private:
    class PixelStoreScope;

    void checkRegion(Lines const& lines, char const* operation, int axes, int level, Region const& region) const;
    void texImage(int level, std::size_t const* size, unsigned int format, unsigned int type, const void* data) const;
    void texSubImage(int level, Region const& region, unsigned int format, unsigned int type, const void* pixels) const;
    void setStorageParameters() const;

    Texture const& texture_;
    int dimensions_;
    char const* file_;
};

} // namespace OGL
} // namespace Oru

#endif
