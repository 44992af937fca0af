// The driver's debug output against the real driver: messages reported at the
// checked call during which they arrived, errors thrown from it (through
// ORU_GL and through the chain with a decorator pushed), the others passed to
// the sink by severity, and nothing of it without the option.
#include "oru_ogl/ExceptionOGL.h"
#include "oru_ogl/LibraryOGL.h"
#include "oru_ogl/extensionator/ExtensionCatalogue.h"
#include "oru_ogl/extensionator/GLCall.h"
#include "oru_ogl/ogl/ContextOffscreen.h"
#include "support/ForwardingDecorator.h"

#include "support/Raises.h"

#include <GL/glu.h>

#include <memory>
#include <string>
#include <vector>

using namespace Oru::OGL;
using OruTest::Raised;
using OruTest::raisedBy;

namespace
{

const GLenum kSourceApplication = 0x824A; // GL_DEBUG_SOURCE_APPLICATION
const GLenum kTypeError = 0x824C;         // GL_DEBUG_TYPE_ERROR
const GLenum kTypeOther = 0x8251;         // GL_DEBUG_TYPE_OTHER
const GLenum kSeverityHigh = 0x9146;      // GL_DEBUG_SEVERITY_HIGH
const GLenum kSeverityLow = 0x9148;       // GL_DEBUG_SEVERITY_LOW

typedef void(APIENTRY* MessageInsert)(GLenum source, GLenum type, GLuint id, GLenum severity, GLsizei length,
                                      char const* text);

// What the sink saw: where, and the message.
struct Logged
{
    std::string file;
    unsigned int line;
    unsigned int id;
    DriverDebugOutput::teSeverity severity;
    std::string text;
    bool operator==(Logged const& o) const
    {
        return file == o.file && line == o.line && id == o.id && severity == o.severity && text == o.text;
    }
    friend std::ostream& operator<<(std::ostream& out, Logged const& l)
    {
        return out << l.file << "(" << l.line << ") " << l.id << "/" << l.severity << ": " << l.text;
    }
};

PROC WINAPI withoutDebugMessageCallbacks(LPCSTR name)
{
    const std::string function(name);
    return function == "glDebugMessageCallback" || function == "glDebugMessageCallbackARB" ? nullptr
                                                                                            : wglGetProcAddress(name);
}

class DriverDebugOutputGLTest : public ::testing::Test
{
protected:
    static void SetUpTestSuite() { context_.reset(new ContextOffscreen()); }
    static void TearDownTestSuite() { context_.reset(); }

    void SetUp() override { start(true); }
    void TearDown() override
    {
        if (Library::isExtensionatorInitialized())
            Library::terminateExtensionator();
        wglMakeCurrent(nullptr, nullptr);
    }

    void start(bool debugOutput)
    {
        ExtensionManager::InitOptions options;
        options.setDriverDebugOutput(debugOutput);
        options.setDebugMessageSink([this](char const* file, unsigned int line, DriverDebugOutput::Message const& m) {
            logged.push_back(Logged{file, line, m.id, m.severity, m.text});
        });
        Library::initializeExtensionator(context_.get(), options);
        insert = reinterpret_cast<MessageInsert>(
            reinterpret_cast<void*>(ExtensionCatalogue::resolve("glDebugMessageInsert")));
        ASSERT_NE(nullptr, insert) << "the driver offers no glDebugMessageInsert";
    }

    void insertMessage(GLenum type, GLuint id, GLenum severity, char const* text)
    {
        insert(kSourceApplication, type, id, severity, -1, text);
    }

    static std::unique_ptr<ContextOffscreen> context_;
    std::vector<Logged> logged;
    MessageInsert insert = nullptr;
};

std::unique_ptr<ContextOffscreen> DriverDebugOutputGLTest::context_;

} // namespace

TEST_F(DriverDebugOutputGLTest, AnInsertedErrorIsThrownFromTheCheckedCallDuringWhichItArrived)
{
    // Through ORU_GL's in-place check: the message arrives during the unchecked
    // insert and is raised by the next checked call, with no GL error (code 0).
    insertMessage(kTypeError, 7, kSeverityHigh, "inserted error");
    int line = __LINE__ + 1;
    Raised raised = raisedBy<ExceptionOGL>([] { ORU_GL glFlush(); });
    EXPECT_EQ(Raised::at(__FILE__, line, "inserted error", 0), raised);

    // Through the chain with a decorator above the checker.
    OruTest::ForwardingDecorator decorator;
    OpenGLInterceptor::Instance()->addInterceptor(&decorator);
    insertMessage(kTypeError, 8, kSeverityHigh, "through the chain");
    line = __LINE__ + 1;
    raised = raisedBy<ExceptionOGL>([] { OpenGLInterceptor::Instance()->cgmFlush(__FILE__, __LINE__); });
    EXPECT_EQ(&decorator, OpenGLInterceptor::Instance()->popInterceptor());
    EXPECT_EQ(Raised::at(__FILE__, line, "through the chain", 0), raised);

    // Delivered once: the next checked call is clean.
    EXPECT_FALSE(raisedBy<ExceptionOGL>([] { ORU_GL glFlush(); }).raised);
    EXPECT_TRUE(logged.empty());
}

TEST_F(DriverDebugOutputGLTest, ADriverErrorCarriesTheDriversTextAndTheGLErrorCode)
{
    const int line = __LINE__ + 1;
    const Raised raised = raisedBy<ExceptionOGL>([] { ORU_GL glEnable(0); });
    EXPECT_EQ(__FILE__, raised.file);
    EXPECT_EQ(line, raised.line);
    EXPECT_EQ(static_cast<unsigned int>(GL_INVALID_ENUM), raised.error);
    EXPECT_NE(reinterpret_cast<char const*>(gluErrorString(GL_INVALID_ENUM)), raised.message); // the driver's words
    EXPECT_FALSE(raised.message.empty());
    EXPECT_EQ(static_cast<GLenum>(GL_NO_ERROR), glGetError());
}

TEST_F(DriverDebugOutputGLTest, OtherMessagesGoToTheSinkFromTheSeverityAskedFor)
{
    // The default least severity is medium: the low one is dropped.
    insertMessage(kTypeOther, 21, kSeverityHigh, "high note");
    insertMessage(kTypeOther, 22, kSeverityLow, "low note");
    const unsigned int line = __LINE__ + 1;
    ORU_GL glFlush();
    EXPECT_EQ((std::vector<Logged>{{__FILE__, line, 21, DriverDebugOutput::eHigh, "high note"}}), logged);

    // A message and an error of the same call: the message is logged, then the error thrown.
    logged.clear();
    insertMessage(kTypeOther, 23, kSeverityHigh, "before the error");
    const int errorLine = __LINE__ + 1;
    const Raised raised = raisedBy<ExceptionOGL>([] { ORU_GL glEnable(0); });
    EXPECT_EQ(errorLine, raised.line);
    EXPECT_EQ(static_cast<unsigned int>(GL_INVALID_ENUM), raised.error);
    ASSERT_EQ(1u, logged.size());
    EXPECT_EQ("before the error", logged[0].text);
    EXPECT_EQ(static_cast<unsigned int>(errorLine), logged[0].line);
}

TEST_F(DriverDebugOutputGLTest, LowerSeveritiesWhenAskedFor)
{
    Library::terminateExtensionator();
    ExtensionManager::InitOptions options;
    options.setDriverDebugOutput(true);
    options.setDebugMessageSeverity(DriverDebugOutput::eLow);
    options.setDebugMessageSink([this](char const* file, unsigned int line, DriverDebugOutput::Message const& m) {
        logged.push_back(Logged{file, line, m.id, m.severity, m.text});
    });
    Library::initializeExtensionator(context_.get(), options);
    EXPECT_EQ(DriverDebugOutput::eLow, ExtensionManager::Instance()->initOptions().debugMessageSeverity());
    insertMessage(kTypeOther, 31, kSeverityLow, "low note");
    const unsigned int line = __LINE__ + 1;
    ORU_GL glFlush();
    EXPECT_EQ((std::vector<Logged>{{__FILE__, line, 31, DriverDebugOutput::eLow, "low note"}}), logged);
}

TEST_F(DriverDebugOutputGLTest, OffByDefaultAndRemovedAtShutdown)
{
    EXPECT_FALSE(ExtensionManager::InitOptions().driverDebugOutput());
    Library::terminateExtensionator();
    context_->makeCurrent();
    insertMessage(kTypeError, 41, kSeverityHigh, "after shutdown");
    start(false);
    insertMessage(kTypeError, 42, kSeverityHigh, "without the option");
    const Raised raised = raisedBy<ExceptionOGL>([] { ORU_GL glFlush(); });
    EXPECT_FALSE(raised.raised) << raised;
    // Without the option a GL error keeps GLU's text.
    EXPECT_EQ(reinterpret_cast<char const*>(gluErrorString(GL_INVALID_ENUM)),
              raisedBy<ExceptionOGL>([] { ORU_GL glEnable(0); }).message);
    EXPECT_TRUE(logged.empty());
}

TEST_F(DriverDebugOutputGLTest, StartUpFailsWithoutTheCallbackAndLeavesTheLayerStopped)
{
    Library::terminateExtensionator();
    ExtensionManager::InitOptions options;
    options.setDriverDebugOutput(true);
    const ExtensionCatalogue::ProcAddressResolver previous =
        ExtensionCatalogue::setProcAddressResolver(&withoutDebugMessageCallbacks);
    const Raised raised = raisedBy([&] { Library::initializeExtensionator(context_.get(), options); });
    ExtensionCatalogue::setProcAddressResolver(previous);
    EXPECT_EQ(Raised::at("extensionator/DriverDebugOutput.cpp", 106,
                         "DriverDebugOutput needs GL_KHR_debug or GL_ARB_debug_output"),
              raised);
    EXPECT_FALSE(Library::isExtensionatorInitialized());
    start(false); // and a start without the option works
    EXPECT_TRUE(Library::isExtensionatorInitialized());
}
