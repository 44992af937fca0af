// 2. Decorators: a cheap call with a tracer and with a recorder pushed on the
//    chain, writing to memory: time and bytes per call, calls per second, and
//    the ratio to the bare call.
// 3. Bulk data: recording glTexImage2D uploads of growing size: bytes per
//    second, and what recording adds against one write of the same bytes.
//
// Both need the tracer and the recorder; a build without them reports the
// figures as not measured.

#include "Bench.h"

#include "MemoryStream.h"

#include "oru_ogl/extensionator/OpenGLInterceptor.h"

#include <GL/gl.h>

#if __has_include("oru_ogl/extensionator/OpenGLTracer.h")
#include "oru_ogl/extensionator/OpenGLTracer.h"
#define ORU_BENCH_HAS_TRACER 1
#else
#define ORU_BENCH_HAS_TRACER 0
#endif

#if __has_include("oru_ogl/extensionator/OpenGLRekorder.h")
#include "oru_ogl/extensionator/OpenGLRekorder.h"
#define ORU_BENCH_HAS_REKORDER 1
#else
#define ORU_BENCH_HAS_REKORDER 0
#endif

#include <memory>

namespace bench
{

namespace
{

using Oru::OGL::OpenGLInterceptor;

const char* const kDecorators = "2. Decorators";
const char* const kBulk = "3. Bulk data";

inline GLfloat shade(unsigned int i)
{
    return static_cast<GLfloat>(i & 255u) * (1.0f / 255.0f);
}

inline GLint filter(unsigned int i)
{
    return (i & 1u) ? GL_LINEAR : GL_NEAREST;
}

#if ORU_BENCH_HAS_TRACER || ORU_BENCH_HAS_REKORDER

std::string perSecond(double secondsPerCall)
{
    return formatNumber(1e-6 / secondsPerCall, 1) + " M calls/s";
}

// A decorator of the chain writing into memory streams, pushed for one batch.
struct Decorated
{
    MemoryStream code;
    MemoryStream data;
    std::vector<double> bytesPerCall;
    std::function<std::unique_ptr<Oru::OGL::OpenGLInterceptorDecorator>(MemoryStream&, MemoryStream&)> make;

    template <class Calls>
    double batch(unsigned int n, Calls calls)
    {
        code.reset();
        data.reset();
        std::unique_ptr<Oru::OGL::OpenGLInterceptorDecorator> decorator = make(code, data);
        OpenGLInterceptor::Instance()->addInterceptor(decorator.get());
        const double seconds = timed(n, calls);
        OpenGLInterceptor::Instance()->popInterceptor();
        decorator.reset(); // a decorator may flush when it goes
        bytesPerCall.push_back(static_cast<double>(code.size() + data.size()) / n);
        return seconds;
    }
};

void colorThroughChain(unsigned int i)
{
    OpenGLInterceptor::Instance()->cgmColor4f(__FILE__, __LINE__, shade(i), 0.5f, 0.25f, 1.0f);
}

void parameterThroughChain(unsigned int i)
{
    OpenGLInterceptor::Instance()->cgmTexParameteri(__FILE__, __LINE__, GL_TEXTURE_2D, GL_TEXTURE_MIN_FILTER, filter(i));
}

std::vector<std::pair<std::string, std::unique_ptr<Decorated>>> decorators()
{
    std::vector<std::pair<std::string, std::unique_ptr<Decorated>>> result;
#if ORU_BENCH_HAS_TRACER
    std::unique_ptr<Decorated> tracer(new Decorated);
    tracer->make = [](MemoryStream& code, MemoryStream&) {
        return std::unique_ptr<Oru::OGL::OpenGLInterceptorDecorator>(
            new Oru::OGL::OpenGLTracer(code, OpenGLInterceptor::Instance()));
    };
    result.emplace_back("`OpenGLTracer`", std::move(tracer));
#endif
#if ORU_BENCH_HAS_REKORDER
    std::unique_ptr<Decorated> rekorder(new Decorated);
    rekorder->make = [](MemoryStream& code, MemoryStream& data) {
        return std::unique_ptr<Oru::OGL::OpenGLInterceptorDecorator>(
            new Oru::OGL::OpenGLRekorder(code, data, OpenGLInterceptor::Instance(), false));
    };
    result.emplace_back("`OpenGLRekorder` (code + data)", std::move(rekorder));
#endif
    return result;
}

// One cheap call bare and under each decorator, side by side.
template <class Bare, class Chain>
void decoratedCall(Rows& rows, char const* call, Bare bare, Chain chain, double bareColor4f, bool goal)
{
    auto decorated = decorators();
    std::vector<Variant> variants = { { "bare", [bare](unsigned int n) { return timed(n, bare); } } };
    for (auto& d : decorated)
    {
        Decorated* target = d.second.get();
        variants.push_back({ d.first, [target, chain](unsigned int n) { return target->batch(n, chain); } });
    }
    const std::vector<Timing> t = compare(variants, Plan{ 15, 5, 20000 });
    rows.push_back({ kDecorators, std::string("bare `") + call + "`", format(t[0].perOperation, "ns"), "", "", "" });
    for (std::size_t v = 1; v < t.size(); ++v)
    {
        auto const& d = decorated[v - 1];
        const double r = ratio(t[v], t[0]);
        const double againstColor = t[v].perOperation / (bareColor4f > 0 ? bareColor4f : t[0].perOperation);
        rows.push_back({ kDecorators, d.first + " `" + call + "` into memory",
                         format(t[v].perOperation, "ns") + ", " + formatNumber(median(d.second->bytesPerCall), 1) +
                             " B/call, " + perSecond(t[v].perOperation),
                         formatRatio(r, "bare") + (goal ? "" : ", " + formatRatio(againstColor, "bare `glColor4f`")),
                         "<= 12x bare `glColor4f`", yesNo((goal ? r : againstColor) <= 12.0) });
    }
}

#endif // tracer or recorder

} // namespace

void decoratorSection(Environment&, Rows& rows)
{
#if ORU_BENCH_HAS_TRACER || ORU_BENCH_HAS_REKORDER
    // glColor4f first: its bare time is the yardstick of both calls.
    std::vector<Variant> yardstick = { { "bare", [](unsigned int n) {
        return timed(n, [](unsigned int i) { glColor4f(shade(i), 0.5f, 0.25f, 1.0f); });
    } } };
    const double bareColor = compare(yardstick, Plan{ 5, 5, 20000 })[0].perOperation;
    decoratedCall(rows, "glColor4f", [](unsigned int i) { glColor4f(shade(i), 0.5f, 0.25f, 1.0f); }, colorThroughChain,
                  bareColor, true);

    GLuint texture = 0;
    glGenTextures(1, &texture);
    glBindTexture(GL_TEXTURE_2D, texture);
    decoratedCall(rows, "glTexParameteri",
                  [](unsigned int i) { glTexParameteri(GL_TEXTURE_2D, GL_TEXTURE_MIN_FILTER, filter(i)); },
                  parameterThroughChain, bareColor, false);
    glBindTexture(GL_TEXTURE_2D, 0);
    glDeleteTextures(1, &texture);
#else
    rows.push_back({ kDecorators, "tracer and recorder", "not measured: not in this build", "", "<= 12x bare `glColor4f`",
                     "not measured" });
#endif
}

void bulkDataSection(Environment&, Rows& rows)
{
#if ORU_BENCH_HAS_REKORDER
    GLuint texture = 0;
    glGenTextures(1, &texture);
    glBindTexture(GL_TEXTURE_2D, texture);
    glPixelStorei(GL_UNPACK_ALIGNMENT, 1);

    double smallest = 0.0;
    const int sizes[] = { 64, 256, 1024 };
    for (int size : sizes)
    {
        const std::size_t bytes = static_cast<std::size_t>(size) * size * 4;
        std::vector<unsigned char> pixels(bytes);
        for (std::size_t i = 0; i < bytes; ++i)
            pixels[i] = static_cast<unsigned char>(i * 7u);
        const unsigned char* p = pixels.data();

        // Recorder, stream and a plain copy reuse their memory from batch to batch.
        MemoryStream code(1 << 16), data(bytes * 2), copy(bytes * 2);
        const unsigned int calls = size >= 1024 ? 4 : size >= 256 ? 32 : 256;
        std::vector<Variant> variants = {
            { "bare", [=](unsigned int n) {
                 return timed(n, [=](unsigned int) {
                     glTexImage2D(GL_TEXTURE_2D, 0, GL_RGBA8, size, size, 0, GL_RGBA, GL_UNSIGNED_BYTE, p);
                 });
             } },
            { "recorded", [=, &code, &data](unsigned int n) {
                 Oru::OGL::OpenGLRekorder rekorder(code, data, OpenGLInterceptor::Instance(), false);
                 OpenGLInterceptor::Instance()->addInterceptor(&rekorder);
                 const double seconds = timed(n, [&](unsigned int) {
                     code.reset();
                     data.reset();
                     OpenGLInterceptor::Instance()->cgmTexImage2D(__FILE__, __LINE__, GL_TEXTURE_2D, 0, GL_RGBA8, size,
                                                                  size, 0, GL_RGBA, GL_UNSIGNED_BYTE, p);
                 });
                 OpenGLInterceptor::Instance()->popInterceptor();
                 return seconds;
             } },
            { "one write", [=, &copy](unsigned int n) {
                 return timed(n, [&](unsigned int) {
                     copy.reset();
                     copy.write(reinterpret_cast<char const*>(p), static_cast<std::streamsize>(bytes));
                 });
             } },
        };
        const std::vector<Timing> t = compare(variants, Plan{ 9, 3, calls });
        const double recording = t[1].perOperation - t[0].perOperation; // what the recorder adds to the upload
        const double rate = bytes / t[1].perOperation / 1e9;
        if (size == 64)
            smallest = rate;
        const std::string name = std::to_string(size) + "x" + std::to_string(size) + " RGBA8";
        const bool last = size == 1024;
        rows.push_back({ kBulk, name + ": bare `glTexImage2D`, one `write` of the bytes",
                         format(t[0].perOperation, "us") + ", " + format(t[2].perOperation, "us"), "", "", "" });
        rows.push_back({ kBulk, name + ": recorded `glTexImage2D`",
                         format(t[1].perOperation, "us") + " = " + formatNumber(rate, 2) + " GB/s; recording adds " +
                             format(recording, "us"),
                         formatRatio(recording / t[2].perOperation, "one write") +
                             (size == 64 ? "" : ", " + formatRatio(rate / smallest, "the 64x64 rate")),
                         last ? ">= 1 GB/s, flat, <= 2x one write" : "<= 2x one write",
                         yesNo(recording <= 2.0 * t[2].perOperation &&
                               (!last || (rate >= 1.0 && rate >= 0.5 * smallest))) });
    }
    glPixelStorei(GL_UNPACK_ALIGNMENT, 4);
    glBindTexture(GL_TEXTURE_2D, 0);
    glDeleteTextures(1, &texture);
#else
    rows.push_back({ kBulk, "recorded `glTexImage2D`, 64x64 to 1024x1024", "not measured: not in this build", "",
                     ">= 1 GB/s, flat, <= 2x one write", "not measured" });
#endif
}

} // namespace bench
