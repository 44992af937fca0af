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
    /// Initial values; reads GL_MAX_TEXTURE_COORDS (a context must be current).
    StateObject_2_0();
    /// Copies the snapshot.
    StateObject_2_0(StateObject_2_0 const& other);
    /// Assigns another snapshot.
    StateObject_2_0& operator=(StateObject_2_0 const& other);
    virtual ~StateObject_2_0();

    /// The initial values with the current colour of the current context.
    static StateObject_2_0 CurrentState();

    /// GL_CURRENT_COLOR.
    float4 currentColor();
    /// GL_CURRENT_SECONDARY_COLOR.
    float4 currentSecondaryColor();
    /// GL_CURRENT_INDEX.
    float currentIndex() const;
    /// GL_CURRENT_NORMAL.
    float3 currentNormal();
    /// GL_CURRENT_FOG_COORD.
    float currentFogCoord() const;
    /// GL_CURRENT_RASTER_POSITION.
    float4 currentRasterPosition();
    /// GL_CURRENT_RASTER_DISTANCE.
    float currentRasterDistance() const;
    /// GL_CURRENT_RASTER_COLOR.
    float4 currentRasterColor();
    /// GL_CURRENT_RASTER_INDEX.
    float currentRasterIndex() const;
    /// GL_CURRENT_RASTER_POSITION_VALID.
    bool currentRasterPositionValid() const;
    /// GL_EDGE_FLAG.
    bool edgeFlag() const;
    /// GL_MAX_TEXTURE_COORDS.
    unsigned long long maxTextureCoords() const;
    /// GL_ACTIVE_TEXTURE as a unit number.
    unsigned long long activeTexture() const;

    /// set must be below maxTextureCoords().
    float4 currentTextureCoords(unsigned long long set);
    /// GL_CURRENT_RASTER_TEXTURE_COORDS of a texture coordinate set.
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
