#ifndef ORU_OGL_EXTENSIONATOR_EXTENSIONMANAGER_H
#define ORU_OGL_EXTENSIONATOR_EXTENSIONMANAGER_H

#include "oru_ogl/OglExport.h"
#include "oru_ogl/extensionator/DriverDebugOutput.h"
#include "oru_ogl/extensionator/Extensions.h"

#include <memory>
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
/// request, for instance the OPEN_GL_2_0 functions on such a driver, and
/// InitOptions::setCompatibilityCoreVersions(true) marks 1.2 to 2.1 on a 3.0 or
/// later driver whose context has the compatibility profile.
class ORU_OGL_API ExtensionManager
{
public:
    /// Vendor families the layer tells apart, from GL_VENDOR.
    enum teVendor
    {
        VENDOR_OTHER = 0,
        VENDOR_ATI = 1,
        VENDOR_NVIDIA = 2
    };

    /// Start-up options, stored and handed back. The layer reads only those of
    /// the last block, whose defaults change nothing.
    class ORU_OGL_API InitOptions
    {
    public:
        /// The defaults: throw-on-null-context and flush-on-make-current set,
        /// no recorder path, every option of the last block off, debug
        /// messages from medium severity to the standard error stream.
        InitOptions();
        ~InitOptions();
        /// Copies the options.
        /// @param other the options to copy
        InitOptions(InitOptions const& other);
        /// Assigns other options.
        /// @param other the options to copy
        /// @return these options
        InitOptions& operator=(InitOptions const& other);

        /// Whether a null context should throw (kept for the caller).
        /// @param value the option
        void setThrowOnNullContext(bool value);
        /// The throw-on-null-context option.
        /// @return true unless set otherwise
        bool throwOnNullContext() const;
        /// Flush on make-current, meant for Mac OS only (kept for the caller).
        /// @param value the option
        void setFlushOnMakeCurrentMacOnly(bool value);
        /// The flush-on-make-current option.
        /// @return true unless set otherwise
        bool flushOnMakeCurrentMacOnly() const;
        /// Path name for a recorder (kept for the caller).
        /// @param pathname copied; the argument is not changed
        void setRekorderPathname(std::string& pathname);
        /// The recorder path name.
        /// @return the path name set, empty by default
        std::string const& rekorderPathname() const;
        /// Wrapper members check glGetError before they return and throw
        /// ExceptionOGL naming the member ("Texture2::subImage: invalid
        /// value"). Off by default: wrappers then leave GL errors to GL.
        /// @param value whether wrappers check
        void setCheckedWrappers(bool value) { bCheckedWrappers_ = value; }
        /// The checked-wrappers option.
        /// @return false unless set
        bool checkedWrappers() const { return bCheckedWrappers_; }

        // Today's drivers: their 3.0 and later compatibility contexts, and
        // their debug output. Off by default.

        /// On a driver reporting 3.0 or later in a compatibility context, load
        /// the 1.2 to 2.1 core entry points and mark those versions supported.
        /// @param value the option
        void setCompatibilityCoreVersions(bool value);
        /// The compatibility-core-versions option.
        /// @return false unless set
        bool compatibilityCoreVersions() const;
        /// Install DriverDebugOutput for the start-up context.
        /// @param value the option
        void setDriverDebugOutput(bool value);
        /// The driver-debug-output option.
        /// @return false unless set
        bool driverDebugOutput() const;
        /// The least severity of the messages that are not errors to pass to the sink (default medium).
        /// @param minimum the least severity passed on
        void setDebugMessageSeverity(DriverDebugOutput::teSeverity minimum);
        /// The least severity passed to the sink.
        /// @return DriverDebugOutput::eMedium unless set
        DriverDebugOutput::teSeverity debugMessageSeverity() const;
        /// Where the messages that are not errors go (default: the standard error stream).
        /// @param sink the receiver; copied
        void setDebugMessageSink(DriverDebugOutput::Sink const& sink);
        /// The sink, empty for the standard error stream.
        /// @return the sink set
        DriverDebugOutput::Sink const& debugMessageSink() const;
        /// The wrappers' own GL calls go through the current interceptor,
        /// with the wrapper's file and line, so that a tracer or recorder on
        /// the chain sees them. Off by default: wrappers then call GL directly
        /// and leave GL errors to GL. On, the chain's error checker checks each
        /// of their calls: a GL error (also one a raw call left pending) raises
        /// ExceptionOGL from the wrapper's call with the checker's text. Texture
        /// transfers first put back the pixel-store state and bindings they
        /// changed; other members stop where the error was raised. Refusals
        /// stay as they are. Calls in destructors and restoring scopes never
        /// throw: an error the chain raises there is dropped.
        /// @param value true to route the wrappers' calls through the chain
        void setWrappersThroughChain(bool value) { bWrappersThroughChain_ = value; }
        /// The wrappers-through-chain option.
        /// @return false unless set
        bool wrappersThroughChain() const { return bWrappersThroughChain_; }

    private:
        bool bThrowOnNullContext_;
        bool bFlushOnMakeCurrentMacOnly_;
        std::string rekorderPathname_;
        bool bCheckedWrappers_ = false;

        bool bCompatibilityCoreVersions_ = false;
        bool bDriverDebugOutput_ = false;
        DriverDebugOutput::teSeverity debugMessageSeverity_ = DriverDebugOutput::eMedium;
        DriverDebugOutput::Sink debugMessageSink_;
        bool bWrappersThroughChain_ = false;
    };

    /// The instance.
    /// @return the manager built at start-up, valid until shutdown
    /// @throws Oru::InternalException "Enforce pInstance_ != NULL" while the layer is not started
    static ExtensionManager* Instance();

    /// Major number of GL_VERSION.
    /// @return as the driver reported it
    unsigned int majorVersion() const;
    /// Minor number of GL_VERSION.
    /// @return as the driver reported it
    unsigned int minorVersion() const;
    /// Whether GL_VERSION has a release number.
    /// @return true when the version string had a third number
    bool hasReleaseVersion() const;
    /// The release number of GL_VERSION.
    /// @return the third number of the version string
    /// @throws Oru::InternalException "nReleaseVersion_ != -1" when the version
    ///         string had no release number (see hasReleaseVersion())
    unsigned int releaseVersion() const;
    /// The text after the version numbers.
    /// @return "Build 7" or "(Compatibility Profile) Mesa 22.3.6", say; empty when none
    std::string additionalVersionInfo();
    /// The vendor family, from GL_VENDOR.
    /// @return VENDOR_ATI, VENDOR_NVIDIA or VENDOR_OTHER
    teVendor vendor();
    /// The options given at start-up.
    /// @return them, valid while the manager lives
    InitOptions const& initOptions() const;

    /// Whether the id's entry points loaded at start-up (core versions included).
    /// @param ext a core version, GL or WGL extension id
    /// @return true when marked supported; false for UNKNOWN_EXTENSION and any
    ///         value past the catalogue
    bool isSupported(teExtension ext) const;
    /// Runs the id's GL loader, or its WGL loader when that fails, for the
    /// context current now, without changing what isSupported() answers.
    /// @param ext a core version, GL or WGL extension id
    /// @return true when every entry point of the id was found
    bool initialize(teExtension ext) const;

    /// OpenGL 1.2 or later: GL_CLAMP_TO_EDGE.
    /// @return true from version 1.2 on
    bool supportsClampToEdge() const;
    /// OpenGL 1.3 or GL_ARB_multitexture (a 2.x version alone does not count).
    /// @return true when multitexturing's entry points are there
    bool supportsMultiTexture() const;
    /// A 2.x version or GL_ARB_draw_buffers.
    /// @return true when several draw buffers can be written
    bool supportsDrawBuffers() const;
    /// OpenGL 1.2 or later, or GL_EXT_texture3D.
    /// @return true when 3D textures are available
    bool supportsTexture3D() const;
    /// GL_ARB_texture_float, GL_ATI_texture_float or GL_APPLE_float_pixels.
    /// @return true when floating-point internal formats are available
    bool supportsFloatingPointTextures() const;
    /// GL_ARB_texture_non_power_of_two, or OpenGL 2.0 except on NVIDIA.
    /// @return true when textures of any size are taken
    bool supportsNonPowerOfTwoTextures() const;
    /// WGL_ARB_render_texture.
    /// @return true when marked supported
    bool supportsRenderToTexture() const;
    /// WGL_NV_render_texture_rectangle.
    /// @return true when marked supported
    bool supportsRenderToTextureRectangle() const;
    /// WGL_ARB_pixel_format and WGL_ARB_pbuffer.
    /// @return true when both are marked supported
    bool supportsPixelBuffers() const;
    /// The number of texture units, asked of the current context.
    /// @return texture image units with GL_ARB_fragment_program, else texture
    ///         units; 1 without multitexturing
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
    static bool IsCompatibilityContext(unsigned int major, unsigned int minor, char const* extensions);
    static void loadCompatibilityCoreVersions(std::vector<bool>& supported);

    std::vector<bool> supported_; // by id
    unsigned int nMajorVersion_;
    unsigned int nMinorVersion_;
    int nReleaseVersion_;
    std::string additionalVersionInfo_;
    teVendor vendor_;
    bool bNonPowerOfTwo_;
    InitOptions options_;
    std::unique_ptr<DriverDebugOutput> debugOutput_;

    static ExtensionManager* pInstance_;
};

} // namespace OGL
} // namespace Oru

#endif
