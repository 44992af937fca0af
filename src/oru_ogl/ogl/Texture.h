#ifndef ORU_OGL_OGL_TEXTURE_H
#define ORU_OGL_OGL_TEXTURE_H

#include "oru_ogl/OglExport.h"
#include "oru_ogl/ogl/Object.h"

#include <cstddef>

namespace Oru
{
namespace OGL
{

/// Base of the texture wrappers: one GL texture name with its internal format
/// and level-0 size, the enumerations in which the layer speaks about
/// textures with their exact translations to and from GL, the fixed-function
/// bind and enable helpers, and channel and size arithmetic.
///
/// Translations raise InternalException for a value outside their table, in
/// either direction.
class ORU_OGL_API Texture : public Object
{
public:
    /// Texture targets.
    enum Target
    {
        TEXTURE_1D = 0,
        TEXTURE_2D = 1,
        TEXTURE_3D = 2,
        TEXTURE_RECT = 3
    };

    /// The binding queries of the targets.
    enum TargetBinding
    {
        TEXTURE_BINDING_1D = 0,
        TEXTURE_BINDING_2D = 1,
        TEXTURE_BINDING_3D = 2,
        TEXTURE_BINDING_RECT = 3
    };

    /// Internal formats.
    enum InternalFormat
    {
        ALPHA = 0,
        ALPHA4 = 1,
        ALPHA8 = 2,
        ALPHA12 = 3,
        ALPHA16 = 4,
        LUMINANCE = 5,
        LUMINANCE4 = 6,
        LUMINANCE8 = 7,
        LUMINANCE12 = 8,
        LUMINANCE16 = 9,
        LUMINANCE_ALPHA = 10,
        LUMINANCE4_ALPHA4 = 11,
        LUMINANCE6_ALPHA2 = 12,
        LUMINANCE8_ALPHA8 = 13,
        LUMINANCE12_ALPHA4 = 14,
        LUMINANCE12_ALPHA12 = 15,
        LUMINANCE16_ALPHA16 = 16,
        INTENSITY = 17,
        INTENSITY4 = 18,
        INTENSITY8 = 19,
        INTENSITY12 = 20,
        INTENSITY16 = 21,
        R3_G3_B2 = 22,
        RGB = 23,
        RGB4 = 24,
        RGB5 = 25,
        RGB8 = 26,
        RGB10 = 27,
        RGB12 = 28,
        RGB16 = 29,
        RGBA = 30,
        RGBA2 = 31,
        RGBA4 = 32,
        RGB5_A1 = 33,
        RGBA8 = 34,
        RGB10_A2 = 35,
        RGBA12 = 36,
        RGBA16 = 37,
        RGBA32F = 38,
        RGB32F = 39,
        ALPHA32F = 40,
        INTENSITY32F = 41,
        LUMINANCE32F = 42,
        LUMINANCE_ALPHA32F = 43,
        RGBA16F = 44,
        RGB16F = 45,
        ALPHA16F = 46,
        INTENSITY16F = 47,
        LUMINANCE16F = 48,
        LUMINANCE_ALPHA16F = 49
    };

    /// Pixel formats of client data. Scoped, as five of its names are also
    /// internal formats: Texture::Format::RGBA beside Texture::RGBA8.
    enum class Format
    {
        COLOR_INDEX = 0,
        RED = 1,
        GREEN = 2,
        BLUE = 3,
        ALPHA = 4,
        RGB = 5,
        BGR = 6,
        RGBA = 7,
        BGRA = 8,
        LUMINANCE = 9,
        LUMINANCE_ALPHA = 10
    };

    /// Pixel data types.
    enum Type
    {
        UNSIGNED_BYTE = 0,
        BYTE = 1,
        BITMAP = 2,
        UNSIGNED_SHORT = 3,
        SHORT = 4,
        UNSIGNED_INT = 5,
        INT = 6,
        FLOAT = 7,
        UNSIGNED_BYTE_3_3_2 = 8,
        UNSIGNED_BYTE_2_3_3_REV = 9,
        UNSIGNED_SHORT_5_6_5 = 10,
        UNSIGNED_SHORT_5_6_5_REV = 11,
        UNSIGNED_SHORT_4_4_4_4 = 12,
        UNSIGNED_SHORT_4_4_4_4_REV = 13,
        UNSIGNED_SHORT_5_5_5_1 = 14,
        UNSIGNED_SHORT_1_5_5_5_REV = 15,
        UNSIGNED_INT_8_8_8_8 = 16,
        UNSIGNED_INT_8_8_8_8_REV = 17,
        UNSIGNED_INT_10_10_10_2 = 18,
        UNSIGNED_INT_2_10_10_10_REV = 19,
        HALF_FLOAT = 20
    };

    /// Minification and magnification filters.
    enum Filter
    {
        NEAREST = 0,
        LINEAR = 1,
        NEAREST_MIPMAP_NEAREST = 2,
        LINEAR_MIPMAP_NEAREST = 3,
        NEAREST_MIPMAP_LINEAR = 4,
        LINEAR_MIPMAP_LINEAR = 5
    };

    /// Wrap modes.
    enum WrapMode
    {
        CLAMP = 0,
        CLAMP_TO_BORDER = 1,
        CLAMP_TO_EDGE = 2,
        MIRRORED_REPEAT = 3,
        REPEAT = 4
    };

    /// Pixel-store parameters.
    enum PixelStoreMode
    {
        PACK_SWAP_BYTES = 0,
        PACK_LSB_FIRST = 1,
        PACK_ROW_LENGTH = 2,
        PACK_IMAGE_HEIGHT = 3,
        PACK_SKIP_PIXELS = 4,
        PACK_SKIP_ROWS = 5,
        PACK_SKIP_IMAGES = 6,
        PACK_ALIGNMENT = 7,
        UNPACK_SWAP_BYTES = 8,
        UNPACK_LSB_FIRST = 9,
        UNPACK_ROW_LENGTH = 10,
        UNPACK_IMAGE_HEIGHT = 11,
        UNPACK_SKIP_PIXELS = 12,
        UNPACK_SKIP_ROWS = 13,
        UNPACK_SKIP_IMAGES = 14,
        UNPACK_ALIGNMENT = 15
    };

    /// Deletes the GL texture name; a bound texture is replaced by the default
    /// texture in its bindings.
    virtual ~Texture();

    /// GL value of a Target.
    /// @param target a texture target of the layer
    /// @return its GL constant, GL_TEXTURE_2D say
    /// @throws Oru::InternalException "!\"Target enums are not all properly translated.\"" for a
    ///         value cast into the enumeration from outside it
    static unsigned int Target2GL(Target target);
    /// Target of a GL value.
    /// @param target a GL constant
    /// @return the layer's Target for it
    /// @throws Oru::InternalException "!\"Target enums are not all properly translated.\"" for a
    ///         GL value the enumeration has no row for
    static Target GL2Target(unsigned int target);
    /// GL value of a TargetBinding.
    /// @param binding a binding query of the layer
    /// @return its GL constant, GL_TEXTURE_BINDING_2D say
    /// @throws Oru::InternalException "!\"Target enums are not all properly translated.\"" (the binding queries share the targets' text) for a
    ///         value cast into the enumeration from outside it
    static unsigned int TargetBinding2GL(TargetBinding binding);
    /// TargetBinding of a GL value.
    /// @param binding a GL constant
    /// @return the layer's TargetBinding for it
    /// @throws Oru::InternalException "!\"Target enums are not all properly translated.\"" (the binding queries share the targets' text) for a
    ///         GL value the enumeration has no row for
    static TargetBinding GL2TargetBinding(unsigned int binding);
    /// GL value of an InternalFormat.
    /// @param format an internal format of the layer
    /// @return its GL constant, GL_RGBA8 say
    /// @throws Oru::InternalException "!\"InternalFormat enums are not all properly translated.\"" for a
    ///         value cast into the enumeration from outside it
    static unsigned int InternalFormat2GL(InternalFormat format);
    /// InternalFormat of a GL value.
    /// Only the sized constants translate back: GL's generic 1 to 4 do not.
    /// @param format a GL constant
    /// @return the layer's InternalFormat for it
    /// @throws Oru::InternalException "!\"InternalFormat enums are not all properly translated.\"" for a
    ///         GL value the enumeration has no row for
    static InternalFormat GL2InternalFormat(unsigned int format);
    /// GL value of a Format.
    /// @param format a pixel format of the layer
    /// @return its GL constant, GL_RGBA say
    /// @throws Oru::InternalException "!\"Format enums are not all properly translated.\"" for a
    ///         value cast into the enumeration from outside it
    static unsigned int Format2GL(Format format);
    /// Format of a GL value.
    /// @param format a GL constant
    /// @return the layer's Format for it
    /// @throws Oru::InternalException "!\"Format enums are not all properly translated.\"" for a
    ///         GL value the enumeration has no row for
    static Format GL2Format(unsigned int format);
    /// GL value of a Type.
    /// @param type a pixel data type of the layer
    /// @return its GL constant, GL_UNSIGNED_BYTE say
    /// @throws Oru::InternalException "!\"Type enums are not all properly translated.\"" for a
    ///         value cast into the enumeration from outside it
    static unsigned int Type2GL(Type type);
    /// Type of a GL value.
    /// @param type a GL constant
    /// @return the layer's Type for it
    /// @throws Oru::InternalException "!\"Type enums are not all properly translated.\"" for a
    ///         GL value the enumeration has no row for
    static Type GL2Type(unsigned int type);
    /// GL value of a Filter.
    /// @param filter a filter of the layer
    /// @return its GL constant, GL_LINEAR say
    /// @throws Oru::InternalException "!\"Filter enums are not all properly translated.\"" for a
    ///         value cast into the enumeration from outside it
    static unsigned int Filter2GL(Filter filter);
    /// Filter of a GL value.
    /// @param filter a GL constant
    /// @return the layer's Filter for it
    /// @throws Oru::InternalException "!\"Filter enums are not all properly translated.\"" for a
    ///         GL value the enumeration has no row for
    static Filter GL2Filter(unsigned int filter);
    /// GL value of a WrapMode.
    /// @param mode a wrap mode of the layer
    /// @return its GL constant, GL_CLAMP_TO_EDGE say
    /// @throws Oru::InternalException "!\"WrapMode enums are not all properly translated.\"" for a
    ///         value cast into the enumeration from outside it
    static unsigned int WrapMode2GL(WrapMode mode);
    /// WrapMode of a GL value.
    /// @param mode a GL constant
    /// @return the layer's WrapMode for it
    /// @throws Oru::InternalException "!\"WrapMode enums are not all properly translated.\"" for a
    ///         GL value the enumeration has no row for
    static WrapMode GL2WrapMode(unsigned int mode);
    /// GL value of a PixelStoreMode.
    /// @param mode a pixel-store parameter of the layer
    /// @return its GL constant, GL_UNPACK_ALIGNMENT say
    /// @throws Oru::InternalException "!\"PixelStoreMode enums are not all properly translated.\"" for a
    ///         value cast into the enumeration from outside it
    static unsigned int PixelStoreMode2GL(PixelStoreMode mode);
    /// PixelStoreMode of a GL value.
    /// @param mode a GL constant
    /// @return the layer's PixelStoreMode for it
    /// @throws Oru::InternalException "!\"PixelStoreMode enums are not all properly translated.\"" for a
    ///         GL value the enumeration has no row for
    static PixelStoreMode GL2PixelStoreMode(unsigned int mode);

    /// Whether the driver takes textures of a GL target.
    /// @param glTarget a GL texture target, GL_TEXTURE_2D say
    /// @return true for 1D, 2D and 3D always, for rectangles with
    ///         GL_ARB_texture_rectangle, false for every other value (cube maps included)
    /// @throws Oru::InternalException "Enforce pInstance_ != NULL" for a rectangle
    ///         while the layer is not started
    static bool IsTargetSupported(unsigned int glTarget);
    /// Whether GL_GENERATE_MIPMAP is offered.
    /// @return true with GL_SGIS_generate_mipmap or a version 1.4 to 2.x; a
    ///         driver reporting 3.0 or later answers false
    /// @throws Oru::InternalException "Enforce pInstance_ != NULL" while the layer is not started
    static bool supportsAutoMIPGeneration();

    /// Number of channels of an internal format: intensity counts 1, luminance
    /// with alpha 2; floating-point formats count like their fixed-point namesakes.
    /// @param format an internal format
    /// @return 1 to 4
    /// @throws Oru::InternalException "InternalFormat enums are not all properly sized."
    ///         for RGB4, which belongs to no channel group, and for a value outside
    ///         the enumeration
    static std::size_t Channels(InternalFormat format);
    /// Number of channels per pixel of client data in a pixel format
    /// (COLOR_INDEX counts 1).
    /// @param format a pixel format
    /// @return 1 to 4
    /// @throws Oru::InternalException "InternalFormat enums are not all properly sized."
    ///         for a value outside the enumeration
    static std::size_t Channels(Format format);
    /// Bytes of a width x height x depth image of the format.
    /// @param format an internal format whose channels are 8, 16 or 32 bits wide
    /// @param width  in texels
    /// @param height in texels, 1 for a 1D image
    /// @param depth  in texels, 1 for a 1D or 2D image
    /// @return bytes per channel x channels x width x height x depth
    /// @throws Oru::InternalException
    ///         "Texture::SizeInBytes Unknown color channels for format " followed
    ///         by the format's GL name (TokenName) for the formats of other
    ///         channel widths (RGB5, RGBA4, RGB10_A2, ...), and
    ///         "InternalFormat enums are not all properly sized." for RGB4 and a
    ///         value outside the enumeration
    static std::size_t SizeInBytes(InternalFormat format, std::size_t width, std::size_t height,
                                   std::size_t depth);

    /// The marker that stands for the active texture unit in the unit arguments.
    /// @return CURRENT_UNIT (-1)
    static int CurrentUnit_DEPRECATED_1_0();
    /// Sets the texture environment mode of the active unit, passed to GL as
    /// given; TextureUnit::setEnv() offers the checked form.
    /// @param mode GL_MODULATE, GL_REPLACE, GL_DECAL, GL_BLEND or GL_ADD
    /// @throws Oru::OGL::ExceptionOGL "Texture::setEnv_DEPRECATED_1_0: <gluErrorString text>"
    ///         with checked wrappers on, when GL has an error pending afterwards
    static void setEnv_DEPRECATED_1_0(unsigned int mode);

    /// The internal format.
    /// @return the format given at construction
    InternalFormat format();
    /// Width of a mip level: the level-0 width shifted right by level, without
    /// clamping at 1.
    /// @param level the mip level, 0 for the base image
    /// @return the width in texels, 0 past the smallest mip level
    std::size_t width(unsigned int level) const;
    /// Height of a mip level, as width().
    /// @param level the mip level, 0 for the base image
    /// @return the height in texels, 0 past the smallest mip level
    std::size_t height(unsigned int level) const;
    /// Depth of a mip level, as width().
    /// @param level the mip level, 0 for the base image
    /// @return the depth in texels, 0 past the smallest mip level
    std::size_t depth(unsigned int level) const;
    /// Number of channels of the internal format.
    /// @return 1 to 4, as Channels(InternalFormat)
    /// @throws Oru::InternalException "InternalFormat enums are not all properly sized."
    ///         for RGB4
    std::size_t channels() const;
    /// The level-0 image's size in bytes, computed on the first call.
    /// @return as SizeInBytes() for the format and level-0 size
    /// @throws Oru::InternalException what SizeInBytes() throws, on every call, for
    ///         a format it cannot size
    int sizeInBytes() const;

    /// Sets GL_TEXTURE_MIN_FILTER and GL_TEXTURE_MAG_FILTER of the texture bound
    /// to this texture's target on the active unit: the caller binds it first.
    /// @param minFilter the minification filter (a MIPMAP filter needs mip levels)
    /// @param magFilter the magnification filter, NEAREST or LINEAR
    /// @throws Oru::InternalException "!\"Filter enums are not all properly translated.\""
    ///         for a value outside the enumeration
    /// @throws Oru::OGL::ExceptionOGL "Texture::setFilter: <gluErrorString text>"
    ///         with checked wrappers on, when GL has an error pending afterwards
    void setFilter(Filter minFilter, Filter magFilter);
    /// Sets GL_TEXTURE_BORDER_COLOR of the texture bound to this texture's target
    /// on the active unit.
    /// @param rgba four floats, red, green, blue and alpha in [0, 1]; not null
    /// @throws Oru::OGL::ExceptionOGL "Texture::setBorderColor: <gluErrorString text>"
    ///         with checked wrappers on, when GL has an error pending afterwards
    void setBorderColor(const float* rgba);
    /// Sets GL_GENERATE_MIPMAP of the texture bound to this texture's target on
    /// the active unit (see supportsAutoMIPGeneration()).
    /// @param on whether level-0 changes regenerate the mip levels
    /// @throws Oru::OGL::ExceptionOGL "Texture::enableAutoMIPGeneration: <gluErrorString text>"
    ///         with checked wrappers on, when GL has an error pending afterwards
    void enableAutoMIPGeneration(bool on);

    /// \name Fixed-function helpers
    /// unit is a unit index, or CurrentUnit_DEPRECATED_1_0() for the active
    /// one. bind and enable leave the given unit active; unbind, isEnabled and
    /// disable restore the unit that was active before, also when they throw.
    /// Selecting another unit needs glActiveTextureARB.
    ///@{

    /// Binds this texture to its target on a unit; binding does not enable.
    /// @param unit the unit index, or CurrentUnit_DEPRECATED_1_0()
    /// @throws Oru::InternalException "glActiveTextureARB is not loaded: its entry-point
    ///         pointer is null (the driver lacks it, or the layer has not loaded the
    ///         core version or extension it belongs to)" when another unit is asked
    ///         for without multitexturing
    /// @throws Oru::OGL::ExceptionOGL "TextureState::setActiveTexture: <gluErrorString text>"
    ///         or "Texture::bind_DEPRECATED_1_0: <gluErrorString text>" with checked
    ///         wrappers on, when GL has an error pending after a step
    void bind_DEPRECATED_1_0(int unit);
    /// Enables the target on a unit and binds this texture to it.
    /// @param unit the unit index, or CurrentUnit_DEPRECATED_1_0()
    /// @throws Oru::InternalException "glActiveTextureARB is not loaded: ..." as
    ///         bind_DEPRECATED_1_0()
    /// @throws Oru::OGL::ExceptionOGL "TextureState::setActiveTexture: <gluErrorString text>"
    ///         or "Texture::enable_DEPRECATED_1_0: <gluErrorString text>" with checked
    ///         wrappers on, when GL has an error pending after a step
    void enable_DEPRECATED_1_0(int unit);
    /// Binds no texture to the target on a unit; refused unless this texture is
    /// the one bound there, so that another texture's binding is not undone.
    /// @param unit the unit index, or CurrentUnit_DEPRECATED_1_0()
    /// @throws Oru::InternalException "Texture not bound" when this texture is not
    ///         bound to its target on the unit; "glActiveTextureARB is not loaded:
    ///         ..." as bind_DEPRECATED_1_0()
    /// @throws Oru::OGL::ExceptionOGL "<Class>::<member>: <gluErrorString text>"
    ///         (TextureState::setActiveTexture, Object::getBoundID or
    ///         Texture::unbind_DEPRECATED_1_0) with checked wrappers on, when GL has
    ///         an error pending after a step
    void unbind_DEPRECATED_1_0(int unit);
    /// Whether this texture is bound to its target on a unit and the target is
    /// enabled there.
    /// @param unit the unit index, or CurrentUnit_DEPRECATED_1_0()
    /// @return true when both hold
    /// @throws Oru::InternalException "glActiveTextureARB is not loaded: ..." as
    ///         bind_DEPRECATED_1_0()
    /// @throws Oru::OGL::ExceptionOGL "<Class>::<member>: <gluErrorString text>"
    ///         (TextureState::setActiveTexture, Object::getBoundID or
    ///         Texture::isEnabled_DEPRECATED_1_0) with checked wrappers on, when GL
    ///         has an error pending after a step
    bool isEnabled_DEPRECATED_1_0(int unit) const;
    /// Unbinds this texture and disables its target on a unit. Refused when
    /// another texture is bound there: the target then stays enabled for it.
    /// @param unit the unit index, or CurrentUnit_DEPRECATED_1_0()
    /// @throws Oru::InternalException "Texture target is not enabled..can't disable
    ///         texture" unless isEnabled_DEPRECATED_1_0() holds on the unit;
    ///         "glActiveTextureARB is not loaded: ..." as bind_DEPRECATED_1_0()
    /// @throws Oru::OGL::ExceptionOGL "<Class>::<member>: <gluErrorString text>"
    ///         (TextureState::setActiveTexture, Object::getBoundID,
    ///         Texture::isEnabled_DEPRECATED_1_0 or Texture::disable_DEPRECATED_1_0)
    ///         with checked wrappers on, when GL has an error pending after a step
    void disable_DEPRECATED_1_0(int unit);
    ///@}

protected:
    /// Stands for the active texture unit.
    static const int CURRENT_UNIT = -1;

    /// Creates the GL name (glGenTextures) of a texture of the given target,
    /// format and level-0 size. Nothing is bound and no storage is made: the
    /// dimension classes do that after their own checks.
    /// @param target  the texture target
    /// @param binding the binding query of that target
    /// @param format  the internal format
    /// @param width   the level-0 width in texels
    /// @param height  the level-0 height in texels, 1 for 1D
    /// @param depth   the level-0 depth in texels, 1 for 1D and 2D
    /// @throws Oru::InternalException "!\"Target enums are not all properly translated.\""
    ///         for a target or binding outside the enumerations, before a name
    ///         exists; "Texture:: contructor failed to allocate new GPU texture resource"
    ///         when GL gives no name (no current context)
    /// @throws Oru::OGL::ExceptionOGL "Texture::Texture: <gluErrorString text>" with
    ///         checked wrappers on, when GL has an error pending afterwards
    Texture(Target target, TargetBinding binding, InternalFormat format, std::size_t width, std::size_t height,
            std::size_t depth);

    /// Saves the client pixel-store state (glPushClientAttrib) and sets
    /// GL_UNPACK_ALIGNMENT. Each push is paired with one popPixelTransferModes().
    /// @param bytes the row alignment of the client data, 1, 2, 4 or 8
    /// @throws Oru::InternalException "Invalid row byte alignment (must be of 1, 2, 4, or 8)."
    ///         for any other value, before anything is pushed
    static void pushAndSetTransferByteAlignment(unsigned int bytes);
    /// Saves the client pixel-store state and sets GL_PACK_ALIGNMENT.
    /// @param bytes the row alignment of the client buffer, 1, 2, 4 or 8
    /// @throws Oru::InternalException "Invalid row byte alignment (must be of 1, 2, 4, or 8)."
    ///         for any other value, before anything is pushed
    static void pushAndSetReadbackByteAlignment(unsigned int bytes);
    /// Restores what the last push saved (glPopClientAttrib).
    static void popPixelTransferModes();

    /// A hook for checking that this texture is bound to its target before a
    /// transfer; the base checks nothing.
    void verifyCurrentTextureObject() const;

    /// Bytes of one component of client data of the type.
    /// @param type a pixel data type
    /// @return 1, 2 or 4 for the byte, short, half-float and float types, 0 for
    ///         the packed types, the 32-bit integers and bitmaps
    static std::size_t ComponentSize(Type type);

    /// Pops the client pixel-store state on every way out of a transfer.
    class PixelStoreGuard
    {
    public:
        PixelStoreGuard();
        ~PixelStoreGuard();
        /// Marks the state pushed; the destructor pops it then.
        void pushed();

    private:
        PixelStoreGuard(PixelStoreGuard const&);
        PixelStoreGuard& operator=(PixelStoreGuard const&);
        bool bPushed_;
    };

private:
    friend class TextureTransfer; // the dimensions' shared transfers

    InternalFormat eFormat_;
    unsigned long long nWidth_;
    unsigned long long nHeight_;
    unsigned long long nDepth_;
    mutable unsigned long long nSizeInBytes_;
};

} // namespace OGL
} // namespace Oru

#endif
