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
    enum teAlignment
    {
        ALIGN_1 = 0,
        ALIGN_2 = 1,
        ALIGN_4 = 2,
        ALIGN_8 = 3
    };

    PixelUnpackParameters();

    bool swapBytes() const;
    void enableSwapBytes();
    void disableSwapBytes();

    bool isFirstLSB() const;
    void makeFirstLSB();
    void makeFirstMSB();

    /// 0 means the image's own width (height for imageHeight), as in GL.
    std::size_t rowLength() const;
    void setRowLength(std::size_t rowLength);
    std::size_t imageHeight() const;
    void setImageHeight(std::size_t imageHeight);
    std::size_t skipPixels() const;
    void setSkipPixels(std::size_t skipPixels);
    std::size_t skipRows() const;
    void setSkipRows(std::size_t skipRows);
    std::size_t skipImages() const;
    void setSkipImages(std::size_t skipImages);

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
