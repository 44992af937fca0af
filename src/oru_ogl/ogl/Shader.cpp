#include "oru_ogl/ogl/Shader.h"

#include "oru_ogl/Enforce.h"
#include "oru_ogl/extensionator/EntryPoints.h"
#include "oru_ogl/extensionator/ExtensionManager.h"

#include <vector>

// GLSL shader objects. The wrappers call the OpenGL 2.0 entry points through
// the _cgm pointers directly, not through the interception chain: that chain
// is the client's. GL errors are left to GL. Nothing is cached; every state is
// read back from GL when asked.

namespace Oru
{
namespace OGL
{

namespace
{

const GLenum kFragmentShader = 0x8B30;    // GL_FRAGMENT_SHADER
const GLenum kVertexShader = 0x8B31;      // GL_VERTEX_SHADER
const GLenum kCompileStatus = 0x8B81;     // GL_COMPILE_STATUS
const GLenum kInfoLogLength = 0x8B84;     // GL_INFO_LOG_LENGTH
const GLenum kShaderSourceLength = 0x8B88; // GL_SHADER_SOURCE_LENGTH

} // namespace

bool Shader::isSupported()
{
    return ExtensionManager::Instance()->isSupported(OPEN_GL_2_0);
}

// The 2.0 check comes first: no entry point is touched where the manager marked
// no 2.0 (1.x, or 3.0 and later, whose pointers may be null).
Shader::Shader(ShaderType type)
{
    ORU_VERIFY(Oru::OGL::ExtensionManager::Instance()->isSupported(OPEN_GL_2_0));
    GLenum glType = 0;
    switch (type)
    {
    case FRAGMENT_SHADER:
        glType = kFragmentShader;
        break;
    case VERTEX_SHADER:
        glType = kVertexShader;
        break;
    default:
        // A value cast into ShaderType from outside the two above.
        ORU_VERIFY(!"Type enums are not all properly translated.");
    }
    _hObject = _cgmCreateShader(glType);
}

// GL keeps a deleted shader while a program still has it attached; the
// program then holds its only reference (see Program::loadVertexShader).
Shader::~Shader() noexcept(false)
{
    ORU_VERIFY(_hObject != 0);
    _cgmDeleteShader(_hObject);
}

void Shader::load(unsigned int count, const char** strings, int* lengths)
{
    _cgmShaderSource(_hObject, static_cast<GLsizei>(count), strings, lengths);
}

bool Shader::isCompiled() const
{
    GLint status = 0;
    _cgmGetShaderiv(_hObject, kCompileStatus, &status);
    return status != 0;
}

// GL counts the source with its NUL: an empty string gives 1, no source 0.
bool Shader::isLoaded() const
{
    GLint length = 0;
    _cgmGetShaderiv(_hObject, kShaderSourceLength, &length);
    return length > 1;
}

int Shader::getInfoLogLength() const
{
    GLint length = 0;
    _cgmGetShaderiv(_hObject, kInfoLogLength, &length);
    return length;
}

void Shader::getInfoLog(int maxLength, char* buffer)
{
    _cgmGetShaderInfoLog(_hObject, maxLength, nullptr, buffer);
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
    _cgmCompileShader(_hObject);
    if (!check || isCompiled())
        return;
    const int length = getInfoLogLength();
    if (length != 0)
    {
        std::vector<char> log(static_cast<std::size_t>(static_cast<unsigned int>(length)) + 1, '\0');
        getInfoLog(length, log.data());
        ORU_THROW("Program Compile Error: \n" << log.data());
    }
    ORU_THROW("Unknown Compile Error.");
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
