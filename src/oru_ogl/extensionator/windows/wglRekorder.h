#ifndef ORU_OGL_EXTENSIONATOR_WINDOWS_WGLREKORDER_H
#define ORU_OGL_EXTENSIONATOR_WINDOWS_WGLREKORDER_H

#include "oru_ogl/extensionator/windows/wglInterceptor.h"

#include <ostream>

namespace Oru
{
namespace OGL
{

namespace detail
{
class CallText;
}

/// Records the context calls of the WGL chain as replayable source, into the
/// code stream of an OpenGLRekorder and with the same line ends, so that one
/// recording holds the context set-up and the GL calls in their order:
///
///     GLRekorderMakeCurrent((HDC)0x2c0b1e, (HGLRC)0x10000);\t\t// app.cpp, line 40
///
/// The replay program maps the recorded device contexts to windows of its own:
/// the constructor writes addCurrentAppDC for the application's DC, and
/// wglCreateContext is replayed on the window that GLRekorderCreateWindow made
/// for the recorded DC. Handles are written as hex digits behind "0x".
///
/// Creating contexts, deleting, sharing, making current and presenting are
/// recorded; the other WGL functions (fonts, layer planes, palettes,
/// wglGetProcAddress, wglSwapMultipleBuffers) have no recording and throw
/// without calling WGL. No binary data is written; the stream is kept only
/// to mirror OpenGLRekorder.
class ORU_OGL_API wglRekorder : public wglInterceptorDecorator
{
public:
    /// Sets no streams: a recorder made so must not record.
    wglRekorder();
    /// Records onto code (writing addCurrentAppDC for appDC first), keeps data
    /// for symmetry, forwards to next; lineComments as for OpenGLRekorder.
    wglRekorder(std::ostream& code, std::ostream& data, HDC appDC, wglInterceptor* next, bool lineComments);
    virtual ~wglRekorder();

#define ORU_WGL_OPERATION_TAIL override
#include "oru_ogl/extensionator/windows/wglInterceptorOperations.inc"
#undef ORU_WGL_OPERATION_TAIL

private:
    void send(detail::CallText& t, char const* file, unsigned int line) const;
    // One statement: the text, or head + the handle's hex digits + tail, or
    // with a second handle, or with a number; then the line end.
    void record(char const* file, unsigned int line, char const* text) const;
    void record(char const* file, unsigned int line, char const* head, void const* handle, char const* tail) const;
    void record(char const* file, unsigned int line, char const* head, void const* first, char const* middle,
                void const* second) const;
    void recordWithNumber(char const* file, unsigned int line, char const* head, void const* handle,
                          long long number) const;

    std::ostream* outputStream_;
    [[maybe_unused]] std::ostream* binaryOutputStream_; // no recorded WGL call writes to it
    bool lineComments_;
};

} // namespace OGL
} // namespace Oru

#endif
