#include "oru_ogl/ogl/TextureUnit.h"

#include "oru_ogl/Enforce.h"
#include "oru_ogl/extensionator/ExtensionManager.h"
#include "oru_ogl/ogl/GLConstants.h"
#include "oru_ogl/ogl/TwoWayTable.h"
#include "oru_ogl/ogl/WrapperCall.h"
#include "oru_ogl/ogl/WrapperCheck.h"

// The texture-unit table: one object per fixed-function unit of the context the layer was
// started for, made by Library at start-up and deleted at shutdown. The objects carry their
// index only; every GL call acts on the unit active at the time, which the caller selects.

namespace Oru
{
namespace OGL
{

namespace
{

// The lines that this file's checks report; callers match on them.
const int kUnitRangeLine = 76;
const int kEnvironmentLine = 249;
const int kNotCreatedLine = 280;

} // namespace

std::vector<TextureUnit*> TextureUnit::units_;
unsigned int TextureUnit::nMaxTextureUnit_ = 0;

// ---------------------------------------------------------------------------
// The table.
// ---------------------------------------------------------------------------

// Builds the table once; a second call while it exists changes nothing. The
// count comes from the extension manager, which must exist already.
void TextureUnit::Create(Context* /*pContext*/)
{
    // Start-up's step in the wrappers' part of the layer: the options that
    // cost the wrappers one test of a flag each are switched here.
    WrapperCheck::switchOn(ExtensionManager::Instance()->initOptions().checkedWrappers());
    WrapperCall::switchOn(ExtensionManager::Instance()->initOptions().wrappersThroughChain());
    if (nMaxTextureUnit_ != 0)
        return;
    const unsigned int count = ExtensionManager::Instance()->numberOfTextureUnits();
    units_.reserve(count);
    for (unsigned int i = 0; i < count; ++i)
        units_.push_back(new TextureUnit(i));
    nMaxTextureUnit_ = count;
}

// Deletes every unit; the table is empty again and Unit() refuses until the next start-up.
void TextureUnit::Destroy()
{
    WrapperCheck::switchOn(false);
    WrapperCall::switchOn(false);
    for (TextureUnit* unit : units_)
        delete unit;
    units_.clear();
    nMaxTextureUnit_ = 0;
}

TextureUnit::TextureUnit(std::size_t unit)
    : nUnit_(unit)
{
}

TextureUnit::~TextureUnit() = default;

// The unit's object. Units are numbered from 0 like GL_TEXTURE0 + n, and
// the count is the driver's (ExtensionManager::numberOfTextureUnits()): the
// image units where fragment programs exist, else the fixed-function units.
//
// Before start-up the count is 0, so every unit is refused with the same text:
// the table does not exist yet.
//
// The returned object stays owned by the table; it is valid until shutdown.
// Asking for a unit does not activate it: the operations act on the unit that
// is active in GL, so Unit(1)->enable2D() while unit 0 is active enables
// GL_TEXTURE_2D on unit 0. Select the unit with TextureState::setActiveTexture()
// first.
TextureUnit* TextureUnit::Unit(unsigned int unit)
{
    ORU_VERIFY_AT(kUnitRangeLine, unit < nMaxTextureUnit_);
    return units_[unit];
}

// ---------------------------------------------------------------------------
// Binding, enabling and querying the targets on the active unit.
//
// Binding names the texture that a target of the active unit samples; enabling
// a target makes the fixed-function pipeline sample it at all (shaders ignore
// the enables). Of several enabled targets the highest wins: 3D over
// rectangle over 2D over 1D. The layer's textures are bound with bind(), the
// defaults (name 0) with the bind...Default() members; both are plain
// glBindTexture calls, whatever was bound before.
//
// The queries read GL's state, not a copy kept here: a call made by other code
// directly on GL is seen at once.
// ---------------------------------------------------------------------------

void TextureUnit::bindTexture(unsigned int target, unsigned int name) const
{
    verifyActiveTexture();
    ORU_WRAPPER_GL glBindTexture(target, name);
    ORU_CHECK_GL(TextureUnit);
}

void TextureUnit::enable(unsigned int target) const
{
    verifyActiveTexture();
    ORU_WRAPPER_GL glEnable(target);
    ORU_CHECK_GL(TextureUnit);
}

void TextureUnit::disable(unsigned int target) const
{
    verifyActiveTexture();
    ORU_WRAPPER_GL glDisable(target);
    ORU_CHECK_GL(TextureUnit);
}

bool TextureUnit::isEnabled(unsigned int target) const
{
    verifyActiveTexture();
    const bool enabled = ORU_WRAPPER_GL glIsEnabled(target) == GL_TRUE;
    ORU_CHECK_GL(TextureUnit);
    return enabled;
}

void TextureUnit::bind1DDefault() const { bindTexture(GL_TEXTURE_1D, 0); }
void TextureUnit::bind2DDefault() const { bindTexture(GL_TEXTURE_2D, 0); }
void TextureUnit::bind3DDefault() const { bindTexture(GL_TEXTURE_3D, 0); }
void TextureUnit::bindRECTDefault() const { bindTexture(GL_TEXTURE_RECTANGLE_ARB, 0); }
void TextureUnit::enable1D() const { enable(GL_TEXTURE_1D); }
void TextureUnit::enable2D() const { enable(GL_TEXTURE_2D); }
void TextureUnit::enable3D() const { enable(GL_TEXTURE_3D); }
void TextureUnit::enableRECT() const { enable(GL_TEXTURE_RECTANGLE_ARB); }
void TextureUnit::disable1D() const { disable(GL_TEXTURE_1D); }
void TextureUnit::disable2D() const { disable(GL_TEXTURE_2D); }
void TextureUnit::disable3D() const { disable(GL_TEXTURE_3D); }
void TextureUnit::disableRECT() const { disable(GL_TEXTURE_RECTANGLE_ARB); }
bool TextureUnit::isEnabled1D() const { return isEnabled(GL_TEXTURE_1D); }
bool TextureUnit::isEnabled2D() const { return isEnabled(GL_TEXTURE_2D); }
bool TextureUnit::isEnabled3D() const { return isEnabled(GL_TEXTURE_3D); }
bool TextureUnit::isEnabledRECT() const { return isEnabled(GL_TEXTURE_RECTANGLE_ARB); }

// ---------------------------------------------------------------------------
// The texture environment: how the texture colour Ct combines with the
// incoming fragment colour Cf (and the environment colour Cc) on the unit.
//
//   MODULATE  Cf * Ct, the default
//   REPLACE   Ct
//   DECAL     Cf * (1 - At) + Ct * At for RGBA textures (colour only)
//   BLEND     Cf * (1 - Ct) + Cc * Ct
//   ADD       Cf + Ct, clamped
//   COMBINE   as the unit's combiner state says (GL_COMBINE_RGB and friends)
//
// The mode is per unit and is part of the state that glPushAttrib saves
// with GL_TEXTURE_BIT.
// ---------------------------------------------------------------------------

// The translation is checked before anything reaches GL: an environment
// outside the table is refused without a GL call.
void TextureUnit::setEnv(Environment mode) const
{
    verifyActiveTexture();
    const GLint glMode = static_cast<GLint>(Environment2GL(mode));
    ORU_WRAPPER_GL glTexEnvi(GL_TEXTURE_ENV, GL_TEXTURE_ENV_MODE, glMode);
    ORU_CHECK_GL(TextureUnit);
}

namespace
{

// Both directions refuse at the line of Environment2GL's refusal.
const TwoWayTable<TextureUnit::Environment>::Row kEnvironmentRows[] = {
    { TextureUnit::ADD, GL_ADD },           { TextureUnit::BLEND, GL_BLEND },
    { TextureUnit::COMBINE, GL_COMBINE },   { TextureUnit::DECAL, GL_DECAL },
    { TextureUnit::MODULATE, GL_MODULATE }, { TextureUnit::REPLACE, GL_REPLACE },
};
const TwoWayTable<TextureUnit::Environment> kEnvironments(kEnvironmentRows, __FILE__, kEnvironmentLine,
                                                         "!\"Environment enums are not all properly translated.\"");

} // namespace

unsigned int TextureUnit::Environment2GL(Environment environment) { return kEnvironments.toGL(environment); }
// The exact inverse: only the six GL modes of the table translate back; any
// combiner mode is refused with the same text as an unknown value.
TextureUnit::Environment TextureUnit::GL2Environment(unsigned int environment)
{
    return kEnvironments.fromGL(environment);
}

// Every operation of a unit starts here: without the table there is no layer,
// and the unit objects that a caller kept from an earlier start-up are gone.
// The check reads the count, not the object. Unit() itself refuses while the
// table is empty, so in practice this catches a unit object used across a
// shutdown and a new start-up's gap, which is the caller's error: unit objects
// are valid only between start-up and shutdown, and a pointer kept across a
// shutdown must not be used at all. The text names the missing step, as the
// usual cause is a wrapper used before the layer was started.
//
// It is the same text for every operation of a unit.
void TextureUnit::verifyActiveTexture() const
{
    if (nMaxTextureUnit_ == 0)
        ORU_THROW_AT(kNotCreatedLine, "TextureUnit::Create() was not called (Singleton not created.)");
}

} // namespace OGL
} // namespace Oru

// ---------------------------------------------------------------------------
// Binding the layer's own textures. Only these four operations need the
// texture classes, so their headers come in here.
// ---------------------------------------------------------------------------

#include "oru_ogl/ogl/Texture1.h"
#include "oru_ogl/ogl/Texture2.h"
#include "oru_ogl/ogl/Texture3.h"

namespace Oru
{
namespace OGL
{

void TextureUnit::bind(Texture1D* texture) const
{
    bindTexture(GL_TEXTURE_1D, texture->objectID());
}

void TextureUnit::bind(Texture2D* texture) const
{
    bindTexture(GL_TEXTURE_2D, texture->objectID());
}

void TextureUnit::bind(Texture3D* texture) const
{
    bindTexture(GL_TEXTURE_3D, texture->objectID());
}

void TextureUnit::bind(TextureRECT* texture) const
{
    bindTexture(GL_TEXTURE_RECTANGLE_ARB, texture->objectID());
}

} // namespace OGL
} // namespace Oru
