// A GL 2.x program written through the interception chain (ORU_GL and the WGL
// chain), as an application using the layer would be, captured whole:
//
//   capture_scene CAPTURE [--frames N] [--store-frames]
//
// Each frame exercises what captures must carry: client arrays drawn with and
// without indices, interleaved arrays, a buffer filled through glMapBuffer, a
// display list, a GLSL program with uniforms and an attribute, a texture
// uploaded with a row length, and an FBO whose texture is drawn.
#include "oru_ogl/LibraryOGL.h"
#include "oru_ogl/extensionator/CaptureSession.h"
#include "oru_ogl/extensionator/GLCall.h"
#include "oru_ogl/extensionator/windows/wglInterceptor.h"
#include "oru_ogl/ogl/ContextWrapped.h"

#include "oru_replay/Window.h"

#include <cmath>
#include <cstdio>
#include <cstring>
#include <string>
#include <vector>

namespace OGL = Oru::OGL;

namespace
{

const int kSize = 128;

const char* const kVertexShader =
    "attribute float shade;\n"
    "varying vec4 colour;\n"
    "uniform mat4 turn;\n"
    "void main() { colour = vec4(gl_Color.rgb * shade, 1.0); gl_Position = turn * gl_Vertex; }\n";
const char* const kFragmentShader =
    "varying vec4 colour;\n"
    "uniform vec4 tint;\n"
    "void main() { gl_FragColor = colour * tint; }\n";

GLuint compile(GLenum type, const char* source)
{
    const GLuint shader = ORU_GL glCreateShader(type);
    ORU_GL glShaderSource(shader, 1, &source, nullptr);
    ORU_GL glCompileShader(shader);
    return shader;
}

struct Scene
{
    GLuint program = 0, list = 0, buffer = 0, texture = 0, target = 0, framebuffer = 0;
    GLint turn = -1, tint = -1, shade = -1;

    void create()
    {
        program = ORU_GL glCreateProgram();
        const GLuint vertex = compile(GL_VERTEX_SHADER, kVertexShader);
        const GLuint fragment = compile(GL_FRAGMENT_SHADER, kFragmentShader);
        ORU_GL glAttachShader(program, vertex);
        ORU_GL glAttachShader(program, fragment);
        ORU_GL glLinkProgram(program);
        turn = ORU_GL glGetUniformLocation(program, "turn");
        tint = ORU_GL glGetUniformLocation(program, "tint");
        shade = ORU_GL glGetAttribLocation(program, "shade");

        list = ORU_GL glGenLists(1);
        ORU_GL glNewList(list, GL_COMPILE);
        ORU_GL glBegin(GL_TRIANGLES);
        ORU_GL glColor3f(1, 1, 0);
        ORU_GL glVertex2f(-0.9f, 0.9f);
        ORU_GL glVertex2f(-0.6f, 0.9f);
        ORU_GL glVertex2f(-0.75f, 0.6f);
        ORU_GL glEnd();
        ORU_GL glEndList();

        // A quad strip in a buffer, written through a mapping.
        ORU_GL glGenBuffers(1, &buffer);
        ORU_GL glBindBuffer(GL_ARRAY_BUFFER, buffer);
        ORU_GL glBufferData(GL_ARRAY_BUFFER, 8 * sizeof(GLfloat), nullptr, GL_STATIC_DRAW);
        auto* corners = static_cast<GLfloat*>(ORU_GL glMapBuffer(GL_ARRAY_BUFFER, GL_WRITE_ONLY));
        const GLfloat quad[8] = { 0.3f, -0.9f, 0.9f, -0.9f, 0.3f, -0.3f, 0.9f, -0.3f };
        std::memcpy(corners, quad, sizeof(quad));
        ORU_GL glUnmapBuffer(GL_ARRAY_BUFFER);
        ORU_GL glBindBuffer(GL_ARRAY_BUFFER, 0);

        // A texture from the middle of a wider image: row length and skips.
        std::vector<unsigned char> image(32 * 16 * 4);
        for (std::size_t i = 0; i < image.size(); ++i)
            image[i] = static_cast<unsigned char>((i * 37) ^ (i >> 3));
        ORU_GL glGenTextures(1, &texture);
        ORU_GL glBindTexture(GL_TEXTURE_2D, texture);
        ORU_GL glTexParameteri(GL_TEXTURE_2D, GL_TEXTURE_MIN_FILTER, GL_NEAREST);
        ORU_GL glTexParameteri(GL_TEXTURE_2D, GL_TEXTURE_MAG_FILTER, GL_NEAREST);
        ORU_GL glPixelStorei(GL_UNPACK_ROW_LENGTH, 32);
        ORU_GL glPixelStorei(GL_UNPACK_SKIP_PIXELS, 8);
        ORU_GL glTexImage2D(GL_TEXTURE_2D, 0, GL_RGBA, 16, 16, 0, GL_RGBA, GL_UNSIGNED_BYTE, image.data());
        ORU_GL glPixelStorei(GL_UNPACK_ROW_LENGTH, 0);
        ORU_GL glPixelStorei(GL_UNPACK_SKIP_PIXELS, 0);

        ORU_GL glGenTextures(1, &target);
        ORU_GL glBindTexture(GL_TEXTURE_2D, target);
        ORU_GL glTexParameteri(GL_TEXTURE_2D, GL_TEXTURE_MIN_FILTER, GL_LINEAR);
        ORU_GL glTexImage2D(GL_TEXTURE_2D, 0, GL_RGBA, 32, 32, 0, GL_RGBA, GL_UNSIGNED_BYTE, nullptr);
        ORU_GL glGenFramebuffersEXT(1, &framebuffer);
        ORU_GL glBindFramebufferEXT(GL_FRAMEBUFFER_EXT, framebuffer);
        ORU_GL glFramebufferTexture2DEXT(GL_FRAMEBUFFER_EXT, GL_COLOR_ATTACHMENT0_EXT, GL_TEXTURE_2D, target, 0);
        ORU_GL glBindFramebufferEXT(GL_FRAMEBUFFER_EXT, 0);
    }

    void draw(int frame)
    {
        const float angle = 0.2f * static_cast<float>(frame);
        // Into the FBO: a fan from client arrays, no indices.
        ORU_GL glBindFramebufferEXT(GL_FRAMEBUFFER_EXT, framebuffer);
        ORU_GL glViewport(0, 0, 32, 32);
        ORU_GL glClearColor(0.2f, 0.0f, 0.3f, 1.0f);
        ORU_GL glClear(GL_COLOR_BUFFER_BIT);
        const GLfloat fan[] = { 0, 0, 1, 0, std::cos(angle), std::sin(angle), 0, 1, -1, 0 };
        const GLubyte fanColours[] = { 255, 255, 255, 255, 0, 0, 0, 255, 0, 0, 0, 255, 255, 0, 255 };
        ORU_GL glEnableClientState(GL_VERTEX_ARRAY);
        ORU_GL glEnableClientState(GL_COLOR_ARRAY);
        ORU_GL glVertexPointer(2, GL_FLOAT, 0, fan);
        ORU_GL glColorPointer(3, GL_UNSIGNED_BYTE, 0, fanColours);
        ORU_GL glDrawArrays(GL_TRIANGLE_FAN, 0, 5);
        ORU_GL glDisableClientState(GL_COLOR_ARRAY);
        ORU_GL glBindFramebufferEXT(GL_FRAMEBUFFER_EXT, 0);

        ORU_GL glViewport(0, 0, kSize, kSize);
        ORU_GL glClearColor(0.1f, 0.1f, 0.1f * static_cast<float>(frame % 5), 1.0f);
        ORU_GL glClear(GL_COLOR_BUFFER_BIT);

        // The FBO's texture and the uploaded one, on interleaved quads.
        ORU_GL glEnable(GL_TEXTURE_2D);
        const GLfloat textured[] = { 0, 0, -0.9f, -0.9f, 0, 1, 0, -0.3f, -0.9f, 0,
                                     1, 1, -0.3f, -0.3f, 0, 0, 1, -0.9f, -0.3f, 0 };
        ORU_GL glInterleavedArrays(GL_T2F_V3F, 0, textured);
        ORU_GL glBindTexture(GL_TEXTURE_2D, target);
        ORU_GL glDrawArrays(GL_QUADS, 0, 4);
        const GLushort second[] = { 3, 2, 1, 0 };
        ORU_GL glMatrixMode(GL_MODELVIEW);
        ORU_GL glPushMatrix();
        ORU_GL glTranslatef(0.0f, 1.2f, 0.0f);
        ORU_GL glBindTexture(GL_TEXTURE_2D, texture);
        ORU_GL glDrawElements(GL_QUADS, 4, GL_UNSIGNED_SHORT, second);
        ORU_GL glPopMatrix();
        ORU_GL glDisableClientState(GL_TEXTURE_COORD_ARRAY);
        ORU_GL glDisable(GL_TEXTURE_2D);

        // The mapped buffer, through the program, with indices from client memory.
        ORU_GL glUseProgram(program);
        const GLfloat matrix[16] = { std::cos(angle), std::sin(angle), 0, 0, -std::sin(angle), std::cos(angle), 0, 0,
                                     0, 0, 1, 0, 0, 0, 0, 1 };
        ORU_GL glUniformMatrix4fv(turn, 1, GL_FALSE, matrix);
        ORU_GL glUniform4f(tint, 1.0f, 0.8f, 0.6f, 1.0f);
        const GLfloat shades[] = { 1.0f, 0.5f, 0.8f, 0.2f };
        ORU_GL glEnableVertexAttribArray(static_cast<GLuint>(shade));
        ORU_GL glVertexAttribPointer(static_cast<GLuint>(shade), 1, GL_FLOAT, GL_FALSE, 0, shades);
        ORU_GL glBindBuffer(GL_ARRAY_BUFFER, buffer);
        ORU_GL glVertexPointer(2, GL_FLOAT, 0, nullptr);
        ORU_GL glBindBuffer(GL_ARRAY_BUFFER, 0);
        ORU_GL glColor3f(0.3f, 0.9f, 0.4f);
        const GLubyte strip[] = { 0, 1, 2, 3 };
        ORU_GL glDrawElements(GL_TRIANGLE_STRIP, 4, GL_UNSIGNED_BYTE, strip);
        ORU_GL glDisableVertexAttribArray(static_cast<GLuint>(shade));
        ORU_GL glUseProgram(0);
        ORU_GL glDisableClientState(GL_VERTEX_ARRAY);

        ORU_GL glCallList(list);
    }
};

} // namespace

int main(int argc, char** argv)
{
    if (argc < 2)
    {
        std::fprintf(stderr, "usage: capture_scene CAPTURE [--frames N] [--store-frames]\n");
        return 2;
    }
    int frames = 3;
    OGL::CaptureOptions options;
    for (int i = 2; i < argc; ++i)
        if (std::string(argv[i]) == "--frames" && i + 1 < argc)
            frames = std::atoi(argv[++i]);
        else if (std::string(argv[i]) == "--store-frames")
            options.storeFrames = true;

    Oru::Replay::Window window(kSize, kSize);
    if (!window.valid())
        return std::fprintf(stderr, "%s\n", window.error().c_str()), 1;
    try
    {
        //! [capture session]
        OGL::CaptureSession capture(argv[1], options);
        auto const wgl = [] { return OGL::wglInterceptor::Instance(); };
        const HGLRC context = wgl()->wcgmCreateContext(__FILE__, __LINE__, window.deviceContext());
        wgl()->wcgmMakeCurrent(__FILE__, __LINE__, window.deviceContext(), context);
        OGL::ContextWrapped wrapped(window.deviceContext(), context);
        OGL::ExtensionManager::InitOptions layer;
        layer.setCompatibilityCoreVersions(true);
        OGL::Library::initializeExtensionator(&wrapped, layer);
        //! [capture session]

        Scene scene;
        scene.create();
        for (int frame = 0; frame < frames; ++frame)
        {
            scene.draw(frame);
            wgl()->wcgmSwapBuffers(__FILE__, __LINE__, window.deviceContext());
        }
        //! [capture stop]
        capture.stop();
        std::printf("captured %llu calls, %u frames, %llu bytes\n", static_cast<unsigned long long>(capture.calls()),
                    capture.frames(), static_cast<unsigned long long>(capture.bytes()));
        //! [capture stop]
        OGL::Library::terminateExtensionator();
        wgl()->wcgmMakeCurrent(__FILE__, __LINE__, nullptr, nullptr);
        wgl()->wcgmDeleteContext(__FILE__, __LINE__, context);
    }
    catch (std::exception const& error)
    {
        std::fprintf(stderr, "capture_scene: %s\n", error.what());
        return 1;
    }
    return 0;
}
