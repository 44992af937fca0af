#include "oru_ogl/ogl/Texture1.h"

#include "oru_ogl/Enforce.h"
#include "oru_ogl/TokenName.h"
#include "oru_ogl/extensionator/EntryPoints.h"
#include "oru_ogl/extensionator/ExtensionManager.h"
#include "oru_ogl/ogl/Buffer.h"
#include "oru_ogl/ogl/GLConstants.h"
#include "oru_ogl/ogl/PixelUnpackParameters.h"
#include "oru_ogl/ogl/TextureState.h"

#include "oru_core/Math.h"

// One-dimensional textures (lookup tables, mostly). Everything works as for
// Texture2 with one coordinate: the same checks in the same order, the same
// messages, the same restoring of pixel-store state and buffer bindings.

namespace Oru
{
namespace OGL
{

// Only non-power-of-two support lifts the size rule here: rectangle textures
// say nothing about one-dimensional ones. The message is the one the 2D
// textures give, so that callers meet a single text for the rule.
//
// Storage is made as for Texture2: this texture bound, level 0 and, on
// request, every level down to one texel, nearest filtering and edge
// clamping, and the caller's texture bound again. A refused size leaves no
// name behind: the base destructor deletes it.
Texture1::Texture1(Target target, TargetBinding binding, InternalFormat format, std::size_t width, bool mipmaps)
    : Texture(target, binding, format, width, 1, 1)
{
    const bool anySize = TextureState::supportsNonPowerOfTwo();
    const bool powerOfTwo = isPowerOfTwo(static_cast<unsigned int>(width));
    if (!anySize && !powerOfTwo) ORU_THROW("Texture2::ctor hardware only supports power of two textures");

    const GLuint previous = getBoundID();
    glBindTexture(this->target(), n_ObjectID);
    const GLint glFormat = static_cast<GLint>(InternalFormat2GL(format));
    GLsizei levelWidth = static_cast<GLsizei>(width);
    GLint level = 0;
    glTexImage1D(this->target(), level, glFormat, levelWidth, 0, GL_BGRA, GL_UNSIGNED_BYTE, NULL);
    while (mipmaps)
    {
        levelWidth >>= 1;
        if (levelWidth == 0)
            break;
        ++level;
        glTexImage1D(this->target(), level, glFormat, levelWidth, 0, GL_BGRA, GL_UNSIGNED_BYTE, NULL);
    }
    setFilter(NEAREST, NEAREST);
    setWrap(ExtensionManager::Instance()->supportsClampToEdge() ? CLAMP_TO_EDGE : CLAMP);
    glBindTexture(this->target(), previous);
}

Texture1::~Texture1() = default;

void Texture1::setWrap(WrapMode s)
{
    glTexParameteri(target(), GL_TEXTURE_WRAP_S, static_cast<GLint>(WrapMode2GL(s)));
}

std::size_t Texture1::pixelDataSize(int /*level*/, Format format, Type type) const
{
    const std::size_t componentSize = ComponentSize(type);
    if (componentSize == 0) ORU_THROW("pixelDataSize: Unknown type " << TokenName(type));
    return Channels(format) * width(0) * componentSize;
}

void Texture1::getPixelData(void* dst, int level, Format format, Type type, unsigned int rowAlignment) const
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

void Texture1::getPixelData(Buffer* pbo, std::size_t offset, int level, Format format, Type type,
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

void Texture1::subImage(int level, int x, std::size_t width, Format format, Type type, const void* data,
                        const PixelUnpackParameters& unpack)
{
    if (width == 0) ORU_THROW("error subimage width of zero supplied");
    if (level < 0) ORU_THROW("a negative texture image mip-map level supplied");
    if (width > this->width(0)) ORU_THROW("width(" << width << ") is greater than width of image (" << this->width(0) << ") ");
    const GLenum glFormat = Format2GL(format);
    const GLenum glType = Type2GL(type);
    PixelStoreGuard guard;
    glPushClientAttrib(GL_CLIENT_PIXEL_STORE_BIT);
    guard.pushed();
    unpack.apply();
    glTexSubImage1D(target(), level, x, static_cast<GLsizei>(width), glFormat, glType, data);
}

void Texture1::subImage(int level, int x, std::size_t width, Format format, Type type, Buffer* pbo,
                        std::size_t offset, const PixelUnpackParameters& unpack)
{
    if (width == 0) ORU_THROW("error subimage width of zero supplied");
    if (level < 0) ORU_THROW("a negative texture image mip-map level supplied");
    if (width > this->width(0)) ORU_THROW("width(" << width << ") is greater than width of image (" << this->width(0) << ") ");
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
    glTexSubImage1D(target(), level, x, static_cast<GLsizei>(width), glFormat, glType,
                    reinterpret_cast<const void*>(offset));
    _cgmBindBuffer(pbo->target(), previous);
}

void Texture1::copyTexSubImage(int level, int x, int readX, int readY, std::size_t width)
{
    if (width == 0) ORU_THROW("error copySubimage width of zero supplied");
    if (level < 0) ORU_THROW("a negative texture image mip-map level supplied");
    if (width > this->width(0)) ORU_THROW("width(" << width << ") is greater than width of image (" << this->width(0) << ") ");
    glCopyTexSubImage1D(target(), level, x, readX, readY, static_cast<GLsizei>(width));
}

Texture1D::Texture1D(InternalFormat format, std::size_t width, bool mipmaps)
    : Texture1(TEXTURE_1D, TEXTURE_BINDING_1D, format, width, mipmaps)
{
}

Texture1D::~Texture1D() = default;

} // namespace OGL
} // namespace Oru
