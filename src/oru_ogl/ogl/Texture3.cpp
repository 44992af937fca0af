#include "oru_ogl/ogl/Texture3.h"

#include "oru_ogl/Enforce.h"
#include "oru_ogl/TokenName.h"
#include "oru_ogl/extensionator/EntryPoints.h"
#include "oru_ogl/extensionator/ExtensionManager.h"
#include "oru_ogl/ogl/Buffer.h"
#include "oru_ogl/ogl/GLConstants.h"
#include "oru_ogl/ogl/PixelUnpackParameters.h"
#include "oru_ogl/ogl/TextureState.h"

#include "oru_core/Math.h"

#include <algorithm>

// Three-dimensional textures (volumes, stacks of images). Everything works as
// for Texture2 with a third coordinate: the same checks in the same order,
// the same messages, the same restoring of pixel-store state and bindings.
// The 3D entry points are core in 1.2; a driver that reports 3.0 or later
// gets no core-version id at start-up, so they are fetched with the first
// 3D texture when they are still missing (see the constructors).

namespace Oru
{
namespace OGL
{

// Without non-power-of-two support all three sizes must be powers of two;
// rectangle support says nothing about volumes and does not count here.
// Storage as for Texture2: every size halves, the chain ends when all three
// reach 0, and a size that reaches 0 earlier stays 1. A refused size leaves
// no name behind: the base destructor deletes it. Uploads and copies need
// the texture bound by the caller, as for Texture2.
Texture3::Texture3(Target target, TargetBinding binding, InternalFormat format, std::size_t width,
                   std::size_t height, std::size_t depth, bool mipmaps)
    : Texture(target, binding, format, width, height, depth)
{
    const bool anySize = TextureState::supportsNonPowerOfTwo();
    const bool powersOfTwo = isPowerOfTwo(static_cast<unsigned int>(width)) &&
                             isPowerOfTwo(static_cast<unsigned int>(height)) && isPowerOfTwo(static_cast<unsigned int>(depth));
    if (!anySize && !powersOfTwo) ORU_THROW("Texture3::ctor hardware only supports power of two textures");
    if (!_cgmTexImage3D || !_cgmTexSubImage3D || !_cgmCopyTexSubImage3D)
        ExtensionManager::Instance()->initialize(OPEN_GL_1_2);

    const GLuint previous = getBoundID();
    glBindTexture(this->target(), n_ObjectID);
    const GLint glFormat = static_cast<GLint>(InternalFormat2GL(format));
    GLsizei w = static_cast<GLsizei>(width);
    GLsizei h = static_cast<GLsizei>(height);
    GLsizei d = static_cast<GLsizei>(depth);
    GLint level = 0;
    _cgmTexImage3D(this->target(), level, glFormat, w, h, d, 0, GL_BGRA, GL_UNSIGNED_BYTE, NULL);
    while (mipmaps)
    {
        w >>= 1;
        h >>= 1;
        d >>= 1;
        if (w == 0 && h == 0 && d == 0)
            break;
        w = std::max<GLsizei>(w, 1);
        h = std::max<GLsizei>(h, 1);
        d = std::max<GLsizei>(d, 1);
        ++level;
        _cgmTexImage3D(this->target(), level, glFormat, w, h, d, 0, GL_BGRA, GL_UNSIGNED_BYTE, NULL);
    }
    setFilter(NEAREST, NEAREST);
    const WrapMode wrap = ExtensionManager::Instance()->supportsClampToEdge() ? CLAMP_TO_EDGE : CLAMP;
    setWrap(wrap, wrap, wrap);
    glBindTexture(this->target(), previous);
}

Texture3::~Texture3() = default;

void Texture3::setWrap(WrapMode s, WrapMode t, WrapMode r)
{
    glTexParameteri(target(), GL_TEXTURE_WRAP_S, static_cast<GLint>(WrapMode2GL(s)));
    glTexParameteri(target(), GL_TEXTURE_WRAP_T, static_cast<GLint>(WrapMode2GL(t)));
    glTexParameteri(target(), GL_TEXTURE_WRAP_R, static_cast<GLint>(WrapMode2GL(r)));
}

std::size_t Texture3::pixelDataSize(int /*level*/, Format format, Type type) const
{
    const std::size_t componentSize = ComponentSize(type);
    if (componentSize == 0) ORU_THROW("pixelDataSize: Unknown type " << TokenName(type));
    return Channels(format) * width(0) * height(0) * depth(0) * componentSize;
}

void Texture3::getPixelData(void* dst, int level, Format format, Type type, unsigned int rowAlignment) const
{
    if (!isBound()) ORU_THROW("Texture must be bound");
    if (format == Format::COLOR_INDEX) ORU_THROW("COLOR_INDEX not allowed here!");
    const GLenum glFormat = Format2GL(format);
    const GLenum glType = Type2GL(type);
    PixelStoreGuard guard;
    pushAndSetReadbackByteAlignment(rowAlignment);
    guard.pushed();
    glGetTexImage(target(), level, glFormat, glType, dst);
}

void Texture3::getPixelData(Buffer* pbo, std::size_t offset, int level, Format format, Type type,
                            unsigned int rowAlignment) const
{
    if (!isBound()) ORU_THROW("Texture must be bound");
    if (pbo->isMapped()) ORU_THROW("Pixel Buffer Object cannot be memory mapped during data transfer");
    if (format == Format::COLOR_INDEX) ORU_THROW("COLOR_INDEX not allowed here!");
    const GLenum glFormat = Format2GL(format);
    const GLenum glType = Type2GL(type);
    PixelStoreGuard guard;
    pushAndSetReadbackByteAlignment(rowAlignment);
    guard.pushed();
    if (!pbo->isPackBuffer())
        pbo->convertToPackBuffer();
    const GLuint previous = pbo->getBoundID();
    pbo->bind();
    glGetTexImage(target(), level, glFormat, glType, reinterpret_cast<void*>(offset));
    _cgmBindBuffer(pbo->target(), previous);
}

// One level from data, read with the caller's unpack state: unpack is not applied.
Texture3::Texture3(Target target, TargetBinding binding, InternalFormat format, int level, std::size_t width,
                   std::size_t height, std::size_t depth, Format dataFormat, Type dataType, const void* data,
                   const PixelUnpackParameters& /*unpack*/)
    : Texture(target, binding, format, width, height, depth)
{
    const bool anySize = TextureState::supportsNonPowerOfTwo();
    const bool powersOfTwo = isPowerOfTwo(static_cast<unsigned int>(width)) &&
                             isPowerOfTwo(static_cast<unsigned int>(height)) && isPowerOfTwo(static_cast<unsigned int>(depth));
    if (!anySize && !powersOfTwo) ORU_THROW("Texture3::ctor hardware only supports power of two textures");
    const GLenum glDataFormat = Format2GL(dataFormat);
    const GLenum glDataType = Type2GL(dataType);
    if (!_cgmTexImage3D || !_cgmTexSubImage3D || !_cgmCopyTexSubImage3D)
        ExtensionManager::Instance()->initialize(OPEN_GL_1_2);

    const GLuint previous = getBoundID();
    glBindTexture(this->target(), n_ObjectID);
    _cgmTexImage3D(this->target(), level, static_cast<GLint>(InternalFormat2GL(format)), static_cast<GLsizei>(width),
                   static_cast<GLsizei>(height), static_cast<GLsizei>(depth), 0, glDataFormat, glDataType, data);
    setFilter(NEAREST, NEAREST);
    const WrapMode wrap = ExtensionManager::Instance()->supportsClampToEdge() ? CLAMP_TO_EDGE : CLAMP;
    setWrap(wrap, wrap, wrap);
    glBindTexture(this->target(), previous);
}

void Texture3::subImage(int level, int x, int y, int z, std::size_t width, std::size_t height, std::size_t depth,
                        Format format, Type type, const void* data, const PixelUnpackParameters& unpack)
{
    if (width == 0) ORU_THROW("error subimage width of zero supplied");
    if (height == 0) ORU_THROW("error subimage height of zero supplied");
    if (depth == 0) ORU_THROW("error subimage depth of zero supplied");
    if (level < 0) ORU_THROW("a negative texture image mip-map level supplied");
    if (width > this->width(0)) ORU_THROW("width(" << width << ") is greater than width of image (" << this->width(0) << ") ");
    if (height > this->height(0)) ORU_THROW("height(" << height << ") is greater than width of image (" << this->height(0) << ") ");
    if (depth > this->depth(0)) ORU_THROW("depth(" << depth << ") is greater than depth of image (" << this->depth(0) << ") ");
    const GLenum glFormat = Format2GL(format);
    const GLenum glType = Type2GL(type);
    PixelStoreGuard guard;
    glPushClientAttrib(GL_CLIENT_PIXEL_STORE_BIT);
    guard.pushed();
    unpack.apply();
    _cgmTexSubImage3D(target(), level, x, y, z, static_cast<GLsizei>(width), static_cast<GLsizei>(height),
                      static_cast<GLsizei>(depth), glFormat, glType, data);
}

void Texture3::subImage(int level, int x, int y, int z, std::size_t width, std::size_t height, std::size_t depth,
                        Format format, Type type, Buffer* pbo, std::size_t offset, const PixelUnpackParameters& unpack)
{
    if (width == 0) ORU_THROW("error subimage width of zero supplied");
    if (height == 0) ORU_THROW("error subimage height of zero supplied");
    if (depth == 0) ORU_THROW("error subimage depth of zero supplied");
    if (level < 0) ORU_THROW("a negative texture image mip-map level supplied");
    if (width > this->width(0)) ORU_THROW("width(" << width << ") is greater than width of image (" << this->width(0) << ") ");
    if (height > this->height(0)) ORU_THROW("height(" << height << ") is greater than width of image (" << this->height(0) << ") ");
    if (depth > this->depth(0)) ORU_THROW("depth(" << depth << ") is greater than depth of image (" << this->depth(0) << ") ");
    if (offset >= pbo->size()) ORU_THROW("offset(" << offset << ") is greater than pixel buffer object size" << pbo->size());
    if (pbo->isMapped()) ORU_THROW("Pixel Buffer Object cannot be memory mapped during data transfer");
    const GLenum glFormat = Format2GL(format);
    const GLenum glType = Type2GL(type);
    PixelStoreGuard guard;
    glPushClientAttrib(GL_CLIENT_PIXEL_STORE_BIT);
    guard.pushed();
    unpack.apply();
    if (!pbo->isUnpackBuffer())
        pbo->convertToUnpackBuffer();
    const GLuint previous = pbo->getBoundID();
    pbo->bind();
    _cgmTexSubImage3D(target(), level, x, y, z, static_cast<GLsizei>(width), static_cast<GLsizei>(height),
                      static_cast<GLsizei>(depth), glFormat, glType, reinterpret_cast<const void*>(offset));
    _cgmBindBuffer(pbo->target(), previous);
}

void Texture3::copyTexSubImage(int level, int x, int y, int z, int readX, int readY, std::size_t width,
                               std::size_t height)
{
    if (width == 0) ORU_THROW("error copySubimage width of zero supplied");
    if (height == 0) ORU_THROW("error copySubimage height of zero supplied");
    if (level < 0) ORU_THROW("a negative texture image mip-map level supplied");
    if (width > this->width(0)) ORU_THROW("width(" << width << ") is greater than width of image (" << this->width(0) << ") ");
    if (height > this->height(0)) ORU_THROW("height(" << height << ") is greater than width of image (" << this->height(0) << ") ");
    _cgmCopyTexSubImage3D(target(), level, x, y, z, readX, readY, static_cast<GLsizei>(width),
                          static_cast<GLsizei>(height));
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
