#include "oru_ogl/ogl/Program.h"

#include "oru_ogl/Enforce.h"
#include "oru_ogl/extensionator/EntryPoints.h"
#include "oru_ogl/extensionator/ExtensionManager.h"

#include <string>
#include <vector>

// GLSL programs. Like the shaders, they call the OpenGL 2.0 entry points
// through the _cgm pointers, not through the client's interception chain, and
// leave GL errors to GL. isEnabled() alone uses the 1.1 glGetIntegerv.

namespace Oru
{
namespace OGL
{

namespace
{

const GLenum kFragmentShader = 0x8B30;         // GL_FRAGMENT_SHADER
const GLenum kVertexShader = 0x8B31;           // GL_VERTEX_SHADER
const GLenum kShaderType = 0x8B4F;             // GL_SHADER_TYPE
const GLenum kLinkStatus = 0x8B82;             // GL_LINK_STATUS
const GLenum kValidateStatus = 0x8B83;         // GL_VALIDATE_STATUS
const GLenum kInfoLogLength = 0x8B84;          // GL_INFO_LOG_LENGTH
const GLenum kActiveUniforms = 0x8B86;         // GL_ACTIVE_UNIFORMS
const GLenum kActiveUniformMaxLength = 0x8B87; // GL_ACTIVE_UNIFORM_MAX_LENGTH
const GLenum kCurrentProgram = 0x8B8D;         // GL_CURRENT_PROGRAM

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
    ORU_VERIFY(Oru::OGL::ExtensionManager::Instance()->isSupported(OPEN_GL_2_0));
    _hObject = _cgmCreateProgram();
    ORU_VERIFY(_hObject != 0);
}

Program::~Program() noexcept(false)
{
    ORU_VERIFY(_hObject != 0);
    _cgmDeleteProgram(_hObject);
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
        ORU_THROW("Vertex shader must be loaded before attaching");
    _cgmAttachShader(_hObject, shader->objectID());
}

// The same for the fragment stage; the two stay separate members so that
// the message names the stage the caller got wrong.
void Program::attach(FragmentShader* shader)
{
    if (!shader->isLoaded())
        ORU_THROW("Fragment shader must be loaded before attaching");
    _cgmAttachShader(_hObject, shader->objectID());
}

// GL reports a shader that is not attached as its own error.
void Program::detach(const VertexShader* shader)
{
    _cgmDetachShader(_hObject, shader->objectID());
}

void Program::detach(const FragmentShader* shader)
{
    _cgmDetachShader(_hObject, shader->objectID());
}

// Batch after batch until GL lists none; a deleted shader goes with its detach.
void Program::detachAllShaders()
{
    GLuint names[kAttachedBatch];
    GLsizei count = 0;
    _cgmGetAttachedShaders(_hObject, kAttachedBatch, &count, names);
    while (count > 0)
    {
        for (GLsizei i = 0; i < count; ++i)
            _cgmDetachShader(_hObject, names[i]);
        _cgmGetAttachedShaders(_hObject, kAttachedBatch, &count, names);
    }
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
        _cgmGetAttachedShaders(program, kAttachedBatch, &count, names);
        if (count < 1)
            return;
        for (GLsizei i = 0; i < count; ++i)
        {
            GLint shaderType = 0;
            _cgmGetShaderiv(names[i], kShaderType, &shaderType);
            if (static_cast<GLenum>(shaderType) == type)
                _cgmDetachShader(program, names[i]);
        }
    }
}

} // namespace

void Program::detachAllVertexShaders()
{
    detachAllOfType(_hObject, kVertexShader);
}

void Program::detachAllFragmentShaders()
{
    detachAllOfType(_hObject, kFragmentShader);
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
    _cgmLinkProgram(_hObject);
    if (!check)
        return;
    if (!isLinked())
    {
        const int length = getInfoLogLength();
        if (length >= 2)
        {
            const std::string log = readLog(*this, length);
            ORU_THROW("Program Link Error: \n" << log);
        }
        // A driver that fails without a word: the caller still learns that
        // the link failed.
        ORU_THROW("Unknown Program Link Error\n");
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
    ORU_THROW("Program Link Error(Falling to Software): \n" << log);
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
    _cgmGetProgramiv(_hObject, kLinkStatus, &status);
    return status != 0;
}

// Whether the program can run in the current GL state (samplers and units);
// the log says why not. Call it with the textures bound as for drawing.
bool Program::validate() const
{
    _cgmValidateProgram(_hObject);
    GLint status = 0;
    _cgmGetProgramiv(_hObject, kValidateStatus, &status);
    return status != 0;
}

// Includes the terminating NUL; 0 while GL holds no log.
int Program::getInfoLogLength() const
{
    GLint length = 0;
    _cgmGetProgramiv(_hObject, kInfoLogLength, &length);
    return length;
}

// Writes at most maxLength characters, the NUL included.
void Program::getInfoLog(int maxLength, char* buffer)
{
    _cgmGetProgramInfoLog(_hObject, maxLength, nullptr, buffer);
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
        ORU_THROW("Program must be linked before being enabled");
    _cgmUseProgram(_hObject);
}

// Back to the fixed-function pipeline, whichever program was current.
void Program::disable()
{
    _cgmUseProgram(0);
}

// Asked of GL each time: another wrapper or client code may have changed the
// current program behind this one's back. Names are compared, so a copy of
// this wrapper counts as enabled too.
bool Program::isEnabled() const
{
    GLint current = 0;
    glGetIntegerv(kCurrentProgram, &current);
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
// Uniform setters whose values are converted: bool and unsigned char. The
// setters that pass their values unchanged follow the active-uniform queries.
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
// Deliberate irregularities, kept because callers rely on them:
//   - the by-name matrix members have no check of their own: they look the
//     location up and leave the check to the by-location member;
//   - the checked by-name array members do not check at all;
//   - the unchecked array members skip -1 only by location and only for int
//     values; by name they always call GL;
//   - setUniform4 with float values uploads vec3 triples (glUniform3fv).
// ---------------------------------------------------------------------------

namespace
{

// GLSL bool uniforms (and int ones) take 0 or 1 through glUniform*i.
GLint zeroOrOne(bool value)
{
    return value ? 1 : 0;
}

// 200 stays 200: never normalised to [0, 1], never sign-extended as a char.
GLint zeroExtended(unsigned char value)
{
    return static_cast<GLint>(value);
}

} // namespace

void Program::setUniform(int location, bool x)
{
    if (!isEnabled())
        ORU_THROW(kMustBeEnabled);
    _cgmUniform1i(location, zeroOrOne(x));
}

void Program::setUniform(const char* name, bool x)
{
    if (!isEnabled())
        ORU_THROW(kMustBeEnabled);
    setUniform(getUniformLocation(name), x);
}

void Program::setUniform_Unsafe(int location, bool x)
{
    if (location != nUnknownLocation)
        _cgmUniform1i(location, zeroOrOne(x));
}

void Program::setUniform_Unsafe(const char* name, bool x)
{
    setUniform_Unsafe(getUniformLocation(name), x);
}

void Program::setUniform(int location, bool x, bool y)
{
    if (!isEnabled())
        ORU_THROW(kMustBeEnabled);
    _cgmUniform2i(location, zeroOrOne(x), zeroOrOne(y));
}

void Program::setUniform(const char* name, bool x, bool y)
{
    if (!isEnabled())
        ORU_THROW(kMustBeEnabled);
    setUniform(getUniformLocation(name), x, y);
}

void Program::setUniform_Unsafe(int location, bool x, bool y)
{
    if (location != nUnknownLocation)
        _cgmUniform2i(location, zeroOrOne(x), zeroOrOne(y));
}

void Program::setUniform_Unsafe(const char* name, bool x, bool y)
{
    setUniform_Unsafe(getUniformLocation(name), x, y);
}

void Program::setUniform(int location, bool x, bool y, bool z)
{
    if (!isEnabled())
        ORU_THROW(kMustBeEnabled);
    _cgmUniform3i(location, zeroOrOne(x), zeroOrOne(y), zeroOrOne(z));
}

void Program::setUniform(const char* name, bool x, bool y, bool z)
{
    if (!isEnabled())
        ORU_THROW(kMustBeEnabled);
    setUniform(getUniformLocation(name), x, y, z);
}

void Program::setUniform_Unsafe(int location, bool x, bool y, bool z)
{
    if (location != nUnknownLocation)
        _cgmUniform3i(location, zeroOrOne(x), zeroOrOne(y), zeroOrOne(z));
}

void Program::setUniform_Unsafe(const char* name, bool x, bool y, bool z)
{
    setUniform_Unsafe(getUniformLocation(name), x, y, z);
}

void Program::setUniform(int location, bool x, bool y, bool z, bool w)
{
    if (!isEnabled())
        ORU_THROW(kMustBeEnabled);
    _cgmUniform4i(location, zeroOrOne(x), zeroOrOne(y), zeroOrOne(z), zeroOrOne(w));
}

void Program::setUniform(const char* name, bool x, bool y, bool z, bool w)
{
    if (!isEnabled())
        ORU_THROW(kMustBeEnabled);
    setUniform(getUniformLocation(name), x, y, z, w);
}

void Program::setUniform_Unsafe(int location, bool x, bool y, bool z, bool w)
{
    if (location != nUnknownLocation)
        _cgmUniform4i(location, zeroOrOne(x), zeroOrOne(y), zeroOrOne(z), zeroOrOne(w));
}

void Program::setUniform_Unsafe(const char* name, bool x, bool y, bool z, bool w)
{
    setUniform_Unsafe(getUniformLocation(name), x, y, z, w);
}

void Program::setUniform(int location, unsigned char x)
{
    if (!isEnabled())
        ORU_THROW(kMustBeEnabled);
    _cgmUniform1i(location, zeroExtended(x));
}

void Program::setUniform(const char* name, unsigned char x)
{
    if (!isEnabled())
        ORU_THROW(kMustBeEnabled);
    setUniform(getUniformLocation(name), x);
}

void Program::setUniform_Unsafe(int location, unsigned char x)
{
    if (location != nUnknownLocation)
        _cgmUniform1i(location, zeroExtended(x));
}

void Program::setUniform_Unsafe(const char* name, unsigned char x)
{
    setUniform_Unsafe(getUniformLocation(name), x);
}

void Program::setUniform(int location, unsigned char x, unsigned char y)
{
    if (!isEnabled())
        ORU_THROW(kMustBeEnabled);
    _cgmUniform2i(location, zeroExtended(x), zeroExtended(y));
}

void Program::setUniform(const char* name, unsigned char x, unsigned char y)
{
    if (!isEnabled())
        ORU_THROW(kMustBeEnabled);
    setUniform(getUniformLocation(name), x, y);
}

void Program::setUniform_Unsafe(int location, unsigned char x, unsigned char y)
{
    if (location != nUnknownLocation)
        _cgmUniform2i(location, zeroExtended(x), zeroExtended(y));
}

void Program::setUniform_Unsafe(const char* name, unsigned char x, unsigned char y)
{
    setUniform_Unsafe(getUniformLocation(name), x, y);
}

void Program::setUniform(int location, unsigned char x, unsigned char y, unsigned char z)
{
    if (!isEnabled())
        ORU_THROW(kMustBeEnabled);
    _cgmUniform3i(location, zeroExtended(x), zeroExtended(y), zeroExtended(z));
}

void Program::setUniform(const char* name, unsigned char x, unsigned char y, unsigned char z)
{
    if (!isEnabled())
        ORU_THROW(kMustBeEnabled);
    setUniform(getUniformLocation(name), x, y, z);
}

void Program::setUniform_Unsafe(int location, unsigned char x, unsigned char y, unsigned char z)
{
    if (location != nUnknownLocation)
        _cgmUniform3i(location, zeroExtended(x), zeroExtended(y), zeroExtended(z));
}

void Program::setUniform_Unsafe(const char* name, unsigned char x, unsigned char y, unsigned char z)
{
    setUniform_Unsafe(getUniformLocation(name), x, y, z);
}

void Program::setUniform(int location, unsigned char x, unsigned char y, unsigned char z, unsigned char w)
{
    if (!isEnabled())
        ORU_THROW(kMustBeEnabled);
    _cgmUniform4i(location, zeroExtended(x), zeroExtended(y), zeroExtended(z), zeroExtended(w));
}

void Program::setUniform(const char* name, unsigned char x, unsigned char y, unsigned char z, unsigned char w)
{
    if (!isEnabled())
        ORU_THROW(kMustBeEnabled);
    setUniform(getUniformLocation(name), x, y, z, w);
}

void Program::setUniform_Unsafe(int location, unsigned char x, unsigned char y, unsigned char z, unsigned char w)
{
    if (location != nUnknownLocation)
        _cgmUniform4i(location, zeroExtended(x), zeroExtended(y), zeroExtended(z), zeroExtended(w));
}

void Program::setUniform_Unsafe(const char* name, unsigned char x, unsigned char y, unsigned char z, unsigned char w)
{
    setUniform_Unsafe(getUniformLocation(name), x, y, z, w);
}

// ---------------------------------------------------------------------------
// Locations and active uniforms, asked of GL every time: a relink may move
// every uniform and attribute. The active-uniform queries refuse a program
// whose last link failed rather than answer with an earlier link's leftovers.
// ---------------------------------------------------------------------------

int Program::getUniformLocation(const char* name) const
{
    return _cgmGetUniformLocation(_hObject, name);
}

// Takes effect at the next link.
void Program::setAttributeLocation(unsigned int index, const char* name)
{
    _cgmBindAttribLocation(_hObject, index, name);
}

int Program::getAttributeLocation(const char* name)
{
    return _cgmGetAttribLocation(_hObject, name);
}

unsigned int Program::getActiveUniformCount() const
{
    if (!isLinked())
        ORU_THROW(kMustBeLinked);
    GLint count = 0;
    _cgmGetProgramiv(_hObject, kActiveUniforms, &count);
    return static_cast<unsigned int>(count);
}

// Index runs from 0 to getActiveUniformCount() - 1. size is the number of
// elements of an array uniform (1 otherwise), type its GL type such as
// GL_FLOAT_VEC3 or GL_SAMPLER_2D. The name is NUL-terminated within bufSize;
// its length is not passed on.
void Program::getActiveUniform(unsigned int index, int bufSize, int* size, unsigned int* type, char* name) const
{
    if (!isLinked())
        ORU_THROW(kMustBeLinked);
    _cgmGetActiveUniform(_hObject, index, bufSize, nullptr, size, type, name);
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
        ORU_THROW(kMustBeLinked);
    GLint length = 0;
    _cgmGetProgramiv(_hObject, kActiveUniformMaxLength, &length);
    return length;
}

// A hook for checking a uniform's type before setting it; nothing is checked.
void Program::assertActiveUniformType(int /*location*/, unsigned int /*type*/, unsigned int /*count*/) const
{
}

// ---------------------------------------------------------------------------
// Uniform setters passing their values unchanged: int, float, samplers,
// matrices and arrays, in the four flavours told above.
// ---------------------------------------------------------------------------

// int.

void Program::setUniform(int location, int x)
{
    if (!isEnabled())
        ORU_THROW(kMustBeEnabled);
    _cgmUniform1i(location, x);
}

void Program::setUniform(const char* name, int x)
{
    if (!isEnabled())
        ORU_THROW(kMustBeEnabled);
    setUniform(getUniformLocation(name), x);
}

void Program::setUniform_Unsafe(int location, int x)
{
    if (location != nUnknownLocation)
        _cgmUniform1i(location, x);
}

void Program::setUniform_Unsafe(const char* name, int x)
{
    setUniform_Unsafe(getUniformLocation(name), x);
}

void Program::setUniform(int location, int x, int y)
{
    if (!isEnabled())
        ORU_THROW(kMustBeEnabled);
    _cgmUniform2i(location, x, y);
}

void Program::setUniform(const char* name, int x, int y)
{
    if (!isEnabled())
        ORU_THROW(kMustBeEnabled);
    setUniform(getUniformLocation(name), x, y);
}

void Program::setUniform_Unsafe(int location, int x, int y)
{
    if (location != nUnknownLocation)
        _cgmUniform2i(location, x, y);
}

void Program::setUniform_Unsafe(const char* name, int x, int y)
{
    setUniform_Unsafe(getUniformLocation(name), x, y);
}

void Program::setUniform(int location, int x, int y, int z)
{
    if (!isEnabled())
        ORU_THROW(kMustBeEnabled);
    _cgmUniform3i(location, x, y, z);
}

void Program::setUniform(const char* name, int x, int y, int z)
{
    if (!isEnabled())
        ORU_THROW(kMustBeEnabled);
    setUniform(getUniformLocation(name), x, y, z);
}

void Program::setUniform_Unsafe(int location, int x, int y, int z)
{
    if (location != nUnknownLocation)
        _cgmUniform3i(location, x, y, z);
}

void Program::setUniform_Unsafe(const char* name, int x, int y, int z)
{
    setUniform_Unsafe(getUniformLocation(name), x, y, z);
}

void Program::setUniform(int location, int x, int y, int z, int w)
{
    if (!isEnabled())
        ORU_THROW(kMustBeEnabled);
    _cgmUniform4i(location, x, y, z, w);
}

void Program::setUniform(const char* name, int x, int y, int z, int w)
{
    if (!isEnabled())
        ORU_THROW(kMustBeEnabled);
    setUniform(getUniformLocation(name), x, y, z, w);
}

void Program::setUniform_Unsafe(int location, int x, int y, int z, int w)
{
    if (location != nUnknownLocation)
        _cgmUniform4i(location, x, y, z, w);
}

void Program::setUniform_Unsafe(const char* name, int x, int y, int z, int w)
{
    setUniform_Unsafe(getUniformLocation(name), x, y, z, w);
}

// float.

void Program::setUniform(int location, float x)
{
    if (!isEnabled())
        ORU_THROW(kMustBeEnabled);
    _cgmUniform1f(location, x);
}

void Program::setUniform(const char* name, float x)
{
    if (!isEnabled())
        ORU_THROW(kMustBeEnabled);
    setUniform(getUniformLocation(name), x);
}

void Program::setUniform_Unsafe(int location, float x)
{
    if (location != nUnknownLocation)
        _cgmUniform1f(location, x);
}

void Program::setUniform_Unsafe(const char* name, float x)
{
    setUniform_Unsafe(getUniformLocation(name), x);
}

void Program::setUniform(int location, float x, float y)
{
    if (!isEnabled())
        ORU_THROW(kMustBeEnabled);
    _cgmUniform2f(location, x, y);
}

void Program::setUniform(const char* name, float x, float y)
{
    if (!isEnabled())
        ORU_THROW(kMustBeEnabled);
    setUniform(getUniformLocation(name), x, y);
}

void Program::setUniform_Unsafe(int location, float x, float y)
{
    if (location != nUnknownLocation)
        _cgmUniform2f(location, x, y);
}

void Program::setUniform_Unsafe(const char* name, float x, float y)
{
    setUniform_Unsafe(getUniformLocation(name), x, y);
}

void Program::setUniform(int location, float x, float y, float z)
{
    if (!isEnabled())
        ORU_THROW(kMustBeEnabled);
    _cgmUniform3f(location, x, y, z);
}

void Program::setUniform(const char* name, float x, float y, float z)
{
    if (!isEnabled())
        ORU_THROW(kMustBeEnabled);
    setUniform(getUniformLocation(name), x, y, z);
}

void Program::setUniform_Unsafe(int location, float x, float y, float z)
{
    if (location != nUnknownLocation)
        _cgmUniform3f(location, x, y, z);
}

void Program::setUniform_Unsafe(const char* name, float x, float y, float z)
{
    setUniform_Unsafe(getUniformLocation(name), x, y, z);
}

void Program::setUniform(int location, float x, float y, float z, float w)
{
    if (!isEnabled())
        ORU_THROW(kMustBeEnabled);
    _cgmUniform4f(location, x, y, z, w);
}

void Program::setUniform(const char* name, float x, float y, float z, float w)
{
    if (!isEnabled())
        ORU_THROW(kMustBeEnabled);
    setUniform(getUniformLocation(name), x, y, z, w);
}

void Program::setUniform_Unsafe(int location, float x, float y, float z, float w)
{
    if (location != nUnknownLocation)
        _cgmUniform4f(location, x, y, z, w);
}

void Program::setUniform_Unsafe(const char* name, float x, float y, float z, float w)
{
    setUniform_Unsafe(getUniformLocation(name), x, y, z, w);
}

// Samplers: the number of the texture unit, whatever the sampler's kind.

void Program::setUniformSampler1D(int location, int unit)
{
    if (!isEnabled())
        ORU_THROW(kMustBeEnabled);
    _cgmUniform1i(location, unit);
}

void Program::setUniformSampler1D(const char* name, int unit)
{
    if (!isEnabled())
        ORU_THROW(kMustBeEnabled);
    setUniformSampler1D(getUniformLocation(name), unit);
}

void Program::setUniformSampler1D_Unsafe(int location, int unit)
{
    if (location != nUnknownLocation)
        _cgmUniform1i(location, unit);
}

void Program::setUniformSampler1D_Unsafe(const char* name, int unit)
{
    setUniformSampler1D_Unsafe(getUniformLocation(name), unit);
}

void Program::setUniformSampler2D(int location, int unit)
{
    if (!isEnabled())
        ORU_THROW(kMustBeEnabled);
    _cgmUniform1i(location, unit);
}

void Program::setUniformSampler2D(const char* name, int unit)
{
    if (!isEnabled())
        ORU_THROW(kMustBeEnabled);
    setUniformSampler2D(getUniformLocation(name), unit);
}

void Program::setUniformSampler2D_Unsafe(int location, int unit)
{
    if (location != nUnknownLocation)
        _cgmUniform1i(location, unit);
}

void Program::setUniformSampler2D_Unsafe(const char* name, int unit)
{
    setUniformSampler2D_Unsafe(getUniformLocation(name), unit);
}

void Program::setUniformSampler3D(int location, int unit)
{
    if (!isEnabled())
        ORU_THROW(kMustBeEnabled);
    _cgmUniform1i(location, unit);
}

void Program::setUniformSampler3D(const char* name, int unit)
{
    if (!isEnabled())
        ORU_THROW(kMustBeEnabled);
    setUniformSampler3D(getUniformLocation(name), unit);
}

void Program::setUniformSampler3D_Unsafe(int location, int unit)
{
    if (location != nUnknownLocation)
        _cgmUniform1i(location, unit);
}

void Program::setUniformSampler3D_Unsafe(const char* name, int unit)
{
    setUniformSampler3D_Unsafe(getUniformLocation(name), unit);
}

void Program::setUniformSampler2DRECT(int location, int unit)
{
    if (!isEnabled())
        ORU_THROW(kMustBeEnabled);
    _cgmUniform1i(location, unit);
}

void Program::setUniformSampler2DRECT(const char* name, int unit)
{
    if (!isEnabled())
        ORU_THROW(kMustBeEnabled);
    setUniformSampler2DRECT(getUniformLocation(name), unit);
}

void Program::setUniformSampler2DRECT_Unsafe(int location, int unit)
{
    if (location != nUnknownLocation)
        _cgmUniform1i(location, unit);
}

void Program::setUniformSampler2DRECT_Unsafe(const char* name, int unit)
{
    setUniformSampler2DRECT_Unsafe(getUniformLocation(name), unit);
}

// Matrices. The by-name members look the location up first and leave the
// check to the by-location member; one matrix is an array of one.

void Program::setUniformMatrices2(int location, int count, const float* values, unsigned char transpose)
{
    if (!isEnabled())
        ORU_THROW(kMustBeEnabled);
    _cgmUniformMatrix2fv(location, count, transpose, values);
}

void Program::setUniformMatrices2(const char* name, int count, const float* values, unsigned char transpose)
{
    setUniformMatrices2(getUniformLocation(name), count, values, transpose);
}

void Program::setUniformMatrices2_Unsafe(int location, int count, const float* values, unsigned char transpose)
{
    if (location != nUnknownLocation)
        _cgmUniformMatrix2fv(location, count, transpose, values);
}

void Program::setUniformMatrices2_Unsafe(const char* name, int count, const float* values, unsigned char transpose)
{
    setUniformMatrices2_Unsafe(getUniformLocation(name), count, values, transpose);
}

void Program::setUniformMatrices3(int location, int count, const float* values, unsigned char transpose)
{
    if (!isEnabled())
        ORU_THROW(kMustBeEnabled);
    _cgmUniformMatrix3fv(location, count, transpose, values);
}

void Program::setUniformMatrices3(const char* name, int count, const float* values, unsigned char transpose)
{
    setUniformMatrices3(getUniformLocation(name), count, values, transpose);
}

void Program::setUniformMatrices3_Unsafe(int location, int count, const float* values, unsigned char transpose)
{
    if (location != nUnknownLocation)
        _cgmUniformMatrix3fv(location, count, transpose, values);
}

void Program::setUniformMatrices3_Unsafe(const char* name, int count, const float* values, unsigned char transpose)
{
    setUniformMatrices3_Unsafe(getUniformLocation(name), count, values, transpose);
}

void Program::setUniformMatrices4(int location, int count, const float* values, unsigned char transpose)
{
    if (!isEnabled())
        ORU_THROW(kMustBeEnabled);
    _cgmUniformMatrix4fv(location, count, transpose, values);
}

void Program::setUniformMatrices4(const char* name, int count, const float* values, unsigned char transpose)
{
    setUniformMatrices4(getUniformLocation(name), count, values, transpose);
}

void Program::setUniformMatrices4_Unsafe(int location, int count, const float* values, unsigned char transpose)
{
    if (location != nUnknownLocation)
        _cgmUniformMatrix4fv(location, count, transpose, values);
}

void Program::setUniformMatrices4_Unsafe(const char* name, int count, const float* values, unsigned char transpose)
{
    setUniformMatrices4_Unsafe(getUniformLocation(name), count, values, transpose);
}

void Program::setUniformMatrix2(int location, const float* values, unsigned char transpose)
{
    setUniformMatrices2(location, 1, values, transpose);
}

void Program::setUniformMatrix2(const char* name, const float* values, unsigned char transpose)
{
    setUniformMatrices2(getUniformLocation(name), 1, values, transpose);
}

void Program::setUniformMatrix2_Unsafe(int location, const float* values, unsigned char transpose)
{
    setUniformMatrices2_Unsafe(location, 1, values, transpose);
}

void Program::setUniformMatrix2_Unsafe(const char* name, const float* values, unsigned char transpose)
{
    setUniformMatrices2_Unsafe(getUniformLocation(name), 1, values, transpose);
}

void Program::setUniformMatrix3(int location, const float* values, unsigned char transpose)
{
    setUniformMatrices3(location, 1, values, transpose);
}

void Program::setUniformMatrix3(const char* name, const float* values, unsigned char transpose)
{
    setUniformMatrices3(getUniformLocation(name), 1, values, transpose);
}

void Program::setUniformMatrix3_Unsafe(int location, const float* values, unsigned char transpose)
{
    setUniformMatrices3_Unsafe(location, 1, values, transpose);
}

void Program::setUniformMatrix3_Unsafe(const char* name, const float* values, unsigned char transpose)
{
    setUniformMatrices3_Unsafe(getUniformLocation(name), 1, values, transpose);
}

void Program::setUniformMatrix4(int location, const float* values, unsigned char transpose)
{
    setUniformMatrices4(location, 1, values, transpose);
}

void Program::setUniformMatrix4(const char* name, const float* values, unsigned char transpose)
{
    setUniformMatrices4(getUniformLocation(name), 1, values, transpose);
}

void Program::setUniformMatrix4_Unsafe(int location, const float* values, unsigned char transpose)
{
    setUniformMatrices4_Unsafe(location, 1, values, transpose);
}

void Program::setUniformMatrix4_Unsafe(const char* name, const float* values, unsigned char transpose)
{
    setUniformMatrices4_Unsafe(getUniformLocation(name), 1, values, transpose);
}

// Arrays of int. By name: no check, and GL is called with whatever location
// the look-up gave.

void Program::setUniform(int location, int count, int* values)
{
    if (!isEnabled())
        ORU_THROW(kMustBeEnabled);
    _cgmUniform1iv(location, count, values);
}

void Program::setUniform(const char* name, int count, int* values)
{
    _cgmUniform1iv(getUniformLocation(name), count, values);
}

void Program::setUniform_Unsafe(int location, int count, int* values)
{
    if (location != nUnknownLocation)
        _cgmUniform1iv(location, count, values);
}

void Program::setUniform_Unsafe(const char* name, int count, int* values)
{
    _cgmUniform1iv(getUniformLocation(name), count, values);
}

void Program::setUniform2(int location, int count, int* values)
{
    if (!isEnabled())
        ORU_THROW(kMustBeEnabled);
    _cgmUniform2iv(location, count, values);
}

void Program::setUniform2(const char* name, int count, int* values)
{
    _cgmUniform2iv(getUniformLocation(name), count, values);
}

void Program::setUniform2_Unsafe(int location, int count, int* values)
{
    if (location != nUnknownLocation)
        _cgmUniform2iv(location, count, values);
}

void Program::setUniform2_Unsafe(const char* name, int count, int* values)
{
    _cgmUniform2iv(getUniformLocation(name), count, values);
}

void Program::setUniform3(int location, int count, int* values)
{
    if (!isEnabled())
        ORU_THROW(kMustBeEnabled);
    _cgmUniform3iv(location, count, values);
}

void Program::setUniform3(const char* name, int count, int* values)
{
    _cgmUniform3iv(getUniformLocation(name), count, values);
}

void Program::setUniform3_Unsafe(int location, int count, int* values)
{
    if (location != nUnknownLocation)
        _cgmUniform3iv(location, count, values);
}

void Program::setUniform3_Unsafe(const char* name, int count, int* values)
{
    _cgmUniform3iv(getUniformLocation(name), count, values);
}

void Program::setUniform4(int location, int count, int* values)
{
    if (!isEnabled())
        ORU_THROW(kMustBeEnabled);
    _cgmUniform4iv(location, count, values);
}

void Program::setUniform4(const char* name, int count, int* values)
{
    _cgmUniform4iv(getUniformLocation(name), count, values);
}

void Program::setUniform4_Unsafe(int location, int count, int* values)
{
    if (location != nUnknownLocation)
        _cgmUniform4iv(location, count, values);
}

void Program::setUniform4_Unsafe(const char* name, int count, int* values)
{
    _cgmUniform4iv(getUniformLocation(name), count, values);
}

// Arrays of float. As for int, and the unchecked by-location members do not
// skip -1 either (GL ignores it).

void Program::setUniform(int location, int count, float* values)
{
    if (!isEnabled())
        ORU_THROW(kMustBeEnabled);
    _cgmUniform1fv(location, count, values);
}

void Program::setUniform(const char* name, int count, float* values)
{
    _cgmUniform1fv(getUniformLocation(name), count, values);
}

void Program::setUniform_Unsafe(int location, int count, float* values)
{
    _cgmUniform1fv(location, count, values);
}

void Program::setUniform_Unsafe(const char* name, int count, float* values)
{
    _cgmUniform1fv(getUniformLocation(name), count, values);
}

void Program::setUniform2(int location, int count, float* values)
{
    if (!isEnabled())
        ORU_THROW(kMustBeEnabled);
    _cgmUniform2fv(location, count, values);
}

void Program::setUniform2(const char* name, int count, float* values)
{
    _cgmUniform2fv(getUniformLocation(name), count, values);
}

void Program::setUniform2_Unsafe(int location, int count, float* values)
{
    _cgmUniform2fv(location, count, values);
}

void Program::setUniform2_Unsafe(const char* name, int count, float* values)
{
    _cgmUniform2fv(getUniformLocation(name), count, values);
}

void Program::setUniform3(int location, int count, float* values)
{
    if (!isEnabled())
        ORU_THROW(kMustBeEnabled);
    _cgmUniform3fv(location, count, values);
}

void Program::setUniform3(const char* name, int count, float* values)
{
    _cgmUniform3fv(getUniformLocation(name), count, values);
}

void Program::setUniform3_Unsafe(int location, int count, float* values)
{
    _cgmUniform3fv(location, count, values);
}

void Program::setUniform3_Unsafe(const char* name, int count, float* values)
{
    _cgmUniform3fv(getUniformLocation(name), count, values);
}

// setUniform4 with floats uploads count vec3 values, not vec4: programs
// written against it declare vec3 arrays and pass packed triples.

void Program::setUniform4(int location, int count, float* values)
{
    if (!isEnabled())
        ORU_THROW(kMustBeEnabled);
    _cgmUniform3fv(location, count, values);
}

void Program::setUniform4(const char* name, int count, float* values)
{
    _cgmUniform3fv(getUniformLocation(name), count, values);
}

void Program::setUniform4_Unsafe(int location, int count, float* values)
{
    _cgmUniform3fv(location, count, values);
}

void Program::setUniform4_Unsafe(const char* name, int count, float* values)
{
    _cgmUniform3fv(getUniformLocation(name), count, values);
}

} // namespace OGL
} // namespace Oru
