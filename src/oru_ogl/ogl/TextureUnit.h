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
    enum Environment
    {
        ADD = 0,
        BLEND = 1,
        COMBINE = 2,
        DECAL = 3,
        MODULATE = 4,
        REPLACE = 5
    };

    static unsigned int Environment2GL(Environment environment);
    static Environment GL2Environment(unsigned int environment);

    /// The object of a unit; the table keeps ownership. Refuses unit >= count.
    static TextureUnit* Unit(unsigned int unit);

    void bind(Texture1D* texture) const;
    void bind(Texture2D* texture) const;
    void bind(Texture3D* texture) const;
    void bind(TextureRECT* texture) const;
    void bind1DDefault() const;
    void bind2DDefault() const;
    void bind3DDefault() const;
    void bindRECTDefault() const;

    void enable1D() const;
    void enable2D() const;
    void enable3D() const;
    void enableRECT() const;
    void disable1D() const;
    void disable2D() const;
    void disable3D() const;
    void disableRECT() const;
    bool isEnabled1D() const;
    bool isEnabled2D() const;
    bool isEnabled3D() const;
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
