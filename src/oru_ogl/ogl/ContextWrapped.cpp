#include "oru_ogl/ogl/ContextWrapped.h"

#include "oru_ogl/Enforce.h"

namespace Oru
{
namespace OGL
{

ContextWrapped::ContextWrapped(HDC device, HGLRC rendering)
{
    if (!device)
        ORU_THROW("ContextWrapped::ctor invalid device");
    if (!rendering)
        ORU_THROW("ContextWrapped::ctor invalid rendering context");
    hDC_ = device;
    hRC_ = rendering;
}

ContextWrapped::~ContextWrapped() = default;

} // namespace OGL
} // namespace Oru
