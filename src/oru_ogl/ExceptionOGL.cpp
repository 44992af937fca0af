#include "oru_ogl/ExceptionOGL.h"

namespace Oru
{
namespace OGL
{

ExceptionOGL::ExceptionOGL(char const* file, unsigned int line, char const* message, unsigned int errorNumber)
    : LogicalException(file, static_cast<int>(line), message)
    , errorNumber_(errorNumber)
{
}

ExceptionOGL::ExceptionOGL(ExceptionOGL const& other)
    : LogicalException(other)
    , errorNumber_(other.errorNumber_)
{
}

ExceptionOGL& ExceptionOGL::operator=(ExceptionOGL const& other)
{
    LogicalException::operator=(other);
    errorNumber_ = other.errorNumber_;
    return *this;
}

ExceptionOGL::~ExceptionOGL() = default;

unsigned int ExceptionOGL::errorNumber() const
{
    return errorNumber_;
}

} // namespace OGL
} // namespace Oru
