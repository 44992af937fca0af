// Programs against the driver: linking real shaders and Mesa's own link
// errors, the software-fallback verdict on injected logs, enable state,
// active uniforms, detaching, and the refusal where OpenGL 2.0 is not marked.
#include "support/GLSLGLTest.h"

#include "oru_ogl/extensionator/EntryPoints.h"
#include "oru_ogl/ogl/Program.h"

#include <cstring>
#include <memory>
#include <algorithm>
#include <string>
#include <vector>

using Oru::OGL::FragmentShader;
using Oru::OGL::Program;
using Oru::OGL::VertexShader;
using OruTest::FakeEntryPoint;
using OruTest::glInteger;
using OruTest::GLSLGLTest;
using OruTest::LayerGLTest;
using OruTest::kFragmentSource;
using OruTest::kVertexSource;
using OruTest::load;
using OruTest::Raised;
using OruTest::raisedBy;

namespace
{

const char* const kProgramFile = "ogl/Program.cpp";

const GLenum kLinkStatus = 0x8B82;    // GL_LINK_STATUS
const GLenum kInfoLogLength = 0x8B84; // GL_INFO_LOG_LENGTH
const GLenum kCurrentProgram = 0x8B8D; // GL_CURRENT_PROGRAM

// ---- counting and answering fakes ----

int gCreateProgramCalls = 0;
GLuint gCreatedProgram = 0;

GLuint APIENTRY countingCreateProgram()
{
    ++gCreateProgramCalls;
    return gCreatedProgram;
}

// The driver's link verdict and log, as a test sets them.
PFN_cgmGetProgramiv gRealGetProgramiv = nullptr;
GLint gLinkStatus = 0;
GLint gLogLength = 0;
std::string gLog;
int gLogReads = 0;

void APIENTRY answeringGetProgramiv(GLuint program, GLenum pname, GLint* params)
{
    if (pname == kLinkStatus)
        *params = gLinkStatus;
    else if (pname == kInfoLogLength)
        *params = gLogLength;
    else
        gRealGetProgramiv(program, pname, params);
}

void APIENTRY answeringGetProgramInfoLog(GLuint, GLsizei bufSize, GLsizei* length, GLchar* infoLog)
{
    ++gLogReads;
    const std::string text = gLog.substr(0, static_cast<std::size_t>(bufSize) - 1);
    std::memcpy(infoLog, text.c_str(), text.size() + 1);
    if (length)
        *length = static_cast<GLsizei>(text.size());
}

int gAttachedListCalls = 0;
std::vector<GLuint> gListed;

void APIENTRY listingGetAttachedShaders(GLuint, GLsizei maxCount, GLsizei* count, GLuint* shaders)
{
    ++gAttachedListCalls;
    *count = std::min(maxCount, static_cast<GLsizei>(gListed.size()));
    std::copy(gListed.begin(), gListed.begin() + *count, shaders);
}

GLsizei attachedCount(Program const& program)
{
    GLuint names[128];
    GLsizei count = -1;
    _cgmGetAttachedShaders(program.objectID(), 128, &count, names);
    return count;
}

std::string driverLog(Program& program)
{
    std::vector<char> log(static_cast<std::size_t>(program.getInfoLogLength()) + 1, '\0');
    program.getInfoLog(static_cast<int>(log.size()), log.data());
    return log.data();
}

using ProgramGLTest = GLSLGLTest;
using ProgramSupportGLTest = LayerGLTest;

} // namespace

TEST_F(ProgramSupportGLTest, ConstructorNeedsOpenGL20BeforeAnyGLCall)
{
    gCreateProgramCalls = 0;
    FakeEntryPoint<PFN_cgmCreateProgram> create(_cgmCreateProgram, &countingCreateProgram);
    if (Program::isSupported())
    {
        gCreatedProgram = 0; // the driver could not make one
        EXPECT_EQ(Raised::at(kProgramFile, 50, "_hObject != 0"), raisedBy([] { Program program; }));
        EXPECT_EQ(1, gCreateProgramCalls);
        return;
    }
    EXPECT_EQ(Raised::at(kProgramFile, 48, "Oru::OGL::ExtensionManager::Instance()->isSupported(OPEN_GL_2_0)"),
              raisedBy([] { Program program; }));
    EXPECT_EQ(0, gCreateProgramCalls);
}

TEST_F(ProgramGLTest, ValidProgramLinksValidatesAndEnables)
{
    GLuint name = 0;
    {
        Program program;
        name = program.objectID();
        EXPECT_EQ(GL_TRUE, _cgmIsProgram(name));
        load(program, kVertexSource, kFragmentSource);
        EXPECT_EQ(2, attachedCount(program));
        EXPECT_FALSE(program.isLinked());
        EXPECT_NO_THROW(program.link(true));
        EXPECT_TRUE(program.isLinked());
        EXPECT_TRUE(program.validate());

        EXPECT_FALSE(program.isEnabled());
        program.enable();
        EXPECT_TRUE(program.isEnabled());
        EXPECT_EQ(static_cast<GLint>(name), glInteger(kCurrentProgram));
        program.disable();
        EXPECT_FALSE(program.isEnabled());
        EXPECT_EQ(0, glInteger(kCurrentProgram));
    }
    EXPECT_EQ(GL_FALSE, _cgmIsProgram(name));
}

TEST_F(ProgramGLTest, StatesAreReadBackAfterEveryLink)
{
    Program program;
    load(program, kVertexSource, kFragmentSource);
    program.link(true);
    program.enable();
    program.disable();
    program.detachAllShaders();
    const char* noMain = "#version 110\nuniform float f;\n";
    program.loadFragmentShader(1, &noMain, nullptr);
    EXPECT_NO_THROW(program.link(false));
    EXPECT_FALSE(program.isLinked());
    EXPECT_EQ(Raised::at(kProgramFile, 255, "Program must be linked before being enabled"),
              raisedBy([&] { program.enable(); }));
    EXPECT_EQ(0, glInteger(kCurrentProgram));
}

TEST_F(ProgramGLTest, AttachRefusesShadersWithoutSource)
{
    Program program;
    VertexShader vertex;
    FragmentShader fragment;
    EXPECT_EQ(Raised::at(kProgramFile, 80, "Vertex shader must be loaded before attaching"),
              raisedBy([&] { program.attach(&vertex); }));
    EXPECT_EQ(Raised::at(kProgramFile, 89, "Fragment shader must be loaded before attaching"),
              raisedBy([&] { program.attach(&fragment); }));
    const char* empty = "";
    EXPECT_THROW(program.loadFragmentShader(1, &empty, nullptr), Oru::InternalException);
    EXPECT_EQ(0, attachedCount(program));

    // Loaded is enough; compiling is not required.
    load(vertex, kVertexSource);
    program.attach(&vertex);
    EXPECT_FALSE(vertex.isCompiled());
    EXPECT_EQ(1, attachedCount(program));
    program.detach(&vertex);
    EXPECT_EQ(0, attachedCount(program));
}

// Mesa's words, whatever they are, follow the prefix.
TEST_F(ProgramGLTest, RealLinkErrorsRaiseWithTheDriversLog)
{
    const char* unresolvedVarying[] = {
        "#version 110\nvoid main() { gl_Position = ftransform(); }\n",
        "#version 110\nvarying vec4 colour;\nvoid main() { gl_FragColor = colour; }\n"};
    const char* missingMain[] = {kVertexSource, "#version 110\nvoid shade() {}\n"};
    const char* notCompiling[] = {kVertexSource, "#version 110\nvoid main() { gl_FragColor = 1.0 }\n"};
    for (const char** sources : {unresolvedVarying, missingMain, notCompiling})
    {
        Program program;
        EXPECT_NO_THROW(load(program, sources[0], sources[1]));
        const Raised raised = raisedBy([&] { program.link(true); });
        const std::string log = driverLog(program);
        EXPECT_FALSE(log.empty());
        EXPECT_EQ(Raised::at(kProgramFile, 182, "Program Link Error: \n" + log), raised);
        EXPECT_NO_THROW(program.link(false));
    }
}

class LinkVerdictGLTest : public ProgramGLTest
{
protected:
    void SetUp() override
    {
        ProgramGLTest::SetUp();
        if (IsSkipped() || HasFatalFailure())
            return;
        gRealGetProgramiv = _cgmGetProgramiv;
        getProgramiv_.reset(new FakeEntryPoint<PFN_cgmGetProgramiv>(_cgmGetProgramiv, &answeringGetProgramiv));
        getLog_.reset(new FakeEntryPoint<PFN_cgmGetProgramInfoLog>(_cgmGetProgramInfoLog, &answeringGetProgramInfoLog));
        gLogReads = 0;
    }
    void TearDown() override
    {
        getLog_.reset();
        getProgramiv_.reset();
        ProgramGLTest::TearDown();
    }
    void answer(bool linked, std::string const& log)
    {
        gLinkStatus = linked ? 1 : 0;
        gLog = log;
        gLogLength = log.empty() ? 0 : static_cast<GLint>(log.size() + 1);
    }

    std::unique_ptr<FakeEntryPoint<PFN_cgmGetProgramiv>> getProgramiv_;
    std::unique_ptr<FakeEntryPoint<PFN_cgmGetProgramInfoLog>> getLog_;
};

TEST_F(LinkVerdictGLTest, SoftwareFallbackCountsAsAFailedLink)
{
    Program program;
    const std::string log = "Fragment shader(s) linked, vertex shader(s) will run in software.\n";
    answer(true, log);
    EXPECT_EQ(Raised::at(kProgramFile, 204, "Program Link Error(Falling to Software): \n" + log),
              raisedBy([&] { program.link(true); }));
    EXPECT_TRUE(program.isLinked()); // the verdict is not stored
    EXPECT_NO_THROW(program.link(false));
}

// Other warnings and empty logs pass; a failed link without a log is unknown.
TEST_F(LinkVerdictGLTest, OtherWarningsAndEmptyLogs)
{
    Program program;
    for (const char* log : {"warning: unused varying\n", "Will Run In Software\n", "run in softwar"})
    {
        answer(true, log);
        EXPECT_NO_THROW(program.link(true)) << log;
    }
    EXPECT_EQ(3, gLogReads);
    answer(true, "");
    EXPECT_NO_THROW(program.link(true));
    gLogLength = 1; // the NUL alone
    EXPECT_NO_THROW(program.link(true));
    EXPECT_EQ(3, gLogReads);
    for (GLint length : {0, 1})
    {
        answer(false, "");
        gLogLength = length;
        EXPECT_EQ(Raised::at(kProgramFile, 186, "Unknown Program Link Error\n"), raisedBy([&] { program.link(true); }));
    }
    EXPECT_EQ(3, gLogReads);
}

TEST_F(ProgramGLTest, DetachingAll)
{
    Program program;
    load(program, kVertexSource, kFragmentSource);
    load(program, kVertexSource, kFragmentSource);
    program.detachAllVertexShaders();
    EXPECT_EQ(2, attachedCount(program));
    load(program, kVertexSource, kFragmentSource);
    program.detachAllFragmentShaders();
    EXPECT_EQ(1, attachedCount(program));
    program.link(true); // the remaining vertex shader links with fixed-function fragments
    load(program, kVertexSource, kFragmentSource);
    program.detachAllShaders();
    EXPECT_EQ(0, attachedCount(program));
}

// Each pass sees the first 64 names only, and four passes are made at most.
TEST_F(ProgramGLTest, TypedDetachingIsBounded)
{
    Program program;
    std::vector<std::unique_ptr<FragmentShader>> fragments;
    for (int i = 0; i < 65; ++i)
    {
        fragments.emplace_back(new FragmentShader());
        load(*fragments.back(), kFragmentSource);
        program.attach(fragments.back().get());
    }
    VertexShader vertex;
    load(vertex, kVertexSource);
    program.attach(&vertex);
    program.detachAllVertexShaders();
    EXPECT_EQ(66, attachedCount(program)); // the vertex shader is listed 66th

    program.detachAllShaders(); // in batches of 64
    EXPECT_EQ(0, attachedCount(program));

    gAttachedListCalls = 0;
    gListed.assign(1, fragments.front()->objectID()); // never detached by the typed loop
    {
        FakeEntryPoint<PFN_cgmGetAttachedShaders> list(_cgmGetAttachedShaders, &listingGetAttachedShaders);
        program.detachAllVertexShaders();
    }
    EXPECT_EQ(4, gAttachedListCalls);
}

TEST_F(ProgramGLTest, DestroyingAnUnnamedProgramRaises)
{
    struct Forgetful : Program
    {
        void forget()
        {
            _cgmDeleteProgram(_hObject);
            _hObject = 0;
        }
    };
    EXPECT_EQ(Raised::at(kProgramFile, 55, "_hObject != 0"), raisedBy([] {
                  Forgetful program;
                  program.forget();
              }));
}

TEST_F(ProgramGLTest, AttributeLocationsTakeEffectAtLink)
{
    Program program;
    const char* vertex = "#version 110\nattribute vec4 position;\nvoid main() { gl_Position = position; }\n";
    load(program, vertex, kFragmentSource);
    program.setAttributeLocation(5, "position");
    program.link(true);
    EXPECT_EQ(5, program.getAttributeLocation("position"));
    EXPECT_EQ(-1, program.getAttributeLocation("nothing"));
}
