#include "GLTest.h"

namespace OruTest
{

std::unique_ptr<RawWglContext> GLTest::context_;

void GLTest::SetUpTestSuite()
{
    if (!context_)
        context_.reset(new RawWglContext());
}

void GLTest::SetUp()
{
    ASSERT_TRUE(context_->valid()) << "no OpenGL context: " << context_->error();
    context_->makeCurrent();
}

RawWglContext& GLTest::context()
{
    return *context_;
}

} // namespace OruTest
