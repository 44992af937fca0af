#include "oru_ogl/ogl/WrapperCall.h"

namespace Oru
{
namespace OGL
{

bool WrapperCall::bThroughChain_ = false;

void WrapperCall::switchOn(bool on)
{
    bThroughChain_ = on;
}

} // namespace OGL
} // namespace Oru
