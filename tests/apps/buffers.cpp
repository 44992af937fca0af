// Vertex buffer objects drawn by a GLSL program: positions written through
// glMapBuffer, colours uploaded with glBufferData and updated each frame with
// glBufferSubData, indices in an element buffer; attributes bound by
// glBindAttribLocation or looked up with glGetAttribLocation, fed with
// glVertexAttribPointer; a matrix and a colour as uniforms.
//
//     buffers [--frames N] [--print-frames]
#include <windows.h>
#include <GL/gl.h>
#include <GL/glext.h>

#include <cmath>
#include <cstdio>
#include <cstdlib>
#include <cstring>

#include "FrameChecksum.h"

// OpenGL 1.5 and 2.0, fetched as the program starts.
static PFNGLGENBUFFERSPROC glGenBuffers;
static PFNGLDELETEBUFFERSPROC glDeleteBuffers;
static PFNGLBINDBUFFERPROC glBindBuffer;
static PFNGLBUFFERDATAPROC glBufferData;
static PFNGLBUFFERSUBDATAPROC glBufferSubData;
static PFNGLMAPBUFFERPROC glMapBuffer;
static PFNGLUNMAPBUFFERPROC glUnmapBuffer;
static PFNGLCREATESHADERPROC glCreateShader;
static PFNGLSHADERSOURCEPROC glShaderSource;
static PFNGLCOMPILESHADERPROC glCompileShader;
static PFNGLGETSHADERIVPROC glGetShaderiv;
static PFNGLGETSHADERINFOLOGPROC glGetShaderInfoLog;
static PFNGLCREATEPROGRAMPROC glCreateProgram;
static PFNGLATTACHSHADERPROC glAttachShader;
static PFNGLBINDATTRIBLOCATIONPROC glBindAttribLocation;
static PFNGLLINKPROGRAMPROC glLinkProgram;
static PFNGLGETPROGRAMIVPROC glGetProgramiv;
static PFNGLUSEPROGRAMPROC glUseProgram;
static PFNGLGETATTRIBLOCATIONPROC glGetAttribLocation;
static PFNGLGETUNIFORMLOCATIONPROC glGetUniformLocation;
static PFNGLUNIFORMMATRIX4FVPROC glUniformMatrix4fv;
static PFNGLUNIFORM4FPROC glUniform4f;
static PFNGLVERTEXATTRIBPOINTERPROC glVertexAttribPointer;
static PFNGLENABLEVERTEXATTRIBARRAYPROC glEnableVertexAttribArray;
static PFNGLDISABLEVERTEXATTRIBARRAYPROC glDisableVertexAttribArray;
static PFNGLDELETESHADERPROC glDeleteShader;
static PFNGLDELETEPROGRAMPROC glDeleteProgram;

#define FETCH(type, name) ((name = (type)(void*)wglGetProcAddress(#name)) != NULL)

static const char* kVertexShader =
    "#version 110\n"
    "attribute vec2 position;\n"
    "attribute vec3 colour;\n"
    "uniform mat4 transform;\n"
    "varying vec3 shade;\n"
    "void main() { shade = colour; gl_Position = transform * vec4(position, 0.0, 1.0); }\n";
static const char* kFragmentShader =
    "#version 110\n"
    "uniform vec4 tint;\n"
    "varying vec3 shade;\n"
    "void main() { gl_FragColor = vec4(shade, 1.0) * tint; }\n";

static GLuint compile(GLenum type, const char* source)
{
    GLuint shader = glCreateShader(type);
    glShaderSource(shader, 1, &source, NULL);
    glCompileShader(shader);
    GLint compiled = 0;
    glGetShaderiv(shader, GL_COMPILE_STATUS, &compiled);
    if (!compiled)
    {
        char log[1024];
        glGetShaderInfoLog(shader, sizeof(log), NULL, log);
        std::fprintf(stderr, "buffers: shader does not compile:\n%s\n", log);
        std::exit(1);
    }
    return shader;
}

static LRESULT CALLBACK windowProc(HWND window, UINT message, WPARAM wParam, LPARAM lParam)
{
    if (message == WM_CLOSE)
    {
        PostQuitMessage(0);
        return 0;
    }
    return DefWindowProcA(window, message, wParam, lParam);
}

int main(int argc, char** argv)
{
    int frames = 4;
    bool printFrames = false;
    for (int i = 1; i < argc; ++i)
    {
        if (!std::strcmp(argv[i], "--frames") && i + 1 < argc)
            frames = std::atoi(argv[++i]);
        else if (!std::strcmp(argv[i], "--print-frames"))
            printFrames = true;
    }

    WNDCLASSA windowClass = {};
    windowClass.style = CS_OWNDC;
    windowClass.lpfnWndProc = windowProc;
    windowClass.hInstance = GetModuleHandleA(NULL);
    windowClass.lpszClassName = "BuffersWindow";
    RegisterClassA(&windowClass);
    RECT rect = {0, 0, 160, 160};
    AdjustWindowRect(&rect, WS_OVERLAPPEDWINDOW, FALSE);
    HWND window = CreateWindowA("BuffersWindow", "buffers", WS_OVERLAPPEDWINDOW | WS_VISIBLE, 60, 60,
                                rect.right - rect.left, rect.bottom - rect.top, NULL, NULL, windowClass.hInstance, NULL);
    HDC dc = GetDC(window);
    PIXELFORMATDESCRIPTOR pfd = {};
    pfd.nSize = sizeof(pfd);
    pfd.nVersion = 1;
    pfd.dwFlags = PFD_DRAW_TO_WINDOW | PFD_SUPPORT_OPENGL | PFD_DOUBLEBUFFER;
    pfd.iPixelType = PFD_TYPE_RGBA;
    pfd.cColorBits = 32;
    SetPixelFormat(dc, ChoosePixelFormat(dc, &pfd), &pfd);
    HGLRC context = wglCreateContext(dc);
    wglMakeCurrent(dc, context);

    const char* version = reinterpret_cast<const char*>(glGetString(GL_VERSION));
    const char* extensions = reinterpret_cast<const char*>(glGetString(GL_EXTENSIONS));
    if (!version || std::atof(version) < 2.0 || !std::strstr(extensions, "GL_ARB_vertex_buffer_object") ||
        !FETCH(PFNGLGENBUFFERSPROC, glGenBuffers) || !FETCH(PFNGLDELETEBUFFERSPROC, glDeleteBuffers) ||
        !FETCH(PFNGLBINDBUFFERPROC, glBindBuffer) || !FETCH(PFNGLBUFFERDATAPROC, glBufferData) ||
        !FETCH(PFNGLBUFFERSUBDATAPROC, glBufferSubData) || !FETCH(PFNGLMAPBUFFERPROC, glMapBuffer) ||
        !FETCH(PFNGLUNMAPBUFFERPROC, glUnmapBuffer) || !FETCH(PFNGLCREATESHADERPROC, glCreateShader) ||
        !FETCH(PFNGLSHADERSOURCEPROC, glShaderSource) || !FETCH(PFNGLCOMPILESHADERPROC, glCompileShader) ||
        !FETCH(PFNGLGETSHADERIVPROC, glGetShaderiv) || !FETCH(PFNGLGETSHADERINFOLOGPROC, glGetShaderInfoLog) ||
        !FETCH(PFNGLCREATEPROGRAMPROC, glCreateProgram) || !FETCH(PFNGLATTACHSHADERPROC, glAttachShader) ||
        !FETCH(PFNGLBINDATTRIBLOCATIONPROC, glBindAttribLocation) || !FETCH(PFNGLLINKPROGRAMPROC, glLinkProgram) ||
        !FETCH(PFNGLGETPROGRAMIVPROC, glGetProgramiv) || !FETCH(PFNGLUSEPROGRAMPROC, glUseProgram) ||
        !FETCH(PFNGLGETATTRIBLOCATIONPROC, glGetAttribLocation) ||
        !FETCH(PFNGLGETUNIFORMLOCATIONPROC, glGetUniformLocation) ||
        !FETCH(PFNGLUNIFORMMATRIX4FVPROC, glUniformMatrix4fv) || !FETCH(PFNGLUNIFORM4FPROC, glUniform4f) ||
        !FETCH(PFNGLVERTEXATTRIBPOINTERPROC, glVertexAttribPointer) ||
        !FETCH(PFNGLENABLEVERTEXATTRIBARRAYPROC, glEnableVertexAttribArray) ||
        !FETCH(PFNGLDISABLEVERTEXATTRIBARRAYPROC, glDisableVertexAttribArray) ||
        !FETCH(PFNGLDELETESHADERPROC, glDeleteShader) || !FETCH(PFNGLDELETEPROGRAMPROC, glDeleteProgram))
    {
        std::fprintf(stderr, "buffers: needs OpenGL 2.0 with vertex buffer objects (have %s)\n", version);
        return 1;
    }

    // A ring of 8 triangles around the centre: 9 vertices, 24 indices.
    GLuint buffers[3]; // positions, colours, indices
    glGenBuffers(3, buffers);
    glBindBuffer(GL_ARRAY_BUFFER, buffers[0]);
    glBufferData(GL_ARRAY_BUFFER, 9 * 2 * sizeof(GLfloat), NULL, GL_STATIC_DRAW);
    GLfloat* positions = static_cast<GLfloat*>(glMapBuffer(GL_ARRAY_BUFFER, GL_WRITE_ONLY));
    positions[0] = positions[1] = 0;
    for (int i = 0; i < 8; ++i)
    {
        positions[2 + 2 * i] = 0.8f * std::cos(i * 0.785398f);
        positions[3 + 2 * i] = 0.8f * std::sin(i * 0.785398f);
    }
    glUnmapBuffer(GL_ARRAY_BUFFER);
    GLfloat colours[9 * 3];
    for (int i = 0; i < 9 * 3; ++i)
        colours[i] = (i % 3 == 0) ? 1.0f : (i % 3 == 1 ? (i / 3) / 8.0f : 1.0f - (i / 3) / 8.0f);
    glBindBuffer(GL_ARRAY_BUFFER, buffers[1]);
    glBufferData(GL_ARRAY_BUFFER, sizeof(colours), colours, GL_DYNAMIC_DRAW);
    GLushort indices[24];
    for (int i = 0; i < 8; ++i)
    {
        indices[3 * i] = 0;
        indices[3 * i + 1] = GLushort(1 + i);
        indices[3 * i + 2] = GLushort(1 + (i + 1) % 8);
    }
    glBindBuffer(GL_ELEMENT_ARRAY_BUFFER, buffers[2]);
    glBufferData(GL_ELEMENT_ARRAY_BUFFER, sizeof(indices), indices, GL_STATIC_DRAW);

    GLuint vertexShader = compile(GL_VERTEX_SHADER, kVertexShader);
    GLuint fragmentShader = compile(GL_FRAGMENT_SHADER, kFragmentShader);
    GLuint program = glCreateProgram();
    glAttachShader(program, vertexShader);
    glAttachShader(program, fragmentShader);
    glBindAttribLocation(program, 1, "position");
    glLinkProgram(program);
    GLint linked = 0;
    glGetProgramiv(program, GL_LINK_STATUS, &linked);
    if (!linked)
    {
        std::fprintf(stderr, "buffers: the program does not link\n");
        return 1;
    }
    const GLint positionAttribute = 1;
    const GLint colourAttribute = glGetAttribLocation(program, "colour");
    const GLint transform = glGetUniformLocation(program, "transform");
    const GLint tint = glGetUniformLocation(program, "tint");

    RECT client;
    GetClientRect(window, &client);
    glViewport(0, 0, client.right, client.bottom);
    for (int frame = 0; frame < frames; ++frame)
    {
        MSG message;
        while (PeekMessageA(&message, NULL, 0, 0, PM_REMOVE))
            DispatchMessageA(&message);

        // Frame n turns the ring by n * 10 degrees and shifts one vertex's colour.
        const float angle = frame * 0.174533f;
        const GLfloat matrix[16] = {std::cos(angle), std::sin(angle), 0, 0, -std::sin(angle), std::cos(angle), 0, 0,
                                    0, 0, 1, 0, 0.1f * (frame % 3), 0, 0, 1};
        const GLfloat centre[3] = {1.0f - 0.2f * (frame % 5), 0.2f * (frame % 5), 0.5f};
        glBindBuffer(GL_ARRAY_BUFFER, buffers[1]);
        glBufferSubData(GL_ARRAY_BUFFER, 0, sizeof(centre), centre);

        glClearColor(0, 0, 0, 1);
        glClear(GL_COLOR_BUFFER_BIT);
        glUseProgram(program);
        glUniformMatrix4fv(transform, 1, GL_FALSE, matrix);
        glUniform4f(tint, 1.0f, 0.9f, 0.8f, 1.0f);
        glBindBuffer(GL_ARRAY_BUFFER, buffers[0]);
        glVertexAttribPointer(positionAttribute, 2, GL_FLOAT, GL_FALSE, 0, NULL);
        glEnableVertexAttribArray(positionAttribute);
        glBindBuffer(GL_ARRAY_BUFFER, buffers[1]);
        glVertexAttribPointer(colourAttribute, 3, GL_FLOAT, GL_FALSE, 0, NULL);
        glEnableVertexAttribArray(colourAttribute);
        glBindBuffer(GL_ELEMENT_ARRAY_BUFFER, buffers[2]);
        glDrawElements(GL_TRIANGLES, 24, GL_UNSIGNED_SHORT, NULL);
        glDisableVertexAttribArray(positionAttribute);
        glDisableVertexAttribArray(colourAttribute);
        glUseProgram(0);

        if (printFrames)
            printFrameLine(frame, client.right, client.bottom);
        SwapBuffers(dc);
    }

    glDeleteProgram(program);
    glDeleteShader(vertexShader);
    glDeleteShader(fragmentShader);
    glDeleteBuffers(3, buffers);
    wglMakeCurrent(NULL, NULL);
    wglDeleteContext(context);
    ReleaseDC(window, dc);
    DestroyWindow(window);
    return 0;
}
