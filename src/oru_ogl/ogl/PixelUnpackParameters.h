#ifndef ORU_OGL_OGL_PIXELUNPACKPARAMETERS_H
#define ORU_OGL_OGL_PIXELUNPACKPARAMETERS_H

#include "oru_ogl/OglExport.h"

#include <cstddef>

namespace Oru
{
namespace OGL
{

/// How client pixel data handed to a texture upload is laid out: byte
/// swapping, bit order, row length, image height, skipped pixels, rows and
/// images, row alignment. apply() writes it into the context's unpack state;
/// the texture uploads save and restore that state around it. The default
/// describes tightly packed data (1-byte rows), not GL's default of 4.
class ORU_OGL_API PixelUnpackParameters
{
public:
    /// GL_UNPACK_ALIGNMENT values.
    enum teAlignment
    {
        ALIGN_1 = 0,
        ALIGN_2 = 1,
        ALIGN_4 = 2,
        ALIGN_8 = 3
    };

    PixelUnpackParameters();

    /// GL_UNPACK_SWAP_BYTES.
    bool swapBytes() const;
    /// Sets swap bytes.
    void enableSwapBytes();
    /// Clears swap bytes.
    void disableSwapBytes();

    /// GL_UNPACK_LSB_FIRST.
    bool isFirstLSB() const;
    /// Sets LSB first.
    void makeFirstLSB();
    /// Clears LSB first.
    void makeFirstMSB();

    /// 0 means the image's own width (height for imageHeight), as in GL.
    std::size_t rowLength() const;
    /// Sets GL_UNPACK_ROW_LENGTH.
    void setRowLength(std::size_t rowLength);
    /// GL_UNPACK_IMAGE_HEIGHT.
    std::size_t imageHeight() const;
    /// Sets GL_UNPACK_IMAGE_HEIGHT.
    void setImageHeight(std::size_t imageHeight);
    /// GL_UNPACK_SKIP_PIXELS.
    std::size_t skipPixels() const;
    /// Sets GL_UNPACK_SKIP_PIXELS.
    void setSkipPixels(std::size_t skipPixels);
    /// GL_UNPACK_SKIP_ROWS.
    std::size_t skipRows() const;
    /// Sets GL_UNPACK_SKIP_ROWS.
    void setSkipRows(std::size_t skipRows);
    /// GL_UNPACK_SKIP_IMAGES.
    std::size_t skipImages() const;
    /// Sets GL_UNPACK_SKIP_IMAGES.
    void setSkipImages(std::size_t skipImages);

    /// GL_UNPACK_ALIGNMENT.
    teAlignment alignment();
    /// Stored as given; apply() refuses a value outside the enumeration.
    void setAlignment(teAlignment alignment);
    /// 1, 2, 4 or 8 bytes; anything else is refused and changes nothing.
    void setAlignment(unsigned int bytes);

    /// Writes the layout into the current context's unpack state, which is
    /// not restored afterwards.
    void apply() const;

private:
    bool bSwapBytes_;
    bool bFirstLSB_;
    unsigned long long nRowLength_;
    unsigned long long nImageHeight_;
    unsigned long long nSkipPixels_;
    unsigned long long nSkipRows_;
    unsigned long long nSkipImages_;
    teAlignment eAlignment_;
};

} // namespace OGL
} // namespace Oru

#endif
