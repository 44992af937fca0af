#ifndef ORU_OGL_EXTENSIONATOR_GLSTATEPROBE_H
#define ORU_OGL_EXTENSIONATOR_GLSTATEPROBE_H

#include "oru_ogl/OglExport.h"
#include "oru_ogl/extensionator/GLTypes.h"
#include "oru_ogl/extensionator/PointerSizes.h"

#include <vector>

namespace Oru
{
namespace OGL
{

/// What the current context offers of the state a capture reads, so that no
/// query ever raises a GL error of its own (the error checker below would
/// blame it on the program's call).
struct ContextFeatures
{
    bool multitexture = false;  ///< 1.3 or ARB_multitexture: client texture units
    bool fogAndSecondary = false; ///< 1.4: fog coordinate and secondary colour arrays
    bool buffers = false;       ///< 1.5 or ARB_vertex_buffer_object
    bool attributes = false;    ///< 2.0: generic vertex attributes
    bool pixelBuffers = false;  ///< 2.1 or ARB/EXT_pixel_buffer_object
    bool framebuffers = false;  ///< 3.0, ARB or EXT_framebuffer_object
    int textureCoordUnits = 1; ///< texture units with coordinate arrays
    int vertexAttributes = 0;  ///< generic vertex attributes (0 before 2.0)
};

/// Reads GL state directly from the driver, never through the interception
/// chain, and restores whatever it changes. Needs a current context.
class ORU_OGL_API GLStateProbe
{
public:
    /// What the current context offers.
    /// @return read from its version, extensions and limits
    static ContextFeatures features();
    /// The pixel store state.
    /// @param pack GL_PACK_* when true, GL_UNPACK_* when false
    /// @return the state
    static PixelStore pixelStore(bool pack);
    /// The buffer bound to a binding point.
    /// @param features     what the context offers
    /// @param bindingQuery GL_ARRAY_BUFFER_BINDING, GL_PIXEL_UNPACK_BUFFER_BINDING, ...
    /// @return the buffer's name; 0 for none, or when the context has no such binding
    static GLuint boundBuffer(ContextFeatures const& features, GLenum bindingQuery);
    /// The window-system back buffer as RGBA bytes, bottom row first, rows
    /// packed: whatever framebuffer, read buffer, pack state and pack buffer
    /// the program has set is put back afterwards.
    /// @param features what the context offers
    /// @param width    pixels from the left
    /// @param height   rows from the bottom
    /// @return width * height * 4 bytes
    static std::vector<unsigned char> backBuffer(ContextFeatures const& features, int width, int height);
};

} // namespace OGL
} // namespace Oru

#endif
