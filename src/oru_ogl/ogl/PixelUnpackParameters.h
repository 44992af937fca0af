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

    /// Tightly packed data: no byte swapping, most significant bit first, row
    /// length, image height and skips 0, alignment 1.
    PixelUnpackParameters();

    /// GL_UNPACK_SWAP_BYTES.
    /// @return whether multi-byte components are byte-swapped
    bool swapBytes() const;
    /// Sets swap bytes.
    void enableSwapBytes();
    /// Clears swap bytes.
    void disableSwapBytes();

    /// GL_UNPACK_LSB_FIRST.
    /// @return whether bitmap bits are taken least significant first
    bool isFirstLSB() const;
    /// Sets LSB first.
    void makeFirstLSB();
    /// Clears LSB first.
    void makeFirstMSB();

    /// GL_UNPACK_ROW_LENGTH.
    /// @return pixels per row of the client data; 0 means the image's own width, as in GL
    std::size_t rowLength() const;
    /// Sets GL_UNPACK_ROW_LENGTH.
    /// @param rowLength pixels per row of the client data, 0 for the image's own width
    void setRowLength(std::size_t rowLength);
    /// GL_UNPACK_IMAGE_HEIGHT.
    /// @return rows per image of 3D client data; 0 means the image's own height
    std::size_t imageHeight() const;
    /// Sets GL_UNPACK_IMAGE_HEIGHT.
    /// @param imageHeight rows per image of 3D client data, 0 for the image's own height
    void setImageHeight(std::size_t imageHeight);
    /// GL_UNPACK_SKIP_PIXELS.
    /// @return pixels skipped at the start of each row
    std::size_t skipPixels() const;
    /// Sets GL_UNPACK_SKIP_PIXELS.
    /// @param skipPixels pixels to skip at the start of each row
    void setSkipPixels(std::size_t skipPixels);
    /// GL_UNPACK_SKIP_ROWS.
    /// @return rows skipped at the start of the data
    std::size_t skipRows() const;
    /// Sets GL_UNPACK_SKIP_ROWS.
    /// @param skipRows rows to skip at the start of the data
    void setSkipRows(std::size_t skipRows);
    /// GL_UNPACK_SKIP_IMAGES.
    /// @return images skipped at the start of 3D data
    std::size_t skipImages() const;
    /// Sets GL_UNPACK_SKIP_IMAGES.
    /// @param skipImages images to skip at the start of 3D data
    void setSkipImages(std::size_t skipImages);

    /// GL_UNPACK_ALIGNMENT.
    /// @return the row alignment as stored
    teAlignment alignment();
    /// Stored as given; apply() refuses a value outside the enumeration.
    /// @param alignment the row alignment
    void setAlignment(teAlignment alignment);
    /// Sets the row alignment in bytes.
    /// @param bytes 1, 2, 4 or 8; anything else is refused and changes nothing
    /// @throws Oru::InternalException
    ///         "!\"Unsupported aligment in PixelUnpackParameters::setAlignment!\""
    ///         for any other value
    void setAlignment(unsigned int bytes);

    /// Writes the layout into the current context's unpack state (glPixelStorei),
    /// which is not restored afterwards.
    /// @throws Oru::InternalException "Enum value not recognized" for an alignment
    ///         stored from a value outside the enumeration; "Enforce pInstance_ != NULL"
    ///         while the layer is not started (the 3D fields are written only
    ///         where 3D textures are supported)
    /// @throws Oru::OGL::ExceptionOGL "PixelUnpackParameters::apply: <gluErrorString text>"
    ///         with checked wrappers on, when GL has an error pending afterwards
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
