#include "oru_core/Exceptions.h"

#include <sstream>

namespace Oru
{

ExceptionBase::~ExceptionBase() = default;

char const* ExceptionBase::what() const noexcept
{
    return "Oru::ExceptionBase";
}

char const* ExceptionBase::file() const
{
    return "";
}

int ExceptionBase::line() const
{
    return 0;
}

char const* ExceptionBase::message() const
{
    return "";
}

SourceReport::SourceReport(char const* file, int line, char const* message)
    : file_(file ? file : "")
    , line_(line)
    , message_(message ? message : "")
{
    std::ostringstream text;
    text << file_ << '(' << line_ << "): " << message_;
    text_ = text.str();
}

LogicalException::LogicalException(char const* file, int line, char const* message)
    : report_(file, line, message)
{
}
LogicalException::LogicalException(LogicalException const&) = default;
LogicalException& LogicalException::operator=(LogicalException const&) = default;
LogicalException::~LogicalException() = default;
char const* LogicalException::what() const noexcept { return report_.text(); }
char const* LogicalException::file() const { return report_.file(); }
int LogicalException::line() const { return report_.line(); }
char const* LogicalException::message() const { return report_.message(); }

InternalException::InternalException(char const* file, int line, char const* message)
    : LogicalException(file, line, message)
{
}
InternalException::InternalException(InternalException const&) = default;
InternalException& InternalException::operator=(InternalException const&) = default;
InternalException::~InternalException() = default;

ParameterException::ParameterException(char const* file, int line, char const* message)
    : LogicalException(file, line, message)
{
}
ParameterException::ParameterException(ParameterException const&) = default;
ParameterException& ParameterException::operator=(ParameterException const&) = default;
ParameterException::~ParameterException() = default;

ResourceException::ResourceException(char const* file, int line, char const* message)
    : report_(file, line, message)
{
}
ResourceException::ResourceException(ResourceException const&) = default;
ResourceException& ResourceException::operator=(ResourceException const&) = default;
ResourceException::~ResourceException() = default;
char const* ResourceException::what() const noexcept { return report_.text(); }
char const* ResourceException::file() const { return report_.file(); }
int ResourceException::line() const { return report_.line(); }
char const* ResourceException::message() const { return report_.message(); }

CPURuntimeException::CPURuntimeException(char const* file, int line, char const* message, unsigned int errorCode)
    : report_(file, line, message)
    , errorCode_(errorCode)
{
}
CPURuntimeException::CPURuntimeException(CPURuntimeException const&) = default;
CPURuntimeException& CPURuntimeException::operator=(CPURuntimeException const&) = default;
CPURuntimeException::~CPURuntimeException() = default;
unsigned int CPURuntimeException::errorCode() const { return errorCode_; }
char const* CPURuntimeException::what() const noexcept { return report_.text(); }
char const* CPURuntimeException::file() const { return report_.file(); }
int CPURuntimeException::line() const { return report_.line(); }
char const* CPURuntimeException::message() const { return report_.message(); }

} // namespace Oru
