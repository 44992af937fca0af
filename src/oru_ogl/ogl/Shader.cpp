#include "oru_ogl/ogl/Shader.h"

#include "oru_ogl/Enforce.h"
#include "oru_ogl/extensionator/ExtensionManager.h"
#include "oru_ogl/ogl/GLConstants.h"
#include "oru_ogl/ogl/TwoWayTable.h"
#include "oru_ogl/ogl/WrapperCall.h"
#include "oru_ogl/ogl/WrapperCheck.h"

#include <vector>

// GLSL shader objects. The wrappers call the OpenGL 2.0 entry points through
// the _cgm pointers directly; the interception chain is the client's, and sees
// these calls only with the wrappers-through-chain option (WrapperCall.h). GL
// errors are left to GL unless checked wrappers are on (WrapperCheck.h).
// Nothing is cached; every state is read back from GL when asked.

namespace Oru
{
namespace OGL
{

namespace
{

// The lines that this file's checks report; callers match on them.
const int kSupportLine = 39;
const int kTypeLine = 51;
const int kDeleteLine = 60;
const int kCompileLogLine = 122;
const int kCompileNoLogLine = 124;

// A value cast into ShaderType from outside the two is refused.
const TwoWayTable<Shader::ShaderType>::Row kShaderTypeRows[] = {
    { Shader::FRAGMENT_SHADER, GL_FRAGMENT_SHADER },
    { Shader::VERTEX_SHADER, GL_VERTEX_SHADER },
};
const TwoWayTable<Shader::ShaderType> kShaderTypes(kShaderTypeRows, __FILE__, kTypeLine,
                                                   "!\"Type enums are not all properly translated.\"");

} // namespace

bool Shader::isSupported()
{
    return ExtensionManager::Instance()->isSupported(OPEN_GL_2_0);
}

// The 2.0 check comes first: no entry point is touched where the manager marked
// no 2.0 (1.x, or 3.0 and later, whose pointers may be null).
Shader::Shader(ShaderType type)
{
    ORU_VERIFY_AT(kSupportLine, Oru::OGL::ExtensionManager::Instance()->isSupported(OPEN_GL_2_0));
    const GLenum glType = kShaderTypes.toGL(type);
    _hObject = ORU_WRAPPER_GL glCreateShader(glType);
    ORU_CHECK_GL(Shader);
}

// GL keeps a deleted shader while a program still has it attached; the
// program then holds its only reference (see Program::loadVertexShader).
Shader::~Shader() noexcept(false)
{
    ORU_VERIFY_AT(kDeleteLine, _hObject != 0);
    ORU_WRAPPER_GL_NOTHROW glDeleteShader(_hObject);
}

void Shader::load(unsigned int count, const char** strings, int* lengths)
{
    ORU_WRAPPER_GL glShaderSource(_hObject, static_cast<GLsizei>(count), strings, lengths);
    ORU_CHECK_GL(Shader);
}

bool Shader::isCompiled() const
{
    GLint status = 0;
    ORU_WRAPPER_GL glGetShaderiv(_hObject, GL_COMPILE_STATUS, &status);
    ORU_CHECK_GL(Shader);
    return status != 0;
}

// GL counts the source with its NUL: an empty string gives 1, no source 0.
bool Shader::isLoaded() const
{
    GLint length = 0;
    ORU_WRAPPER_GL glGetShaderiv(_hObject, GL_SHADER_SOURCE_LENGTH, &length);
    ORU_CHECK_GL(Shader);
    return length > 1;
}

int Shader::getInfoLogLength() const
{
    GLint length = 0;
    ORU_WRAPPER_GL glGetShaderiv(_hObject, GL_INFO_LOG_LENGTH, &length);
    ORU_CHECK_GL(Shader);
    return length;
}

void Shader::getInfoLog(int maxLength, char* buffer)
{
    ORU_WRAPPER_GL glGetShaderInfoLog(_hObject, maxLength, nullptr, buffer);
    ORU_CHECK_GL(Shader);
}

VertexShader::VertexShader()
    : Shader(VERTEX_SHADER)
{
}

VertexShader::~VertexShader() noexcept(false) = default;

FragmentShader::FragmentShader()
    : Shader(FRAGMENT_SHADER)
{
}

FragmentShader::~FragmentShader() noexcept(false) = default;

// A failed checked compile throws the driver's log after the prefix. The prefix
// says "Program" although a shader failed; callers match logs against it.
void Shader::compile(bool check)
{
    ORU_WRAPPER_GL glCompileShader(_hObject);
    ORU_CHECK_GL(Shader);
    if (!check || isCompiled())
        return;
    const int length = getInfoLogLength();
    if (length != 0)
    {
        std::vector<char> log(static_cast<std::size_t>(static_cast<unsigned int>(length)) + 1, '\0');
        getInfoLog(length, log.data());
        ORU_THROW_AT(kCompileLogLine, "Program Compile Error: \n" << log.data());
    }
    ORU_THROW_AT(kCompileNoLogLine, "Unknown Compile Error.");
}

// ---------------------------------------------------------------------------
// The root of shaders and programs: their GL name, nothing else.
// ---------------------------------------------------------------------------

GLSLObject::GLSLObject()
    : _hObject(0)
{
}

GLSLObject::~GLSLObject() noexcept(false) = default;

unsigned int GLSLObject::objectID() const
{
    return _hObject;
}

} // namespace OGL
} // namespace Oru
