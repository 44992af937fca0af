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
    static unsigned int Environment2GL(Environment environment);
    /// Environment of a GL value.
    static Environment GL2Environment(unsigned int environment);

    /// The object of a unit; the table keeps ownership. Refuses unit >= count.
    static TextureUnit* Unit(unsigned int unit);

    /// Binds a 1D texture.
    void bind(Texture1D* texture) const;
    /// Binds a 2D texture.
    void bind(Texture2D* texture) const;
    /// Binds a 3D texture.
    void bind(Texture3D* texture) const;
    /// Binds a rectangle texture.
    void bind(TextureRECT* texture) const;
    /// Binds the default 1D texture.
    void bind1DDefault() const;
    /// Binds the default 2D texture.
    void bind2DDefault() const;
    /// Binds the default 3D texture.
    void bind3DDefault() const;
    /// Binds the default rectangle texture.
    void bindRECTDefault() const;

    /// Enables 1D texturing.
    void enable1D() const;
    /// Enables 2D texturing.
    void enable2D() const;
    /// Enables 3D texturing.
    void enable3D() const;
    /// Enables rectangle texturing.
    void enableRECT() const;
    /// Disables 1D texturing.
    void disable1D() const;
    /// Disables 2D texturing.
    void disable2D() const;
    /// Disables 3D texturing.
    void disable3D() const;
    /// Disables rectangle texturing.
    void disableRECT() const;
    /// Whether 1D texturing is enabled.
    bool isEnabled1D() const;
    /// Whether 2D texturing is enabled.
    bool isEnabled2D() const;
    /// Whether 3D texturing is enabled.
    bool isEnabled3D() const;
    /// Whether rectangle texturing is enabled.
    bool isEnabledRECT() const;

    /// The texture environment mode of the active unit.
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
