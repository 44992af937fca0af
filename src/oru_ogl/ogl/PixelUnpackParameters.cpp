#include "oru_ogl/ogl/PixelUnpackParameters.h"

#include "oru_ogl/Enforce.h"
#include "oru_ogl/extensionator/ExtensionManager.h"
#include "oru_ogl/ogl/GLConstants.h"
#include "oru_ogl/ogl/WrapperCall.h"
#include "oru_ogl/ogl/WrapperCheck.h"

// The layout of client pixel data that a texture upload reads, as a value the
// caller fills in once and hands to every upload that needs it.
//
// GL reads an image from client memory (or from a pixel-unpack buffer, where
// the pointer is an offset) row by row. For each row it starts at
//
//     base + ((skipImages * imageHeight + skipRows + y) * rowLength + skipPixels) * pixelSize
//
// with rowLength and imageHeight falling back to the width and height of the
// upload when 0, and each row start rounded up to the alignment. The byte-
// order and bit-order flags apply to each element read.
//
// The object itself touches GL only in apply(). Nothing is checked against the
// image a layout is later used with: a row length shorter than the upload's
// width, for example, is legal GL (rows overlap) and stays the caller's call.

namespace Oru
{
namespace OGL
{

namespace
{

// The lines that this file's checks report; callers match on them.
const int kBadBytesLine = 175;
const int kBadAlignmentLine = 216;

} // namespace

// Tightly packed rows by default: the usual case for image data held in
// arrays, where GL's own default of 4-byte rows silently skews any image whose
// row size is not a multiple of four (RGB8 of odd width, LUMINANCE8, ...).
PixelUnpackParameters::PixelUnpackParameters()
    : bSwapBytes_(false)
    , bFirstLSB_(false)
    , nRowLength_(0)
    , nImageHeight_(0)
    , nSkipPixels_(0)
    , nSkipRows_(0)
    , nSkipImages_(0)
    , eAlignment_(ALIGN_1)
{
}

// ---------------------------------------------------------------------------
// Element order. Byte swapping reverses the bytes of each element of 2, 4 or 8
// bytes (data written on a machine of the other endianness); single bytes are
// unaffected. The bit order matters only for bitmap data (one bit per pixel):
// it says whether the first pixel of a byte is its least significant bit.
// ---------------------------------------------------------------------------

bool PixelUnpackParameters::swapBytes() const
{
    return bSwapBytes_;
}

void PixelUnpackParameters::enableSwapBytes()
{
    bSwapBytes_ = true;
}

void PixelUnpackParameters::disableSwapBytes()
{
    bSwapBytes_ = false;
}

bool PixelUnpackParameters::isFirstLSB() const
{
    return bFirstLSB_;
}

void PixelUnpackParameters::makeFirstLSB()
{
    bFirstLSB_ = true;
}

void PixelUnpackParameters::makeFirstMSB()
{
    bFirstLSB_ = false;
}

// ---------------------------------------------------------------------------
// Sub-rectangles of a larger image in memory. To upload the region at (x, y)
// of size w x h out of an image W pixels wide, set the row length to W, skip
// x pixels and y rows, and upload w x h from the image's start. The image
// height and skipped images do the same for the slices of a 3D image; they
// are applied only where the context has 3D textures at all.
// ---------------------------------------------------------------------------

std::size_t PixelUnpackParameters::rowLength() const
{
    return static_cast<std::size_t>(nRowLength_);
}

void PixelUnpackParameters::setRowLength(std::size_t rowLength)
{
    nRowLength_ = rowLength;
}

std::size_t PixelUnpackParameters::imageHeight() const
{
    return static_cast<std::size_t>(nImageHeight_);
}

void PixelUnpackParameters::setImageHeight(std::size_t imageHeight)
{
    nImageHeight_ = imageHeight;
}

std::size_t PixelUnpackParameters::skipPixels() const
{
    return static_cast<std::size_t>(nSkipPixels_);
}

void PixelUnpackParameters::setSkipPixels(std::size_t skipPixels)
{
    nSkipPixels_ = skipPixels;
}

std::size_t PixelUnpackParameters::skipRows() const
{
    return static_cast<std::size_t>(nSkipRows_);
}

void PixelUnpackParameters::setSkipRows(std::size_t skipRows)
{
    nSkipRows_ = skipRows;
}

std::size_t PixelUnpackParameters::skipImages() const
{
    return static_cast<std::size_t>(nSkipImages_);
}

void PixelUnpackParameters::setSkipImages(std::size_t skipImages)
{
    nSkipImages_ = skipImages;
}

// ---------------------------------------------------------------------------
// Row alignment: each row of the source starts on a multiple of this many
// bytes. GL accepts 1, 2, 4 and 8 only. The alignment is kept as an
// enumeration rather than a byte count, so that a stored value is normally
// one GL takes; setAlignment(teAlignment) stores what it is given, though,
// and apply() is where a value outside the enumeration is caught.
// ---------------------------------------------------------------------------

PixelUnpackParameters::teAlignment PixelUnpackParameters::alignment()
{
    return eAlignment_;
}

void PixelUnpackParameters::setAlignment(teAlignment alignment)
{
    eAlignment_ = alignment;
}

// From a byte count, as image libraries report their row alignment. Any
// other count is refused, and the stored alignment stays as it was.
void PixelUnpackParameters::setAlignment(unsigned int bytes)
{
    switch (bytes)
    {
    case 1:
        eAlignment_ = ALIGN_1;
        break;
    case 2:
        eAlignment_ = ALIGN_2;
        break;
    case 4:
        eAlignment_ = ALIGN_4;
        break;
    case 8:
        eAlignment_ = ALIGN_8;
        break;
    default:
        ORU_VERIFY_AT(kBadBytesLine, !"Unsupported aligment in PixelUnpackParameters::setAlignment!");
    }
}

// The texture uploads bracket this with glPushClientAttrib(GL_CLIENT_PIXEL_STORE_BIT)
// and glPopClientAttrib(), so a caller of an upload never sees these values
// afterwards. A caller of apply() alone owns the state it leaves behind and
// saves it first if other code depends on it. Every value is written, the
// defaults included, since the context's state is unknown here.
// Order: flags, row length and skips, the 3D pair, the alignment last; the 3D pair is left
// alone without 3D textures, where the names may not exist. An alignment outside the
// enumeration comes last, after the others were written; the caller restores the pushed state.
void PixelUnpackParameters::apply() const
{
    ORU_WRAPPER_GL glPixelStorei(GL_UNPACK_SWAP_BYTES, bSwapBytes_ ? 1 : 0);
    ORU_WRAPPER_GL glPixelStorei(GL_UNPACK_LSB_FIRST, bFirstLSB_ ? 1 : 0);
    ORU_WRAPPER_GL glPixelStorei(GL_UNPACK_ROW_LENGTH, static_cast<GLint>(nRowLength_));
    ORU_WRAPPER_GL glPixelStorei(GL_UNPACK_SKIP_PIXELS, static_cast<GLint>(nSkipPixels_));
    ORU_WRAPPER_GL glPixelStorei(GL_UNPACK_SKIP_ROWS, static_cast<GLint>(nSkipRows_));
    if (ExtensionManager::Instance()->supportsTexture3D())
    {
        ORU_WRAPPER_GL glPixelStorei(GL_UNPACK_IMAGE_HEIGHT, static_cast<GLint>(nImageHeight_));
        ORU_WRAPPER_GL glPixelStorei(GL_UNPACK_SKIP_IMAGES, static_cast<GLint>(nSkipImages_));
    }
    GLint bytes = 0;
    switch (eAlignment_)
    {
    case ALIGN_1:
        bytes = 1;
        break;
    case ALIGN_2:
        bytes = 2;
        break;
    case ALIGN_4:
        bytes = 4;
        break;
    case ALIGN_8:
        bytes = 8;
        break;
    default:
        ORU_THROW_AT(kBadAlignmentLine, "Enum value not recognized");
    }
    ORU_WRAPPER_GL glPixelStorei(GL_UNPACK_ALIGNMENT, bytes);
    ORU_CHECK_GL(PixelUnpackParameters);
}

} // namespace OGL
} // namespace Oru
