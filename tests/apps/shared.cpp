// Two windows, each with its own rendering context, sharing display lists and
// textures through wglShareLists: the lists and the texture are made in the
// first context only, and the second draws them too. Each frame is drawn and
// presented in both windows, one after the other.
//
//     shared [--frames N] [--print-frames]
#include <windows.h>
#include <GL/gl.h>
#include <GL/glext.h>

#include <cstdio>
#include <cstdlib>
#include <cstring>

#include "FrameChecksum.h"

struct View
{
    HWND window;
    HDC dc;
    HGLRC context;
    int width, height;
};

static LRESULT CALLBACK windowProc(HWND window, UINT message, WPARAM wParam, LPARAM lParam)
{
    return DefWindowProcA(window, message, wParam, lParam);
}

static bool openView(View& view, const char* title, int x, int width, int height)
{
    RECT rect = {0, 0, width, height};
    AdjustWindowRect(&rect, WS_OVERLAPPEDWINDOW, FALSE);
    view.window = CreateWindowA("SharedWindow", title, WS_OVERLAPPEDWINDOW | WS_VISIBLE, x, 40, rect.right - rect.left,
                                rect.bottom - rect.top, NULL, NULL, GetModuleHandleA(NULL), NULL);
    view.dc = GetDC(view.window);
    PIXELFORMATDESCRIPTOR pfd = {};
    pfd.nSize = sizeof(pfd);
    pfd.nVersion = 1;
    pfd.dwFlags = PFD_DRAW_TO_WINDOW | PFD_SUPPORT_OPENGL | PFD_DOUBLEBUFFER;
    pfd.iPixelType = PFD_TYPE_RGBA;
    pfd.cColorBits = 32;
    SetPixelFormat(view.dc, ChoosePixelFormat(view.dc, &pfd), &pfd);
    view.context = wglCreateContext(view.dc);
    RECT client;
    GetClientRect(view.window, &client);
    view.width = client.right;
    view.height = client.bottom;
    return view.context != NULL;
}

static void closeView(View& view)
{
    wglDeleteContext(view.context);
    ReleaseDC(view.window, view.dc);
    DestroyWindow(view.window);
}

// A textured wheel of 12 spokes (list + 0) and its hub (list + 1).
static GLuint buildShared(GLuint* texture)
{
    // Edge clamping where the driver has it, so that the spokes' ends stay clean.
    const char* extensions = reinterpret_cast<const char*>(glGetString(GL_EXTENSIONS));
    const bool edgeClamp = extensions && (std::strstr(extensions, "GL_EXT_texture_edge_clamp") ||
                                          std::strstr(extensions, "GL_SGIS_texture_edge_clamp"));
    const GLubyte checker[] = {255, 255, 255, 40, 40, 160, 40, 40, 160, 255, 255, 255};
    glGenTextures(1, texture);
    glBindTexture(GL_TEXTURE_2D, *texture);
    glTexParameteri(GL_TEXTURE_2D, GL_TEXTURE_MIN_FILTER, GL_NEAREST);
    glTexParameteri(GL_TEXTURE_2D, GL_TEXTURE_MAG_FILTER, GL_NEAREST);
    glTexParameteri(GL_TEXTURE_2D, GL_TEXTURE_WRAP_T, edgeClamp ? GL_CLAMP_TO_EDGE : GL_CLAMP);
    glPixelStorei(GL_UNPACK_ALIGNMENT, 1);
    glTexImage2D(GL_TEXTURE_2D, 0, GL_RGB8, 2, 2, 0, GL_RGB, GL_UNSIGNED_BYTE, checker);

    const GLuint lists = glGenLists(2);
    glNewList(lists, GL_COMPILE);
    glEnable(GL_TEXTURE_2D);
    glBindTexture(GL_TEXTURE_2D, *texture);
    for (int spoke = 0; spoke < 12; ++spoke)
    {
        glPushMatrix();
        glRotatef(30.0f * spoke, 0, 0, 1);
        glBegin(GL_QUADS);
        glTexCoord2f(0, 0);
        glVertex2f(0.1f, -0.04f);
        glTexCoord2f(4, 0);
        glVertex2f(0.9f, -0.04f);
        glTexCoord2f(4, 1);
        glVertex2f(0.9f, 0.04f);
        glTexCoord2f(0, 1);
        glVertex2f(0.1f, 0.04f);
        glEnd();
        glPopMatrix();
    }
    glDisable(GL_TEXTURE_2D);
    glEndList();
    glNewList(lists + 1, GL_COMPILE);
    glColor3f(0.9f, 0.3f, 0.2f);
    glRectf(-0.12f, -0.12f, 0.12f, 0.12f);
    glColor3f(1, 1, 1);
    glEndList();
    return lists;
}

static void drawView(const View& view, GLuint lists, float angle, float scale)
{
    glViewport(0, 0, view.width, view.height);
    glClearColor(0.05f, 0.1f, 0.05f, 1);
    glClear(GL_COLOR_BUFFER_BIT);
    glMatrixMode(GL_MODELVIEW);
    glLoadIdentity();
    glScalef(scale, scale, 1);
    glRotatef(angle, 0, 0, 1);
    glColor3f(1, 1, 1);
    glCallList(lists);
    glCallList(lists + 1);
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
    windowClass.lpszClassName = "SharedWindow";
    RegisterClassA(&windowClass);
    View first = {}, second = {};
    if (!openView(first, "shared: first", 20, 160, 120) || !openView(second, "shared: second", 220, 96, 96))
    {
        std::fprintf(stderr, "shared: no OpenGL context\n");
        return 1;
    }
    // Before the second context has objects of its own, as sharing requires.
    if (!wglShareLists(first.context, second.context))
    {
        std::fprintf(stderr, "shared: the contexts cannot share lists\n");
        return 1;
    }

    wglMakeCurrent(first.dc, first.context);
    GLuint texture = 0;
    const GLuint lists = buildShared(&texture);
    for (int frame = 0; frame < frames; ++frame)
    {
        MSG message;
        while (PeekMessageA(&message, NULL, 0, 0, PM_REMOVE))
            DispatchMessageA(&message);

        wglMakeCurrent(first.dc, first.context);
        drawView(first, lists, 7.5f * frame, 1.0f);
        if (printFrames)
            printFrameLine(frame, first.width, first.height);
        SwapBuffers(first.dc);

        wglMakeCurrent(second.dc, second.context);
        if (wglGetCurrentContext() != second.context || !glIsList(lists))
        {
            std::fprintf(stderr, "shared: the second context does not see the lists\n");
            return 1;
        }
        drawView(second, lists, -15.0f * frame, 0.8f);
        if (printFrames)
            printFrameLine(frame, second.width, second.height);
        SwapBuffers(second.dc);
    }

    wglMakeCurrent(first.dc, first.context);
    glDeleteLists(lists, 2);
    glDeleteTextures(1, &texture);
    wglMakeCurrent(NULL, NULL);
    closeView(second);
    closeView(first);
    return 0;
}
