#ifndef ORU_TESTS_GLTEST_H
#define ORU_TESTS_GLTEST_H

#include "RawWglContext.h"

#include <gtest/gtest.h>

#include <memory>

namespace OruTest
{

/// Fixture for tests that need a real, current OpenGL context. One context
/// serves the whole test program; each test starts with it current.
class GLTest : public ::testing::Test
{
protected:
    static void SetUpTestSuite();
    void SetUp() override;

    static RawWglContext& context();

private:
    static std::unique_ptr<RawWglContext> context_;
};

} // namespace OruTest

#endif
