#include "oru_ogl/extensionator/CallText.h"

#include "oru_ogl/extensionator/Bits.h"

#include <charconv>
#include <cstdint>

#if defined(__SSE2__) || defined(_M_X64)
#include <emmintrin.h>
#define ORU_CALLTEXT_SSE2 1
#endif

namespace Oru
{
namespace OGL
{
namespace detail
{

namespace
{

const char kDigitPairs[] = "00010203040506070809101112131415161718192021222324252627282930313233343536373839"
                           "40414243444546474849505152535455565758596061626364656667686970717273747576777879"
                           "8081828384858687888990919293949596979899";

// Decimal digits of a value, written backwards from `end`, two at a time;
// returns the first.
template <class Unsigned>
char* decimalDigits(char* end, Unsigned value)
{
    while (value >= 100)
    {
        end -= 2;
        std::memcpy(end, kDigitPairs + 2 * (value % 100), 2);
        value /= 100;
    }
    if (value >= 10)
    {
        end -= 2;
        std::memcpy(end, kDigitPairs + 2 * value, 2);
        return end;
    }
    *--end = static_cast<char>('0' + value);
    return end;
}

// The same written forwards at `out`; returns the end.
char* writeUnsigned(char* out, unsigned long long value)
{
    char digits[24];
    char* end = digits + sizeof(digits);
    char* first = value <= 0xFFFFFFFFu ? decimalDigits(end, static_cast<std::uint32_t>(value)) : decimalDigits(end, value);
    copyBytes(out, first, static_cast<std::size_t>(end - first));
    return out + (end - first);
}

char* writeSigned(char* out, long long value)
{
    if (value < 0)
    {
        *out++ = '-';
        // The magnitude in unsigned arithmetic: -LLONG_MIN does not fit.
        return writeUnsigned(out, 0ull - static_cast<unsigned long long>(value));
    }
    return writeUnsigned(out, static_cast<unsigned long long>(value));
}

std::int32_t bitsOf(float value)
{
    std::int32_t bits;
    static_assert(sizeof(bits) == sizeof(value), "float is not 32 bits wide");
    std::memcpy(&bits, &value, sizeof(bits));
    return bits;
}

// Powers of ten from 1e-50 to 1e50: enough for every float and for the
// doubles that GL calls usually carry; the compiler rounds each correctly.
const double kPowersOfTen[] = {
    1e-50, 1e-49, 1e-48, 1e-47, 1e-46, 1e-45, 1e-44, 1e-43, 1e-42, 1e-41, 1e-40, 1e-39, 1e-38, 1e-37, 1e-36,
    1e-35, 1e-34, 1e-33, 1e-32, 1e-31, 1e-30, 1e-29, 1e-28, 1e-27, 1e-26, 1e-25, 1e-24, 1e-23, 1e-22, 1e-21,
    1e-20, 1e-19, 1e-18, 1e-17, 1e-16, 1e-15, 1e-14, 1e-13, 1e-12, 1e-11, 1e-10, 1e-9,  1e-8,  1e-7,  1e-6,
    1e-5,  1e-4,  1e-3,  1e-2,  1e-1,  1e0,   1e1,   1e2,   1e3,   1e4,   1e5,   1e6,   1e7,   1e8,   1e9,
    1e10,  1e11,  1e12,  1e13,  1e14,  1e15,  1e16,  1e17,  1e18,  1e19,  1e20,  1e21,  1e22,  1e23,  1e24,
    1e25,  1e26,  1e27,  1e28,  1e29,  1e30,  1e31,  1e32,  1e33,  1e34,  1e35,  1e36,  1e37,  1e38,  1e39,
    1e40,  1e41,  1e42,  1e43,  1e44,  1e45,  1e46,  1e47,  1e48,  1e49,  1e50,
};
const int kLowestPower = -50;
const int kHighestPower = 50;

double powerOfTen(int k)
{
    return kPowersOfTen[k - kLowestPower];
}

} // namespace

void copyBytes(char* out, char const* in, std::size_t n)
{
    if (n <= 16)
        return copyShort(out, in, n);
    if (n > 64)
    {
        std::memcpy(out, in, n);
        return;
    }
    // Sixteen-byte moves, the last one overlapping the one before.
    char chunk[16];
    for (std::size_t done = 0; done + 16 < n; done += 16)
    {
        std::memcpy(chunk, in + done, 16);
        std::memcpy(out + done, chunk, 16);
    }
    std::memcpy(chunk, in + n - 16, 16);
    std::memcpy(out + n - 16, chunk, 16);
}

std::size_t textLength(char const* text)
{
#if ORU_CALLTEXT_SSE2
    // Aligned sixteen-byte loads: they never cross into another page, so
    // reading a few bytes before the text or past its end is harmless.
    const std::uintptr_t start = reinterpret_cast<std::uintptr_t>(text);
    const __m128i zero = _mm_setzero_si128();
    char const* block = reinterpret_cast<char const*>(start & ~static_cast<std::uintptr_t>(15));
    unsigned int zeros = static_cast<unsigned int>(
        _mm_movemask_epi8(_mm_cmpeq_epi8(_mm_load_si128(reinterpret_cast<__m128i const*>(block)), zero)));
    zeros &= ~0u << (start & 15); // bytes before the text do not count
    while (zeros == 0)
    {
        block += 16;
        zeros = static_cast<unsigned int>(
            _mm_movemask_epi8(_mm_cmpeq_epi8(_mm_load_si128(reinterpret_cast<__m128i const*>(block)), zero)));
    }
    return static_cast<std::size_t>(block + lowestSetBit(zeros) - text);
#else
    return std::strlen(text);
#endif
}

// %.6g of a value, as printf writes it, by rounding in double arithmetic: the
// value scaled to six digits before the point is exact to about 1e-9, so its
// rounding is certain unless it lies within 1e-6 of a half. Returns the end
// of the text, or null for what it leaves to the exact conversion: such near
// halves (including exact ties, which printf rounds to even), zero, infinities,
// NaN, subnormals, and magnitudes beyond the table.
char* CallText::sixDigits(double value, char* out)
{
    std::uint64_t bits;
    std::memcpy(&bits, &value, sizeof(bits));
    const int binary = static_cast<int>((bits >> 52) & 0x7FF) - 1023; // 2^binary <= |value| < 2^(binary + 1)
    if (binary == 1024 || binary == -1023)
        return nullptr; // infinity, NaN, zero or subnormal
    const double magnitude = value < 0 ? -value : value;
    // Within one of the decimal exponent; the loop below settles it.
    int exponent = binary >= 0 ? (binary * 78913) >> 18 : -((-binary * 78913 + 262143) >> 18);
    double scaled = 0;
    for (int tries = 0; tries < 4; ++tries)
    {
        if (5 - exponent < kLowestPower || 5 - exponent > kHighestPower)
            return nullptr;
        scaled = magnitude * powerOfTen(5 - exponent);
        const bool nearTop = scaled > 999999.5 - 1e-6 && scaled < 999999.5 + 1e-6;
        const bool nearBottom = scaled > 99999.5 - 1e-6 && scaled < 99999.5 + 1e-6;
        if (nearTop || nearBottom)
            return nullptr; // which way it rounds decides the exponent
        if (scaled >= 999999.5)
            ++exponent;
        else if (scaled < 99999.5)
            --exponent;
        else
            break;
    }
    if (scaled < 99999.5 || scaled >= 999999.5)
        return nullptr;
    unsigned int digits = static_cast<unsigned int>(scaled); // positive: truncation is floor
    const double fraction = scaled - digits;
    if (fraction > 0.5 - 1e-6 && fraction < 0.5 + 1e-6)
        return nullptr;
    digits += fraction > 0.5 ? 1 : 0;
    if (digits == 1000000)
    {
        digits = 100000;
        ++exponent;
    }
    // The six digits, padded so that eight-byte moves may read past them.
    char text[16];
    decimalDigits(text + 6, digits);
    int significant = 6;
    while (digits % 10 == 0)
    {
        digits /= 10;
        --significant;
    }

    char* p = out;
    if (value < 0)
        *p++ = '-';
    if (exponent < -4 || exponent >= 6)
    {
        *p++ = text[0];
        if (significant > 1)
        {
            *p++ = '.';
            std::memcpy(p, text + 1, 8);
            p += significant - 1;
        }
        *p++ = 'e';
        *p++ = exponent < 0 ? '-' : '+';
        const int e = exponent < 0 ? -exponent : exponent;
        if (e >= 100)
            *p++ = static_cast<char>('0' + e / 100);
        *p++ = static_cast<char>('0' + e / 10 % 10);
        *p++ = static_cast<char>('0' + e % 10);
    }
    else if (exponent >= 0)
    {
        // All digits, then the fraction moved one place on for the point.
        std::memcpy(p, text, 8);
        if (significant > exponent + 1)
        {
            std::memcpy(p + exponent + 2, text + exponent + 1, 8);
            p[exponent + 1] = '.';
            p += significant + 1;
        }
        else
            p += exponent + 1;
    }
    else
    {
        // "0.", up to three zeros, the digits.
        std::memcpy(p, "0.000", 5);
        std::memcpy(p + 1 - exponent, text, 8);
        p += 1 - exponent + significant;
    }
    return p;
}

void CallText::appendLong(char const* text, std::size_t length)
{
    send();
    if (length <= sizeof(buffer_))
    {
        copyBytes(end_, text, length);
        end_ += length;
        return;
    }
    out_.write(text, static_cast<std::streamsize>(length));
}

void CallText::unsignedNumber(unsigned long long value)
{
    reserve(24);
    end_ = writeUnsigned(end_, value);
}

void CallText::signedNumber(long long value)
{
    reserve(24);
    end_ = writeSigned(end_, value);
}

char* CallText::writeNumber(char* out, double value)
{
    if (value != value)
    {
        std::memcpy(out, "nan", 3); // the stream writes no sign for a NaN, to_chars does
        return out + 3;
    }
    if (char* end = sixDigits(value, out))
        return end;
    // to_chars with a precision is specified as printf's %.6g in the C locale,
    // which is what a default-formatted stream writes; exact, and slower than
    // the rounding above.
    return std::to_chars(out, out + kNumberLength, value, std::chars_format::general, 6).ptr;
}

void CallText::number(double value)
{
    reserve(kNumberLength);
    end_ = writeNumber(end_, value);
}

void CallText::floatBits(float value)
{
    signedNumber(bitsOf(value));
}

void CallText::glFloat(float value)
{
    // Four pieces, one room check; a cached text is copied whole from or into that room.
    const std::size_t room = 10 + 11 + 5 + kNumberLength + 3;
    static_assert(FloatTextCache::kTextRoom <= room, "a cached float text is copied whole");
    reserve(room);
    const std::int32_t bits = bitsOf(value);
    FloatTextCache::Entry* entry = nullptr;
    if (floats_)
    {
        entry = &floats_->entries[(static_cast<std::uint32_t>(bits) * 2654435769u) >> 26];
        if (entry->length != 0 && entry->bits == static_cast<std::uint32_t>(bits))
        {
            std::memcpy(end_, entry->text, FloatTextCache::kTextRoom); // room was reserved
            end_ += entry->length;
            return;
        }
    }
    char* p = end_;
    std::memcpy(p, "makeFloat(", 10);
    p = writeSigned(p + 10, bits);
    std::memcpy(p, ") /* ", 5);
    p = writeNumber(p + 5, value);
    std::memcpy(p, " */", 3);
    p += 3;
    if (entry && p - end_ <= static_cast<std::ptrdiff_t>(sizeof(entry->text)))
    {
        entry->bits = static_cast<std::uint32_t>(bits);
        entry->length = static_cast<unsigned char>(p - end_);
        std::memcpy(entry->text, end_, FloatTextCache::kTextRoom); // the buffer holds that much
    }
    end_ = p;
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
