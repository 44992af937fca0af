#include "oru_ogl/ogl/TextureState.h"

#include "oru_ogl/Enforce.h"
#include "oru_ogl/extensionator/EntryPoints.h"
#include "oru_ogl/extensionator/ExtensionManager.h"
#include "oru_ogl/ogl/GLConstants.h"
#include "oru_ogl/ogl/WrapperCall.h"
#include "oru_ogl/ogl/WrapperCheck.h"

namespace Oru
{
namespace OGL
{

// Through GL_ARB_multitexture's entry point; a driver without it is refused by name.
void TextureState::setActiveTexture(int unit)
{
    ORU_REQUIRE_LOADED(_cgmActiveTextureARB, "glActiveTextureARB");
    ORU_WRAPPER_GL glActiveTextureARB(GL_TEXTURE0 + unit);
    ORU_CHECK_GL(TextureState);
}

int TextureState::activeTexture()
{
    GLint active = 0;
    ORU_WRAPPER_GL glGetIntegerv(GL_ACTIVE_TEXTURE, &active);
    ORU_CHECK_GL(TextureState);
    return active - static_cast<GLint>(GL_TEXTURE0);
}

bool TextureState::IsTargetSupported(unsigned int glTarget)
{
    switch (glTarget)
    {
    case GL_TEXTURE_1D:
    case GL_TEXTURE_2D:
    case GL_TEXTURE_3D:
        return true;
    case GL_TEXTURE_RECTANGLE_ARB:
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
