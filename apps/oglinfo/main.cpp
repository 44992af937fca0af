// oglinfo: prints the OpenGL vendor, renderer and version of an offscreen context.
#include "RawWglContext.h"

#include <GL/gl.h>

#include <cstdio>

namespace
{

char const* glText(GLenum name)
{
    const GLubyte* text = glGetString(name);
    return text ? reinterpret_cast<char const*>(text) : "(none)";
}

} // namespace

int main()
{
    OruTest::RawWglContext context;
    if (!context.valid())
    {
        std::fprintf(stderr, "oglinfo: cannot create an OpenGL context: %s\n", context.error().c_str());
        return 1;
    }
    context.makeCurrent();
    std::printf("GL_VENDOR:   %s\n", glText(GL_VENDOR));
    std::printf("GL_RENDERER: %s\n", glText(GL_RENDERER));
    std::printf("GL_VERSION:  %s\n", glText(GL_VERSION));
    wglMakeCurrent(nullptr, nullptr);
    return 0;
}
