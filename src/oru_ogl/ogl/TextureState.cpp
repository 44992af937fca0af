#include "oru_ogl/ogl/TextureState.h"

#include "oru_ogl/Enforce.h"
#include "oru_ogl/extensionator/EntryPoints.h"
#include "oru_ogl/extensionator/ExtensionManager.h"

namespace Oru
{
namespace OGL
{

namespace
{

const GLenum kTexture0 = 0x84C0;          // GL_TEXTURE0
const GLenum kActiveTexture = 0x84E0;     // GL_ACTIVE_TEXTURE
const GLenum kTexture3D = 0x806F;         // GL_TEXTURE_3D
const GLenum kTextureRectangle = 0x84F5;  // GL_TEXTURE_RECTANGLE_ARB

} // namespace

// Through GL_ARB_multitexture's entry point, which a driver without
// multitexturing does not have: that is refused by name.
void TextureState::setActiveTexture(int unit)
{
    ORU_REQUIRE_LOADED(_cgmActiveTextureARB, "glActiveTextureARB");
    _cgmActiveTextureARB(kTexture0 + unit);
}

int TextureState::activeTexture()
{
    GLint active = 0;
    glGetIntegerv(kActiveTexture, &active);
    return active - static_cast<GLint>(kTexture0);
}

bool TextureState::IsTargetSupported(unsigned int glTarget)
{
    switch (glTarget)
    {
    case GL_TEXTURE_1D:
    case GL_TEXTURE_2D:
    case kTexture3D:
        return true;
    case kTextureRectangle:
        return ExtensionManager::Instance()->isSupported(GL_ARB_TEXTURE_RECTANGLE);
    default:
        return false;
    }
}

bool TextureState::supportsNonPowerOfTwo()
{
    return ExtensionManager::Instance()->supportsNonPowerOfTwoTextures();
}

} // namespace OGL
} // namespace Oru
