#include "oru_ogl/ogl/Texture.h"

#include "oru_ogl/Enforce.h"
#include "oru_ogl/TokenName.h"
#include "oru_ogl/extensionator/ExtensionManager.h"
#include "oru_ogl/ogl/GLConstants.h"
#include "oru_ogl/ogl/TextureState.h"
#include "oru_ogl/ogl/WrapperCall.h"
#include "oru_ogl/ogl/WrapperCheck.h"

// The texture base: the name, format and size every texture has, and the
// layer's vocabulary for textures with its translations to GL.
//
// Binding is the caller's business almost everywhere: the parameter setters
// act on the texture bound to the target of the active unit, as GL does.
// Only the fixed-function helpers (_DEPRECATED_1_0) switch units themselves,
// and those that only look or undo restore the caller's active unit.
//
// Every translation between the layer's enumerations and GL is one table at
// the end of this file, read in both directions, so the two directions cannot
// drift apart. A value outside a table is a programming error in the caller
// (a cast from an integer, usually) and raises the table's own text; GL never
// sees it. Texture code calls GL 1.1 directly and the multitexture entry
// point through its pointer, or both through the chain (WrapperCall.h); GL
// errors are checked only by checked wrappers (WrapperCheck.h) or the chain.

namespace Oru
{
namespace OGL
{

namespace
{

// The lines that this file's checks report; callers match on them.
const int kNoNameLine = 47;
const int kNotBoundLine = 199;
const int kNotEnabledLine = 218;
const int kUnsizedFormatLine = 346;
const int kUnsizedPixelFormatLine = 381;
const int kUnknownChannelsLine = 491;
const int kUnknownFormatLine = 495;

} // namespace

// The target and binding query are translated first, so a bad enumeration is
// refused before a GL name exists. Nothing is bound and no storage is made:
// the dimension classes do that once their own checks have passed.
// If one of those checks refuses, the half-built texture's destructor deletes
// the name again. A zero name from glGenTextures means that no context is
// current, which is the caller's error.
Texture::Texture(Target target, TargetBinding binding, InternalFormat format, std::size_t width,
                 std::size_t height, std::size_t depth)
    : Object(Target2GL(target), TargetBinding2GL(binding))
    , eFormat_(format)
    , nWidth_(width)
    , nHeight_(height)
    , nDepth_(depth)
    , nSizeInBytes_(~0ull)
{
    ORU_WRAPPER_GL glGenTextures(1, &n_ObjectID);
    if (n_ObjectID == 0)
        ORU_THROW_AT(kNoNameLine, "Texture:: contructor failed to allocate new GPU texture resource");
    ORU_CHECK_GL(Texture);
}

// Deleting a bound texture is legal: GL binds the default texture in its place.
Texture::~Texture()
{
    ORU_WRAPPER_GL_NOTHROW glDeleteTextures(1, &n_ObjectID);
}

Texture::InternalFormat Texture::format()
{
    return eFormat_;
}

// The level-0 size shifted right by the level, without clamping at 1: past
// the smallest level of the chain the result is 0.
std::size_t Texture::width(unsigned int level) const
{
    return static_cast<std::size_t>(nWidth_ >> level);
}

std::size_t Texture::height(unsigned int level) const
{
    return static_cast<std::size_t>(nHeight_ >> level);
}

std::size_t Texture::depth(unsigned int level) const
{
    return static_cast<std::size_t>(nDepth_ >> level);
}

std::size_t Texture::channels() const
{
    return Channels(eFormat_);
}

// The size never changes after construction, so one computation serves. A
// format that SizeInBytes() cannot size raises on every call.
int Texture::sizeInBytes() const
{
    if (nSizeInBytes_ == ~0ull)
        nSizeInBytes_ = SizeInBytes(eFormat_, width(0), height(0), depth(0));
    return static_cast<int>(nSizeInBytes_);
}

// ---------------------------------------------------------------------------
// Parameters of the texture bound to this texture's target on the active unit.
// ---------------------------------------------------------------------------

// The mipmapped minification filters need the whole chain of levels; the
// dimension classes allocate one on request.
void Texture::setFilter(Filter minFilter, Filter magFilter)
{
    ORU_WRAPPER_GL glTexParameteri(target(), GL_TEXTURE_MIN_FILTER, static_cast<GLint>(Filter2GL(minFilter)));
    ORU_WRAPPER_GL glTexParameteri(target(), GL_TEXTURE_MAG_FILTER, static_cast<GLint>(Filter2GL(magFilter)));
    ORU_CHECK_GL(Texture);
}

// Used by the CLAMP_TO_BORDER wrap mode and by GL_CLAMP at the border texels.
void Texture::setBorderColor(const float* rgba)
{
    ORU_WRAPPER_GL glTexParameterfv(target(), GL_TEXTURE_BORDER_COLOR, rgba);
    ORU_CHECK_GL(Texture);
}

// Regenerates levels 1 and up whenever level 0 changes; see
// supportsAutoMIPGeneration() for when GL knows the parameter.
void Texture::enableAutoMIPGeneration(bool on)
{
    ORU_WRAPPER_GL glTexParameteri(target(), GL_GENERATE_MIPMAP, on ? 1 : 0);
    ORU_CHECK_GL(Texture);
}

// ---------------------------------------------------------------------------
// The fixed-function helpers. In the fixed-function pipeline a unit samples a
// texture only when its target is enabled on that unit (glEnable) and the
// texture is bound to that target there; shaders ignore the enables and read
// the bindings alone. Both are per unit, so each helper takes a unit.
//
// A unit argument of CURRENT_UNIT (-1) means the unit that is active now.
// bind and enable switch to the requested unit and stay there, as the caller
// goes on to set that unit's state (environment, coordinates); unbind, the
// enabled query and disable put the caller's unit back afterwards, on the
// error paths too.
// ---------------------------------------------------------------------------

namespace
{

// Selects a unit for the length of a scope and reactivates the caller's unit
// on the way out, also when the scope is left by an exception.
class ActiveUnitGuard
{
public:
    explicit ActiveUnitGuard(int unit)
        : nRestore_(Texture::CurrentUnit_DEPRECATED_1_0())
    {
        if (unit == Texture::CurrentUnit_DEPRECATED_1_0())
            return;
        GLint active = 0;
        ORU_WRAPPER_GL glGetIntegerv(GL_ACTIVE_TEXTURE, &active);
        nRestore_ = active;
        TextureState::setActiveTexture(unit);
    }

    ~ActiveUnitGuard()
    {
        if (nRestore_ != Texture::CurrentUnit_DEPRECATED_1_0())
            ORU_WRAPPER_GL_NOTHROW glActiveTextureARB(static_cast<GLenum>(nRestore_));
    }

private:
    ActiveUnitGuard(ActiveUnitGuard const&);
    ActiveUnitGuard& operator=(ActiveUnitGuard const&);

    int nRestore_; // GL_TEXTUREi to reactivate, or the current-unit marker
};

} // namespace

int Texture::CurrentUnit_DEPRECATED_1_0()
{
    return CURRENT_UNIT;
}

// The mode of the active unit's environment (GL_MODULATE, GL_REPLACE, ...),
// passed to GL as given; TextureUnit::setEnv() offers the checked form.
void Texture::setEnv_DEPRECATED_1_0(unsigned int mode)
{
    ORU_WRAPPER_GL glTexEnvi(GL_TEXTURE_ENV, GL_TEXTURE_ENV_MODE, static_cast<GLint>(mode));
    ORU_CHECK_GL(Texture);
}

// Binding does not enable: a shader samples the texture now, the fixed-
// function pipeline only after enable_DEPRECATED_1_0().
void Texture::bind_DEPRECATED_1_0(int unit)
{
    if (unit != CURRENT_UNIT)
        TextureState::setActiveTexture(unit);
    ORU_WRAPPER_GL glBindTexture(target(), n_ObjectID);
    ORU_CHECK_GL(Texture);
}

// Enables the target on the unit and binds this texture to it.
void Texture::enable_DEPRECATED_1_0(int unit)
{
    if (unit != CURRENT_UNIT)
        TextureState::setActiveTexture(unit);
    ORU_WRAPPER_GL glEnable(target());
    ORU_WRAPPER_GL glBindTexture(target(), n_ObjectID);
    ORU_CHECK_GL(Texture);
}

// Unbinding another texture's binding would silently detach it; refused.
void Texture::unbind_DEPRECATED_1_0(int unit)
{
    ActiveUnitGuard guard(unit);
    if (!isBound())
        ORU_THROW_AT(kNotBoundLine, "Texture not bound");
    ORU_WRAPPER_GL glBindTexture(target(), 0);
    ORU_CHECK_GL(Texture);
}

// Enabled means: this texture is bound and its target is enabled on the unit.
bool Texture::isEnabled_DEPRECATED_1_0(int unit) const
{
    ActiveUnitGuard guard(unit);
    if (!isBound())
        return false;
    GLint enabled = 0;
    ORU_WRAPPER_GL glGetIntegerv(target(), &enabled);
    ORU_CHECK_GL(Texture);
    return enabled != 0;
}

void Texture::disable_DEPRECATED_1_0(int unit)
{
    ActiveUnitGuard guard(unit);
    if (!isEnabled_DEPRECATED_1_0(CURRENT_UNIT))
        ORU_THROW_AT(kNotEnabledLine, "Texture target is not enabled..can't disable texture");
    // Only this texture may be disabled: when another one is bound, the
    // target stays enabled for it and the caller is told instead.
    ORU_WRAPPER_GL glBindTexture(target(), 0);
    ORU_WRAPPER_GL glDisable(target());
    ORU_CHECK_GL(Texture);
}

// ---------------------------------------------------------------------------
// What the driver takes.
// ---------------------------------------------------------------------------

// The same rule as TextureState's, which the texture units use as well.
// Cube maps are not among the layer's targets and answer no.
bool Texture::IsTargetSupported(unsigned int glTarget)
{
    return TextureState::IsTargetSupported(glTarget);
}

// GL 1.4 made GL_GENERATE_MIPMAP core; 3.0 deprecated it, and the layer does
// not offer it there: a driver reporting 3.0 or later answers no, even where
// its compatibility profile still knows the parameter.
bool Texture::supportsAutoMIPGeneration()
{
    ExtensionManager const* manager = ExtensionManager::Instance();
    if (manager->isSupported(GL_SGIS_GENERATE_MIPMAP))
        return true;
    const unsigned int major = manager->majorVersion();
    return (major == 1 && manager->minorVersion() >= 4) || major == 2;
}

// ---------------------------------------------------------------------------
// Pixel transfers. The client pixel-store state (both the pack and the unpack
// side) is saved before a transfer sets what it needs and restored after it,
// so that the caller's state is never changed by a texture operation. The
// pixel buffer bindings are not part of that state: transfers through a
// buffer object put the caller's binding back themselves. The dimension
// classes hold a PixelStoreGuard for each push, so that the matching pop
// also happens when a check after the push refuses.
// ---------------------------------------------------------------------------

void Texture::pushAndSetTransferByteAlignment(unsigned int bytes)
{
    if (bytes != 1 && bytes != 2 && bytes != 4 && bytes != 8)
        ORU_THROW("Invalid row byte alignment (must be of 1, 2, 4, or 8).");
    ORU_WRAPPER_GL glPushClientAttrib(GL_CLIENT_PIXEL_STORE_BIT);
    ORU_WRAPPER_GL glPixelStorei(GL_UNPACK_ALIGNMENT, static_cast<GLint>(bytes));
}

void Texture::pushAndSetReadbackByteAlignment(unsigned int bytes)
{
    if (bytes != 1 && bytes != 2 && bytes != 4 && bytes != 8)
        ORU_THROW("Invalid row byte alignment (must be of 1, 2, 4, or 8).");
    ORU_WRAPPER_GL glPushClientAttrib(GL_CLIENT_PIXEL_STORE_BIT);
    ORU_WRAPPER_GL glPixelStorei(GL_PACK_ALIGNMENT, static_cast<GLint>(bytes));
}

void Texture::popPixelTransferModes()
{
    ORU_WRAPPER_GL glPopClientAttrib();
}

// ---------------------------------------------------------------------------
// Channels and sizes.
// ---------------------------------------------------------------------------

// The components a texel of the internal format has. Intensity is one value
// that samples as all four components, luminance one that samples as red,
// green and blue. RGB4 (24) belongs to no group on purpose: it is refused
// like an unknown value, so that no image size is ever derived from it.
// The floating-point formats count like their fixed-point namesakes.
std::size_t Texture::Channels(InternalFormat format)
{
    switch (format)
    {
    case ALPHA:
    case ALPHA4:
    case ALPHA8:
    case ALPHA12:
    case ALPHA16:
    case LUMINANCE:
    case LUMINANCE4:
    case LUMINANCE8:
    case LUMINANCE12:
    case LUMINANCE16:
    case INTENSITY:
    case INTENSITY4:
    case INTENSITY8:
    case INTENSITY12:
    case INTENSITY16:
    case ALPHA32F:
    case INTENSITY32F:
    case LUMINANCE32F:
    case ALPHA16F:
    case INTENSITY16F:
    case LUMINANCE16F:
        return 1;
    case LUMINANCE_ALPHA:
    case LUMINANCE4_ALPHA4:
    case LUMINANCE6_ALPHA2:
    case LUMINANCE8_ALPHA8:
    case LUMINANCE12_ALPHA4:
    case LUMINANCE12_ALPHA12:
    case LUMINANCE16_ALPHA16:
    case LUMINANCE_ALPHA32F:
    case LUMINANCE_ALPHA16F:
        return 2;
    case R3_G3_B2:
    case RGB:
    case RGB5:
    case RGB8:
    case RGB10:
    case RGB12:
    case RGB16:
    case RGB32F:
    case RGB16F:
        return 3;
    case RGBA:
    case RGBA2:
    case RGBA4:
    case RGB5_A1:
    case RGBA8:
    case RGB10_A2:
    case RGBA12:
    case RGBA16:
    case RGBA32F:
    case RGBA16F:
        return 4;
    default:
        ORU_THROW_AT(kUnsizedFormatLine, "InternalFormat enums are not all properly sized.");
    }
}

// The components per pixel of client data in the format; with the size of
// the type's elements it gives the bytes per pixel of an upload or a read-back
// (pixelDataSize() of the dimension classes). GL converts between the client
// format and the internal format on the way: components that the texture
// lacks read back as 0 (colour) or 1 (alpha), LUMINANCE reads back the red
// component, and an upload of RED alone leaves green and blue at 0. BGR and
// BGRA are the byte orders of Windows bitmaps, and BGRA with UNSIGNED_BYTE is
// the order drivers keep RGBA8 in, hence its use for storage without data.
// COLOR_INDEX counts one channel: an index per pixel.
std::size_t Texture::Channels(Format format)
{
    switch (format)
    {
    case Format::COLOR_INDEX:
    case Format::RED:
    case Format::GREEN:
    case Format::BLUE:
    case Format::ALPHA:
    case Format::LUMINANCE:
        return 1;
    case Format::LUMINANCE_ALPHA:
        return 2;
    case Format::RGB:
    case Format::BGR:
        return 3;
    case Format::RGBA:
    case Format::BGRA:
        return 4;
    // A value past the enumeration, cast from an integer, is refused with
    // the same text as an internal format that cannot be sized.
    default:
        ORU_THROW_AT(kUnsizedPixelFormatLine, "InternalFormat enums are not all properly sized.");
    }
}

// The bytes of one element of client data of the type, for the types whose
// element is one component: 1, 2 or 4. The packed types (one element per
// pixel, several components in it), the 32-bit integers and bitmaps answer 0,
// and the dimension classes refuse to size data of those types; a caller who
// transfers them computes the size itself (a bitmap packs eight pixels into a
// byte). Signed and unsigned types share their sizes; HALF_FLOAT is the
// 16-bit float of GL_ARB_half_float_pixel.
std::size_t Texture::ComponentSize(Type type)
{
    switch (type)
    {
    case UNSIGNED_BYTE:
    case BYTE:
        return 1;
    case UNSIGNED_SHORT:
    case SHORT:
    case HALF_FLOAT:
        return 2;
    case FLOAT:
        return 4;
    default:
        return 0;
    }
}

// The bytes of a width x height x depth image of the internal format at one
// level: bytes per channel times channels times texels. Use it to estimate
// memory, or to size a buffer that receives the level-0 image in the texture's
// own format. It counts no row padding (the pack alignment adds that on a
// read-back), no other mip level and nothing a driver adds for its own layout.
//
// Only formats whose channels are all 8, 16 or 32 bits wide have a whole
// number of bytes per channel. The others (4-, 10- and 12-bit channels and the
// packed formats) may be stored at whatever width the driver chooses, so they
// are refused rather than guessed. That refusal names the format by passing
// the layer's own enumeration value to TokenName(), not the GL constant, and
// callers that match on the text rely on it staying so. RGB4 and values past
// the table are unknown formats and raise the sizing text of Channels().
// The result is a size_t; sizeInBytes() of an instance keeps it as an int,
// which limits that member to images below 2 GB.
std::size_t Texture::SizeInBytes(InternalFormat format, std::size_t width, std::size_t height, std::size_t depth)
{
    std::size_t bytesPerChannel = 0;
    switch (format)
    {
    // 8 bits per channel; the unsized formats are stored that way by the
    // drivers the layer runs on.
    case ALPHA:
    case ALPHA8:
    case LUMINANCE:
    case LUMINANCE8:
    case LUMINANCE_ALPHA:
    case LUMINANCE8_ALPHA8:
    case INTENSITY:
    case INTENSITY8:
    case RGB:
    case RGB8:
    case RGBA:
    case RGBA8:
        bytesPerChannel = 1;
        break;
    // 16 bits: normalised integers, and the half floats of
    // GL_ARB_texture_float.
    case ALPHA16:
    case LUMINANCE16:
    case LUMINANCE16_ALPHA16:
    case INTENSITY16:
    case RGB16:
    case RGBA16:
    case RGBA16F:
    case RGB16F:
    case ALPHA16F:
    case INTENSITY16F:
    case LUMINANCE16F:
    case LUMINANCE_ALPHA16F:
        bytesPerChannel = 2;
        break;
    // 32-bit floats.
    case RGBA32F:
    case RGB32F:
    case ALPHA32F:
    case INTENSITY32F:
    case LUMINANCE32F:
    case LUMINANCE_ALPHA32F:
        bytesPerChannel = 4;
        break;
    // Channels that are not a whole number of bytes, or not all equally wide.
    case ALPHA4:
    case ALPHA12:
    case LUMINANCE4:
    case LUMINANCE12:
    case LUMINANCE4_ALPHA4:
    case LUMINANCE6_ALPHA2:
    case LUMINANCE12_ALPHA4:
    case LUMINANCE12_ALPHA12:
    case INTENSITY4:
    case INTENSITY12:
    case R3_G3_B2:
    case RGB5:
    case RGB10:
    case RGB12:
    case RGBA2:
    case RGBA4:
    case RGB5_A1:
    case RGB10_A2:
    case RGBA12:
        ORU_THROW_AT(kUnknownChannelsLine,
                     "Texture::SizeInBytes Unknown color channels for format " << TokenName(format));
    // RGB4, which is in no channel group either, and anything past the
    // enumeration.
    default:
        ORU_THROW_AT(kUnknownFormatLine, "InternalFormat enums are not all properly sized.");
    }
    return bytesPerChannel * Channels(format) * width * height * depth;
}

// ---------------------------------------------------------------------------
// Helpers around transfers and hooks.
// ---------------------------------------------------------------------------

Texture::PixelStoreGuard::PixelStoreGuard()
    : bPushed_(false)
{
}

Texture::PixelStoreGuard::~PixelStoreGuard()
{
    if (bPushed_)
        ORU_WRAPPER_GL_NOTHROW glPopClientAttrib(); // popPixelTransferModes(), never throwing
}

void Texture::PixelStoreGuard::pushed()
{
    bPushed_ = true;
}

// Kept as the place for a check of the current texture object; it has none.
void Texture::verifyCurrentTextureObject() const
{
}

// ---------------------------------------------------------------------------
// Translations: one two-way table per enumeration. Each refuses a value
// without a row with its own text, reported at the line of its table.
// ---------------------------------------------------------------------------

} // namespace OGL
} // namespace Oru

#include "oru_ogl/ogl/TwoWayTable.h"

namespace Oru
{
namespace OGL
{

namespace
{

const TwoWayTable<Texture::Target>::Row kTargetsRows[] = {
    { Texture::TEXTURE_1D, GL_TEXTURE_1D },
    { Texture::TEXTURE_2D, GL_TEXTURE_2D },
    { Texture::TEXTURE_3D, GL_TEXTURE_3D },
    { Texture::TEXTURE_RECT, GL_TEXTURE_RECTANGLE_ARB },
};
const TwoWayTable<Texture::Target> kTargets(kTargetsRows, __FILE__, __LINE__,
    "!\"Target enums are not all properly translated.\"");

const TwoWayTable<Texture::TargetBinding>::Row kTargetBindingsRows[] = {
    { Texture::TEXTURE_BINDING_1D, GL_TEXTURE_BINDING_1D },
    { Texture::TEXTURE_BINDING_2D, GL_TEXTURE_BINDING_2D },
    { Texture::TEXTURE_BINDING_3D, GL_TEXTURE_BINDING_3D },
    { Texture::TEXTURE_BINDING_RECT, GL_TEXTURE_BINDING_RECTANGLE_ARB },
};
const TwoWayTable<Texture::TargetBinding> kTargetBindings(kTargetBindingsRows, __FILE__, __LINE__,
    "!\"Target enums are not all properly translated.\"");

// The sized formats of GL 1.1 and the floating-point ones of
// GL_ARB_texture_float (38 to 49).
const TwoWayTable<Texture::InternalFormat>::Row kInternalFormatsRows[] = {
    { Texture::ALPHA, GL_ALPHA },
    { Texture::ALPHA4, GL_ALPHA4 },
    { Texture::ALPHA8, GL_ALPHA8 },
    { Texture::ALPHA12, GL_ALPHA12 },
    { Texture::ALPHA16, GL_ALPHA16 },
    { Texture::LUMINANCE, GL_LUMINANCE },
    { Texture::LUMINANCE4, GL_LUMINANCE4 },
    { Texture::LUMINANCE8, GL_LUMINANCE8 },
    { Texture::LUMINANCE12, GL_LUMINANCE12 },
    { Texture::LUMINANCE16, GL_LUMINANCE16 },
    { Texture::LUMINANCE_ALPHA, GL_LUMINANCE_ALPHA },
    { Texture::LUMINANCE4_ALPHA4, GL_LUMINANCE4_ALPHA4 },
    { Texture::LUMINANCE6_ALPHA2, GL_LUMINANCE6_ALPHA2 },
    { Texture::LUMINANCE8_ALPHA8, GL_LUMINANCE8_ALPHA8 },
    { Texture::LUMINANCE12_ALPHA4, GL_LUMINANCE12_ALPHA4 },
    { Texture::LUMINANCE12_ALPHA12, GL_LUMINANCE12_ALPHA12 },
    { Texture::LUMINANCE16_ALPHA16, GL_LUMINANCE16_ALPHA16 },
    { Texture::INTENSITY, GL_INTENSITY },
    { Texture::INTENSITY4, GL_INTENSITY4 },
    { Texture::INTENSITY8, GL_INTENSITY8 },
    { Texture::INTENSITY12, GL_INTENSITY12 },
    { Texture::INTENSITY16, GL_INTENSITY16 },
    { Texture::R3_G3_B2, GL_R3_G3_B2 },
    { Texture::RGB, GL_RGB },
    { Texture::RGB4, GL_RGB4 },
    { Texture::RGB5, GL_RGB5 },
    { Texture::RGB8, GL_RGB8 },
    { Texture::RGB10, GL_RGB10 },
    { Texture::RGB12, GL_RGB12 },
    { Texture::RGB16, GL_RGB16 },
    { Texture::RGBA, GL_RGBA },
    { Texture::RGBA2, GL_RGBA2 },
    { Texture::RGBA4, GL_RGBA4 },
    { Texture::RGB5_A1, GL_RGB5_A1 },
    { Texture::RGBA8, GL_RGBA8 },
    { Texture::RGB10_A2, GL_RGB10_A2 },
    { Texture::RGBA12, GL_RGBA12 },
    { Texture::RGBA16, GL_RGBA16 },
    { Texture::RGBA32F, GL_RGBA32F_ARB },
    { Texture::RGB32F, GL_RGB32F_ARB },
    { Texture::ALPHA32F, GL_ALPHA32F_ARB },
    { Texture::INTENSITY32F, GL_INTENSITY32F_ARB },
    { Texture::LUMINANCE32F, GL_LUMINANCE32F_ARB },
    { Texture::LUMINANCE_ALPHA32F, GL_LUMINANCE_ALPHA32F_ARB },
    { Texture::RGBA16F, GL_RGBA16F_ARB },
    { Texture::RGB16F, GL_RGB16F_ARB },
    { Texture::ALPHA16F, GL_ALPHA16F_ARB },
    { Texture::INTENSITY16F, GL_INTENSITY16F_ARB },
    { Texture::LUMINANCE16F, GL_LUMINANCE16F_ARB },
    { Texture::LUMINANCE_ALPHA16F, GL_LUMINANCE_ALPHA16F_ARB },
};
const TwoWayTable<Texture::InternalFormat> kInternalFormats(kInternalFormatsRows, __FILE__, __LINE__,
    "!\"InternalFormat enums are not all properly translated.\"");

const TwoWayTable<Texture::Format>::Row kFormatsRows[] = {
    { Texture::Format::COLOR_INDEX, GL_COLOR_INDEX },
    { Texture::Format::RED, GL_RED },
    { Texture::Format::GREEN, GL_GREEN },
    { Texture::Format::BLUE, GL_BLUE },
    { Texture::Format::ALPHA, GL_ALPHA },
    { Texture::Format::RGB, GL_RGB },
    { Texture::Format::BGR, GL_BGR },
    { Texture::Format::RGBA, GL_RGBA },
    { Texture::Format::BGRA, GL_BGRA },
    { Texture::Format::LUMINANCE, GL_LUMINANCE },
    { Texture::Format::LUMINANCE_ALPHA, GL_LUMINANCE_ALPHA },
};
const TwoWayTable<Texture::Format> kFormats(kFormatsRows, __FILE__, __LINE__,
    "!\"Format enums are not all properly translated.\"");

const TwoWayTable<Texture::Type>::Row kTypesRows[] = {
    { Texture::UNSIGNED_BYTE, GL_UNSIGNED_BYTE },
    { Texture::BYTE, GL_BYTE },
    { Texture::BITMAP, GL_BITMAP },
    { Texture::UNSIGNED_SHORT, GL_UNSIGNED_SHORT },
    { Texture::SHORT, GL_SHORT },
    { Texture::UNSIGNED_INT, GL_UNSIGNED_INT },
    { Texture::INT, GL_INT },
    { Texture::FLOAT, GL_FLOAT },
    { Texture::UNSIGNED_BYTE_3_3_2, GL_UNSIGNED_BYTE_3_3_2 },
    { Texture::UNSIGNED_BYTE_2_3_3_REV, GL_UNSIGNED_BYTE_2_3_3_REV },
    { Texture::UNSIGNED_SHORT_5_6_5, GL_UNSIGNED_SHORT_5_6_5 },
    { Texture::UNSIGNED_SHORT_5_6_5_REV, GL_UNSIGNED_SHORT_5_6_5_REV },
    { Texture::UNSIGNED_SHORT_4_4_4_4, GL_UNSIGNED_SHORT_4_4_4_4 },
    { Texture::UNSIGNED_SHORT_4_4_4_4_REV, GL_UNSIGNED_SHORT_4_4_4_4_REV },
    { Texture::UNSIGNED_SHORT_5_5_5_1, GL_UNSIGNED_SHORT_5_5_5_1 },
    { Texture::UNSIGNED_SHORT_1_5_5_5_REV, GL_UNSIGNED_SHORT_1_5_5_5_REV },
    { Texture::UNSIGNED_INT_8_8_8_8, GL_UNSIGNED_INT_8_8_8_8 },
    { Texture::UNSIGNED_INT_8_8_8_8_REV, GL_UNSIGNED_INT_8_8_8_8_REV },
    { Texture::UNSIGNED_INT_10_10_10_2, GL_UNSIGNED_INT_10_10_10_2 },
    { Texture::UNSIGNED_INT_2_10_10_10_REV, GL_UNSIGNED_INT_2_10_10_10_REV },
    { Texture::HALF_FLOAT, GL_HALF_FLOAT_ARB },
};
const TwoWayTable<Texture::Type> kTypes(kTypesRows, __FILE__, __LINE__,
    "!\"Type enums are not all properly translated.\"");

const TwoWayTable<Texture::Filter>::Row kFiltersRows[] = {
    { Texture::NEAREST, GL_NEAREST },
    { Texture::LINEAR, GL_LINEAR },
    { Texture::NEAREST_MIPMAP_NEAREST, GL_NEAREST_MIPMAP_NEAREST },
    { Texture::LINEAR_MIPMAP_NEAREST, GL_LINEAR_MIPMAP_NEAREST },
    { Texture::NEAREST_MIPMAP_LINEAR, GL_NEAREST_MIPMAP_LINEAR },
    { Texture::LINEAR_MIPMAP_LINEAR, GL_LINEAR_MIPMAP_LINEAR },
};
const TwoWayTable<Texture::Filter> kFilters(kFiltersRows, __FILE__, __LINE__,
    "!\"Filter enums are not all properly translated.\"");

const TwoWayTable<Texture::WrapMode>::Row kWrapModesRows[] = {
    { Texture::CLAMP, GL_CLAMP },
    { Texture::CLAMP_TO_BORDER, GL_CLAMP_TO_BORDER },
    { Texture::CLAMP_TO_EDGE, GL_CLAMP_TO_EDGE },
    { Texture::MIRRORED_REPEAT, GL_MIRRORED_REPEAT },
    { Texture::REPEAT, GL_REPEAT },
};
const TwoWayTable<Texture::WrapMode> kWrapModes(kWrapModesRows, __FILE__, __LINE__,
    "!\"WrapMode enums are not all properly translated.\"");

const TwoWayTable<Texture::PixelStoreMode>::Row kPixelStoreModesRows[] = {
    { Texture::PACK_SWAP_BYTES, GL_PACK_SWAP_BYTES },
    { Texture::PACK_LSB_FIRST, GL_PACK_LSB_FIRST },
    { Texture::PACK_ROW_LENGTH, GL_PACK_ROW_LENGTH },
    { Texture::PACK_IMAGE_HEIGHT, GL_PACK_IMAGE_HEIGHT },
    { Texture::PACK_SKIP_PIXELS, GL_PACK_SKIP_PIXELS },
    { Texture::PACK_SKIP_ROWS, GL_PACK_SKIP_ROWS },
    { Texture::PACK_SKIP_IMAGES, GL_PACK_SKIP_IMAGES },
    { Texture::PACK_ALIGNMENT, GL_PACK_ALIGNMENT },
    { Texture::UNPACK_SWAP_BYTES, GL_UNPACK_SWAP_BYTES },
    { Texture::UNPACK_LSB_FIRST, GL_UNPACK_LSB_FIRST },
    { Texture::UNPACK_ROW_LENGTH, GL_UNPACK_ROW_LENGTH },
    { Texture::UNPACK_IMAGE_HEIGHT, GL_UNPACK_IMAGE_HEIGHT },
    { Texture::UNPACK_SKIP_PIXELS, GL_UNPACK_SKIP_PIXELS },
    { Texture::UNPACK_SKIP_ROWS, GL_UNPACK_SKIP_ROWS },
    { Texture::UNPACK_SKIP_IMAGES, GL_UNPACK_SKIP_IMAGES },
    { Texture::UNPACK_ALIGNMENT, GL_UNPACK_ALIGNMENT },
};
const TwoWayTable<Texture::PixelStoreMode> kPixelStoreModes(kPixelStoreModesRows, __FILE__, __LINE__,
    "!\"PixelStoreMode enums are not all properly translated.\"");

} // namespace

unsigned int Texture::Target2GL(Target target) { return kTargets.toGL(target); }
Texture::Target Texture::GL2Target(unsigned int target) { return kTargets.fromGL(target); }
// The binding queries share the targets' text: they are the targets' twins.
unsigned int Texture::TargetBinding2GL(TargetBinding binding) { return kTargetBindings.toGL(binding); }
Texture::TargetBinding Texture::GL2TargetBinding(unsigned int binding) { return kTargetBindings.fromGL(binding); }
unsigned int Texture::InternalFormat2GL(InternalFormat format) { return kInternalFormats.toGL(format); }
// Only the sized constants of the table translate back: GL's generic values
// 1 to 4 for the component count are not internal formats of the layer.
Texture::InternalFormat Texture::GL2InternalFormat(unsigned int format) { return kInternalFormats.fromGL(format); }
unsigned int Texture::Format2GL(Format format) { return kFormats.toGL(format); }
Texture::Format Texture::GL2Format(unsigned int format) { return kFormats.fromGL(format); }
unsigned int Texture::Type2GL(Type type) { return kTypes.toGL(type); }
Texture::Type Texture::GL2Type(unsigned int type) { return kTypes.fromGL(type); }
unsigned int Texture::Filter2GL(Filter filter) { return kFilters.toGL(filter); }
Texture::Filter Texture::GL2Filter(unsigned int filter) { return kFilters.fromGL(filter); }
unsigned int Texture::WrapMode2GL(WrapMode mode) { return kWrapModes.toGL(mode); }
Texture::WrapMode Texture::GL2WrapMode(unsigned int mode) { return kWrapModes.fromGL(mode); }
unsigned int Texture::PixelStoreMode2GL(PixelStoreMode mode) { return kPixelStoreModes.toGL(mode); }
Texture::PixelStoreMode Texture::GL2PixelStoreMode(unsigned int mode) { return kPixelStoreModes.fromGL(mode); }

} // namespace OGL
} // namespace Oru
