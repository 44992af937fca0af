#ifndef ORU_OGL_OGL_STATEOBJECT_H
#define ORU_OGL_OGL_STATEOBJECT_H

#include "oru_ogl/OglExport.h"

#include "oru_core/Vector.h"

#include <vector>

namespace Oru
{
namespace OGL
{

/// The current-vertex and current-raster state of the OpenGL 2.0 fixed-
/// function pipeline as a value. A default object holds GL's initial values;
/// CurrentState() reads the current colour from the context. It stores and
/// reports only.
class ORU_OGL_API StateObject_2_0
{
public:
    /// GL's initial values; reads GL_MAX_TEXTURE_COORDS from the current
    /// context (a context must be current; without one the count is 0).
    StateObject_2_0();
    /// Copies the snapshot, its arrays included.
    /// @param other the snapshot to copy
    StateObject_2_0(StateObject_2_0 const& other);
    /// Assigns another snapshot, its arrays included.
    /// @param other the snapshot to copy
    /// @return this snapshot
    StateObject_2_0& operator=(StateObject_2_0 const& other);
    virtual ~StateObject_2_0();

    /// The initial values with the current colour of the current context; no
    /// other field is read from GL.
    /// @return the snapshot
    /// @throws Oru::OGL::ExceptionOGL "StateObject_2_0::CurrentState: <gluErrorString text>"
    ///         with checked wrappers on, when GL has an error pending afterwards
    static StateObject_2_0 CurrentState();

    /// GL_CURRENT_COLOR.
    /// @return red, green, blue and alpha; (1, 1, 1, 1) initially
    float4 currentColor();
    /// GL_CURRENT_SECONDARY_COLOR.
    /// @return red, green, blue and alpha; (0, 0, 0, 1) initially
    float4 currentSecondaryColor();
    /// GL_CURRENT_INDEX.
    /// @return the colour index; 1 initially
    float currentIndex() const;
    /// GL_CURRENT_NORMAL.
    /// @return the normal; (0, 0, 1) initially
    float3 currentNormal();
    /// GL_CURRENT_FOG_COORD.
    /// @return the fog coordinate; 0 initially
    float currentFogCoord() const;
    /// GL_CURRENT_RASTER_POSITION.
    /// @return x, y, z and w in window coordinates; (0, 0, 0, 1) initially
    float4 currentRasterPosition();
    /// GL_CURRENT_RASTER_DISTANCE.
    /// @return the distance to the eye; 0 initially
    float currentRasterDistance() const;
    /// GL_CURRENT_RASTER_COLOR.
    /// @return red, green, blue and alpha; (1, 1, 1, 1) initially
    float4 currentRasterColor();
    /// GL_CURRENT_RASTER_INDEX.
    /// @return the raster colour index; 1 initially
    float currentRasterIndex() const;
    /// GL_CURRENT_RASTER_POSITION_VALID.
    /// @return true initially
    bool currentRasterPositionValid() const;
    /// GL_EDGE_FLAG.
    /// @return true initially
    bool edgeFlag() const;
    /// GL_MAX_TEXTURE_COORDS, read at construction.
    /// @return the number of texture coordinate sets
    unsigned long long maxTextureCoords() const;
    /// GL_ACTIVE_TEXTURE as a unit number.
    /// @return 0 (GL_TEXTURE0) initially
    unsigned long long activeTexture() const;

    /// GL_CURRENT_TEXTURE_COORDS of a texture coordinate set.
    /// @param set the coordinate set, below maxTextureCoords()
    /// @return s, t, r and q; (0, 0, 0, 1) initially
    /// @throws Oru::InternalException "iTexture < maxTextureCoords()" for a set out of range
    float4 currentTextureCoords(unsigned long long set);
    /// GL_CURRENT_RASTER_TEXTURE_COORDS of a texture coordinate set.
    /// @param set the coordinate set, below maxTextureCoords()
    /// @return s, t, r and q; (0, 0, 0, 1) initially
    /// @throws Oru::InternalException "iTexture < maxTextureCoords()" for a set out of range
    float4 currentRasterTextureCoords(unsigned long long set);

private:
    float4 currentColor_;
    float4 currentSecondaryColor_;
    float fCurrentIndex_;
    unsigned long long nMaxTextureCoords_;
    std::vector<float4> currentTextureCoords_;
    float3 currentNormal_;
    float fCurrentFogCoord_;
    float4 currentRasterPosition_;
    float fCurrentRasterDistance_;
    float4 currentRasterColor_;
    float fCurrentRasterIndex_;
    std::vector<float4> currentRasterTextureCoords_;
    bool bCurrentRasterPositionValid_;
    bool bEdgeFlag_;
    unsigned long long nActiveTexture_;
};

} // namespace OGL
} // namespace Oru

#endif
