#ifndef ORU_OGL_OGL_TEXTURE3_H
#define ORU_OGL_OGL_TEXTURE3_H

#include "oru_ogl/OglExport.h"
#include "oru_ogl/ogl/Texture.h"

#include <cstddef>

namespace Oru
{
namespace OGL
{

class Buffer;
class PixelUnpackParameters;

/// A three-dimensional texture; the operations are Texture2's with a third
/// coordinate and size.
class ORU_OGL_API Texture3 : public Texture
{
public:
    /// Deletes the GL texture name.
    virtual ~Texture3();

    /// Sets the wrap modes on whatever texture is bound to the target of the
    /// active unit: the caller binds this one first.
    /// @param s the wrap mode along the width
    /// @param t the wrap mode along the height
    /// @param r the wrap mode along the depth
    /// @throws Oru::InternalException "!\"WrapMode enums are not all properly translated.\""
    ///         for a value outside the enumeration
    /// @throws Oru::OGL::ExceptionOGL "Texture3::setWrap: <gluErrorString text>" with
    ///         checked wrappers on, when GL has an error pending afterwards
    void setWrap(WrapMode s, WrapMode t, WrapMode r);

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
    ///         "Texture3::getPixelData: <gluErrorString text>" with checked wrappers on,
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
    /// @throws Oru::OGL::ExceptionOGL "Texture3::getPixelData: <gluErrorString text>" (or
    ///         "Object::getBoundID: ..." or "Buffer::bind: ...") with checked wrappers on,
    ///         when GL has an error pending after a step
    void getPixelData(Buffer* pbo, std::size_t offset, int level, Format format, Type type,
                      unsigned int rowAlignment) const;
    /// Uploads a box of a level from memory to the texture bound to the
    /// target of the active unit (the caller binds this one; not checked). The
    /// caller's unpack state is saved, replaced by unpack and restored.
    /// @param level  the mip level, 0 for the base image
    /// @param x      the first texel along the width
    /// @param y      the first texel along the height
    /// @param z      the first texel along the depth
    /// @param width  in texels, 1 or more and at most the level-0 width
    /// @param height in texels, 1 or more and at most the level-0 height
    /// @param depth  in texels, 1 or more and at most the level-0 depth
    /// @param format the pixel format of data
    /// @param type   the data type of data
    /// @param data   the texels, laid out as unpack says; not kept
    /// @param unpack the row length, skips, alignment and byte order of data
    /// @throws Oru::InternalException all before any GL call: for a zero size
    ///         "error subimage width of zero supplied",
    ///         "error subimage height of zero supplied",
    ///         "error subimage depth of zero supplied";
    ///         "a negative texture image mip-map level supplied"; for a size
    ///         beyond level 0 (note the trailing space and the height's "width")
    ///         "width(<size>) is greater than width of image (<level-0 width>) ",
    ///         "height(<size>) is greater than width of image (<level-0 height>) ",
    ///         "depth(<size>) is greater than depth of image (<level-0 depth>) "
    /// @throws Oru::InternalException what PixelUnpackParameters::apply() throws for
    ///         its alignment, and the format and type refusals
    /// @throws Oru::InternalException "!\"Format enums are not all properly translated.\""
    ///         or "!\"Type enums are not all properly translated.\""
    /// @throws Oru::OGL::ExceptionOGL "Texture3::subImage: <gluErrorString text>" with
    ///         checked wrappers on, when GL has an error pending afterwards
    void subImage(int level, int x, int y, int z, std::size_t width, std::size_t height, std::size_t depth,
                  Format format, Type type, const void* data, const PixelUnpackParameters& unpack);
    /// Uploads a box of a level from a pixel buffer, reading from offset on.
    /// The buffer becomes an unpack buffer and stays one; its binding is put back
    /// afterwards. GL refuses data that runs past the buffer's end.
    /// @param level  the mip level, 0 for the base image
    /// @param x      the first texel along the width
    /// @param y      the first texel along the height
    /// @param z      the first texel along the depth
    /// @param width  in texels, 1 or more and at most the level-0 width
    /// @param height in texels, 1 or more and at most the level-0 height
    /// @param depth  in texels, 1 or more and at most the level-0 depth
    /// @param format the pixel format of the buffer's data
    /// @param type   the data type of the buffer's data
    /// @param pbo    the buffer, not mapped; not null
    /// @param offset the byte offset of the first texel, below the buffer's size
    /// @param unpack the row length, skips, alignment and byte order of the data
    /// @throws Oru::InternalException all before any GL call: for a zero size
    ///         "error subimage width of zero supplied",
    ///         "error subimage height of zero supplied",
    ///         "error subimage depth of zero supplied";
    ///         "a negative texture image mip-map level supplied"; for a size
    ///         beyond level 0 (note the trailing space and the height's "width")
    ///         "width(<size>) is greater than width of image (<level-0 width>) ",
    ///         "height(<size>) is greater than width of image (<level-0 height>) ",
    ///         "depth(<size>) is greater than depth of image (<level-0 depth>) "
    /// @throws Oru::InternalException "offset(<offset>) is greater than pixel buffer
    ///         object size<size>" for an offset at or past the end; "Pixel Buffer
    ///         Object cannot be memory mapped during data transfer" for a mapped
    ///         buffer; what PixelUnpackParameters::apply() and
    ///         Buffer::convertToUnpackBuffer() throw; the format and type refusals
    ///         "!\"Format enums are not all properly translated.\"" or
    ///         "!\"Type enums are not all properly translated.\""
    /// @throws Oru::OGL::ExceptionOGL "Texture3::subImage: <gluErrorString text>" (or the
    ///         buffer's own "Buffer::<member>: ...") with checked wrappers on, when GL
    ///         has an error pending after a step
    void subImage(int level, int x, int y, int z, std::size_t width, std::size_t height, std::size_t depth,
                  Format format, Type type, Buffer* pbo, std::size_t offset, const PixelUnpackParameters& unpack);
    /// Copies width x height pixels at (readX, readY) into slice z of the current read buffer (of the bound framebuffer
    /// object, or of the context's own) into the level of the texture bound to
    /// the target of the active unit.
    /// @param level  the mip level, 0 for the base image
    /// @param x      the first texel written along the width
    /// @param y      the first texel written along the height
    /// @param z      the first texel written along the depth (the slice)
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
    /// @throws Oru::OGL::ExceptionOGL "Texture3::copyTexSubImage: <gluErrorString text>" with
    ///         checked wrappers on, when GL has an error pending afterwards
    void copyTexSubImage(int level, int x, int y, int z, int readX, int readY, std::size_t width, std::size_t height);

protected:
    /// Creates the texture and its storage for level 0 (and the mip chain with
    /// mipmaps), texels undefined; fetches the 3D entry points first where the
    /// start-up left them out (drivers reporting 3.0 or later).
    /// @param target  the texture target
    /// @param binding the binding query of that target
    /// @param format  the internal format
    /// @param width   in texels
    /// @param height  in texels
    /// @param depth   in texels; all three powers of two without non-power-of-two
    ///                support
    /// @param mipmaps whether to allocate every mip level down to 1 texel
    /// @throws Oru::InternalException "Texture3::ctor hardware only supports power of
    ///         two textures" for sizes the driver cannot take; "Texture:: contructor
    ///         failed to allocate new GPU texture resource" when GL gives no name (no
    ///         current context); "Enforce pInstance_ != NULL" while the layer is not
    ///         started; "!\"InternalFormat enums are not all properly translated.\""
    ///         for a format outside the enumeration
    /// @throws Oru::OGL::ExceptionOGL "Texture3::Texture3: <gluErrorString text>" with
    ///         checked wrappers on, when GL has an error pending afterwards
    Texture3(Target target, TargetBinding binding, InternalFormat format, std::size_t width, std::size_t height,
             std::size_t depth, bool mipmaps);
    /// Creates the texture with storage for one level, filled from data with the
    /// context's unpack state as it is.
    /// @param target     the texture target
    /// @param binding    the binding query of that target
    /// @param format     the internal format
    /// @param level      the mip level to allocate
    /// @param width      in texels
    /// @param height     in texels
    /// @param depth      in texels; all three powers of two without
    ///                   non-power-of-two support
    /// @param dataFormat the pixel format of data
    /// @param dataType   the data type of data
    /// @param data       the texels, or null to leave them undefined; not kept
    /// @param unpack     accepted and not applied
    /// @throws Oru::InternalException "Texture3::ctor hardware only supports power of
    ///         two textures" for sizes the driver cannot take; "Texture:: contructor
    ///         failed to allocate new GPU texture resource" when GL gives no name (no
    ///         current context); "Enforce pInstance_ != NULL" while the layer is not
    ///         started; "!\"InternalFormat enums are not all properly translated.\""
    ///         for a format outside the enumeration
    /// @throws Oru::OGL::ExceptionOGL "Texture3::Texture3: <gluErrorString text>" with
    ///         checked wrappers on, when GL has an error pending afterwards
    /// @throws Oru::InternalException "!\"Format enums are not all properly translated.\""
    ///         or "!\"Type enums are not all properly translated.\"" for dataFormat
    ///         or dataType outside the enumerations
    Texture3(Target target, TargetBinding binding, InternalFormat format, int level, std::size_t width,
             std::size_t height, std::size_t depth, Format dataFormat, Type dataType, const void* data,
             const PixelUnpackParameters& unpack);
};

/// A GL_TEXTURE_3D texture.
class ORU_OGL_API Texture3D : public Texture3
{
public:
    /// A 3D texture with storage, texels undefined.
    /// @param format  the internal format
    /// @param width   in texels
    /// @param height  in texels
    /// @param depth   in texels; all three powers of two without non-power-of-two
    ///                support
    /// @param mipmaps whether to allocate every mip level down to 1 texel
    /// @throws Oru::InternalException "Texture3::ctor hardware only supports power of
    ///         two textures" for sizes the driver cannot take; "Texture:: contructor
    ///         failed to allocate new GPU texture resource" when GL gives no name (no
    ///         current context); "Enforce pInstance_ != NULL" while the layer is not
    ///         started; "!\"InternalFormat enums are not all properly translated.\""
    ///         for a format outside the enumeration
    /// @throws Oru::OGL::ExceptionOGL "Texture3::Texture3: <gluErrorString text>" with
    ///         checked wrappers on, when GL has an error pending afterwards
    Texture3D(InternalFormat format, std::size_t width, std::size_t height, std::size_t depth, bool mipmaps);
    /// One level, filled from data. The upload uses the context's unpack state
    /// as it is; unpack is accepted but not applied.
    /// @param format     the internal format
    /// @param width      in texels
    /// @param height     in texels
    /// @param depth      in texels; all three powers of two without non-power-of-two
    ///                   support
    /// @param level      the mip level to allocate
    /// @param dataFormat the pixel format of data
    /// @param dataType   the data type of data
    /// @param data       the texels, or null to leave them undefined; not kept
    /// @param unpack     accepted and not applied
    /// @throws Oru::InternalException "Texture3::ctor hardware only supports power of
    ///         two textures" for sizes the driver cannot take; "Texture:: contructor
    ///         failed to allocate new GPU texture resource" when GL gives no name (no
    ///         current context); "Enforce pInstance_ != NULL" while the layer is not
    ///         started; "!\"InternalFormat enums are not all properly translated.\""
    ///         for a format outside the enumeration
    /// @throws Oru::OGL::ExceptionOGL "Texture3::Texture3: <gluErrorString text>" with
    ///         checked wrappers on, when GL has an error pending afterwards
    /// @throws Oru::InternalException "!\"Format enums are not all properly translated.\""
    ///         or "!\"Type enums are not all properly translated.\"" for dataFormat
    ///         or dataType outside the enumerations
    Texture3D(InternalFormat format, int level, std::size_t width, std::size_t height, std::size_t depth,
              Format dataFormat, Type dataType, const void* data, const PixelUnpackParameters& unpack);
    /// Deletes the GL texture name.
    virtual ~Texture3D();
};

} // namespace OGL
} // namespace Oru

#endif
