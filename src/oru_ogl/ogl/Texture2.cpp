#include "oru_ogl/ogl/Texture2.h"

#include "oru_ogl/Enforce.h"
#include "oru_ogl/ogl/GLConstants.h"
#include "oru_ogl/ogl/TextureState.h"
#include "oru_ogl/ogl/TextureTransfer.h"
#include "oru_ogl/ogl/WrapperCall.h"
#include "oru_ogl/ogl/WrapperCheck.h"

#include "oru_core/Math.h"

// Two-dimensional textures: GL_TEXTURE_2D and GL_TEXTURE_RECTANGLE_ARB share everything but
// their target and their mip levels. Storage and transfers are TextureTransfer's, with the lines below.

namespace Oru
{
namespace OGL
{

namespace
{

// The lines that this file's checks report; callers match on them.
const int kPowerOfTwoLine = 41;
const int kWrapLine = 106;
const int kUnknownTypeLine = 132;
TextureTransfer::Lines const kReadLines = { {}, 0, {}, 0, 0, 144, 145 };
TextureTransfer::Lines const kReadIntoBufferLines = { {}, 0, {}, 0, 168, 167, 169 };
TextureTransfer::Lines const kSubImageLines = { { 205, 206 }, 207, { 208, 209 }, 0, 0, 0, 0 };
TextureTransfer::Lines const kSubImageFromBufferLines = { { 241, 242 }, 243, { 244, 245 }, 246, 247, 0, 0 };
TextureTransfer::Lines const kCopyLines = { { 284, 285 }, 286, { 287, 288 }, 0, 0, 0, 0 };

} // namespace

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
    if (!anySize && !powersOfTwo)
        ORU_THROW_AT(kPowerOfTwoLine, "Texture2::ctor hardware only supports power of two textures");
    TextureTransfer(*this, 2, __FILE__, __LINE__).allocate(mipmaps);
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
// S runs along the width, T along the height. Rectangle textures take only
// the clamping modes; GL refuses the others there.
void Texture2::setWrap(WrapMode s, WrapMode t)
{
    if (!isBound())
        ORU_THROW_AT(kWrapLine, "Texture must be enabled (bound & active)");
    ORU_WRAPPER_GL glTexParameteri(target(), GL_TEXTURE_WRAP_S, static_cast<GLint>(WrapMode2GL(s)));
    ORU_WRAPPER_GL glTexParameteri(target(), GL_TEXTURE_WRAP_T, static_cast<GLint>(WrapMode2GL(t)));
    ORU_CHECK_GL(Texture2);
}

std::size_t Texture2::pixelDataSize(int /*level*/, Format format, Type type) const
{
    return TextureTransfer(*this, 2, __FILE__, kUnknownTypeLine).pixelDataSize(format, type);
}

void Texture2::getPixelData(void* dst, int level, Format format, Type type, unsigned int rowAlignment) const
{
    TextureTransfer(*this, 2, __FILE__, __LINE__).getPixelData(dst, level, format, type, rowAlignment, &kReadLines);
}

void Texture2::getPixelData(Buffer* pbo, std::size_t offset, int level, Format format, Type type,
                            unsigned int rowAlignment) const
{
    TextureTransfer(*this, 2, __FILE__, __LINE__)
        .getPixelData(pbo, offset, level, format, type, rowAlignment, &kReadIntoBufferLines);
}

void Texture2::subImage(int level, int x, int y, std::size_t width, std::size_t height, Format format, Type type,
                        const void* data, const PixelUnpackParameters& unpack)
{
    TextureTransfer(*this, 2, __FILE__, __LINE__)
        .subImage(level, { x, y, 0, width, height, 1 }, format, type, data, unpack, &kSubImageLines);
}

void Texture2::subImage(int level, int x, int y, std::size_t width, std::size_t height, Format format, Type type,
                        Buffer* pbo, std::size_t offset, const PixelUnpackParameters& unpack)
{
    TextureTransfer(*this, 2, __FILE__, __LINE__)
        .subImage(level, { x, y, 0, width, height, 1 }, format, type, pbo, offset, unpack, &kSubImageFromBufferLines);
}

void Texture2::copyTexSubImage(int level, int x, int y, int readX, int readY, std::size_t width, std::size_t height)
{
    TextureTransfer(*this, 2, __FILE__, __LINE__)
        .copyTexSubImage(level, { x, y, 0, width, height, 1 }, readX, readY, &kCopyLines);
}

} // namespace OGL
} // namespace Oru
