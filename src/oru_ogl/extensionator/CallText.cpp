#include "oru_ogl/extensionator/CallText.h"

#include <charconv>
#include <cstdint>

namespace Oru
{
namespace OGL
{
namespace detail
{

namespace
{

// Decimal digits of a value, written backwards from `end`; returns the first.
char* decimalDigits(char* end, unsigned long long value)
{
    do
    {
        *--end = static_cast<char>('0' + value % 10);
        value /= 10;
    } while (value != 0);
    return end;
}

std::int32_t bitsOf(float value)
{
    std::int32_t bits;
    static_assert(sizeof(bits) == sizeof(value), "float is not 32 bits wide");
    std::memcpy(&bits, &value, sizeof(bits));
    return bits;
}

} // namespace

void CallText::appendLong(char const* text, std::size_t length)
{
    send();
    if (length <= sizeof(buffer_))
    {
        std::memcpy(end_, text, length);
        end_ += length;
        return;
    }
    out_.write(text, static_cast<std::streamsize>(length));
}

void CallText::unsignedNumber(unsigned long long value)
{
    char digits[24];
    char* end = digits + sizeof(digits);
    char* first = decimalDigits(end, value);
    append(first, end - first);
}

void CallText::signedNumber(long long value)
{
    char digits[24];
    char* end = digits + sizeof(digits);
    // The magnitude in unsigned arithmetic: -LLONG_MIN does not fit.
    const unsigned long long magnitude = value < 0 ? 0ull - static_cast<unsigned long long>(value)
                                                   : static_cast<unsigned long long>(value);
    char* first = decimalDigits(end, magnitude);
    if (value < 0)
        *--first = '-';
    append(first, end - first);
}

void CallText::number(double value)
{
    // to_chars with a precision is specified as printf's %.6g in the C locale,
    // which is what a default-formatted stream writes.
    char digits[32];
    const std::to_chars_result result =
        std::to_chars(digits, digits + sizeof(digits), value, std::chars_format::general, 6);
    append(digits, result.ptr - digits);
}

void CallText::floatBits(float value)
{
    signedNumber(bitsOf(value));
}

void CallText::glFloat(float value)
{
    put("makeFloat(");
    floatBits(value);
    put(") /* ");
    number(value);
    put(" */");
}

void CallText::handleDigits(void const* pointer)
{
    static char const hex[] = "0123456789abcdef";
    std::uintptr_t value = reinterpret_cast<std::uintptr_t>(pointer);
    char digits[2 * sizeof(value)];
    char* end = digits + sizeof(digits);
    char* first = end;
    do
    {
        *--first = hex[value & 0xF];
        value >>= 4;
    } while (value != 0);
    append(first, end - first);
}

void CallText::address(void const* pointer)
{
    if (pointer)
        put("0x");
    handleDigits(pointer);
}

void CallText::text(void const* bytes)
{
    if (!bytes)
        return address(bytes);
    cString(static_cast<char const*>(bytes));
}

void CallText::location(char const* file, unsigned int line)
{
    cString(file);
    character(':');
    unsignedNumber(line);
    put(": ");
}

} // namespace detail
} // namespace OGL
} // namespace Oru
