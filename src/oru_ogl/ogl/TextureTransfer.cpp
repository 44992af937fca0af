#include "oru_ogl/ogl/TextureTransfer.h"

#include "oru_ogl/Enforce.h"
#include "oru_ogl/TokenName.h"
#include "oru_ogl/extensionator/ExtensionManager.h"
#include "oru_ogl/ogl/Buffer.h"
#include "oru_ogl/ogl/GLConstants.h"
#include "oru_ogl/ogl/PixelUnpackParameters.h"
#include "oru_ogl/ogl/WrapperCall.h"
#include "oru_ogl/ogl/WrapperCheck.h"

#include <algorithm>
#include <sstream>

// Checks come before any GL call, and a transfer restores what it changes on
// every way out, a refusal after the change included: the client pixel-store
// state (scoped push and pop), the pixel buffer binding of the buffer's target
// and, while storage is made, the texture binding of the target.
//
// The sizes are checked against level 0, not against the level written, and
// the offsets are not added: GL refuses a region that leaves the level
// (GL_INVALID_VALUE); the checks catch sizes that no level could take. Zero
// sizes are refused, though GL would accept them, as they always mean a bug
// of the caller's. Uploads and copies need the texture bound by the caller
// and do not check it (they are the inner loop of image processing);
// read-backs check it, as reading another texture silently is worse.

namespace Oru
{
namespace OGL
{

namespace
{

const char* const kAxes[3] = { "width", "height", "depth" };
// The height's message speaks of the image's width; callers match on it.
const char* const kImageAxes[3] = { "width", "width", "depth" };
const char* const kMapped = "Pixel Buffer Object cannot be memory mapped during data transfer";

// The classes whose members the transfers are, by dimension.
const char* const kOwners[3] = { "Texture1", "Texture2", "Texture3" };

// Puts a target's previous binding back on the way out of a scope, through
// glBindTexture or glBindBuffer.
class RebindScope
{
public:
    RebindScope(void (WrapperCall::*bind)(GLenum, GLuint) const, GLenum target, GLuint previous)
        : bind_(bind)
        , target_(target)
        , previous_(previous)
    {
    }
    ~RebindScope() { ORU_WRAPPER_GL_NOTHROW invoke(bind_, target_, previous_); }
    RebindScope(RebindScope const&) = delete;
    RebindScope& operator=(RebindScope const&) = delete;

private:
    void (WrapperCall::*bind_)(GLenum, GLuint) const;
    GLenum target_;
    GLuint previous_;
};

} // namespace

// Saves the client pixel-store state for a scope and restores it on every way
// out. Made with a row alignment, it is a read-back's: the alignment is
// checked first (Texture's refusal, before anything is pushed) and set as the
// pack alignment. Without one, an upload's: the caller applies its unpack
// parameters after the push.
class TextureTransfer::PixelStoreScope
{
public:
    PixelStoreScope() { ORU_WRAPPER_GL glPushClientAttrib(GL_CLIENT_PIXEL_STORE_BIT); }
    explicit PixelStoreScope(unsigned int packAlignment) { Texture::pushAndSetReadbackByteAlignment(packAlignment); }
    ~PixelStoreScope() { ORU_WRAPPER_GL_NOTHROW glPopClientAttrib(); } // popPixelTransferModes(), never throwing
    PixelStoreScope(PixelStoreScope const&) = delete;
    PixelStoreScope& operator=(PixelStoreScope const&) = delete;
};

TextureTransfer::TextureTransfer(Texture const& texture, int dimensions, char const* file, int line)
    : texture_(texture)
    , dimensions_(dimensions)
    , file_(file)
    , line_(line)
{
}

void TextureTransfer::raise(int line, std::string const& text) const
{
    detail::raiseInternal(file_, line, text);
}

void TextureTransfer::checkGL(char const* member) const
{
    WrapperCheck::after(file_, line_, kOwners[dimensions_ - 1], member);
}

// ---------------------------------------------------------------------------
// Storage. No data is given: the levels' contents are undefined until
// uploaded, and BGRA bytes are what drivers keep RGBA8 in. The chain halves
// every size; it ends when all of them reach 0, and a size that reaches 0
// earlier stays 1 (a 4 x 1 texture has 4 x 1, 2 x 1 and 1 x 1).
// ---------------------------------------------------------------------------

void TextureTransfer::allocate(bool mipmaps) const
{
    RebindScope rebind(&WrapperCall::glBindTexture, texture_.target(), texture_.getBoundID());
    ORU_WRAPPER_GL glBindTexture(texture_.target(), texture_.objectID());
    std::size_t size[3] = { texture_.width(0), texture_.height(0), texture_.depth(0) };
    int level = 0;
    texImage(level, size, GL_BGRA, GL_UNSIGNED_BYTE, NULL);
    while (mipmaps)
    {
        bool empty = true;
        for (int axis = 0; axis < dimensions_; ++axis)
        {
            size[axis] >>= 1;
            empty = empty && size[axis] == 0;
        }
        if (empty)
            break;
        for (int axis = 0; axis < dimensions_; ++axis)
            size[axis] = std::max<std::size_t>(size[axis], 1);
        texImage(++level, size, GL_BGRA, GL_UNSIGNED_BYTE, NULL);
    }
    setStorageParameters();
    checkGL(kOwners[dimensions_ - 1]); // the constructor's
}

void TextureTransfer::allocate(int level, Texture::Format format, Texture::Type type, const void* data) const
{
    const GLenum glFormat = Texture::Format2GL(format);
    const GLenum glType = Texture::Type2GL(type);
    RebindScope rebind(&WrapperCall::glBindTexture, texture_.target(), texture_.getBoundID());
    ORU_WRAPPER_GL glBindTexture(texture_.target(), texture_.objectID());
    const std::size_t size[3] = { texture_.width(0), texture_.height(0), texture_.depth(0) };
    texImage(level, size, glFormat, glType, data);
    setStorageParameters();
    checkGL(kOwners[dimensions_ - 1]);
}

// Nearest sampling and edge clamping (GL_CLAMP before 1.2) on every axis: a
// texel is a pixel.
void TextureTransfer::setStorageParameters() const
{
    static const GLenum kWrapAxes[3] = { GL_TEXTURE_WRAP_S, GL_TEXTURE_WRAP_T, GL_TEXTURE_WRAP_R };
    const GLenum target = texture_.target();
    ORU_WRAPPER_GL glTexParameteri(target, GL_TEXTURE_MIN_FILTER, static_cast<GLint>(Texture::Filter2GL(Texture::NEAREST)));
    ORU_WRAPPER_GL glTexParameteri(target, GL_TEXTURE_MAG_FILTER, static_cast<GLint>(Texture::Filter2GL(Texture::NEAREST)));
    const Texture::WrapMode wrap =
        ExtensionManager::Instance()->supportsClampToEdge() ? Texture::CLAMP_TO_EDGE : Texture::CLAMP;
    for (int axis = 0; axis < dimensions_; ++axis)
        ORU_WRAPPER_GL glTexParameteri(target, kWrapAxes[axis], static_cast<GLint>(Texture::WrapMode2GL(wrap)));
}

// ---------------------------------------------------------------------------
// Read-back. glGetTexImage writes a whole level. Only the pack alignment is
// set here; the caller's other pack state applies as it is, and is the same
// again afterwards. COLOR_INDEX needs a colour-index texture, which the layer
// never makes.
// ---------------------------------------------------------------------------

// Bytes of the level-0 image as client data, without row padding. The level
// is accepted and not used, so one buffer sized with it serves every level.
// Packed types, bitmaps and the 32-bit integer types are refused, as their
// bytes per pixel are not channels times a component size; the message names
// the type by the layer's own value.
std::size_t TextureTransfer::pixelDataSize(Texture::Format format, Texture::Type type) const
{
    const std::size_t componentSize = Texture::ComponentSize(type);
    if (componentSize == 0)
        raise(line_, std::string("pixelDataSize: Unknown type ") + TokenName(type));
    return Texture::Channels(format) * texture_.width(0) * texture_.height(0) * texture_.depth(0) * componentSize;
}

void TextureTransfer::getPixelData(void* dst, int level, Texture::Format format, Texture::Type type,
                                   unsigned int rowAlignment, Lines const* lines) const
{
    if (!texture_.isBound())
        raise(lines ? lines->unbound : line_, "Texture must be bound");
    if (format == Texture::Format::COLOR_INDEX)
        raise(lines ? lines->colorIndex : line_, "COLOR_INDEX not allowed here!");
    const GLenum glFormat = Texture::Format2GL(format);
    const GLenum glType = Texture::Type2GL(type);
    PixelStoreScope store(rowAlignment);
    ORU_WRAPPER_GL glGetTexImage(texture_.target(), level, glFormat, glType, dst);
    checkGL("getPixelData");
}

// Into a pixel buffer at offset, for read-backs collected later without a
// stall now. The buffer becomes a pack buffer and stays one; converting is
// refused while it is bound to its current target. The offset is not checked
// against the buffer's size: GL refuses a transfer that would overrun it.
void TextureTransfer::getPixelData(Buffer* pbo, std::size_t offset, int level, Texture::Format format,
                                   Texture::Type type, unsigned int rowAlignment, Lines const* lines) const
{
    if (!texture_.isBound())
        raise(lines ? lines->unbound : line_, "Texture must be bound");
    if (pbo->isMapped())
        raise(lines ? lines->mapped : line_, kMapped);
    if (format == Texture::Format::COLOR_INDEX)
        raise(lines ? lines->colorIndex : line_, "COLOR_INDEX not allowed here!");
    const GLenum glFormat = Texture::Format2GL(format);
    const GLenum glType = Texture::Type2GL(type);
    PixelStoreScope store(rowAlignment);
    if (!pbo->isPackBuffer())
        pbo->convertToPackBuffer();
    RebindScope rebind(&WrapperCall::glBindBuffer, pbo->target(), pbo->getBoundID());
    pbo->bind();
    ORU_WRAPPER_GL glGetTexImage(texture_.target(), level, glFormat, glType, reinterpret_cast<void*>(offset));
    checkGL("getPixelData");
}

// ---------------------------------------------------------------------------
// Upload: the region of one level from client data laid out as the
// PixelUnpackParameters say; the caller's unpack state is pushed, replaced by
// those parameters and popped again, so the same data uploads the same way
// whatever state the caller keeps. A bad alignment in the parameters is found
// after the push, and the state is popped again.
// ---------------------------------------------------------------------------

void TextureTransfer::subImage(int level, Region const& region, Texture::Format format, Texture::Type type,
                               const void* data, const PixelUnpackParameters& unpack, Lines const* lines) const
{
    checkRegion(lines, "subimage", dimensions_, level, region);
    const GLenum glFormat = Texture::Format2GL(format);
    const GLenum glType = Texture::Type2GL(type);
    PixelStoreScope store;
    unpack.apply();
    texSubImage(level, region, glFormat, glType, data);
    checkGL("subImage");
}

// From a pixel buffer, reading from offset on. The offset must lie inside the
// buffer (an offset equal to the size leaves nothing to read) and the buffer
// must not be mapped; data that runs past the end is GL's to refuse. The
// buffer becomes an unpack buffer and stays one.
void TextureTransfer::subImage(int level, Region const& region, Texture::Format format, Texture::Type type,
                               Buffer* pbo, std::size_t offset, const PixelUnpackParameters& unpack,
                               Lines const* lines) const
{
    checkRegion(lines, "subimage", dimensions_, level, region);
    if (offset >= pbo->size())
    {
        std::ostringstream text;
        text << "offset(" << offset << ") is greater than pixel buffer object size" << pbo->size();
        raise(lines ? lines->offset : line_, text.str());
    }
    if (pbo->isMapped())
        raise(lines ? lines->mapped : line_, kMapped);
    const GLenum glFormat = Texture::Format2GL(format);
    const GLenum glType = Texture::Type2GL(type);
    PixelStoreScope store;
    unpack.apply();
    if (!pbo->isUnpackBuffer())
        pbo->convertToUnpackBuffer();
    RebindScope rebind(&WrapperCall::glBindBuffer, pbo->target(), pbo->getBoundID());
    pbo->bind();
    texSubImage(level, region, glFormat, glType, reinterpret_cast<const void*>(offset));
    checkGL("subImage");
}

// ---------------------------------------------------------------------------
// Copies from the current read buffer (of the bound framebuffer object, or of
// the context's own framebuffer) into the level at region's offsets. The read
// region is two-dimensional whatever the texture, so a volume checks width and
// height only. No client memory is involved, so no pixel-store state either.
// ---------------------------------------------------------------------------

void TextureTransfer::copyTexSubImage(int level, Region const& region, int readX, int readY, Lines const* lines) const
{
    checkRegion(lines, "copySubimage", std::min(dimensions_, 2), level, region);
    const GLenum target = texture_.target();
    const GLsizei width = static_cast<GLsizei>(region.width);
    const GLsizei height = static_cast<GLsizei>(region.height);
    switch (dimensions_)
    {
    case 1: ORU_WRAPPER_GL glCopyTexSubImage1D(target, level, region.x, readX, readY, width); break;
    case 2: ORU_WRAPPER_GL glCopyTexSubImage2D(target, level, region.x, region.y, readX, readY, width, height); break;
    default: ORU_WRAPPER_GL glCopyTexSubImage3D(target, level, region.x, region.y, region.z, readX, readY, width, height);
    }
    checkGL("copyTexSubImage");
}

// ---------------------------------------------------------------------------
// What differs by dimension.
// ---------------------------------------------------------------------------

void TextureTransfer::checkRegion(Lines const* lines, char const* operation, int axes, int level,
                                  Region const& region) const
{
    const std::size_t size[3] = { region.width, region.height, region.depth };
    for (int axis = 0; axis < axes; ++axis)
        if (size[axis] == 0)
            raise(lines ? lines->zero[axis] : line_,
                  std::string("error ") + operation + " " + kAxes[axis] + " of zero supplied");
    if (level < 0)
        raise(lines ? lines->level : line_, "a negative texture image mip-map level supplied");
    const std::size_t image[3] = { texture_.width(0), texture_.height(0), texture_.depth(0) };
    for (int axis = 0; axis < axes; ++axis)
    {
        if (size[axis] > image[axis])
        {
            std::ostringstream text;
            text << kAxes[axis] << "(" << size[axis] << ") is greater than " << kImageAxes[axis] << " of image ("
                 << image[axis] << ") ";
            raise(lines ? lines->larger[axis] : line_, text.str());
        }
    }
}

void TextureTransfer::texImage(int level, std::size_t const* size, unsigned int format, unsigned int type,
                               const void* data) const
{
    const GLenum target = texture_.target();
    const GLint internalFormat = static_cast<GLint>(Texture::InternalFormat2GL(texture_.eFormat_));
    const GLsizei w = static_cast<GLsizei>(size[0]), h = static_cast<GLsizei>(size[1]);
    const GLsizei d = static_cast<GLsizei>(size[2]);
    switch (dimensions_)
    {
    case 1: ORU_WRAPPER_GL glTexImage1D(target, level, internalFormat, w, 0, format, type, data); break;
    case 2: ORU_WRAPPER_GL glTexImage2D(target, level, internalFormat, w, h, 0, format, type, data); break;
    default: ORU_WRAPPER_GL glTexImage3D(target, level, internalFormat, w, h, d, 0, format, type, data);
    }
}

void TextureTransfer::texSubImage(int level, Region const& region, unsigned int format, unsigned int type,
                                  const void* pixels) const
{
    const GLenum target = texture_.target();
    const GLsizei w = static_cast<GLsizei>(region.width), h = static_cast<GLsizei>(region.height);
    const GLsizei d = static_cast<GLsizei>(region.depth);
    switch (dimensions_)
    {
    case 1: ORU_WRAPPER_GL glTexSubImage1D(target, level, region.x, w, format, type, pixels); break;
    case 2: ORU_WRAPPER_GL glTexSubImage2D(target, level, region.x, region.y, w, h, format, type, pixels); break;
    default: ORU_WRAPPER_GL glTexSubImage3D(target, level, region.x, region.y, region.z, w, h, d, format, type, pixels);
    }
}

} // namespace OGL
} // namespace Oru
