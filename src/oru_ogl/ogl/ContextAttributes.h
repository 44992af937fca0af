#ifndef ORU_OGL_OGL_CONTEXTATTRIBUTES_H
#define ORU_OGL_OGL_CONTEXTATTRIBUTES_H

#include "oru_ogl/OglExport.h"

#include <string>
#include <vector>

namespace Oru
{
namespace OGL
{

/// What a versioned context asks the driver for through WGL_ARB_create_context:
/// an OpenGL major.minor version, the compatibility profile (from 3.2 on; the
/// layer's wrappers need it, so it is the default) or else the core profile,
/// and the debug flag. Passed to the ContextWindowed and ContextOffscreen
/// constructors that take one.
class ORU_OGL_API ContextAttributes
{
public:
    /// Version major.minor, compatibility profile, no debug flag.
    ContextAttributes(int major, int minor);

    /// The major number of the version asked for.
    int majorVersion() const;
    /// The minor number of the version asked for.
    int minorVersion() const;
    /// Compatibility profile (true) or core profile (false); asked only from 3.2 on.
    void setCompatibilityProfile(bool value);
    /// Whether the compatibility profile is asked for.
    bool compatibilityProfile() const;
    /// Asks for a debug context (WGL_CONTEXT_DEBUG_BIT_ARB).
    void setDebug(bool value);
    /// Whether a debug context is asked for.
    bool debug() const;

    /// Whether the request needs WGL_ARB_create_context_profile (a profile is named).
    bool namesProfile() const;
    /// The attribute list for wglCreateContextAttribsARB, ending with 0.
    std::vector<int> wglAttributes() const;
    /// "OpenGL 4.5 compatibility profile debug", for messages.
    std::string description() const;

private:
    int nMajorVersion_;
    int nMinorVersion_;
    bool bCompatibilityProfile_;
    bool bDebug_;
};

} // namespace OGL
} // namespace Oru

#endif
