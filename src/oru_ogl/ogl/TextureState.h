#ifndef ORU_OGL_OGL_TEXTURESTATE_H
#define ORU_OGL_OGL_TEXTURESTATE_H

#include "oru_ogl/OglExport.h"

namespace Oru
{
namespace OGL
{

/// The active texture unit, and which texture targets and sizes the driver takes.
class ORU_OGL_API TextureState
{
public:
    /// Activates GL_TEXTURE0 + unit (glActiveTextureARB); no range check, GL
    /// reports a bad unit.
    /// @param unit the unit number, 0 for GL_TEXTURE0
    /// @throws Oru::InternalException "glActiveTextureARB is not loaded: its
    ///         entry-point pointer is null (the driver lacks it, or the layer has
    ///         not loaded the core version or extension it belongs to)" without
    ///         multitexturing
    /// @throws Oru::OGL::ExceptionOGL "TextureState::setActiveTexture: <gluErrorString text>"
    ///         with checked wrappers on, when GL has an error pending afterwards
    static void setActiveTexture(int unit);
    /// The index of the active unit, read from GL.
    /// @return GL_ACTIVE_TEXTURE less GL_TEXTURE0
    /// @throws Oru::OGL::ExceptionOGL "TextureState::activeTexture: <gluErrorString text>"
    ///         with checked wrappers on, when GL has an error pending afterwards
    static int activeTexture();
    /// Whether the driver takes textures of a GL target.
    /// @param glTarget a GL texture target, GL_TEXTURE_2D say
    /// @return true for 1D, 2D and 3D always, for rectangles with
    ///         GL_ARB_texture_rectangle, false for every other value
    /// @throws Oru::InternalException "Enforce pInstance_ != NULL" for a rectangle
    ///         while the layer is not started
    static bool IsTargetSupported(unsigned int glTarget);
    /// Whether textures of any size are taken.
    /// @return ExtensionManager::supportsNonPowerOfTwoTextures()
    /// @throws Oru::InternalException "Enforce pInstance_ != NULL" while the layer is not started
    static bool supportsNonPowerOfTwo();
};

} // namespace OGL
} // namespace Oru

#endif
