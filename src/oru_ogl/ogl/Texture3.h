#ifndef ORU_OGL_OGL_TEXTURE3_H
#define ORU_OGL_OGL_TEXTURE3_H

#include "oru_ogl/OglExport.h"
#include "oru_ogl/ogl/Texture.h"

#include <cstddef>

namespace Oru
{
namespace OGL
{

class Buffer;
class PixelUnpackParameters;

/// A three-dimensional texture; the operations are Texture2's with a third
/// coordinate and size.
class ORU_OGL_API Texture3 : public Texture
{
public:
    virtual ~Texture3();

    /// Sets the parameters on whatever texture is bound to the target.
    void setWrap(WrapMode s, WrapMode t, WrapMode r);

    /// Bytes a read-back of a level takes in format and type.
    std::size_t pixelDataSize(int level, Format format, Type type) const;
    /// Reads a level back into memory.
    void getPixelData(void* dst, int level, Format format, Type type, unsigned int rowAlignment) const;
    /// Reads a level back into a pixel-pack buffer at offset.
    void getPixelData(Buffer* pbo, std::size_t offset, int level, Format format, Type type,
                      unsigned int rowAlignment) const;
    /// Uploads a box of a level from memory.
    void subImage(int level, int x, int y, int z, std::size_t width, std::size_t height, std::size_t depth,
                  Format format, Type type, const void* data, const PixelUnpackParameters& unpack);
    /// Uploads a box of a level from a pixel-unpack buffer at offset.
    void subImage(int level, int x, int y, int z, std::size_t width, std::size_t height, std::size_t depth,
                  Format format, Type type, Buffer* pbo, std::size_t offset, const PixelUnpackParameters& unpack);
    /// Copies width x height pixels of the read buffer into slice z.
    void copyTexSubImage(int level, int x, int y, int z, int readX, int readY, std::size_t width, std::size_t height);

protected:
    /// Creates the texture with storage for level 0 (and the mip chain with mipmaps).
    Texture3(Target target, TargetBinding binding, InternalFormat format, std::size_t width, std::size_t height,
             std::size_t depth, bool mipmaps);
    /// Creates the texture with storage for one level.
    Texture3(Target target, TargetBinding binding, InternalFormat format, int level, std::size_t width,
             std::size_t height, std::size_t depth, Format dataFormat, Type dataType, const void* data,
             const PixelUnpackParameters& unpack);
};

/// A GL_TEXTURE_3D texture.
class ORU_OGL_API Texture3D : public Texture3
{
public:
    /// A 3D texture; without non-power-of-two support each size must be a power of two.
    Texture3D(InternalFormat format, std::size_t width, std::size_t height, std::size_t depth, bool mipmaps);
    /// One level, filled from data. The upload uses the context's unpack state
    /// as it is; unpack is accepted but not applied.
    Texture3D(InternalFormat format, int level, std::size_t width, std::size_t height, std::size_t depth,
              Format dataFormat, Type dataType, const void* data, const PixelUnpackParameters& unpack);
    virtual ~Texture3D();
};

} // namespace OGL
} // namespace Oru

#endif
