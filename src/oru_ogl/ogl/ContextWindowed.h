#ifndef ORU_OGL_OGL_CONTEXTWINDOWED_H
#define ORU_OGL_OGL_CONTEXTWINDOWED_H

#include "oru_ogl/ogl/Context.h"

namespace Oru
{
namespace OGL
{

/// A rendering context on a window the caller owns. The window stays the
/// caller's; the context is deleted with this object.
class ORU_OGL_API ContextWindowed : public Context
{
public:
    /// A context on the caller's window with the format, buffering and samples
    /// asked for, sharing with shareWith unless null. The context current
    /// before stays current.
    /// @param window    the caller's window; it must outlive this object and take
    ///                  a pixel format (none set before)
    /// @param format    the depths and floating-point flag asked for
    /// @param buffering single or double buffered
    /// @param samples   samples per pixel; above 1 needs eDoubleBuffered
    /// @param shareWith a context to share display lists and objects with, or null
    /// @throws Oru::InternalException "ContextWindowed::ctor invalid DC on window",
    ///         and the release failures of Context::initialize()
    /// @throws Oru::LogicalException a copy of any other failure of
    ///         Context::initialize(): no suitable format, a format that cannot be
    ///         set, a context WGL refuses, lists that cannot be shared
    ContextWindowed(HWND window, const BufferFormat& format, Context::teBuffering buffering,
                    Context::teMultisample samples, Context* shareWith);
    /// The same with a versioned context (WGL_ARB_create_context) for the
    /// attributes: the first context made on the chosen format is replaced by
    /// the versioned one, which does the sharing.
    /// @param window     the caller's window, as above
    /// @param format     the depths and floating-point flag asked for
    /// @param buffering  single or double buffered
    /// @param samples    samples per pixel; above 1 needs eDoubleBuffered
    /// @param shareWith  a context to share display lists and objects with, or null
    /// @param attributes the version, profile and flags asked for
    /// @throws Oru::InternalException as the other constructor, and what
    ///         Context::createVersionedContext() throws
    /// @throws Oru::LogicalException as the other constructor
    ContextWindowed(HWND window, const BufferFormat& format, Context::teBuffering buffering,
                    Context::teMultisample samples, Context* shareWith, const ContextAttributes& attributes);
    /// Deletes the rendering context, leaving the previously current context
    /// current, and releases the window's device context.
    /// @throws Oru::InternalException what Context::destroyContext() throws on platform failure
    virtual ~ContextWindowed() noexcept(false);

    // A copy would own nothing and delete what the original owns.
    ContextWindowed(ContextWindowed const&) = delete;
    ContextWindowed& operator=(ContextWindowed const&) = delete;

protected:
    ContextWindowed();
};

} // namespace OGL
} // namespace Oru

#endif
