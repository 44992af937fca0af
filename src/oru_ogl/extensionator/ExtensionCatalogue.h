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
    /// "GL_VERSION_2_0"): a whole, case-sensitive match.
    /// @param name the name, zero-terminated; not null
    /// @return its id, else UNKNOWN_EXTENSION
    static teExtension glExtension(char const* name);
    /// The id of a WGL extension name.
    /// @param name the name ("WGL_ARB_pixel_format"), zero-terminated; not null
    /// @return its id, else UNKNOWN_EXTENSION
    static teExtension wglExtension(char const* name);
    /// The same for a name of known length, which need not be NUL-terminated
    /// (a name inside an extension string).
    /// @param name   the first character of the name
    /// @param length the name's length in characters
    /// @return its id, else UNKNOWN_EXTENSION
    static teExtension glExtension(char const* name, std::size_t length);
    /// The same for a WGL name of known length.
    /// @param name   the first character of the name
    /// @param length the name's length in characters
    /// @return its id, else UNKNOWN_EXTENSION
    static teExtension wglExtension(char const* name, std::size_t length);
    /// Runs the loader of a GL id: fetches its entry points in order into their
    /// pointer variables and stops at the first one the driver lacks. A
    /// context must be current.
    /// @param id a GL id, below catalogue::kFirstWGLExtensionId
    /// @return true when every entry point was found (an id without any counts);
    ///         false for a missing one and for any other id
    static bool loadGL(teExtension id);
    /// Runs the loader of a WGL id, as loadGL().
    /// @param id a WGL id, catalogue::kFirstWGLExtensionId and up
    /// @return true when every entry point was found; false for a missing one
    ///         and for any other id
    static bool loadWGL(teExtension id);
    /// The name string of an id.
    /// @param id any id
    /// @return its name ("GL_EXT_framebuffer_object"), static text; null from
    ///         catalogue::kExtensionIdCount on
    static char const* name(teExtension id);
    /// How many entry points the loader of an id fetches.
    /// @param id any id
    /// @return the count, 0 from catalogue::kExtensionIdCount on
    static unsigned int entryPointCount(teExtension id);
    /// The name of an id's entry point by fetch order.
    /// @param id    any id
    /// @param index below entryPointCount(id)
    /// @return its name ("glGenFramebuffersEXT"), static text; null out of range
    static char const* entryPointName(teExtension id, unsigned int index);
    /// Whether that entry point's pointer variable is set.
    /// @param id    any id
    /// @param index below entryPointCount(id)
    /// @return true when set; false when null or out of range
    static bool isEntryPointLoaded(teExtension id, unsigned int index);
    /// The first of an id's entry points whose pointer variable is null: after
    /// a failed load, the one the driver lacks.
    /// @param id any id
    /// @return its name, static text; null when all are set
    static char const* missingEntryPoint(teExtension id);
    /// How entry points are resolved: wglGetProcAddress unless replaced, e.g.
    /// by a test that plays a driver without some function.
    typedef PROC(WINAPI* ProcAddressResolver)(LPCSTR name);
    /// Replaces the resolver for every later load and resolve().
    /// @param resolver the new resolver; not null
    /// @return the previous one; pass it back to restore
    static ProcAddressResolver setProcAddressResolver(ProcAddressResolver resolver);
    /// Resolves one entry point the way the loaders do, for the context current now.
    /// @param name the entry point's name, zero-terminated
    /// @return its address, or null when the driver lacks it
    static PROC resolve(char const* name);
};

} // namespace OGL
} // namespace Oru

#endif
