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
    /// Shares the GL name.
    GLSLObject(GLSLObject const& other) = default;
    /// Shares the other object's GL name.
    GLSLObject& operator=(GLSLObject const& other) = default;
    /// Derived destructors check their name and may throw.
    virtual ~GLSLObject() noexcept(false);

    /// The GL name.
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
    static bool isSupported();

    /// Throws InternalException without OpenGL 2.0, before any GL call. The
    /// name glCreateShader returns is taken as it is.
    explicit Shader(ShaderType type);
    /// Throws InternalException ("_hObject != 0") for a shader GL never named.
    ~Shader() noexcept(false) override;

    /// glShaderSource with the arguments as given; GL copies the strings.
    void load(unsigned int count, const char** strings, int* lengths);
    /// glCompileShader; with check, a failed compile throws InternalException
    /// carrying the driver's log. Without check nothing is thrown.
    void compile(bool check);

    /// GL_COMPILE_STATUS.
    bool isCompiled() const;
    /// Source of at least one character was loaded (an empty string is not).
    bool isLoaded() const;
    /// The log's length including its terminating NUL; 0 without a log.
    int getInfoLogLength() const;
    /// Copies at most maxLength characters of the info log into buffer.
    void getInfoLog(int maxLength, char* buffer);
};

/// A GL_VERTEX_SHADER.
class ORU_OGL_API VertexShader : public Shader
{
public:
    VertexShader();
    ~VertexShader() noexcept(false) override;
};

/// A GL_FRAGMENT_SHADER.
class ORU_OGL_API FragmentShader : public Shader
{
public:
    FragmentShader();
    ~FragmentShader() noexcept(false) override;
};

} // namespace OGL
} // namespace Oru

#endif
