#include "oru_ogl/extensionator/OpenGLInterceptorDecorator.h"

namespace Oru
{
namespace OGL
{

OpenGLInterceptorDecorator::OpenGLInterceptorDecorator()
    : pInterceptor_(nullptr)
{
}

OpenGLInterceptorDecorator::OpenGLInterceptorDecorator(OpenGLInterceptor* next)
    : pInterceptor_(next)
{
}

OpenGLInterceptorDecorator::~OpenGLInterceptorDecorator() = default;

void OpenGLInterceptorDecorator::setInterceptor(OpenGLInterceptor* next)
{
    pInterceptor_ = next;
}

} // namespace OGL
} // namespace Oru
