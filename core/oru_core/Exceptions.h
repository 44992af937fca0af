#ifndef ORU_CORE_EXCEPTIONS_H
#define ORU_CORE_EXCEPTIONS_H

#include "oru_core/CoreExport.h"

#include <exception>
#include <string>

#if defined(_MSC_VER)
#  pragma warning(push)
#  pragma warning(disable : 4251 4275) // std members and base of exported classes
#endif

namespace Oru
{

/// Root of the framework's exceptions. Every exception knows the source file
/// and line that raised it and a message; what() joins the three in one line,
/// "file(line): message".
class ORU_CORE_API ExceptionBase : public std::exception
{
public:
    virtual ~ExceptionBase();

    /// Source file of the check that raised the exception.
    virtual char const* file() const = 0;
    /// Source line of the check that raised the exception.
    virtual int line() const = 0;
    /// The message alone, without file and line.
    virtual char const* message() const = 0;

protected:
    ExceptionBase() = default;
    ExceptionBase(ExceptionBase const&) = default;
    ExceptionBase& operator=(ExceptionBase const&) = default;
};

/// Where and why: the file, line and message shared by the concrete exceptions.
class ORU_CORE_API SourceReport
{
public:
    SourceReport(char const* file, int line, char const* message);

    char const* file() const { return file_.c_str(); }
    int line() const { return line_; }
    char const* message() const { return message_.c_str(); }
    char const* text() const { return text_.c_str(); }

private:
    std::string file_;
    int line_;
    std::string message_;
    std::string text_;
};

/// An exception that knows where it was raised: a failed check in the code.
class ORU_CORE_API LogicalException : public ExceptionBase
{
public:
    LogicalException(char const* file, int line, char const* message);
    LogicalException(LogicalException const&);
    LogicalException& operator=(LogicalException const&);
    virtual ~LogicalException();

    char const* what() const noexcept override;
    char const* file() const override;
    int line() const override;
    char const* message() const override;

private:
    SourceReport report_;
};

/// A broken precondition, invariant or unreachable branch.
class ORU_CORE_API InternalException : public LogicalException
{
public:
    InternalException(char const* file, int line, char const* message);
    InternalException(InternalException const&);
    InternalException& operator=(InternalException const&);
    virtual ~InternalException();
};

/// A bad argument.
class ORU_CORE_API ParameterException : public LogicalException
{
public:
    ParameterException(char const* file, int line, char const* message);
    ParameterException(ParameterException const&);
    ParameterException& operator=(ParameterException const&);
    virtual ~ParameterException();
};

/// A resource that could not be had: memory, a handle, a device.
class ORU_CORE_API ResourceException : public ExceptionBase
{
public:
    ResourceException(char const* file, int line, char const* message);
    ResourceException(ResourceException const&);
    ResourceException& operator=(ResourceException const&);
    virtual ~ResourceException();

    char const* what() const noexcept override;
    char const* file() const override;
    int line() const override;
    char const* message() const override;

private:
    SourceReport report_;
};

/// A run-time failure on the processor side, with the platform's error code.
class ORU_CORE_API CPURuntimeException : public ExceptionBase
{
public:
    CPURuntimeException(char const* file, int line, char const* message, unsigned int errorCode);
    CPURuntimeException(CPURuntimeException const&);
    CPURuntimeException& operator=(CPURuntimeException const&);
    virtual ~CPURuntimeException();

    unsigned int errorCode() const;

    char const* what() const noexcept override;
    char const* file() const override;
    int line() const override;
    char const* message() const override;

private:
    SourceReport report_;
    unsigned int errorCode_;
};

} // namespace Oru

#if defined(_MSC_VER)
#  pragma warning(pop)
#endif

#endif
