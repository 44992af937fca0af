#ifndef ORU_REPLAY_IMAGE_H
#define ORU_REPLAY_IMAGE_H

#include <string>
#include <vector>

namespace Oru
{
namespace Replay
{

/// 8-bit RGBA pixels, rows bottom-up as glReadPixels returns them.
struct Image
{
    unsigned int width = 0;          ///< in pixels
    unsigned int height = 0;         ///< in pixels
    std::vector<unsigned char> rgba; ///< width * height * 4 bytes
};

/// Reads the RGBA pixels of the current read buffer, whatever the pixel-store
/// state of the caller (it is saved and restored).
/// @param width  pixels to read from the left edge
/// @param height rows to read from the bottom
/// @return the pixels, rows bottom-up
Image readFramebuffer(unsigned int width, unsigned int height);

/// Writes an 8-bit RGBA PNG (top row first, as PNG wants it).
/// @param path  the file to write, replaced if it exists
/// @param image the pixels; width * height * 4 bytes, neither size 0
/// @return false when the image is empty or inconsistent or the file cannot
///         be written
bool writePng(std::string const& path, Image const& image);

/// Reads a PNG of any colour type and bit depth, converted to 8-bit RGBA
/// (rows bottom-up, as writePng takes them).
/// @param path  the file to read
/// @param image receives the pixels; left unchanged on failure
/// @return false when the file cannot be read or is not a valid PNG
bool readPng(std::string const& path, Image& image);

/// Pixels that differ between two images of one size (every pixel when the
/// sizes differ).
/// @param a one image
/// @param b the other
/// @return the count of pixels whose four bytes are not all equal
unsigned long long differingPixels(Image const& a, Image const& b);

} // namespace Replay
} // namespace Oru

#endif
