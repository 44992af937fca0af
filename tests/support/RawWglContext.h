#ifndef ORU_TESTS_RAWWGLCONTEXT_H
#define ORU_TESTS_RAWWGLCONTEXT_H

#include <windows.h>

#include <string>

namespace OruTest
{

/// A GL context made with plain WGL on a hidden window of its own: an 8-bit RGB
/// pixel format chosen through GDI. Creating it leaves the calling thread's
/// current context as it was; destroying it releases everything it made.
class RawWglContext
{
public:
    RawWglContext();
    ~RawWglContext();
    RawWglContext(RawWglContext const&) = delete;
    RawWglContext& operator=(RawWglContext const&) = delete;

    bool valid() const { return rc_ != nullptr; }
    /// Why the context could not be made (empty when valid()).
    std::string const& error() const { return error_; }

    void makeCurrent() const;
    HDC deviceContext() const { return dc_; }
    HGLRC renderContext() const { return rc_; }

private:
    void fail(char const* what);

    std::string className_;
    HWND window_ = nullptr;
    HDC dc_ = nullptr;
    HGLRC rc_ = nullptr;
    std::string error_;
};

} // namespace OruTest

#endif
