#ifndef ORU_OGL_OGL_CONTEXTOFFSCREEN_H
#define ORU_OGL_OGL_CONTEXTOFFSCREEN_H

#include "oru_ogl/ogl/Context.h"

namespace Oru
{
namespace OGL
{

class InternalWindow;

/// A rendering context on a hidden window of the layer's own, for work that
/// never reaches the screen: 8-bit RGB, single-buffered, one sample, no depth
/// or stencil (render into framebuffer objects for anything else). Optionally
/// shares its display lists and objects with another context.
class ORU_OGL_API ContextOffscreen : public Context
{
public:
    /// Creates the hidden window and a context on it, sharing with shareWith
    /// unless null. The context current before stays current; a failed start
    /// leaves no hidden window behind.
    /// @param shareWith a context to share display lists and objects with, or null
    /// @throws Oru::InternalException "Unable to register window class" or "Unable
    ///         to create window" for the hidden window, and what Context::initialize()
    ///         throws as InternalException
    /// @throws Oru::LogicalException what Context::initialize() throws as a
    ///         LogicalException copy
    explicit ContextOffscreen(Context* shareWith = nullptr);
    /// The same with a versioned context (WGL_ARB_create_context) for the attributes.
    /// @param attributes the version, profile and flags asked for
    /// @param shareWith  a context to share display lists and objects with, or null
    /// @throws Oru::InternalException as the other constructor, and what
    ///         Context::createVersionedContext() throws
    /// @throws Oru::LogicalException what Context::initialize() throws as a
    ///         LogicalException copy
    explicit ContextOffscreen(const ContextAttributes& attributes, Context* shareWith = nullptr);
    /// Deletes the rendering context, leaving the previously current context
    /// current, and the hidden window.
    /// @throws Oru::InternalException what Context::destroyContext() and
    ///         InternalWindow::~InternalWindow() throw on platform failure
    virtual ~ContextOffscreen() noexcept(false);

    // A copy would share the hidden window and delete it twice.
    ContextOffscreen(ContextOffscreen const&) = delete;
    ContextOffscreen& operator=(ContextOffscreen const&) = delete;

private:
    InternalWindow* pWindow_;
};

} // namespace OGL
} // namespace Oru

#endif
