// Textures of several kinds on one screen: a framebuffer object rendered to and
// then used as a texture (its mipmaps made by glGenerateMipmap), modulated on a
// second unit by a 3D texture with two texture-coordinate arrays
// (glActiveTexture, glClientActiveTexture), and a rectangle texture
// (GL_ARB_texture_rectangle) addressed in texels. glReadPixels reads the
// framebuffer object back to colour the frame's border.
//
//     textures [--frames N] [--print-frames] [--ext-mipmaps]
//
// With --ext-mipmaps the mipmaps come from GL_EXT_framebuffer_object's
// glGenerateMipmapEXT instead of the newer glGenerateMipmap.
#include <windows.h>
#include <GL/gl.h>
#include <GL/glext.h>

#include <cstdio>
#include <cstdlib>
#include <cstring>

#include "FrameChecksum.h"

static PFNGLACTIVETEXTUREPROC glActiveTexture;
static PFNGLCLIENTACTIVETEXTUREPROC glClientActiveTexture;
static PFNGLTEXIMAGE3DPROC glTexImage3D;
static PFNGLGENFRAMEBUFFERSEXTPROC glGenFramebuffersEXT;
static PFNGLBINDFRAMEBUFFEREXTPROC glBindFramebufferEXT;
static PFNGLFRAMEBUFFERTEXTURE2DEXTPROC glFramebufferTexture2DEXT;
static PFNGLCHECKFRAMEBUFFERSTATUSEXTPROC glCheckFramebufferStatusEXT;
static PFNGLDELETEFRAMEBUFFERSEXTPROC glDeleteFramebuffersEXT;
// Newer than the program's OpenGL 2.x, but every driver with framebuffer objects has it.
static PFNGLGENERATEMIPMAPPROC glGenerateMipmap;
static PFNGLGENERATEMIPMAPEXTPROC glGenerateMipmapEXT;

static const int kTarget = 64; // the framebuffer object's texture, square

static LRESULT CALLBACK windowProc(HWND window, UINT message, WPARAM wParam, LPARAM lParam)
{
    return DefWindowProcA(window, message, wParam, lParam);
}

static bool hasExtension(const char* name)
{
    const char* extensions = reinterpret_cast<const char*>(glGetString(GL_EXTENSIONS));
    return extensions && std::strstr(extensions, name);
}

static void drawQuad(const GLfloat* texCoords0, const GLfloat* texCoords1, int components1)
{
    static const GLfloat kCorners[] = {-1, -1, 1, -1, 1, 1, -1, 1};
    glEnableClientState(GL_VERTEX_ARRAY);
    glVertexPointer(2, GL_FLOAT, 0, kCorners);
    glClientActiveTexture(GL_TEXTURE0);
    glEnableClientState(GL_TEXTURE_COORD_ARRAY);
    glTexCoordPointer(2, GL_FLOAT, 0, texCoords0);
    if (texCoords1)
    {
        glClientActiveTexture(GL_TEXTURE1);
        glEnableClientState(GL_TEXTURE_COORD_ARRAY);
        glTexCoordPointer(components1, GL_FLOAT, 0, texCoords1);
    }
    glDrawArrays(GL_QUADS, 0, 4);
    if (texCoords1)
        glDisableClientState(GL_TEXTURE_COORD_ARRAY);
    glClientActiveTexture(GL_TEXTURE0);
    glDisableClientState(GL_TEXTURE_COORD_ARRAY);
    glDisableClientState(GL_VERTEX_ARRAY);
}

int main(int argc, char** argv)
{
    int frames = 4;
    bool printFrames = false;
    bool extMipmaps = false;
    for (int i = 1; i < argc; ++i)
    {
        if (!std::strcmp(argv[i], "--frames") && i + 1 < argc)
            frames = std::atoi(argv[++i]);
        else if (!std::strcmp(argv[i], "--print-frames"))
            printFrames = true;
        else if (!std::strcmp(argv[i], "--ext-mipmaps"))
            extMipmaps = true;
    }

    WNDCLASSA windowClass = {};
    windowClass.style = CS_OWNDC;
    windowClass.lpfnWndProc = windowProc;
    windowClass.hInstance = GetModuleHandleA(NULL);
    windowClass.lpszClassName = "TexturesWindow";
    RegisterClassA(&windowClass);
    RECT rect = {0, 0, 192, 128};
    AdjustWindowRect(&rect, WS_OVERLAPPEDWINDOW, FALSE);
    HWND window = CreateWindowA("TexturesWindow", "textures", WS_OVERLAPPEDWINDOW | WS_VISIBLE, 80, 80,
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

    glActiveTexture = (PFNGLACTIVETEXTUREPROC)(void*)wglGetProcAddress("glActiveTexture");
    glClientActiveTexture = (PFNGLCLIENTACTIVETEXTUREPROC)(void*)wglGetProcAddress("glClientActiveTexture");
    glTexImage3D = (PFNGLTEXIMAGE3DPROC)(void*)wglGetProcAddress("glTexImage3D");
    glGenFramebuffersEXT = (PFNGLGENFRAMEBUFFERSEXTPROC)(void*)wglGetProcAddress("glGenFramebuffersEXT");
    glBindFramebufferEXT = (PFNGLBINDFRAMEBUFFEREXTPROC)(void*)wglGetProcAddress("glBindFramebufferEXT");
    glFramebufferTexture2DEXT = (PFNGLFRAMEBUFFERTEXTURE2DEXTPROC)(void*)wglGetProcAddress("glFramebufferTexture2DEXT");
    glCheckFramebufferStatusEXT = (PFNGLCHECKFRAMEBUFFERSTATUSEXTPROC)(void*)wglGetProcAddress("glCheckFramebufferStatusEXT");
    glDeleteFramebuffersEXT = (PFNGLDELETEFRAMEBUFFERSEXTPROC)(void*)wglGetProcAddress("glDeleteFramebuffersEXT");
    if (extMipmaps)
        glGenerateMipmapEXT = (PFNGLGENERATEMIPMAPEXTPROC)(void*)wglGetProcAddress("glGenerateMipmapEXT");
    else
        glGenerateMipmap = (PFNGLGENERATEMIPMAPPROC)(void*)wglGetProcAddress("glGenerateMipmap");
    if (!glActiveTexture || !glClientActiveTexture || !glTexImage3D || !(glGenerateMipmap || glGenerateMipmapEXT) ||
        !hasExtension("GL_EXT_framebuffer_object") || !hasExtension("GL_ARB_texture_rectangle"))
    {
        std::fprintf(stderr, "textures: needs OpenGL 1.3, framebuffer objects and rectangle textures\n");
        return 1;
    }

    // Unit 0: the framebuffer object's colour texture, mipmapped.
    GLuint textures[3]; // framebuffer target, 3D, rectangle
    glGenTextures(3, textures);
    glBindTexture(GL_TEXTURE_2D, textures[0]);
    glTexParameteri(GL_TEXTURE_2D, GL_TEXTURE_MIN_FILTER, GL_LINEAR_MIPMAP_LINEAR);
    glTexImage2D(GL_TEXTURE_2D, 0, GL_RGBA8, kTarget, kTarget, 0, GL_RGBA, GL_UNSIGNED_BYTE, NULL);
    GLuint framebuffer;
    glGenFramebuffersEXT(1, &framebuffer);
    glBindFramebufferEXT(GL_FRAMEBUFFER_EXT, framebuffer);
    glFramebufferTexture2DEXT(GL_FRAMEBUFFER_EXT, GL_COLOR_ATTACHMENT0_EXT, GL_TEXTURE_2D, textures[0], 0);
    if (glCheckFramebufferStatusEXT(GL_FRAMEBUFFER_EXT) != GL_FRAMEBUFFER_COMPLETE_EXT)
    {
        std::fprintf(stderr, "textures: the framebuffer object is incomplete\n");
        return 1;
    }
    glBindFramebufferEXT(GL_FRAMEBUFFER_EXT, 0);

    // Unit 1: a 4x4x4 3D texture, a colour cube.
    GLubyte volume[4 * 4 * 4 * 3];
    for (int i = 0; i < 4 * 4 * 4; ++i)
    {
        volume[3 * i] = GLubyte(64 + 60 * (i % 4));
        volume[3 * i + 1] = GLubyte(64 + 60 * (i / 4 % 4));
        volume[3 * i + 2] = GLubyte(64 + 60 * (i / 16));
    }
    glActiveTexture(GL_TEXTURE1);
    glBindTexture(GL_TEXTURE_3D, textures[1]);
    glTexParameteri(GL_TEXTURE_3D, GL_TEXTURE_MIN_FILTER, GL_NEAREST);
    glTexParameteri(GL_TEXTURE_3D, GL_TEXTURE_MAG_FILTER, GL_NEAREST);
    glPixelStorei(GL_UNPACK_ALIGNMENT, 1);
    glTexImage3D(GL_TEXTURE_3D, 0, GL_RGB8, 4, 4, 4, 0, GL_RGB, GL_UNSIGNED_BYTE, volume);
    glTexEnvi(GL_TEXTURE_ENV, GL_TEXTURE_ENV_MODE, GL_MODULATE);
    glActiveTexture(GL_TEXTURE0);

    // A 6x3 rectangle texture: a striped flag.
    GLubyte flag[6 * 3 * 3];
    for (int i = 0; i < 6 * 3; ++i)
    {
        flag[3 * i] = GLubyte(i % 2 ? 240 : 30);
        flag[3 * i + 1] = GLubyte(80 * (i / 6));
        flag[3 * i + 2] = GLubyte(i % 3 ? 200 : 20);
    }
    glBindTexture(GL_TEXTURE_RECTANGLE_ARB, textures[2]);
    glTexParameteri(GL_TEXTURE_RECTANGLE_ARB, GL_TEXTURE_MIN_FILTER, GL_NEAREST);
    glTexParameteri(GL_TEXTURE_RECTANGLE_ARB, GL_TEXTURE_MAG_FILTER, GL_NEAREST);
    glTexImage2D(GL_TEXTURE_RECTANGLE_ARB, 0, GL_RGB8, 6, 3, 0, GL_RGB, GL_UNSIGNED_BYTE, flag);

    static const GLfloat kPlain[] = {0, 0, 1, 0, 1, 1, 0, 1};
    static const GLfloat kTexels[] = {0, 0, 6, 0, 6, 3, 0, 3};
    RECT client;
    GetClientRect(window, &client);
    for (int frame = 0; frame < frames; ++frame)
    {
        MSG message;
        while (PeekMessageA(&message, NULL, 0, 0, PM_REMOVE))
            DispatchMessageA(&message);

        // Into the framebuffer object: a triangle turned by the frame number.
        glBindFramebufferEXT(GL_FRAMEBUFFER_EXT, framebuffer);
        glViewport(0, 0, kTarget, kTarget);
        glClearColor(0.2f, 0.2f, 0.6f, 1);
        glClear(GL_COLOR_BUFFER_BIT);
        glMatrixMode(GL_MODELVIEW);
        glLoadIdentity();
        glRotatef(20.0f * frame, 0, 0, 1);
        glBegin(GL_TRIANGLES);
        glColor3f(1, 0.8f, 0);
        glVertex2f(0, 0.8f);
        glColor3f(0, 1, 0.5f);
        glVertex2f(-0.7f, -0.5f);
        glColor3f(1, 1, 1);
        glVertex2f(0.7f, -0.5f);
        glEnd();
        GLubyte centre[4];
        glReadPixels(kTarget / 2, kTarget / 2, 1, 1, GL_RGBA, GL_UNSIGNED_BYTE, centre);
        glBindFramebufferEXT(GL_FRAMEBUFFER_EXT, 0);
        glBindTexture(GL_TEXTURE_2D, textures[0]);
        if (extMipmaps)
            glGenerateMipmapEXT(GL_TEXTURE_2D);
        else
            glGenerateMipmap(GL_TEXTURE_2D);

        // On screen: the border in the framebuffer's centre colour, the render
        // target times the colour cube on the left, the flag on the right.
        glViewport(0, 0, client.right, client.bottom);
        glClearColor(centre[0] / 255.0f, centre[1] / 255.0f, centre[2] / 255.0f, 1);
        glClear(GL_COLOR_BUFFER_BIT);
        glLoadIdentity();
        glColor3f(1, 1, 1);
        glTranslatef(-0.5f, 0, 0);
        glScalef(0.45f, 0.9f, 1);
        glEnable(GL_TEXTURE_2D);
        glActiveTexture(GL_TEXTURE1);
        glEnable(GL_TEXTURE_3D);
        const GLfloat slice = 0.125f + 0.25f * (frame % 4);
        const GLfloat cube[] = {0, 0, slice, 1, 0, slice, 1, 1, slice, 0, 1, slice};
        drawQuad(kPlain, cube, 3);
        glDisable(GL_TEXTURE_3D);
        glActiveTexture(GL_TEXTURE0);
        glDisable(GL_TEXTURE_2D);

        glLoadIdentity();
        glTranslatef(0.5f, 0, 0);
        glScalef(0.4f, 0.3f, 1);
        glEnable(GL_TEXTURE_RECTANGLE_ARB);
        drawQuad(kTexels, NULL, 0);
        glDisable(GL_TEXTURE_RECTANGLE_ARB);

        if (printFrames)
            printFrameLine(frame, client.right, client.bottom);
        SwapBuffers(dc);
    }

    glDeleteFramebuffersEXT(1, &framebuffer);
    glDeleteTextures(3, textures);
    wglMakeCurrent(NULL, NULL);
    wglDeleteContext(context);
    ReleaseDC(window, dc);
    DestroyWindow(window);
    return 0;
}
