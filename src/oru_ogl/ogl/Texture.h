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

    virtual ~Texture();

    /// GL value of a Target.
    static unsigned int Target2GL(Target target);
    /// Target of a GL value.
    static Target GL2Target(unsigned int target);
    /// GL value of a TargetBinding.
    static unsigned int TargetBinding2GL(TargetBinding binding);
    /// TargetBinding of a GL value.
    static TargetBinding GL2TargetBinding(unsigned int binding);
    /// GL value of an InternalFormat.
    static unsigned int InternalFormat2GL(InternalFormat format);
    /// InternalFormat of a GL value.
    static InternalFormat GL2InternalFormat(unsigned int format);
    /// GL value of a Format.
    static unsigned int Format2GL(Format format);
    /// Format of a GL value.
    static Format GL2Format(unsigned int format);
    /// GL value of a Type.
    static unsigned int Type2GL(Type type);
    /// Type of a GL value.
    static Type GL2Type(unsigned int type);
    /// GL value of a Filter.
    static unsigned int Filter2GL(Filter filter);
    /// Filter of a GL value.
    static Filter GL2Filter(unsigned int filter);
    /// GL value of a WrapMode.
    static unsigned int WrapMode2GL(WrapMode mode);
    /// WrapMode of a GL value.
    static WrapMode GL2WrapMode(unsigned int mode);
    /// GL value of a PixelStoreMode.
    static unsigned int PixelStoreMode2GL(PixelStoreMode mode);
    /// PixelStoreMode of a GL value.
    static PixelStoreMode GL2PixelStoreMode(unsigned int mode);

    /// 1D, 2D and 3D always; rectangles with GL_ARB_texture_rectangle.
    static bool IsTargetSupported(unsigned int glTarget);
    /// GL_SGIS_generate_mipmap, or a version 1.4 to 2.x.
    static bool supportsAutoMIPGeneration();

    /// Number of channels of an internal format.
    static std::size_t Channels(InternalFormat format);
    /// Number of channels of a pixel format.
    static std::size_t Channels(Format format);
    /// Bytes of a width x height x depth image; raises for formats whose
    /// channels are not 8, 16 or 32 bits wide.
    static std::size_t SizeInBytes(InternalFormat format, std::size_t width, std::size_t height,
                                   std::size_t depth);

    /// The active texture unit.
    static int CurrentUnit_DEPRECATED_1_0();
    /// Sets the texture environment mode of the active unit.
    static void setEnv_DEPRECATED_1_0(unsigned int mode);

    /// The internal format.
    InternalFormat format();
    /// The level-0 size shifted right by level: 0 past the smallest mip level.
    std::size_t width(unsigned int level) const;
    /// Height of a mip level.
    std::size_t height(unsigned int level) const;
    /// Depth of a mip level.
    std::size_t depth(unsigned int level) const;
    /// Number of channels of the internal format.
    std::size_t channels() const;
    /// The level-0 image's size in bytes, computed on the first call.
    int sizeInBytes() const;

    /// The texture must be bound by the caller.
    void setFilter(Filter minFilter, Filter magFilter);
    /// Sets GL_TEXTURE_BORDER_COLOR from four floats.
    void setBorderColor(const float* rgba);
    /// Sets GL_GENERATE_MIPMAP.
    void enableAutoMIPGeneration(bool on);

    /// unit is a unit index, or CurrentUnit_DEPRECATED_1_0() for the active
    /// one. bind and enable leave the given unit active; unbind, isEnabled and
    /// disable restore the unit that was active before.
    void bind_DEPRECATED_1_0(int unit);
    /// Enables the target on a unit (CURRENT_UNIT for the active one).
    void enable_DEPRECATED_1_0(int unit);
    /// Binds no texture to the target on a unit.
    void unbind_DEPRECATED_1_0(int unit);
    /// Whether the target is enabled on a unit.
    bool isEnabled_DEPRECATED_1_0(int unit) const;
    /// Disables the target on a unit.
    void disable_DEPRECATED_1_0(int unit);

protected:
    /// Stands for the active texture unit.
    static const int CURRENT_UNIT = -1;

    /// Creates the GL name of a texture of the given target, format and level-0 size.
    Texture(Target target, TargetBinding binding, InternalFormat format, std::size_t width, std::size_t height,
            std::size_t depth);

    /// Save the client pixel-store state and set the unpack (transfer) or pack
    /// (readback) row alignment; bytes must be 1, 2, 4 or 8. Each push is
    /// paired with one popPixelTransferModes().
    static void pushAndSetTransferByteAlignment(unsigned int bytes);
    /// Pushes the pixel-store state and sets GL_PACK_ALIGNMENT.
    static void pushAndSetReadbackByteAlignment(unsigned int bytes);
    /// Pops what the push saved.
    static void popPixelTransferModes();

    /// Throws InternalException unless this texture is bound to its target.
    void verifyCurrentTextureObject() const;

    /// Bytes of one component of the type: 1, 2 or 4 for the byte, short,
    /// half-float and float types, 0 for every other type.
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
