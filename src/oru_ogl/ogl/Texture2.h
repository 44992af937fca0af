#ifndef ORU_OGL_OGL_TEXTURE2_H
#define ORU_OGL_OGL_TEXTURE2_H

#include "oru_ogl/OglExport.h"
#include "oru_ogl/ogl/Texture.h"

#include <cstddef>

namespace Oru
{
namespace OGL
{

class Buffer;
class PixelUnpackParameters;

/// A two-dimensional texture: storage, sub-image upload from memory or from a
/// pixel buffer object, read-back into memory or into a pixel buffer object,
/// and copies from the read buffer. Sizes are checked against the level-0
/// image. Uploads and copies act on the texture bound to the target of the
/// active unit, which the caller binds; read-backs refuse an unbound texture.
class ORU_OGL_API Texture2 : public Texture
{
public:
    virtual ~Texture2();

    /// Refuses while the texture is not bound.
    void setWrap(WrapMode s, WrapMode t);

    /// Bytes of the level-0 image in the format and type (level is not used).
    std::size_t pixelDataSize(int level, Format format, Type type) const;

    /// rowAlignment is the pack alignment of the rows written: 1, 2, 4 or 8.
    void getPixelData(void* dst, int level, Format format, Type type, unsigned int rowAlignment) const;
    /// Writes at offset into the buffer, which becomes a pack buffer.
    void getPixelData(Buffer* pbo, std::size_t offset, int level, Format format, Type type,
                      unsigned int rowAlignment) const;

    /// Uploads a rectangle of a level from memory.
    void subImage(int level, int x, int y, std::size_t width, std::size_t height, Format format, Type type,
                  const void* data, const PixelUnpackParameters& unpack);
    /// Reads from offset in the buffer, which becomes an unpack buffer.
    void subImage(int level, int x, int y, std::size_t width, std::size_t height, Format format, Type type,
                  Buffer* pbo, std::size_t offset, const PixelUnpackParameters& unpack);

    /// Copies width x height pixels at (readX, readY) of the read buffer to
    /// (x, y) of the level.
    void copyTexSubImage(int level, int x, int y, int readX, int readY, std::size_t width, std::size_t height);

protected:
    /// Creates the texture with storage for level 0 (and the mip chain with mipmaps).
    Texture2(Target target, TargetBinding binding, InternalFormat format, std::size_t width, std::size_t height,
             bool mipmaps);
};

/// A GL_TEXTURE_2D texture.
class ORU_OGL_API Texture2D : public Texture2
{
public:
    /// Whether 2D textures are available (always).
    static bool isSupported();

    /// Without non-power-of-two support (and without rectangle textures) both
    /// sizes must be powers of two. mipmaps allocates the whole chain.
    Texture2D(InternalFormat format, std::size_t width, std::size_t height, bool mipmaps);
    virtual ~Texture2D();
};

/// A GL_TEXTURE_RECTANGLE_ARB texture: any size, no mip levels, texel
/// coordinates.
class ORU_OGL_API TextureRECT : public Texture2
{
public:
    /// Whether GL_ARB_texture_rectangle is supported.
    static bool isSupported();

    /// A rectangle texture of any size.
    TextureRECT(InternalFormat format, std::size_t width, std::size_t height);
    virtual ~TextureRECT();
};

} // namespace OGL
} // namespace Oru

#endif
