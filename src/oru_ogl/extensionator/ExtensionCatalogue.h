#ifndef ORU_OGL_EXTENSIONATOR_EXTENSIONCATALOGUE_H
#define ORU_OGL_EXTENSIONATOR_EXTENSIONCATALOGUE_H

#include "oru_ogl/OglExport.h"
#include "oru_ogl/extensionator/CatalogueCounts.h"
#include "oru_ogl/extensionator/Extensions.h"

#include <windows.h>

#include <cstddef>

namespace Oru
{
namespace OGL
{

/// The catalogue of core versions and extensions: name look-ups, the loaders
/// that fill the _cgm and _wcgm pointer variables, and what each id fetches.
/// The extension manager drives it at start-up; ExtensionManager::initialize()
/// is the way for applications to run a loader again.
class ORU_OGL_API ExtensionCatalogue
{
public:
    /// The id of a GL extension or core version name ("GL_ARB_multitexture",
    /// "GL_VERSION_2_0"): a whole, case-sensitive match, else UNKNOWN_EXTENSION.
    static teExtension glExtension(char const* name);
    /// The id of a WGL extension name, else UNKNOWN_EXTENSION.
    static teExtension wglExtension(char const* name);
    /// The same for a name of known length, which need not be NUL-terminated
    /// (a name inside an extension string).
    static teExtension glExtension(char const* name, std::size_t length);
    /// The same for a WGL name of known length.
    static teExtension wglExtension(char const* name, std::size_t length);

    /// Runs the loader of a GL id (below catalogue::kFirstWGLExtensionId): fetches its entry points in order
    /// and stops at the first one the driver lacks. False for any other id.
    static bool loadGL(teExtension id);
    /// Runs the loader of a WGL id (catalogue::kFirstWGLExtensionId and up). False for any other id.
    static bool loadWGL(teExtension id);

    /// The name string of an id, or null from catalogue::kExtensionIdCount on.
    static char const* name(teExtension id);
    /// How many entry points the loader of an id fetches (0 from catalogue::kExtensionIdCount on).
    static unsigned int entryPointCount(teExtension id);
    /// The name of an id's entry point by fetch order, or null.
    static char const* entryPointName(teExtension id, unsigned int index);
    /// Whether that entry point's pointer variable is set.
    static bool isEntryPointLoaded(teExtension id, unsigned int index);
    /// The first of an id's entry points whose pointer variable is null, or null
    /// when all are set: after a failed load, the one the driver lacks.
    static char const* missingEntryPoint(teExtension id);

    /// How entry points are resolved: wglGetProcAddress unless replaced, e.g.
    /// by a test that plays a driver without some function. Returns the
    /// previous resolver; pass it back to restore.
    typedef PROC(WINAPI* ProcAddressResolver)(LPCSTR name);
    /// Replaces the resolver; returns the previous one.
    static ProcAddressResolver setProcAddressResolver(ProcAddressResolver resolver);
    /// Resolves one entry point the way the loaders do.
    static PROC resolve(char const* name);
};

} // namespace OGL
} // namespace Oru

#endif
