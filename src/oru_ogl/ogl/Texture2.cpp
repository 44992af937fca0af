#include "oru_ogl/ogl/Texture2.h"

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

// Two-dimensional textures: GL_TEXTURE_2D and GL_TEXTURE_RECTANGLE_ARB share
// everything but their target and their mip levels.
//
// Checks come before any GL call, and the transfers restore what they change:
// the client pixel-store state is pushed and popped around each transfer (the
// pop also runs when a step after the push refuses), and a pixel buffer's
// binding is put back after the transfer that bound it.

namespace Oru
{
namespace OGL
{

// Any size is taken when the driver has non-power-of-two textures, and also
// when it has rectangle textures: drivers of that generation that offer
// rectangles take any 2D size as well, so the rule is kept for Texture2D.
// The check follows the base constructor, which made the name already; a
// refused texture deletes it again in the base destructor.
Texture2::Texture2(Target target, TargetBinding binding, InternalFormat format, std::size_t width,
                   std::size_t height, bool mipmaps)
    : Texture(target, binding, format, width, height, 1)
{
    const bool anySize = TextureState::supportsNonPowerOfTwo() || TextureRECT::isSupported();
    const bool powersOfTwo =
        isPowerOfTwo(static_cast<unsigned int>(width)) && isPowerOfTwo(static_cast<unsigned int>(height));
    if (!anySize && !powersOfTwo) ORU_THROW("Texture2::ctor hardware only supports power of two textures");

    // Storage is made with this texture bound and the caller's texture bound
    // again afterwards. No data is given: the levels' contents are undefined
    // until uploaded, and BGRA bytes are what drivers keep RGBA8 in.
    const GLuint previous = getBoundID();
    glBindTexture(this->target(), n_ObjectID);
    const GLint glFormat = static_cast<GLint>(InternalFormat2GL(format));
    GLsizei levelWidth = static_cast<GLsizei>(width);
    GLsizei levelHeight = static_cast<GLsizei>(height);
    GLint level = 0;
    glTexImage2D(this->target(), level, glFormat, levelWidth, levelHeight, 0, GL_BGRA, GL_UNSIGNED_BYTE, NULL);

    // The chain halves both sizes down to 1 x 1; a size that reaches 0 first
    // stays 1 (a 4 x 1 texture has 4 x 1, 2 x 1 and 1 x 1).
    while (mipmaps)
    {
        levelWidth >>= 1;
        levelHeight >>= 1;
        if (levelWidth == 0 && levelHeight == 0)
            break;
        levelWidth = std::max<GLsizei>(levelWidth, 1);
        levelHeight = std::max<GLsizei>(levelHeight, 1);
        ++level;
        glTexImage2D(this->target(), level, glFormat, levelWidth, levelHeight, 0, GL_BGRA, GL_UNSIGNED_BYTE, NULL);
    }

    // Nearest sampling and edge clamping (GL_CLAMP before 1.2): a texel is a pixel.
    setFilter(NEAREST, NEAREST);
    const WrapMode wrap = ExtensionManager::Instance()->supportsClampToEdge() ? CLAMP_TO_EDGE : CLAMP;
    setWrap(wrap, wrap);
    glBindTexture(this->target(), previous);
}

bool Texture2D::isSupported()
{
    return Texture::IsTargetSupported(GL_TEXTURE_2D);
}

Texture2D::Texture2D(InternalFormat format, std::size_t width, std::size_t height, bool mipmaps)
    : Texture2(TEXTURE_2D, TEXTURE_BINDING_2D, format, width, height, mipmaps)
{
}

bool TextureRECT::isSupported()
{
    return Texture::IsTargetSupported(GL_TEXTURE_RECTANGLE_ARB);
}

// Rectangle textures have no mip levels in GL, so none are asked for.
TextureRECT::TextureRECT(InternalFormat format, std::size_t width, std::size_t height)
    : Texture2(TEXTURE_RECT, TEXTURE_BINDING_RECT, format, width, height, false)
{
}

TextureRECT::~TextureRECT() = default;

Texture2D::~Texture2D() = default;

Texture2::~Texture2() = default;

// Unlike the other dimensions, a 2D texture refuses to set its wrap modes
// while another texture is bound: the parameters would land on that one.
void Texture2::setWrap(WrapMode s, WrapMode t)
{
    if (!isBound()) ORU_THROW("Texture must be enabled (bound & active)");
    // S runs along the width, T along the height. Rectangle textures take
    // only the clamping modes; GL refuses the others there.
    glTexParameteri(target(), GL_TEXTURE_WRAP_S, static_cast<GLint>(WrapMode2GL(s)));
    glTexParameteri(target(), GL_TEXTURE_WRAP_T, static_cast<GLint>(WrapMode2GL(t)));
}

// ---------------------------------------------------------------------------
// Read-back. glGetTexImage writes a whole level. Only the pack alignment is
// set here; the caller's other pack state (row length, skips, byte swapping)
// applies as it is, and is the same again afterwards. GL converts from the
// internal format to the requested format and type: components that the
// texture lacks read as 0 (alpha as 1), and a float type returns the values
// of a float texture unclamped. Levels other than 0 come at their own size,
// width(level) x height(level).
// ---------------------------------------------------------------------------

// Bytes of the level-0 image as client data, without row padding: the size
// of a read-back with row alignment 1, or with any alignment that the row
// size is a multiple of. The level is accepted and not used, so one buffer
// sized with it serves every level. Packed types, bitmaps and the 32-bit
// integer types are refused, as their bytes per pixel are not channels times
// a component size; the message names the type by the layer's own value.
std::size_t Texture2::pixelDataSize(int /*level*/, Format format, Type type) const
{
    const std::size_t componentSize = ComponentSize(type);
    if (componentSize == 0) ORU_THROW("pixelDataSize: Unknown type " << TokenName(type));
    return Channels(format) * width(0) * height(0) * componentSize;
}

// The texture must be bound: glGetTexImage reads whatever is bound, and
// reading another texture silently is worse than refusing. COLOR_INDEX
// needs a colour-index texture, which the layer never makes. dst must hold
// the level at the row alignment given. The pack state is pushed after the
// checks and popped on every way out, so a bad alignment changes nothing
// at all.
void Texture2::getPixelData(void* dst, int level, Format format, Type type, unsigned int rowAlignment) const
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

// The same into a pixel buffer object at offset, for read-backs that the
// caller collects later (by mapping the buffer) without stalling now. The
// buffer becomes a pack buffer and stays one; converting is refused while it
// is bound to its current target. It is bound for the transfer only, and the
// pack target's previous binding is put back. The offset is not checked
// against the buffer's size: GL refuses a transfer that would overrun it.
// A mapped buffer is refused, as GL will not write into it meanwhile. A
// refusal after the push (a buffer that is bound as an unpack buffer, say)
// pops the pack state again and leaves the buffer's target as it was, since
// the conversion itself is what refuses.
void Texture2::getPixelData(Buffer* pbo, std::size_t offset, int level, Format format, Type type,
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

// ---------------------------------------------------------------------------
// Upload. glTexSubImage2D replaces a rectangle of one level with client data
// laid out as the PixelUnpackParameters say. The caller's unpack state is
// pushed, replaced by those parameters and popped again, so the same data
// uploads the same way whatever state the caller keeps.
//
// The texture must be bound by the caller: uploads do not check it, as they
// are the inner loop of image processing and the binding is usually right.
// The sizes are checked against the level-0 image, not against the level
// written, and the offsets are not added: GL refuses a rectangle that leaves
// the level (GL_INVALID_VALUE); the checks catch sizes that no level could
// take. Zero sizes are refused, though GL would accept them, as they always
// mean a bug of the caller's.
// ---------------------------------------------------------------------------

// data must hold the rectangle in the format and type at the parameters'
// layout. A bad alignment in the parameters is found after the push, and the
// state is popped again; the texture is then unchanged.
// A pixel-unpack buffer bound by the caller turns data into an offset in it.
void Texture2::subImage(int level, int x, int y, std::size_t width, std::size_t height, Format format, Type type,
                        const void* data, const PixelUnpackParameters& unpack)
{
    if (width == 0) ORU_THROW("error subimage width of zero supplied");
    if (height == 0) ORU_THROW("error subimage height of zero supplied");
    if (level < 0) ORU_THROW("a negative texture image mip-map level supplied");
    if (width > this->width(0)) ORU_THROW("width(" << width << ") is greater than width of image (" << this->width(0) << ") ");
    if (height > this->height(0)) ORU_THROW("height(" << height << ") is greater than width of image (" << this->height(0) << ") ");
    const GLenum glFormat = Format2GL(format);
    const GLenum glType = Type2GL(type);
    PixelStoreGuard guard;
    glPushClientAttrib(GL_CLIENT_PIXEL_STORE_BIT);
    guard.pushed();
    unpack.apply();
    glTexSubImage2D(target(), level, x, y, static_cast<GLsizei>(width), static_cast<GLsizei>(height), glFormat,
                    glType, data);
}

// The same from a pixel buffer object, reading from offset on: the driver
// uploads from memory it owns, without a copy through the caller. The unpack
// parameters describe the buffer's contents from the offset on, as they
// would describe memory.
//
// Besides the rectangle's checks, the offset must lie inside the buffer (an
// offset equal to the size leaves nothing to read) and the buffer must not be
// mapped, as GL will not read a mapped buffer. Only the start is checked: data
// that runs past the buffer's end is refused by GL (GL_INVALID_OPERATION).
// The size message puts the buffer's size right after the word "size", as
// callers that parse it expect.
//
// The buffer becomes an unpack buffer and stays one; converting is refused
// while it is bound to its current target, and that refusal comes after the
// push, which is popped again. The buffer is bound for the transfer only, and
// the unpack target's previous binding is put back. Like the upload from
// memory, it needs the texture bound by the caller; the binding is not
// checked.
void Texture2::subImage(int level, int x, int y, std::size_t width, std::size_t height, Format format, Type type,
                        Buffer* pbo, std::size_t offset, const PixelUnpackParameters& unpack)
{
    if (width == 0) ORU_THROW("error subimage width of zero supplied");
    if (height == 0) ORU_THROW("error subimage height of zero supplied");
    if (level < 0) ORU_THROW("a negative texture image mip-map level supplied");
    if (width > this->width(0)) ORU_THROW("width(" << width << ") is greater than width of image (" << this->width(0) << ") ");
    if (height > this->height(0)) ORU_THROW("height(" << height << ") is greater than width of image (" << this->height(0) << ") ");
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
    glTexSubImage2D(target(), level, x, y, static_cast<GLsizei>(width), static_cast<GLsizei>(height), glFormat,
                    glType, reinterpret_cast<const void*>(offset));
    _cgmBindBuffer(pbo->target(), previous);
}

// ---------------------------------------------------------------------------
// Copies from the current read buffer (of the bound framebuffer object, or
// of the context's own framebuffer).
//
// glCopyTexSubImage2D reads width x height pixels at (readX, readY) of the
// read buffer (glReadBuffer) and writes them at (x, y) of the level,
// converting to the texture's format. With a framebuffer object bound, the
// read buffer is one of its colour attachments: the way to keep a rendered
// result in another texture without a trip through client memory. The
// texture written must not be attached to the bound framebuffer at the same
// time; GL leaves that feedback undefined.
//
// The texture must be bound by the caller. The checks are those of the
// uploads, in their own words; the pixel-store state plays no part, as no
// client memory is involved. readX and readY may be negative or reach past
// the read buffer; the pixels read from outside it are undefined, and no
// check is made of them here.
// ---------------------------------------------------------------------------

void Texture2::copyTexSubImage(int level, int x, int y, int readX, int readY, std::size_t width, std::size_t height)
{
    if (width == 0) ORU_THROW("error copySubimage width of zero supplied");
    if (height == 0) ORU_THROW("error copySubimage height of zero supplied");
    if (level < 0) ORU_THROW("a negative texture image mip-map level supplied");
    if (width > this->width(0)) ORU_THROW("width(" << width << ") is greater than width of image (" << this->width(0) << ") ");
    if (height > this->height(0)) ORU_THROW("height(" << height << ") is greater than width of image (" << this->height(0) << ") ");
    glCopyTexSubImage2D(target(), level, x, y, readX, readY, static_cast<GLsizei>(width), static_cast<GLsizei>(height));
}

} // namespace OGL
} // namespace Oru
