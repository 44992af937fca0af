// The exception hierarchy as seen from a client of the DLLs, and the four
// enforcement forms.
#include "oru_ogl/Enforce.h"
#include "oru_ogl/ExceptionOGL.h"
#include "oru_ogl/ogl/BufferFormat.h"

#include <gtest/gtest.h>

#include <cstring>
#include <string>

using Oru::OGL::BufferFormat;
using Oru::OGL::ExceptionOGL;

namespace
{

// Throws an InternalException from inside oru_ogl.dll.
void throwFromLibrary()
{
    BufferFormat format(static_cast<BufferFormat::tePredefined>(24));
}

template <class Caught>
bool caughtAs(void (*thrower)())
{
    try
    {
        thrower();
    }
    catch (Caught const&)
    {
        return true;
    }
    catch (...)
    {
        return false;
    }
    return false;
}

void throwOGL()
{
    throw ExceptionOGL("client.cpp", 77, "invalid enumerant", 0x0500);
}

} // namespace

TEST(ExceptionTest, InternalExceptionFromTheLibraryIsCaughtAsEveryBase)
{
    EXPECT_TRUE(caughtAs<Oru::InternalException>(throwFromLibrary));
    EXPECT_TRUE(caughtAs<Oru::LogicalException>(throwFromLibrary));
    EXPECT_TRUE(caughtAs<Oru::ExceptionBase>(throwFromLibrary));
    EXPECT_TRUE(caughtAs<std::exception>(throwFromLibrary));

    EXPECT_FALSE(caughtAs<ExceptionOGL>(throwFromLibrary));
    EXPECT_FALSE(caughtAs<Oru::ParameterException>(throwFromLibrary));
    EXPECT_FALSE(caughtAs<Oru::ResourceException>(throwFromLibrary));
    EXPECT_FALSE(caughtAs<Oru::CPURuntimeException>(throwFromLibrary));
}

TEST(ExceptionTest, LibraryExceptionNamesItsShortSourcePathLineAndMessage)
{
    try
    {
        throwFromLibrary();
        FAIL() << "no exception";
    }
    catch (Oru::ExceptionBase const& e)
    {
        EXPECT_STREQ("ogl/BufferFormat.cpp", e.file());
        EXPECT_GT(e.line(), 0);
        EXPECT_STREQ("Trying to construct an buffer-format not recognized by this method", e.message());
        const std::string what = e.what();
        EXPECT_EQ(std::string("ogl/BufferFormat.cpp(") + std::to_string(e.line()) +
                      "): Trying to construct an buffer-format not recognized by this method",
                  what);
    }
}

TEST(ExceptionTest, ExceptionOGLKeepsItsErrorNumberThroughCopies)
{
    ExceptionOGL original("a.cpp", 12, "invalid operation", 0x0502);
    EXPECT_EQ(0x0502u, original.errorNumber());

    ExceptionOGL copy(original);
    EXPECT_EQ(0x0502u, copy.errorNumber());
    EXPECT_STREQ("a.cpp", copy.file());
    EXPECT_EQ(12, copy.line());
    EXPECT_STREQ("invalid operation", copy.message());

    ExceptionOGL assigned("b.cpp", 1, "other", 0x0500);
    assigned = original;
    EXPECT_EQ(0x0502u, assigned.errorNumber());
    EXPECT_STREQ("a.cpp", assigned.file());
    EXPECT_STREQ("invalid operation", assigned.message());
}

TEST(ExceptionTest, ExceptionOGLIsALogicalExceptionButNotAnInternalOne)
{
    EXPECT_TRUE(caughtAs<ExceptionOGL>(throwOGL));
    EXPECT_TRUE(caughtAs<Oru::LogicalException>(throwOGL));
    EXPECT_TRUE(caughtAs<Oru::ExceptionBase>(throwOGL));
    EXPECT_TRUE(caughtAs<std::exception>(throwOGL));
    EXPECT_FALSE(caughtAs<Oru::InternalException>(throwOGL));
    EXPECT_FALSE(caughtAs<Oru::ParameterException>(throwOGL));
}

TEST(ExceptionTest, SlicedCopyToLogicalExceptionKeepsFileLineAndMessage)
{
    ExceptionOGL derived("c.cpp", 5, "out of memory", 0x0505);
    Oru::LogicalException sliced(derived);
    EXPECT_STREQ("c.cpp", sliced.file());
    EXPECT_EQ(5, sliced.line());
    EXPECT_STREQ("c.cpp(5): out of memory", sliced.what());
}

TEST(ExceptionTest, CoreExceptionsOutsideTheLogicalBranch)
{
    Oru::CPURuntimeException cpu("d.cpp", 9, "thread start failed", 1455);
    EXPECT_EQ(1455u, cpu.errorCode());
    EXPECT_STREQ("d.cpp(9): thread start failed", cpu.what());
    Oru::ResourceException resource("e.cpp", 3, "no handle");
    EXPECT_STREQ("no handle", resource.message());
    Oru::ExceptionBase const& base = resource;
    EXPECT_STREQ("e.cpp", base.file());
}

namespace
{

std::string enforcementText(void (*check)())
{
    try
    {
        check();
    }
    catch (Oru::InternalException const& e)
    {
        EXPECT_STREQ("tests/ExceptionTest.cpp", e.file());
        return e.message();
    }
    return "<no exception>";
}

} // namespace

TEST(ExceptionTest, EnforcementTextsTakeTheFourForms)
{
    EXPECT_EQ("Enforce pContext != NULL", enforcementText([] {
                  void* pContext = NULL;
                  ORU_ENFORCE(pContext != NULL);
              }));
    EXPECT_EQ("pInstance_ == 0", enforcementText([] {
                  int pInstance_ = 1;
                  ORU_VERIFY(pInstance_ == 0);
              }));
    EXPECT_EQ("!\"Filter enums are not all properly translated.\"", enforcementText([] {
                  ORU_VERIFY(!"Filter enums are not all properly translated.");
              }));
    EXPECT_EQ("Range error: nSize > 0", enforcementText([] {
                  long long nSize = 0;
                  ORU_ENFORCE_RANGE(nSize > 0);
              }));
    EXPECT_EQ("Context::setPixelFormat invalid pixel format -1", enforcementText([] {
                  int index = -1;
                  ORU_THROW("Context::setPixelFormat invalid pixel format " << index);
              }));
}

TEST(ExceptionTest, EnforcementReportsTheLineOfTheCheck)
{
    int expectedLine = 0;
    try
    {
        expectedLine = __LINE__ + 1;
        ORU_VERIFY(1 + 1 == 3);
    }
    catch (Oru::InternalException const& e)
    {
        EXPECT_EQ(expectedLine, e.line());
        return;
    }
    FAIL() << "no exception";
}

TEST(ExceptionTest, PassingChecksThrowNothing)
{
    EXPECT_NO_THROW(ORU_ENFORCE(1 == 1));
    EXPECT_NO_THROW(ORU_VERIFY(2 > 1));
    EXPECT_NO_THROW(ORU_ENFORCE_RANGE(3 > 0));
}
