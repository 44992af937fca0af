#ifndef ORU_TESTS_LAYERGLTEST_H
#define ORU_TESTS_LAYERGLTEST_H

#include <gtest/gtest.h>

#include <windows.h>

#include <GL/gl.h>

#include <memory>
#include <string>

namespace Oru
{
namespace OGL
{
class ContextOffscreen;
}
} // namespace Oru

namespace OruTest
{

/// The integer state GL reports for name, -1 when it reports nothing.
inline GLint glInteger(GLenum name)
{
    GLint value = -1;
    glGetIntegerv(name, &value);
    return value;
}

/// Fixture for tests of the layer's wrappers: one offscreen context of the
/// library's own, with the layer started for it, serves the whole program;
/// each test starts with that context current and no GL error pending, and
/// must leave no GL error behind.
class LayerGLTest : public ::testing::Test
{
protected:
    static void SetUpTestSuite();
    void SetUp() override;
    void TearDown() override;

    static Oru::OGL::ContextOffscreen& context();

private:
    static std::unique_ptr<Oru::OGL::ContextOffscreen> context_;
    static std::string startError_;
};

} // namespace OruTest

#endif
