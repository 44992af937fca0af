#ifndef ORU_OGL_OGL_TWOWAYTABLE_H
#define ORU_OGL_OGL_TWOWAYTABLE_H

// A translation between one of the layer's enumerations and GL values: one
// row per pair, read forwards by X2GL and backwards by GL2X, so the two
// directions cannot drift apart. A value without a row is a programming error
// of the caller (an integer cast into the enumeration, usually) and raises
// InternalException with the table's own text, from the file and line that
// the table names: those are what callers match on. Private to the library.

#include "oru_ogl/Enforce.h"

#include <cstddef>

namespace Oru
{
namespace OGL
{

template <class E>
class TwoWayTable
{
public:
    struct Row
    {
        E value;
        unsigned int gl;
    };

    /// rows must outlive the table (a static array, in practice); text is the
    /// refusal's literal, e.g. "!\"Filter enums are not all properly translated.\"".
    template <std::size_t N>
    constexpr TwoWayTable(Row const (&rows)[N], char const* file, int line, char const* text)
        : rows_(rows)
        , count_(N)
        , file_(file)
        , line_(line)
        , text_(text)
    {
    }

    unsigned int toGL(E value) const
    {
        for (std::size_t i = 0; i < count_; ++i)
            if (rows_[i].value == value)
                return rows_[i].gl;
        detail::raiseInternal(file_, line_, text_);
    }

    E fromGL(unsigned int gl) const
    {
        for (std::size_t i = 0; i < count_; ++i)
            if (rows_[i].gl == gl)
                return rows_[i].value;
        detail::raiseInternal(file_, line_, text_);
    }

private:
    Row const* rows_;
    std::size_t count_;
    char const* file_;
    int line_;
    char const* text_;
};

} // namespace OGL
} // namespace Oru

#endif
