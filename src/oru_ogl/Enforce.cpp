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

void raiseNotLoaded(char const* file, int line, char const* function)
{
    raiseInternal(file, line,
                  std::string(function) +
                      " is not loaded: its entry-point pointer is null (the driver lacks it, or the layer has not "
                      "loaded the core version or extension it belongs to)");
}

} // namespace detail
} // namespace OGL
} // namespace Oru
