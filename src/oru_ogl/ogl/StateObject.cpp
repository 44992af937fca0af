#include "oru_ogl/ogl/StateObject.h"

#include "oru_ogl/Enforce.h"
#include "oru_ogl/ogl/GLConstants.h"
#include "oru_ogl/ogl/WrapperCall.h"
#include "oru_ogl/ogl/WrapperCheck.h"

// A snapshot of the fixed-function pipeline's current vertex and raster state. Only the
// current colour is read from GL by CurrentState(); every other field holds GL's initial
// value, so a snapshot describes a context as it is after creation except for its colour.

namespace Oru
{
namespace OGL
{

namespace
{

unsigned long long maxTextureCoordsOfContext()
{
    GLint count = 0;
    ORU_WRAPPER_GL glGetIntegerv(GL_MAX_TEXTURE_COORDS, &count);
    return static_cast<unsigned long long>(count);
}

} // namespace

StateObject_2_0::StateObject_2_0()
    : currentColor_(1.0f, 1.0f, 1.0f, 1.0f)
    , currentSecondaryColor_(0.0f, 0.0f, 0.0f, 1.0f)
    , fCurrentIndex_(1.0f)
    , nMaxTextureCoords_(maxTextureCoordsOfContext())
    , currentTextureCoords_(static_cast<std::size_t>(nMaxTextureCoords_), float4(0.0f, 0.0f, 0.0f, 1.0f))
    , currentNormal_(0.0f, 0.0f, 1.0f)
    , fCurrentFogCoord_(0.0f)
    , currentRasterPosition_(0.0f, 0.0f, 0.0f, 1.0f)
    , fCurrentRasterDistance_(0.0f)
    , currentRasterColor_(1.0f, 1.0f, 1.0f, 1.0f)
    , fCurrentRasterIndex_(1.0f)
    , currentRasterTextureCoords_(static_cast<std::size_t>(nMaxTextureCoords_), float4(0.0f, 0.0f, 0.0f, 1.0f))
    , bCurrentRasterPositionValid_(true)
    , bEdgeFlag_(true)
    , nActiveTexture_(0)
{
}

// Deep copies: each snapshot owns its arrays.
StateObject_2_0::StateObject_2_0(StateObject_2_0 const& other) = default;
StateObject_2_0& StateObject_2_0::operator=(StateObject_2_0 const& other) = default;
StateObject_2_0::~StateObject_2_0() = default;

StateObject_2_0 StateObject_2_0::CurrentState()
{
    StateObject_2_0 state;
    ORU_WRAPPER_GL glGetFloatv(GL_CURRENT_COLOR, &state.currentColor_.x);
    ORU_CHECK_GL(StateObject_2_0);
    return state;
}

float4 StateObject_2_0::currentColor()
{
    return currentColor_;
}

float4 StateObject_2_0::currentSecondaryColor()
{
    return currentSecondaryColor_;
}

float StateObject_2_0::currentIndex() const
{
    return fCurrentIndex_;
}

float3 StateObject_2_0::currentNormal()
{
    return currentNormal_;
}

float StateObject_2_0::currentFogCoord() const
{
    return fCurrentFogCoord_;
}

float4 StateObject_2_0::currentRasterPosition()
{
    return currentRasterPosition_;
}

float StateObject_2_0::currentRasterDistance() const
{
    return fCurrentRasterDistance_;
}

float4 StateObject_2_0::currentRasterColor()
{
    return currentRasterColor_;
}

float StateObject_2_0::currentRasterIndex() const
{
    return fCurrentRasterIndex_;
}

bool StateObject_2_0::currentRasterPositionValid() const
{
    return bCurrentRasterPositionValid_;
}

bool StateObject_2_0::edgeFlag() const
{
    return bEdgeFlag_;
}

unsigned long long StateObject_2_0::maxTextureCoords() const
{
    return nMaxTextureCoords_;
}

unsigned long long StateObject_2_0::activeTexture() const
{
    return nActiveTexture_;
}

float4 StateObject_2_0::currentTextureCoords(unsigned long long iTexture)
{
    ORU_VERIFY(iTexture < maxTextureCoords());
    return currentTextureCoords_[static_cast<std::size_t>(iTexture)];
}

float4 StateObject_2_0::currentRasterTextureCoords(unsigned long long iTexture)
{
    ORU_VERIFY(iTexture < maxTextureCoords());
    return currentRasterTextureCoords_[static_cast<std::size_t>(iTexture)];
}

} // namespace OGL
} // namespace Oru
