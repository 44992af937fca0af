// 7. Capture (CaptureSession):
//    - a cheap call captured into memory: time and bytes per call against the
//      bare call;
//    - 1024x1024 RGBA uploads captured into memory (what the capture adds, as
//      a rate) and into a file (what the caller waits for, against the capture
//      into memory): the file is written by the capture's own thread;
//    - replay: the time per frame of a scene replayed by oglreplay's replayer
//      against the time per frame of the scene drawn by the program itself.
#include "Bench.h"
#include "ForwardingDecorator.h"

#include "Replayer.h"

#include "oru_ogl/extensionator/CaptureReader.h"
#include "oru_ogl/extensionator/CaptureSession.h"
#include "oru_ogl/extensionator/GLCall.h"
#include "oru_ogl/extensionator/windows/wglInterceptor.h"
#include "oru_ogl/ogl/ContextOffscreen.h"

#include "oru_replay/Window.h"

#include <GL/gl.h>

#include <cmath>
#include <cstdio>
#include <cstring>
#include <memory>
#include <thread>
#include <vector>

namespace bench
{

namespace
{

using Oru::OGL::CaptureSession;
using Oru::OGL::OpenGLInterceptor;

const char* const kCapture = "7. Capture";

inline GLfloat shade(unsigned int i)
{
    return static_cast<GLfloat>(i & 255u) * (1.0f / 255.0f);
}

// Takes the stream and counts it: the capture's cost without a disk.
struct CountingSink
{
    std::uint64_t* bytes;
    bool operator()(char const*, std::size_t length) const
    {
        *bytes += length;
        return true;
    }
};

void cheapCall(Rows& rows)
{
    auto const throughChain = [](unsigned int n) {
        return timed(n, [](unsigned int i) {
            OpenGLInterceptor::Instance()->cgmColor4f(__FILE__, __LINE__, shade(i), 0.5f, 0.25f, 1.0f);
        });
    };
    // One capture for all batches, as a program keeps one (see uploads()).
    std::uint64_t counted = 0;
    Oru::OGL::CaptureWriter writer(CountingSink{ &counted });
    Oru::OGL::CaptureStream stream(writer, false);
    Oru::OGL::OpenGLCapture capture(stream);
    std::vector<double> bytesPerCall;
    std::vector<Variant> variants = {
        { "bare", [](unsigned int n) { return timed(n, [](unsigned int i) { glColor4f(shade(i), 0.5f, 0.25f, 1.0f); }); } },
        { "forwarding", [&throughChain](unsigned int n) {
             ForwardingDecorator forwarding;
             OpenGLInterceptor::Instance()->addInterceptor(&forwarding);
             const double seconds = throughChain(n);
             OpenGLInterceptor::Instance()->popInterceptor();
             return seconds;
         } },
        { "captured", [&](unsigned int n) {
             OpenGLInterceptor::Instance()->addInterceptor(&capture);
             const std::uint64_t before = writer.size();
             const double seconds = throughChain(n);
             bytesPerCall.push_back(static_cast<double>(writer.size() - before) / n);
             OpenGLInterceptor::Instance()->popInterceptor();
             return seconds;
         } },
    };
    const std::vector<Timing> t = compare(variants, Plan{ 15, 5, 20000 });
    const double r = ratio(t[2], t[0]);
    rows.push_back({ kCapture, "bare `glColor4f`", format(t[0].perOperation, "ns"), "", "", "" });
    rows.push_back({ kCapture, "`glColor4f` through a decorator that only forwards (and the error checker)",
                     format(t[1].perOperation, "ns"), formatRatio(ratio(t[1], t[0]), "bare"), "", "" });
    rows.push_back({ kCapture, "`OpenGLCapture` `glColor4f` into memory",
                     format(t[2].perOperation, "ns") + ", " + formatNumber(median(bytesPerCall), 1) + " B/call",
                     formatRatio(r, "bare") + ", " + formatRatio(ratio(t[2], t[1]), "forwarding"),
                     "<= 6x bare `glColor4f` (apitrace here: 24x, about 9 B/call)", yesNo(r <= 6.0) });
}

void uploads(Rows& rows)
{
    const int size = 1024;
    const std::size_t bytes = static_cast<std::size_t>(size) * size * 4;
    std::vector<unsigned char> pixels(bytes), copy(bytes);
    for (std::size_t i = 0; i < bytes; ++i)
        pixels[i] = static_cast<unsigned char>(i * 7u);
    unsigned char const* p = pixels.data();
    GLuint texture = 0;
    glGenTextures(1, &texture);
    glBindTexture(GL_TEXTURE_2D, texture);

    char folder[MAX_PATH] = {};
    GetTempPathA(MAX_PATH, folder);
    const std::string file = std::string(folder) + "oru_bench_capture.oglcap";
    // One capture of each kind for all batches, as a program keeps one: its
    // buffers are in use already (a capture's first buffers are fresh memory,
    // which the system maps in on first touch).
    std::uint64_t counted = 0;
    Oru::OGL::CaptureWriter memoryWriter(CountingSink{ &counted });
    Oru::OGL::CaptureStream memoryStream(memoryWriter, false);
    std::unique_ptr<Oru::OGL::OpenGLCapture> memoryCapture(new Oru::OGL::OpenGLCapture(memoryStream));
    std::unique_ptr<Oru::OGL::CaptureWriter> fileWriter(new Oru::OGL::CaptureWriter(Oru::OGL::CaptureWriter::fileSink(file)));
    Oru::OGL::CaptureStream fileStream(*fileWriter, false);
    std::unique_ptr<Oru::OGL::OpenGLCapture> fileCapture(new Oru::OGL::OpenGLCapture(fileStream));
    auto const upload = [p](unsigned int) {
        OpenGLInterceptor::Instance()->cgmTexImage2D(__FILE__, __LINE__, GL_TEXTURE_2D, 0, GL_RGBA8, size, size, 0,
                                                     GL_RGBA, GL_UNSIGNED_BYTE, p);
    };
    // Between the uploads into a file the caller does other work (here: waits
    // 10 ms, untimed), as a program does between frames; the file keeps up.
    auto const spaced = [&upload](unsigned int n) {
        double seconds = 0;
        for (unsigned int i = 0; i < n; ++i)
        {
            const double start = now();
            upload(i);
            seconds += now() - start;
            std::this_thread::sleep_for(std::chrono::milliseconds(10));
        }
        return seconds;
    };
    std::vector<Variant> variants = {
        { "bare", [&upload](unsigned int n) { return timed(n, upload); } },
        { "one copy", [&](unsigned int n) {
             return timed(n, [&](unsigned int) { std::memcpy(copy.data(), p, bytes); });
         } },
        { "captured into memory", [&](unsigned int n) {
             OpenGLInterceptor::Instance()->addInterceptor(memoryCapture.get());
             const double seconds = timed(n, upload);
             OpenGLInterceptor::Instance()->popInterceptor();
             return seconds;
         } },
        { "bare, spaced", spaced },
        { "captured into memory, spaced", [&](unsigned int n) {
             OpenGLInterceptor::Instance()->addInterceptor(memoryCapture.get());
             const double seconds = spaced(n);
             OpenGLInterceptor::Instance()->popInterceptor();
             return seconds;
         } },
        { "captured into a file, spaced", [&](unsigned int n) {
             OpenGLInterceptor::Instance()->addInterceptor(fileCapture.get());
             const double seconds = spaced(n);
             OpenGLInterceptor::Instance()->popInterceptor();
             return seconds;
         } },
    };
    const std::vector<Timing> t = compare(variants, Plan{ 7, 3, 4 });
    memoryCapture.reset();
    fileCapture.reset();
    fileWriter.reset();
    std::remove(file.c_str());
    glBindTexture(GL_TEXTURE_2D, 0);
    glDeleteTextures(1, &texture);

    const double inMemory = t[2].perOperation - t[0].perOperation;
    const double spacedInMemory = t[4].perOperation - t[3].perOperation;
    const double intoFile = t[5].perOperation - t[3].perOperation;
    const double rate = bytes / inMemory / 1e9;
    rows.push_back({ kCapture, "1024x1024 RGBA8: bare `glTexImage2D`, one copy of the bytes",
                     format(t[0].perOperation, "us") + ", " + format(t[1].perOperation, "us"), "", "", "" });
    rows.push_back({ kCapture, "1024x1024 RGBA8 `glTexImage2D` captured into memory",
                     format(t[2].perOperation, "us") + "; capturing adds " + format(inMemory, "us") + " = " +
                         formatNumber(rate, 2) + " GB/s",
                     formatRatio(inMemory / t[1].perOperation, "one copy"), ">= 5 GB/s", yesNo(rate >= 5.0) });
    // The file is the capture's thread's business: the caller should wait no
    // longer than for the capture's copy into memory, under the same conditions.
    rows.push_back({ kCapture, "1024x1024 RGBA8 `glTexImage2D` captured, 10 ms apart: into memory, into a file",
                     "the caller waits " + format(spacedInMemory, "us") + ", " + format(intoFile, "us") + " more",
                     formatRatio(intoFile / spacedInMemory, "into memory"), "<= 1.25x into memory",
                     yesNo(intoFile <= 1.25 * spacedInMemory) });
}

// A frame of a GL 1.1 scene: immediate mode, client arrays, textures, matrices.
void drawFrame(int frame, GLuint texture)
{
    ORU_GL glViewport(0, 0, 256, 256);
    ORU_GL glClearColor(0.1f, 0.2f, 0.3f, 1.0f);
    ORU_GL glClear(GL_COLOR_BUFFER_BIT);
    ORU_GL glMatrixMode(GL_MODELVIEW);
    ORU_GL glLoadIdentity();
    ORU_GL glRotatef(static_cast<GLfloat>(frame) * 3.0f, 0, 0, 1);
    ORU_GL glBegin(GL_QUADS);
    for (int i = 0; i < 64; ++i)
    {
        const GLfloat x = -1.0f + static_cast<GLfloat>(i % 8) * 0.25f, y = -1.0f + static_cast<GLfloat>(i / 8) * 0.25f;
        ORU_GL glColor3f(shade(static_cast<unsigned int>(i * 4)), 0.5f, shade(static_cast<unsigned int>(frame)));
        ORU_GL glVertex2f(x, y);
        ORU_GL glVertex2f(x + 0.2f, y);
        ORU_GL glVertex2f(x + 0.2f, y + 0.2f);
        ORU_GL glVertex2f(x, y + 0.2f);
    }
    ORU_GL glEnd();
    static GLfloat strip[64];
    for (int i = 0; i < 32; ++i)
    {
        strip[2 * i] = -1.0f + static_cast<GLfloat>(i) / 16.0f;
        strip[2 * i + 1] = 0.3f * std::sin(static_cast<GLfloat>(i + frame) * 0.4f) + ((i & 1) ? 0.1f : -0.1f);
    }
    ORU_GL glEnable(GL_TEXTURE_2D);
    ORU_GL glBindTexture(GL_TEXTURE_2D, texture);
    ORU_GL glEnableClientState(GL_VERTEX_ARRAY);
    ORU_GL glVertexPointer(2, GL_FLOAT, 0, strip);
    for (int i = 0; i < 8; ++i)
    {
        ORU_GL glTranslatef(0.0f, 0.05f, 0.0f);
        ORU_GL glDrawArrays(GL_TRIANGLE_STRIP, 0, 32);
    }
    ORU_GL glDisableClientState(GL_VERTEX_ARRAY);
    ORU_GL glDisable(GL_TEXTURE_2D);
}

void replay(Environment& env, Rows& rows)
{
    using Oru::OGL::wglInterceptor;
    const int kFrames = 12;
    Oru::Replay::Window window(256, 256);
    if (!window.valid())
    {
        rows.push_back({ kCapture, "replay", "not measured: " + window.error(), "", "<= 1.2x the original", "not measured" });
        return;
    }
    std::vector<unsigned char> image(32 * 32 * 4, 200);
    auto const original = [&](CaptureSession* capture, std::vector<double>& frameSeconds) {
        const HGLRC context = wglInterceptor::Instance()->wcgmCreateContext(__FILE__, __LINE__, window.deviceContext());
        wglInterceptor::Instance()->wcgmMakeCurrent(__FILE__, __LINE__, window.deviceContext(), context);
        GLuint texture = 0;
        ORU_GL glGenTextures(1, &texture);
        ORU_GL glBindTexture(GL_TEXTURE_2D, texture);
        ORU_GL glTexParameteri(GL_TEXTURE_2D, GL_TEXTURE_MIN_FILTER, GL_LINEAR);
        ORU_GL glTexImage2D(GL_TEXTURE_2D, 0, GL_RGBA, 32, 32, 0, GL_RGBA, GL_UNSIGNED_BYTE, image.data());
        for (int frame = 0; frame < kFrames; ++frame)
        {
            const double start = now();
            drawFrame(frame, texture);
            frameSeconds.push_back(now() - start);
            wglInterceptor::Instance()->wcgmSwapBuffers(__FILE__, __LINE__, window.deviceContext());
        }
        ORU_GL glDeleteTextures(1, &texture);
        if (capture)
            capture->stop();
        wglInterceptor::Instance()->wcgmMakeCurrent(__FILE__, __LINE__, nullptr, nullptr);
        wglDeleteContext(context);
    };

    std::vector<char> bytes;
    {
        std::vector<double> ignored;
        CaptureSession capture([&bytes](char const* data, std::size_t length) {
            bytes.insert(bytes.end(), data, data + length);
            return true;
        });
        original(&capture, ignored);
    }
    std::vector<double> originalMedians, replayMedians, ratios;
    for (int round = 0; round < 7; ++round)
    {
        std::vector<double> drawn;
        original(nullptr, drawn);
        Oru::OGL::Replayer::Options options;
        options.compare = false;
        Oru::OGL::Replayer replayer(options);
        Oru::OGL::CaptureReader reader(std::vector<unsigned char>(bytes.begin(), bytes.end()));
        replayer.run(reader);
        const double a = median(drawn), b = median(replayer.result().frameSeconds);
        originalMedians.push_back(a);
        replayMedians.push_back(b);
        ratios.push_back(b / a);
    }
    env.context->makeCurrent();
    const double r = median(ratios);
    rows.push_back({ kCapture, "a frame of 350 GL 1.1 calls: drawn by the program, replayed by `oglreplay`",
                     format(median(originalMedians), "us") + ", " + format(median(replayMedians), "us"),
                     formatRatio(r, "the original"), "<= 1.2x the original", yesNo(r <= 1.2) });
}

} // namespace

void captureSection(Environment& env, Rows& rows)
{
    cheapCall(rows);
    uploads(rows);
    replay(env, rows);
}

} // namespace bench
