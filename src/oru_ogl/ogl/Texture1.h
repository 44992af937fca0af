#ifndef ORU_OGL_OGL_TEXTURE1_H
#define ORU_OGL_OGL_TEXTURE1_H

#include "oru_ogl/OglExport.h"
#include "oru_ogl/ogl/Texture.h"

#include <cstddef>

namespace Oru
{
namespace OGL
{

class Buffer;
class PixelUnpackParameters;

/// A one-dimensional texture; the operations are Texture2's with one
/// coordinate (height and depth are 1).
class ORU_OGL_API Texture1 : public Texture
{
public:
    /// Deletes the GL texture name.
    virtual ~Texture1();

    /// Sets the wrap modes on whatever texture is bound to the target of the
    /// active unit: the caller binds this one first.
    /// @param s the wrap mode along the width
    /// @throws Oru::InternalException "!\"WrapMode enums are not all properly translated.\""
    ///         for a value outside the enumeration
    /// @throws Oru::OGL::ExceptionOGL "Texture1::setWrap: <gluErrorString text>" with
    ///         checked wrappers on, when GL has an error pending afterwards
    void setWrap(WrapMode s);

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
    ///         "Texture1::getPixelData: <gluErrorString text>" with checked wrappers on,
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
    /// @throws Oru::OGL::ExceptionOGL "Texture1::getPixelData: <gluErrorString text>" (or
    ///         "Object::getBoundID: ..." or "Buffer::bind: ...") with checked wrappers on,
    ///         when GL has an error pending after a step
    void getPixelData(Buffer* pbo, std::size_t offset, int level, Format format, Type type,
                      unsigned int rowAlignment) const;
    /// Uploads a range of a level from memory to the texture bound to the
    /// target of the active unit (the caller binds this one; not checked). The
    /// caller's unpack state is saved, replaced by unpack and restored.
    /// @param level  the mip level, 0 for the base image
    /// @param x      the first texel along the width
    /// @param width  in texels, 1 or more and at most the level-0 width
    /// @param format the pixel format of data
    /// @param type   the data type of data
    /// @param data   the texels, laid out as unpack says; not kept
    /// @param unpack the row length, skips, alignment and byte order of data
    /// @throws Oru::InternalException all before any GL call: for a zero size
    ///         "error subimage width of zero supplied";
    ///         "a negative texture image mip-map level supplied"; for a size
    ///         beyond level 0 (note the trailing space)
    ///         "width(<size>) is greater than width of image (<level-0 width>) "
    /// @throws Oru::InternalException what PixelUnpackParameters::apply() throws for
    ///         its alignment, and the format and type refusals
    /// @throws Oru::InternalException "!\"Format enums are not all properly translated.\""
    ///         or "!\"Type enums are not all properly translated.\""
    /// @throws Oru::OGL::ExceptionOGL "Texture1::subImage: <gluErrorString text>" with
    ///         checked wrappers on, when GL has an error pending afterwards
    void subImage(int level, int x, std::size_t width, Format format, Type type, const void* data,
                  const PixelUnpackParameters& unpack);
    /// Uploads a range of a level from a pixel buffer, reading from offset on.
    /// The buffer becomes an unpack buffer and stays one; its binding is put back
    /// afterwards. GL refuses data that runs past the buffer's end.
    /// @param level  the mip level, 0 for the base image
    /// @param x      the first texel along the width
    /// @param width  in texels, 1 or more and at most the level-0 width
    /// @param format the pixel format of the buffer's data
    /// @param type   the data type of the buffer's data
    /// @param pbo    the buffer, not mapped; not null
    /// @param offset the byte offset of the first texel, below the buffer's size
    /// @param unpack the row length, skips, alignment and byte order of the data
    /// @throws Oru::InternalException all before any GL call: for a zero size
    ///         "error subimage width of zero supplied";
    ///         "a negative texture image mip-map level supplied"; for a size
    ///         beyond level 0 (note the trailing space)
    ///         "width(<size>) is greater than width of image (<level-0 width>) "
    /// @throws Oru::InternalException "offset(<offset>) is greater than pixel buffer
    ///         object size<size>" for an offset at or past the end; "Pixel Buffer
    ///         Object cannot be memory mapped during data transfer" for a mapped
    ///         buffer; what PixelUnpackParameters::apply() and
    ///         Buffer::convertToUnpackBuffer() throw; the format and type refusals
    ///         "!\"Format enums are not all properly translated.\"" or
    ///         "!\"Type enums are not all properly translated.\""
    /// @throws Oru::OGL::ExceptionOGL "Texture1::subImage: <gluErrorString text>" (or the
    ///         buffer's own "Buffer::<member>: ...") with checked wrappers on, when GL
    ///         has an error pending after a step
    void subImage(int level, int x, std::size_t width, Format format, Type type, Buffer* pbo, std::size_t offset,
                  const PixelUnpackParameters& unpack);
    /// Copies width pixels of row readY from readX on of the current read buffer (of the bound framebuffer
    /// object, or of the context's own) into the level of the texture bound to
    /// the target of the active unit.
    /// @param level  the mip level, 0 for the base image
    /// @param x      the first texel written along the width
    /// @param readX  the left column of the read buffer
    /// @param readY  the row of the read buffer (the bottom one for 2D and 3D)
    /// @param width  in pixels, 1 or more and at most the level-0 width
    /// @throws Oru::InternalException all before any GL call: for a zero size
    ///         "error copySubimage width of zero supplied";
    ///         "a negative texture image mip-map level supplied"; for a size
    ///         beyond level 0 (note the trailing space)
    ///         "width(<size>) is greater than width of image (<level-0 width>) "
    /// @throws Oru::OGL::ExceptionOGL "Texture1::copyTexSubImage: <gluErrorString text>" with
    ///         checked wrappers on, when GL has an error pending afterwards
    void copyTexSubImage(int level, int x, int readX, int readY, std::size_t width);

protected:
    /// Creates the texture and its storage for level 0 (and the mip chain with
    /// mipmaps), texels undefined, nearest sampling and edge clamping; the
    /// target's binding is put back afterwards.
    /// @param target  the texture target
    /// @param binding the binding query of that target
    /// @param format  the internal format
    /// @param width   the level-0 width in texels; a power of two without
    ///                non-power-of-two support
    /// @param mipmaps whether to allocate every mip level down to 1 texel
    /// @throws Oru::InternalException "Texture2::ctor hardware only supports power of
    ///         two textures" (the 2D text, on purpose) for a width the driver cannot
    ///         take, and what Texture::Texture() throws
    /// @throws Oru::OGL::ExceptionOGL "Texture1::Texture1: <gluErrorString text>" with
    ///         checked wrappers on, when GL has an error pending afterwards
    Texture1(Target target, TargetBinding binding, InternalFormat format, std::size_t width, bool mipmaps);
};

/// A GL_TEXTURE_1D texture.
class ORU_OGL_API Texture1D : public Texture1
{
public:
    /// A 1D texture with storage, texels undefined.
    /// @param format  the internal format
    /// @param width   in texels; a power of two without non-power-of-two support
    /// @param mipmaps whether to allocate every mip level down to 1 texel
    /// @throws Oru::InternalException "Texture2::ctor hardware only supports power of
    ///         two textures" for a width the driver cannot take; "Texture:: contructor
    ///         failed to allocate new GPU texture resource" when GL gives no name (no
    ///         current context); "Enforce pInstance_ != NULL" while the layer is not
    ///         started; "!\"InternalFormat enums are not all properly translated.\""
    ///         for a format outside the enumeration
    /// @throws Oru::OGL::ExceptionOGL "Texture1::Texture1: <gluErrorString text>" with
    ///         checked wrappers on, when GL has an error pending afterwards
    Texture1D(InternalFormat format, std::size_t width, bool mipmaps);
    /// Deletes the GL texture name.
    virtual ~Texture1D();
};

} // namespace OGL
} // namespace Oru

#endif
