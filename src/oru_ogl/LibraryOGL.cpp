#include "oru_ogl/LibraryOGL.h"

#include "oru_ogl/Enforce.h"
#include "oru_ogl/ogl/TextureUnit.h"

// Start-up and shutdown of the layer.
//
// Why start-up is an explicit step: the layer's state is process-wide (the
// extension manager, the texture-unit table and the entry-point pointers), but
// what it describes belongs to one context. The application says which one,
// once, after creating it; contexts never start the layer by themselves.
//
//     Oru::OGL::ContextOffscreen context;
//     Oru::OGL::AutoInitializer layer(&context); // started here, stopped at the end of the scope
//     Oru::OGL::Texture2D image(Oru::OGL::Texture::RGBA8, 256, 256, false);
//
// or, for a layer that lives longer than any scope:
//
//     Oru::OGL::Library::initializeExtensionator(&context, Oru::OGL::ExtensionManager::InitOptions());
//     ...
//     Oru::OGL::Library::terminateExtensionator();
//
// The context must stay alive while the layer is started; it may be made
// current, or not, as the application needs.
//
// Start-up builds, in this order, the extension manager (which makes the
// context current, reads the driver's strings and loads every entry point it
// can) and the texture-unit table (sized by the manager's count of units), and
// only then marks the layer started.
//
// The flag is a plain bool: start-up and shutdown happen on the thread that
// owns the context, and no other thread uses the layer meanwhile.

namespace Oru
{
namespace OGL
{

bool Library::bExtensionatorInitialized_ = false;

Library& Library::operator=(Library const&)
{
    return *this;
}

bool Library::isExtensionatorInitialized()
{
    return bExtensionatorInitialized_;
}

// Checks come first, so that a refused start changes nothing: neither the
// manager, nor the table, nor the current context of the calling thread.
// The options are stored in the manager and handed back by its initOptions().
void Library::initializeExtensionator(Context* pContext, ExtensionManager::InitOptions const& options)
{
    ORU_ENFORCE(pContext != NULL);
    // A second start would replace the manager that the wrappers already
    // consulted, so it is refused; stop the layer first.

    ORU_VERIFY(!bExtensionatorInitialized_);
    ExtensionManager::Create(pContext, options);
    TextureUnit::Create(pContext);
    bExtensionatorInitialized_ = true;
}

// Several contexts. The manager describes the context the layer was started
// for. Other contexts of the same driver and pixel format on the same thread
// can use the wrappers as well: WGL hands out entry points per driver, not per
// context, so the pointers fetched at start-up serve them too. Contexts of
// another driver (another adapter, a different pixel format on some drivers)
// may need other entry points; for them, stop the layer and start it again
// for that context. The manager is not refreshed behind the caller's back.
//
// When start-up fails half-way. A failure while the manager is built leaves
// nothing behind: the flag stays unset and the manager is not created, so the
// start can be tried again. A failure in the texture-unit step comes after the
// manager exists; the flag stays unset, and a second start-up is refused by the
// manager itself ("pInstance_ == 0"). This is deliberate: a half-started layer
// is not silently patched up, and the process that met it has a driver it
// cannot use as expected.
//
// Shutdown destroys the manager first and then the table, in the order of
// start-up rather than the reverse; nothing in the table needs the manager on
// its way out. The entry-point pointers keep the values fetched at start-up:
// wrappers that outlive the layer fail at their first capability query (the
// manager's Instance() refuses), not at a null call. Contexts are not touched:
// the one the layer was started for stays current and stays the caller's to
// delete. Neither start-up nor shutdown touches the interception chain or a
// recorder; those are the client's. A later start-up, for the same or another
// context, builds everything anew.
//
// Drivers that report 3.0 or later. By default the manager marks core versions
// only for major versions 1 and 2, so on such a driver the wrappers that need
// OpenGL 2.0 (shaders, programs) refuse. Every current driver is such a one:
// started with InitOptions::setCompatibilityCoreVersions(true), a compatibility
// context gets 1.2 to 2.1 marked and every wrapper works. Without the option an
// application may fetch the 2.0 entry points itself after start-up,
//
//     Oru::OGL::ExtensionManager::Instance()->initialize(Oru::OGL::OPEN_GL_2_0);
//
// and call them through the _cgm pointers or the interception chain; the
// manager's answers stay as they were.
//
// What the refusals mean. "Enforce pContext != NULL": no context was given.
// "!bExtensionatorInitialized_": the layer is already started; stop it first
// or use the running one. "bExtensionatorInitialized_": a shutdown without a
// start-up, or a second shutdown. Each is thrown before anything changes.
//
// Recording. The recorder path of InitOptions is kept for the application: the
// layer opens no recorder by itself. A client that records its calls makes an
// OpenGLRekorder on its own streams and pushes it on the chain right after
// start-up, and pops it again before OpenGLInterceptor::destroy().
//
// Threads. Start-up, use and shutdown happen on the thread whose context is
// current; nothing is locked. Another thread with a context of its own shares
// the process-wide state and must not start or stop the layer meanwhile; it
// makes its own context current before it calls any wrapper, and its GL calls
// go through the same entry-point pointers.
void Library::terminateExtensionator()
{
    ORU_VERIFY(bExtensionatorInitialized_);
    ExtensionManager::Destroy();
    TextureUnit::Destroy();
    bExtensionatorInitialized_ = false;
}

// Starts with the default options: throw on a null context, flush on make-
// current, no recorder path. The owning flag is set before the checks; a
// refused start throws out of the constructor, so no destructor runs and the
// layer that another object started is left alone. release() hands the
// started layer over to the caller, for instance to keep it beyond a scope.
// Two nested AutoInitializers are refused at the inner one, whose exception
// (from initializeExtensionator)
// leaves the outer one owning (and, at its end, stopping) the layer.
AutoInitializer::AutoInitializer(Context* pContext)
    : bOwnsInitialization_(true), nUncaughtExceptions_(std::uncaught_exceptions())
{
    ORU_ENFORCE(pContext != NULL);
    Library::initializeExtensionator(pContext, ExtensionManager::InitOptions());
}

// While another exception leaves the scope, a throw from here would end the
// program in std::terminate; that exception is the one the caller must see, so
// a failed shutdown (the layer already stopped by hand, say) is dropped then.
AutoInitializer::~AutoInitializer() noexcept(false)
{
    if (!bOwnsInitialization_)
        return;
    try
    {
        Library::terminateExtensionator();
    }
    catch (...)
    {
        if (std::uncaught_exceptions() == nUncaughtExceptions_)
            throw;
    }
}

void AutoInitializer::release()
{
    bOwnsInitialization_ = false;
}

} // namespace OGL
} // namespace Oru
