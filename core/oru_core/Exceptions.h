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

/// Root of the framework's exceptions. The exceptions derived from it know the
/// source file and line that raised them and a message; their what() joins the
/// three in one line, "file(line): message". The root itself carries nothing:
/// thrown by value (or a copy of a sliced exception), it names no place.
class ORU_CORE_API ExceptionBase : public std::exception
{
public:
    ExceptionBase() = default;
    /// Copies the exception.
    ExceptionBase(ExceptionBase const&) = default;
    /// Assigns another exception.
    /// @return this exception
    ExceptionBase& operator=(ExceptionBase const&) = default;
    virtual ~ExceptionBase();

    /// "Oru::ExceptionBase" for the root itself.
    char const* what() const noexcept override;
    /// Source file of the check that raised the exception; empty for the root.
    virtual char const* file() const;
    /// Source line of the check that raised the exception; 0 for the root.
    virtual int line() const;
    /// The message alone, without file and line; empty for the root.
    virtual char const* message() const;
};

/// Where and why: the file, line and message shared by the concrete exceptions.
class ORU_CORE_API SourceReport
{
public:
    /// Keeps the file, line and message and composes "file(line): message".
    /// @param file    source file of the check, as its __FILE__ (copied)
    /// @param line    source line of the check
    /// @param message why (copied)
    SourceReport(char const* file, int line, char const* message);

    /// Source file.
    char const* file() const { return file_.c_str(); }
    /// Source line.
    int line() const { return line_; }
    /// The message alone.
    char const* message() const { return message_.c_str(); }
    /// "file(line): message".
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
    /// An exception raised in file at line with message.
    /// @param file    source file of the check, as its __FILE__ (copied)
    /// @param line    source line of the check
    /// @param message why (copied)
    LogicalException(char const* file, int line, char const* message);
    /// Copies the exception.
    LogicalException(LogicalException const&);
    /// Assigns another exception.
    /// @return this exception
    LogicalException& operator=(LogicalException const&);
    virtual ~LogicalException();

    /// "file(line): message".
    /// @return the whole report, valid while the exception lives
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
    /// An exception raised in file at line with message.
    /// @param file    source file of the check, as its __FILE__ (copied)
    /// @param line    source line of the check
    /// @param message why (copied)
    InternalException(char const* file, int line, char const* message);
    /// Copies the exception.
    InternalException(InternalException const&);
    /// Assigns another exception.
    /// @return this exception
    InternalException& operator=(InternalException const&);
    virtual ~InternalException();
};

/// A bad argument.
class ORU_CORE_API ParameterException : public LogicalException
{
public:
    /// An exception raised in file at line with message.
    /// @param file    source file of the check, as its __FILE__ (copied)
    /// @param line    source line of the check
    /// @param message why (copied)
    ParameterException(char const* file, int line, char const* message);
    /// Copies the exception.
    ParameterException(ParameterException const&);
    /// Assigns another exception.
    /// @return this exception
    ParameterException& operator=(ParameterException const&);
    virtual ~ParameterException();
};

/// A resource that could not be had: memory, a handle, a device.
class ORU_CORE_API ResourceException : public ExceptionBase
{
public:
    /// An exception raised in file at line with message.
    /// @param file    source file of the check, as its __FILE__ (copied)
    /// @param line    source line of the check
    /// @param message why (copied)
    ResourceException(char const* file, int line, char const* message);
    /// Copies the exception.
    ResourceException(ResourceException const&);
    /// Assigns another exception.
    /// @return this exception
    ResourceException& operator=(ResourceException const&);
    virtual ~ResourceException();

    /// "file(line): message".
    /// @return the whole report, valid while the exception lives
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
    /// An exception raised in file at line with message and the platform's error code (GetLastError()).
    /// @param file    source file of the check, as its __FILE__ (copied)
    /// @param line    source line of the check
    /// @param message why (copied)
    /// @param errorCode the platform's error code
    CPURuntimeException(char const* file, int line, char const* message, unsigned int errorCode);
    /// Copies the exception.
    CPURuntimeException(CPURuntimeException const&);
    /// Assigns another exception.
    /// @return this exception
    CPURuntimeException& operator=(CPURuntimeException const&);
    virtual ~CPURuntimeException();

    /// The platform's error code.
    /// @return the code given at construction
    unsigned int errorCode() const;

    /// "file(line): message".
    /// @return the whole report, valid while the exception lives
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
