// 1. What the error-checking interceptor adds to a cheap GL call: the call
// through OpenGLInterceptor::Instance() against the same call followed by a
// hand-written glGetError() (the floor for any checked call) and the bare call.

#include "Bench.h"

#include "oru_ogl/extensionator/GLCall.h"
#include "oru_ogl/extensionator/OpenGLInterceptor.h"

#include <GL/gl.h>

#include <cstdlib>

namespace bench
{

namespace
{

const char* const kFigure = "1. Error-checking interception";
const Plan kPlan = { 21, 5, 20000 };

void handWrittenCheck()
{
    if (glGetError() != GL_NO_ERROR)
    {
        log("unexpected GL error in the benchmark");
        std::exit(2);
    }
}

// Arguments change from call to call so that the driver cannot skip a call
// that sets what is already set; every variant computes the same ones.
inline GLfloat shade(unsigned int i)
{
    return static_cast<GLfloat>(i & 255u) * (1.0f / 255.0f);
}

inline GLint filter(unsigned int i)
{
    return (i & 1u) ? GL_LINEAR : GL_NEAREST;
}

void addRows(Rows& rows, char const* call, std::vector<Timing> const& t)
{
    rows.push_back({ kFigure, std::string("bare `") + call + "`", format(t[0].perOperation, "ns"), "", "", "" });
    rows.push_back({ kFigure, std::string("`") + call + "` + hand-written `glGetError()` (floor)",
                     format(t[1].perOperation, "ns"), formatRatio(ratio(t[1], t[0]), "the bare call"), "", "" });
    const double againstFloor = ratio(t[2], t[1]);
    rows.push_back({ kFigure, std::string("`Instance()->cgm") + (call + 2) + "(file, line, ...)`",
                     format(t[2].perOperation, "ns"),
                     formatRatio(againstFloor, "the floor") + ", " + formatRatio(ratio(t[2], t[0]), "bare"),
                     "<= 1.05x the floor", yesNo(againstFloor <= 1.05) });
    rows.push_back({ kFigure, "the same through a chain pointer held across calls (no `Instance()` per call)",
                     format(t[3].perOperation, "ns"), formatRatio(ratio(t[3], t[1]), "the floor"), "", "" });
    const double callSite = ratio(t[4], t[1]);
    rows.push_back({ kFigure,
                     std::string("`ORU_GL ") + call + "(...)`: the checker's work done in place while it is the whole chain",
                     format(t[4].perOperation, "ns"),
                     formatRatio(callSite, "the floor") + ", " + formatRatio(ratio(t[4], t[0]), "bare"),
                     "<= 1.05x the floor", yesNo(callSite <= 1.05) });
}

} // namespace

void interceptionSection(Environment&, Rows& rows)
{
    using Oru::OGL::OpenGLInterceptor;

    std::vector<Variant> color = {
        { "bare", [](unsigned int n) { return timed(n, [](unsigned int i) { glColor4f(shade(i), 0.5f, 0.25f, 1.0f); }); } },
        { "floor", [](unsigned int n) {
             return timed(n, [](unsigned int i) {
                 glColor4f(shade(i), 0.5f, 0.25f, 1.0f);
                 handWrittenCheck();
             });
         } },
        { "interceptor", [](unsigned int n) {
             return timed(n, [](unsigned int i) {
                 OpenGLInterceptor::Instance()->cgmColor4f(__FILE__, __LINE__, shade(i), 0.5f, 0.25f, 1.0f);
             });
         } },
        { "held", [](unsigned int n) {
             OpenGLInterceptor* chain = OpenGLInterceptor::Instance();
             return timed(n, [chain](unsigned int i) { chain->cgmColor4f(__FILE__, __LINE__, shade(i), 0.5f, 0.25f, 1.0f); });
         } },
        { "call site", [](unsigned int n) {
             return timed(n, [](unsigned int i) { ORU_GL glColor4f(shade(i), 0.5f, 0.25f, 1.0f); });
         } },
    };
    addRows(rows, "glColor4f", compare(color, kPlan));

    GLuint texture = 0;
    glGenTextures(1, &texture);
    glBindTexture(GL_TEXTURE_2D, texture);
    std::vector<Variant> parameter = {
        { "bare", [](unsigned int n) {
             return timed(n, [](unsigned int i) { glTexParameteri(GL_TEXTURE_2D, GL_TEXTURE_MIN_FILTER, filter(i)); });
         } },
        { "floor", [](unsigned int n) {
             return timed(n, [](unsigned int i) {
                 glTexParameteri(GL_TEXTURE_2D, GL_TEXTURE_MIN_FILTER, filter(i));
                 handWrittenCheck();
             });
         } },
        { "interceptor", [](unsigned int n) {
             return timed(n, [](unsigned int i) {
                 OpenGLInterceptor::Instance()->cgmTexParameteri(__FILE__, __LINE__, GL_TEXTURE_2D,
                                                                 GL_TEXTURE_MIN_FILTER, filter(i));
             });
         } },
        { "held", [](unsigned int n) {
             OpenGLInterceptor* chain = OpenGLInterceptor::Instance();
             return timed(n, [chain](unsigned int i) {
                 chain->cgmTexParameteri(__FILE__, __LINE__, GL_TEXTURE_2D, GL_TEXTURE_MIN_FILTER, filter(i));
             });
         } },
        { "call site", [](unsigned int n) {
             return timed(n, [](unsigned int i) { ORU_GL glTexParameteri(GL_TEXTURE_2D, GL_TEXTURE_MIN_FILTER, filter(i)); });
         } },
    };
    addRows(rows, "glTexParameteri", compare(parameter, kPlan));
    glBindTexture(GL_TEXTURE_2D, 0);
    glDeleteTextures(1, &texture);
}

} // namespace bench
