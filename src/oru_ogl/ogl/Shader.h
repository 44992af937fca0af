#ifndef ORU_OGL_OGL_SHADER_H
#define ORU_OGL_OGL_SHADER_H

#include "oru_ogl/OglExport.h"

namespace Oru
{
namespace OGL
{

/// Root of the GLSL wrappers: the name of one GL shader or program object.
/// A copy shares the name without a GL call; whichever wrapper is destroyed
/// first deletes the GL object, so keep one owner.
class ORU_OGL_API GLSLObject
{
public:
    /// Shares the GL name, without a GL call.
    /// @param other the object whose name is shared
    GLSLObject(GLSLObject const& other) = default;
    /// Shares the other object's GL name, without a GL call.
    /// @param other the object whose name is shared
    /// @return this object
    GLSLObject& operator=(GLSLObject const& other) = default;
    /// Derived destructors check their name and may throw.
    virtual ~GLSLObject() noexcept(false);

    /// The GL name.
    /// @return the name of the shader or program object, as GL gave it
    unsigned int objectID() const;

protected:
    GLSLObject();

    /// The GL name.
    unsigned int _hObject;
};

/// One OpenGL 2.0 shader object: created by the constructor, given source by
/// load(), compiled by compile() and deleted by the destructor. Needs OpenGL
/// 2.0 as the extension manager reports it; there is no ARB fallback.
class ORU_OGL_API Shader : public GLSLObject
{
public:
    /// The stage of a shader.
    enum ShaderType
    {
        FRAGMENT_SHADER = 0,
        VERTEX_SHADER = 1
    };

    /// Whether the extension manager marked OpenGL 2.0.
    /// @return true when shaders can be made on the start-up context
    /// @throws Oru::InternalException "Enforce pInstance_ != NULL" while the layer is not started
    static bool isSupported();

    /// Creates the GL shader object (glCreateShader) of that stage on the
    /// current context. The name GL returns is taken as it is.
    /// @param type the stage
    /// @throws Oru::InternalException "Oru::OGL::ExtensionManager::Instance()->isSupported(OPEN_GL_2_0)"
    ///         without OpenGL 2.0, before any GL call; "Enforce pInstance_ != NULL"
    ///         while the layer is not started;
    ///         "!\"Type enums are not all properly translated.\"" for a value cast
    ///         into ShaderType from outside the two
    /// @throws Oru::OGL::ExceptionOGL "Shader::Shader: <gluErrorString text>" with
    ///         checked wrappers on, when GL has an error pending afterwards
    explicit Shader(ShaderType type);
    /// Deletes the GL shader object (glDeleteShader); GL keeps it while a
    /// program has it attached.
    /// @throws Oru::InternalException "_hObject != 0" for a shader GL never named
    ~Shader() noexcept(false) override;

    /// glShaderSource with the arguments as given; GL copies the strings.
    /// @param count   the number of source strings
    /// @param strings count source texts
    /// @param lengths count lengths in characters, a negative one (or null for
    ///                all) meaning zero-terminated
    /// @throws Oru::OGL::ExceptionOGL "Shader::load: <gluErrorString text>" with
    ///         checked wrappers on, when GL has an error pending afterwards
    void load(unsigned int count, const char** strings, int* lengths);
    /// glCompileShader; with check, a failed compile throws with the driver's
    /// log. Without check nothing is thrown for a failed compile: it surfaces
    /// at Program::link(true).
    /// @param check whether to read the compile status and log and throw as below
    /// @throws Oru::InternalException with check, when the compile failed:
    ///         `"Program Compile Error: \n"` followed by the log (the prefix says
    ///         Program although a shader failed), or "Unknown Compile Error."
    ///         when there is no log
    /// @throws Oru::OGL::ExceptionOGL "Shader::<member>: <gluErrorString text>"
    ///         (compile, isCompiled, getInfoLogLength or getInfoLog) with checked
    ///         wrappers on, when GL has an error pending after a step
    void compile(bool check);

    /// GL_COMPILE_STATUS, asked of GL every time.
    /// @return true when the last compile succeeded
    /// @throws Oru::OGL::ExceptionOGL "Shader::isCompiled: <gluErrorString text>" with
    ///         checked wrappers on, when GL has an error pending afterwards
    bool isCompiled() const;
    /// Whether source of at least one character was loaded.
    /// @return true when GL_SHADER_SOURCE_LENGTH exceeds 1 (an empty string
    ///         counts 1 with its NUL, and is not loaded)
    /// @throws Oru::OGL::ExceptionOGL "Shader::isLoaded: <gluErrorString text>" with
    ///         checked wrappers on, when GL has an error pending afterwards
    bool isLoaded() const;
    /// The info log's length.
    /// @return the length including its terminating NUL; 0 without a log
    /// @throws Oru::OGL::ExceptionOGL "Shader::getInfoLogLength: <gluErrorString text>"
    ///         with checked wrappers on, when GL has an error pending afterwards
    int getInfoLogLength() const;
    /// Copies the info log into buffer.
    /// @param maxLength the buffer's size in characters, the NUL included
    /// @param buffer    receives at most maxLength characters, zero-terminated
    /// @throws Oru::OGL::ExceptionOGL "Shader::getInfoLog: <gluErrorString text>" with
    ///         checked wrappers on, when GL has an error pending afterwards
    void getInfoLog(int maxLength, char* buffer);
};

/// A GL_VERTEX_SHADER.
class ORU_OGL_API VertexShader : public Shader
{
public:
    /// Creates a vertex shader object.
    /// @throws Oru::InternalException what Shader::Shader() throws
    /// @throws Oru::OGL::ExceptionOGL "Shader::Shader: <gluErrorString text>" with
    ///         checked wrappers on, when GL has an error pending afterwards
    VertexShader();
    /// Deletes the shader object.
    /// @throws Oru::InternalException "_hObject != 0" for a shader GL never named
    ~VertexShader() noexcept(false) override;
};

/// A GL_FRAGMENT_SHADER.
class ORU_OGL_API FragmentShader : public Shader
{
public:
    /// Creates a fragment shader object.
    /// @throws Oru::InternalException what Shader::Shader() throws
    /// @throws Oru::OGL::ExceptionOGL "Shader::Shader: <gluErrorString text>" with
    ///         checked wrappers on, when GL has an error pending afterwards
    FragmentShader();
    /// Deletes the shader object.
    /// @throws Oru::InternalException "_hObject != 0" for a shader GL never named
    ~FragmentShader() noexcept(false) override;
};

} // namespace OGL
} // namespace Oru

#endif
