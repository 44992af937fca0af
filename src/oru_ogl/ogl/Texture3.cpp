#include "oru_ogl/ogl/Texture3.h"

#include "oru_ogl/Enforce.h"
#include "oru_ogl/extensionator/EntryPoints.h"
#include "oru_ogl/extensionator/ExtensionManager.h"
#include "oru_ogl/ogl/GLConstants.h"
#include "oru_ogl/ogl/TextureState.h"
#include "oru_ogl/ogl/TextureTransfer.h"
#include "oru_ogl/ogl/WrapperCall.h"
#include "oru_ogl/ogl/WrapperCheck.h"

#include "oru_core/Math.h"

// Three-dimensional textures (volumes, stacks of images). Everything works as
// for Texture2 with a third coordinate: the same checks in the same order, the
// same messages, each reported at the line of the member that ran it.

namespace Oru
{
namespace OGL
{

namespace
{

// The lines that the size rule reports; callers match on them.
const int kPowerOfTwoLine = 41;
const int kPowerOfTwoFromDataLine = 128;

// Without non-power-of-two support all three sizes must be powers of two;
// rectangle support says nothing about volumes and does not count here.
bool sizeAllowed(std::size_t width, std::size_t height, std::size_t depth)
{
    return TextureState::supportsNonPowerOfTwo() ||
           (isPowerOfTwo(static_cast<unsigned int>(width)) && isPowerOfTwo(static_cast<unsigned int>(height)) &&
            isPowerOfTwo(static_cast<unsigned int>(depth)));
}

// The 3D entry points are core in 1.2; a driver that reports 3.0 or later gets no
// core-version id at start-up, so the first 3D texture fetches them when missing.
void loadTexture3DEntryPoints()
{
    if (!_cgmTexImage3D || !_cgmTexSubImage3D || !_cgmCopyTexSubImage3D)
        ExtensionManager::Instance()->initialize(OPEN_GL_1_2);
}

} // namespace

// A refused size leaves no name behind: the base destructor deletes it.
Texture3::Texture3(Target target, TargetBinding binding, InternalFormat format, std::size_t width,
                   std::size_t height, std::size_t depth, bool mipmaps)
    : Texture(target, binding, format, width, height, depth)
{
    if (!sizeAllowed(width, height, depth))
        ORU_THROW_AT(kPowerOfTwoLine, "Texture3::ctor hardware only supports power of two textures");
    loadTexture3DEntryPoints();
    TextureTransfer(*this, 3, __FILE__, __LINE__).allocate(mipmaps);
}

// One level from data, read with the caller's unpack state: unpack is not applied.
Texture3::Texture3(Target target, TargetBinding binding, InternalFormat format, int level, std::size_t width,
                   std::size_t height, std::size_t depth, Format dataFormat, Type dataType, const void* data,
                   const PixelUnpackParameters& /*unpack*/)
    : Texture(target, binding, format, width, height, depth)
{
    if (!sizeAllowed(width, height, depth))
        ORU_THROW_AT(kPowerOfTwoFromDataLine, "Texture3::ctor hardware only supports power of two textures");
    loadTexture3DEntryPoints();
    TextureTransfer(*this, 3, __FILE__, __LINE__).allocate(level, dataFormat, dataType, data);
}

Texture3::~Texture3() = default;

void Texture3::setWrap(WrapMode s, WrapMode t, WrapMode r)
{
    ORU_WRAPPER_GL glTexParameteri(target(), GL_TEXTURE_WRAP_S, static_cast<GLint>(WrapMode2GL(s)));
    ORU_WRAPPER_GL glTexParameteri(target(), GL_TEXTURE_WRAP_T, static_cast<GLint>(WrapMode2GL(t)));
    ORU_WRAPPER_GL glTexParameteri(target(), GL_TEXTURE_WRAP_R, static_cast<GLint>(WrapMode2GL(r)));
    ORU_CHECK_GL(Texture3);
}

std::size_t Texture3::pixelDataSize(int /*level*/, Format format, Type type) const
{
    return TextureTransfer(*this, 3, __FILE__, __LINE__).pixelDataSize(format, type);
}

void Texture3::getPixelData(void* dst, int level, Format format, Type type, unsigned int rowAlignment) const
{
    TextureTransfer(*this, 3, __FILE__, __LINE__).getPixelData(dst, level, format, type, rowAlignment);
}

void Texture3::getPixelData(Buffer* pbo, std::size_t offset, int level, Format format, Type type,
                            unsigned int rowAlignment) const
{
    TextureTransfer(*this, 3, __FILE__, __LINE__)
        .getPixelData(pbo, offset, level, format, type, rowAlignment);
}

void Texture3::subImage(int level, int x, int y, int z, std::size_t width, std::size_t height, std::size_t depth,
                        Format format, Type type, const void* data, const PixelUnpackParameters& unpack)
{
    TextureTransfer(*this, 3, __FILE__, __LINE__)
        .subImage(level, { x, y, z, width, height, depth }, format, type, data, unpack);
}

void Texture3::subImage(int level, int x, int y, int z, std::size_t width, std::size_t height, std::size_t depth,
                        Format format, Type type, Buffer* pbo, std::size_t offset, const PixelUnpackParameters& unpack)
{
    TextureTransfer(*this, 3, __FILE__, __LINE__)
        .subImage(level, { x, y, z, width, height, depth }, format, type, pbo, offset, unpack);
}

void Texture3::copyTexSubImage(int level, int x, int y, int z, int readX, int readY, std::size_t width,
                               std::size_t height)
{
    TextureTransfer(*this, 3, __FILE__, __LINE__)
        .copyTexSubImage(level, { x, y, z, width, height, 1 }, readX, readY);
}

Texture3D::Texture3D(InternalFormat format, std::size_t width, std::size_t height, std::size_t depth, bool mipmaps)
    : Texture3(TEXTURE_3D, TEXTURE_BINDING_3D, format, width, height, depth, mipmaps)
{
}

Texture3D::Texture3D(InternalFormat format, int level, std::size_t width, std::size_t height, std::size_t depth,
                     Format dataFormat, Type dataType, const void* data, const PixelUnpackParameters& unpack)
    : Texture3(TEXTURE_3D, TEXTURE_BINDING_3D, format, level, width, height, depth, dataFormat, dataType, data,
               unpack)
{
}

Texture3D::~Texture3D() = default;

} // namespace OGL
} // namespace Oru
