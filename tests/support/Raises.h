#ifndef ORU_TESTS_RAISES_H
#define ORU_TESTS_RAISES_H

#include "oru_core/Exceptions.h"

#include <gtest/gtest.h>

#include <string>

namespace OruTest
{

/// Whether f raises an InternalException from file (short path, as the
/// library reports it) with exactly the message, at line unless line is 0.
/// Anything else, including no exception at all, fails with what happened.
template <class F>
::testing::AssertionResult raises(F f, char const* file, int line, std::string const& message)
{
    try
    {
        f();
    }
    catch (Oru::InternalException const& e)
    {
        if (std::string(e.file()) != file || (line != 0 && e.line() != line) || message != e.message())
            return ::testing::AssertionFailure() << "raised " << e.what() << "; expected " << file << "(" << line
                                                 << "): " << message;
        return ::testing::AssertionSuccess();
    }
    catch (std::exception const& e)
    {
        return ::testing::AssertionFailure() << "raised another exception: " << e.what();
    }
    return ::testing::AssertionFailure() << "raised nothing; expected " << file << "(" << line << "): " << message;
}

} // namespace OruTest

#endif
