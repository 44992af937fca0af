// The interception chain's own mechanics, without a GL context: the singleton,
// pushing and popping decorators, shutdown, and the fixed operation order.
#include "oru_ogl/ExceptionOGL.h"
#include "oru_ogl/extensionator/OpenGLErrorChecker.h"
#include "support/ForwardingDecorator.h"

#include "support/Raises.h"

#include <cstdint>
#include <cstring>

using Oru::OGL::ExceptionOGL;
using Oru::OGL::OpenGLErrorChecker;
using Oru::OGL::OpenGLInterceptor;
using OruTest::ForwardingDecorator;
using OruTest::Raised;
using OruTest::raisedBy;

TEST(InterceptorTest, DecoratorsArePushedAndPoppedLastInFirstOut)
{
    OpenGLInterceptor* checker = OpenGLInterceptor::Instance();
    EXPECT_NE(nullptr, dynamic_cast<OpenGLErrorChecker*>(checker)) << "one error checker, made on demand";
    EXPECT_EQ(checker, OpenGLInterceptor::Instance());
    ForwardingDecorator a, b;
    OpenGLInterceptor::Instance()->addInterceptor(&a);
    OpenGLInterceptor::Instance()->addInterceptor(&b);
    EXPECT_EQ(&b, OpenGLInterceptor::Instance());
    EXPECT_EQ(&a, b.interceptor());
    EXPECT_EQ(checker, a.interceptor());

    EXPECT_EQ(&b, OpenGLInterceptor::Instance()->popInterceptor());
    EXPECT_EQ(&a, OpenGLInterceptor::Instance()->popInterceptor());
    EXPECT_EQ(nullptr, OpenGLInterceptor::Instance()->popInterceptor());
    EXPECT_EQ(checker, OpenGLInterceptor::Instance());
}

TEST(InterceptorTest, AddAndPopActOnTheChainWhateverObjectTheyAreCalledOn)
{
    OpenGLInterceptor* checker = OpenGLInterceptor::Instance();
    ForwardingDecorator a, standalone;
    standalone.addInterceptor(&a);
    EXPECT_EQ(&a, OpenGLInterceptor::Instance());
    EXPECT_EQ(&a, standalone.popInterceptor());
    EXPECT_EQ(checker, OpenGLInterceptor::Instance());
}

TEST(InterceptorTest, DestroyRefusesWhileADecoratorIsOnTop)
{
    ForwardingDecorator top;
    OpenGLInterceptor::Instance()->addInterceptor(&top);
    EXPECT_EQ(Raised::at("extensionator/OpenGLInterceptor.cpp", 59,
                         "Enforce dynamic_cast<OpenGLErrorChecker *>(gInterceptor) != NULL"),
              raisedBy([] { OpenGLInterceptor::destroy(); }));
    EXPECT_EQ(&top, OpenGLInterceptor::Instance());
    EXPECT_EQ(&top, OpenGLInterceptor::Instance()->popInterceptor());

    OpenGLInterceptor::destroy();
    OpenGLInterceptor* fresh = OpenGLInterceptor::Instance();
    EXPECT_NE(nullptr, dynamic_cast<OpenGLErrorChecker*>(fresh));
    EXPECT_EQ(nullptr, fresh->popInterceptor());
    OpenGLInterceptor::destroy();
    OpenGLInterceptor::destroy(); // nothing left: does nothing
}

TEST(InterceptorTest, UnbalancedEndIsRefusedWithoutCallingGL)
{
    // No context is current here: the refusal must come before any GL call.
    EXPECT_EQ(Raised::at("client.cpp", 41, "Unbalanced glEnd()!"),
              raisedBy<ExceptionOGL>([] { OpenGLInterceptor::Instance()->cgmEnd("client.cpp", 41); }));
}

#if defined(__GNUC__)
namespace
{

// The virtual-table slot of a member function, from the Itanium C++ ABI's
// representation of a pointer to a virtual member: 1 + the slot's byte offset.
template <class Member>
std::uintptr_t slotOf(Member member)
{
    static_assert(sizeof(Member) == 2 * sizeof(void*), "unexpected member pointer layout");
    std::uintptr_t raw;
    std::memcpy(&raw, &member, sizeof(raw));
    return (raw - 1) / sizeof(void*);
}

} // namespace

TEST(InterceptorTest, OperationsTakeTheirFixedSlots)
{
    EXPECT_EQ(0u, slotOf(&OpenGLInterceptor::cgmAccum));
    EXPECT_EQ(1u, slotOf(&OpenGLInterceptor::cgmAlphaFunc));
    EXPECT_EQ(2u, slotOf(&OpenGLInterceptor::cgmAreTexturesResident));
    EXPECT_EQ(335u, slotOf(&OpenGLInterceptor::cgmViewport));
    EXPECT_EQ(336u, slotOf(&OpenGLInterceptor::cgmDrawRangeElements));
    EXPECT_EQ(1500u, slotOf(&OpenGLInterceptor::cgmAddSwapHintRectWIN));
    // Digits before capitals before small letters.
    EXPECT_LT(slotOf(&OpenGLInterceptor::cgmEdgeFlagPointer), slotOf(&OpenGLInterceptor::cgmEdgeFlagv));
    // Versions in order, then the extensions by name.
    EXPECT_LT(slotOf(&OpenGLInterceptor::cgmVertexAttribPointer), slotOf(&OpenGLInterceptor::cgmUniformMatrix2x3fv));
    EXPECT_LT(slotOf(&OpenGLInterceptor::cgmUniformMatrix4x3fv), slotOf(&OpenGLInterceptor::cgmTbufferMask3DFX));
    EXPECT_LT(slotOf(&OpenGLInterceptor::cgmSetFenceAPPLE), slotOf(&OpenGLInterceptor::cgmClampColorARB));
    EXPECT_LT(slotOf(&OpenGLInterceptor::cgmMinmax), slotOf(&OpenGLInterceptor::cgmCurrentPaletteMatrixARB));
}
#endif
