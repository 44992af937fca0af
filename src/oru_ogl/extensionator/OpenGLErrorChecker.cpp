#include "oru_ogl/extensionator/OpenGLErrorChecker.h"

#include "oru_ogl/ExceptionOGL.h"
#include "oru_ogl/Enforce.h"
#include "oru_ogl/extensionator/EntryPoints.h"
#include "oru_ogl/extensionator/OperationList.h"

#include <GL/glu.h>

namespace Oru
{
namespace OGL
{

OpenGLErrorChecker::OpenGLErrorChecker()
    : inBeginEnd_(false)
{
}

OpenGLErrorChecker::~OpenGLErrorChecker() = default;

// Every operation but glBegin and glEnd: the call, through the system library
// for GL 1.1 and through its entry-point pointer otherwise, then the check.
#define ORU_CHECKED_Direct(Ret, Stem, Params, Args)                                                    \
    Ret OpenGLErrorChecker::cgm##Stem(const char* file, unsigned int line ORU_OP_TAIL Params)          \
    {                                                                                                  \
        return perform(file, line, ::gl##Stem ORU_OP_TAIL Args);                                       \
    }
#define ORU_CHECKED_Loaded(Ret, Stem, Params, Args)                                                    \
    Ret OpenGLErrorChecker::cgm##Stem(const char* file, unsigned int line ORU_OP_TAIL Params)          \
    {                                                                                                  \
        return perform(file, line, loaded(_cgm##Stem, file, line, "gl" #Stem) ORU_OP_TAIL Args);       \
    }
#define ORU_CHECKED_Bracket(Ret, Stem, Params, Args) // below
#define ORU_GL_OPERATION(Ret, Stem, Owner, Call, Record, Params, Args, Kinds) \
    ORU_CHECKED_##Call(Ret, Stem, Params, Args)
#include "oru_ogl/extensionator/Operations.def"
#undef ORU_CHECKED_Direct
#undef ORU_CHECKED_Loaded
#undef ORU_CHECKED_Bracket

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
