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
/// uniform locations are asked of GL every time. Compile, link (which throws
/// with the driver's log), make current, set a uniform, draw:
///
/// @snippet consumer/main.cpp program
///
/// Uniform setters come in four flavours: setX(location, ...) and
/// setX(name, ...) require the program to be current (isEnabled()) and throw
/// InternalException otherwise; setX_Unsafe(location, ...) and
/// setX_Unsafe(name, ...) do not check, and skip the GL call for the unknown
/// location -1. The array setters differ, as their group says.
class ORU_OGL_API Program : public GLSLObject
{
public:
    /// What glGetUniformLocation answers for a name that is no active uniform.
    static const int nUnknownLocation = -1;

    /// Whether the extension manager marked OpenGL 2.0.
    /// @return true when programs can be made on the start-up context
    /// @throws Oru::InternalException "Enforce pInstance_ != NULL" while the layer is not started
    static bool isSupported();

    /// Creates the GL program object (glCreateProgram) on the current context.
    /// @throws Oru::InternalException "Oru::OGL::ExtensionManager::Instance()->isSupported(OPEN_GL_2_0)"
    ///         without OpenGL 2.0, before any GL call; "_hObject != 0" when GL gives
    ///         no program name (no current context, say); "Enforce pInstance_ != NULL"
    ///         while the layer is not started
    /// @throws Oru::OGL::ExceptionOGL "Program::Program: <gluErrorString text>" with
    ///         checked wrappers on, when GL has an error pending afterwards
    Program();
    /// A copy shares the GL name (see GLSLObject).
    /// @param other the program whose name is shared
    Program(Program const& other) = default;
    /// Shares the other program's GL name (see GLSLObject).
    /// @param other the program whose name is shared
    /// @return this program
    Program& operator=(Program const& other) = default;
    /// Deletes the GL program object (glDeleteProgram).
    /// @throws Oru::InternalException "_hObject != 0" for a program GL never named
    ~Program() noexcept(false) override;

    /// \name Shaders
    /// attach() refuses a shader without source; compiling is not required (a
    /// failed compile surfaces at link(true)).
    ///@{

    /// Attaches a vertex shader; the program does not own the wrapper.
    /// @param shader a shader with source loaded (Shader::isLoaded()); not null
    /// @throws Oru::InternalException "Vertex shader must be loaded before attaching"
    ///         for a shader without source
    /// @throws Oru::OGL::ExceptionOGL "Program::attach: <gluErrorString text>" with
    ///         checked wrappers on, when GL has an error pending afterwards
    void attach(VertexShader* shader);
    /// Attaches a fragment shader; the program does not own the wrapper.
    /// @param shader a shader with source loaded (Shader::isLoaded()); not null
    /// @throws Oru::InternalException "Fragment shader must be loaded before attaching"
    ///         for a shader without source
    /// @throws Oru::OGL::ExceptionOGL "Program::attach: <gluErrorString text>" with
    ///         checked wrappers on, when GL has an error pending afterwards
    void attach(FragmentShader* shader);
    /// Detaches a vertex shader; GL reports one that is not attached as its own error.
    /// @param shader the attached shader; not null
    /// @throws Oru::OGL::ExceptionOGL "Program::detach: <gluErrorString text>" with
    ///         checked wrappers on, when GL has an error pending afterwards
    void detach(const VertexShader* shader);
    /// Detaches a fragment shader; GL reports one that is not attached as its own error.
    /// @param shader the attached shader; not null
    /// @throws Oru::OGL::ExceptionOGL "Program::detach: <gluErrorString text>" with
    ///         checked wrappers on, when GL has an error pending afterwards
    void detach(const FragmentShader* shader);
    /// Detaches every attached shader, 64 names at a time until GL lists none.
    /// @throws Oru::OGL::ExceptionOGL "Program::detachAllShaders: <gluErrorString text>"
    ///         with checked wrappers on, when GL has an error pending afterwards
    void detachAllShaders();
    /// Detaches the vertex shaders: at most 4 passes over the first 64 attached
    /// names each, so vertex shaders listed behind 256 others can stay attached.
    /// @throws Oru::OGL::ExceptionOGL "Program::detachAllVertexShaders: <gluErrorString text>"
    ///         with checked wrappers on, when GL has an error pending afterwards
    void detachAllVertexShaders();
    /// Detaches the fragment shaders, in the same passes.
    /// @throws Oru::OGL::ExceptionOGL "Program::detachAllFragmentShaders: <gluErrorString text>"
    ///         with checked wrappers on, when GL has an error pending afterwards
    void detachAllFragmentShaders();
    /// Creates, loads and compiles (unchecked) a vertex shader, attaches it and
    /// drops the wrapper: the program then holds the GL shader's only reference.
    /// A shader that cannot be attached is deleted before the exception leaves.
    /// @param count   the number of source strings
    /// @param strings count source texts; GL copies them
    /// @param lengths count lengths in characters, a negative one (or null for
    ///                all) meaning zero-terminated
    /// @throws Oru::InternalException what Shader::Shader() throws, and "Vertex
    ///         shader must be loaded before attaching" when the strings hold no source
    /// @throws Oru::OGL::ExceptionOGL "Shader::<member>: <gluErrorString text>" or
    ///         "Program::attach: <gluErrorString text>" with checked wrappers on, when
    ///         GL has an error pending after a step
    void loadVertexShader(unsigned int count, const char** strings, int* lengths);
    /// The same for a fragment shader.
    /// @param count   the number of source strings
    /// @param strings count source texts; GL copies them
    /// @param lengths count lengths in characters, a negative one (or null for
    ///                all) meaning zero-terminated
    /// @throws Oru::InternalException what Shader::Shader() throws, and "Fragment
    ///         shader must be loaded before attaching" when the strings hold no source
    /// @throws Oru::OGL::ExceptionOGL "Shader::<member>: <gluErrorString text>" or
    ///         "Program::attach: <gluErrorString text>" with checked wrappers on, when
    ///         GL has an error pending after a step
    void loadFragmentShader(unsigned int count, const char** strings, int* lengths);
    ///@}

    /// \name Linking
    ///@{

    /// glLinkProgram. With check, a failed link throws with the driver's log,
    /// and so does a successful one whose log says the program will "run in
    /// software" (it would draw at a fraction of the speed); other warnings of
    /// a successful link are dropped.
    /// @param check whether to read the link status and log and throw as below
    /// @throws Oru::InternalException with check, when the link failed:
    ///         `"Program Link Error: \n"` followed by the log, or
    ///         `"Unknown Program Link Error\n"` when there is no log; for a
    ///         software fall-back, `"Program Link Error(Falling to Software): \n"`
    ///         followed by the log
    /// @throws Oru::OGL::ExceptionOGL "Program::<member>: <gluErrorString text>" (link,
    ///         isLinked, getInfoLogLength or getInfoLog) with checked wrappers on,
    ///         when GL has an error pending after a step
    void link(bool check);
    /// What follows a link; nothing to do for this program. Kept for derived
    /// programs that set uniforms right after a link.
    void postLinkInit();
    /// GL_LINK_STATUS, asked of GL every time.
    /// @return true when the last link succeeded
    /// @throws Oru::OGL::ExceptionOGL "Program::isLinked: <gluErrorString text>" with
    ///         checked wrappers on, when GL has an error pending afterwards
    bool isLinked() const;
    /// glValidateProgram, then GL_VALIDATE_STATUS: whether the program can run
    /// in the current GL state (call it with the textures bound as for drawing).
    /// @return true when GL validated the program; the info log says why not
    /// @throws Oru::OGL::ExceptionOGL "Program::validate: <gluErrorString text>" with
    ///         checked wrappers on, when GL has an error pending afterwards
    bool validate() const;
    /// The info log's length.
    /// @return the length including its terminating NUL; 0 without a log
    /// @throws Oru::OGL::ExceptionOGL "Program::getInfoLogLength: <gluErrorString text>"
    ///         with checked wrappers on, when GL has an error pending afterwards
    int getInfoLogLength() const;
    /// Copies the info log into buffer.
    /// @param maxLength the buffer's size in characters, the NUL included
    /// @param buffer    receives at most maxLength characters, zero-terminated
    /// @throws Oru::OGL::ExceptionOGL "Program::getInfoLog: <gluErrorString text>" with
    ///         checked wrappers on, when GL has an error pending afterwards
    void getInfoLog(int maxLength, char* buffer);
    ///@}

    /// \name Use
    ///@{

    /// Makes the program current (glUseProgram), replacing whichever was.
    /// @throws Oru::InternalException "Program must be linked before being enabled"
    ///         unless the last link succeeded
    /// @throws Oru::OGL::ExceptionOGL "Program::isLinked: <gluErrorString text>" or
    ///         "Program::enable: <gluErrorString text>" with checked wrappers on, when
    ///         GL has an error pending after a step
    void enable();
    /// Makes no program current: back to the fixed-function pipeline.
    /// @throws Oru::OGL::ExceptionOGL "Program::disable: <gluErrorString text>" with
    ///         checked wrappers on, when GL has an error pending afterwards
    void disable();
    /// Whether this program is the current one, asked of GL every time; a copy
    /// of this wrapper counts as enabled too.
    /// @return true when GL_CURRENT_PROGRAM is this program's name
    /// @throws Oru::OGL::ExceptionOGL "Program::isEnabled: <gluErrorString text>" with
    ///         checked wrappers on, when GL has an error pending afterwards
    bool isEnabled() const;
    ///@}

    /// \name Locations and active uniforms
    /// The active-uniform queries require a linked program.
    ///@{

    /// The uniform's location (glGetUniformLocation).
    /// @param name the uniform's name as in the GLSL source, zero-terminated
    /// @return its location, or nUnknownLocation for a name that is no active uniform
    /// @throws Oru::OGL::ExceptionOGL "Program::getUniformLocation: <gluErrorString text>"
    ///         with checked wrappers on, when GL has an error pending afterwards
    int getUniformLocation(const char* name) const;
    /// Binds a vertex attribute name to an index before the next link.
    /// @param index the generic attribute index, below GL_MAX_VERTEX_ATTRIBS
    /// @param name  the attribute's name as in the GLSL source, zero-terminated
    /// @throws Oru::OGL::ExceptionOGL "Program::setAttributeLocation: <gluErrorString text>"
    ///         with checked wrappers on, when GL has an error pending afterwards
    void setAttributeLocation(unsigned int index, const char* name);
    /// The attribute's index in the linked program (glGetAttribLocation).
    /// @param name the attribute's name as in the GLSL source, zero-terminated
    /// @return its index, or -1 for a name that is no active attribute
    /// @throws Oru::OGL::ExceptionOGL "Program::getAttributeLocation: <gluErrorString text>"
    ///         with checked wrappers on, when GL has an error pending afterwards
    int getAttributeLocation(const char* name);
    /// GL_ACTIVE_UNIFORMS.
    /// @return the number of active uniforms of the linked program
    /// @throws Oru::InternalException "Program must be linked to get active uniform
    ///         count" unless the last link succeeded
    /// @throws Oru::OGL::ExceptionOGL "Program::getActiveUniformCount: <gluErrorString text>"
    ///         (or "Program::isLinked: ...") with checked wrappers on, when GL has an
    ///         error pending afterwards
    unsigned int getActiveUniformCount() const;
    /// glGetActiveUniform for the index-th active uniform.
    /// @param index   below getActiveUniformCount()
    /// @param bufSize the size of name in characters, the NUL included
    /// @param size    receives the uniform's number of elements (1 unless an array)
    /// @param type    receives its GL type, GL_FLOAT_VEC3 say
    /// @param name    receives at most bufSize characters of its name, zero-terminated
    /// @throws Oru::InternalException "Program must be linked to get active uniform
    ///         count" unless the last link succeeded (the text is the same for all
    ///         three active-uniform queries)
    /// @throws Oru::OGL::ExceptionOGL "Program::getActiveUniform: <gluErrorString text>"
    ///         (or "Program::isLinked: ...") with checked wrappers on, when GL has an
    ///         error pending afterwards
    void getActiveUniform(unsigned int index, int bufSize, int* size, unsigned int* type, char* name) const;
    /// GL_ACTIVE_UNIFORM_MAX_LENGTH.
    /// @return the length of the longest active uniform name with its NUL
    /// @throws Oru::InternalException "Program must be linked to get active uniform
    ///         count" unless the last link succeeded
    /// @throws Oru::OGL::ExceptionOGL "Program::getMaxUniformStringLength: <gluErrorString text>"
    ///         (or "Program::isLinked: ...") with checked wrappers on, when GL has an
    ///         error pending afterwards
    int getMaxUniformStringLength() const;
    /// A hook for checking a uniform's type before setting it; this program
    /// checks nothing and never throws.
    /// @param location the uniform's location
    /// @param type     the GL type expected, GL_FLOAT_VEC3 say
    /// @param count    the least number of elements expected
    void assertActiveUniformType(int location, unsigned int type, unsigned int count) const;
    ///@}

    /// \name Uniforms from bool
    /// bool: glUniform1i..4i with 0 or 1.
    ///@{

    /// Sets the uniform at location from 1 value.
    /// @param location the uniform's location from getUniformLocation(); nUnknownLocation (-1) is ignored by GL
    /// @param x the first component, sent as 1 or 0
    /// @throws Oru::InternalException "Program must be enabled to set uniform parameter" unless this program is current (isEnabled())
    /// @throws Oru::OGL::ExceptionOGL "Program::setUniform: <gluErrorString text>" with checked wrappers on, when GL has an error pending afterwards
    void setUniform(int location, bool x);
    /// Sets the uniform of that name from 1 value.
    /// @param name the uniform's name as in the GLSL source, zero-terminated; a name that is no active uniform gives location nUnknownLocation
    /// @param x the first component, sent as 1 or 0
    /// @throws Oru::InternalException "Program must be enabled to set uniform parameter" unless this program is current (isEnabled())
    /// @throws Oru::OGL::ExceptionOGL "Program::getUniformLocation: <gluErrorString text>" or "Program::setUniform: <gluErrorString text>" with checked wrappers on, when GL has an error pending afterwards
    void setUniform(const char* name, bool x);
    /// Sets the uniform at location from 1 value without checks.
    /// @param location the uniform's location from getUniformLocation(); nUnknownLocation (-1) is skipped
    /// @param x the first component, sent as 1 or 0
    /// @throws Oru::OGL::ExceptionOGL "Program::setUniform_Unsafe: <gluErrorString text>" with checked wrappers on, when GL has an error pending afterwards
    void setUniform_Unsafe(int location, bool x);
    /// Sets the uniform of that name from 1 value without checks.
    /// @param name the uniform's name as in the GLSL source, zero-terminated; a name that is no active uniform gives location nUnknownLocation
    /// @param x the first component, sent as 1 or 0
    /// @throws Oru::OGL::ExceptionOGL "Program::getUniformLocation: <gluErrorString text>" or "Program::setUniform_Unsafe: <gluErrorString text>" with checked wrappers on, when GL has an error pending afterwards
    void setUniform_Unsafe(const char* name, bool x);
    /// Sets the uniform at location from 2 values.
    /// @param location the uniform's location from getUniformLocation(); nUnknownLocation (-1) is ignored by GL
    /// @param x the first component, sent as 1 or 0
    /// @param y the second component, sent as 1 or 0
    /// @throws Oru::InternalException "Program must be enabled to set uniform parameter" unless this program is current (isEnabled())
    /// @throws Oru::OGL::ExceptionOGL "Program::setUniform: <gluErrorString text>" with checked wrappers on, when GL has an error pending afterwards
    void setUniform(int location, bool x, bool y);
    /// Sets the uniform of that name from 2 values.
    /// @param name the uniform's name as in the GLSL source, zero-terminated; a name that is no active uniform gives location nUnknownLocation
    /// @param x the first component, sent as 1 or 0
    /// @param y the second component, sent as 1 or 0
    /// @throws Oru::InternalException "Program must be enabled to set uniform parameter" unless this program is current (isEnabled())
    /// @throws Oru::OGL::ExceptionOGL "Program::getUniformLocation: <gluErrorString text>" or "Program::setUniform: <gluErrorString text>" with checked wrappers on, when GL has an error pending afterwards
    void setUniform(const char* name, bool x, bool y);
    /// Sets the uniform at location from 2 values without checks.
    /// @param location the uniform's location from getUniformLocation(); nUnknownLocation (-1) is skipped
    /// @param x the first component, sent as 1 or 0
    /// @param y the second component, sent as 1 or 0
    /// @throws Oru::OGL::ExceptionOGL "Program::setUniform_Unsafe: <gluErrorString text>" with checked wrappers on, when GL has an error pending afterwards
    void setUniform_Unsafe(int location, bool x, bool y);
    /// Sets the uniform of that name from 2 values without checks.
    /// @param name the uniform's name as in the GLSL source, zero-terminated; a name that is no active uniform gives location nUnknownLocation
    /// @param x the first component, sent as 1 or 0
    /// @param y the second component, sent as 1 or 0
    /// @throws Oru::OGL::ExceptionOGL "Program::getUniformLocation: <gluErrorString text>" or "Program::setUniform_Unsafe: <gluErrorString text>" with checked wrappers on, when GL has an error pending afterwards
    void setUniform_Unsafe(const char* name, bool x, bool y);
    /// Sets the uniform at location from 3 values.
    /// @param location the uniform's location from getUniformLocation(); nUnknownLocation (-1) is ignored by GL
    /// @param x the first component, sent as 1 or 0
    /// @param y the second component, sent as 1 or 0
    /// @param z the third component, sent as 1 or 0
    /// @throws Oru::InternalException "Program must be enabled to set uniform parameter" unless this program is current (isEnabled())
    /// @throws Oru::OGL::ExceptionOGL "Program::setUniform: <gluErrorString text>" with checked wrappers on, when GL has an error pending afterwards
    void setUniform(int location, bool x, bool y, bool z);
    /// Sets the uniform of that name from 3 values.
    /// @param name the uniform's name as in the GLSL source, zero-terminated; a name that is no active uniform gives location nUnknownLocation
    /// @param x the first component, sent as 1 or 0
    /// @param y the second component, sent as 1 or 0
    /// @param z the third component, sent as 1 or 0
    /// @throws Oru::InternalException "Program must be enabled to set uniform parameter" unless this program is current (isEnabled())
    /// @throws Oru::OGL::ExceptionOGL "Program::getUniformLocation: <gluErrorString text>" or "Program::setUniform: <gluErrorString text>" with checked wrappers on, when GL has an error pending afterwards
    void setUniform(const char* name, bool x, bool y, bool z);
    /// Sets the uniform at location from 3 values without checks.
    /// @param location the uniform's location from getUniformLocation(); nUnknownLocation (-1) is skipped
    /// @param x the first component, sent as 1 or 0
    /// @param y the second component, sent as 1 or 0
    /// @param z the third component, sent as 1 or 0
    /// @throws Oru::OGL::ExceptionOGL "Program::setUniform_Unsafe: <gluErrorString text>" with checked wrappers on, when GL has an error pending afterwards
    void setUniform_Unsafe(int location, bool x, bool y, bool z);
    /// Sets the uniform of that name from 3 values without checks.
    /// @param name the uniform's name as in the GLSL source, zero-terminated; a name that is no active uniform gives location nUnknownLocation
    /// @param x the first component, sent as 1 or 0
    /// @param y the second component, sent as 1 or 0
    /// @param z the third component, sent as 1 or 0
    /// @throws Oru::OGL::ExceptionOGL "Program::getUniformLocation: <gluErrorString text>" or "Program::setUniform_Unsafe: <gluErrorString text>" with checked wrappers on, when GL has an error pending afterwards
    void setUniform_Unsafe(const char* name, bool x, bool y, bool z);
    /// Sets the uniform at location from 4 values.
    /// @param location the uniform's location from getUniformLocation(); nUnknownLocation (-1) is ignored by GL
    /// @param x the first component, sent as 1 or 0
    /// @param y the second component, sent as 1 or 0
    /// @param z the third component, sent as 1 or 0
    /// @param w the fourth component, sent as 1 or 0
    /// @throws Oru::InternalException "Program must be enabled to set uniform parameter" unless this program is current (isEnabled())
    /// @throws Oru::OGL::ExceptionOGL "Program::setUniform: <gluErrorString text>" with checked wrappers on, when GL has an error pending afterwards
    void setUniform(int location, bool x, bool y, bool z, bool w);
    /// Sets the uniform of that name from 4 values.
    /// @param name the uniform's name as in the GLSL source, zero-terminated; a name that is no active uniform gives location nUnknownLocation
    /// @param x the first component, sent as 1 or 0
    /// @param y the second component, sent as 1 or 0
    /// @param z the third component, sent as 1 or 0
    /// @param w the fourth component, sent as 1 or 0
    /// @throws Oru::InternalException "Program must be enabled to set uniform parameter" unless this program is current (isEnabled())
    /// @throws Oru::OGL::ExceptionOGL "Program::getUniformLocation: <gluErrorString text>" or "Program::setUniform: <gluErrorString text>" with checked wrappers on, when GL has an error pending afterwards
    void setUniform(const char* name, bool x, bool y, bool z, bool w);
    /// Sets the uniform at location from 4 values without checks.
    /// @param location the uniform's location from getUniformLocation(); nUnknownLocation (-1) is skipped
    /// @param x the first component, sent as 1 or 0
    /// @param y the second component, sent as 1 or 0
    /// @param z the third component, sent as 1 or 0
    /// @param w the fourth component, sent as 1 or 0
    /// @throws Oru::OGL::ExceptionOGL "Program::setUniform_Unsafe: <gluErrorString text>" with checked wrappers on, when GL has an error pending afterwards
    void setUniform_Unsafe(int location, bool x, bool y, bool z, bool w);
    /// Sets the uniform of that name from 4 values without checks.
    /// @param name the uniform's name as in the GLSL source, zero-terminated; a name that is no active uniform gives location nUnknownLocation
    /// @param x the first component, sent as 1 or 0
    /// @param y the second component, sent as 1 or 0
    /// @param z the third component, sent as 1 or 0
    /// @param w the fourth component, sent as 1 or 0
    /// @throws Oru::OGL::ExceptionOGL "Program::getUniformLocation: <gluErrorString text>" or "Program::setUniform_Unsafe: <gluErrorString text>" with checked wrappers on, when GL has an error pending afterwards
    void setUniform_Unsafe(const char* name, bool x, bool y, bool z, bool w);
    ///@}

    /// \name Uniforms from unsigned char
    /// unsigned char: glUniform1i..4i with 0 to 255 (not normalised).
    ///@{

    /// Sets the uniform at location from 1 value.
    /// @param location the uniform's location from getUniformLocation(); nUnknownLocation (-1) is ignored by GL
    /// @param x the first component, sent as 0 to 255, not normalised
    /// @throws Oru::InternalException "Program must be enabled to set uniform parameter" unless this program is current (isEnabled())
    /// @throws Oru::OGL::ExceptionOGL "Program::setUniform: <gluErrorString text>" with checked wrappers on, when GL has an error pending afterwards
    void setUniform(int location, unsigned char x);
    /// Sets the uniform of that name from 1 value.
    /// @param name the uniform's name as in the GLSL source, zero-terminated; a name that is no active uniform gives location nUnknownLocation
    /// @param x the first component, sent as 0 to 255, not normalised
    /// @throws Oru::InternalException "Program must be enabled to set uniform parameter" unless this program is current (isEnabled())
    /// @throws Oru::OGL::ExceptionOGL "Program::getUniformLocation: <gluErrorString text>" or "Program::setUniform: <gluErrorString text>" with checked wrappers on, when GL has an error pending afterwards
    void setUniform(const char* name, unsigned char x);
    /// Sets the uniform at location from 1 value without checks.
    /// @param location the uniform's location from getUniformLocation(); nUnknownLocation (-1) is skipped
    /// @param x the first component, sent as 0 to 255, not normalised
    /// @throws Oru::OGL::ExceptionOGL "Program::setUniform_Unsafe: <gluErrorString text>" with checked wrappers on, when GL has an error pending afterwards
    void setUniform_Unsafe(int location, unsigned char x);
    /// Sets the uniform of that name from 1 value without checks.
    /// @param name the uniform's name as in the GLSL source, zero-terminated; a name that is no active uniform gives location nUnknownLocation
    /// @param x the first component, sent as 0 to 255, not normalised
    /// @throws Oru::OGL::ExceptionOGL "Program::getUniformLocation: <gluErrorString text>" or "Program::setUniform_Unsafe: <gluErrorString text>" with checked wrappers on, when GL has an error pending afterwards
    void setUniform_Unsafe(const char* name, unsigned char x);
    /// Sets the uniform at location from 2 values.
    /// @param location the uniform's location from getUniformLocation(); nUnknownLocation (-1) is ignored by GL
    /// @param x the first component, sent as 0 to 255, not normalised
    /// @param y the second component, sent as 0 to 255, not normalised
    /// @throws Oru::InternalException "Program must be enabled to set uniform parameter" unless this program is current (isEnabled())
    /// @throws Oru::OGL::ExceptionOGL "Program::setUniform: <gluErrorString text>" with checked wrappers on, when GL has an error pending afterwards
    void setUniform(int location, unsigned char x, unsigned char y);
    /// Sets the uniform of that name from 2 values.
    /// @param name the uniform's name as in the GLSL source, zero-terminated; a name that is no active uniform gives location nUnknownLocation
    /// @param x the first component, sent as 0 to 255, not normalised
    /// @param y the second component, sent as 0 to 255, not normalised
    /// @throws Oru::InternalException "Program must be enabled to set uniform parameter" unless this program is current (isEnabled())
    /// @throws Oru::OGL::ExceptionOGL "Program::getUniformLocation: <gluErrorString text>" or "Program::setUniform: <gluErrorString text>" with checked wrappers on, when GL has an error pending afterwards
    void setUniform(const char* name, unsigned char x, unsigned char y);
    /// Sets the uniform at location from 2 values without checks.
    /// @param location the uniform's location from getUniformLocation(); nUnknownLocation (-1) is skipped
    /// @param x the first component, sent as 0 to 255, not normalised
    /// @param y the second component, sent as 0 to 255, not normalised
    /// @throws Oru::OGL::ExceptionOGL "Program::setUniform_Unsafe: <gluErrorString text>" with checked wrappers on, when GL has an error pending afterwards
    void setUniform_Unsafe(int location, unsigned char x, unsigned char y);
    /// Sets the uniform of that name from 2 values without checks.
    /// @param name the uniform's name as in the GLSL source, zero-terminated; a name that is no active uniform gives location nUnknownLocation
    /// @param x the first component, sent as 0 to 255, not normalised
    /// @param y the second component, sent as 0 to 255, not normalised
    /// @throws Oru::OGL::ExceptionOGL "Program::getUniformLocation: <gluErrorString text>" or "Program::setUniform_Unsafe: <gluErrorString text>" with checked wrappers on, when GL has an error pending afterwards
    void setUniform_Unsafe(const char* name, unsigned char x, unsigned char y);
    /// Sets the uniform at location from 3 values.
    /// @param location the uniform's location from getUniformLocation(); nUnknownLocation (-1) is ignored by GL
    /// @param x the first component, sent as 0 to 255, not normalised
    /// @param y the second component, sent as 0 to 255, not normalised
    /// @param z the third component, sent as 0 to 255, not normalised
    /// @throws Oru::InternalException "Program must be enabled to set uniform parameter" unless this program is current (isEnabled())
    /// @throws Oru::OGL::ExceptionOGL "Program::setUniform: <gluErrorString text>" with checked wrappers on, when GL has an error pending afterwards
    void setUniform(int location, unsigned char x, unsigned char y, unsigned char z);
    /// Sets the uniform of that name from 3 values.
    /// @param name the uniform's name as in the GLSL source, zero-terminated; a name that is no active uniform gives location nUnknownLocation
    /// @param x the first component, sent as 0 to 255, not normalised
    /// @param y the second component, sent as 0 to 255, not normalised
    /// @param z the third component, sent as 0 to 255, not normalised
    /// @throws Oru::InternalException "Program must be enabled to set uniform parameter" unless this program is current (isEnabled())
    /// @throws Oru::OGL::ExceptionOGL "Program::getUniformLocation: <gluErrorString text>" or "Program::setUniform: <gluErrorString text>" with checked wrappers on, when GL has an error pending afterwards
    void setUniform(const char* name, unsigned char x, unsigned char y, unsigned char z);
    /// Sets the uniform at location from 3 values without checks.
    /// @param location the uniform's location from getUniformLocation(); nUnknownLocation (-1) is skipped
    /// @param x the first component, sent as 0 to 255, not normalised
    /// @param y the second component, sent as 0 to 255, not normalised
    /// @param z the third component, sent as 0 to 255, not normalised
    /// @throws Oru::OGL::ExceptionOGL "Program::setUniform_Unsafe: <gluErrorString text>" with checked wrappers on, when GL has an error pending afterwards
    void setUniform_Unsafe(int location, unsigned char x, unsigned char y, unsigned char z);
    /// Sets the uniform of that name from 3 values without checks.
    /// @param name the uniform's name as in the GLSL source, zero-terminated; a name that is no active uniform gives location nUnknownLocation
    /// @param x the first component, sent as 0 to 255, not normalised
    /// @param y the second component, sent as 0 to 255, not normalised
    /// @param z the third component, sent as 0 to 255, not normalised
    /// @throws Oru::OGL::ExceptionOGL "Program::getUniformLocation: <gluErrorString text>" or "Program::setUniform_Unsafe: <gluErrorString text>" with checked wrappers on, when GL has an error pending afterwards
    void setUniform_Unsafe(const char* name, unsigned char x, unsigned char y, unsigned char z);
    /// Sets the uniform at location from 4 values.
    /// @param location the uniform's location from getUniformLocation(); nUnknownLocation (-1) is ignored by GL
    /// @param x the first component, sent as 0 to 255, not normalised
    /// @param y the second component, sent as 0 to 255, not normalised
    /// @param z the third component, sent as 0 to 255, not normalised
    /// @param w the fourth component, sent as 0 to 255, not normalised
    /// @throws Oru::InternalException "Program must be enabled to set uniform parameter" unless this program is current (isEnabled())
    /// @throws Oru::OGL::ExceptionOGL "Program::setUniform: <gluErrorString text>" with checked wrappers on, when GL has an error pending afterwards
    void setUniform(int location, unsigned char x, unsigned char y, unsigned char z, unsigned char w);
    /// Sets the uniform of that name from 4 values.
    /// @param name the uniform's name as in the GLSL source, zero-terminated; a name that is no active uniform gives location nUnknownLocation
    /// @param x the first component, sent as 0 to 255, not normalised
    /// @param y the second component, sent as 0 to 255, not normalised
    /// @param z the third component, sent as 0 to 255, not normalised
    /// @param w the fourth component, sent as 0 to 255, not normalised
    /// @throws Oru::InternalException "Program must be enabled to set uniform parameter" unless this program is current (isEnabled())
    /// @throws Oru::OGL::ExceptionOGL "Program::getUniformLocation: <gluErrorString text>" or "Program::setUniform: <gluErrorString text>" with checked wrappers on, when GL has an error pending afterwards
    void setUniform(const char* name, unsigned char x, unsigned char y, unsigned char z, unsigned char w);
    /// Sets the uniform at location from 4 values without checks.
    /// @param location the uniform's location from getUniformLocation(); nUnknownLocation (-1) is skipped
    /// @param x the first component, sent as 0 to 255, not normalised
    /// @param y the second component, sent as 0 to 255, not normalised
    /// @param z the third component, sent as 0 to 255, not normalised
    /// @param w the fourth component, sent as 0 to 255, not normalised
    /// @throws Oru::OGL::ExceptionOGL "Program::setUniform_Unsafe: <gluErrorString text>" with checked wrappers on, when GL has an error pending afterwards
    void setUniform_Unsafe(int location, unsigned char x, unsigned char y, unsigned char z, unsigned char w);
    /// Sets the uniform of that name from 4 values without checks.
    /// @param name the uniform's name as in the GLSL source, zero-terminated; a name that is no active uniform gives location nUnknownLocation
    /// @param x the first component, sent as 0 to 255, not normalised
    /// @param y the second component, sent as 0 to 255, not normalised
    /// @param z the third component, sent as 0 to 255, not normalised
    /// @param w the fourth component, sent as 0 to 255, not normalised
    /// @throws Oru::OGL::ExceptionOGL "Program::getUniformLocation: <gluErrorString text>" or "Program::setUniform_Unsafe: <gluErrorString text>" with checked wrappers on, when GL has an error pending afterwards
    void setUniform_Unsafe(const char* name, unsigned char x, unsigned char y, unsigned char z, unsigned char w);
    ///@}

    /// \name Uniforms from int
    /// int: glUniform1i..4i.
    ///@{

    /// Sets the uniform at location from 1 value.
    /// @param location the uniform's location from getUniformLocation(); nUnknownLocation (-1) is ignored by GL
    /// @param x the first component
    /// @throws Oru::InternalException "Program must be enabled to set uniform parameter" unless this program is current (isEnabled())
    /// @throws Oru::OGL::ExceptionOGL "Program::setUniform: <gluErrorString text>" with checked wrappers on, when GL has an error pending afterwards
    void setUniform(int location, int x);
    /// Sets the uniform of that name from 1 value.
    /// @param name the uniform's name as in the GLSL source, zero-terminated; a name that is no active uniform gives location nUnknownLocation
    /// @param x the first component
    /// @throws Oru::InternalException "Program must be enabled to set uniform parameter" unless this program is current (isEnabled())
    /// @throws Oru::OGL::ExceptionOGL "Program::getUniformLocation: <gluErrorString text>" or "Program::setUniform: <gluErrorString text>" with checked wrappers on, when GL has an error pending afterwards
    void setUniform(const char* name, int x);
    /// Sets the uniform at location from 1 value without checks.
    /// @param location the uniform's location from getUniformLocation(); nUnknownLocation (-1) is skipped
    /// @param x the first component
    /// @throws Oru::OGL::ExceptionOGL "Program::setUniform_Unsafe: <gluErrorString text>" with checked wrappers on, when GL has an error pending afterwards
    void setUniform_Unsafe(int location, int x);
    /// Sets the uniform of that name from 1 value without checks.
    /// @param name the uniform's name as in the GLSL source, zero-terminated; a name that is no active uniform gives location nUnknownLocation
    /// @param x the first component
    /// @throws Oru::OGL::ExceptionOGL "Program::getUniformLocation: <gluErrorString text>" or "Program::setUniform_Unsafe: <gluErrorString text>" with checked wrappers on, when GL has an error pending afterwards
    void setUniform_Unsafe(const char* name, int x);
    /// Sets the uniform at location from 2 values.
    /// @param location the uniform's location from getUniformLocation(); nUnknownLocation (-1) is ignored by GL
    /// @param x the first component
    /// @param y the second component
    /// @throws Oru::InternalException "Program must be enabled to set uniform parameter" unless this program is current (isEnabled())
    /// @throws Oru::OGL::ExceptionOGL "Program::setUniform: <gluErrorString text>" with checked wrappers on, when GL has an error pending afterwards
    void setUniform(int location, int x, int y);
    /// Sets the uniform of that name from 2 values.
    /// @param name the uniform's name as in the GLSL source, zero-terminated; a name that is no active uniform gives location nUnknownLocation
    /// @param x the first component
    /// @param y the second component
    /// @throws Oru::InternalException "Program must be enabled to set uniform parameter" unless this program is current (isEnabled())
    /// @throws Oru::OGL::ExceptionOGL "Program::getUniformLocation: <gluErrorString text>" or "Program::setUniform: <gluErrorString text>" with checked wrappers on, when GL has an error pending afterwards
    void setUniform(const char* name, int x, int y);
    /// Sets the uniform at location from 2 values without checks.
    /// @param location the uniform's location from getUniformLocation(); nUnknownLocation (-1) is skipped
    /// @param x the first component
    /// @param y the second component
    /// @throws Oru::OGL::ExceptionOGL "Program::setUniform_Unsafe: <gluErrorString text>" with checked wrappers on, when GL has an error pending afterwards
    void setUniform_Unsafe(int location, int x, int y);
    /// Sets the uniform of that name from 2 values without checks.
    /// @param name the uniform's name as in the GLSL source, zero-terminated; a name that is no active uniform gives location nUnknownLocation
    /// @param x the first component
    /// @param y the second component
    /// @throws Oru::OGL::ExceptionOGL "Program::getUniformLocation: <gluErrorString text>" or "Program::setUniform_Unsafe: <gluErrorString text>" with checked wrappers on, when GL has an error pending afterwards
    void setUniform_Unsafe(const char* name, int x, int y);
    /// Sets the uniform at location from 3 values.
    /// @param location the uniform's location from getUniformLocation(); nUnknownLocation (-1) is ignored by GL
    /// @param x the first component
    /// @param y the second component
    /// @param z the third component
    /// @throws Oru::InternalException "Program must be enabled to set uniform parameter" unless this program is current (isEnabled())
    /// @throws Oru::OGL::ExceptionOGL "Program::setUniform: <gluErrorString text>" with checked wrappers on, when GL has an error pending afterwards
    void setUniform(int location, int x, int y, int z);
    /// Sets the uniform of that name from 3 values.
    /// @param name the uniform's name as in the GLSL source, zero-terminated; a name that is no active uniform gives location nUnknownLocation
    /// @param x the first component
    /// @param y the second component
    /// @param z the third component
    /// @throws Oru::InternalException "Program must be enabled to set uniform parameter" unless this program is current (isEnabled())
    /// @throws Oru::OGL::ExceptionOGL "Program::getUniformLocation: <gluErrorString text>" or "Program::setUniform: <gluErrorString text>" with checked wrappers on, when GL has an error pending afterwards
    void setUniform(const char* name, int x, int y, int z);
    /// Sets the uniform at location from 3 values without checks.
    /// @param location the uniform's location from getUniformLocation(); nUnknownLocation (-1) is skipped
    /// @param x the first component
    /// @param y the second component
    /// @param z the third component
    /// @throws Oru::OGL::ExceptionOGL "Program::setUniform_Unsafe: <gluErrorString text>" with checked wrappers on, when GL has an error pending afterwards
    void setUniform_Unsafe(int location, int x, int y, int z);
    /// Sets the uniform of that name from 3 values without checks.
    /// @param name the uniform's name as in the GLSL source, zero-terminated; a name that is no active uniform gives location nUnknownLocation
    /// @param x the first component
    /// @param y the second component
    /// @param z the third component
    /// @throws Oru::OGL::ExceptionOGL "Program::getUniformLocation: <gluErrorString text>" or "Program::setUniform_Unsafe: <gluErrorString text>" with checked wrappers on, when GL has an error pending afterwards
    void setUniform_Unsafe(const char* name, int x, int y, int z);
    /// Sets the uniform at location from 4 values.
    /// @param location the uniform's location from getUniformLocation(); nUnknownLocation (-1) is ignored by GL
    /// @param x the first component
    /// @param y the second component
    /// @param z the third component
    /// @param w the fourth component
    /// @throws Oru::InternalException "Program must be enabled to set uniform parameter" unless this program is current (isEnabled())
    /// @throws Oru::OGL::ExceptionOGL "Program::setUniform: <gluErrorString text>" with checked wrappers on, when GL has an error pending afterwards
    void setUniform(int location, int x, int y, int z, int w);
    /// Sets the uniform of that name from 4 values.
    /// @param name the uniform's name as in the GLSL source, zero-terminated; a name that is no active uniform gives location nUnknownLocation
    /// @param x the first component
    /// @param y the second component
    /// @param z the third component
    /// @param w the fourth component
    /// @throws Oru::InternalException "Program must be enabled to set uniform parameter" unless this program is current (isEnabled())
    /// @throws Oru::OGL::ExceptionOGL "Program::getUniformLocation: <gluErrorString text>" or "Program::setUniform: <gluErrorString text>" with checked wrappers on, when GL has an error pending afterwards
    void setUniform(const char* name, int x, int y, int z, int w);
    /// Sets the uniform at location from 4 values without checks.
    /// @param location the uniform's location from getUniformLocation(); nUnknownLocation (-1) is skipped
    /// @param x the first component
    /// @param y the second component
    /// @param z the third component
    /// @param w the fourth component
    /// @throws Oru::OGL::ExceptionOGL "Program::setUniform_Unsafe: <gluErrorString text>" with checked wrappers on, when GL has an error pending afterwards
    void setUniform_Unsafe(int location, int x, int y, int z, int w);
    /// Sets the uniform of that name from 4 values without checks.
    /// @param name the uniform's name as in the GLSL source, zero-terminated; a name that is no active uniform gives location nUnknownLocation
    /// @param x the first component
    /// @param y the second component
    /// @param z the third component
    /// @param w the fourth component
    /// @throws Oru::OGL::ExceptionOGL "Program::getUniformLocation: <gluErrorString text>" or "Program::setUniform_Unsafe: <gluErrorString text>" with checked wrappers on, when GL has an error pending afterwards
    void setUniform_Unsafe(const char* name, int x, int y, int z, int w);
    ///@}

    /// \name Uniforms from float
    /// float: glUniform1f..4f.
    ///@{

    /// Sets the uniform at location from 1 value.
    /// @param location the uniform's location from getUniformLocation(); nUnknownLocation (-1) is ignored by GL
    /// @param x the first component
    /// @throws Oru::InternalException "Program must be enabled to set uniform parameter" unless this program is current (isEnabled())
    /// @throws Oru::OGL::ExceptionOGL "Program::setUniform: <gluErrorString text>" with checked wrappers on, when GL has an error pending afterwards
    void setUniform(int location, float x);
    /// Sets the uniform of that name from 1 value.
    /// @param name the uniform's name as in the GLSL source, zero-terminated; a name that is no active uniform gives location nUnknownLocation
    /// @param x the first component
    /// @throws Oru::InternalException "Program must be enabled to set uniform parameter" unless this program is current (isEnabled())
    /// @throws Oru::OGL::ExceptionOGL "Program::getUniformLocation: <gluErrorString text>" or "Program::setUniform: <gluErrorString text>" with checked wrappers on, when GL has an error pending afterwards
    void setUniform(const char* name, float x);
    /// Sets the uniform at location from 1 value without checks.
    /// @param location the uniform's location from getUniformLocation(); nUnknownLocation (-1) is skipped
    /// @param x the first component
    /// @throws Oru::OGL::ExceptionOGL "Program::setUniform_Unsafe: <gluErrorString text>" with checked wrappers on, when GL has an error pending afterwards
    void setUniform_Unsafe(int location, float x);
    /// Sets the uniform of that name from 1 value without checks.
    /// @param name the uniform's name as in the GLSL source, zero-terminated; a name that is no active uniform gives location nUnknownLocation
    /// @param x the first component
    /// @throws Oru::OGL::ExceptionOGL "Program::getUniformLocation: <gluErrorString text>" or "Program::setUniform_Unsafe: <gluErrorString text>" with checked wrappers on, when GL has an error pending afterwards
    void setUniform_Unsafe(const char* name, float x);
    /// Sets the uniform at location from 2 values.
    /// @param location the uniform's location from getUniformLocation(); nUnknownLocation (-1) is ignored by GL
    /// @param x the first component
    /// @param y the second component
    /// @throws Oru::InternalException "Program must be enabled to set uniform parameter" unless this program is current (isEnabled())
    /// @throws Oru::OGL::ExceptionOGL "Program::setUniform: <gluErrorString text>" with checked wrappers on, when GL has an error pending afterwards
    void setUniform(int location, float x, float y);
    /// Sets the uniform of that name from 2 values.
    /// @param name the uniform's name as in the GLSL source, zero-terminated; a name that is no active uniform gives location nUnknownLocation
    /// @param x the first component
    /// @param y the second component
    /// @throws Oru::InternalException "Program must be enabled to set uniform parameter" unless this program is current (isEnabled())
    /// @throws Oru::OGL::ExceptionOGL "Program::getUniformLocation: <gluErrorString text>" or "Program::setUniform: <gluErrorString text>" with checked wrappers on, when GL has an error pending afterwards
    void setUniform(const char* name, float x, float y);
    /// Sets the uniform at location from 2 values without checks.
    /// @param location the uniform's location from getUniformLocation(); nUnknownLocation (-1) is skipped
    /// @param x the first component
    /// @param y the second component
    /// @throws Oru::OGL::ExceptionOGL "Program::setUniform_Unsafe: <gluErrorString text>" with checked wrappers on, when GL has an error pending afterwards
    void setUniform_Unsafe(int location, float x, float y);
    /// Sets the uniform of that name from 2 values without checks.
    /// @param name the uniform's name as in the GLSL source, zero-terminated; a name that is no active uniform gives location nUnknownLocation
    /// @param x the first component
    /// @param y the second component
    /// @throws Oru::OGL::ExceptionOGL "Program::getUniformLocation: <gluErrorString text>" or "Program::setUniform_Unsafe: <gluErrorString text>" with checked wrappers on, when GL has an error pending afterwards
    void setUniform_Unsafe(const char* name, float x, float y);
    /// Sets the uniform at location from 3 values.
    /// @param location the uniform's location from getUniformLocation(); nUnknownLocation (-1) is ignored by GL
    /// @param x the first component
    /// @param y the second component
    /// @param z the third component
    /// @throws Oru::InternalException "Program must be enabled to set uniform parameter" unless this program is current (isEnabled())
    /// @throws Oru::OGL::ExceptionOGL "Program::setUniform: <gluErrorString text>" with checked wrappers on, when GL has an error pending afterwards
    void setUniform(int location, float x, float y, float z);
    /// Sets the uniform of that name from 3 values.
    /// @param name the uniform's name as in the GLSL source, zero-terminated; a name that is no active uniform gives location nUnknownLocation
    /// @param x the first component
    /// @param y the second component
    /// @param z the third component
    /// @throws Oru::InternalException "Program must be enabled to set uniform parameter" unless this program is current (isEnabled())
    /// @throws Oru::OGL::ExceptionOGL "Program::getUniformLocation: <gluErrorString text>" or "Program::setUniform: <gluErrorString text>" with checked wrappers on, when GL has an error pending afterwards
    void setUniform(const char* name, float x, float y, float z);
    /// Sets the uniform at location from 3 values without checks.
    /// @param location the uniform's location from getUniformLocation(); nUnknownLocation (-1) is skipped
    /// @param x the first component
    /// @param y the second component
    /// @param z the third component
    /// @throws Oru::OGL::ExceptionOGL "Program::setUniform_Unsafe: <gluErrorString text>" with checked wrappers on, when GL has an error pending afterwards
    void setUniform_Unsafe(int location, float x, float y, float z);
    /// Sets the uniform of that name from 3 values without checks.
    /// @param name the uniform's name as in the GLSL source, zero-terminated; a name that is no active uniform gives location nUnknownLocation
    /// @param x the first component
    /// @param y the second component
    /// @param z the third component
    /// @throws Oru::OGL::ExceptionOGL "Program::getUniformLocation: <gluErrorString text>" or "Program::setUniform_Unsafe: <gluErrorString text>" with checked wrappers on, when GL has an error pending afterwards
    void setUniform_Unsafe(const char* name, float x, float y, float z);
    /// Sets the uniform at location from 4 values.
    /// @param location the uniform's location from getUniformLocation(); nUnknownLocation (-1) is ignored by GL
    /// @param x the first component
    /// @param y the second component
    /// @param z the third component
    /// @param w the fourth component
    /// @throws Oru::InternalException "Program must be enabled to set uniform parameter" unless this program is current (isEnabled())
    /// @throws Oru::OGL::ExceptionOGL "Program::setUniform: <gluErrorString text>" with checked wrappers on, when GL has an error pending afterwards
    void setUniform(int location, float x, float y, float z, float w);
    /// Sets the uniform of that name from 4 values.
    /// @param name the uniform's name as in the GLSL source, zero-terminated; a name that is no active uniform gives location nUnknownLocation
    /// @param x the first component
    /// @param y the second component
    /// @param z the third component
    /// @param w the fourth component
    /// @throws Oru::InternalException "Program must be enabled to set uniform parameter" unless this program is current (isEnabled())
    /// @throws Oru::OGL::ExceptionOGL "Program::getUniformLocation: <gluErrorString text>" or "Program::setUniform: <gluErrorString text>" with checked wrappers on, when GL has an error pending afterwards
    void setUniform(const char* name, float x, float y, float z, float w);
    /// Sets the uniform at location from 4 values without checks.
    /// @param location the uniform's location from getUniformLocation(); nUnknownLocation (-1) is skipped
    /// @param x the first component
    /// @param y the second component
    /// @param z the third component
    /// @param w the fourth component
    /// @throws Oru::OGL::ExceptionOGL "Program::setUniform_Unsafe: <gluErrorString text>" with checked wrappers on, when GL has an error pending afterwards
    void setUniform_Unsafe(int location, float x, float y, float z, float w);
    /// Sets the uniform of that name from 4 values without checks.
    /// @param name the uniform's name as in the GLSL source, zero-terminated; a name that is no active uniform gives location nUnknownLocation
    /// @param x the first component
    /// @param y the second component
    /// @param z the third component
    /// @param w the fourth component
    /// @throws Oru::OGL::ExceptionOGL "Program::getUniformLocation: <gluErrorString text>" or "Program::setUniform_Unsafe: <gluErrorString text>" with checked wrappers on, when GL has an error pending afterwards
    void setUniform_Unsafe(const char* name, float x, float y, float z, float w);
    ///@}

    /// \name Sampler uniforms
    /// Samplers: the texture unit, glUniform1i.
    ///@{

    /// Points the 1D sampler at location at a texture unit.
    /// @param location the uniform's location from getUniformLocation(); nUnknownLocation (-1) is ignored by GL
    /// @param unit the texture unit the sampler reads, 0 for GL_TEXTURE0
    /// @throws Oru::InternalException "Program must be enabled to set uniform parameter" unless this program is current (isEnabled())
    /// @throws Oru::OGL::ExceptionOGL "Program::setUniformSampler1D: <gluErrorString text>" with checked wrappers on, when GL has an error pending afterwards
    void setUniformSampler1D(int location, int unit);
    /// Points the 1D sampler of that name at a texture unit.
    /// @param name the uniform's name as in the GLSL source, zero-terminated; a name that is no active uniform gives location nUnknownLocation
    /// @param unit the texture unit the sampler reads, 0 for GL_TEXTURE0
    /// @throws Oru::InternalException "Program must be enabled to set uniform parameter" unless this program is current (isEnabled())
    /// @throws Oru::OGL::ExceptionOGL "Program::getUniformLocation: <gluErrorString text>" or "Program::setUniformSampler1D: <gluErrorString text>" with checked wrappers on, when GL has an error pending afterwards
    void setUniformSampler1D(const char* name, int unit);
    /// Points the 1D sampler at location at a texture unit without checks.
    /// @param location the uniform's location from getUniformLocation(); nUnknownLocation (-1) is skipped
    /// @param unit the texture unit the sampler reads, 0 for GL_TEXTURE0
    /// @throws Oru::OGL::ExceptionOGL "Program::setUniformSampler1D_Unsafe: <gluErrorString text>" with checked wrappers on, when GL has an error pending afterwards
    void setUniformSampler1D_Unsafe(int location, int unit);
    /// Points the 1D sampler of that name at a texture unit without checks.
    /// @param name the uniform's name as in the GLSL source, zero-terminated; a name that is no active uniform gives location nUnknownLocation
    /// @param unit the texture unit the sampler reads, 0 for GL_TEXTURE0
    /// @throws Oru::OGL::ExceptionOGL "Program::getUniformLocation: <gluErrorString text>" or "Program::setUniformSampler1D_Unsafe: <gluErrorString text>" with checked wrappers on, when GL has an error pending afterwards
    void setUniformSampler1D_Unsafe(const char* name, int unit);
    /// Points the 2D sampler at location at a texture unit.
    /// @param location the uniform's location from getUniformLocation(); nUnknownLocation (-1) is ignored by GL
    /// @param unit the texture unit the sampler reads, 0 for GL_TEXTURE0
    /// @throws Oru::InternalException "Program must be enabled to set uniform parameter" unless this program is current (isEnabled())
    /// @throws Oru::OGL::ExceptionOGL "Program::setUniformSampler2D: <gluErrorString text>" with checked wrappers on, when GL has an error pending afterwards
    void setUniformSampler2D(int location, int unit);
    /// Points the 2D sampler of that name at a texture unit.
    /// @param name the uniform's name as in the GLSL source, zero-terminated; a name that is no active uniform gives location nUnknownLocation
    /// @param unit the texture unit the sampler reads, 0 for GL_TEXTURE0
    /// @throws Oru::InternalException "Program must be enabled to set uniform parameter" unless this program is current (isEnabled())
    /// @throws Oru::OGL::ExceptionOGL "Program::getUniformLocation: <gluErrorString text>" or "Program::setUniformSampler2D: <gluErrorString text>" with checked wrappers on, when GL has an error pending afterwards
    void setUniformSampler2D(const char* name, int unit);
    /// Points the 2D sampler at location at a texture unit without checks.
    /// @param location the uniform's location from getUniformLocation(); nUnknownLocation (-1) is skipped
    /// @param unit the texture unit the sampler reads, 0 for GL_TEXTURE0
    /// @throws Oru::OGL::ExceptionOGL "Program::setUniformSampler2D_Unsafe: <gluErrorString text>" with checked wrappers on, when GL has an error pending afterwards
    void setUniformSampler2D_Unsafe(int location, int unit);
    /// Points the 2D sampler of that name at a texture unit without checks.
    /// @param name the uniform's name as in the GLSL source, zero-terminated; a name that is no active uniform gives location nUnknownLocation
    /// @param unit the texture unit the sampler reads, 0 for GL_TEXTURE0
    /// @throws Oru::OGL::ExceptionOGL "Program::getUniformLocation: <gluErrorString text>" or "Program::setUniformSampler2D_Unsafe: <gluErrorString text>" with checked wrappers on, when GL has an error pending afterwards
    void setUniformSampler2D_Unsafe(const char* name, int unit);
    /// Points the 3D sampler at location at a texture unit.
    /// @param location the uniform's location from getUniformLocation(); nUnknownLocation (-1) is ignored by GL
    /// @param unit the texture unit the sampler reads, 0 for GL_TEXTURE0
    /// @throws Oru::InternalException "Program must be enabled to set uniform parameter" unless this program is current (isEnabled())
    /// @throws Oru::OGL::ExceptionOGL "Program::setUniformSampler3D: <gluErrorString text>" with checked wrappers on, when GL has an error pending afterwards
    void setUniformSampler3D(int location, int unit);
    /// Points the 3D sampler of that name at a texture unit.
    /// @param name the uniform's name as in the GLSL source, zero-terminated; a name that is no active uniform gives location nUnknownLocation
    /// @param unit the texture unit the sampler reads, 0 for GL_TEXTURE0
    /// @throws Oru::InternalException "Program must be enabled to set uniform parameter" unless this program is current (isEnabled())
    /// @throws Oru::OGL::ExceptionOGL "Program::getUniformLocation: <gluErrorString text>" or "Program::setUniformSampler3D: <gluErrorString text>" with checked wrappers on, when GL has an error pending afterwards
    void setUniformSampler3D(const char* name, int unit);
    /// Points the 3D sampler at location at a texture unit without checks.
    /// @param location the uniform's location from getUniformLocation(); nUnknownLocation (-1) is skipped
    /// @param unit the texture unit the sampler reads, 0 for GL_TEXTURE0
    /// @throws Oru::OGL::ExceptionOGL "Program::setUniformSampler3D_Unsafe: <gluErrorString text>" with checked wrappers on, when GL has an error pending afterwards
    void setUniformSampler3D_Unsafe(int location, int unit);
    /// Points the 3D sampler of that name at a texture unit without checks.
    /// @param name the uniform's name as in the GLSL source, zero-terminated; a name that is no active uniform gives location nUnknownLocation
    /// @param unit the texture unit the sampler reads, 0 for GL_TEXTURE0
    /// @throws Oru::OGL::ExceptionOGL "Program::getUniformLocation: <gluErrorString text>" or "Program::setUniformSampler3D_Unsafe: <gluErrorString text>" with checked wrappers on, when GL has an error pending afterwards
    void setUniformSampler3D_Unsafe(const char* name, int unit);
    /// Points the 2DRECT sampler at location at a texture unit.
    /// @param location the uniform's location from getUniformLocation(); nUnknownLocation (-1) is ignored by GL
    /// @param unit the texture unit the sampler reads, 0 for GL_TEXTURE0
    /// @throws Oru::InternalException "Program must be enabled to set uniform parameter" unless this program is current (isEnabled())
    /// @throws Oru::OGL::ExceptionOGL "Program::setUniformSampler2DRECT: <gluErrorString text>" with checked wrappers on, when GL has an error pending afterwards
    void setUniformSampler2DRECT(int location, int unit);
    /// Points the 2DRECT sampler of that name at a texture unit.
    /// @param name the uniform's name as in the GLSL source, zero-terminated; a name that is no active uniform gives location nUnknownLocation
    /// @param unit the texture unit the sampler reads, 0 for GL_TEXTURE0
    /// @throws Oru::InternalException "Program must be enabled to set uniform parameter" unless this program is current (isEnabled())
    /// @throws Oru::OGL::ExceptionOGL "Program::getUniformLocation: <gluErrorString text>" or "Program::setUniformSampler2DRECT: <gluErrorString text>" with checked wrappers on, when GL has an error pending afterwards
    void setUniformSampler2DRECT(const char* name, int unit);
    /// Points the 2DRECT sampler at location at a texture unit without checks.
    /// @param location the uniform's location from getUniformLocation(); nUnknownLocation (-1) is skipped
    /// @param unit the texture unit the sampler reads, 0 for GL_TEXTURE0
    /// @throws Oru::OGL::ExceptionOGL "Program::setUniformSampler2DRECT_Unsafe: <gluErrorString text>" with checked wrappers on, when GL has an error pending afterwards
    void setUniformSampler2DRECT_Unsafe(int location, int unit);
    /// Points the 2DRECT sampler of that name at a texture unit without checks.
    /// @param name the uniform's name as in the GLSL source, zero-terminated; a name that is no active uniform gives location nUnknownLocation
    /// @param unit the texture unit the sampler reads, 0 for GL_TEXTURE0
    /// @throws Oru::OGL::ExceptionOGL "Program::getUniformLocation: <gluErrorString text>" or "Program::setUniformSampler2DRECT_Unsafe: <gluErrorString text>" with checked wrappers on, when GL has an error pending afterwards
    void setUniformSampler2DRECT_Unsafe(const char* name, int unit);
    ///@}

    /// \name Matrix uniforms
    /// Matrices: count column-major matrices (row-major with transpose),
    /// glUniformMatrix2fv..4fv. setUniformMatrixN sets one.
    ///@{

    /// Sets count mat2 matrices from location on.
    /// @param location the uniform's location from getUniformLocation(); nUnknownLocation (-1) is ignored by GL
    /// @param count how many matrices to set, 1 or more
    /// @param values 4 floats per matrix, the count matrices one after another, column-major unless transpose; not kept
    /// @param transpose non-zero when values are row-major
    /// @throws Oru::InternalException "Program must be enabled to set uniform parameter" unless this program is current (isEnabled())
    /// @throws Oru::OGL::ExceptionOGL "Program::setUniformMatrices2: <gluErrorString text>" with checked wrappers on, when GL has an error pending afterwards
    void setUniformMatrices2(int location, int count, const float* values, unsigned char transpose);
    /// Sets count mat2 matrices of the uniform array of that name.
    /// @param name the uniform's name as in the GLSL source, zero-terminated; a name that is no active uniform gives location nUnknownLocation
    /// @param count how many matrices to set, 1 or more
    /// @param values 4 floats per matrix, the count matrices one after another, column-major unless transpose; not kept
    /// @param transpose non-zero when values are row-major
    /// @throws Oru::InternalException "Program must be enabled to set uniform parameter" unless this program is current (isEnabled())
    /// @throws Oru::OGL::ExceptionOGL "Program::getUniformLocation: <gluErrorString text>" or "Program::setUniformMatrices2: <gluErrorString text>" with checked wrappers on, when GL has an error pending afterwards
    void setUniformMatrices2(const char* name, int count, const float* values, unsigned char transpose);
    /// Sets count mat2 matrices from location on without checks.
    /// @param location the uniform's location from getUniformLocation(); nUnknownLocation (-1) is skipped
    /// @param count how many matrices to set, 1 or more
    /// @param values 4 floats per matrix, the count matrices one after another, column-major unless transpose; not kept
    /// @param transpose non-zero when values are row-major
    /// @throws Oru::OGL::ExceptionOGL "Program::setUniformMatrices2_Unsafe: <gluErrorString text>" with checked wrappers on, when GL has an error pending afterwards
    void setUniformMatrices2_Unsafe(int location, int count, const float* values, unsigned char transpose);
    /// Sets count mat2 matrices of the uniform array of that name without checks.
    /// @param name the uniform's name as in the GLSL source, zero-terminated; a name that is no active uniform gives location nUnknownLocation
    /// @param count how many matrices to set, 1 or more
    /// @param values 4 floats per matrix, the count matrices one after another, column-major unless transpose; not kept
    /// @param transpose non-zero when values are row-major
    /// @throws Oru::OGL::ExceptionOGL "Program::getUniformLocation: <gluErrorString text>" or "Program::setUniformMatrices2_Unsafe: <gluErrorString text>" with checked wrappers on, when GL has an error pending afterwards
    void setUniformMatrices2_Unsafe(const char* name, int count, const float* values, unsigned char transpose);
    /// Sets count mat3 matrices from location on.
    /// @param location the uniform's location from getUniformLocation(); nUnknownLocation (-1) is ignored by GL
    /// @param count how many matrices to set, 1 or more
    /// @param values 9 floats per matrix, the count matrices one after another, column-major unless transpose; not kept
    /// @param transpose non-zero when values are row-major
    /// @throws Oru::InternalException "Program must be enabled to set uniform parameter" unless this program is current (isEnabled())
    /// @throws Oru::OGL::ExceptionOGL "Program::setUniformMatrices3: <gluErrorString text>" with checked wrappers on, when GL has an error pending afterwards
    void setUniformMatrices3(int location, int count, const float* values, unsigned char transpose);
    /// Sets count mat3 matrices of the uniform array of that name.
    /// @param name the uniform's name as in the GLSL source, zero-terminated; a name that is no active uniform gives location nUnknownLocation
    /// @param count how many matrices to set, 1 or more
    /// @param values 9 floats per matrix, the count matrices one after another, column-major unless transpose; not kept
    /// @param transpose non-zero when values are row-major
    /// @throws Oru::InternalException "Program must be enabled to set uniform parameter" unless this program is current (isEnabled())
    /// @throws Oru::OGL::ExceptionOGL "Program::getUniformLocation: <gluErrorString text>" or "Program::setUniformMatrices3: <gluErrorString text>" with checked wrappers on, when GL has an error pending afterwards
    void setUniformMatrices3(const char* name, int count, const float* values, unsigned char transpose);
    /// Sets count mat3 matrices from location on without checks.
    /// @param location the uniform's location from getUniformLocation(); nUnknownLocation (-1) is skipped
    /// @param count how many matrices to set, 1 or more
    /// @param values 9 floats per matrix, the count matrices one after another, column-major unless transpose; not kept
    /// @param transpose non-zero when values are row-major
    /// @throws Oru::OGL::ExceptionOGL "Program::setUniformMatrices3_Unsafe: <gluErrorString text>" with checked wrappers on, when GL has an error pending afterwards
    void setUniformMatrices3_Unsafe(int location, int count, const float* values, unsigned char transpose);
    /// Sets count mat3 matrices of the uniform array of that name without checks.
    /// @param name the uniform's name as in the GLSL source, zero-terminated; a name that is no active uniform gives location nUnknownLocation
    /// @param count how many matrices to set, 1 or more
    /// @param values 9 floats per matrix, the count matrices one after another, column-major unless transpose; not kept
    /// @param transpose non-zero when values are row-major
    /// @throws Oru::OGL::ExceptionOGL "Program::getUniformLocation: <gluErrorString text>" or "Program::setUniformMatrices3_Unsafe: <gluErrorString text>" with checked wrappers on, when GL has an error pending afterwards
    void setUniformMatrices3_Unsafe(const char* name, int count, const float* values, unsigned char transpose);
    /// Sets count mat4 matrices from location on.
    /// @param location the uniform's location from getUniformLocation(); nUnknownLocation (-1) is ignored by GL
    /// @param count how many matrices to set, 1 or more
    /// @param values 16 floats per matrix, the count matrices one after another, column-major unless transpose; not kept
    /// @param transpose non-zero when values are row-major
    /// @throws Oru::InternalException "Program must be enabled to set uniform parameter" unless this program is current (isEnabled())
    /// @throws Oru::OGL::ExceptionOGL "Program::setUniformMatrices4: <gluErrorString text>" with checked wrappers on, when GL has an error pending afterwards
    void setUniformMatrices4(int location, int count, const float* values, unsigned char transpose);
    /// Sets count mat4 matrices of the uniform array of that name.
    /// @param name the uniform's name as in the GLSL source, zero-terminated; a name that is no active uniform gives location nUnknownLocation
    /// @param count how many matrices to set, 1 or more
    /// @param values 16 floats per matrix, the count matrices one after another, column-major unless transpose; not kept
    /// @param transpose non-zero when values are row-major
    /// @throws Oru::InternalException "Program must be enabled to set uniform parameter" unless this program is current (isEnabled())
    /// @throws Oru::OGL::ExceptionOGL "Program::getUniformLocation: <gluErrorString text>" or "Program::setUniformMatrices4: <gluErrorString text>" with checked wrappers on, when GL has an error pending afterwards
    void setUniformMatrices4(const char* name, int count, const float* values, unsigned char transpose);
    /// Sets count mat4 matrices from location on without checks.
    /// @param location the uniform's location from getUniformLocation(); nUnknownLocation (-1) is skipped
    /// @param count how many matrices to set, 1 or more
    /// @param values 16 floats per matrix, the count matrices one after another, column-major unless transpose; not kept
    /// @param transpose non-zero when values are row-major
    /// @throws Oru::OGL::ExceptionOGL "Program::setUniformMatrices4_Unsafe: <gluErrorString text>" with checked wrappers on, when GL has an error pending afterwards
    void setUniformMatrices4_Unsafe(int location, int count, const float* values, unsigned char transpose);
    /// Sets count mat4 matrices of the uniform array of that name without checks.
    /// @param name the uniform's name as in the GLSL source, zero-terminated; a name that is no active uniform gives location nUnknownLocation
    /// @param count how many matrices to set, 1 or more
    /// @param values 16 floats per matrix, the count matrices one after another, column-major unless transpose; not kept
    /// @param transpose non-zero when values are row-major
    /// @throws Oru::OGL::ExceptionOGL "Program::getUniformLocation: <gluErrorString text>" or "Program::setUniformMatrices4_Unsafe: <gluErrorString text>" with checked wrappers on, when GL has an error pending afterwards
    void setUniformMatrices4_Unsafe(const char* name, int count, const float* values, unsigned char transpose);
    /// Sets the mat2 uniform at location.
    /// @param location the uniform's location from getUniformLocation(); nUnknownLocation (-1) is ignored by GL
    /// @param values 4 floats, column-major unless transpose; not kept
    /// @param transpose non-zero when values are row-major
    /// @throws Oru::InternalException "Program must be enabled to set uniform parameter" unless this program is current (isEnabled())
    /// @throws Oru::OGL::ExceptionOGL "Program::setUniformMatrices2: <gluErrorString text>" with checked wrappers on, when GL has an error pending afterwards
    void setUniformMatrix2(int location, const float* values, unsigned char transpose);
    /// Sets the mat2 uniform of that name.
    /// @param name the uniform's name as in the GLSL source, zero-terminated; a name that is no active uniform gives location nUnknownLocation
    /// @param values 4 floats, column-major unless transpose; not kept
    /// @param transpose non-zero when values are row-major
    /// @throws Oru::InternalException "Program must be enabled to set uniform parameter" unless this program is current (isEnabled())
    /// @throws Oru::OGL::ExceptionOGL "Program::getUniformLocation: <gluErrorString text>" or "Program::setUniformMatrices2: <gluErrorString text>" with checked wrappers on, when GL has an error pending afterwards
    void setUniformMatrix2(const char* name, const float* values, unsigned char transpose);
    /// Sets the mat2 uniform at location without checks.
    /// @param location the uniform's location from getUniformLocation(); nUnknownLocation (-1) is skipped
    /// @param values 4 floats, column-major unless transpose; not kept
    /// @param transpose non-zero when values are row-major
    /// @throws Oru::OGL::ExceptionOGL "Program::setUniformMatrices2_Unsafe: <gluErrorString text>" with checked wrappers on, when GL has an error pending afterwards
    void setUniformMatrix2_Unsafe(int location, const float* values, unsigned char transpose);
    /// Sets the mat2 uniform of that name without checks.
    /// @param name the uniform's name as in the GLSL source, zero-terminated; a name that is no active uniform gives location nUnknownLocation
    /// @param values 4 floats, column-major unless transpose; not kept
    /// @param transpose non-zero when values are row-major
    /// @throws Oru::OGL::ExceptionOGL "Program::getUniformLocation: <gluErrorString text>" or "Program::setUniformMatrices2_Unsafe: <gluErrorString text>" with checked wrappers on, when GL has an error pending afterwards
    void setUniformMatrix2_Unsafe(const char* name, const float* values, unsigned char transpose);
    /// Sets the mat3 uniform at location.
    /// @param location the uniform's location from getUniformLocation(); nUnknownLocation (-1) is ignored by GL
    /// @param values 9 floats, column-major unless transpose; not kept
    /// @param transpose non-zero when values are row-major
    /// @throws Oru::InternalException "Program must be enabled to set uniform parameter" unless this program is current (isEnabled())
    /// @throws Oru::OGL::ExceptionOGL "Program::setUniformMatrices3: <gluErrorString text>" with checked wrappers on, when GL has an error pending afterwards
    void setUniformMatrix3(int location, const float* values, unsigned char transpose);
    /// Sets the mat3 uniform of that name.
    /// @param name the uniform's name as in the GLSL source, zero-terminated; a name that is no active uniform gives location nUnknownLocation
    /// @param values 9 floats, column-major unless transpose; not kept
    /// @param transpose non-zero when values are row-major
    /// @throws Oru::InternalException "Program must be enabled to set uniform parameter" unless this program is current (isEnabled())
    /// @throws Oru::OGL::ExceptionOGL "Program::getUniformLocation: <gluErrorString text>" or "Program::setUniformMatrices3: <gluErrorString text>" with checked wrappers on, when GL has an error pending afterwards
    void setUniformMatrix3(const char* name, const float* values, unsigned char transpose);
    /// Sets the mat3 uniform at location without checks.
    /// @param location the uniform's location from getUniformLocation(); nUnknownLocation (-1) is skipped
    /// @param values 9 floats, column-major unless transpose; not kept
    /// @param transpose non-zero when values are row-major
    /// @throws Oru::OGL::ExceptionOGL "Program::setUniformMatrices3_Unsafe: <gluErrorString text>" with checked wrappers on, when GL has an error pending afterwards
    void setUniformMatrix3_Unsafe(int location, const float* values, unsigned char transpose);
    /// Sets the mat3 uniform of that name without checks.
    /// @param name the uniform's name as in the GLSL source, zero-terminated; a name that is no active uniform gives location nUnknownLocation
    /// @param values 9 floats, column-major unless transpose; not kept
    /// @param transpose non-zero when values are row-major
    /// @throws Oru::OGL::ExceptionOGL "Program::getUniformLocation: <gluErrorString text>" or "Program::setUniformMatrices3_Unsafe: <gluErrorString text>" with checked wrappers on, when GL has an error pending afterwards
    void setUniformMatrix3_Unsafe(const char* name, const float* values, unsigned char transpose);
    /// Sets the mat4 uniform at location.
    /// @param location the uniform's location from getUniformLocation(); nUnknownLocation (-1) is ignored by GL
    /// @param values 16 floats, column-major unless transpose; not kept
    /// @param transpose non-zero when values are row-major
    /// @throws Oru::InternalException "Program must be enabled to set uniform parameter" unless this program is current (isEnabled())
    /// @throws Oru::OGL::ExceptionOGL "Program::setUniformMatrices4: <gluErrorString text>" with checked wrappers on, when GL has an error pending afterwards
    void setUniformMatrix4(int location, const float* values, unsigned char transpose);
    /// Sets the mat4 uniform of that name.
    /// @param name the uniform's name as in the GLSL source, zero-terminated; a name that is no active uniform gives location nUnknownLocation
    /// @param values 16 floats, column-major unless transpose; not kept
    /// @param transpose non-zero when values are row-major
    /// @throws Oru::InternalException "Program must be enabled to set uniform parameter" unless this program is current (isEnabled())
    /// @throws Oru::OGL::ExceptionOGL "Program::getUniformLocation: <gluErrorString text>" or "Program::setUniformMatrices4: <gluErrorString text>" with checked wrappers on, when GL has an error pending afterwards
    void setUniformMatrix4(const char* name, const float* values, unsigned char transpose);
    /// Sets the mat4 uniform at location without checks.
    /// @param location the uniform's location from getUniformLocation(); nUnknownLocation (-1) is skipped
    /// @param values 16 floats, column-major unless transpose; not kept
    /// @param transpose non-zero when values are row-major
    /// @throws Oru::OGL::ExceptionOGL "Program::setUniformMatrices4_Unsafe: <gluErrorString text>" with checked wrappers on, when GL has an error pending afterwards
    void setUniformMatrix4_Unsafe(int location, const float* values, unsigned char transpose);
    /// Sets the mat4 uniform of that name without checks.
    /// @param name the uniform's name as in the GLSL source, zero-terminated; a name that is no active uniform gives location nUnknownLocation
    /// @param values 16 floats, column-major unless transpose; not kept
    /// @param transpose non-zero when values are row-major
    /// @throws Oru::OGL::ExceptionOGL "Program::getUniformLocation: <gluErrorString text>" or "Program::setUniformMatrices4_Unsafe: <gluErrorString text>" with checked wrappers on, when GL has an error pending afterwards
    void setUniformMatrix4_Unsafe(const char* name, const float* values, unsigned char transpose);
    ///@}

    /// \name Uniform arrays
    /// Arrays of count elements of 1 to 4 components, glUniform1iv..4iv and
    /// glUniform1fv..3fv. The checked by-name members do not check that the
    /// program is enabled, the unchecked ones skip -1 only by location and for
    /// int, and setUniform4 with floats uploads vec3 triples (glUniform3fv).
    ///@{

    /// Sets count elements of 1 component at location.
    /// @param location the uniform's location from getUniformLocation(); nUnknownLocation (-1) is ignored by GL
    /// @param count how many elements to set, 1 or more
    /// @param values count ints; not kept
    /// @throws Oru::InternalException "Program must be enabled to set uniform parameter" unless this program is current (isEnabled())
    /// @throws Oru::OGL::ExceptionOGL "Program::setUniform: <gluErrorString text>" with checked wrappers on, when GL has an error pending afterwards
    void setUniform(int location, int count, int* values);
    /// Sets count elements of 1 component of the uniform of that name; does not check that the program is current.
    /// @param name the uniform's name as in the GLSL source, zero-terminated; a name that is no active uniform gives location nUnknownLocation
    /// @param count how many elements to set, 1 or more
    /// @param values count ints; not kept
    /// @throws Oru::OGL::ExceptionOGL "Program::getUniformLocation: <gluErrorString text>" or "Program::setUniform: <gluErrorString text>" with checked wrappers on, when GL has an error pending afterwards
    void setUniform(const char* name, int count, int* values);
    /// Sets count elements of 1 component at location without checks.
    /// @param location the uniform's location from getUniformLocation(); nUnknownLocation (-1) is skipped
    /// @param count how many elements to set, 1 or more
    /// @param values count ints; not kept
    /// @throws Oru::OGL::ExceptionOGL "Program::setUniform_Unsafe: <gluErrorString text>" with checked wrappers on, when GL has an error pending afterwards
    void setUniform_Unsafe(int location, int count, int* values);
    /// Sets count elements of 1 component of the uniform of that name without checks.
    /// @param name the uniform's name as in the GLSL source, zero-terminated; a name that is no active uniform gives location nUnknownLocation
    /// @param count how many elements to set, 1 or more
    /// @param values count ints; not kept
    /// @throws Oru::OGL::ExceptionOGL "Program::getUniformLocation: <gluErrorString text>" or "Program::setUniform_Unsafe: <gluErrorString text>" with checked wrappers on, when GL has an error pending afterwards
    void setUniform_Unsafe(const char* name, int count, int* values);
    /// Sets count elements of 2 components at location.
    /// @param location the uniform's location from getUniformLocation(); nUnknownLocation (-1) is ignored by GL
    /// @param count how many elements to set, 1 or more
    /// @param values count times 2 ints; not kept
    /// @throws Oru::InternalException "Program must be enabled to set uniform parameter" unless this program is current (isEnabled())
    /// @throws Oru::OGL::ExceptionOGL "Program::setUniform2: <gluErrorString text>" with checked wrappers on, when GL has an error pending afterwards
    void setUniform2(int location, int count, int* values);
    /// Sets count elements of 2 components of the uniform of that name; does not check that the program is current.
    /// @param name the uniform's name as in the GLSL source, zero-terminated; a name that is no active uniform gives location nUnknownLocation
    /// @param count how many elements to set, 1 or more
    /// @param values count times 2 ints; not kept
    /// @throws Oru::OGL::ExceptionOGL "Program::getUniformLocation: <gluErrorString text>" or "Program::setUniform2: <gluErrorString text>" with checked wrappers on, when GL has an error pending afterwards
    void setUniform2(const char* name, int count, int* values);
    /// Sets count elements of 2 components at location without checks.
    /// @param location the uniform's location from getUniformLocation(); nUnknownLocation (-1) is skipped
    /// @param count how many elements to set, 1 or more
    /// @param values count times 2 ints; not kept
    /// @throws Oru::OGL::ExceptionOGL "Program::setUniform2_Unsafe: <gluErrorString text>" with checked wrappers on, when GL has an error pending afterwards
    void setUniform2_Unsafe(int location, int count, int* values);
    /// Sets count elements of 2 components of the uniform of that name without checks.
    /// @param name the uniform's name as in the GLSL source, zero-terminated; a name that is no active uniform gives location nUnknownLocation
    /// @param count how many elements to set, 1 or more
    /// @param values count times 2 ints; not kept
    /// @throws Oru::OGL::ExceptionOGL "Program::getUniformLocation: <gluErrorString text>" or "Program::setUniform2_Unsafe: <gluErrorString text>" with checked wrappers on, when GL has an error pending afterwards
    void setUniform2_Unsafe(const char* name, int count, int* values);
    /// Sets count elements of 3 components at location.
    /// @param location the uniform's location from getUniformLocation(); nUnknownLocation (-1) is ignored by GL
    /// @param count how many elements to set, 1 or more
    /// @param values count times 3 ints; not kept
    /// @throws Oru::InternalException "Program must be enabled to set uniform parameter" unless this program is current (isEnabled())
    /// @throws Oru::OGL::ExceptionOGL "Program::setUniform3: <gluErrorString text>" with checked wrappers on, when GL has an error pending afterwards
    void setUniform3(int location, int count, int* values);
    /// Sets count elements of 3 components of the uniform of that name; does not check that the program is current.
    /// @param name the uniform's name as in the GLSL source, zero-terminated; a name that is no active uniform gives location nUnknownLocation
    /// @param count how many elements to set, 1 or more
    /// @param values count times 3 ints; not kept
    /// @throws Oru::OGL::ExceptionOGL "Program::getUniformLocation: <gluErrorString text>" or "Program::setUniform3: <gluErrorString text>" with checked wrappers on, when GL has an error pending afterwards
    void setUniform3(const char* name, int count, int* values);
    /// Sets count elements of 3 components at location without checks.
    /// @param location the uniform's location from getUniformLocation(); nUnknownLocation (-1) is skipped
    /// @param count how many elements to set, 1 or more
    /// @param values count times 3 ints; not kept
    /// @throws Oru::OGL::ExceptionOGL "Program::setUniform3_Unsafe: <gluErrorString text>" with checked wrappers on, when GL has an error pending afterwards
    void setUniform3_Unsafe(int location, int count, int* values);
    /// Sets count elements of 3 components of the uniform of that name without checks.
    /// @param name the uniform's name as in the GLSL source, zero-terminated; a name that is no active uniform gives location nUnknownLocation
    /// @param count how many elements to set, 1 or more
    /// @param values count times 3 ints; not kept
    /// @throws Oru::OGL::ExceptionOGL "Program::getUniformLocation: <gluErrorString text>" or "Program::setUniform3_Unsafe: <gluErrorString text>" with checked wrappers on, when GL has an error pending afterwards
    void setUniform3_Unsafe(const char* name, int count, int* values);
    /// Sets count elements of 4 components at location.
    /// @param location the uniform's location from getUniformLocation(); nUnknownLocation (-1) is ignored by GL
    /// @param count how many elements to set, 1 or more
    /// @param values count times 4 ints; not kept
    /// @throws Oru::InternalException "Program must be enabled to set uniform parameter" unless this program is current (isEnabled())
    /// @throws Oru::OGL::ExceptionOGL "Program::setUniform4: <gluErrorString text>" with checked wrappers on, when GL has an error pending afterwards
    void setUniform4(int location, int count, int* values);
    /// Sets count elements of 4 components of the uniform of that name; does not check that the program is current.
    /// @param name the uniform's name as in the GLSL source, zero-terminated; a name that is no active uniform gives location nUnknownLocation
    /// @param count how many elements to set, 1 or more
    /// @param values count times 4 ints; not kept
    /// @throws Oru::OGL::ExceptionOGL "Program::getUniformLocation: <gluErrorString text>" or "Program::setUniform4: <gluErrorString text>" with checked wrappers on, when GL has an error pending afterwards
    void setUniform4(const char* name, int count, int* values);
    /// Sets count elements of 4 components at location without checks.
    /// @param location the uniform's location from getUniformLocation(); nUnknownLocation (-1) is skipped
    /// @param count how many elements to set, 1 or more
    /// @param values count times 4 ints; not kept
    /// @throws Oru::OGL::ExceptionOGL "Program::setUniform4_Unsafe: <gluErrorString text>" with checked wrappers on, when GL has an error pending afterwards
    void setUniform4_Unsafe(int location, int count, int* values);
    /// Sets count elements of 4 components of the uniform of that name without checks.
    /// @param name the uniform's name as in the GLSL source, zero-terminated; a name that is no active uniform gives location nUnknownLocation
    /// @param count how many elements to set, 1 or more
    /// @param values count times 4 ints; not kept
    /// @throws Oru::OGL::ExceptionOGL "Program::getUniformLocation: <gluErrorString text>" or "Program::setUniform4_Unsafe: <gluErrorString text>" with checked wrappers on, when GL has an error pending afterwards
    void setUniform4_Unsafe(const char* name, int count, int* values);
    /// Sets count elements of 1 component at location.
    /// @param location the uniform's location from getUniformLocation(); nUnknownLocation (-1) is ignored by GL
    /// @param count how many elements to set, 1 or more
    /// @param values count floats; not kept
    /// @throws Oru::InternalException "Program must be enabled to set uniform parameter" unless this program is current (isEnabled())
    /// @throws Oru::OGL::ExceptionOGL "Program::setUniform: <gluErrorString text>" with checked wrappers on, when GL has an error pending afterwards
    void setUniform(int location, int count, float* values);
    /// Sets count elements of 1 component of the uniform of that name; does not check that the program is current.
    /// @param name the uniform's name as in the GLSL source, zero-terminated; a name that is no active uniform gives location nUnknownLocation
    /// @param count how many elements to set, 1 or more
    /// @param values count floats; not kept
    /// @throws Oru::OGL::ExceptionOGL "Program::getUniformLocation: <gluErrorString text>" or "Program::setUniform: <gluErrorString text>" with checked wrappers on, when GL has an error pending afterwards
    void setUniform(const char* name, int count, float* values);
    /// Sets count elements of 1 component at location without checks.
    /// @param location the uniform's location from getUniformLocation(); nUnknownLocation (-1) is ignored by GL
    /// @param count how many elements to set, 1 or more
    /// @param values count floats; not kept
    /// @throws Oru::OGL::ExceptionOGL "Program::setUniform_Unsafe: <gluErrorString text>" with checked wrappers on, when GL has an error pending afterwards
    void setUniform_Unsafe(int location, int count, float* values);
    /// Sets count elements of 1 component of the uniform of that name without checks.
    /// @param name the uniform's name as in the GLSL source, zero-terminated; a name that is no active uniform gives location nUnknownLocation
    /// @param count how many elements to set, 1 or more
    /// @param values count floats; not kept
    /// @throws Oru::OGL::ExceptionOGL "Program::getUniformLocation: <gluErrorString text>" or "Program::setUniform_Unsafe: <gluErrorString text>" with checked wrappers on, when GL has an error pending afterwards
    void setUniform_Unsafe(const char* name, int count, float* values);
    /// Sets count elements of 2 components at location.
    /// @param location the uniform's location from getUniformLocation(); nUnknownLocation (-1) is ignored by GL
    /// @param count how many elements to set, 1 or more
    /// @param values count times 2 floats; not kept
    /// @throws Oru::InternalException "Program must be enabled to set uniform parameter" unless this program is current (isEnabled())
    /// @throws Oru::OGL::ExceptionOGL "Program::setUniform2: <gluErrorString text>" with checked wrappers on, when GL has an error pending afterwards
    void setUniform2(int location, int count, float* values);
    /// Sets count elements of 2 components of the uniform of that name; does not check that the program is current.
    /// @param name the uniform's name as in the GLSL source, zero-terminated; a name that is no active uniform gives location nUnknownLocation
    /// @param count how many elements to set, 1 or more
    /// @param values count times 2 floats; not kept
    /// @throws Oru::OGL::ExceptionOGL "Program::getUniformLocation: <gluErrorString text>" or "Program::setUniform2: <gluErrorString text>" with checked wrappers on, when GL has an error pending afterwards
    void setUniform2(const char* name, int count, float* values);
    /// Sets count elements of 2 components at location without checks.
    /// @param location the uniform's location from getUniformLocation(); nUnknownLocation (-1) is ignored by GL
    /// @param count how many elements to set, 1 or more
    /// @param values count times 2 floats; not kept
    /// @throws Oru::OGL::ExceptionOGL "Program::setUniform2_Unsafe: <gluErrorString text>" with checked wrappers on, when GL has an error pending afterwards
    void setUniform2_Unsafe(int location, int count, float* values);
    /// Sets count elements of 2 components of the uniform of that name without checks.
    /// @param name the uniform's name as in the GLSL source, zero-terminated; a name that is no active uniform gives location nUnknownLocation
    /// @param count how many elements to set, 1 or more
    /// @param values count times 2 floats; not kept
    /// @throws Oru::OGL::ExceptionOGL "Program::getUniformLocation: <gluErrorString text>" or "Program::setUniform2_Unsafe: <gluErrorString text>" with checked wrappers on, when GL has an error pending afterwards
    void setUniform2_Unsafe(const char* name, int count, float* values);
    /// Sets count elements of 3 components at location.
    /// @param location the uniform's location from getUniformLocation(); nUnknownLocation (-1) is ignored by GL
    /// @param count how many elements to set, 1 or more
    /// @param values count times 3 floats; not kept
    /// @throws Oru::InternalException "Program must be enabled to set uniform parameter" unless this program is current (isEnabled())
    /// @throws Oru::OGL::ExceptionOGL "Program::setUniform3: <gluErrorString text>" with checked wrappers on, when GL has an error pending afterwards
    void setUniform3(int location, int count, float* values);
    /// Sets count elements of 3 components of the uniform of that name; does not check that the program is current.
    /// @param name the uniform's name as in the GLSL source, zero-terminated; a name that is no active uniform gives location nUnknownLocation
    /// @param count how many elements to set, 1 or more
    /// @param values count times 3 floats; not kept
    /// @throws Oru::OGL::ExceptionOGL "Program::getUniformLocation: <gluErrorString text>" or "Program::setUniform3: <gluErrorString text>" with checked wrappers on, when GL has an error pending afterwards
    void setUniform3(const char* name, int count, float* values);
    /// Sets count elements of 3 components at location without checks.
    /// @param location the uniform's location from getUniformLocation(); nUnknownLocation (-1) is ignored by GL
    /// @param count how many elements to set, 1 or more
    /// @param values count times 3 floats; not kept
    /// @throws Oru::OGL::ExceptionOGL "Program::setUniform3_Unsafe: <gluErrorString text>" with checked wrappers on, when GL has an error pending afterwards
    void setUniform3_Unsafe(int location, int count, float* values);
    /// Sets count elements of 3 components of the uniform of that name without checks.
    /// @param name the uniform's name as in the GLSL source, zero-terminated; a name that is no active uniform gives location nUnknownLocation
    /// @param count how many elements to set, 1 or more
    /// @param values count times 3 floats; not kept
    /// @throws Oru::OGL::ExceptionOGL "Program::getUniformLocation: <gluErrorString text>" or "Program::setUniform3_Unsafe: <gluErrorString text>" with checked wrappers on, when GL has an error pending afterwards
    void setUniform3_Unsafe(const char* name, int count, float* values);
    /// Sets count elements of 4 components at location.
    /// @param location the uniform's location from getUniformLocation(); nUnknownLocation (-1) is ignored by GL
    /// @param count how many elements to set, 1 or more
    /// @param values count times 3 floats: this member uploads vec3 triples (glUniform3fv); not kept
    /// @throws Oru::InternalException "Program must be enabled to set uniform parameter" unless this program is current (isEnabled())
    /// @throws Oru::OGL::ExceptionOGL "Program::setUniform4: <gluErrorString text>" with checked wrappers on, when GL has an error pending afterwards
    void setUniform4(int location, int count, float* values);
    /// Sets count elements of 4 components of the uniform of that name; does not check that the program is current.
    /// @param name the uniform's name as in the GLSL source, zero-terminated; a name that is no active uniform gives location nUnknownLocation
    /// @param count how many elements to set, 1 or more
    /// @param values count times 3 floats: this member uploads vec3 triples (glUniform3fv); not kept
    /// @throws Oru::OGL::ExceptionOGL "Program::getUniformLocation: <gluErrorString text>" or "Program::setUniform4: <gluErrorString text>" with checked wrappers on, when GL has an error pending afterwards
    void setUniform4(const char* name, int count, float* values);
    /// Sets count elements of 4 components at location without checks.
    /// @param location the uniform's location from getUniformLocation(); nUnknownLocation (-1) is ignored by GL
    /// @param count how many elements to set, 1 or more
    /// @param values count times 3 floats: this member uploads vec3 triples (glUniform3fv); not kept
    /// @throws Oru::OGL::ExceptionOGL "Program::setUniform4_Unsafe: <gluErrorString text>" with checked wrappers on, when GL has an error pending afterwards
    void setUniform4_Unsafe(int location, int count, float* values);
    /// Sets count elements of 4 components of the uniform of that name without checks.
    /// @param name the uniform's name as in the GLSL source, zero-terminated; a name that is no active uniform gives location nUnknownLocation
    /// @param count how many elements to set, 1 or more
    /// @param values count times 3 floats: this member uploads vec3 triples (glUniform3fv); not kept
    /// @throws Oru::OGL::ExceptionOGL "Program::getUniformLocation: <gluErrorString text>" or "Program::setUniform4_Unsafe: <gluErrorString text>" with checked wrappers on, when GL has an error pending afterwards
    void setUniform4_Unsafe(const char* name, int count, float* values);
    ///@}
};

} // namespace OGL
} // namespace Oru

#endif
