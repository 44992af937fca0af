#include "oru_ogl/extensionator/OpenGLRekorder.h"

#include "oru_ogl/extensionator/CallText.h"
#include "oru_ogl/extensionator/OperationList.h"

#include <cstring>

// Every operation is recorded as its row of the operations list says: as its
// call text, as a refusal when it takes pointer data the format cannot carry,
// or by a member of its own below, of the kind the row names (the table of
// kinds is RECORDER_RULES in tools/oglgen/operations.py). The ARB and EXT twins
// are recorded like their core counterparts, under their own names.
//
// Parts of the recorded format look wrong and are kept, because recordings and
// the replay programs built from them depend on them:
// - name arrays (glDeleteTextures, glDrawBuffersARB, ...) and the strings of
//   glGetUniformLocation and glShaderSource get an 8-byte length field, while
//   the generated reader reads a 4-byte one and so starts the data four bytes
//   early; name arrays are copied with eight bytes per 4-byte element;
// - glTexParameterfv puts makeFloat values into an int array;
// - glShaderSourceARB's replay frees only its first string.

namespace Oru
{
namespace OGL
{

using detail::CallText;
using namespace detail::argument;

namespace
{

// Negative counts and sizes are GL errors; they record an empty block rather
// than a copy of the address space.
std::uint64_t nonNegative(long long value)
{
    return value < 0 ? 0u : static_cast<std::uint64_t>(value);
}

void writeHandle(CallText& t, GLuint object)
{
    t.handleARB(object);
}

void writeName(CallText& t, GLuint object)
{
    t.unsignedNumber(object);
}

// A block's length field. A full write of four or eight bytes costs more than
// the bytes, so they go straight into the stream's buffer, as the write would
// put them: only into a good stream, after flushing a tied one, marking the
// stream bad if its buffer refuses them.
template <class Length>
void writeLength(std::ostream& out, Length length)
{
    // Little-endian on every Windows target, so the field is its own bytes.
    char bytes[sizeof(length)];
    std::memcpy(bytes, &length, sizeof(length));
    std::streambuf* buffer = out.rdbuf();
    if (!out.good() || out.tie() || !buffer)
    {
        out.write(bytes, sizeof(bytes));
        return;
    }
    for (char byte : bytes)
        if (std::streambuf::traits_type::eq_int_type(buffer->sputc(byte), std::streambuf::traits_type::eof()))
            return out.setstate(std::ios_base::badbit);
}

} // namespace

OpenGLRekorder::OpenGLRekorder(std::ostream& code, std::ostream& data, OpenGLInterceptor* next, bool lineComments)
    : OpenGLInterceptorDecorator(next),
      outputStream_(&code),
      binaryOutputStream_(&data),
      binaryOffset_(0),
      lineComments_(lineComments)
{
}

OpenGLRekorder::~OpenGLRekorder() = default;

// ---------------------------------------------------------------------------
// Building blocks

void OpenGLRekorder::writeBlock(std::uint32_t length, void const* bytes)
{
    writeLength(*binaryOutputStream_, length);
    binaryOutputStream_->write(static_cast<char const*>(bytes), length);
    binaryOffset_ += length + static_cast<std::uint32_t>(sizeof(length));
}

void OpenGLRekorder::writeLongBlock(std::uint64_t length, void const* bytes)
{
    writeLength(*binaryOutputStream_, length);
    binaryOutputStream_->write(static_cast<char const*>(bytes), static_cast<std::streamsize>(length));
    binaryOffset_ += static_cast<std::uint32_t>(length + sizeof(length));
}

void OpenGLRekorder::readBackHead(CallText& t, std::uint32_t offset, bool initialisedSize) const
{
    t.put("{\n    pBinaryInputStream->seekg(");
    t.unsignedNumber(offset);
    t.put(");\n");
    if (initialisedSize)
        t.put("    unsigned int nSize= 0;\n");
    else
        t.put("    unsigned int nSize;\n");
    t.put("    pBinaryInputStream->read((char *)&nSize, sizeof(nSize));\n"
          "    std::vector<char> data(nSize);\n"
          "    pBinaryInputStream->read(&data[0], nSize);\n");
}

void OpenGLRekorder::lineEnd(CallText& t, char const* file, unsigned int line) const
{
    t.lineEnd(lineComments_, file, line);
}

// ---------------------------------------------------------------------------
// The operations recorded as their call text, and those refused.

#define ORU_RECORD_Text(Ret, Stem, Params, Args, Kinds)                                                \
    Ret OpenGLRekorder::cgm##Stem(const char* file, unsigned int line ORU_OP_TAIL Params)              \
    {                                                                                                  \
        CallText oruText(*outputStream_, floatTexts_);                                                 \
        oruText.put("gl" #Stem "(");                                                                   \
        detail::writeArguments<ORU_OP_TAIL Kinds>(oruText ORU_OP_TAIL Args);                           \
        oruText.put(");");                                                                             \
        oruText.lineEnd(lineComments_, file, line);                                                    \
        oruText.send();                                                                                \
        return pInterceptor_->cgm##Stem(file, line ORU_OP_TAIL Args);                                  \
    }
#define ORU_RECORD_Unsupported(Ret, Stem, Params, Args, Kinds)                                         \
    Ret OpenGLRekorder::cgm##Stem(const char* file, unsigned int line ORU_OP_TAIL Params)              \
    {                                                                                                  \
        detail::writeLiteral(*outputStream_, "OpenGLRekorderUnsupported(\"Capturing an OpenGL function (gl" #Stem \
                                             ") with pointer parameter requires a specialized implementation!\");\n"); \
        return pInterceptor_->cgm##Stem(file, line ORU_OP_TAIL Args);                                  \
    }
// The specialised kinds: members of their own, below.
#define ORU_RECORD_Matrix(...)
#define ORU_RECORD_NameArray(...)
#define ORU_RECORD_GeneratedNames(...)
#define ORU_RECORD_ShaderSources(...)
#define ORU_RECORD_UniformName(...)
#define ORU_RECORD_Uniform(...)
#define ORU_RECORD_Scratch(...)
#define ORU_RECORD_Vector(...)
#define ORU_RECORD_Pixels(...)
#define ORU_RECORD_Comment(...)
#define ORU_GL_OPERATION(Ret, Stem, Owner, Call, Record, Params, Args, Kinds) \
    ORU_RECORD_##Record(Ret, Stem, Params, Args, Kinds)
#include "oru_ogl/extensionator/Operations.def"

// ---------------------------------------------------------------------------
// Matrices: the 16 elements as one block.

void OpenGLRekorder::recordMatrix(char const* file, unsigned int line, std::uint32_t length, void const* elements,
                                  char const* callLine)
{
    const std::uint32_t offset = binaryOffset_;
    writeBlock(length, elements);
    CallText t(*outputStream_);
    readBackHead(t, offset, true);
    t.cString(callLine);
    lineEnd(t, file, line);
    t.put("}\n");
    t.send();
}

void OpenGLRekorder::cgmLoadMatrixf(const char* file, unsigned int line, const GLfloat* m)
{
    recordMatrix(file, line, 16 * sizeof(GLfloat), m, "    glLoadMatrixf((GLfloat *)&data[0]);");
    return pInterceptor_->cgmLoadMatrixf(file, line, m);
}

void OpenGLRekorder::cgmMultMatrixf(const char* file, unsigned int line, const GLfloat* m)
{
    recordMatrix(file, line, 16 * sizeof(GLfloat), m,
                 "    glMultMatrixf(reinterpret_cast<const GLfloat *>(&data[0]));");
    return pInterceptor_->cgmMultMatrixf(file, line, m);
}

void OpenGLRekorder::cgmMultMatrixd(const char* file, unsigned int line, const GLdouble* m)
{
    recordMatrix(file, line, 16 * sizeof(GLdouble), m,
                 "    glMultMatrixd(reinterpret_cast<const GLdouble *>(&data[0]));");
    return pInterceptor_->cgmMultMatrixd(file, line, m);
}

// ---------------------------------------------------------------------------
// Name arrays. Deleting and drawing-buffer lists copy eight bytes per element
// into an 8-byte-length block; generating records no names at all, since the
// replay's GL hands out its own.

void OpenGLRekorder::recordNames(char const* glName, char const* file, unsigned int line, GLsizei n,
                                 void const* names, char const* elementType)
{
    const std::uint32_t offset = binaryOffset_;
    writeLongBlock(nonNegative(n) * 8, names);
    CallText t(*outputStream_);
    readBackHead(t, offset, true);
    t.put("    ");
    t.cString(glName);
    t.character('(');
    t.signedNumber(n);
    t.put(", reinterpret_cast<const ");
    t.cString(elementType);
    t.put(" *>(&data[0]));");
    lineEnd(t, file, line);
    t.put("}\n");
    t.send();
}

void OpenGLRekorder::cgmDeleteTextures(const char* file, unsigned int line, GLsizei n, const GLuint* textures)
{
    recordNames("glDeleteTextures", file, line, n, textures, "GLuint");
    return pInterceptor_->cgmDeleteTextures(file, line, n, textures);
}

void OpenGLRekorder::cgmDeleteTexturesEXT(const char* file, unsigned int line, GLsizei n, const GLuint* textures)
{
    recordNames("glDeleteTexturesEXT", file, line, n, textures, "GLuint");
    return pInterceptor_->cgmDeleteTexturesEXT(file, line, n, textures);
}

void OpenGLRekorder::cgmDeleteFramebuffersEXT(const char* file, unsigned int line, GLsizei n,
                                              const GLuint* framebuffers)
{
    recordNames("glDeleteFramebuffersEXT", file, line, n, framebuffers, "GLuint");
    return pInterceptor_->cgmDeleteFramebuffersEXT(file, line, n, framebuffers);
}

void OpenGLRekorder::cgmDrawBuffersARB(const char* file, unsigned int line, GLsizei n, const GLenum* bufs)
{
    recordNames("glDrawBuffersARB", file, line, n, bufs, "GLenum");
    return pInterceptor_->cgmDrawBuffersARB(file, line, n, bufs);
}

void OpenGLRekorder::recordGenNames(char const* glName, char const* file, unsigned int line, GLsizei n,
                                    char const* array)
{
    CallText t(*outputStream_);
    t.put("{\n    GLuint ");
    t.cString(array);
    t.character('[');
    t.signedNumber(n);
    t.put("];\n    ");
    t.cString(glName);
    t.character('(');
    t.signedNumber(n);
    t.put(", &");
    t.cString(array);
    t.put("[0]);");
    lineEnd(t, file, line);
    t.put("}\n");
    t.send();
}

void OpenGLRekorder::cgmGenTextures(const char* file, unsigned int line, GLsizei n, GLuint* textures)
{
    recordGenNames("glGenTextures", file, line, n, "textures");
    return pInterceptor_->cgmGenTextures(file, line, n, textures);
}

void OpenGLRekorder::cgmGenTexturesEXT(const char* file, unsigned int line, GLsizei n, GLuint* textures)
{
    recordGenNames("glGenTexturesEXT", file, line, n, "textures");
    return pInterceptor_->cgmGenTexturesEXT(file, line, n, textures);
}

void OpenGLRekorder::cgmGenFramebuffersEXT(const char* file, unsigned int line, GLsizei n, GLuint* framebuffers)
{
    recordGenNames("glGenFramebuffersEXT", file, line, n, "framebuffers");
    return pInterceptor_->cgmGenFramebuffersEXT(file, line, n, framebuffers);
}

// ---------------------------------------------------------------------------
// Uniforms

void OpenGLRekorder::recordUniform(char const* glName, char const* file, unsigned int line, GLint location,
                                   GLsizei count, unsigned int components, void const* values,
                                   char const* elementType)
{
    const std::uint32_t offset = binaryOffset_;
    writeBlock(static_cast<std::uint32_t>(nonNegative(count) * 4 * components), values);
    CallText t(*outputStream_);
    readBackHead(t, offset, true);
    t.put("    ");
    t.cString(glName);
    t.character('(');
    t.signedNumber(location);
    t.put(", ");
    t.signedNumber(count);
    t.put(", reinterpret_cast<const ");
    t.cString(elementType);
    t.put(" *>(&data[0]));");
    lineEnd(t, file, line);
    t.put("}\n");
    t.send();
}

#define ORU_RECORD_UNIFORM(Name, components, Element)                                                        \
    void OpenGLRekorder::cgm##Name(const char* file, unsigned int line, GLint location, GLsizei count,     \
                                   const Element* value)                                                   \
    {                                                                                                      \
        recordUniform("gl" #Name, file, line, location, count, components, value, #Element);              \
        return pInterceptor_->cgm##Name(file, line, location, count, value);                              \
    }

ORU_RECORD_UNIFORM(Uniform1fv, 1, GLfloat)
ORU_RECORD_UNIFORM(Uniform2fv, 2, GLfloat)
ORU_RECORD_UNIFORM(Uniform3fv, 3, GLfloat)
ORU_RECORD_UNIFORM(Uniform4fv, 4, GLfloat)
ORU_RECORD_UNIFORM(Uniform1iv, 1, GLint)
ORU_RECORD_UNIFORM(Uniform2iv, 2, GLint)
ORU_RECORD_UNIFORM(Uniform3iv, 3, GLint)
ORU_RECORD_UNIFORM(Uniform4iv, 4, GLint)
ORU_RECORD_UNIFORM(Uniform1fvARB, 1, GLfloat)
ORU_RECORD_UNIFORM(Uniform2fvARB, 2, GLfloat)
ORU_RECORD_UNIFORM(Uniform3fvARB, 3, GLfloat)
ORU_RECORD_UNIFORM(Uniform4fvARB, 4, GLfloat)
ORU_RECORD_UNIFORM(Uniform1ivARB, 1, GLint)
ORU_RECORD_UNIFORM(Uniform2ivARB, 2, GLint)
ORU_RECORD_UNIFORM(Uniform3ivARB, 3, GLint)
ORU_RECORD_UNIFORM(Uniform4ivARB, 4, GLint)

#undef ORU_RECORD_UNIFORM

// The 2x2 matrices have their own reader (an uninitialised size) and no line
// comment.
void OpenGLRekorder::recordUniformMatrix2(char const* glName, GLint location, GLsizei count, GLboolean transpose,
                                          GLfloat const* values)
{
    const std::uint32_t offset = binaryOffset_;
    writeBlock(static_cast<std::uint32_t>(nonNegative(count) * 16), values);
    CallText t(*outputStream_);
    readBackHead(t, offset, false);
    t.put("    ");
    t.cString(glName);
    t.character('(');
    t.signedNumber(location);
    t.put(", ");
    t.signedNumber(count);
    t.put(", ");
    if (transpose)
        t.put("true");
    else
        t.put("false");
    t.put(", reinterpret_cast<const GLfloat *>(&data[0]));\n}\n");
    t.send();
}

void OpenGLRekorder::cgmUniformMatrix2fv(const char* file, unsigned int line, GLint location, GLsizei count,
                                         GLboolean transpose, const GLfloat* value)
{
    recordUniformMatrix2("glUniformMatrix2fv", location, count, transpose, value);
    return pInterceptor_->cgmUniformMatrix2fv(file, line, location, count, transpose, value);
}

void OpenGLRekorder::cgmUniformMatrix2fvARB(const char* file, unsigned int line, GLint location, GLsizei count,
                                            GLboolean transpose, const GLfloat* value)
{
    recordUniformMatrix2("glUniformMatrix2fvARB", location, count, transpose, value);
    return pInterceptor_->cgmUniformMatrix2fvARB(file, line, location, count, transpose, value);
}

void OpenGLRekorder::recordUniformLocation(char const* glName, char const* file, unsigned int line,
                                           char const* name, void (*program)(CallText&, GLuint), GLuint object)
{
    const std::uint32_t offset = binaryOffset_;
    writeLongBlock(std::strlen(name) + 1, name);
    CallText t(*outputStream_);
    readBackHead(t, offset, true);
    t.put("    ");
    t.cString(glName);
    t.character('(');
    program(t, object);
    t.put(", &data[0]);");
    lineEnd(t, file, line);
    t.put("}\n");
    t.send();
}

GLint OpenGLRekorder::cgmGetUniformLocation(const char* file, unsigned int line, GLuint program, const GLchar* name)
{
    recordUniformLocation("glGetUniformLocation", file, line, name, writeName, program);
    return pInterceptor_->cgmGetUniformLocation(file, line, program, name);
}

GLint OpenGLRekorder::cgmGetUniformLocationARB(const char* file, unsigned int line, GLhandleARB programObj,
                                               const GLcharARB* name)
{
    recordUniformLocation("glGetUniformLocationARB", file, line, name, writeHandle, programObj);
    return pInterceptor_->cgmGetUniformLocationARB(file, line, programObj, name);
}

// ---------------------------------------------------------------------------
// Shader sources: one 8-byte-length block per string; the text seeks to the
// first and reads the others in sequence. Whether the replay passes lengths is
// decided by the recorded value of the caller's lengths pointer.

void OpenGLRekorder::recordShaderSource(char const* file, unsigned int line, bool arb, GLuint shader,
                                        GLsizei count, GLchar const* const* strings, GLint const* lengths)
{
    const std::uint32_t offset = binaryOffset_;
    for (GLsizei n = 0; n < count; ++n)
    {
        // A negative length means "zero-terminated" to GL, as no lengths at all.
        const bool counted = lengths && lengths[n] >= 0;
        const std::uint64_t length = counted ? static_cast<std::uint64_t>(lengths[n]) : std::strlen(strings[n]) + 1;
        writeLongBlock(length, strings[n]);
    }

    CallText t(*outputStream_);
    t.put("{\n    pBinaryInputStream->seekg(");
    t.unsignedNumber(offset);
    t.put(");\n    char *data[");
    t.signedNumber(count);
    t.put("];\n    std::vector<GLint> lengths_data;\n    if (");
    t.address(lengths);
    t.put(") lengths_data.resize(");
    t.signedNumber(count);
    t.put(");\n    for (GLsizei n = 0; n < ");
    t.signedNumber(count);
    t.put("; n++)\n"
          "    {\n"
          "        GLint nSize = 0;\n"
          "        pBinaryInputStream->read((char *)&nSize, sizeof(nSize));\n"
          "        if (");
    t.address(lengths);
    t.put(") lengths_data[n] = nSize;\n"
          "        data[n] = new char[nSize];\n"
          "        pBinaryInputStream->read(data[n], nSize);\n"
          "    };\n"
          "    if (");
    t.address(lengths);
    t.put(")\n");
    for (int withLengths = 1; withLengths >= 0; --withLengths)
    {
        if (arb)
        {
            t.put("        glShaderSourceARB(");
            t.handleARB(shader);
        }
        else
        {
            t.put("        glShaderSource(");
            t.unsignedNumber(shader);
        }
        t.put(", ");
        t.signedNumber(count);
        if (withLengths)
            t.put(", (const GLchar **)data, &lengths_data[0]);");
        else
            t.put(", (const GLchar **)data, NULL);");
        lineEnd(t, file, line);
        if (withLengths)
            t.put("    else\n");
    }
    t.put("    for (GLsizei n = 0; n < ");
    if (arb)
        t.character('1'); // the ARB replay frees only the first string
    else
        t.signedNumber(count);
    t.put("; n++)\n    {\n        delete[] data[n];\n    }\n}\n");
    t.send();
}

void OpenGLRekorder::cgmShaderSource(const char* file, unsigned int line, GLuint shader, GLsizei count,
                                     const GLchar** string, const GLint* length)
{
    recordShaderSource(file, line, false, shader, count, string, length);
    return pInterceptor_->cgmShaderSource(file, line, shader, count, string, length);
}

void OpenGLRekorder::cgmShaderSourceARB(const char* file, unsigned int line, GLhandleARB shaderObj, GLsizei count,
                                        const GLcharARB** string, const GLint* length)
{
    recordShaderSource(file, line, true, shaderObj, count, string, length);
    return pInterceptor_->cgmShaderSourceARB(file, line, shaderObj, count, string, length);
}

// ---------------------------------------------------------------------------
// Queries: the replay asks into scratch storage of its own and discards it.

void OpenGLRekorder::recordScratchArray(char const* glName, char const* file, unsigned int line,
                                        char const* element, bool arbObject, GLuint object, GLenum pname)
{
    CallText t(*outputStream_);
    t.put("{\n    ");
    t.cString(element);
    t.put(" data[4 * 4];\n    ");
    t.cString(glName);
    t.character('(');
    if (arbObject)
    {
        t.handleARB(object);
        t.put(", ");
    }
    t.enumName(pname);
    t.put(", &data[0]);");
    lineEnd(t, file, line);
    t.put("}\n");
    t.send();
}

void OpenGLRekorder::cgmGetBooleanv(const char* file, unsigned int line, GLenum pname, GLboolean* params)
{
    recordScratchArray("glGetBooleanv", file, line, "GLboolean", false, 0, pname);
    return pInterceptor_->cgmGetBooleanv(file, line, pname, params);
}

void OpenGLRekorder::cgmGetFloatv(const char* file, unsigned int line, GLenum pname, GLfloat* params)
{
    recordScratchArray("glGetFloatv", file, line, "GLfloat", false, 0, pname);
    return pInterceptor_->cgmGetFloatv(file, line, pname, params);
}

void OpenGLRekorder::cgmGetIntegerv(const char* file, unsigned int line, GLenum pname, GLint* params)
{
    recordScratchArray("glGetIntegerv", file, line, "GLint", false, 0, pname);
    return pInterceptor_->cgmGetIntegerv(file, line, pname, params);
}

void OpenGLRekorder::cgmGetObjectParameterfvARB(const char* file, unsigned int line, GLhandleARB obj, GLenum pname,
                                                GLfloat* params)
{
    recordScratchArray("glGetObjectParameterfvARB", file, line, "GLfloat", true, obj, pname);
    return pInterceptor_->cgmGetObjectParameterfvARB(file, line, obj, pname, params);
}

void OpenGLRekorder::cgmGetObjectParameterivARB(const char* file, unsigned int line, GLhandleARB obj, GLenum pname,
                                                GLint* params)
{
    recordScratchArray("glGetObjectParameterivARB", file, line, "GLint", true, obj, pname);
    return pInterceptor_->cgmGetObjectParameterivARB(file, line, obj, pname, params);
}

// A query of one value: the replay asks into a variable of its own.
template <class... Kinds, class... Values>
void OpenGLRekorder::recordScratchValue(char const* file, unsigned int line, char const* element, char const* glName,
                                        Values... values)
{
    CallText t(*outputStream_);
    t.put("{\n    ");
    t.cString(element);
    t.put(" data;\n    ");
    t.cString(glName);
    t.character('(');
    detail::writeArguments<Kinds...>(t, values...);
    t.put(", &data);");
    lineEnd(t, file, line);
    t.put("}\n");
    t.send();
}

void OpenGLRekorder::cgmGetTexLevelParameterfv(const char* file, unsigned int line, GLenum target, GLint level,
                                               GLenum pname, GLfloat* params)
{
    recordScratchValue<EnumName, SignedNumber, EnumName>(file, line, "GLfloat", "glGetTexLevelParameterfv", target,
                                                         level, pname);
    return pInterceptor_->cgmGetTexLevelParameterfv(file, line, target, level, pname, params);
}

void OpenGLRekorder::cgmGetTexLevelParameteriv(const char* file, unsigned int line, GLenum target, GLint level,
                                               GLenum pname, GLint* params)
{
    recordScratchValue<EnumName, SignedNumber, EnumName>(file, line, "GLint", "glGetTexLevelParameteriv", target,
                                                         level, pname);
    return pInterceptor_->cgmGetTexLevelParameteriv(file, line, target, level, pname, params);
}

void OpenGLRekorder::cgmGetProgramiv(const char* file, unsigned int line, GLuint program, GLenum pname,
                                     GLint* params)
{
    recordScratchValue<UnsignedNumber, EnumName>(file, line, "int", "glGetProgramiv", program, pname);
    return pInterceptor_->cgmGetProgramiv(file, line, program, pname, params);
}

void OpenGLRekorder::cgmGetShaderiv(const char* file, unsigned int line, GLuint shader, GLenum pname, GLint* params)
{
    recordScratchValue<UnsignedNumber, EnumName>(file, line, "int", "glGetShaderiv", shader, pname);
    return pInterceptor_->cgmGetShaderiv(file, line, shader, pname, params);
}

void OpenGLRekorder::cgmGetProgramInfoLog(const char* file, unsigned int line, GLuint program, GLsizei bufSize,
                                          GLsizei* length, GLchar* infoLog)
{
    CallText t(*outputStream_);
    t.put("{\n    std::vector<char> data(");
    t.signedNumber(bufSize);
    t.put(");\n    glGetProgramInfoLog(");
    t.unsignedNumber(program);
    t.put(", ");
    t.signedNumber(bufSize);
    t.put(", NULL, &data[0]);");
    lineEnd(t, file, line);
    t.put("}\n");
    t.send();
    return pInterceptor_->cgmGetProgramInfoLog(file, line, program, bufSize, length, infoLog);
}

void OpenGLRekorder::cgmGetAttachedShaders(const char* file, unsigned int line, GLuint program, GLsizei maxCount,
                                           GLsizei* count, GLuint* obj)
{
    CallText t(*outputStream_);
    t.put("{\n    GLsizei count[");
    t.signedNumber(maxCount);
    t.put("];\n    GLuint shaders[");
    t.signedNumber(maxCount);
    t.put("];\n    glGetAttachedShaders(");
    t.unsignedNumber(program);
    t.put(", ");
    t.signedNumber(maxCount);
    t.put(", &count[0], &shaders[0]);");
    lineEnd(t, file, line);
    t.put("}\n");
    t.send();
    return pInterceptor_->cgmGetAttachedShaders(file, line, program, maxCount, count, obj);
}

void OpenGLRekorder::cgmGetAttachedObjectsARB(const char* file, unsigned int line, GLhandleARB containerObj,
                                              GLsizei maxCount, GLsizei* count, GLhandleARB* obj)
{
    CallText t(*outputStream_);
    t.put("{\n    GLsizei count[");
    t.signedNumber(maxCount);
    t.put("];\n    GLuint obj[");
    t.signedNumber(maxCount);
    t.put("];\n    glGetAttachedObjectsARB(");
    t.handleARB(containerObj);
    t.put(", ");
    t.signedNumber(maxCount);
    t.put(", &count[0], &obj[0]);");
    lineEnd(t, file, line);
    t.put("}\n");
    t.send();
    return pInterceptor_->cgmGetAttachedObjectsARB(file, line, containerObj, maxCount, count, obj);
}

void OpenGLRekorder::cgmGetActiveUniformARB(const char* file, unsigned int line, GLhandleARB programObj,
                                            GLuint index, GLsizei maxLength, GLsizei* length, GLint* size,
                                            GLenum* type, GLcharARB* name)
{
    CallText t(*outputStream_);
    t.put("{\n    GLcharARB data[");
    t.signedNumber(static_cast<long long>(maxLength) + 1);
    t.put("];\n    GLsizei length;\n    GLint size;\n    GLenum type;\n    glGetActiveUniformARB(");
    t.handleARB(programObj);
    t.put(", ");
    t.unsignedNumber(index);
    t.put(", ");
    t.signedNumber(maxLength);
    t.put(", &length, &size, &type, &data[0]);");
    lineEnd(t, file, line);
    t.put("}\n");
    t.send();
    return pInterceptor_->cgmGetActiveUniformARB(file, line, programObj, index, maxLength, length, size, type, name);
}

void OpenGLRekorder::cgmGetInfoLogARB(const char* file, unsigned int line, GLhandleARB obj, GLsizei maxLength,
                                      GLsizei* length, GLcharARB* infoLog)
{
    CallText t(*outputStream_);
    t.put("{\n    GLcharARB data[");
    t.signedNumber(static_cast<long long>(maxLength) + 1);
    t.put("];\n    GLsizei length;\n    glGetInfoLogARB(");
    t.handleARB(obj);
    t.put(", ");
    t.signedNumber(maxLength);
    if (length)
        t.put(", &length, &data[0]);");
    else
        t.put(", NULL, &data[0]);");
    lineEnd(t, file, line);
    t.put("}\n");
    t.send();
    return pInterceptor_->cgmGetInfoLogARB(file, line, obj, maxLength, length, infoLog);
}

// ---------------------------------------------------------------------------
// Small vectors, written into the text as bit patterns (floats stay exact).

void OpenGLRekorder::recordFloatVector(char const* glName, char const* file, unsigned int line, bool hasTarget,
                                       GLenum target, unsigned int size, GLfloat const* v)
{
    CallText t(*outputStream_);
    t.put("{\n    int tmp_i[] = { ");
    for (unsigned int k = 0; k < size; ++k)
    {
        if (k)
            t.put(", ");
        t.floatBits(v[k]);
    }
    t.put(" }; // ");
    for (unsigned int k = 0; k < size; ++k)
    {
        if (k)
            t.put(", ");
        t.number(v[k]);
    }
    t.put("\n    ");
    t.cString(glName);
    if (hasTarget)
    {
        t.character('(');
        t.enumName(target);
        t.put(", reinterpret_cast<float *>(&tmp_i[0]) );");
    }
    else
    {
        t.put("( reinterpret_cast<float *>(&tmp_i[0]) );");
    }
    lineEnd(t, file, line);
    t.put("}\n");
    t.send();
}

void OpenGLRekorder::recordIntVector(char const* glName, char const* file, unsigned int line, GLenum target,
                                     unsigned int size, GLint const* v)
{
    CallText t(*outputStream_);
    for (int pass = 0; pass < 2; ++pass)
    {
        if (pass == 0)
            t.put("{\n    int tmp_i[] = { ");
        else
            t.put(" }; // ");
        for (unsigned int k = 0; k < size; ++k)
        {
            if (k)
                t.put(", ");
            t.signedNumber(v[k]);
        }
    }
    t.put("\n    ");
    t.cString(glName);
    t.character('(');
    t.enumName(target);
    t.put(", reinterpret_cast<int *>(&tmp_i[0]) );");
    lineEnd(t, file, line);
    t.put("}\n");
    t.send();
}

void OpenGLRekorder::cgmVertex2fv(const char* file, unsigned int line, const GLfloat* v)
{
    recordFloatVector("glVertex2fv", file, line, false, 0, 2, v);
    return pInterceptor_->cgmVertex2fv(file, line, v);
}

#define ORU_RECORD_VECTOR(Name, size, Element, record)                                                      \
    void OpenGLRekorder::cgm##Name(const char* file, unsigned int line, GLenum target, const Element* v)   \
    {                                                                                                      \
        record;                                                                                            \
        return pInterceptor_->cgm##Name(file, line, target, v);                                           \
    }
#define ORU_RECORD_FLOATS(Name, size) \
    ORU_RECORD_VECTOR(Name, size, GLfloat, recordFloatVector("gl" #Name, file, line, true, target, size, v))
#define ORU_RECORD_INTS(Name, size) \
    ORU_RECORD_VECTOR(Name, size, GLint, recordIntVector("gl" #Name, file, line, target, size, v))

ORU_RECORD_FLOATS(MultiTexCoord1fv, 1)
ORU_RECORD_FLOATS(MultiTexCoord2fv, 2)
ORU_RECORD_FLOATS(MultiTexCoord3fv, 3)
ORU_RECORD_FLOATS(MultiTexCoord4fv, 4)
ORU_RECORD_FLOATS(MultiTexCoord1fvARB, 1)
ORU_RECORD_FLOATS(MultiTexCoord2fvARB, 2)
ORU_RECORD_FLOATS(MultiTexCoord3fvARB, 3)
ORU_RECORD_FLOATS(MultiTexCoord4fvARB, 4)
ORU_RECORD_INTS(MultiTexCoord1iv, 1)
ORU_RECORD_INTS(MultiTexCoord2iv, 2)
ORU_RECORD_INTS(MultiTexCoord3iv, 3)
ORU_RECORD_INTS(MultiTexCoord4iv, 4)
ORU_RECORD_INTS(MultiTexCoord1ivARB, 1)
ORU_RECORD_INTS(MultiTexCoord2ivARB, 2)
ORU_RECORD_INTS(MultiTexCoord3ivARB, 3)
ORU_RECORD_INTS(MultiTexCoord4ivARB, 4)

#undef ORU_RECORD_INTS
#undef ORU_RECORD_FLOATS
#undef ORU_RECORD_VECTOR

// Four parameters whatever pname needs, formatted as floats into an int array:
// the replay truncates each value to an integer and hands GL its bit pattern.
void OpenGLRekorder::cgmTexParameterfv(const char* file, unsigned int line, GLenum target, GLenum pname,
                                       const GLfloat* params)
{
    CallText t(*outputStream_, floatTexts_);
    t.put("{\n    int tmp_i[] = { ");
    for (int k = 0; k < 4; ++k)
    {
        if (k)
            t.put(", ");
        t.glFloat(params[k]);
    }
    t.put(" };\n    glTexParameterfv(");
    t.enumName(target);
    t.put(", ");
    t.enumName(pname);
    t.put(", reinterpret_cast<float *>(&tmp_i[0]) );");
    lineEnd(t, file, line);
    t.put("}\n");
    t.send();
    return pInterceptor_->cgmTexParameterfv(file, line, target, pname, params);
}

// ---------------------------------------------------------------------------
// Pixels

bool OpenGLRekorder::pixelBytes(GLenum format, GLenum type, GLsizei width, GLsizei height, std::uint32_t& bytes)
{
    unsigned int componentBytes = 0;
    switch (type)
    {
    case GL_UNSIGNED_BYTE: componentBytes = 1; break;
    case GL_FLOAT: componentBytes = 4; break;
    // Packed: one byte per component of four, one 32-bit word per pixel.
    case GL_UNSIGNED_INT_8_8_8_8:
    case GL_UNSIGNED_INT_8_8_8_8_REV: componentBytes = 1; break;
    default: break;
    }
    unsigned int components = 0;
    switch (format)
    {
    case GL_RGBA:
    case GL_BGRA:
    case GL_RGBA8: components = 4; break;
    case GL_RGB:
    case GL_BGR:
    case GL_RGB8: components = 3; break;
    default: break;
    }
    if (componentBytes * components == 0)
    {
        CallText t(*outputStream_);
        t.put("WARNING!!! Encountered unsupported type and / or format (type=");
        t.unsignedNumber(type);
        t.put(", format=");
        t.unsignedNumber(format);
        t.put(").\n");
        t.send();
        return false;
    }
    // Tightly packed rows: the unpack state is not recorded.
    bytes = static_cast<std::uint32_t>(componentBytes * components * nonNegative(width) * nonNegative(height));
    return true;
}

void OpenGLRekorder::cgmTexImage2D(const char* file, unsigned int line, GLenum target, GLint level,
                                   GLint internalformat, GLsizei width, GLsizei height, GLint border, GLenum format,
                                   GLenum type, const GLvoid* pixels)
{
    // Without pixels one plain line; with pixels of a known layout a block read
    // back into data; with others only pixelBytes' warning.
    std::uint32_t bytes = 0;
    const bool block = pixels && pixelBytes(format, type, width, height, bytes);
    if (!pixels || block)
    {
        CallText t(*outputStream_);
        if (block)
        {
            const std::uint32_t offset = binaryOffset_;
            writeBlock(bytes, pixels);
            readBackHead(t, offset, true);
            t.put("    ");
        }
        t.put("glTexImage2D(");
        t.enumName(target);
        t.put(", ");
        t.signedNumber(level);
        t.put(", ");
        t.signedNumber(internalformat);
        t.put(", ");
        t.signedNumber(width);
        t.put(", ");
        t.signedNumber(height);
        t.put(", ");
        t.signedNumber(border);
        t.put(", ");
        t.enumName(format);
        t.put(", ");
        t.enumName(type);
        if (block)
        {
            t.put(", &data[0]);");
            lineEnd(t, file, line);
            t.put("}\n");
        }
        else
        {
            t.put(", ");
            t.address(pixels);
            t.put(");\n");
        }
        t.send();
    }
    return pInterceptor_->cgmTexImage2D(file, line, target, level, internalformat, width, height, border, format,
                                        type, pixels);
}

void OpenGLRekorder::recordSubImage(char const* glName, char const* file, unsigned int line, GLenum target,
                                    GLint level, GLint xoffset, GLint yoffset, GLsizei width, GLsizei height,
                                    GLenum format, GLenum type, GLvoid const* pixels)
{
    std::uint32_t bytes = 0;
    if (!pixelBytes(format, type, width, height, bytes))
        return;
    const std::uint32_t offset = binaryOffset_;
    writeBlock(bytes, pixels);
    CallText t(*outputStream_);
    readBackHead(t, offset, true);
    t.put("    ");
    t.cString(glName);
    t.character('(');
    t.enumName(target);
    t.put(", ");
    t.signedNumber(level);
    t.put(", ");
    t.signedNumber(xoffset);
    t.put(", ");
    t.signedNumber(yoffset);
    t.put(", ");
    t.signedNumber(width);
    t.put(", ");
    t.signedNumber(height);
    t.put(", ");
    t.enumName(format);
    t.put(", ");
    t.enumName(type);
    t.put(", &data[0]);");
    lineEnd(t, file, line);
    t.put("}\n");
    t.send();
}

void OpenGLRekorder::cgmTexSubImage2D(const char* file, unsigned int line, GLenum target, GLint level,
                                      GLint xoffset, GLint yoffset, GLsizei width, GLsizei height, GLenum format,
                                      GLenum type, const GLvoid* pixels)
{
    recordSubImage("glTexSubImage2D", file, line, target, level, xoffset, yoffset, width, height, format, type,
                   pixels);
    return pInterceptor_->cgmTexSubImage2D(file, line, target, level, xoffset, yoffset, width, height, format, type,
                                           pixels);
}

void OpenGLRekorder::cgmTexSubImage2DEXT(const char* file, unsigned int line, GLenum target, GLint level,
                                         GLint xoffset, GLint yoffset, GLsizei width, GLsizei height, GLenum format,
                                         GLenum type, const GLvoid* pixels)
{
    recordSubImage("glTexSubImage2DEXT", file, line, target, level, xoffset, yoffset, width, height, format, type,
                   pixels);
    return pInterceptor_->cgmTexSubImage2DEXT(file, line, target, level, xoffset, yoffset, width, height, format,
                                              type, pixels);
}

// Reading back has no replay: the destination is the caller's memory. The call
// is kept in the text as a comment.
void OpenGLRekorder::cgmReadPixels(const char* file, unsigned int line, GLint x, GLint y, GLsizei width,
                                   GLsizei height, GLenum format, GLenum type, GLvoid* pixels)
{
    CallText t(*outputStream_);
    t.put("//glReadPixels(");
    t.signedNumber(x);
    t.put(", ");
    t.signedNumber(y);
    t.put(", ");
    t.signedNumber(width);
    t.put(", ");
    t.signedNumber(height);
    t.put(", ");
    t.enumName(format);
    t.put(", ");
    t.enumName(type);
    t.put(", ");
    t.address(pixels);
    t.put(");");
    lineEnd(t, file, line);
    t.send();
    return pInterceptor_->cgmReadPixels(file, line, x, y, width, height, format, type, pixels);
}

} // namespace OGL
} // namespace Oru
