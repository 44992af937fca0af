#ifndef ORU_OGL_OGL_TEXTURE2_H
#define ORU_OGL_OGL_TEXTURE2_H

#include "oru_ogl/OglExport.h"
#include "oru_ogl/ogl/Texture.h"

#include <cstddef>

namespace Oru
{
namespace OGL
{

class Buffer;
class PixelUnpackParameters;

/// A two-dimensional texture: storage, sub-image upload from memory or from a
/// pixel buffer object, read-back into memory or into a pixel buffer object,
/// and copies from the read buffer. Sizes are checked against the level-0
/// image. Uploads and copies act on the texture bound to the target of the
/// active unit, which the caller binds; read-backs refuse an unbound texture.
class ORU_OGL_API Texture2 : public Texture
{
public:
    /// Deletes the GL texture name.
    virtual ~Texture2();

    /// Sets GL_TEXTURE_WRAP_S and _T of this texture; refused while another
    /// texture is bound, as the parameters would land on that one. Rectangle
    /// textures take only the clamping modes (GL refuses the others there).
    /// @param s the wrap mode along the width
    /// @param t the wrap mode along the height
    /// @throws Oru::InternalException "Texture must be enabled (bound & active)" unless
    ///         this texture is bound to its target on the active unit;
    ///         "!\"WrapMode enums are not all properly translated.\"" for a value
    ///         outside the enumeration
    /// @throws Oru::OGL::ExceptionOGL "Object::getBoundID: <gluErrorString text>" or
    ///         "Texture2::setWrap: <gluErrorString text>" with checked wrappers on,
    ///         when GL has an error pending after a step
    void setWrap(WrapMode s, WrapMode t);

    /// Bytes of the level-0 image as client data in format and type, without
    /// row padding. The level is accepted and not used, so one buffer sized
    /// with it serves every level.
    /// @param level  not used
    /// @param format the pixel format of the client data
    /// @param type   the data type of the client data
    /// @return channels of format x bytes of one component of type x texels of level 0
    /// @throws Oru::InternalException "pixelDataSize: Unknown type " followed by
    ///         TokenName of the layer's own value of type, for the packed types,
    ///         bitmaps and the 32-bit integer types; "InternalFormat enums are not
    ///         all properly sized." for a format outside the enumeration
    std::size_t pixelDataSize(int level, Format format, Type type) const;

    /// Reads a level back into memory (glGetTexImage); the caller's pixel-store
    /// state is saved and restored around it.
    /// @param dst          receives the level, rows padded to rowAlignment; at
    ///                     least pixelDataSize() bytes (with padding) for level 0
    /// @param level        the mip level, 0 for the base image
    /// @param format       the pixel format to read in; not Format::COLOR_INDEX
    /// @param type         the data type to read in
    /// @param rowAlignment the pack alignment of the rows written: 1, 2, 4 or 8
    /// @throws Oru::InternalException "Texture must be bound" unless this texture is
    ///         bound to its target on the active unit; "COLOR_INDEX not allowed
    ///         here!"; "Invalid row byte alignment (must be of 1, 2, 4, or 8)."
    /// @throws Oru::InternalException "!\"Format enums are not all properly translated.\""
    ///         or "!\"Type enums are not all properly translated.\"" for values
    ///         outside the enumerations
    /// @throws Oru::OGL::ExceptionOGL "Object::getBoundID: <gluErrorString text>" or
    ///         "Texture2::getPixelData: <gluErrorString text>" with checked wrappers on,
    ///         when GL has an error pending after a step
    void getPixelData(void* dst, int level, Format format, Type type, unsigned int rowAlignment) const;
    /// Reads a level back into a pixel buffer at offset, to be collected later
    /// without a stall now. The buffer becomes a pack buffer and stays one; its
    /// binding is put back afterwards. GL refuses a read that overruns it.
    /// @param pbo          the buffer, not mapped; not null
    /// @param offset       the byte offset in the buffer
    /// @param level        the mip level, 0 for the base image
    /// @param format       the pixel format to read in; not Format::COLOR_INDEX
    /// @param type         the data type to read in
    /// @param rowAlignment the pack alignment of the rows written: 1, 2, 4 or 8
    /// @throws Oru::InternalException "Texture must be bound" unless this texture is
    ///         bound to its target on the active unit; "Pixel Buffer Object cannot
    ///         be memory mapped during data transfer" for a mapped buffer;
    ///         "COLOR_INDEX not allowed here!"; "Invalid row byte alignment (must be
    ///         of 1, 2, 4, or 8)."; and what Buffer::convertToPackBuffer() throws
    /// @throws Oru::InternalException "!\"Format enums are not all properly translated.\""
    ///         or "!\"Type enums are not all properly translated.\"" for values
    ///         outside the enumerations
    /// @throws Oru::OGL::ExceptionOGL "Texture2::getPixelData: <gluErrorString text>" (or
    ///         "Object::getBoundID: ..." or "Buffer::bind: ...") with checked wrappers on,
    ///         when GL has an error pending after a step
    void getPixelData(Buffer* pbo, std::size_t offset, int level, Format format, Type type,
                      unsigned int rowAlignment) const;

    /// Uploads a rectangle of a level from memory to the texture bound to the
    /// target of the active unit (the caller binds this one; not checked). The
    /// caller's unpack state is saved, replaced by unpack and restored.
    /// @param level  the mip level, 0 for the base image
    /// @param x      the first texel along the width
    /// @param y      the first texel along the height
    /// @param width  in texels, 1 or more and at most the level-0 width
    /// @param height in texels, 1 or more and at most the level-0 height
    /// @param format the pixel format of data
    /// @param type   the data type of data
    /// @param data   the texels, laid out as unpack says; not kept
    /// @param unpack the row length, skips, alignment and byte order of data
    /// @throws Oru::InternalException all before any GL call: for a zero size
    ///         "error subimage width of zero supplied",
    ///         "error subimage height of zero supplied";
    ///         "a negative texture image mip-map level supplied"; for a size
    ///         beyond level 0 (note the trailing space and the height's "width")
    ///         "width(<size>) is greater than width of image (<level-0 width>) ",
    ///         "height(<size>) is greater than width of image (<level-0 height>) "
    /// @throws Oru::InternalException what PixelUnpackParameters::apply() throws for
    ///         its alignment, and the format and type refusals
    /// @throws Oru::InternalException "!\"Format enums are not all properly translated.\""
    ///         or "!\"Type enums are not all properly translated.\""
    /// @throws Oru::OGL::ExceptionOGL "Texture2::subImage: <gluErrorString text>" with
    ///         checked wrappers on, when GL has an error pending afterwards
    void subImage(int level, int x, int y, std::size_t width, std::size_t height, Format format, Type type,
                  const void* data, const PixelUnpackParameters& unpack);
    /// Uploads a rectangle of a level from a pixel buffer, reading from offset on.
    /// The buffer becomes an unpack buffer and stays one; its binding is put back
    /// afterwards. GL refuses data that runs past the buffer's end.
    /// @param level  the mip level, 0 for the base image
    /// @param x      the first texel along the width
    /// @param y      the first texel along the height
    /// @param width  in texels, 1 or more and at most the level-0 width
    /// @param height in texels, 1 or more and at most the level-0 height
    /// @param format the pixel format of the buffer's data
    /// @param type   the data type of the buffer's data
    /// @param pbo    the buffer, not mapped; not null
    /// @param offset the byte offset of the first texel, below the buffer's size
    /// @param unpack the row length, skips, alignment and byte order of the data
    /// @throws Oru::InternalException all before any GL call: for a zero size
    ///         "error subimage width of zero supplied",
    ///         "error subimage height of zero supplied";
    ///         "a negative texture image mip-map level supplied"; for a size
    ///         beyond level 0 (note the trailing space and the height's "width")
    ///         "width(<size>) is greater than width of image (<level-0 width>) ",
    ///         "height(<size>) is greater than width of image (<level-0 height>) "
    /// @throws Oru::InternalException "offset(<offset>) is greater than pixel buffer
    ///         object size<size>" for an offset at or past the end; "Pixel Buffer
    ///         Object cannot be memory mapped during data transfer" for a mapped
    ///         buffer; what PixelUnpackParameters::apply() and
    ///         Buffer::convertToUnpackBuffer() throw; the format and type refusals
    ///         "!\"Format enums are not all properly translated.\"" or
    ///         "!\"Type enums are not all properly translated.\""
    /// @throws Oru::OGL::ExceptionOGL "Texture2::subImage: <gluErrorString text>" (or the
    ///         buffer's own "Buffer::<member>: ...") with checked wrappers on, when GL
    ///         has an error pending after a step
    void subImage(int level, int x, int y, std::size_t width, std::size_t height, Format format, Type type,
                  Buffer* pbo, std::size_t offset, const PixelUnpackParameters& unpack);

    /// Copies width x height pixels at (readX, readY) of the current read buffer (of the bound framebuffer
    /// object, or of the context's own) into the level of the texture bound to
    /// the target of the active unit.
    /// @param level  the mip level, 0 for the base image
    /// @param x      the first texel written along the width
    /// @param y      the first texel written along the height
    /// @param readX  the left column of the read buffer
    /// @param readY  the row of the read buffer (the bottom one for 2D and 3D)
    /// @param width  in pixels, 1 or more and at most the level-0 width
    /// @param height in pixels, 1 or more and at most the level-0 height
    /// @throws Oru::InternalException all before any GL call: for a zero size
    ///         "error copySubimage width of zero supplied",
    ///         "error copySubimage height of zero supplied";
    ///         "a negative texture image mip-map level supplied"; for a size
    ///         beyond level 0 (note the trailing space and the height's "width")
    ///         "width(<size>) is greater than width of image (<level-0 width>) ",
    ///         "height(<size>) is greater than width of image (<level-0 height>) "
    /// @throws Oru::OGL::ExceptionOGL "Texture2::copyTexSubImage: <gluErrorString text>" with
    ///         checked wrappers on, when GL has an error pending afterwards
    void copyTexSubImage(int level, int x, int y, int readX, int readY, std::size_t width, std::size_t height);

protected:
    /// Creates the texture and its storage for level 0 (and the mip chain with
    /// mipmaps), texels undefined, nearest sampling and edge clamping; the
    /// target's binding is put back afterwards.
    /// @param target  the texture target
    /// @param binding the binding query of that target
    /// @param format  the internal format
    /// @param width   the level-0 width in texels
    /// @param height  the level-0 height in texels
    /// @param mipmaps whether to allocate every mip level down to 1 texel
    /// @throws Oru::InternalException "Texture2::ctor hardware only supports power of
    ///         two textures" for sizes that are not powers of two on a driver with
    ///         neither non-power-of-two nor rectangle textures, and what
    ///         Texture::Texture() throws
    /// @throws Oru::OGL::ExceptionOGL "Texture2::Texture2: <gluErrorString text>" with
    ///         checked wrappers on, when GL has an error pending afterwards
    Texture2(Target target, TargetBinding binding, InternalFormat format, std::size_t width, std::size_t height,
             bool mipmaps);
};

/// A GL_TEXTURE_2D texture.
class ORU_OGL_API Texture2D : public Texture2
{
public:
    /// Whether 2D textures are available.
    /// @return true, always
    static bool isSupported();

    /// A 2D texture with storage, texels undefined.
    /// @param format  the internal format
    /// @param width   in texels
    /// @param height  in texels; both powers of two on a driver with neither
    ///                non-power-of-two nor rectangle textures
    /// @param mipmaps whether to allocate every mip level down to 1 texel
    /// @throws Oru::InternalException "Texture2::ctor hardware only supports power of
    ///         two textures" for sizes the driver cannot take; "Texture:: contructor
    ///         failed to allocate new GPU texture resource" when GL gives no name (no
    ///         current context); "Enforce pInstance_ != NULL" while the layer is not
    ///         started; "!\"InternalFormat enums are not all properly translated.\""
    ///         for a format outside the enumeration
    /// @throws Oru::OGL::ExceptionOGL "Texture2::Texture2: <gluErrorString text>" with
    ///         checked wrappers on, when GL has an error pending afterwards
    Texture2D(InternalFormat format, std::size_t width, std::size_t height, bool mipmaps);
    /// Deletes the GL texture name.
    virtual ~Texture2D();
};

/// A GL_TEXTURE_RECTANGLE_ARB texture: any size, no mip levels, texel
/// coordinates.
class ORU_OGL_API TextureRECT : public Texture2
{
public:
    /// Whether GL_ARB_texture_rectangle is supported.
    /// @return true when the extension manager marked it
    /// @throws Oru::InternalException "Enforce pInstance_ != NULL" while the layer is not started
    static bool isSupported();

    /// A rectangle texture of any size, texels undefined; it has no mip levels.
    /// @param format the internal format
    /// @param width  in texels
    /// @param height in texels
    /// @throws Oru::InternalException "Texture:: contructor failed to allocate new GPU
    ///         texture resource" when GL gives no name (no current context);
    ///         "Enforce pInstance_ != NULL" while the layer is not started;
    ///         "!\"InternalFormat enums are not all properly translated.\"" for a
    ///         format outside the enumeration
    /// @throws Oru::OGL::ExceptionOGL "Texture2::Texture2: <gluErrorString text>" with
    ///         checked wrappers on, when GL has an error pending afterwards; a
    ///         driver without rectangle textures refuses the target this way
    TextureRECT(InternalFormat format, std::size_t width, std::size_t height);
    /// Deletes the GL texture name.
    virtual ~TextureRECT();
};

} // namespace OGL
} // namespace Oru

#endif
