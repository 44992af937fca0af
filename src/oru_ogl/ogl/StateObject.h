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
    StateObject_2_0(StateObject_2_0 const& other);
    StateObject_2_0& operator=(StateObject_2_0 const& other);
    virtual ~StateObject_2_0();

    /// The initial values with the current colour of the current context.
    static StateObject_2_0 CurrentState();

    float4 currentColor();
    float4 currentSecondaryColor();
    float currentIndex() const;
    float3 currentNormal();
    float currentFogCoord() const;
    float4 currentRasterPosition();
    float currentRasterDistance() const;
    float4 currentRasterColor();
    float currentRasterIndex() const;
    bool currentRasterPositionValid() const;
    bool edgeFlag() const;
    unsigned long long maxTextureCoords() const;
    unsigned long long activeTexture() const;

    /// set must be below maxTextureCoords().
    float4 currentTextureCoords(unsigned long long set);
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
