#ifndef ORU_OGL_EXTENSIONATOR_OPENGLERRORCHECKER_H
#define ORU_OGL_EXTENSIONATOR_OPENGLERRORCHECKER_H

#include "oru_ogl/extensionator/DriverDebugOutput.h"
#include "oru_ogl/extensionator/OpenGLInterceptor.h"

#include <type_traits>

namespace Oru
{
namespace OGL
{

/// The bottom of the chain: performs each GL call (OpenGL 1.1 directly, the
/// rest through the _cgm pointers) and, unless a glBegin/glEnd pair is open,
/// asks glGetError and throws ExceptionOGL(file, line, gluErrorString(code),
/// code). An unbalanced glBegin or glEnd throws with code 0 and is not called.
/// A call through a pointer that was never loaded throws InternalException
/// naming the entry point.
class ORU_OGL_API OpenGLErrorChecker : public OpenGLInterceptor
{
public:
    /// A checker with no glBegin/glEnd pair open.
    OpenGLErrorChecker();

#define ORU_GL_OPERATION_TAIL override
#include "oru_ogl/extensionator/OpenGLInterceptorOperations.inc"
#undef ORU_GL_OPERATION_TAIL

    virtual ~OpenGLErrorChecker();

    /// The check after each call: throws ExceptionOGL for a pending GL error,
    /// unless a glBegin/glEnd pair is open, after handing over the driver's
    /// debug messages of the call (DriverDebugOutput) when they are on.
    /// @param file the caller's source file, reported by the exception
    /// @param line the caller's line
    /// @throws Oru::OGL::ExceptionOGL from file and line with the text of
    ///         gluErrorString for the code ("unknown OpenGL error" where GLU has
    ///         none) and the code as errorNumber(), or the driver's message as
    ///         DriverDebugOutput::deliver() throws it
    void checkError(char const* file, unsigned int line) const
    {
        if (inBeginEnd_)
            return; // glGetError between glBegin and glEnd is itself an error
        const GLenum error = glGetError();
        if (DriverDebugOutput::hasPending())
            DriverDebugOutput::deliver(file, line, error);
        if (error != GL_NO_ERROR)
            raiseGLError(file, line, error);
    }

    /// Throws InternalException for a call through an entry point that was never loaded.
    /// @param file     the caller's source file, reported by the exception
    /// @param line     the caller's line
    /// @param function the GL function's name, "glGenBuffers" say
    /// @throws Oru::InternalException "<function> is not loaded: its entry-point
    ///         pointer is null (the driver lacks it, or the layer has not loaded the
    ///         core version or extension it belongs to)", always
    [[noreturn]] static void raiseNotLoaded(char const* file, unsigned int line, char const* function);

    /// The checker's work for one operation: calls function with the
    /// arguments, then checkError(file, line), and returns the call's result.
    /// @param file      the caller's source file, reported by an exception
    /// @param line      the caller's line
    /// @param function  the GL function or entry point to call
    /// @param arguments its arguments, passed on unchanged
    /// @return what function returned
    /// @throws Oru::OGL::ExceptionOGL as checkError()
    template <class Function, class... Arguments>
    auto perform(char const* file, unsigned int line, Function function, Arguments... arguments) const
        -> decltype(function(arguments...))
    {
        if constexpr (std::is_void_v<decltype(function(arguments...))>)
        {
            function(arguments...);
            checkError(file, line);
        }
        else
        {
            auto result = function(arguments...);
            checkError(file, line);
            return result;
        }
    }

    /// The entry point behind pointer, refused (raiseNotLoaded) when it was never loaded.
    /// @param pointer  an entry-point pointer variable's value
    /// @param file     the caller's source file, reported by an exception
    /// @param line     the caller's line
    /// @param function the GL function's name, for the message
    /// @return pointer, not null
    /// @throws Oru::InternalException as raiseNotLoaded() for a null pointer
    template <class Pointer>
    static Pointer loaded(Pointer pointer, char const* file, unsigned int line, char const* function)
    {
        if (!pointer)
            raiseNotLoaded(file, line, function);
        return pointer;
    }

private:
    [[noreturn]] static void raiseGLError(char const* file, unsigned int line, GLenum error);

    bool inBeginEnd_;
};

inline OpenGLErrorChecker* OpenGLInterceptor::loneChecker()
{
    return gInterceptor == gDefaultChecker ? gDefaultChecker : nullptr;
}

} // namespace OGL
} // namespace Oru

#endif
