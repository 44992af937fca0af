#include "oru_ogl/extensionator/OpenGLErrorChecker.h"

#include "oru_ogl/ExceptionOGL.h"
#include "oru_ogl/Enforce.h"

#include <GL/glu.h>

// The other operations are generated from the catalogue (OpenGLErrorChecker<n>.cpp).

namespace Oru
{
namespace OGL
{

OpenGLErrorChecker::OpenGLErrorChecker()
    : inBeginEnd_(false)
{
}

OpenGLErrorChecker::~OpenGLErrorChecker() = default;

void OpenGLErrorChecker::cgmBegin(const char* file, unsigned int line, GLenum mode)
{
    if (inBeginEnd_)
        throw ExceptionOGL(file, line, "Unbalanced glBegin()!", 0);
    inBeginEnd_ = true;
    glBegin(mode);
}

void OpenGLErrorChecker::cgmEnd(const char* file, unsigned int line)
{
    if (!inBeginEnd_)
        throw ExceptionOGL(file, line, "Unbalanced glEnd()!", 0);
    inBeginEnd_ = false;
    glEnd();
    checkError(file, line);
}

void OpenGLErrorChecker::raiseGLError(char const* file, unsigned int line, GLenum error)
{
    const GLubyte* text = gluErrorString(error);
    throw ExceptionOGL(file, line, text ? reinterpret_cast<char const*>(text) : "unknown OpenGL error", error);
}

void OpenGLErrorChecker::raiseNotLoaded(char const* file, unsigned int line, char const* function)
{
    detail::raiseNotLoaded(file, static_cast<int>(line), function);
}

} // namespace OGL
} // namespace Oru
