#ifndef ORU_OGL_EXTENSIONATOR_OPENGLREKORDER_H
#define ORU_OGL_EXTENSIONATOR_OPENGLREKORDER_H

#include "oru_ogl/extensionator/FloatTextCache.h"
#include "oru_ogl/extensionator/OpenGLInterceptorDecorator.h"

#include <cstdint>
#include <ostream>

namespace Oru
{
namespace OGL
{

namespace detail
{
class CallText;
}

/// Records the GL call stream as C++ source that repeats it: each call becomes
/// one or more statements on the code stream,
///
///     glAlphaFunc(GL_GREATER, makeFloat(1056964608) /* 0.5 */);\t\t// scene.cpp, line 12
///
/// and bulk data (pixels, matrices, uniform arrays, shader sources) becomes a
/// length-prefixed block on the binary stream that the statements seek to and
/// read back through `pBinaryInputStream`. Then the call goes on to the next
/// interceptor, so a call that fails is recorded too. Results are not recorded.
///
/// Pointer data is captured only by the entry points that have a recording of
/// their own (matrices, texture uploads, uniforms, shader sources, name arrays,
/// a few queries and vectors); any other call with a pointer parameter is
/// recorded as a call of OpenGLRekorderUnsupported naming it. The replay program
/// supplies makeFloat, OpenGLRekorderUnsupported and pBinaryInputStream (the
/// oru_replay library's Replay.h declares them).
///
/// The streams are not owned, flushed or checked. One binary stream belongs to
/// one recorder: the offsets in the text count what this recorder wrote.
class ORU_OGL_API OpenGLRekorder : public OpenGLInterceptorDecorator
{
public:
    /// Records onto code (text) and data (binary), forwarding to next.
    /// @param code         the text stream; not owned, must outlive the recorder
    /// @param data         the binary stream (open it in binary mode); not owned
    /// @param next         the interceptor to forward to, or null when the
    ///                     recorder is pushed with OpenGLInterceptor::addInterceptor()
    /// @param lineComments whether each recorded call ends with a comment naming
    ///                     the caller's file and line
    OpenGLRekorder(std::ostream& code, std::ostream& data, OpenGLInterceptor* next, bool lineComments);
    virtual ~OpenGLRekorder();

    /// The code stream.
    /// @return the text stream, not owned
    std::ostream* outputStream() { return outputStream_; }
    /// The code stream.
    /// @return the text stream, not owned
    std::ostream const* outputStream() const { return outputStream_; }
    /// The binary stream.
    /// @return the binary stream, not owned
    std::ostream* binaryOutputStream() { return binaryOutputStream_; }
    /// The binary stream.
    /// @return the binary stream, not owned
    std::ostream const* binaryOutputStream() const { return binaryOutputStream_; }
    /// Writes the text from now on to code.
    /// @param code the new text stream; not owned
    void setOutputStream(std::ostream& code) { outputStream_ = &code; }
    /// Writes the blocks from now on to data. The offsets keep counting from
    /// where they were: the new stream is taken to continue the old one.
    /// @param data the new binary stream; not owned
    void setBinaryOutputStream(std::ostream& data) { binaryOutputStream_ = &data; }

    /// Bytes written to the binary stream so far.
    /// @return the offset the next block starts at
    std::uint32_t binaryOffset() const { return binaryOffset_; }
    /// Whether each recorded call ends with a file-and-line comment.
    /// @return as given at construction
    bool lineComments() const { return lineComments_; }

#define ORU_GL_OPERATION_TAIL override
#include "oru_ogl/extensionator/OpenGLInterceptorOperations.inc"
#undef ORU_GL_OPERATION_TAIL

private:
    // Binary blocks: the length field, then the bytes. Two widths of length
    // field are part of the recorded format.
    void writeBlock(std::uint32_t length, void const* bytes);
    void writeLongBlock(std::uint64_t length, void const* bytes);

    // The statements that seek to the block at `offset` and read it into
    // `std::vector<char> data`.
    void readBackHead(detail::CallText& t, std::uint32_t offset, bool initialisedSize) const;

    void recordNames(char const* glName, char const* file, unsigned int line, GLsizei n, void const* names,
                     char const* elementType);
    void recordGenNames(char const* glName, char const* file, unsigned int line, GLsizei n, char const* array);
    void recordUniform(char const* glName, char const* file, unsigned int line, GLint location, GLsizei count,
                       unsigned int components, void const* values, char const* elementType);
    void recordUniformMatrix2(char const* glName, GLint location, GLsizei count, GLboolean transpose,
                              GLfloat const* values);
    void recordUniformLocation(char const* glName, char const* file, unsigned int line, char const* name,
                               void (*program)(detail::CallText&, GLuint), GLuint object);
    void recordShaderSource(char const* file, unsigned int line, bool arb, GLuint shader, GLsizei count,
                            GLchar const* const* strings, GLint const* lengths);
    template <class... Kinds, class... Values>
    void recordScratchValue(char const* file, unsigned int line, char const* element, char const* glName,
                            Values... values);
    void recordScratchArray(char const* glName, char const* file, unsigned int line, char const* element,
                            bool arbObject, GLuint object, GLenum pname);
    void recordFloatVector(char const* glName, char const* file, unsigned int line, bool hasTarget, GLenum target,
                           unsigned int size, GLfloat const* v);
    void recordIntVector(char const* glName, char const* file, unsigned int line, GLenum target, unsigned int size,
                         GLint const* v);
    void recordSubImage(char const* glName, char const* file, unsigned int line, GLenum target, GLint level,
                        GLint xoffset, GLint yoffset, GLsizei width, GLsizei height, GLenum format, GLenum type,
                        GLvoid const* pixels);
    // Bytes of a pixel upload, or false (and the warning written) when the
    // format or type is not one the recorder knows.
    bool pixelBytes(GLenum format, GLenum type, GLsizei width, GLsizei height, std::uint32_t& bytes);
    void lineEnd(detail::CallText& t, char const* file, unsigned int line) const;
    // A 4-byte-length block of matrix elements and the generic read-back around callLine.
    void recordMatrix(char const* file, unsigned int line, std::uint32_t length, void const* elements,
                      char const* callLine);

    std::ostream* outputStream_;
    std::ostream* binaryOutputStream_;
    std::uint32_t binaryOffset_;
    bool lineComments_;
    detail::FloatTextCache floatTexts_;
};

} // namespace OGL
} // namespace Oru

#endif
