#include "oru_ogl/ogl/ContextAttributes.h"

#include <sstream>

namespace Oru
{
namespace OGL
{

namespace
{

// WGL_ARB_create_context and WGL_ARB_create_context_profile.
const int kMajorVersion = 0x2091;           // WGL_CONTEXT_MAJOR_VERSION_ARB
const int kMinorVersion = 0x2092;           // WGL_CONTEXT_MINOR_VERSION_ARB
const int kFlags = 0x2094;                  // WGL_CONTEXT_FLAGS_ARB
const int kDebugBit = 0x0001;               // WGL_CONTEXT_DEBUG_BIT_ARB
const int kProfileMask = 0x9126;            // WGL_CONTEXT_PROFILE_MASK_ARB
const int kCoreProfileBit = 0x0001;         // WGL_CONTEXT_CORE_PROFILE_BIT_ARB
const int kCompatibilityProfileBit = 0x0002; // WGL_CONTEXT_COMPATIBILITY_PROFILE_BIT_ARB

} // namespace

ContextAttributes::ContextAttributes(int major, int minor)
    : nMajorVersion_(major)
    , nMinorVersion_(minor)
    , bCompatibilityProfile_(true)
    , bDebug_(false)
{
}

int ContextAttributes::majorVersion() const
{
    return nMajorVersion_;
}

int ContextAttributes::minorVersion() const
{
    return nMinorVersion_;
}

void ContextAttributes::setCompatibilityProfile(bool value)
{
    bCompatibilityProfile_ = value;
}

bool ContextAttributes::compatibilityProfile() const
{
    return bCompatibilityProfile_;
}

void ContextAttributes::setDebug(bool value)
{
    bDebug_ = value;
}

bool ContextAttributes::debug() const
{
    return bDebug_;
}

// Profiles exist from 3.2 on; below, WGL ignores the mask, so it is not sent and
// drivers without the profile extension can still make such contexts.
bool ContextAttributes::namesProfile() const
{
    return nMajorVersion_ > 3 || (nMajorVersion_ == 3 && nMinorVersion_ >= 2);
}

std::vector<int> ContextAttributes::wglAttributes() const
{
    std::vector<int> attributes = {kMajorVersion, nMajorVersion_, kMinorVersion, nMinorVersion_};
    if (bDebug_)
        attributes.insert(attributes.end(), {kFlags, kDebugBit});
    if (namesProfile())
        attributes.insert(attributes.end(),
                          {kProfileMask, bCompatibilityProfile_ ? kCompatibilityProfileBit : kCoreProfileBit});
    attributes.push_back(0);
    return attributes;
}

std::string ContextAttributes::description() const
{
    std::ostringstream text;
    text << "OpenGL " << nMajorVersion_ << "." << nMinorVersion_;
    if (namesProfile())
        text << (bCompatibilityProfile_ ? " compatibility profile" : " core profile");
    if (bDebug_)
        text << " debug";
    return text.str();
}

} // namespace OGL
} // namespace Oru
