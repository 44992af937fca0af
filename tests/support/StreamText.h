#ifndef ORU_TESTS_SUPPORT_STREAMTEXT_H
#define ORU_TESTS_SUPPORT_STREAMTEXT_H

// What the tracer and the recorders write, read back as the tests expect it.

#include <cstdint>
#include <cstdio>
#include <sstream>
#include <string>

namespace OruTest
{

/// A pointer's lowercase hex digits, without a prefix.
inline std::string hexDigits(void const* p)
{
    char text[32];
    std::snprintf(text, sizeof(text), "%llx", static_cast<unsigned long long>(reinterpret_cast<std::uintptr_t>(p)));
    return text;
}

/// An address as the tracer and the recorder write it: "0", or "0x" and the hex digits.
inline std::string hexAddress(void const* p)
{
    return p ? "0x" + hexDigits(p) : std::string("0");
}

/// What the stream holds; leaves it empty.
inline std::string take(std::ostringstream& out)
{
    std::string text = out.str();
    out.str("");
    return text;
}

} // namespace OruTest

#endif
