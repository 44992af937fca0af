#ifndef ORU_TESTS_GLSLGLTEST_H
#define ORU_TESTS_GLSLGLTEST_H

// Shared by the shader and program tests: what an InternalException said, a
// guard that puts a fake behind an entry-point pointer for one scope, and a
// fixture for the tests that need OpenGL 2.0 marked by the extension manager.

#include "support/LayerGLTest.h"

#include "oru_ogl/ogl/Shader.h"

#include "oru_core/Exceptions.h"

#include <GL/gl.h>

#include <ostream>
#include <sstream>
#include <string>

namespace OruTest
{

/// File, line and message of the InternalException an action raised, if any.
struct Raised
{
    bool raised = false;
    std::string file;
    int line = 0;
    std::string message;

    static Raised at(std::string file, int line, std::string message)
    {
        return Raised{true, std::move(file), line, std::move(message)};
    }
    bool operator==(Raised const& other) const
    {
        return raised == other.raised && file == other.file && line == other.line && message == other.message;
    }
    friend std::ostream& operator<<(std::ostream& out, Raised const& r)
    {
        if (!r.raised)
            return out << "nothing raised";
        return out << r.file << "(" << r.line << "): \"" << r.message << "\"";
    }
};

template <class Action>
Raised raisedBy(Action&& action)
{
    try
    {
        action();
    }
    catch (Oru::InternalException const& e)
    {
        return Raised::at(e.file(), e.line(), e.message());
    }
    return Raised();
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
/// driver, or 3.0 and later), the constructors' refusal is what is tested, so
/// these tests are skipped there; a 2.x driver without the mark fails instead.
class GLSLGLTest : public LayerGLTest
{
protected:
    void SetUp() override
    {
        LayerGLTest::SetUp();
        if (Oru::OGL::Shader::isSupported())
            return;
        ASSERT_NE(2, driverMajorVersion()) << "a 2.x driver without OPEN_GL_2_0 marked";
        GTEST_SKIP() << "OpenGL 2.0 is not marked; the refusal of the constructors is tested instead";
    }
};

} // namespace OruTest

#endif
