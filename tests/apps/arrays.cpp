// Client-side vertex arrays and display lists, driven by a small GLUT-like loop
// of its own (display, reshape and idle callbacks). Draws with glDrawArrays,
// glDrawElements and glDrawRangeElements from client memory, glInterleavedArrays,
// and display lists called one by one and as a glCallLists batch.
//
//     arrays [--frames N] [--print-frames]
#include <windows.h>
#include <GL/gl.h>
#include <GL/glext.h>

#include <cstdio>
#include <cstdlib>
#include <cstring>

#include "FrameChecksum.h"

static PFNGLDRAWRANGEELEMENTSPROC glDrawRangeElements;

// --- the loop -----------------------------------------------------------------

struct Callbacks
{
    void (*display)();
    void (*reshape)(int width, int height);
    void (*idle)();
};

static Callbacks gCallbacks;
static int gWidth = 0, gHeight = 0, gFrame = 0;

static LRESULT CALLBACK windowProc(HWND window, UINT message, WPARAM wParam, LPARAM lParam)
{
    if (message == WM_SIZE)
    {
        gWidth = LOWORD(lParam);
        gHeight = HIWORD(lParam);
        if (gCallbacks.reshape)
            gCallbacks.reshape(gWidth, gHeight);
        return 0;
    }
    if (message == WM_CLOSE)
    {
        PostQuitMessage(0);
        return 0;
    }
    return DefWindowProcA(window, message, wParam, lParam);
}

// Runs until frames frames were presented or the window is closed.
static void mainLoop(HDC dc, int frames, bool printFrames)
{
    while (gFrame < frames)
    {
        MSG message;
        while (PeekMessageA(&message, NULL, 0, 0, PM_REMOVE))
        {
            if (message.message == WM_QUIT)
                return;
            TranslateMessage(&message);
            DispatchMessageA(&message);
        }
        gCallbacks.display();
        if (printFrames)
            printFrameLine(gFrame, gWidth, gHeight);
        SwapBuffers(dc);
        ++gFrame;
        gCallbacks.idle();
    }
}

// --- the scene ----------------------------------------------------------------

static const GLfloat kTriangle[] = {-0.9f, -0.9f, -0.1f, -0.9f, -0.5f, -0.1f};
static const GLubyte kTriangleColours[] = {255, 0, 0, 0, 255, 0, 0, 0, 255};
static const GLfloat kSquare[] = {0.1f, -0.9f, 0.9f, -0.9f, 0.9f, -0.1f, 0.1f, -0.1f};
static const GLfloat kSquareColours[] = {1, 1, 0, 0, 1, 1, 1, 0, 1, 1, 1, 1};
static const GLushort kSquareIndices[] = {0, 1, 2, 0, 2, 3};
static const GLuint kLowerHalfIndices[] = {0, 1, 3};
// GL_C3F_V3F: colour, then position, per vertex.
static const GLfloat kInterleaved[] = {
    1.0f, 0.5f, 0.0f, 0.1f, 0.1f, 0.0f,
    0.0f, 0.5f, 1.0f, 0.9f, 0.1f, 0.0f,
    0.5f, 1.0f, 0.5f, 0.5f, 0.9f, 0.0f,
};

static GLuint gLists = 0; // three lists: a diamond, a bar, a dot
static float gAngle = 0;

static void buildLists()
{
    gLists = glGenLists(3);
    glNewList(gLists, GL_COMPILE);
    glBegin(GL_QUADS);
    glColor3f(0.2f, 0.8f, 0.2f);
    glVertex2f(0.0f, -0.15f);
    glVertex2f(0.15f, 0.0f);
    glVertex2f(0.0f, 0.15f);
    glVertex2f(-0.15f, 0.0f);
    glEnd();
    glEndList();
    glNewList(gLists + 1, GL_COMPILE);
    glColor3ub(200, 100, 50);
    glRectf(-0.2f, -0.03f, 0.2f, 0.03f);
    glEndList();
    glNewList(gLists + 2, GL_COMPILE);
    glPointSize(4);
    glBegin(GL_POINTS);
    glColor3f(1, 1, 1);
    glVertex2f(0, 0);
    glEnd();
    glEndList();
}

static void display()
{
    glClearColor(0.1f, 0.1f, 0.15f, 1);
    glClear(GL_COLOR_BUFFER_BIT);
    glMatrixMode(GL_MODELVIEW);
    glLoadIdentity();
    glRotatef(gAngle, 0, 0, 1);

    glEnableClientState(GL_VERTEX_ARRAY);
    glEnableClientState(GL_COLOR_ARRAY);
    glVertexPointer(2, GL_FLOAT, 0, kTriangle);
    glColorPointer(3, GL_UNSIGNED_BYTE, 0, kTriangleColours);
    glDrawArrays(GL_TRIANGLES, 0, 3);

    glVertexPointer(2, GL_FLOAT, 0, kSquare);
    glColorPointer(3, GL_FLOAT, 0, kSquareColours);
    glDrawElements(GL_TRIANGLES, 6, GL_UNSIGNED_SHORT, kSquareIndices);
    glPushMatrix();
    glTranslatef(-1.0f, 1.0f, 0);
    glDrawRangeElements(GL_TRIANGLES, 0, 3, 3, GL_UNSIGNED_INT, kLowerHalfIndices);
    glPopMatrix();
    glDisableClientState(GL_COLOR_ARRAY);

    glPushMatrix();
    glTranslatef(-1.0f, 0, 0);
    glInterleavedArrays(GL_C3F_V3F, 0, kInterleaved);
    glDrawArrays(GL_TRIANGLES, 0, 3);
    glPopMatrix();
    glDisableClientState(GL_VERTEX_ARRAY);
    glDisableClientState(GL_COLOR_ARRAY);

    glLoadIdentity();
    glTranslatef(-0.5f, 0.5f, 0);
    glCallList(gLists);
    // A batch: the list base plus each offset, with the pen moving between them.
    static const GLubyte kBatch[] = {1, 2, 0, 2};
    glLoadIdentity();
    glTranslatef(0.3f, 0.5f, 0);
    glListBase(gLists);
    glCallLists(4, GL_UNSIGNED_BYTE, kBatch);
    glListBase(0);
}

static void reshape(int width, int height)
{
    glViewport(0, 0, width, height);
    glMatrixMode(GL_PROJECTION);
    glLoadIdentity();
    const double aspect = height ? double(width) / height : 1.0;
    glOrtho(-aspect, aspect, -1, 1, -1, 1);
}

static void idle()
{
    gAngle = 12.0f * gFrame; // the frame number, not the clock: frames are reproducible
}

// --- start ----------------------------------------------------------------------

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
    windowClass.hCursor = LoadCursor(NULL, IDC_ARROW);
    windowClass.lpszClassName = "ArraysWindow";
    RegisterClassA(&windowClass);
    RECT rect = {0, 0, 200, 150};
    AdjustWindowRect(&rect, WS_OVERLAPPEDWINDOW, FALSE);
    HWND window = CreateWindowA("ArraysWindow", "arrays", WS_OVERLAPPEDWINDOW, 40, 40, rect.right - rect.left,
                                rect.bottom - rect.top, NULL, NULL, windowClass.hInstance, NULL);
    HDC dc = GetDC(window);

    PIXELFORMATDESCRIPTOR pfd = {};
    pfd.nSize = sizeof(pfd);
    pfd.nVersion = 1;
    pfd.dwFlags = PFD_DRAW_TO_WINDOW | PFD_SUPPORT_OPENGL | PFD_DOUBLEBUFFER;
    pfd.iPixelType = PFD_TYPE_RGBA;
    pfd.cColorBits = 24;
    pfd.cAlphaBits = 8;
    SetPixelFormat(dc, ChoosePixelFormat(dc, &pfd), &pfd);
    HGLRC context = wglCreateContext(dc);
    if (!context || !wglMakeCurrent(dc, context))
    {
        std::fprintf(stderr, "arrays: no OpenGL context\n");
        return 1;
    }

    const char* version = reinterpret_cast<const char*>(glGetString(GL_VERSION));
    const char* extensions = reinterpret_cast<const char*>(glGetString(GL_EXTENSIONS));
    glDrawRangeElements = (PFNGLDRAWRANGEELEMENTSPROC)(void*)wglGetProcAddress("glDrawRangeElements");
    if (!glDrawRangeElements && std::strstr(extensions, "GL_EXT_draw_range_elements"))
        glDrawRangeElements = (PFNGLDRAWRANGEELEMENTSPROC)(void*)wglGetProcAddress("glDrawRangeElementsEXT");
    if (!glDrawRangeElements)
    {
        std::fprintf(stderr, "arrays: OpenGL %s has no glDrawRangeElements\n", version);
        return 1;
    }

    buildLists();
    gCallbacks.display = display;
    gCallbacks.reshape = reshape;
    gCallbacks.idle = idle;
    ShowWindow(window, SW_SHOW); // WM_SIZE: the first reshape
    RECT client;
    GetClientRect(window, &client);
    gWidth = client.right;
    gHeight = client.bottom;
    reshape(gWidth, gHeight);
    mainLoop(dc, frames, printFrames);

    glDeleteLists(gLists, 3);
    wglMakeCurrent(NULL, NULL);
    wglDeleteContext(context);
    ReleaseDC(window, dc);
    DestroyWindow(window);
    return 0;
}
