// recorddemo: renders a small textured scene through the interception chain,
// with a tracer and a recorder pushed and the context made through the WGL
// chain with its recorder, and writes
//
//   trace.txt       one line per GL call
//   recording.cpp   the calls as C++ source (GL and WGL), for oru_add_replay
//   recording.bin   the recording's binary blocks (pixels, matrices)
//   scene.png       the frame it drew
//
// into the folder given with --out (default: recorddemo/ beside the folder of
// the program, i.e. in the build tree).
#include "oru_ogl/extensionator/ExtensionCatalogue.h"
#include "oru_ogl/extensionator/GLCall.h"
#include "oru_ogl/extensionator/OpenGLRekorder.h"
#include "oru_ogl/extensionator/OpenGLTracer.h"
#include "oru_ogl/extensionator/windows/wglRekorder.h"

#include "oru_core/Exceptions.h"

#include "oru_replay/Image.h"
#include "oru_replay/Window.h"

#include <cmath>
#include <cstdio>
#include <cstring>
#include <exception>
#include <fstream>
#include <string>
#include <vector>

namespace OGL = Oru::OGL;

namespace
{

const int kSize = 256;

std::string defaultOutput()
{
    char path[MAX_PATH] = {};
    GetModuleFileNameA(nullptr, path, MAX_PATH);
    std::string folder(path);
    for (int up = 0; up < 2; ++up) // the program's file, then its folder
        folder = folder.substr(0, folder.find_last_of("\\/"));
    return folder + "\\recorddemo";
}

// 64 x 64 RGBA: a checkerboard over a colour ramp.
std::vector<unsigned char> checkerboard()
{
    std::vector<unsigned char> pixels(64 * 64 * 4);
    for (int y = 0; y < 64; ++y)
        for (int x = 0; x < 64; ++x)
        {
            unsigned char* p = &pixels[(y * 64 + x) * 4];
            const bool dark = ((x / 8) + (y / 8)) % 2 != 0;
            p[0] = static_cast<unsigned char>(dark ? x * 2 : 255 - x);
            p[1] = static_cast<unsigned char>(dark ? y * 3 : 230);
            p[2] = static_cast<unsigned char>(dark ? 90 : 255 - y * 2);
            p[3] = 255;
        }
    return pixels;
}

// 32 x 32 RGB diagonal stripes.
std::vector<unsigned char> stripes()
{
    std::vector<unsigned char> pixels(32 * 32 * 3);
    for (int y = 0; y < 32; ++y)
        for (int x = 0; x < 32; ++x)
        {
            unsigned char* p = &pixels[(y * 32 + x) * 3];
            const int band = ((x + y) / 4) % 3;
            p[0] = static_cast<unsigned char>(band == 0 ? 250 : 40 + x * 4);
            p[1] = static_cast<unsigned char>(band == 1 ? 220 : 60);
            p[2] = static_cast<unsigned char>(band == 2 ? 240 : y * 7);
        }
    return pixels;
}

void drawScene()
{
    ORU_GL glViewport(0, 0, kSize, kSize);
    ORU_GL glClearColor(0.1f, 0.12f, 0.18f, 1.0f);
    ORU_GL glClear(GL_COLOR_BUFFER_BIT | GL_DEPTH_BUFFER_BIT);

    ORU_GL glMatrixMode(GL_PROJECTION);
    ORU_GL glLoadIdentity();
    ORU_GL glOrtho(-1, 1, -1, 1, -1, 1);
    ORU_GL glMatrixMode(GL_MODELVIEW);
    const float angle = 0.35f;
    const GLfloat rotation[16] = { std::cos(angle), std::sin(angle), 0, 0, -std::sin(angle), std::cos(angle), 0, 0,
                                   0, 0, 1, 0, 0.05f, -0.02f, 0, 1 };
    const GLfloat scale[16] = { 0.9f, 0, 0, 0, 0, 0.9f, 0, 0, 0, 0, 1, 0, 0, 0, 0, 1 };
    ORU_GL glLoadMatrixf(rotation);
    ORU_GL glMultMatrixf(scale);

    // The recorder copies eight bytes per texture name into its recording, so
    // the array has room for twice the names it holds.
    GLuint textures[4] = {};
    ORU_GL glGenTextures(2, textures);

    const std::vector<unsigned char> board = checkerboard();
    ORU_GL glBindTexture(GL_TEXTURE_2D, textures[0]);
    ORU_GL glTexParameteri(GL_TEXTURE_2D, GL_TEXTURE_MIN_FILTER, GL_NEAREST);
    ORU_GL glTexParameteri(GL_TEXTURE_2D, GL_TEXTURE_MAG_FILTER, GL_NEAREST);
    ORU_GL glTexImage2D(GL_TEXTURE_2D, 0, GL_RGBA, 64, 64, 0, GL_RGBA, GL_UNSIGNED_BYTE, board.data());
    std::vector<unsigned char> patch(16 * 16 * 4);
    for (std::size_t i = 0; i < patch.size(); i += 4)
    {
        patch[i] = 255;
        patch[i + 1] = static_cast<unsigned char>(i / 4);
        patch[i + 2] = 0;
        patch[i + 3] = 255;
    }
    ORU_GL glTexSubImage2D(GL_TEXTURE_2D, 0, 24, 24, 16, 16, GL_RGBA, GL_UNSIGNED_BYTE, patch.data());

    const std::vector<unsigned char> lines = stripes();
    ORU_GL glBindTexture(GL_TEXTURE_2D, textures[1]);
    ORU_GL glTexParameteri(GL_TEXTURE_2D, GL_TEXTURE_MIN_FILTER, GL_LINEAR);
    ORU_GL glTexParameteri(GL_TEXTURE_2D, GL_TEXTURE_MAG_FILTER, GL_LINEAR);
    ORU_GL glTexImage2D(GL_TEXTURE_2D, 0, GL_RGB, 32, 32, 0, GL_RGB, GL_UNSIGNED_BYTE, lines.data());

    ORU_GL glEnable(GL_TEXTURE_2D);
    ORU_GL glTexEnvi(GL_TEXTURE_ENV, GL_TEXTURE_ENV_MODE, GL_MODULATE);

    ORU_GL glBindTexture(GL_TEXTURE_2D, textures[0]);
    ORU_GL glColor4f(1, 1, 1, 1);
    ORU_GL glBegin(GL_QUADS);
    ORU_GL glTexCoord2f(0, 0);
    ORU_GL glVertex2f(-0.95f, -0.7f);
    ORU_GL glTexCoord2f(2, 0);
    ORU_GL glVertex2f(0.05f, -0.7f);
    ORU_GL glTexCoord2f(2, 2);
    ORU_GL glVertex2f(0.05f, 0.6f);
    ORU_GL glTexCoord2f(0, 2);
    ORU_GL glVertex2f(-0.95f, 0.6f);
    ORU_GL glEnd();

    // The second quad through the vector forms, and a GL 1.3 entry point.
    const GLfloat corners[4][2] = { { 0.1f, -0.8f }, { 0.9f, -0.8f }, { 0.9f, 0.3f }, { 0.1f, 0.3f } };
    const GLfloat coordinates[4][2] = { { 0, 0 }, { 1, 0 }, { 1, 1.5f }, { 0, 1.5f } };
    ORU_GL glBindTexture(GL_TEXTURE_2D, textures[1]);
    ORU_GL glColor3f(1.0f, 0.85f, 0.7f);
    ORU_GL glBegin(GL_QUADS);
    for (int k = 0; k < 4; ++k)
    {
        ORU_GL glMultiTexCoord2fv(GL_TEXTURE0, coordinates[k]);
        ORU_GL glVertex2fv(corners[k]);
    }
    ORU_GL glEnd();

    ORU_GL glDisable(GL_TEXTURE_2D);
    ORU_GL glEnable(GL_BLEND);
    ORU_GL glBlendFunc(GL_SRC_ALPHA, GL_ONE_MINUS_SRC_ALPHA);
    ORU_GL glBegin(GL_TRIANGLES);
    ORU_GL glColor4f(1.0f, 0.2f, 0.2f, 0.6f);
    ORU_GL glVertex2f(-0.5f, 0.2f);
    ORU_GL glColor4f(0.2f, 1.0f, 0.3f, 0.6f);
    ORU_GL glVertex2f(0.6f, 0.5f);
    ORU_GL glColor4f(0.3f, 0.4f, 1.0f, 0.6f);
    ORU_GL glVertex2f(-0.1f, 0.95f);
    ORU_GL glEnd();
    ORU_GL glDisable(GL_BLEND);
    ORU_GL glFinish();

    ORU_GL glDeleteTextures(2, textures);
}

// Binary, so that the files hold the very bytes written ("\n" line ends), and
// with a large buffer: the tracer and the recorder write once per call, and
// the toolchain's default buffer would make most of those writes system calls.
// [streams]
bool open(std::ofstream& file, std::string const& path, std::vector<char>& buffer)
{
    buffer.resize(1 << 20);
    file.rdbuf()->pubsetbuf(buffer.data(), static_cast<std::streamsize>(buffer.size()));
    file.open(path, std::ios::binary);
    return bool(file);
}
// [streams]

int run(std::string const& folder)
{
    CreateDirectoryA(folder.c_str(), nullptr);
    std::vector<char> buffers[3];
    std::ofstream trace, code, data;
    if (!open(trace, folder + "\\trace.txt", buffers[0]) || !open(code, folder + "\\recording.cpp", buffers[1]) ||
        !open(data, folder + "\\recording.bin", buffers[2]))
    {
        std::fprintf(stderr, "recorddemo: cannot write into %s\n", folder.c_str());
        return 1;
    }

    Oru::Replay::Window window(kSize, kSize);
    if (!window.valid())
    {
        std::fprintf(stderr, "recorddemo: %s\n", window.error().c_str());
        return 1;
    }
    const HDC dc = window.deviceContext();

    // [wgl chain]
    // Context set-up through the WGL chain, recorded into the same code.
    OGL::wglRekorder wglRecorder(code, data, dc, nullptr, true);
    OGL::wglInterceptor::Instance()->addInterceptor(&wglRecorder);
    OGL::wglInterceptor* wgl = OGL::wglInterceptor::Instance();
    const HGLRC context = wgl->wcgmCreateContext(__FILE__, __LINE__, dc);
    if (!context || !wgl->wcgmMakeCurrent(__FILE__, __LINE__, dc, context))
    {
        std::fprintf(stderr, "recorddemo: cannot create an OpenGL context\n");
        return 1;
    }
    // [wgl chain]
    if (!OGL::ExtensionCatalogue::loadGL(OGL::OPEN_GL_1_3))
    {
        std::fprintf(stderr, "recorddemo: OpenGL 1.3 is required\n");
        return 1;
    }

    // [gl chain]
    // The GL chain: tracer on top, then the recorder, then the error checker.
    OGL::OpenGLRekorder recorder(code, data, nullptr, true);
    OGL::OpenGLTracer tracer(trace);
    OGL::OpenGLInterceptor::Instance()->addInterceptor(&recorder);
    OGL::OpenGLInterceptor::Instance()->addInterceptor(&tracer);
    // [gl chain]

    Oru::Replay::Image frame;
    frame.width = frame.height = kSize;
    frame.rgba.resize(kSize * kSize * 4);
    int status = 0;
    try
    {
        drawScene();
        // Recorded as a comment: a replay has no memory of ours to read into.
        ORU_GL glReadPixels(0, 0, kSize, kSize, GL_RGBA, GL_UNSIGNED_BYTE, frame.rgba.data());
        wgl->wcgmSwapBuffers(__FILE__, __LINE__, dc);
    }
    catch (std::exception const& e)
    {
        std::fprintf(stderr, "recorddemo: %s\n", e.what());
        status = 1;
    }
    // [pop]
    OGL::OpenGLInterceptor::Instance()->popInterceptor();
    OGL::OpenGLInterceptor::Instance()->popInterceptor();
    // [pop]

    wgl->wcgmMakeCurrent(__FILE__, __LINE__, dc, nullptr);
    wgl->wcgmDeleteContext(__FILE__, __LINE__, context);
    wgl->popInterceptor();
    OGL::OpenGLInterceptor::destroy();
    OGL::wglInterceptor::destroy();
    if (status != 0)
        return status;

    const std::string png = folder + "\\scene.png";
    if (!Oru::Replay::writePng(png, frame))
    {
        std::fprintf(stderr, "recorddemo: cannot write %s\n", png.c_str());
        return 1;
    }
    trace.flush();
    code.flush();
    data.flush();
    std::printf("recorddemo: wrote into %s\n", folder.c_str());
    std::printf("  trace.txt       %ld bytes\n", static_cast<long>(trace.tellp()));
    std::printf("  recording.cpp   %ld bytes\n", static_cast<long>(code.tellp()));
    std::printf("  recording.bin   %u bytes\n", recorder.binaryOffset());
    std::printf("  scene.png       %dx%d\n", kSize, kSize);
    return trace && code && data ? 0 : 1;
}

} // namespace

int main(int argc, char** argv)
{
    std::string folder = defaultOutput();
    if (argc == 3 && std::strcmp(argv[1], "--out") == 0)
        folder = argv[2];
    else if (argc != 1)
    {
        std::fprintf(stderr, "usage: recorddemo [--out FOLDER]\n");
        return 2;
    }
    return run(folder);
}
