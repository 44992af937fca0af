// The fixed-function state snapshot: initial values, the one field read from
// GL, the texture-coordinate limit and deep copies.
#include "oru_ogl/ogl/StateObject.h"

#include "support/LayerGLTest.h"
#include "support/Raises.h"

#include <windows.h>

#include <GL/gl.h>

using Oru::OGL::StateObject_2_0;

namespace
{

class StateObjectGLTest : public OruTest::LayerGLTest
{
protected:
    void TearDown() override
    {
        glColor4f(1.0f, 1.0f, 1.0f, 1.0f);
        glNormal3f(0.0f, 0.0f, 1.0f);
        LayerGLTest::TearDown();
    }
};

void expectFloat4(float x, float y, float z, float w, Oru::float4 v)
{
    EXPECT_FLOAT_EQ(x, v.x);
    EXPECT_FLOAT_EQ(y, v.y);
    EXPECT_FLOAT_EQ(z, v.z);
    EXPECT_FLOAT_EQ(w, v.w);
}

} // namespace

TEST_F(StateObjectGLTest, CurrentStateReadsTheColourAndNothingElse)
{
    glColor4f(0.5f, 0.25f, 0.0f, 1.0f);
    glNormal3f(1.0f, 0.0f, 0.0f);
    StateObject_2_0 state = StateObject_2_0::CurrentState();
    expectFloat4(0.5f, 0.25f, 0.0f, 1.0f, state.currentColor());
    const Oru::float3 normal = state.currentNormal();
    EXPECT_FLOAT_EQ(0.0f, normal.x);
    EXPECT_FLOAT_EQ(1.0f, normal.z);
    expectFloat4(0.0f, 0.0f, 0.0f, 1.0f, state.currentSecondaryColor());
    expectFloat4(0.0f, 0.0f, 0.0f, 1.0f, state.currentRasterPosition());
    expectFloat4(1.0f, 1.0f, 1.0f, 1.0f, state.currentRasterColor());
    EXPECT_FLOAT_EQ(1.0f, state.currentIndex());
    EXPECT_FLOAT_EQ(1.0f, state.currentRasterIndex());
    EXPECT_FLOAT_EQ(0.0f, state.currentFogCoord());
    EXPECT_FLOAT_EQ(0.0f, state.currentRasterDistance());
    EXPECT_TRUE(state.currentRasterPositionValid());
    EXPECT_TRUE(state.edgeFlag());
    EXPECT_EQ(0u, state.activeTexture());

    StateObject_2_0 initial;
    expectFloat4(1.0f, 1.0f, 1.0f, 1.0f, initial.currentColor());
}

TEST_F(StateObjectGLTest, TextureCoordinateSetsEndAtTheContextsLimit)
{
    const GLint limit = OruTest::glInteger(0x8871 /* GL_MAX_TEXTURE_COORDS */);
    ASSERT_GT(limit, 0);
    StateObject_2_0 state;
    EXPECT_EQ(static_cast<unsigned long long>(limit), state.maxTextureCoords());
    const unsigned long long last = state.maxTextureCoords() - 1;
    expectFloat4(0.0f, 0.0f, 0.0f, 1.0f, state.currentTextureCoords(last));
    expectFloat4(0.0f, 0.0f, 0.0f, 1.0f, state.currentRasterTextureCoords(0));
    OruTest::expectRefusals("ogl/StateObject.cpp", {
        { 0, "iTexture < maxTextureCoords()", [&] { state.currentTextureCoords(last + 1); } },
        { 0, "iTexture < maxTextureCoords()", [&] { state.currentRasterTextureCoords(last + 1); } },
    });
}

TEST_F(StateObjectGLTest, CopiesKeepTheirOwnValues)
{
    glColor4f(0.0f, 0.5f, 0.5f, 0.5f);
    StateObject_2_0 source = StateObject_2_0::CurrentState();
    StateObject_2_0 copy(source);
    glColor4f(0.25f, 0.0f, 0.0f, 1.0f);
    source = StateObject_2_0::CurrentState();
    expectFloat4(0.0f, 0.5f, 0.5f, 0.5f, copy.currentColor());
    expectFloat4(0.25f, 0.0f, 0.0f, 1.0f, source.currentColor());
    EXPECT_EQ(source.maxTextureCoords(), copy.maxTextureCoords());
    expectFloat4(0.0f, 0.0f, 0.0f, 1.0f, copy.currentTextureCoords(copy.maxTextureCoords() - 1));
}
