#ifndef ORU_OGL_OGL_TEXTUREUNIT_H
#define ORU_OGL_OGL_TEXTUREUNIT_H

#include "oru_ogl/OglExport.h"

#include <cstddef>
#include <vector>

namespace Oru
{
namespace OGL
{

class Context;
class Texture1D;
class Texture2D;
class Texture3D;
class TextureRECT;

/// The fixed-function texture units of the context, one object each, built at
/// start-up from the extension manager's count. Each operation acts on the
/// unit that is active in GL when it is called; select one first with
/// TextureState::setActiveTexture(). Every operation refuses while the table
/// does not exist (before start-up or after shutdown).
class ORU_OGL_API TextureUnit
{
public:
    /// Texture environment modes.
    enum Environment
    {
        ADD = 0,
        BLEND = 1,
        COMBINE = 2,
        DECAL = 3,
        MODULATE = 4,
        REPLACE = 5
    };

    /// GL value of an Environment.
    /// @param environment a texture environment mode
    /// @return GL_ADD, GL_BLEND, GL_COMBINE, GL_DECAL, GL_MODULATE or GL_REPLACE
    /// @throws Oru::InternalException "!\"Environment enums are not all properly translated.\""
    ///         for a value outside the enumeration
    static unsigned int Environment2GL(Environment environment);
    /// Environment of a GL value; the exact inverse of Environment2GL().
    /// @param environment one of the six GL modes above
    /// @return the layer's mode
    /// @throws Oru::InternalException "!\"Environment enums are not all properly translated.\""
    ///         for any other value, combiner modes included
    static Environment GL2Environment(unsigned int environment);

    /// The object of a unit. Asking for a unit does not activate it.
    /// @param unit the unit number, 0 for GL_TEXTURE0, below
    ///             ExtensionManager::numberOfTextureUnits()
    /// @return the unit's object, owned by the table and valid until shutdown
    /// @throws Oru::InternalException "unit < nMaxTextureUnit_" for a unit out of
    ///         range, and for every unit while the layer is not started
    static TextureUnit* Unit(unsigned int unit);

    /// Binds a 1D texture to GL_TEXTURE_1D of the active unit.
    /// @param texture the texture; not null
    /// @throws Oru::InternalException "TextureUnit::Create() was not called (Singleton not created.)"
    ///         while the layer is not started (a unit kept across a shutdown)
    /// @throws Oru::OGL::ExceptionOGL "TextureUnit::bindTexture: <gluErrorString text>" with
    ///         checked wrappers on, when GL has an error pending afterwards
    void bind(Texture1D* texture) const;
    /// Binds a 2D texture to GL_TEXTURE_2D of the active unit.
    /// @param texture the texture; not null
    /// @throws Oru::InternalException "TextureUnit::Create() was not called (Singleton not created.)"
    ///         while the layer is not started (a unit kept across a shutdown)
    /// @throws Oru::OGL::ExceptionOGL "TextureUnit::bindTexture: <gluErrorString text>" with
    ///         checked wrappers on, when GL has an error pending afterwards
    void bind(Texture2D* texture) const;
    /// Binds a 3D texture to GL_TEXTURE_3D of the active unit.
    /// @param texture the texture; not null
    /// @throws Oru::InternalException "TextureUnit::Create() was not called (Singleton not created.)"
    ///         while the layer is not started (a unit kept across a shutdown)
    /// @throws Oru::OGL::ExceptionOGL "TextureUnit::bindTexture: <gluErrorString text>" with
    ///         checked wrappers on, when GL has an error pending afterwards
    void bind(Texture3D* texture) const;
    /// Binds a rectangle texture to GL_TEXTURE_RECTANGLE_ARB of the active unit.
    /// @param texture the texture; not null
    /// @throws Oru::InternalException "TextureUnit::Create() was not called (Singleton not created.)"
    ///         while the layer is not started (a unit kept across a shutdown)
    /// @throws Oru::OGL::ExceptionOGL "TextureUnit::bindTexture: <gluErrorString text>" with
    ///         checked wrappers on, when GL has an error pending afterwards
    void bind(TextureRECT* texture) const;
    /// Binds the default texture (name 0) to GL_TEXTURE_1D of the active unit.
    /// @throws Oru::InternalException "TextureUnit::Create() was not called (Singleton not created.)"
    ///         while the layer is not started (a unit kept across a shutdown)
    /// @throws Oru::OGL::ExceptionOGL "TextureUnit::bindTexture: <gluErrorString text>" with
    ///         checked wrappers on, when GL has an error pending afterwards
    void bind1DDefault() const;
    /// Binds the default texture (name 0) to GL_TEXTURE_2D of the active unit.
    /// @throws Oru::InternalException "TextureUnit::Create() was not called (Singleton not created.)"
    ///         while the layer is not started (a unit kept across a shutdown)
    /// @throws Oru::OGL::ExceptionOGL "TextureUnit::bindTexture: <gluErrorString text>" with
    ///         checked wrappers on, when GL has an error pending afterwards
    void bind2DDefault() const;
    /// Binds the default texture (name 0) to GL_TEXTURE_3D of the active unit.
    /// @throws Oru::InternalException "TextureUnit::Create() was not called (Singleton not created.)"
    ///         while the layer is not started (a unit kept across a shutdown)
    /// @throws Oru::OGL::ExceptionOGL "TextureUnit::bindTexture: <gluErrorString text>" with
    ///         checked wrappers on, when GL has an error pending afterwards
    void bind3DDefault() const;
    /// Binds the default texture (name 0) to GL_TEXTURE_RECTANGLE_ARB of the active unit.
    /// @throws Oru::InternalException "TextureUnit::Create() was not called (Singleton not created.)"
    ///         while the layer is not started (a unit kept across a shutdown)
    /// @throws Oru::OGL::ExceptionOGL "TextureUnit::bindTexture: <gluErrorString text>" with
    ///         checked wrappers on, when GL has an error pending afterwards
    void bindRECTDefault() const;

    /// Enables GL_TEXTURE_1D on the active unit (fixed-function sampling).
    /// @throws Oru::InternalException "TextureUnit::Create() was not called (Singleton not created.)"
    ///         while the layer is not started (a unit kept across a shutdown)
    /// @throws Oru::OGL::ExceptionOGL "TextureUnit::enable: <gluErrorString text>" with
    ///         checked wrappers on, when GL has an error pending afterwards
    void enable1D() const;
    /// Enables GL_TEXTURE_2D on the active unit (fixed-function sampling).
    /// @throws Oru::InternalException "TextureUnit::Create() was not called (Singleton not created.)"
    ///         while the layer is not started (a unit kept across a shutdown)
    /// @throws Oru::OGL::ExceptionOGL "TextureUnit::enable: <gluErrorString text>" with
    ///         checked wrappers on, when GL has an error pending afterwards
    void enable2D() const;
    /// Enables GL_TEXTURE_3D on the active unit (fixed-function sampling).
    /// @throws Oru::InternalException "TextureUnit::Create() was not called (Singleton not created.)"
    ///         while the layer is not started (a unit kept across a shutdown)
    /// @throws Oru::OGL::ExceptionOGL "TextureUnit::enable: <gluErrorString text>" with
    ///         checked wrappers on, when GL has an error pending afterwards
    void enable3D() const;
    /// Enables GL_TEXTURE_RECTANGLE_ARB on the active unit (fixed-function sampling).
    /// @throws Oru::InternalException "TextureUnit::Create() was not called (Singleton not created.)"
    ///         while the layer is not started (a unit kept across a shutdown)
    /// @throws Oru::OGL::ExceptionOGL "TextureUnit::enable: <gluErrorString text>" with
    ///         checked wrappers on, when GL has an error pending afterwards
    void enableRECT() const;
    /// Disables GL_TEXTURE_1D on the active unit (fixed-function sampling).
    /// @throws Oru::InternalException "TextureUnit::Create() was not called (Singleton not created.)"
    ///         while the layer is not started (a unit kept across a shutdown)
    /// @throws Oru::OGL::ExceptionOGL "TextureUnit::disable: <gluErrorString text>" with
    ///         checked wrappers on, when GL has an error pending afterwards
    void disable1D() const;
    /// Disables GL_TEXTURE_2D on the active unit (fixed-function sampling).
    /// @throws Oru::InternalException "TextureUnit::Create() was not called (Singleton not created.)"
    ///         while the layer is not started (a unit kept across a shutdown)
    /// @throws Oru::OGL::ExceptionOGL "TextureUnit::disable: <gluErrorString text>" with
    ///         checked wrappers on, when GL has an error pending afterwards
    void disable2D() const;
    /// Disables GL_TEXTURE_3D on the active unit (fixed-function sampling).
    /// @throws Oru::InternalException "TextureUnit::Create() was not called (Singleton not created.)"
    ///         while the layer is not started (a unit kept across a shutdown)
    /// @throws Oru::OGL::ExceptionOGL "TextureUnit::disable: <gluErrorString text>" with
    ///         checked wrappers on, when GL has an error pending afterwards
    void disable3D() const;
    /// Disables GL_TEXTURE_RECTANGLE_ARB on the active unit (fixed-function sampling).
    /// @throws Oru::InternalException "TextureUnit::Create() was not called (Singleton not created.)"
    ///         while the layer is not started (a unit kept across a shutdown)
    /// @throws Oru::OGL::ExceptionOGL "TextureUnit::disable: <gluErrorString text>" with
    ///         checked wrappers on, when GL has an error pending afterwards
    void disableRECT() const;
    /// Whether GL_TEXTURE_1D is enabled on the active unit, read from GL.
    /// @return true when glIsEnabled answers GL_TRUE
    /// @throws Oru::InternalException "TextureUnit::Create() was not called (Singleton not created.)"
    ///         while the layer is not started (a unit kept across a shutdown)
    /// @throws Oru::OGL::ExceptionOGL "TextureUnit::isEnabled: <gluErrorString text>" with
    ///         checked wrappers on, when GL has an error pending afterwards
    bool isEnabled1D() const;
    /// Whether GL_TEXTURE_2D is enabled on the active unit, read from GL.
    /// @return true when glIsEnabled answers GL_TRUE
    /// @throws Oru::InternalException "TextureUnit::Create() was not called (Singleton not created.)"
    ///         while the layer is not started (a unit kept across a shutdown)
    /// @throws Oru::OGL::ExceptionOGL "TextureUnit::isEnabled: <gluErrorString text>" with
    ///         checked wrappers on, when GL has an error pending afterwards
    bool isEnabled2D() const;
    /// Whether GL_TEXTURE_3D is enabled on the active unit, read from GL.
    /// @return true when glIsEnabled answers GL_TRUE
    /// @throws Oru::InternalException "TextureUnit::Create() was not called (Singleton not created.)"
    ///         while the layer is not started (a unit kept across a shutdown)
    /// @throws Oru::OGL::ExceptionOGL "TextureUnit::isEnabled: <gluErrorString text>" with
    ///         checked wrappers on, when GL has an error pending afterwards
    bool isEnabled3D() const;
    /// Whether GL_TEXTURE_RECTANGLE_ARB is enabled on the active unit, read from GL.
    /// @return true when glIsEnabled answers GL_TRUE
    /// @throws Oru::InternalException "TextureUnit::Create() was not called (Singleton not created.)"
    ///         while the layer is not started (a unit kept across a shutdown)
    /// @throws Oru::OGL::ExceptionOGL "TextureUnit::isEnabled: <gluErrorString text>" with
    ///         checked wrappers on, when GL has an error pending afterwards
    bool isEnabledRECT() const;

    /// Sets the texture environment mode of the active unit: how the texture
    /// colour combines with the fragment colour. The mode is checked before
    /// anything reaches GL.
    /// @param mode the environment mode; MODULATE is GL's default
    /// @throws Oru::InternalException "!\"Environment enums are not all properly translated.\""
    ///         for a value outside the enumeration
    /// @throws Oru::InternalException "TextureUnit::Create() was not called (Singleton not created.)"
    ///         while the layer is not started (a unit kept across a shutdown)
    /// @throws Oru::OGL::ExceptionOGL "TextureUnit::setEnv: <gluErrorString text>" with
    ///         checked wrappers on, when GL has an error pending afterwards
    void setEnv(Environment mode) const;

private:
    friend class Library;

    static void Create(Context* pContext);
    static void Destroy();

    explicit TextureUnit(std::size_t unit);
    ~TextureUnit();
    TextureUnit(TextureUnit const&) = delete;
    TextureUnit& operator=(TextureUnit const&) = delete;

    void verifyActiveTexture() const;
    void bindTexture(unsigned int target, unsigned int name) const;
    void enable(unsigned int target) const;
    void disable(unsigned int target) const;
    bool isEnabled(unsigned int target) const;

    unsigned long long nUnit_;

    static std::vector<TextureUnit*> units_;
    static unsigned int nMaxTextureUnit_;
};

} // namespace OGL
} // namespace Oru

#endif
