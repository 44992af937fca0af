#include "oru_ogl/ogl/Program.h"

#include "oru_ogl/Enforce.h"
#include "oru_ogl/extensionator/ExtensionManager.h"
#include "oru_ogl/ogl/GLConstants.h"
#include "oru_ogl/ogl/WrapperCall.h"
#include "oru_ogl/ogl/WrapperCheck.h"

#include <string>
#include <vector>

// GLSL programs. Like the shaders, they call the OpenGL 2.0 entry points
// through their _cgm pointers (through the chain with the wrappers-through-
// chain option, WrapperCall.h), and leave GL errors to GL unless checked
// wrappers are on (WrapperCheck.h). isEnabled() alone uses the 1.1 glGetIntegerv.

namespace Oru
{
namespace OGL
{

namespace
{

// The lines that this file's checks report; callers match on them. The
// checked uniform setters report each its own line, and one of them a fixed one.
const int kSupportLine = 48;
const int kCreateLine = 50;
const int kDeleteLine = 55;
const int kAttachVertexLine = 80;
const int kAttachFragmentLine = 89;
const int kLinkLogLine = 182;
const int kLinkNoLogLine = 186;
const int kSoftwareLine = 204;
const int kEnableLine = 255;
const int kThreeBoolsByNameLine = 432;
const int kActiveUniformCountLine = 597;
const int kActiveUniformLine = 610;
const int kMaxUniformLengthLine = 626;

const char* const kMustBeEnabled = "Program must be enabled to set uniform parameter";
// The three active-uniform queries share this text on purpose.
const char* const kMustBeLinked = "Program must be linked to get active uniform count";

} // namespace

bool Program::isSupported()
{
    return ExtensionManager::Instance()->isSupported(OPEN_GL_2_0);
}

// The 2.0 check comes before the first GL call: where the manager marked no
// 2.0 (1.x, or 3.0 and later) the entry points may be null. A name of 0 means
// that GL could not create the program (no current context, for one).
Program::Program()
{
    ORU_VERIFY_AT(kSupportLine, Oru::OGL::ExtensionManager::Instance()->isSupported(OPEN_GL_2_0));
    _hObject = ORU_WRAPPER_GL glCreateProgram();
    ORU_VERIFY_AT(kCreateLine, _hObject != 0);
    ORU_CHECK_GL(Program);
}

Program::~Program() noexcept(false)
{
    ORU_VERIFY_AT(kDeleteLine, _hObject != 0);
    ORU_WRAPPER_GL_NOTHROW glDeleteProgram(_hObject);
}

// ---------------------------------------------------------------------------
// Shaders.
// ---------------------------------------------------------------------------

namespace
{

// glGetAttachedShaders is asked for this many names at a time.
const GLsizei kAttachedBatch = 64;
// Typed detaching gives up after this many passes: shaders of the other type
// keep the list non-empty, so the list alone would not end the loop. At most
// kTypedDetachPasses x kAttachedBatch names are examined.
const int kTypedDetachPasses = 4;

} // namespace

// A shader needs source to be attached; whether it compiled is left to
// link(true), which reports the compiler's complaint in the link log.
void Program::attach(VertexShader* shader)
{
    if (!shader->isLoaded())
        ORU_THROW_AT(kAttachVertexLine, "Vertex shader must be loaded before attaching");
    ORU_WRAPPER_GL glAttachShader(_hObject, shader->objectID());
    ORU_CHECK_GL(Program);
}

// The same for the fragment stage; the two stay separate members so that
// the message names the stage the caller got wrong.
void Program::attach(FragmentShader* shader)
{
    if (!shader->isLoaded())
        ORU_THROW_AT(kAttachFragmentLine, "Fragment shader must be loaded before attaching");
    ORU_WRAPPER_GL glAttachShader(_hObject, shader->objectID());
    ORU_CHECK_GL(Program);
}

// GL reports a shader that is not attached as its own error.
void Program::detach(const VertexShader* shader)
{
    ORU_WRAPPER_GL glDetachShader(_hObject, shader->objectID());
    ORU_CHECK_GL(Program);
}

void Program::detach(const FragmentShader* shader)
{
    ORU_WRAPPER_GL glDetachShader(_hObject, shader->objectID());
    ORU_CHECK_GL(Program);
}

// Batch after batch until GL lists none; a deleted shader goes with its detach.
void Program::detachAllShaders()
{
    GLuint names[kAttachedBatch];
    GLsizei count = 0;
    ORU_WRAPPER_GL glGetAttachedShaders(_hObject, kAttachedBatch, &count, names);
    while (count > 0)
    {
        for (GLsizei i = 0; i < count; ++i)
            ORU_WRAPPER_GL glDetachShader(_hObject, names[i]);
        ORU_WRAPPER_GL glGetAttachedShaders(_hObject, kAttachedBatch, &count, names);
    }
    ORU_CHECK_GL(Program);
}

namespace
{

// Each pass sees the first names of the list only, so shaders of the wanted
// type listed behind a full batch of the other type stay attached.
void detachAllOfType(GLuint program, GLenum type)
{
    for (int pass = 0; pass < kTypedDetachPasses; ++pass)
    {
        GLuint names[kAttachedBatch];
        GLsizei count = 0;
        ORU_WRAPPER_GL glGetAttachedShaders(program, kAttachedBatch, &count, names);
        if (count < 1)
            return;
        for (GLsizei i = 0; i < count; ++i)
        {
            GLint shaderType = 0;
            ORU_WRAPPER_GL glGetShaderiv(names[i], GL_SHADER_TYPE, &shaderType);
            if (static_cast<GLenum>(shaderType) == type)
                ORU_WRAPPER_GL glDetachShader(program, names[i]);
        }
    }
}

} // namespace

void Program::detachAllVertexShaders()
{
    detachAllOfType(_hObject, GL_VERTEX_SHADER);
    ORU_CHECK_GL(Program);
}

void Program::detachAllFragmentShaders()
{
    detachAllOfType(_hObject, GL_FRAGMENT_SHADER);
    ORU_CHECK_GL(Program);
}

// ---------------------------------------------------------------------------
// Linking.
// ---------------------------------------------------------------------------

namespace
{

std::string readLog(Program& program, int length)
{
    std::vector<char> log(static_cast<std::size_t>(length) + 1, '\0');
    program.getInfoLog(length, log.data());
    return log.data();
}

} // namespace

// A log of one character holds only its NUL: no text to report.
void Program::link(bool check)
{
    ORU_WRAPPER_GL glLinkProgram(_hObject);
    ORU_CHECK_GL(Program);
    if (!check)
        return;
    if (!isLinked())
    {
        const int length = getInfoLogLength();
        if (length >= 2)
        {
            const std::string log = readLog(*this, length);
            ORU_THROW_AT(kLinkLogLine, "Program Link Error: \n" << log);
        }
        // A driver that fails without a word: the caller still learns that
        // the link failed.
        ORU_THROW_AT(kLinkNoLogLine, "Unknown Program Link Error\n");
    }

    // Linked. Some drivers link a program that their hardware cannot run and
    // say so only in the log, in words such as "Fragment shader(s) linked,
    // vertex shader(s) will run in software"; the program then draws at a
    // fraction of the speed, which for an image-processing pipeline is as bad
    // as no program at all. Such a link counts as failed. Other warnings of a
    // successful link are accepted and their log is dropped. The words are
    // searched case-sensitively, anywhere in the log; a log of length 0 or 1
    // (the NUL alone) is not read. Nothing of the verdict is stored: the next
    // isLinked() asks GL again and still answers true.
    const int length = getInfoLogLength();
    if (length < 2)
        return;
    const std::string log = readLog(*this, length);
    if (log.find("run in software") == std::string::npos)
        return;
    ORU_THROW_AT(kSoftwareLine, "Program Link Error(Falling to Software): \n" << log);
}

// Kept for derived programs that set uniforms right after a link; nothing in
// the layer calls it.
void Program::postLinkInit()
{
}

// Read back every time; the wrapper remembers no link.
bool Program::isLinked() const
{
    GLint status = 0;
    ORU_WRAPPER_GL glGetProgramiv(_hObject, GL_LINK_STATUS, &status);
    ORU_CHECK_GL(Program);
    return status != 0;
}

// Whether the program can run in the current GL state (samplers and units);
// the log says why not. Call it with the textures bound as for drawing.
bool Program::validate() const
{
    ORU_WRAPPER_GL glValidateProgram(_hObject);
    GLint status = 0;
    ORU_WRAPPER_GL glGetProgramiv(_hObject, GL_VALIDATE_STATUS, &status);
    ORU_CHECK_GL(Program);
    return status != 0;
}

// Includes the terminating NUL; 0 while GL holds no log.
int Program::getInfoLogLength() const
{
    GLint length = 0;
    ORU_WRAPPER_GL glGetProgramiv(_hObject, GL_INFO_LOG_LENGTH, &length);
    ORU_CHECK_GL(Program);
    return length;
}

// Writes at most maxLength characters, the NUL included.
void Program::getInfoLog(int maxLength, char* buffer)
{
    ORU_WRAPPER_GL glGetProgramInfoLog(_hObject, maxLength, nullptr, buffer);
    ORU_CHECK_GL(Program);
}

// ---------------------------------------------------------------------------
// Use. One program is current per context; enable() replaces whichever was.
// ---------------------------------------------------------------------------

// A program whose last link failed cannot be made current; GL would refuse
// it with an error of its own, this says why. Relinking a current program
// keeps it current.
void Program::enable()
{
    if (!isLinked())
        ORU_THROW_AT(kEnableLine, "Program must be linked before being enabled");
    ORU_WRAPPER_GL glUseProgram(_hObject);
    ORU_CHECK_GL(Program);
}

// Back to the fixed-function pipeline, whichever program was current.
void Program::disable()
{
    ORU_WRAPPER_GL glUseProgram(0);
    ORU_CHECK_GL(Program);
}

// Asked of GL each time: another wrapper or client code may have changed the
// current program behind this one's back. Names are compared, so a copy of
// this wrapper counts as enabled too.
bool Program::isEnabled() const
{
    GLint current = 0;
    ORU_WRAPPER_GL glGetIntegerv(GL_CURRENT_PROGRAM, &current);
    ORU_CHECK_GL(Program);
    return static_cast<GLuint>(current) == _hObject;
}

// ---------------------------------------------------------------------------
// Loading shaders in one call: what load(), compile(false) and attach() do
// step by step, for the usual program of one vertex and one fragment shader
// given as source text.
// ---------------------------------------------------------------------------

namespace
{

// The wrapper is deleted once the shader is attached: GL keeps an attached
// shader alive, and the program then holds its only reference. A shader that
// could not be attached is deleted before the refusal travels on.
template <class ShaderClass>
void loadAndAttach(Program& program, unsigned int count, const char** strings, int* lengths)
{
    ShaderClass* shader = new ShaderClass();
    try
    {
        shader->load(count, strings, lengths);
        shader->compile(false);
        program.attach(shader);
    }
    catch (...)
    {
        delete shader;
        throw;
    }
    delete shader;
}

} // namespace

// Compile errors are not raised here; they surface at link(true). Source that
// is empty is refused by attach(), and no shader is left behind.
void Program::loadVertexShader(unsigned int count, const char** strings, int* lengths)
{
    loadAndAttach<VertexShader>(*this, count, strings, lengths);
}

void Program::loadFragmentShader(unsigned int count, const char** strings, int* lengths)
{
    loadAndAttach<FragmentShader>(*this, count, strings, lengths);
}

// ---------------------------------------------------------------------------
// Locations and active uniforms, asked of GL every time: a relink may move
// every uniform and attribute. The active-uniform queries refuse a program
// whose last link failed rather than answer with an earlier link's leftovers.
// ---------------------------------------------------------------------------

int Program::getUniformLocation(const char* name) const
{
    const int location = ORU_WRAPPER_GL glGetUniformLocation(_hObject, name);
    ORU_CHECK_GL(Program);
    return location;
}

// Takes effect at the next link.
void Program::setAttributeLocation(unsigned int index, const char* name)
{
    ORU_WRAPPER_GL glBindAttribLocation(_hObject, index, name);
    ORU_CHECK_GL(Program);
}

int Program::getAttributeLocation(const char* name)
{
    const int location = ORU_WRAPPER_GL glGetAttribLocation(_hObject, name);
    ORU_CHECK_GL(Program);
    return location;
}

unsigned int Program::getActiveUniformCount() const
{
    if (!isLinked())
        ORU_THROW_AT(kActiveUniformCountLine, kMustBeLinked);
    GLint count = 0;
    ORU_WRAPPER_GL glGetProgramiv(_hObject, GL_ACTIVE_UNIFORMS, &count);
    ORU_CHECK_GL(Program);
    return static_cast<unsigned int>(count);
}

// Index runs from 0 to getActiveUniformCount() - 1. size is the number of
// elements of an array uniform (1 otherwise), type its GL type such as
// GL_FLOAT_VEC3 or GL_SAMPLER_2D. The name is NUL-terminated within bufSize;
// its length is not passed on.
void Program::getActiveUniform(unsigned int index, int bufSize, int* size, unsigned int* type, char* name) const
{
    if (!isLinked())
        ORU_THROW_AT(kActiveUniformLine, kMustBeLinked);
    ORU_WRAPPER_GL glGetActiveUniform(_hObject, index, bufSize, nullptr, size, type, name);
    ORU_CHECK_GL(Program);
}

// The longest active uniform name with its NUL: a buffer of this size holds
// every name getActiveUniform() gives. Listing the uniforms of a program:
//
//     std::vector<char> name(program.getMaxUniformStringLength());
//     for (unsigned int i = 0; i < program.getActiveUniformCount(); ++i)
//     {
//         int size = 0; unsigned int type = 0;
//         program.getActiveUniform(i, int(name.size()), &size, &type, name.data());
//     }
int Program::getMaxUniformStringLength() const
{
    if (!isLinked())
        ORU_THROW_AT(kMaxUniformLengthLine, kMustBeLinked);
    GLint length = 0;
    ORU_WRAPPER_GL glGetProgramiv(_hObject, GL_ACTIVE_UNIFORM_MAX_LENGTH, &length);
    ORU_CHECK_GL(Program);
    return length;
}

// A hook for checking a uniform's type before setting it; nothing is checked.
void Program::assertActiveUniformType(int /*location*/, unsigned int /*type*/, unsigned int /*count*/) const
{
}

// ---------------------------------------------------------------------------
// Uniform setters.
//
// Why the check: glUniform* acts on the current program, not on this one; a
// setter called while another program is current would silently change that
// program's uniform instead.
//
// Four flavours of every setter:
//   setX(location, ...)          throws unless the program is current, then
//                                calls GL; GL itself ignores location -1;
//   setX(name, ...)              the same check, then the location is looked
//                                up and setX(location, ...) called (so the
//                                check runs twice);
//   setX_Unsafe(location, ...)   no check; location -1 (nUnknownLocation, what
//                                GL gives for a name that is no active
//                                uniform) skips the GL call;
//   setX_Unsafe(name, ...)       looks the location up, then as above.
// The checked members are for setting up; the unchecked ones for loops that
// set many uniforms per frame on a program known to be current, with the
// locations looked up once after the link:
//
//     const int tint = program.getUniformLocation("tint");
//     program.enable();
//     for (each frame)
//         program.setUniform_Unsafe(tint, r, g, b);
//
// Each member below is one line over the core that follows; a checked member
// passes its own line, which its refusal reports. The by-name matrix members
// have no check of their own: they look the location up and leave the check
// to the by-location member. The array setters keep further irregularities,
// all in the table before them.
// ---------------------------------------------------------------------------

namespace
{

// GLSL bool and int uniforms take GLint: a bool as 0 or 1, an unsigned char
// zero-extended (200 stays 200, never normalised, never sign-extended).
GLint glValue(bool value) { return value ? 1 : 0; }
GLint glValue(unsigned char value) { return static_cast<GLint>(value); }
GLint glValue(int value) { return value; }
GLfloat glValue(float value) { return value; }

void upload(GLint l, GLint x) { ORU_WRAPPER_GL glUniform1i(l, x); }
void upload(GLint l, GLint x, GLint y) { ORU_WRAPPER_GL glUniform2i(l, x, y); }
void upload(GLint l, GLint x, GLint y, GLint z) { ORU_WRAPPER_GL glUniform3i(l, x, y, z); }
void upload(GLint l, GLint x, GLint y, GLint z, GLint w) { ORU_WRAPPER_GL glUniform4i(l, x, y, z, w); }
void upload(GLint l, GLfloat x) { ORU_WRAPPER_GL glUniform1f(l, x); }
void upload(GLint l, GLfloat x, GLfloat y) { ORU_WRAPPER_GL glUniform2f(l, x, y); }
void upload(GLint l, GLfloat x, GLfloat y, GLfloat z) { ORU_WRAPPER_GL glUniform3f(l, x, y, z); }
void upload(GLint l, GLfloat x, GLfloat y, GLfloat z, GLfloat w) { ORU_WRAPPER_GL glUniform4f(l, x, y, z, w); }

void requireEnabled(Program const& program, int line)
{
    if (!program.isEnabled())
        detail::raiseInternal(__FILE__, line, kMustBeEnabled);
}

// The flavours, over an upload to a location.
// member names the setter for the GL error check of checked wrappers.
template <class Upload>
void checked(Program const& program, int line, char const* member, GLint location, Upload upload)
{
    requireEnabled(program, line);
    upload(location);
    WrapperCheck::after(__FILE__, __LINE__, "Program", member);
}

template <class Upload>
void checkedByName(Program const& program, int line, char const* member, const char* name, Upload upload)
{
    requireEnabled(program, line);
    checked(program, line, member, program.getUniformLocation(name), upload);
}

template <class Upload>
void unchecked(char const* member, GLint location, Upload upload)
{
    if (location == Program::nUnknownLocation)
        return;
    upload(location);
    WrapperCheck::after(__FILE__, __LINE__, "Program", member);
}

// Uploads of one to four values, converted for GL.
template <class... V>
auto values(V... v)
{
    return [=](GLint location) { upload(location, glValue(v)...); };
}

// Uploads of count matrices through glUniformMatrix*fv, its pointer read at the call (a test may replace it).
auto matrices(void (WrapperCall::*entry)(GLint, GLsizei, GLboolean, const GLfloat*) const, int count,
              const float* values, unsigned char transpose)
{
    return [=](GLint location) { ORU_WRAPPER_GL invoke(entry, location, count, transpose, values); };
}

// The array setters. What callers rely on, kept here on purpose:
//
//   member         int* values     float* values
//   setUniform     glUniform1iv    glUniform1fv
//   setUniform2    glUniform2iv    glUniform2fv
//   setUniform3    glUniform3iv    glUniform3fv
//   setUniform4    glUniform4iv    glUniform3fv  (vec3 triples, not vec4)
//
//   flavour                 checks enabled   skips location -1
//   checked by location     yes              no (GL ignores it)
//   checked by name         no               no
//   unchecked by location   no               with int* values only
//   unchecked by name       no               no
struct ArrayCalls
{
    void (WrapperCall::*ints)(GLint, GLsizei, const GLint*) const;
    void (WrapperCall::*floats)(GLint, GLsizei, const GLfloat*) const;
};
const ArrayCalls kArrayCalls[] = {
    { &WrapperCall::glUniform1iv, &WrapperCall::glUniform1fv },
    { &WrapperCall::glUniform2iv, &WrapperCall::glUniform2fv },
    { &WrapperCall::glUniform3iv, &WrapperCall::glUniform3fv },
    { &WrapperCall::glUniform4iv, &WrapperCall::glUniform3fv },
};

struct ArrayFlavour
{
    bool checksEnabled;
    bool skipsUnknownInts;
};
const ArrayFlavour kCheckedArray = { true, false };
const ArrayFlavour kCheckedArrayByName = { false, false };
const ArrayFlavour kUncheckedArray = { false, true };
const ArrayFlavour kUncheckedArrayByName = { false, false };

bool skipsUnknown(ArrayFlavour const& flavour, GLint const*) { return flavour.skipsUnknownInts; }
bool skipsUnknown(ArrayFlavour const&, GLfloat const*) { return false; }

auto arrayCall(int components, int*) { return kArrayCalls[components - 1].ints; }
auto arrayCall(int components, float*) { return kArrayCalls[components - 1].floats; }

template <class T>
void setArray(Program const& program, ArrayFlavour const& flavour, char const* member, int line, GLint location,
              int components, int count, T* values)
{
    if (flavour.checksEnabled)
        requireEnabled(program, line);
    if (location == Program::nUnknownLocation && skipsUnknown(flavour, values))
        return;
    ORU_WRAPPER_GL invoke(arrayCall(components, values), location, count, values);
    WrapperCheck::after(__FILE__, __LINE__, "Program", member);
}

} // namespace

// clang-format off
void Program::setUniform(int l, bool x) { checked(*this, __LINE__, __func__, l, values(x)); }
void Program::setUniform(const char* n, bool x) { checkedByName(*this, __LINE__, __func__, n, values(x)); }
void Program::setUniform_Unsafe(int l, bool x) { unchecked(__func__, l, values(x)); }
void Program::setUniform_Unsafe(const char* n, bool x) { unchecked(__func__, getUniformLocation(n), values(x)); }
void Program::setUniform(int l, bool x, bool y) { checked(*this, __LINE__, __func__, l, values(x, y)); }
void Program::setUniform(const char* n, bool x, bool y) { checkedByName(*this, __LINE__, __func__, n, values(x, y)); }
void Program::setUniform_Unsafe(int l, bool x, bool y) { unchecked(__func__, l, values(x, y)); }
void Program::setUniform_Unsafe(const char* n, bool x, bool y) { unchecked(__func__, getUniformLocation(n), values(x, y)); }
void Program::setUniform(int l, bool x, bool y, bool z) { checked(*this, __LINE__, __func__, l, values(x, y, z)); }
void Program::setUniform(const char* n, bool x, bool y, bool z) { checkedByName(*this, kThreeBoolsByNameLine, __func__, n, values(x, y, z)); }
void Program::setUniform_Unsafe(int l, bool x, bool y, bool z) { unchecked(__func__, l, values(x, y, z)); }
void Program::setUniform_Unsafe(const char* n, bool x, bool y, bool z) { unchecked(__func__, getUniformLocation(n), values(x, y, z)); }
void Program::setUniform(int l, bool x, bool y, bool z, bool w) { checked(*this, __LINE__, __func__, l, values(x, y, z, w)); }
void Program::setUniform(const char* n, bool x, bool y, bool z, bool w) { checkedByName(*this, __LINE__, __func__, n, values(x, y, z, w)); }
void Program::setUniform_Unsafe(int l, bool x, bool y, bool z, bool w) { unchecked(__func__, l, values(x, y, z, w)); }
void Program::setUniform_Unsafe(const char* n, bool x, bool y, bool z, bool w) { unchecked(__func__, getUniformLocation(n), values(x, y, z, w)); }

void Program::setUniform(int l, unsigned char x) { checked(*this, __LINE__, __func__, l, values(x)); }
void Program::setUniform(const char* n, unsigned char x) { checkedByName(*this, __LINE__, __func__, n, values(x)); }
void Program::setUniform_Unsafe(int l, unsigned char x) { unchecked(__func__, l, values(x)); }
void Program::setUniform_Unsafe(const char* n, unsigned char x) { unchecked(__func__, getUniformLocation(n), values(x)); }
void Program::setUniform(int l, unsigned char x, unsigned char y) { checked(*this, __LINE__, __func__, l, values(x, y)); }
void Program::setUniform(const char* n, unsigned char x, unsigned char y) { checkedByName(*this, __LINE__, __func__, n, values(x, y)); }
void Program::setUniform_Unsafe(int l, unsigned char x, unsigned char y) { unchecked(__func__, l, values(x, y)); }
void Program::setUniform_Unsafe(const char* n, unsigned char x, unsigned char y) { unchecked(__func__, getUniformLocation(n), values(x, y)); }
void Program::setUniform(int l, unsigned char x, unsigned char y, unsigned char z) { checked(*this, __LINE__, __func__, l, values(x, y, z)); }
void Program::setUniform(const char* n, unsigned char x, unsigned char y, unsigned char z) { checkedByName(*this, __LINE__, __func__, n, values(x, y, z)); }
void Program::setUniform_Unsafe(int l, unsigned char x, unsigned char y, unsigned char z) { unchecked(__func__, l, values(x, y, z)); }
void Program::setUniform_Unsafe(const char* n, unsigned char x, unsigned char y, unsigned char z) { unchecked(__func__, getUniformLocation(n), values(x, y, z)); }
void Program::setUniform(int l, unsigned char x, unsigned char y, unsigned char z, unsigned char w) { checked(*this, __LINE__, __func__, l, values(x, y, z, w)); }
void Program::setUniform(const char* n, unsigned char x, unsigned char y, unsigned char z, unsigned char w) { checkedByName(*this, __LINE__, __func__, n, values(x, y, z, w)); }
void Program::setUniform_Unsafe(int l, unsigned char x, unsigned char y, unsigned char z, unsigned char w) { unchecked(__func__, l, values(x, y, z, w)); }
void Program::setUniform_Unsafe(const char* n, unsigned char x, unsigned char y, unsigned char z, unsigned char w) { unchecked(__func__, getUniformLocation(n), values(x, y, z, w)); }

void Program::setUniform(int l, int x) { checked(*this, __LINE__, __func__, l, values(x)); }
void Program::setUniform(const char* n, int x) { checkedByName(*this, __LINE__, __func__, n, values(x)); }
void Program::setUniform_Unsafe(int l, int x) { unchecked(__func__, l, values(x)); }
void Program::setUniform_Unsafe(const char* n, int x) { unchecked(__func__, getUniformLocation(n), values(x)); }
void Program::setUniform(int l, int x, int y) { checked(*this, __LINE__, __func__, l, values(x, y)); }
void Program::setUniform(const char* n, int x, int y) { checkedByName(*this, __LINE__, __func__, n, values(x, y)); }
void Program::setUniform_Unsafe(int l, int x, int y) { unchecked(__func__, l, values(x, y)); }
void Program::setUniform_Unsafe(const char* n, int x, int y) { unchecked(__func__, getUniformLocation(n), values(x, y)); }
void Program::setUniform(int l, int x, int y, int z) { checked(*this, __LINE__, __func__, l, values(x, y, z)); }
void Program::setUniform(const char* n, int x, int y, int z) { checkedByName(*this, __LINE__, __func__, n, values(x, y, z)); }
void Program::setUniform_Unsafe(int l, int x, int y, int z) { unchecked(__func__, l, values(x, y, z)); }
void Program::setUniform_Unsafe(const char* n, int x, int y, int z) { unchecked(__func__, getUniformLocation(n), values(x, y, z)); }
void Program::setUniform(int l, int x, int y, int z, int w) { checked(*this, __LINE__, __func__, l, values(x, y, z, w)); }
void Program::setUniform(const char* n, int x, int y, int z, int w) { checkedByName(*this, __LINE__, __func__, n, values(x, y, z, w)); }
void Program::setUniform_Unsafe(int l, int x, int y, int z, int w) { unchecked(__func__, l, values(x, y, z, w)); }
void Program::setUniform_Unsafe(const char* n, int x, int y, int z, int w) { unchecked(__func__, getUniformLocation(n), values(x, y, z, w)); }

void Program::setUniform(int l, float x) { checked(*this, __LINE__, __func__, l, values(x)); }
void Program::setUniform(const char* n, float x) { checkedByName(*this, __LINE__, __func__, n, values(x)); }
void Program::setUniform_Unsafe(int l, float x) { unchecked(__func__, l, values(x)); }
void Program::setUniform_Unsafe(const char* n, float x) { unchecked(__func__, getUniformLocation(n), values(x)); }
void Program::setUniform(int l, float x, float y) { checked(*this, __LINE__, __func__, l, values(x, y)); }
void Program::setUniform(const char* n, float x, float y) { checkedByName(*this, __LINE__, __func__, n, values(x, y)); }
void Program::setUniform_Unsafe(int l, float x, float y) { unchecked(__func__, l, values(x, y)); }
void Program::setUniform_Unsafe(const char* n, float x, float y) { unchecked(__func__, getUniformLocation(n), values(x, y)); }
void Program::setUniform(int l, float x, float y, float z) { checked(*this, __LINE__, __func__, l, values(x, y, z)); }
void Program::setUniform(const char* n, float x, float y, float z) { checkedByName(*this, __LINE__, __func__, n, values(x, y, z)); }
void Program::setUniform_Unsafe(int l, float x, float y, float z) { unchecked(__func__, l, values(x, y, z)); }
void Program::setUniform_Unsafe(const char* n, float x, float y, float z) { unchecked(__func__, getUniformLocation(n), values(x, y, z)); }
void Program::setUniform(int l, float x, float y, float z, float w) { checked(*this, __LINE__, __func__, l, values(x, y, z, w)); }
void Program::setUniform(const char* n, float x, float y, float z, float w) { checkedByName(*this, __LINE__, __func__, n, values(x, y, z, w)); }
void Program::setUniform_Unsafe(int l, float x, float y, float z, float w) { unchecked(__func__, l, values(x, y, z, w)); }
void Program::setUniform_Unsafe(const char* n, float x, float y, float z, float w) { unchecked(__func__, getUniformLocation(n), values(x, y, z, w)); }

void Program::setUniformSampler1D(int l, int unit) { checked(*this, __LINE__, __func__, l, values(unit)); }
void Program::setUniformSampler1D(const char* n, int unit) { checkedByName(*this, __LINE__, __func__, n, values(unit)); }
void Program::setUniformSampler1D_Unsafe(int l, int unit) { unchecked(__func__, l, values(unit)); }
void Program::setUniformSampler1D_Unsafe(const char* n, int unit) { unchecked(__func__, getUniformLocation(n), values(unit)); }
void Program::setUniformSampler2D(int l, int unit) { checked(*this, __LINE__, __func__, l, values(unit)); }
void Program::setUniformSampler2D(const char* n, int unit) { checkedByName(*this, __LINE__, __func__, n, values(unit)); }
void Program::setUniformSampler2D_Unsafe(int l, int unit) { unchecked(__func__, l, values(unit)); }
void Program::setUniformSampler2D_Unsafe(const char* n, int unit) { unchecked(__func__, getUniformLocation(n), values(unit)); }
void Program::setUniformSampler3D(int l, int unit) { checked(*this, __LINE__, __func__, l, values(unit)); }
void Program::setUniformSampler3D(const char* n, int unit) { checkedByName(*this, __LINE__, __func__, n, values(unit)); }
void Program::setUniformSampler3D_Unsafe(int l, int unit) { unchecked(__func__, l, values(unit)); }
void Program::setUniformSampler3D_Unsafe(const char* n, int unit) { unchecked(__func__, getUniformLocation(n), values(unit)); }
void Program::setUniformSampler2DRECT(int l, int unit) { checked(*this, __LINE__, __func__, l, values(unit)); }
void Program::setUniformSampler2DRECT(const char* n, int unit) { checkedByName(*this, __LINE__, __func__, n, values(unit)); }
void Program::setUniformSampler2DRECT_Unsafe(int l, int unit) { unchecked(__func__, l, values(unit)); }
void Program::setUniformSampler2DRECT_Unsafe(const char* n, int unit) { unchecked(__func__, getUniformLocation(n), values(unit)); }

void Program::setUniformMatrices2(int l, int c, const float* v, unsigned char t) { checked(*this, __LINE__, __func__, l, matrices(&WrapperCall::glUniformMatrix2fv, c, v, t)); }
void Program::setUniformMatrices2(const char* n, int c, const float* v, unsigned char t) { setUniformMatrices2(getUniformLocation(n), c, v, t); }
void Program::setUniformMatrices2_Unsafe(int l, int c, const float* v, unsigned char t) { unchecked(__func__, l, matrices(&WrapperCall::glUniformMatrix2fv, c, v, t)); }
void Program::setUniformMatrices2_Unsafe(const char* n, int c, const float* v, unsigned char t) { setUniformMatrices2_Unsafe(getUniformLocation(n), c, v, t); }
void Program::setUniformMatrices3(int l, int c, const float* v, unsigned char t) { checked(*this, __LINE__, __func__, l, matrices(&WrapperCall::glUniformMatrix3fv, c, v, t)); }
void Program::setUniformMatrices3(const char* n, int c, const float* v, unsigned char t) { setUniformMatrices3(getUniformLocation(n), c, v, t); }
void Program::setUniformMatrices3_Unsafe(int l, int c, const float* v, unsigned char t) { unchecked(__func__, l, matrices(&WrapperCall::glUniformMatrix3fv, c, v, t)); }
void Program::setUniformMatrices3_Unsafe(const char* n, int c, const float* v, unsigned char t) { setUniformMatrices3_Unsafe(getUniformLocation(n), c, v, t); }
void Program::setUniformMatrices4(int l, int c, const float* v, unsigned char t) { checked(*this, __LINE__, __func__, l, matrices(&WrapperCall::glUniformMatrix4fv, c, v, t)); }
void Program::setUniformMatrices4(const char* n, int c, const float* v, unsigned char t) { setUniformMatrices4(getUniformLocation(n), c, v, t); }
void Program::setUniformMatrices4_Unsafe(int l, int c, const float* v, unsigned char t) { unchecked(__func__, l, matrices(&WrapperCall::glUniformMatrix4fv, c, v, t)); }
void Program::setUniformMatrices4_Unsafe(const char* n, int c, const float* v, unsigned char t) { setUniformMatrices4_Unsafe(getUniformLocation(n), c, v, t); }

void Program::setUniformMatrix2(int l, const float* v, unsigned char t) { setUniformMatrices2(l, 1, v, t); }
void Program::setUniformMatrix2(const char* n, const float* v, unsigned char t) { setUniformMatrices2(getUniformLocation(n), 1, v, t); }
void Program::setUniformMatrix2_Unsafe(int l, const float* v, unsigned char t) { setUniformMatrices2_Unsafe(l, 1, v, t); }
void Program::setUniformMatrix2_Unsafe(const char* n, const float* v, unsigned char t) { setUniformMatrices2_Unsafe(getUniformLocation(n), 1, v, t); }
void Program::setUniformMatrix3(int l, const float* v, unsigned char t) { setUniformMatrices3(l, 1, v, t); }
void Program::setUniformMatrix3(const char* n, const float* v, unsigned char t) { setUniformMatrices3(getUniformLocation(n), 1, v, t); }
void Program::setUniformMatrix3_Unsafe(int l, const float* v, unsigned char t) { setUniformMatrices3_Unsafe(l, 1, v, t); }
void Program::setUniformMatrix3_Unsafe(const char* n, const float* v, unsigned char t) { setUniformMatrices3_Unsafe(getUniformLocation(n), 1, v, t); }
void Program::setUniformMatrix4(int l, const float* v, unsigned char t) { setUniformMatrices4(l, 1, v, t); }
void Program::setUniformMatrix4(const char* n, const float* v, unsigned char t) { setUniformMatrices4(getUniformLocation(n), 1, v, t); }
void Program::setUniformMatrix4_Unsafe(int l, const float* v, unsigned char t) { setUniformMatrices4_Unsafe(l, 1, v, t); }
void Program::setUniformMatrix4_Unsafe(const char* n, const float* v, unsigned char t) { setUniformMatrices4_Unsafe(getUniformLocation(n), 1, v, t); }

void Program::setUniform(int l, int c, int* v) { setArray(*this, kCheckedArray, __func__, __LINE__, l, 1, c, v); }
void Program::setUniform(const char* n, int c, int* v) { setArray(*this, kCheckedArrayByName, __func__, 0, getUniformLocation(n), 1, c, v); }
void Program::setUniform_Unsafe(int l, int c, int* v) { setArray(*this, kUncheckedArray, __func__, 0, l, 1, c, v); }
void Program::setUniform_Unsafe(const char* n, int c, int* v) { setArray(*this, kUncheckedArrayByName, __func__, 0, getUniformLocation(n), 1, c, v); }
void Program::setUniform2(int l, int c, int* v) { setArray(*this, kCheckedArray, __func__, __LINE__, l, 2, c, v); }
void Program::setUniform2(const char* n, int c, int* v) { setArray(*this, kCheckedArrayByName, __func__, 0, getUniformLocation(n), 2, c, v); }
void Program::setUniform2_Unsafe(int l, int c, int* v) { setArray(*this, kUncheckedArray, __func__, 0, l, 2, c, v); }
void Program::setUniform2_Unsafe(const char* n, int c, int* v) { setArray(*this, kUncheckedArrayByName, __func__, 0, getUniformLocation(n), 2, c, v); }
void Program::setUniform3(int l, int c, int* v) { setArray(*this, kCheckedArray, __func__, __LINE__, l, 3, c, v); }
void Program::setUniform3(const char* n, int c, int* v) { setArray(*this, kCheckedArrayByName, __func__, 0, getUniformLocation(n), 3, c, v); }
void Program::setUniform3_Unsafe(int l, int c, int* v) { setArray(*this, kUncheckedArray, __func__, 0, l, 3, c, v); }
void Program::setUniform3_Unsafe(const char* n, int c, int* v) { setArray(*this, kUncheckedArrayByName, __func__, 0, getUniformLocation(n), 3, c, v); }
void Program::setUniform4(int l, int c, int* v) { setArray(*this, kCheckedArray, __func__, __LINE__, l, 4, c, v); }
void Program::setUniform4(const char* n, int c, int* v) { setArray(*this, kCheckedArrayByName, __func__, 0, getUniformLocation(n), 4, c, v); }
void Program::setUniform4_Unsafe(int l, int c, int* v) { setArray(*this, kUncheckedArray, __func__, 0, l, 4, c, v); }
void Program::setUniform4_Unsafe(const char* n, int c, int* v) { setArray(*this, kUncheckedArrayByName, __func__, 0, getUniformLocation(n), 4, c, v); }

void Program::setUniform(int l, int c, float* v) { setArray(*this, kCheckedArray, __func__, __LINE__, l, 1, c, v); }
void Program::setUniform(const char* n, int c, float* v) { setArray(*this, kCheckedArrayByName, __func__, 0, getUniformLocation(n), 1, c, v); }
void Program::setUniform_Unsafe(int l, int c, float* v) { setArray(*this, kUncheckedArray, __func__, 0, l, 1, c, v); }
void Program::setUniform_Unsafe(const char* n, int c, float* v) { setArray(*this, kUncheckedArrayByName, __func__, 0, getUniformLocation(n), 1, c, v); }
void Program::setUniform2(int l, int c, float* v) { setArray(*this, kCheckedArray, __func__, __LINE__, l, 2, c, v); }
void Program::setUniform2(const char* n, int c, float* v) { setArray(*this, kCheckedArrayByName, __func__, 0, getUniformLocation(n), 2, c, v); }
void Program::setUniform2_Unsafe(int l, int c, float* v) { setArray(*this, kUncheckedArray, __func__, 0, l, 2, c, v); }
void Program::setUniform2_Unsafe(const char* n, int c, float* v) { setArray(*this, kUncheckedArrayByName, __func__, 0, getUniformLocation(n), 2, c, v); }
void Program::setUniform3(int l, int c, float* v) { setArray(*this, kCheckedArray, __func__, __LINE__, l, 3, c, v); }
void Program::setUniform3(const char* n, int c, float* v) { setArray(*this, kCheckedArrayByName, __func__, 0, getUniformLocation(n), 3, c, v); }
void Program::setUniform3_Unsafe(int l, int c, float* v) { setArray(*this, kUncheckedArray, __func__, 0, l, 3, c, v); }
void Program::setUniform3_Unsafe(const char* n, int c, float* v) { setArray(*this, kUncheckedArrayByName, __func__, 0, getUniformLocation(n), 3, c, v); }
void Program::setUniform4(int l, int c, float* v) { setArray(*this, kCheckedArray, __func__, __LINE__, l, 4, c, v); }
void Program::setUniform4(const char* n, int c, float* v) { setArray(*this, kCheckedArrayByName, __func__, 0, getUniformLocation(n), 4, c, v); }
void Program::setUniform4_Unsafe(int l, int c, float* v) { setArray(*this, kUncheckedArray, __func__, 0, l, 4, c, v); }
void Program::setUniform4_Unsafe(const char* n, int c, float* v) { setArray(*this, kUncheckedArrayByName, __func__, 0, getUniformLocation(n), 4, c, v); }
// clang-format on

} // namespace OGL
} // namespace Oru
