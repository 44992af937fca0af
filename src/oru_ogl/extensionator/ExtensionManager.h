#ifndef ORU_OGL_EXTENSIONATOR_EXTENSIONMANAGER_H
#define ORU_OGL_EXTENSIONATOR_EXTENSIONMANAGER_H

#include "oru_ogl/OglExport.h"
#include "oru_ogl/extensionator/Extensions.h"

#include <string>
#include <vector>

namespace Oru
{
namespace OGL
{

class Context;

/// What the OpenGL implementation of the start-up context offers: its version,
/// vendor and the core versions and extensions whose entry points loaded. One
/// instance, built by Library::initializeExtensionator() and asked by the whole
/// layer before it uses a feature. Its contents never change afterwards.
///
/// Core versions are marked only for 1.2 to 2.0 and only when the driver reports
/// a major version of 1 or 2: a driver that reports 3.0 or later gets no core-
/// version id at all (the layer's own wrappers then treat it as lacking them),
/// and 2.1 is never marked. initialize() fetches the entry points of any id on
/// request, for instance the OPEN_GL_2_0 functions on such a driver.
class ORU_OGL_API ExtensionManager
{
public:
    enum teVendor
    {
        VENDOR_OTHER = 0,
        VENDOR_ATI = 1,
        VENDOR_NVIDIA = 2
    };

    /// Start-up options, stored and handed back; the layer itself reads none.
    class ORU_OGL_API InitOptions
    {
    public:
        InitOptions();
        ~InitOptions();
        InitOptions(InitOptions const& other);
        InitOptions& operator=(InitOptions const& other);

        void setThrowOnNullContext(bool value);
        bool throwOnNullContext() const;
        /// Flush on make-current, meant for Mac OS only.
        void setFlushOnMakeCurrentMacOnly(bool value);
        bool flushOnMakeCurrentMacOnly() const;
        void setRekorderPathname(std::string& pathname);
        std::string const& rekorderPathname() const;

    private:
        bool bThrowOnNullContext_;
        bool bFlushOnMakeCurrentMacOnly_;
        std::string rekorderPathname_;
    };

    /// The instance; throws InternalException while the layer is not started.
    static ExtensionManager* Instance();

    unsigned int majorVersion() const;
    unsigned int minorVersion() const;
    bool hasReleaseVersion() const;
    /// Throws InternalException when the version string had no release number.
    unsigned int releaseVersion() const;
    /// The text after the version numbers ("Build 7", "(Compatibility Profile) Mesa 22.3.6").
    std::string additionalVersionInfo();
    teVendor vendor();
    InitOptions const& initOptions() const;

    /// Whether the id's entry points loaded at start-up (core versions included).
    bool isSupported(teExtension ext) const;
    /// Runs the id's GL loader, or its WGL loader when that fails; returns the
    /// result without changing what isSupported() answers.
    bool initialize(teExtension ext) const;

    bool supportsClampToEdge() const;
    bool supportsMultiTexture() const;
    bool supportsDrawBuffers() const;
    bool supportsTexture3D() const;
    bool supportsFloatingPointTextures() const;
    bool supportsNonPowerOfTwoTextures() const;
    bool supportsRenderToTexture() const;
    bool supportsRenderToTextureRectangle() const;
    bool supportsPixelBuffers() const;
    unsigned int numberOfTextureUnits() const;

private:
    friend class Library;
    friend struct ExtensionManagerTestAccess;

    static void Create(Context* pContext, InitOptions const& options);
    static void Destroy();

    ExtensionManager(Context* pContext, InitOptions const& options);
    ~ExtensionManager();
    ExtensionManager(ExtensionManager const&) = delete;
    ExtensionManager& operator=(ExtensionManager const&) = delete;

    static void TokenizeVersionString(std::string const& version, unsigned int& major, unsigned int& minor,
                                      int& release, std::string& additional);
    static void TokenizeExtensionString(std::string const& extensions, std::vector<std::string>& tokens);
    static teVendor VendorFromString(std::string const& vendor);
    static bool NonPowerOfTwoFlag(teVendor vendor, bool arbNonPowerOfTwo, bool openGL20);
    static void loadCoreVersions(unsigned int major, unsigned int minor, std::vector<bool>& supported);
    static void loadGLExtensions(char const* extensions, std::vector<bool>& supported);
    static void loadWGLExtensions(std::vector<bool>& supported);

    std::vector<bool> supported_; // by id
    unsigned int nMajorVersion_;
    unsigned int nMinorVersion_;
    int nReleaseVersion_;
    std::string additionalVersionInfo_;
    teVendor vendor_;
    bool bNonPowerOfTwo_;
    InitOptions options_;

    static ExtensionManager* pInstance_;
};

} // namespace OGL
} // namespace Oru

#endif
