#ifndef ORU_TESTS_GLSLGLTEST_H
#define ORU_TESTS_GLSLGLTEST_H

// Shared by the shader and program tests: sources, a guard that puts a fake
// behind an entry-point pointer for one scope, and a fixture for the tests
// that need OpenGL 2.0 marked by the extension manager.

#include "support/LayerGLTest.h"
#include "support/Raises.h"

#include "oru_ogl/extensionator/ExtensionManager.h"
#include "oru_ogl/ogl/Program.h"
#include "oru_ogl/ogl/Shader.h"

#include <GL/gl.h>

#include <sstream>
#include <string>

namespace OruTest
{

/// Shaders every 2.x driver compiles, and a fragment shader that does not.
const char* const kVertexSource = "#version 110\nvoid main() { gl_Position = ftransform(); }\n";
const char* const kFragmentSource = "#version 110\nvoid main() { gl_FragColor = vec4(1.0); }\n";
const char* const kBrokenSource = "#version 110\nvoid main() { gl_FragColor = vec4(1.0) }\n";

inline void load(Oru::OGL::Shader& shader, const char* source)
{
    shader.load(1, &source, nullptr);
}

inline void load(Oru::OGL::Program& program, const char* vertex, const char* fragment)
{
    program.loadVertexShader(1, &vertex, nullptr);
    program.loadFragmentShader(1, &fragment, nullptr);
}

/// Puts a fake behind an entry-point pointer until the end of the scope.
template <class Pointer>
class FakeEntryPoint
{
public:
    FakeEntryPoint(Pointer& slot, Pointer fake)
        : slot_(slot)
        , real_(slot)
    {
        slot_ = fake;
    }
    ~FakeEntryPoint()
    {
        slot_ = real_;
    }
    FakeEntryPoint(FakeEntryPoint const&) = delete;
    FakeEntryPoint& operator=(FakeEntryPoint const&) = delete;

private:
    Pointer& slot_;
    Pointer real_;
};

inline int driverMajorVersion()
{
    std::istringstream version(reinterpret_cast<char const*>(glGetString(GL_VERSION)));
    int major = 0;
    version >> major;
    return major;
}

/// For tests of the full behaviour. Where OpenGL 2.0 is not marked (a 1.x
/// driver, or 3.0 and later without the compatibility-core-versions option),
/// the constructors' refusal is what is tested, so these tests are skipped
/// there; a 2.x driver, or a later one with the option, without the mark fails.
class GLSLGLTest : public LayerGLTest
{
protected:
    void SetUp() override
    {
        LayerGLTest::SetUp();
        if (Oru::OGL::Shader::isSupported())
            return;
        ASSERT_NE(2, driverMajorVersion()) << "a 2.x driver without OPEN_GL_2_0 marked";
        ASSERT_FALSE(driverMajorVersion() >= 3 &&
                     Oru::OGL::ExtensionManager::Instance()->initOptions().compatibilityCoreVersions())
            << "a compatibility context without OPEN_GL_2_0 marked although the option asks for it";
        GTEST_SKIP() << "OpenGL 2.0 is not marked; the refusal of the constructors is tested instead";
    }
};

} // namespace OruTest

#endif
