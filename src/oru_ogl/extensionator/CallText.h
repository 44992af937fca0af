#ifndef ORU_OGL_EXTENSIONATOR_CALLTEXT_H
#define ORU_OGL_EXTENSIONATOR_CALLTEXT_H

// Internal to the library: the text writer of the tracer and the recorder.

#include "oru_ogl/TokenName.h"
#include "oru_ogl/extensionator/FloatTextCache.h"
#include "oru_ogl/extensionator/GLTypes.h"

#include <cstddef>
#include <cstdint>
#include <cstring>
#include <ostream>

namespace Oru
{
namespace OGL
{
namespace detail
{

/// Copies n bytes, n at most 16, without a call: the C runtime's memcpy lives
/// in another DLL, and some runtimes (Wine's msvcrt) copy a few bytes slowly.
/// Two overlapping fixed-size moves cover every length of a class.
inline void copyShort(char* out, char const* in, std::size_t n)
{
    if (n >= 8)
    {
        std::uint64_t head, tail;
        std::memcpy(&head, in, 8);
        std::memcpy(&tail, in + n - 8, 8);
        std::memcpy(out, &head, 8);
        std::memcpy(out + n - 8, &tail, 8);
    }
    else if (n >= 4)
    {
        std::uint32_t head, tail;
        std::memcpy(&head, in, 4);
        std::memcpy(&tail, in + n - 4, 4);
        std::memcpy(out, &head, 4);
        std::memcpy(out + n - 4, &tail, 4);
    }
    else if (n > 0)
    {
        out[0] = in[0];
        out[n / 2] = in[n / 2];
        out[n - 1] = in[n - 1];
    }
}

/// Copies n bytes; up to 64 in sixteen-byte moves, more with memcpy.
void copyBytes(char* out, char const* in, std::size_t n);

/// strlen, sixteen bytes at a time where the processor allows.
std::size_t textLength(char const* text);

/// The text of one traced or recorded call, gathered on the stack and handed to
/// the stream with one write. Tracing and recording run on every GL call, so
/// nothing here allocates or consults the stream's locale or flags:
/// - integers in decimal, floating point as a default-formatted stream writes
///   it (%g, six significant digits);
/// - pointers as libstdc++ writes them, "0" for null and otherwise "0x" and
///   lowercase hex digits, on every toolchain. Recorded text then reads the
///   same whoever built the library, and a handle that the recording writes
///   behind its own "0x" (handleDigits) stays a valid literal.
class CallText
{
public:
    explicit CallText(std::ostream& out) : out_(out), floats_(nullptr), end_(buffer_) {}
    /// Reuses and keeps the text of the floats it writes in `floats`.
    CallText(std::ostream& out, FloatTextCache& floats) : out_(out), floats_(&floats), end_(buffer_) {}
    CallText(CallText const&) = delete;
    CallText& operator=(CallText const&) = delete;

    template <std::size_t N>
    void put(char const (&literal)[N])
    {
        if (N - 1 > static_cast<std::size_t>(buffer_ + sizeof(buffer_) - end_))
            return appendLong(literal, N - 1);
        std::memcpy(end_, literal, N - 1); // a known size: moves, not a call
        end_ += N - 1;
    }
    void append(char const* text, std::size_t length)
    {
        if (length > static_cast<std::size_t>(buffer_ + sizeof(buffer_) - end_))
            return appendLong(text, length);
        if (length <= 16)
            copyShort(end_, text, length);
        else
            copyBytes(end_, text, length);
        end_ += length;
    }
    void cString(char const* text) { append(text, textLength(text)); }

    /// One raw byte, as a stream inserts a char (GLbyte, GLubyte).
    void character(char c)
    {
        reserve(1);
        *end_++ = c;
    }
    void signedNumber(long long value);
    void unsignedNumber(unsigned long long value);
    void enumName(GLenum value) { cString(TokenName(value)); }
    void boolean(GLboolean value) { cString(boolToString(value)); }
    /// "(GLhandleARB)" and the handle in decimal.
    void handleARB(GLhandleARB value)
    {
        put("(GLhandleARB)");
        unsignedNumber(value);
    }
    /// makeFloat(<bit pattern as a signed 32-bit decimal>) /* <value> */
    void glFloat(float value);
    /// The bit pattern of a float as a signed 32-bit decimal.
    void floatBits(float value);
    /// %g with six significant digits, as std::ostream's default format.
    void number(double value);
    void address(void const* pointer);
    /// The hex digits of a pointer without any prefix ("0" for null).
    void handleDigits(void const* pointer);
    /// The bytes up to the first zero; a null pointer is written as an address.
    void text(void const* bytes);

    /// "<file>:<line>: ", the head of a trace line.
    void location(char const* file, unsigned int line);
    /// "\t\t// <file>, line <line>\n" with comments on, else "\n".
    void lineEnd(bool comments, char const* file, unsigned int line)
    {
        if (!comments)
            return character('\n');
        put("\t\t// ");
        cString(file);
        put(", line ");
        unsignedNumber(line);
        character('\n');
    }

    /// Hands the gathered text to the stream.
    void send()
    {
        out_.write(buffer_, end_ - buffer_);
        end_ = buffer_;
    }

private:
    void reserve(std::size_t length)
    {
        if (length > static_cast<std::size_t>(buffer_ + sizeof(buffer_) - end_))
            send();
    }
    void appendLong(char const* text, std::size_t length);
    // %g writers into room made by reserve(kNumberLength).
    static const std::size_t kNumberLength = 32;
    static char* writeNumber(char* out, double value);
    static char* sixDigits(double value, char* out);

    std::ostream& out_;
    FloatTextCache* floats_;
    char* end_;
    // Large enough for all but a few calls with long names or strings, which
    // then take more than one write.
    char buffer_[512];
};

/// A text known at compile time, written with one write.
// How an argument is written, by its kind in the operations list (the Kinds of
// a row name these): each kind is one member of CallText.
namespace argument
{
#define ORU_ARGUMENT_KIND(Kind, member)                                                                  \
    struct Kind                                                                                            \
    {                                                                                                      \
        template <class Value>                                                                             \
        static void write(CallText& text, Value value) { text.member(value); }                             \
    };
ORU_ARGUMENT_KIND(EnumName, enumName)
ORU_ARGUMENT_KIND(Boolean, boolean)
ORU_ARGUMENT_KIND(UnsignedNumber, unsignedNumber)
ORU_ARGUMENT_KIND(SignedNumber, signedNumber)
ORU_ARGUMENT_KIND(Character, character)
ORU_ARGUMENT_KIND(GlFloat, glFloat)
ORU_ARGUMENT_KIND(Number, number)
ORU_ARGUMENT_KIND(HandleARB, handleARB)
ORU_ARGUMENT_KIND(Text, text)
ORU_ARGUMENT_KIND(Address, address)
#undef ORU_ARGUMENT_KIND
} // namespace argument

// The arguments of a call, each written as its kind says, separated by ", ".
template <class... Kinds, class... Values>
inline void writeArguments(CallText& text, Values... values)
{
    static_assert(sizeof...(Kinds) == sizeof...(Values), "one kind per argument");
    bool first = true;
    (void)first; // no arguments at all
    ((first ? void(first = false) : text.put(", "), Kinds::write(text, values)), ...);
}

template <std::size_t N>
inline void writeLiteral(std::ostream& out, char const (&literal)[N])
{
    out.write(literal, N - 1);
}

} // namespace detail
} // namespace OGL
} // namespace Oru

#endif
