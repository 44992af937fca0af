#ifndef ORU_OGL_OGL_TEXTURE1_H
#define ORU_OGL_OGL_TEXTURE1_H

#include "oru_ogl/OglExport.h"
#include "oru_ogl/ogl/Texture.h"

#include <cstddef>

namespace Oru
{
namespace OGL
{

class Buffer;
class PixelUnpackParameters;

/// A one-dimensional texture; the operations are Texture2's with one
/// coordinate (height and depth are 1).
class ORU_OGL_API Texture1 : public Texture
{
public:
    virtual ~Texture1();

    /// Sets the parameter on whatever texture is bound to the target.
    void setWrap(WrapMode s);

    /// Bytes a read-back of a level takes in format and type.
    std::size_t pixelDataSize(int level, Format format, Type type) const;
    /// Reads a level back into memory.
    void getPixelData(void* dst, int level, Format format, Type type, unsigned int rowAlignment) const;
    /// Reads a level back into a pixel-pack buffer at offset.
    void getPixelData(Buffer* pbo, std::size_t offset, int level, Format format, Type type,
                      unsigned int rowAlignment) const;
    /// Uploads a range of a level from memory.
    void subImage(int level, int x, std::size_t width, Format format, Type type, const void* data,
                  const PixelUnpackParameters& unpack);
    /// Uploads a range of a level from a pixel-unpack buffer at offset.
    void subImage(int level, int x, std::size_t width, Format format, Type type, Buffer* pbo, std::size_t offset,
                  const PixelUnpackParameters& unpack);
    /// Copies width pixels of the read buffer's row readY from readX on.
    void copyTexSubImage(int level, int x, int readX, int readY, std::size_t width);

protected:
    /// Creates the texture with storage for level 0 (and the mip chain with mipmaps).
    Texture1(Target target, TargetBinding binding, InternalFormat format, std::size_t width, bool mipmaps);
};

/// A GL_TEXTURE_1D texture.
class ORU_OGL_API Texture1D : public Texture1
{
public:
    /// A 1D texture; without non-power-of-two support the width must be a power of two.
    Texture1D(InternalFormat format, std::size_t width, bool mipmaps);
    virtual ~Texture1D();
};

} // namespace OGL
} // namespace Oru

#endif
