// The replay harness's windows and contexts against the real driver: recorded
// handles are matched to the replay's own as the recording uses them.
#include "support/GLTest.h"

#include "oru_replay/Replay.h"
#include "oru_replay/Session.h"

#include <cstdint>

namespace
{

const HDC kRecordedDC = reinterpret_cast<HDC>(0x2c0b1e);
HGLRC recorded(unsigned int value)
{
    return reinterpret_cast<HGLRC>(static_cast<std::uintptr_t>(value));
}

class ReplayHarnessGLTest : public OruTest::GLTest
{
protected:
    void TearDown() override { Oru::Replay::shutdown(); }
};

} // namespace

TEST_F(ReplayHarnessGLTest, RecordedContextsAreMatchedInCreationOrder)
{
    Oru::Replay::setWindowSize(64, 32);
    addCurrentAppDC(kRecordedDC);
    const HGLRC standIn = wglGetCurrentContext();
    ASSERT_NE(nullptr, standIn) << "the application's context is current before any recorded call";
    ASSERT_EQ(1u, hdc_map_.count(kRecordedDC));
    const HDC ours = hdc_map_[kRecordedDC];
    GLRekorderCreateWindow(kRecordedDC); // the DC has its window already
    EXPECT_EQ(ours, hdc_map_[kRecordedDC]);

    const HGLRC first = oruReplayCreateContext(ours);
    const HGLRC second = oruReplayCreateContext(ours);
    ASSERT_TRUE(first && second);
    // The first recorded handle used takes the first context created, whatever its value.
    EXPECT_TRUE(GLRekorderMakeCurrent(kRecordedDC, recorded(0x2000)));
    EXPECT_EQ(first, wglGetCurrentContext());
    EXPECT_TRUE(GLRekorderMakeCurrent(kRecordedDC, recorded(0x1000)));
    EXPECT_EQ(second, wglGetCurrentContext());
    EXPECT_TRUE(GLRekorderMakeCurrent(kRecordedDC, recorded(0x2000)));
    EXPECT_EQ(first, wglGetCurrentContext());
    // A handle no recorded wglCreateContext made: the context current before recording.
    EXPECT_TRUE(GLRekorderMakeCurrent(kRecordedDC, recorded(0x3000)));
    EXPECT_EQ(standIn, wglGetCurrentContext());
    EXPECT_FALSE(GLRekorderMakeCurrent(kRecordedDC, recorded(0x4000)));

    // The frame kept is the one presented.
    glClearColor(0.0f, 1.0f, 0.0f, 1.0f);
    glClear(GL_COLOR_BUFFER_BIT);
    EXPECT_TRUE(GLRekorderSwapBuffers(kRecordedDC));
    EXPECT_EQ(1u, Oru::Replay::presentedFrames());
    Oru::Replay::Image frame;
    ASSERT_TRUE(Oru::Replay::finalFrame(frame));
    EXPECT_EQ(64u, frame.width);
    EXPECT_EQ(32u, frame.height);
    EXPECT_EQ(0, frame.rgba[0]);
    EXPECT_EQ(255, frame.rgba[1]);

    EXPECT_TRUE(oruReplayDeleteContext(recorded(0x1000)));
    EXPECT_TRUE(GLRekorderMakeCurrent(kRecordedDC, nullptr));
    EXPECT_EQ(nullptr, wglGetCurrentContext());
}
