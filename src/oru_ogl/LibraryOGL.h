#ifndef ORU_OGL_LIBRARYOGL_H
#define ORU_OGL_LIBRARYOGL_H

#include "oru_ogl/OglExport.h"
#include "oru_ogl/extensionator/ExtensionManager.h"

#include <exception> // std::uncaught_exceptions, for ~AutoInitializer

namespace Oru
{
namespace OGL
{

class Context;

/// Starting and stopping the layer for a context. Before any wrapper is used,
/// create a context and call initializeExtensionator() for it (or keep an
/// AutoInitializer alive); terminateExtensionator() stops it again.
class ORU_OGL_API Library
{
public:
    /// Builds the extension manager for the context (which is made current) and
    /// the texture-unit table. Refuses a null context and a second start.
    /// @param pContext the context to start the layer for; stays the caller's
    /// @param options  stored and handed back by ExtensionManager::initOptions()
    /// @throws Oru::InternalException "Enforce pContext != NULL" for a null
    ///         context, "!bExtensionatorInitialized_" when the layer is already
    ///         started (both from LibraryOGL); while the manager is built,
    ///         "Context::can't make this context current" followed by
    ///         GetLastError()'s number, and "DriverDebugOutput needs GL_KHR_debug
    ///         or GL_ARB_debug_output" when InitOptions::setDriverDebugOutput(true)
    ///         asks for debug output the driver cannot give. A failure leaves the
    ///         layer not started, so the start can be tried again.
    static void initializeExtensionator(Context* pContext, ExtensionManager::InitOptions const& options);
    /// Destroys the extension manager, then the texture-unit table. Refuses a
    /// shutdown without start-up.
    /// @throws Oru::InternalException "bExtensionatorInitialized_" (from
    ///         LibraryOGL) when the layer is not started
    static void terminateExtensionator();
    /// Whether the layer is started.
    /// @return true between initializeExtensionator() and terminateExtensionator()
    static bool isExtensionatorInitialized();

    /// Library has no state of its own to assign.
    /// @return this object
    Library& operator=(Library const&);

private:
    static bool bExtensionatorInitialized_;
};

/// Starts the layer with default options for the life of a scope. Its destructor
/// throws a failed shutdown only when no exception is leaving the scope.
class ORU_OGL_API AutoInitializer
{
public:
    /// Starts the layer for the context with default options; refuses a null context and a second start.
    /// @param pContext the context to start the layer for; stays the caller's
    /// @throws Oru::InternalException "Enforce pContext != NULL" for a null
    ///         context, and whatever Library::initializeExtensionator() throws
    explicit AutoInitializer(Context* pContext);
    /// Stops the layer, unless release() was called.
    /// @throws Oru::InternalException "bExtensionatorInitialized_" when the
    ///         layer was already stopped by hand
    ~AutoInitializer() noexcept(false);
    AutoInitializer(AutoInitializer const&) = delete;
    AutoInitializer& operator=(AutoInitializer const&) = delete;

    /// Leaves the layer started when this object goes; the caller then stops it.
    void release();

private:
    bool bOwnsInitialization_;
    int nUncaughtExceptions_; // at construction: more at destruction means unwinding
};

} // namespace OGL
} // namespace Oru

#endif
