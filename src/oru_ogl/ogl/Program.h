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
    Program(Program const& other) = default;
    Program& operator=(Program const& other) = default;
    ~Program() noexcept(false) override;

    // Shaders. attach() refuses a shader without source; compiling is not
    // required (a failed compile surfaces at link(true)).
    void attach(VertexShader* shader);
    void attach(FragmentShader* shader);
    void detach(const VertexShader* shader);
    void detach(const FragmentShader* shader);
    void detachAllShaders();
    /// At most 4 passes over the first 64 attached names each.
    void detachAllVertexShaders();
    void detachAllFragmentShaders();
    /// Creates, loads and compiles (unchecked) a shader, attaches it and drops
    /// the wrapper: the program then holds the GL shader's only reference.
    void loadVertexShader(unsigned int count, const char** strings, int* lengths);
    void loadFragmentShader(unsigned int count, const char** strings, int* lengths);

    // Linking. link(true) throws InternalException with the driver's log on a
    // failed link, and on a successful one whose log says the program will
    // "run in software".
    void link(bool check);
    void postLinkInit();
    bool isLinked() const;
    bool validate() const;
    int getInfoLogLength() const;
    void getInfoLog(int maxLength, char* buffer);

    // Use. enable() requires a linked program.
    void enable();
    void disable();
    bool isEnabled() const;

    // Locations and active uniforms; the active-uniform queries require a
    // linked program.
    int getUniformLocation(const char* name) const;
    void setAttributeLocation(unsigned int index, const char* name);
    int getAttributeLocation(const char* name);
    unsigned int getActiveUniformCount() const;
    void getActiveUniform(unsigned int index, int bufSize, int* size, unsigned int* type, char* name) const;
    int getMaxUniformStringLength() const;
    void assertActiveUniformType(int location, unsigned int type, unsigned int count) const;

    // bool: glUniform1i..4i with 0 or 1.
    void setUniform(int location, bool x);
    void setUniform(const char* name, bool x);
    void setUniform_Unsafe(int location, bool x);
    void setUniform_Unsafe(const char* name, bool x);
    void setUniform(int location, bool x, bool y);
    void setUniform(const char* name, bool x, bool y);
    void setUniform_Unsafe(int location, bool x, bool y);
    void setUniform_Unsafe(const char* name, bool x, bool y);
    void setUniform(int location, bool x, bool y, bool z);
    void setUniform(const char* name, bool x, bool y, bool z);
    void setUniform_Unsafe(int location, bool x, bool y, bool z);
    void setUniform_Unsafe(const char* name, bool x, bool y, bool z);
    void setUniform(int location, bool x, bool y, bool z, bool w);
    void setUniform(const char* name, bool x, bool y, bool z, bool w);
    void setUniform_Unsafe(int location, bool x, bool y, bool z, bool w);
    void setUniform_Unsafe(const char* name, bool x, bool y, bool z, bool w);

    // unsigned char: glUniform1i..4i with 0 to 255 (not normalised).
    void setUniform(int location, unsigned char x);
    void setUniform(const char* name, unsigned char x);
    void setUniform_Unsafe(int location, unsigned char x);
    void setUniform_Unsafe(const char* name, unsigned char x);
    void setUniform(int location, unsigned char x, unsigned char y);
    void setUniform(const char* name, unsigned char x, unsigned char y);
    void setUniform_Unsafe(int location, unsigned char x, unsigned char y);
    void setUniform_Unsafe(const char* name, unsigned char x, unsigned char y);
    void setUniform(int location, unsigned char x, unsigned char y, unsigned char z);
    void setUniform(const char* name, unsigned char x, unsigned char y, unsigned char z);
    void setUniform_Unsafe(int location, unsigned char x, unsigned char y, unsigned char z);
    void setUniform_Unsafe(const char* name, unsigned char x, unsigned char y, unsigned char z);
    void setUniform(int location, unsigned char x, unsigned char y, unsigned char z, unsigned char w);
    void setUniform(const char* name, unsigned char x, unsigned char y, unsigned char z, unsigned char w);
    void setUniform_Unsafe(int location, unsigned char x, unsigned char y, unsigned char z, unsigned char w);
    void setUniform_Unsafe(const char* name, unsigned char x, unsigned char y, unsigned char z, unsigned char w);

    // int: glUniform1i..4i.
    void setUniform(int location, int x);
    void setUniform(const char* name, int x);
    void setUniform_Unsafe(int location, int x);
    void setUniform_Unsafe(const char* name, int x);
    void setUniform(int location, int x, int y);
    void setUniform(const char* name, int x, int y);
    void setUniform_Unsafe(int location, int x, int y);
    void setUniform_Unsafe(const char* name, int x, int y);
    void setUniform(int location, int x, int y, int z);
    void setUniform(const char* name, int x, int y, int z);
    void setUniform_Unsafe(int location, int x, int y, int z);
    void setUniform_Unsafe(const char* name, int x, int y, int z);
    void setUniform(int location, int x, int y, int z, int w);
    void setUniform(const char* name, int x, int y, int z, int w);
    void setUniform_Unsafe(int location, int x, int y, int z, int w);
    void setUniform_Unsafe(const char* name, int x, int y, int z, int w);

    // float: glUniform1f..4f.
    void setUniform(int location, float x);
    void setUniform(const char* name, float x);
    void setUniform_Unsafe(int location, float x);
    void setUniform_Unsafe(const char* name, float x);
    void setUniform(int location, float x, float y);
    void setUniform(const char* name, float x, float y);
    void setUniform_Unsafe(int location, float x, float y);
    void setUniform_Unsafe(const char* name, float x, float y);
    void setUniform(int location, float x, float y, float z);
    void setUniform(const char* name, float x, float y, float z);
    void setUniform_Unsafe(int location, float x, float y, float z);
    void setUniform_Unsafe(const char* name, float x, float y, float z);
    void setUniform(int location, float x, float y, float z, float w);
    void setUniform(const char* name, float x, float y, float z, float w);
    void setUniform_Unsafe(int location, float x, float y, float z, float w);
    void setUniform_Unsafe(const char* name, float x, float y, float z, float w);

    // Samplers: the texture unit, glUniform1i.
    void setUniformSampler1D(int location, int unit);
    void setUniformSampler1D(const char* name, int unit);
    void setUniformSampler1D_Unsafe(int location, int unit);
    void setUniformSampler1D_Unsafe(const char* name, int unit);
    void setUniformSampler2D(int location, int unit);
    void setUniformSampler2D(const char* name, int unit);
    void setUniformSampler2D_Unsafe(int location, int unit);
    void setUniformSampler2D_Unsafe(const char* name, int unit);
    void setUniformSampler3D(int location, int unit);
    void setUniformSampler3D(const char* name, int unit);
    void setUniformSampler3D_Unsafe(int location, int unit);
    void setUniformSampler3D_Unsafe(const char* name, int unit);
    void setUniformSampler2DRECT(int location, int unit);
    void setUniformSampler2DRECT(const char* name, int unit);
    void setUniformSampler2DRECT_Unsafe(int location, int unit);
    void setUniformSampler2DRECT_Unsafe(const char* name, int unit);

    // Matrices: count column-major matrices (row-major with transpose),
    // glUniformMatrix2fv..4fv. setUniformMatrixN sets one.
    void setUniformMatrices2(int location, int count, const float* values, unsigned char transpose);
    void setUniformMatrices2(const char* name, int count, const float* values, unsigned char transpose);
    void setUniformMatrices2_Unsafe(int location, int count, const float* values, unsigned char transpose);
    void setUniformMatrices2_Unsafe(const char* name, int count, const float* values, unsigned char transpose);
    void setUniformMatrices3(int location, int count, const float* values, unsigned char transpose);
    void setUniformMatrices3(const char* name, int count, const float* values, unsigned char transpose);
    void setUniformMatrices3_Unsafe(int location, int count, const float* values, unsigned char transpose);
    void setUniformMatrices3_Unsafe(const char* name, int count, const float* values, unsigned char transpose);
    void setUniformMatrices4(int location, int count, const float* values, unsigned char transpose);
    void setUniformMatrices4(const char* name, int count, const float* values, unsigned char transpose);
    void setUniformMatrices4_Unsafe(int location, int count, const float* values, unsigned char transpose);
    void setUniformMatrices4_Unsafe(const char* name, int count, const float* values, unsigned char transpose);
    void setUniformMatrix2(int location, const float* values, unsigned char transpose);
    void setUniformMatrix2(const char* name, const float* values, unsigned char transpose);
    void setUniformMatrix2_Unsafe(int location, const float* values, unsigned char transpose);
    void setUniformMatrix2_Unsafe(const char* name, const float* values, unsigned char transpose);
    void setUniformMatrix3(int location, const float* values, unsigned char transpose);
    void setUniformMatrix3(const char* name, const float* values, unsigned char transpose);
    void setUniformMatrix3_Unsafe(int location, const float* values, unsigned char transpose);
    void setUniformMatrix3_Unsafe(const char* name, const float* values, unsigned char transpose);
    void setUniformMatrix4(int location, const float* values, unsigned char transpose);
    void setUniformMatrix4(const char* name, const float* values, unsigned char transpose);
    void setUniformMatrix4_Unsafe(int location, const float* values, unsigned char transpose);
    void setUniformMatrix4_Unsafe(const char* name, const float* values, unsigned char transpose);

    // Arrays of count elements of 1 to 4 components, glUniform1iv..4iv and
    // glUniform1fv..3fv. The checked by-name members do not check that the
    // program is enabled, the unchecked ones skip -1 only by location and for
    // int, and setUniform4 with floats uploads vec3 triples (glUniform3fv).
    void setUniform(int location, int count, int* values);
    void setUniform(const char* name, int count, int* values);
    void setUniform_Unsafe(int location, int count, int* values);
    void setUniform_Unsafe(const char* name, int count, int* values);
    void setUniform2(int location, int count, int* values);
    void setUniform2(const char* name, int count, int* values);
    void setUniform2_Unsafe(int location, int count, int* values);
    void setUniform2_Unsafe(const char* name, int count, int* values);
    void setUniform3(int location, int count, int* values);
    void setUniform3(const char* name, int count, int* values);
    void setUniform3_Unsafe(int location, int count, int* values);
    void setUniform3_Unsafe(const char* name, int count, int* values);
    void setUniform4(int location, int count, int* values);
    void setUniform4(const char* name, int count, int* values);
    void setUniform4_Unsafe(int location, int count, int* values);
    void setUniform4_Unsafe(const char* name, int count, int* values);
    void setUniform(int location, int count, float* values);
    void setUniform(const char* name, int count, float* values);
    void setUniform_Unsafe(int location, int count, float* values);
    void setUniform_Unsafe(const char* name, int count, float* values);
    void setUniform2(int location, int count, float* values);
    void setUniform2(const char* name, int count, float* values);
    void setUniform2_Unsafe(int location, int count, float* values);
    void setUniform2_Unsafe(const char* name, int count, float* values);
    void setUniform3(int location, int count, float* values);
    void setUniform3(const char* name, int count, float* values);
    void setUniform3_Unsafe(int location, int count, float* values);
    void setUniform3_Unsafe(const char* name, int count, float* values);
    void setUniform4(int location, int count, float* values);
    void setUniform4(const char* name, int count, float* values);
    void setUniform4_Unsafe(int location, int count, float* values);
    void setUniform4_Unsafe(const char* name, int count, float* values);
};

} // namespace OGL
} // namespace Oru

#endif
