// The exception hierarchy as seen from a client of the DLLs, and the four
// enforcement forms.
#include "oru_ogl/Enforce.h"
#include "oru_ogl/ExceptionOGL.h"
#include "oru_ogl/ogl/BufferFormat.h"

#include "support/Raises.h"

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

// Across the DLL boundary: an InternalException from the library, and an
// ExceptionOGL, which is a LogicalException but not an internal one.
TEST(ExceptionTest, ExceptionsAreCaughtAsTheirBasesOnly)
{
    for (void (*thrower)() : { throwFromLibrary, throwOGL })
    {
        const bool internal = thrower == throwFromLibrary;
        EXPECT_EQ(internal, caughtAs<Oru::InternalException>(thrower));
        EXPECT_EQ(!internal, caughtAs<ExceptionOGL>(thrower));
        EXPECT_TRUE(caughtAs<Oru::LogicalException>(thrower));
        EXPECT_TRUE(caughtAs<Oru::ExceptionBase>(thrower));
        EXPECT_TRUE(caughtAs<std::exception>(thrower));
        EXPECT_FALSE(caughtAs<Oru::ParameterException>(thrower));
        EXPECT_FALSE(caughtAs<Oru::ResourceException>(thrower));
        EXPECT_FALSE(caughtAs<Oru::CPURuntimeException>(thrower));
    }
}

// The root is a class of its own: thrown and caught by value, copied and
// assigned, and a copy sliced from a derived exception keeps nothing of it.
TEST(ExceptionTest, TheRootIsThrownAndCaughtByValue)
{
    try
    {
        throw Oru::ExceptionBase();
    }
    catch (Oru::ExceptionBase const& caught)
    {
        Oru::ExceptionBase copy(caught);
        copy = caught;
        EXPECT_STREQ("Oru::ExceptionBase", copy.what());
        EXPECT_STREQ("", copy.file());
        EXPECT_EQ(0, copy.line());
        EXPECT_STREQ("", copy.message());
    }
    const ExceptionOGL derived("client.cpp", 5, "invalid value", 0x0501);
    const Oru::ExceptionBase sliced = derived;
    EXPECT_STREQ("Oru::ExceptionBase", sliced.what());
    EXPECT_EQ(0, sliced.line());
    EXPECT_THROW(throw sliced, Oru::ExceptionBase);
    EXPECT_FALSE(caughtAs<Oru::LogicalException>([] { throw Oru::ExceptionBase(); }));
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
        const std::string message = "Trying to construct an buffer-format not recognized by this method";
        EXPECT_EQ(OruTest::Raised::at("ogl/BufferFormat.cpp", e.line(), message), OruTest::raisedBy(throwFromLibrary));
        EXPECT_GT(e.line(), 0);
        EXPECT_EQ("ogl/BufferFormat.cpp(" + std::to_string(e.line()) + "): " + message, e.what());
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
    const OruTest::Raised raised = OruTest::raisedBy(check);
    EXPECT_EQ("tests/ExceptionTest.cpp", raised.file);
    return raised.message;
}

} // namespace

TEST(ExceptionTest, EnforcementTextsTakeTheFourForms)
{
    EXPECT_NO_THROW(ORU_ENFORCE(1 == 1));
    EXPECT_NO_THROW(ORU_VERIFY(2 > 1));
    EXPECT_NO_THROW(ORU_ENFORCE_RANGE(3 > 0));
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
    const int line = __LINE__ + 1;
    EXPECT_EQ(line, OruTest::raisedBy([] { ORU_VERIFY(1 + 1 == 3); }).line);
}
