#ifndef ORU_TESTS_RAISES_H
#define ORU_TESTS_RAISES_H

#include "oru_ogl/ExceptionOGL.h"

#include "oru_core/Exceptions.h"

#include <gtest/gtest.h>

#include <functional>
#include <initializer_list>
#include <ostream>
#include <string>
#include <type_traits>
#include <vector>

namespace OruTest
{

/// What an action raised: file, line, message and, for a GL error, its number.
struct Raised
{
    bool raised = false;
    std::string file;
    int line = 0;
    std::string message;
    unsigned int error = 0;

    static Raised at(std::string file, int line, std::string message, unsigned int error = 0)
    {
        return Raised{true, std::move(file), line, std::move(message), error};
    }
    bool operator==(Raised const& o) const
    {
        return raised == o.raised && file == o.file && line == o.line && message == o.message && error == o.error;
    }
    friend std::ostream& operator<<(std::ostream& out, Raised const& r)
    {
        if (!r.raised)
            return out << "nothing raised";
        return out << r.file << "(" << r.line << "): \"" << r.message << "\" error " << r.error;
    }
};

/// Runs action and reports the exception of type E it raised, if any; other
/// exceptions pass through and fail the test.
template <class E = Oru::InternalException, class Action>
Raised raisedBy(Action&& action)
{
    try
    {
        action();
    }
    catch (E const& e)
    {
        Raised r = Raised::at(e.file(), e.line(), e.message());
        if constexpr (std::is_base_of<Oru::OGL::ExceptionOGL, E>::value)
            r.error = e.errorNumber();
        return r;
    }
    return Raised();
}

/// Whether f raises an InternalException from file with exactly the message,
/// at line unless line is 0.
template <class F>
::testing::AssertionResult raises(F f, char const* file, int line, std::string const& message)
{
    const Raised r = raisedBy(f);
    if (r.raised && r.file == file && (line == 0 || r.line == line) && r.message == message)
        return ::testing::AssertionSuccess();
    return ::testing::AssertionFailure() << r << "; expected " << file << "(" << line << "): " << message;
}

/// Every value of an enumeration, in order from 0, against the GL values gl
/// lists: both translations, then the refusals, from file and with
/// !"text" as the message, of one value past each end and of notInTable.
template <class E>
void expectTranslations(char const* file, std::vector<unsigned int> const& gl, unsigned int (*toGL)(E),
                        E (*fromGL)(unsigned int), unsigned int notInTable, std::string const& text)
{
    for (std::size_t value = 0; value < gl.size(); ++value)
    {
        const E e = static_cast<E>(value);
        EXPECT_EQ(gl[value], toGL(e)) << text << " value " << value;
        EXPECT_EQ(e, fromGL(gl[value])) << text << " value " << value;
    }
    const std::string assertion = "!\"" + text + "\"";
    EXPECT_TRUE(raises([&] { toGL(static_cast<E>(gl.size())); }, file, 0, assertion));
    EXPECT_TRUE(raises([&] { toGL(static_cast<E>(-1)); }, file, 0, assertion));
    EXPECT_TRUE(raises([&] { fromGL(notInTable); }, file, 0, assertion));
}

/// One row of a refusal table: the line (0: any) and message of the
/// InternalException that action must raise.
struct Refusal
{
    int line;
    std::string message;
    std::function<void()> action;
};

/// Runs the rows in order; each must raise its message at its line of file.
inline void expectRefusals(char const* file, std::initializer_list<Refusal> rows)
{
    for (Refusal const& row : rows)
        EXPECT_TRUE(raises(row.action, file, row.line, row.message)) << "row " << (&row - rows.begin());
}

} // namespace OruTest

#endif
