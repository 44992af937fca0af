#include "oru_ogl/Enforce.h"

#include "oru_core/Exceptions.h"

namespace Oru
{
namespace OGL
{
namespace detail
{

void raiseInternal(char const* file, int line, char const* text)
{
    throw InternalException(file, line, text);
}

void raiseInternal(char const* file, int line, std::string const& text)
{
    throw InternalException(file, line, text.c_str());
}

} // namespace detail
} // namespace OGL
} // namespace Oru
