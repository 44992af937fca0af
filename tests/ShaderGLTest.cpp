// Shaders against the driver: loading and compiling real GLSL, compile errors
// with the driver's own log, and the refusal where OpenGL 2.0 is not marked.
#include "support/GLSLGLTest.h"

#include "oru_ogl/extensionator/EntryPoints.h"
#include "oru_ogl/ogl/Shader.h"

#include <string>
#include <vector>

using Oru::OGL::FragmentShader;
using Oru::OGL::Shader;
using Oru::OGL::VertexShader;
using OruTest::FakeEntryPoint;
using OruTest::GLSLGLTest;
using OruTest::LayerGLTest;
using OruTest::kBrokenSource;
using OruTest::kFragmentSource;
using OruTest::kVertexSource;
using OruTest::load;
using OruTest::Raised;
using OruTest::raisedBy;

namespace
{

const char* const kShaderFile = "ogl/Shader.cpp";
const char* const kNeedsOpenGL20 = "Oru::OGL::ExtensionManager::Instance()->isSupported(OPEN_GL_2_0)";

int gCreateShaderCalls = 0;
GLuint gCreatedName = 0;
int gDeleteShaderCalls = 0;

GLuint APIENTRY countingCreateShader(GLenum)
{
    ++gCreateShaderCalls;
    return gCreatedName;
}

void APIENTRY countingDeleteShader(GLuint)
{
    ++gDeleteShaderCalls;
}

PFN_cgmGetShaderiv gRealGetShaderiv = nullptr;

// The driver's answers, except that no log is ever reported.
void APIENTRY noLogGetShaderiv(GLuint shader, GLenum pname, GLint* params)
{
    gRealGetShaderiv(shader, pname, params);
    if (pname == 0x8B84) // GL_INFO_LOG_LENGTH
        *params = 0;
}

std::string driverLog(Shader const& shader)
{
    GLint length = 0;
    _cgmGetShaderiv(shader.objectID(), 0x8B84, &length);
    std::vector<char> log(static_cast<std::size_t>(length) + 1, '\0');
    _cgmGetShaderInfoLog(shader.objectID(), length, nullptr, log.data());
    return log.data();
}

using ShaderGLTest = GLSLGLTest;
using ShaderSupportGLTest = LayerGLTest;

} // namespace

// Runs in every configuration: with OpenGL 2.0 marked each constructor makes
// exactly one glCreateShader; without it each refuses before that call, the
// support check also coming before the type check.
TEST_F(ShaderSupportGLTest, ConstructorsNeedOpenGL20BeforeAnyGLCall)
{
    gCreateShaderCalls = 0;
    gCreatedName = 0;
    gDeleteShaderCalls = 0;
    FakeEntryPoint<PFN_cgmCreateShader> create(_cgmCreateShader, &countingCreateShader);
    FakeEntryPoint<PFN_cgmDeleteShader> remove(_cgmDeleteShader, &countingDeleteShader);
    const Shader::ShaderType unknownType = static_cast<Shader::ShaderType>(2);

    if (Shader::isSupported())
    {
        gCreatedName = 77;
        { VertexShader shader; EXPECT_EQ(77u, shader.objectID()); }
        { FragmentShader shader; }
        EXPECT_EQ(2, gCreateShaderCalls);
        EXPECT_EQ(2, gDeleteShaderCalls);
        EXPECT_EQ(Raised::at(kShaderFile, 51, "!\"Type enums are not all properly translated.\""),
                  raisedBy([&] { Shader shader(unknownType); }));
        EXPECT_EQ(2, gCreateShaderCalls);
        return;
    }
    const Raised refused = Raised::at(kShaderFile, 39, kNeedsOpenGL20);
    EXPECT_EQ(refused, raisedBy([] { VertexShader shader; }));
    EXPECT_EQ(refused, raisedBy([] { FragmentShader shader; }));
    EXPECT_EQ(refused, raisedBy([] { Shader shader(Shader::VERTEX_SHADER); }));
    EXPECT_EQ(refused, raisedBy([&] { Shader shader(unknownType); }));
    EXPECT_EQ(0, gCreateShaderCalls);
    EXPECT_EQ(0, gDeleteShaderCalls);
}

TEST_F(ShaderGLTest, ValidSourceLoadsAndCompilesAndTheDestructorDeletes)
{
    GLuint name = 0;
    {
        VertexShader shader;
        name = shader.objectID();
        EXPECT_EQ(GL_TRUE, _cgmIsShader(name));
    }
    EXPECT_EQ(GL_FALSE, _cgmIsShader(name));
    VertexShader vertex;
    FragmentShader fragment;
    ASSERT_NE(0u, vertex.objectID());
    EXPECT_NE(vertex.objectID(), fragment.objectID());
    EXPECT_FALSE(vertex.isLoaded());
    EXPECT_EQ(0, vertex.getInfoLogLength());

    load(vertex, kVertexSource);
    load(fragment, kFragmentSource);
    EXPECT_TRUE(vertex.isLoaded());
    EXPECT_FALSE(vertex.isCompiled());
    EXPECT_NO_THROW(vertex.compile(true));
    EXPECT_NO_THROW(fragment.compile(true));
    EXPECT_TRUE(vertex.isCompiled());
    EXPECT_TRUE(fragment.isCompiled());

    GLint type = 0;
    _cgmGetShaderiv(vertex.objectID(), 0x8B4F, &type); // GL_SHADER_TYPE
    EXPECT_EQ(0x8B31, type);                           // GL_VERTEX_SHADER
    _cgmGetShaderiv(fragment.objectID(), 0x8B4F, &type);
    EXPECT_EQ(0x8B30, type); // GL_FRAGMENT_SHADER
}

TEST_F(ShaderGLTest, LoadPassesCountsAndLengthsThrough)
{
    // Two strings, the first cut short by its length: only "#version 110\n"
    // and the body reach GL, so the shader compiles.
    const char* pieces[] = {"#version 110\nTRAILING GARBAGE", "void main() { gl_FragColor = vec4(0.5); }\n"};
    int lengths[] = {13, -1};
    FragmentShader shader;
    shader.load(2, pieces, lengths);
    EXPECT_NO_THROW(shader.compile(true));
}

TEST_F(ShaderGLTest, EmptySourceIsNotLoaded)
{
    FragmentShader shader;
    load(shader, "");
    GLint length = -1;
    _cgmGetShaderiv(shader.objectID(), 0x8B88, &length); // GL_SHADER_SOURCE_LENGTH
    EXPECT_EQ(1, length);
    EXPECT_FALSE(shader.isLoaded());
    load(shader, " ");
    EXPECT_TRUE(shader.isLoaded());
}

// Checked compiles raise with the driver's log; unchecked ones never raise.
TEST_F(ShaderGLTest, CompileErrors)
{
    FragmentShader shader;
    load(shader, kBrokenSource);
    const Raised raised = raisedBy([&] { shader.compile(true); });
    const std::string log = driverLog(shader);
    EXPECT_FALSE(log.empty());
    EXPECT_EQ(Raised::at(kShaderFile, 122, "Program Compile Error: \n" + log), raised);
    EXPECT_FALSE(shader.isCompiled());

    VertexShader vertex;
    FragmentShader fragment;
    load(vertex, kBrokenSource);
    EXPECT_NO_THROW(vertex.compile(false));
    EXPECT_NO_THROW(fragment.compile(false)); // no source at all
    EXPECT_FALSE(vertex.isCompiled());
    EXPECT_FALSE(fragment.isCompiled());
    EXPECT_GT(vertex.getInfoLogLength(), 1);
}

TEST_F(ShaderGLTest, FailedCompileWithoutALogIsUnknown)
{
    gRealGetShaderiv = _cgmGetShaderiv;
    FakeEntryPoint<PFN_cgmGetShaderiv> noLog(_cgmGetShaderiv, &noLogGetShaderiv);
    FragmentShader shader;
    load(shader, kBrokenSource);
    EXPECT_EQ(Raised::at(kShaderFile, 124, "Unknown Compile Error."), raisedBy([&] { shader.compile(true); }));
}

TEST_F(ShaderGLTest, DestroyingAnUnnamedShaderRaisesWithoutDeleting)
{
    gCreateShaderCalls = 0;
    gCreatedName = 0;
    gDeleteShaderCalls = 0;
    FakeEntryPoint<PFN_cgmCreateShader> create(_cgmCreateShader, &countingCreateShader);
    FakeEntryPoint<PFN_cgmDeleteShader> remove(_cgmDeleteShader, &countingDeleteShader);
    EXPECT_EQ(Raised::at(kShaderFile, 60, "_hObject != 0"), raisedBy([] { VertexShader shader; }));
    EXPECT_EQ(0, gDeleteShaderCalls);
}
