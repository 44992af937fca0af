#include "oru_ogl/extensionator/OpenGLTracer.h"

// The operations are generated from the catalogue (OpenGLTracer<n>.cpp).

namespace Oru
{
namespace OGL
{

OpenGLTracer::OpenGLTracer(std::ostream& out, OpenGLInterceptor* next)
    : OpenGLInterceptorDecorator(next), outputStream_(&out)
{
}

OpenGLTracer::~OpenGLTracer() = default;

} // namespace OGL
} // namespace Oru
