#include "oru_ogl/ogl/ScopedContextWrapper.h"

namespace Oru
{
namespace OGL
{

ScopedContextWrapper::ScopedContextWrapper()
{
    hRC_ = wglGetCurrentContext();
    hDC_ = wglGetCurrentDC();
}

// A saved pair of nulls releases whatever was made current meanwhile.
ScopedContextWrapper::~ScopedContextWrapper() noexcept(false)
{
    if (wglGetCurrentContext() == hRC_ && wglGetCurrentDC() == hDC_)
        return;
    makeCurrent();
}

} // namespace OGL
} // namespace Oru
