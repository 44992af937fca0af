#ifndef ORU_OGL_OGL_PROGRAM_H
#define ORU_OGL_OGL_PROGRAM_H

#include "oru_ogl/OglExport.h"
#include "oru_ogl/ogl/Shader.h"

namespace Oru
{
namespace OGL
{

/// One OpenGL 2.0 program object: shaders attached, linked, made current and
/// fed uniforms. Nothing is cached: link, validation and enable states and
/// uniform locations are asked of GL every time.
///
///     Oru::OGL::Program program;
///     program.loadVertexShader(1, &vertexSource, nullptr);
///     program.loadFragmentShader(1, &fragmentSource, nullptr);
///     program.link(true);          // throws with the driver's log
///     program.enable();
///     program.setUniform("tint", 1.0f, 0.5f, 0.25f);
///
/// Uniform setters come in four flavours: setX(location, ...) and
/// setX(name, ...) require the program to be current (isEnabled()) and throw
/// InternalException otherwise; setX_Unsafe(location, ...) and
/// setX_Unsafe(name, ...) do not check, and skip the GL call for the unknown
/// location -1. The array setters differ, see Program.cpp.
class ORU_OGL_API Program : public GLSLObject
{
public:
    /// What glGetUniformLocation answers for a name that is no active uniform.
    static const int nUnknownLocation = -1;

    /// Whether the extension manager marked OpenGL 2.0.
    static bool isSupported();

    /// Throws InternalException without OpenGL 2.0 (before any GL call) and
    /// when GL gives no program name.
    Program();
    /// A copy shares the GL name (see GLSLObject).
    Program(Program const& other) = default;
    /// Shares the other program's GL name (see GLSLObject).
    Program& operator=(Program const& other) = default;
    ~Program() noexcept(false) override;

    /// \name Shaders
    /// attach() refuses a shader without source; compiling is not required (a
    /// failed compile surfaces at link(true)).
    ///@{
    /// Attaches a vertex shader; the program does not own the wrapper.
    void attach(VertexShader* shader);
    /// Attaches a fragment shader; the program does not own the wrapper.
    void attach(FragmentShader* shader);
    /// Detaches a vertex shader.
    void detach(const VertexShader* shader);
    /// Detaches a fragment shader.
    void detach(const FragmentShader* shader);
    /// Detaches every attached shader.
    void detachAllShaders();
    /// Detaches the vertex shaders: at most 4 passes over the first 64 attached names each.
    void detachAllVertexShaders();
    /// Detaches the fragment shaders, in the same passes.
    void detachAllFragmentShaders();
    /// Creates, loads and compiles (unchecked) a shader, attaches it and drops
    /// the wrapper: the program then holds the GL shader's only reference.
    void loadVertexShader(unsigned int count, const char** strings, int* lengths);
    /// The same for a fragment shader.
    void loadFragmentShader(unsigned int count, const char** strings, int* lengths);
    ///@}

    /// \name Linking
    ///@{
    /// glLinkProgram. With check, throws InternalException with the driver's
    /// log on a failed link, and on a successful one whose log says the program
    /// will "run in software".
    void link(bool check);
    /// What follows a link; nothing to do for this program.
    void postLinkInit();
    /// GL_LINK_STATUS.
    bool isLinked() const;
    /// glValidateProgram, then GL_VALIDATE_STATUS.
    bool validate() const;
    /// The info log's length including its terminating NUL; 0 without a log.
    int getInfoLogLength() const;
    /// Copies at most maxLength characters of the info log into buffer.
    void getInfoLog(int maxLength, char* buffer);
    ///@}

    /// \name Use
    ///@{
    /// Makes the program current (glUseProgram); requires a linked program.
    void enable();
    /// Makes no program current.
    void disable();
    /// Whether this program is the current one.
    bool isEnabled() const;
    ///@}

    /// \name Locations and active uniforms
    /// The active-uniform queries require a linked program.
    ///@{
    /// The uniform's location, or nUnknownLocation.
    int getUniformLocation(const char* name) const;
    /// Binds a vertex attribute name to an index before the next link.
    void setAttributeLocation(unsigned int index, const char* name);
    /// The attribute's index, or -1.
    int getAttributeLocation(const char* name);
    /// GL_ACTIVE_UNIFORMS.
    unsigned int getActiveUniformCount() const;
    /// glGetActiveUniform for the index-th active uniform.
    void getActiveUniform(unsigned int index, int bufSize, int* size, unsigned int* type, char* name) const;
    /// GL_ACTIVE_UNIFORM_MAX_LENGTH: the longest active uniform name with its NUL.
    int getMaxUniformStringLength() const;
    /// Throws InternalException unless the uniform at location has this GL type
    /// and at least count elements.
    void assertActiveUniformType(int location, unsigned int type, unsigned int count) const;
    ///@}

    /// \name Uniforms from bool
    /// bool: glUniform1i..4i with 0 or 1.
    ///@{
    /// Sets the uniform at location; throws InternalException unless the program is current.
    void setUniform(int location, bool x);
    /// Sets the uniform of that name; throws InternalException unless the program is current.
    void setUniform(const char* name, bool x);
    /// Sets the uniform at location without checks; location -1 is skipped.
    void setUniform_Unsafe(int location, bool x);
    /// Sets the uniform of that name without checks.
    void setUniform_Unsafe(const char* name, bool x);
    /// Sets the uniform at location; throws InternalException unless the program is current.
    void setUniform(int location, bool x, bool y);
    /// Sets the uniform of that name; throws InternalException unless the program is current.
    void setUniform(const char* name, bool x, bool y);
    /// Sets the uniform at location without checks; location -1 is skipped.
    void setUniform_Unsafe(int location, bool x, bool y);
    /// Sets the uniform of that name without checks.
    void setUniform_Unsafe(const char* name, bool x, bool y);
    /// Sets the uniform at location; throws InternalException unless the program is current.
    void setUniform(int location, bool x, bool y, bool z);
    /// Sets the uniform of that name; throws InternalException unless the program is current.
    void setUniform(const char* name, bool x, bool y, bool z);
    /// Sets the uniform at location without checks; location -1 is skipped.
    void setUniform_Unsafe(int location, bool x, bool y, bool z);
    /// Sets the uniform of that name without checks.
    void setUniform_Unsafe(const char* name, bool x, bool y, bool z);
    /// Sets the uniform at location; throws InternalException unless the program is current.
    void setUniform(int location, bool x, bool y, bool z, bool w);
    /// Sets the uniform of that name; throws InternalException unless the program is current.
    void setUniform(const char* name, bool x, bool y, bool z, bool w);
    /// Sets the uniform at location without checks; location -1 is skipped.
    void setUniform_Unsafe(int location, bool x, bool y, bool z, bool w);
    /// Sets the uniform of that name without checks.
    void setUniform_Unsafe(const char* name, bool x, bool y, bool z, bool w);
    ///@}

    /// \name Uniforms from unsigned char
    /// unsigned char: glUniform1i..4i with 0 to 255 (not normalised).
    ///@{
    /// Sets the uniform at location; throws InternalException unless the program is current.
    void setUniform(int location, unsigned char x);
    /// Sets the uniform of that name; throws InternalException unless the program is current.
    void setUniform(const char* name, unsigned char x);
    /// Sets the uniform at location without checks; location -1 is skipped.
    void setUniform_Unsafe(int location, unsigned char x);
    /// Sets the uniform of that name without checks.
    void setUniform_Unsafe(const char* name, unsigned char x);
    /// Sets the uniform at location; throws InternalException unless the program is current.
    void setUniform(int location, unsigned char x, unsigned char y);
    /// Sets the uniform of that name; throws InternalException unless the program is current.
    void setUniform(const char* name, unsigned char x, unsigned char y);
    /// Sets the uniform at location without checks; location -1 is skipped.
    void setUniform_Unsafe(int location, unsigned char x, unsigned char y);
    /// Sets the uniform of that name without checks.
    void setUniform_Unsafe(const char* name, unsigned char x, unsigned char y);
    /// Sets the uniform at location; throws InternalException unless the program is current.
    void setUniform(int location, unsigned char x, unsigned char y, unsigned char z);
    /// Sets the uniform of that name; throws InternalException unless the program is current.
    void setUniform(const char* name, unsigned char x, unsigned char y, unsigned char z);
    /// Sets the uniform at location without checks; location -1 is skipped.
    void setUniform_Unsafe(int location, unsigned char x, unsigned char y, unsigned char z);
    /// Sets the uniform of that name without checks.
    void setUniform_Unsafe(const char* name, unsigned char x, unsigned char y, unsigned char z);
    /// Sets the uniform at location; throws InternalException unless the program is current.
    void setUniform(int location, unsigned char x, unsigned char y, unsigned char z, unsigned char w);
    /// Sets the uniform of that name; throws InternalException unless the program is current.
    void setUniform(const char* name, unsigned char x, unsigned char y, unsigned char z, unsigned char w);
    /// Sets the uniform at location without checks; location -1 is skipped.
    void setUniform_Unsafe(int location, unsigned char x, unsigned char y, unsigned char z, unsigned char w);
    /// Sets the uniform of that name without checks.
    void setUniform_Unsafe(const char* name, unsigned char x, unsigned char y, unsigned char z, unsigned char w);
    ///@}

    /// \name Uniforms from int
    /// int: glUniform1i..4i.
    ///@{
    /// Sets the uniform at location; throws InternalException unless the program is current.
    void setUniform(int location, int x);
    /// Sets the uniform of that name; throws InternalException unless the program is current.
    void setUniform(const char* name, int x);
    /// Sets the uniform at location without checks; location -1 is skipped.
    void setUniform_Unsafe(int location, int x);
    /// Sets the uniform of that name without checks.
    void setUniform_Unsafe(const char* name, int x);
    /// Sets the uniform at location; throws InternalException unless the program is current.
    void setUniform(int location, int x, int y);
    /// Sets the uniform of that name; throws InternalException unless the program is current.
    void setUniform(const char* name, int x, int y);
    /// Sets the uniform at location without checks; location -1 is skipped.
    void setUniform_Unsafe(int location, int x, int y);
    /// Sets the uniform of that name without checks.
    void setUniform_Unsafe(const char* name, int x, int y);
    /// Sets the uniform at location; throws InternalException unless the program is current.
    void setUniform(int location, int x, int y, int z);
    /// Sets the uniform of that name; throws InternalException unless the program is current.
    void setUniform(const char* name, int x, int y, int z);
    /// Sets the uniform at location without checks; location -1 is skipped.
    void setUniform_Unsafe(int location, int x, int y, int z);
    /// Sets the uniform of that name without checks.
    void setUniform_Unsafe(const char* name, int x, int y, int z);
    /// Sets the uniform at location; throws InternalException unless the program is current.
    void setUniform(int location, int x, int y, int z, int w);
    /// Sets the uniform of that name; throws InternalException unless the program is current.
    void setUniform(const char* name, int x, int y, int z, int w);
    /// Sets the uniform at location without checks; location -1 is skipped.
    void setUniform_Unsafe(int location, int x, int y, int z, int w);
    /// Sets the uniform of that name without checks.
    void setUniform_Unsafe(const char* name, int x, int y, int z, int w);
    ///@}

    /// \name Uniforms from float
    /// float: glUniform1f..4f.
    ///@{
    /// Sets the uniform at location; throws InternalException unless the program is current.
    void setUniform(int location, float x);
    /// Sets the uniform of that name; throws InternalException unless the program is current.
    void setUniform(const char* name, float x);
    /// Sets the uniform at location without checks; location -1 is skipped.
    void setUniform_Unsafe(int location, float x);
    /// Sets the uniform of that name without checks.
    void setUniform_Unsafe(const char* name, float x);
    /// Sets the uniform at location; throws InternalException unless the program is current.
    void setUniform(int location, float x, float y);
    /// Sets the uniform of that name; throws InternalException unless the program is current.
    void setUniform(const char* name, float x, float y);
    /// Sets the uniform at location without checks; location -1 is skipped.
    void setUniform_Unsafe(int location, float x, float y);
    /// Sets the uniform of that name without checks.
    void setUniform_Unsafe(const char* name, float x, float y);
    /// Sets the uniform at location; throws InternalException unless the program is current.
    void setUniform(int location, float x, float y, float z);
    /// Sets the uniform of that name; throws InternalException unless the program is current.
    void setUniform(const char* name, float x, float y, float z);
    /// Sets the uniform at location without checks; location -1 is skipped.
    void setUniform_Unsafe(int location, float x, float y, float z);
    /// Sets the uniform of that name without checks.
    void setUniform_Unsafe(const char* name, float x, float y, float z);
    /// Sets the uniform at location; throws InternalException unless the program is current.
    void setUniform(int location, float x, float y, float z, float w);
    /// Sets the uniform of that name; throws InternalException unless the program is current.
    void setUniform(const char* name, float x, float y, float z, float w);
    /// Sets the uniform at location without checks; location -1 is skipped.
    void setUniform_Unsafe(int location, float x, float y, float z, float w);
    /// Sets the uniform of that name without checks.
    void setUniform_Unsafe(const char* name, float x, float y, float z, float w);
    ///@}

    /// \name Sampler uniforms
    /// Samplers: the texture unit, glUniform1i.
    ///@{
    /// Sets the uniform at location; throws InternalException unless the program is current.
    void setUniformSampler1D(int location, int unit);
    /// Sets the uniform of that name; throws InternalException unless the program is current.
    void setUniformSampler1D(const char* name, int unit);
    /// Sets the uniform at location without checks; location -1 is skipped.
    void setUniformSampler1D_Unsafe(int location, int unit);
    /// Sets the uniform of that name without checks.
    void setUniformSampler1D_Unsafe(const char* name, int unit);
    /// Sets the uniform at location; throws InternalException unless the program is current.
    void setUniformSampler2D(int location, int unit);
    /// Sets the uniform of that name; throws InternalException unless the program is current.
    void setUniformSampler2D(const char* name, int unit);
    /// Sets the uniform at location without checks; location -1 is skipped.
    void setUniformSampler2D_Unsafe(int location, int unit);
    /// Sets the uniform of that name without checks.
    void setUniformSampler2D_Unsafe(const char* name, int unit);
    /// Sets the uniform at location; throws InternalException unless the program is current.
    void setUniformSampler3D(int location, int unit);
    /// Sets the uniform of that name; throws InternalException unless the program is current.
    void setUniformSampler3D(const char* name, int unit);
    /// Sets the uniform at location without checks; location -1 is skipped.
    void setUniformSampler3D_Unsafe(int location, int unit);
    /// Sets the uniform of that name without checks.
    void setUniformSampler3D_Unsafe(const char* name, int unit);
    /// Sets the uniform at location; throws InternalException unless the program is current.
    void setUniformSampler2DRECT(int location, int unit);
    /// Sets the uniform of that name; throws InternalException unless the program is current.
    void setUniformSampler2DRECT(const char* name, int unit);
    /// Sets the uniform at location without checks; location -1 is skipped.
    void setUniformSampler2DRECT_Unsafe(int location, int unit);
    /// Sets the uniform of that name without checks.
    void setUniformSampler2DRECT_Unsafe(const char* name, int unit);
    ///@}

    /// \name Matrix uniforms
    /// Matrices: count column-major matrices (row-major with transpose),
    /// glUniformMatrix2fv..4fv. setUniformMatrixN sets one.
    ///@{
    /// Sets the uniform at location; throws InternalException unless the program is current.
    void setUniformMatrices2(int location, int count, const float* values, unsigned char transpose);
    /// Sets the uniform of that name; throws InternalException unless the program is current.
    void setUniformMatrices2(const char* name, int count, const float* values, unsigned char transpose);
    /// Sets the uniform at location without checks; location -1 is skipped.
    void setUniformMatrices2_Unsafe(int location, int count, const float* values, unsigned char transpose);
    /// Sets the uniform of that name without checks.
    void setUniformMatrices2_Unsafe(const char* name, int count, const float* values, unsigned char transpose);
    /// Sets the uniform at location; throws InternalException unless the program is current.
    void setUniformMatrices3(int location, int count, const float* values, unsigned char transpose);
    /// Sets the uniform of that name; throws InternalException unless the program is current.
    void setUniformMatrices3(const char* name, int count, const float* values, unsigned char transpose);
    /// Sets the uniform at location without checks; location -1 is skipped.
    void setUniformMatrices3_Unsafe(int location, int count, const float* values, unsigned char transpose);
    /// Sets the uniform of that name without checks.
    void setUniformMatrices3_Unsafe(const char* name, int count, const float* values, unsigned char transpose);
    /// Sets the uniform at location; throws InternalException unless the program is current.
    void setUniformMatrices4(int location, int count, const float* values, unsigned char transpose);
    /// Sets the uniform of that name; throws InternalException unless the program is current.
    void setUniformMatrices4(const char* name, int count, const float* values, unsigned char transpose);
    /// Sets the uniform at location without checks; location -1 is skipped.
    void setUniformMatrices4_Unsafe(int location, int count, const float* values, unsigned char transpose);
    /// Sets the uniform of that name without checks.
    void setUniformMatrices4_Unsafe(const char* name, int count, const float* values, unsigned char transpose);
    /// Sets the uniform at location; throws InternalException unless the program is current.
    void setUniformMatrix2(int location, const float* values, unsigned char transpose);
    /// Sets the uniform of that name; throws InternalException unless the program is current.
    void setUniformMatrix2(const char* name, const float* values, unsigned char transpose);
    /// Sets the uniform at location without checks; location -1 is skipped.
    void setUniformMatrix2_Unsafe(int location, const float* values, unsigned char transpose);
    /// Sets the uniform of that name without checks.
    void setUniformMatrix2_Unsafe(const char* name, const float* values, unsigned char transpose);
    /// Sets the uniform at location; throws InternalException unless the program is current.
    void setUniformMatrix3(int location, const float* values, unsigned char transpose);
    /// Sets the uniform of that name; throws InternalException unless the program is current.
    void setUniformMatrix3(const char* name, const float* values, unsigned char transpose);
    /// Sets the uniform at location without checks; location -1 is skipped.
    void setUniformMatrix3_Unsafe(int location, const float* values, unsigned char transpose);
    /// Sets the uniform of that name without checks.
    void setUniformMatrix3_Unsafe(const char* name, const float* values, unsigned char transpose);
    /// Sets the uniform at location; throws InternalException unless the program is current.
    void setUniformMatrix4(int location, const float* values, unsigned char transpose);
    /// Sets the uniform of that name; throws InternalException unless the program is current.
    void setUniformMatrix4(const char* name, const float* values, unsigned char transpose);
    /// Sets the uniform at location without checks; location -1 is skipped.
    void setUniformMatrix4_Unsafe(int location, const float* values, unsigned char transpose);
    /// Sets the uniform of that name without checks.
    void setUniformMatrix4_Unsafe(const char* name, const float* values, unsigned char transpose);
    ///@}

    /// \name Uniform arrays
    /// Arrays of count elements of 1 to 4 components, glUniform1iv..4iv and
    /// glUniform1fv..3fv. The checked by-name members do not check that the
    /// program is enabled, the unchecked ones skip -1 only by location and for
    /// int, and setUniform4 with floats uploads vec3 triples (glUniform3fv).
    ///@{
    /// Sets count elements at location; throws InternalException unless the program is current.
    void setUniform(int location, int count, int* values);
    /// Sets count elements of the uniform of that name; does not check that the program is current.
    void setUniform(const char* name, int count, int* values);
    /// Sets count elements at location without checks (the int flavours skip location -1).
    void setUniform_Unsafe(int location, int count, int* values);
    /// Sets count elements of the uniform of that name without checks.
    void setUniform_Unsafe(const char* name, int count, int* values);
    /// Sets count elements at location; throws InternalException unless the program is current.
    void setUniform2(int location, int count, int* values);
    /// Sets count elements of the uniform of that name; does not check that the program is current.
    void setUniform2(const char* name, int count, int* values);
    /// Sets count elements at location without checks (the int flavours skip location -1).
    void setUniform2_Unsafe(int location, int count, int* values);
    /// Sets count elements of the uniform of that name without checks.
    void setUniform2_Unsafe(const char* name, int count, int* values);
    /// Sets count elements at location; throws InternalException unless the program is current.
    void setUniform3(int location, int count, int* values);
    /// Sets count elements of the uniform of that name; does not check that the program is current.
    void setUniform3(const char* name, int count, int* values);
    /// Sets count elements at location without checks (the int flavours skip location -1).
    void setUniform3_Unsafe(int location, int count, int* values);
    /// Sets count elements of the uniform of that name without checks.
    void setUniform3_Unsafe(const char* name, int count, int* values);
    /// Sets count elements at location; throws InternalException unless the program is current.
    void setUniform4(int location, int count, int* values);
    /// Sets count elements of the uniform of that name; does not check that the program is current.
    void setUniform4(const char* name, int count, int* values);
    /// Sets count elements at location without checks (the int flavours skip location -1).
    void setUniform4_Unsafe(int location, int count, int* values);
    /// Sets count elements of the uniform of that name without checks.
    void setUniform4_Unsafe(const char* name, int count, int* values);
    /// Sets count elements at location; throws InternalException unless the program is current.
    void setUniform(int location, int count, float* values);
    /// Sets count elements of the uniform of that name; does not check that the program is current.
    void setUniform(const char* name, int count, float* values);
    /// Sets count elements at location without checks (the int flavours skip location -1).
    void setUniform_Unsafe(int location, int count, float* values);
    /// Sets count elements of the uniform of that name without checks.
    void setUniform_Unsafe(const char* name, int count, float* values);
    /// Sets count elements at location; throws InternalException unless the program is current.
    void setUniform2(int location, int count, float* values);
    /// Sets count elements of the uniform of that name; does not check that the program is current.
    void setUniform2(const char* name, int count, float* values);
    /// Sets count elements at location without checks (the int flavours skip location -1).
    void setUniform2_Unsafe(int location, int count, float* values);
    /// Sets count elements of the uniform of that name without checks.
    void setUniform2_Unsafe(const char* name, int count, float* values);
    /// Sets count elements at location; throws InternalException unless the program is current.
    void setUniform3(int location, int count, float* values);
    /// Sets count elements of the uniform of that name; does not check that the program is current.
    void setUniform3(const char* name, int count, float* values);
    /// Sets count elements at location without checks (the int flavours skip location -1).
    void setUniform3_Unsafe(int location, int count, float* values);
    /// Sets count elements of the uniform of that name without checks.
    void setUniform3_Unsafe(const char* name, int count, float* values);
    /// Sets count elements at location; throws InternalException unless the program is current.
    void setUniform4(int location, int count, float* values);
    /// Sets count elements of the uniform of that name; does not check that the program is current.
    void setUniform4(const char* name, int count, float* values);
    /// Sets count elements at location without checks (the int flavours skip location -1).
    void setUniform4_Unsafe(int location, int count, float* values);
    /// Sets count elements of the uniform of that name without checks.
    void setUniform4_Unsafe(const char* name, int count, float* values);
    ///@}
};

} // namespace OGL
} // namespace Oru

#endif
