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
    /// @param major the major number of the OpenGL version asked for, 1 or more
    /// @param minor the minor number
    ContextAttributes(int major, int minor);

    /// The major number of the version asked for.
    /// @return as given
    int majorVersion() const;
    /// The minor number of the version asked for.
    /// @return as given
    int minorVersion() const;
    /// Compatibility profile (true) or core profile (false); asked only from 3.2 on.
    /// @param value true for the compatibility profile
    void setCompatibilityProfile(bool value);
    /// Whether the compatibility profile is asked for.
    /// @return true unless setCompatibilityProfile(false) was called
    bool compatibilityProfile() const;
    /// Asks for a debug context (WGL_CONTEXT_DEBUG_BIT_ARB).
    /// @param value whether to set the debug flag
    void setDebug(bool value);
    /// Whether a debug context is asked for.
    /// @return false unless setDebug(true) was called
    bool debug() const;

    /// Whether the request names a profile, which needs
    /// WGL_ARB_create_context_profile.
    /// @return true for versions 3.2 and later
    bool namesProfile() const;
    /// The attribute list for wglCreateContextAttribsARB.
    /// @return the version pairs, the flags pair with debug, the profile pair
    ///         when namesProfile(), then 0
    std::vector<int> wglAttributes() const;
    /// The request in words, for messages.
    /// @return "OpenGL 4.5 compatibility profile debug", say
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
