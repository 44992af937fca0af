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
    /// Activates GL_TEXTURE0 + unit (no range check; GL reports a bad unit).
    static void setActiveTexture(int unit);
    /// The index of the active unit.
    static int activeTexture();
    /// 1D, 2D and 3D always; rectangles with GL_ARB_texture_rectangle.
    static bool IsTargetSupported(unsigned int glTarget);
    /// Whether textures of any size are taken (see ExtensionManager).
    static bool supportsNonPowerOfTwo();
};

} // namespace OGL
} // namespace Oru

#endif
