#include "oru_ogl/ogl/WrapperCheck.h"

#include "oru_ogl/ExceptionOGL.h"
#include "oru_ogl/extensionator/GLTypes.h"

#include <GL/glu.h>

#include <string>

namespace Oru
{
namespace OGL
{

bool WrapperCheck::bOn_ = false;

void WrapperCheck::switchOn(bool on)
{
    bOn_ = on;
}

// The text is the error checker's (gluErrorString) after the member's name.
void WrapperCheck::raisePending(char const* file, int line, char const* owner, char const* member)
{
    const GLenum error = glGetError();
    if (error == GL_NO_ERROR)
        return;
    const GLubyte* text = gluErrorString(error);
    const std::string message = std::string(owner) + "::" + member + ": " +
                                (text ? reinterpret_cast<char const*>(text) : "unknown OpenGL error");
    throw ExceptionOGL(file, static_cast<unsigned int>(line), message.c_str(), error);
}

} // namespace OGL
} // namespace Oru
