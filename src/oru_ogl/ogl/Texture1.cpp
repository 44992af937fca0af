#include "oru_ogl/ogl/Texture1.h"

#include "oru_ogl/Enforce.h"
#include "oru_ogl/ogl/GLConstants.h"
#include "oru_ogl/ogl/TextureState.h"
#include "oru_ogl/ogl/TextureTransfer.h"
#include "oru_ogl/ogl/WrapperCall.h"
#include "oru_ogl/ogl/WrapperCheck.h"

#include "oru_core/Math.h"

// One-dimensional textures (lookup tables, mostly), as Texture2 with one coordinate: the
// same checks in the same order, the same messages, each at the line of the member that ran it.

namespace Oru
{
namespace OGL
{

namespace
{

// The line that the size rule reports; callers match on it.
const int kPowerOfTwoLine = 36;

} // namespace

// Only non-power-of-two support lifts the size rule here: rectangle textures
// say nothing about one-dimensional ones. The message is the one the 2D
// textures give, so that callers meet a single text for the rule. A refused
// size leaves no name behind: the base destructor deletes it.
Texture1::Texture1(Target target, TargetBinding binding, InternalFormat format, std::size_t width, bool mipmaps)
    : Texture(target, binding, format, width, 1, 1)
{
    const bool anySize = TextureState::supportsNonPowerOfTwo();
    if (!anySize && !isPowerOfTwo(static_cast<unsigned int>(width)))
        ORU_THROW_AT(kPowerOfTwoLine, "Texture2::ctor hardware only supports power of two textures");
    TextureTransfer(*this, 1, __FILE__, __LINE__).allocate(mipmaps);
}

Texture1::~Texture1() = default;

void Texture1::setWrap(WrapMode s)
{
    ORU_WRAPPER_GL glTexParameteri(target(), GL_TEXTURE_WRAP_S, static_cast<GLint>(WrapMode2GL(s)));
    ORU_CHECK_GL(Texture1);
}

std::size_t Texture1::pixelDataSize(int /*level*/, Format format, Type type) const
{
    return TextureTransfer(*this, 1, __FILE__, __LINE__).pixelDataSize(format, type);
}

void Texture1::getPixelData(void* dst, int level, Format format, Type type, unsigned int rowAlignment) const
{
    TextureTransfer(*this, 1, __FILE__, __LINE__).getPixelData(dst, level, format, type, rowAlignment);
}

void Texture1::getPixelData(Buffer* pbo, std::size_t offset, int level, Format format, Type type,
                            unsigned int rowAlignment) const
{
    TextureTransfer(*this, 1, __FILE__, __LINE__)
        .getPixelData(pbo, offset, level, format, type, rowAlignment);
}

void Texture1::subImage(int level, int x, std::size_t width, Format format, Type type, const void* data,
                        const PixelUnpackParameters& unpack)
{
    TextureTransfer(*this, 1, __FILE__, __LINE__)
        .subImage(level, { x, 0, 0, width, 1, 1 }, format, type, data, unpack);
}

void Texture1::subImage(int level, int x, std::size_t width, Format format, Type type, Buffer* pbo,
                        std::size_t offset, const PixelUnpackParameters& unpack)
{
    TextureTransfer(*this, 1, __FILE__, __LINE__)
        .subImage(level, { x, 0, 0, width, 1, 1 }, format, type, pbo, offset, unpack);
}

void Texture1::copyTexSubImage(int level, int x, int readX, int readY, std::size_t width)
{
    TextureTransfer(*this, 1, __FILE__, __LINE__).copyTexSubImage(level, { x, 0, 0, width, 1, 1 }, readX, readY);
}

Texture1D::Texture1D(InternalFormat format, std::size_t width, bool mipmaps)
    : Texture1(TEXTURE_1D, TEXTURE_BINDING_1D, format, width, mipmaps)
{
}

Texture1D::~Texture1D() = default;

} // namespace OGL
} // namespace Oru
