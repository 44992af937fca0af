// ExtensionManager: what the OpenGL implementation of the start-up context
// offers, read once when the layer starts.
//
// Start-up, step by step (the constructor, at the end of this file):
//  1. the members take their "nothing known" values and the options are copied;
//  2. a null context is refused, whatever InitOptions::throwOnNullContext() says;
//  3. the context is made current on the calling thread (and stays current);
//  4. GL_VENDOR decides the vendor class: "ATI" anywhere, case-sensitive, then
//     "NVIDIA"; everything else is VENDOR_OTHER;
//  5. GL_VERSION is split into major, minor, release and additional info;
//  6. the core versions up to the reported one are loaded, newest first, each
//     marked supported when all its entry points resolved. A failed version does
//     not stop the older ones. 2.1 is never loaded here and a major version of 3
//     or more loads no core version: the layer's wrappers are written against
//     the 1.x/2.0 entry points (initialize() fetches them, or see the end);
//  7. every name of GL_EXTENSIONS that the catalogue knows is loaded and, when
//     its loader succeeds, marked;
//  8. the same for the WGL extension string, when wglGetExtensionsStringARB
//     itself can be fetched (WGL_ARB_extensions_string is marked only if it is
//     advertised too);
//  9. the non-power-of-two answer is fixed from the vendor and what loaded.
//
// A loader that fails leaves its id unmarked; start-up itself does not fail for
// it. Nothing is refreshed later: a second context, or a lost one, does not
// change what the manager says. Destroy() and a new start-up build a fresh one.
//
// The strings are read with glGetString of the system library directly, not
// through the interception chain: the chain is for client code, and start-up
// must not be traced or recorded as if the client had made those calls.

#include "oru_ogl/extensionator/ExtensionManager.h"
#include "oru_ogl/Enforce.h"
#include "oru_ogl/extensionator/Bits.h"
#include "oru_ogl/extensionator/ExtensionCatalogue.h"
#include "oru_ogl/extensionator/windows/WglEntryPoints.h"
#include "oru_ogl/ogl/Context.h"

#include "oru_ogl/ogl/GLConstants.h"
#include <emmintrin.h> // SSE2: every x86-64 processor has it
#include <sstream>

namespace Oru
{
namespace OGL
{

namespace
{

const GLenum kMaxTextureUnits = GL_MAX_TEXTURE_UNITS;
const GLenum kMaxTextureImageUnits = GL_MAX_TEXTURE_IMAGE_UNITS; // also GL_ARB_fragment_program's

std::string glText(GLenum name)
{
    // A driver without the string (GL_EXTENSIONS of a core profile) reads as empty.
    const GLubyte* text = glGetString(name);
    return text ? reinterpret_cast<char const*>(text) : std::string();
}

} // namespace

// ---------------------------------------------------------------------------
// Start-up options: the first three are kept for the caller (the others: end of file).
// ---------------------------------------------------------------------------

ExtensionManager::InitOptions::InitOptions()
    : bThrowOnNullContext_(true)
    , bFlushOnMakeCurrentMacOnly_(true)
{
}

ExtensionManager::InitOptions::~InitOptions() = default;
ExtensionManager::InitOptions::InitOptions(InitOptions const& other) = default;
ExtensionManager::InitOptions& ExtensionManager::InitOptions::operator=(InitOptions const& other) = default;

void ExtensionManager::InitOptions::setThrowOnNullContext(bool value)
{
    bThrowOnNullContext_ = value;
}

bool ExtensionManager::InitOptions::throwOnNullContext() const
{
    return bThrowOnNullContext_;
}

void ExtensionManager::InitOptions::setFlushOnMakeCurrentMacOnly(bool value)
{
    bFlushOnMakeCurrentMacOnly_ = value;
}

bool ExtensionManager::InitOptions::flushOnMakeCurrentMacOnly() const
{
    return bFlushOnMakeCurrentMacOnly_;
}

void ExtensionManager::InitOptions::setRekorderPathname(std::string& pathname)
{
    rekorderPathname_ = pathname;
}

std::string const& ExtensionManager::InitOptions::rekorderPathname() const
{
    return rekorderPathname_;
}

// ---------------------------------------------------------------------------
// The singleton. Only Library creates and destroys it, on the thread that
// starts and stops the layer; everything else asks Instance().
//
// Lifecycle: no instance until Library::initializeExtensionator(); one instance
// until Library::terminateExtensionator(); then none again, and a later start-up
// (also for another context) builds a fresh one. The pointer is a plain
// process-wide variable without a lock: like the GL context it describes, the
// layer is used from one thread at a time.
//
// Every wrapper of the layer asks Instance() before it touches a feature, so a
// wrapper used before start-up (or after shutdown) fails with the enforcement
// text below instead of calling a null entry point. The check is written out in
// each function, not hidden in a helper, so that the reported line is the one
// of the function that was called. The texts name the expression that failed,
// so that they read the same in every log of every build, and the line of each
// check is part of what a report of it means.
// ---------------------------------------------------------------------------

ExtensionManager* ExtensionManager::pInstance_ = nullptr;

ExtensionManager* ExtensionManager::Instance()
{
    ORU_ENFORCE(pInstance_ != NULL);
    return pInstance_;
}

// A second start-up without a shutdown in between is refused; the manager built
// by the first one stays. If the constructor throws, the new expression frees
// the half-built object and the pointer stays null, so a corrected start-up can
// simply be tried again. The second check cannot fail with a throwing new; it
// guards builds whose allocation returns null instead.
void ExtensionManager::Create(Context* pContext, InitOptions const& options)
{
    ORU_VERIFY(pInstance_ == 0);
    pInstance_ = new ExtensionManager(pContext, options);
    ORU_ENFORCE(pInstance_ != NULL);
}

// The entry-point pointers keep their values: nothing resets them, and the next
// start-up fetches them again. Code that still holds a wrapper after shutdown
// therefore keeps working until it asks Instance(), which then refuses: that
// is the point where use after shutdown becomes visible. Destroy() without a
// manager is a shutdown without start-up, which Library refuses before getting
// here.
void ExtensionManager::Destroy()
{
    ORU_ENFORCE(pInstance_ != NULL);
    delete pInstance_;
    pInstance_ = nullptr;
}

ExtensionManager::~ExtensionManager() = default;

// ---------------------------------------------------------------------------
// What the version string said; see TokenizeVersionString() for the forms.
// Drivers that add a build number report it as the release.
// The numbers are those the driver reports, whatever it really implements.
// ---------------------------------------------------------------------------

unsigned int ExtensionManager::majorVersion() const
{
    return nMajorVersion_;
}

unsigned int ExtensionManager::minorVersion() const
{
    return nMinorVersion_;
}

bool ExtensionManager::hasReleaseVersion() const
{
    return nReleaseVersion_ != -1;
}

unsigned int ExtensionManager::releaseVersion() const
{
    ORU_VERIFY(nReleaseVersion_ != -1);
    return static_cast<unsigned int>(nReleaseVersion_);
}

std::string ExtensionManager::additionalVersionInfo()
{
    return additionalVersionInfo_;
}

ExtensionManager::teVendor ExtensionManager::vendor()
{
    return vendor_;
}

ExtensionManager::InitOptions const& ExtensionManager::initOptions() const
{
    return options_;
}

// ---------------------------------------------------------------------------
// Capabilities.
//
// isSupported() is a pure look-up in what loaded at start-up; nothing is loaded
// or cached on demand. The questions below combine the version numbers and
// that set the way the layer's wrappers need them. Their rules are historical
// and deliberately not made uniform: each answers "may the wrapper use this
// the way it was written for", not "does the driver have it somehow". On a
// driver that reports 3.0 or later no core version is marked, so the questions
// that consult only extensions answer from the extensions alone.
// ---------------------------------------------------------------------------

bool ExtensionManager::isSupported(teExtension ext) const
{
    const unsigned int index = static_cast<unsigned int>(ext);
    return index < supported_.size() && supported_[index];
}

bool ExtensionManager::initialize(teExtension ext) const
{
    return ExtensionCatalogue::loadGL(ext) || ExtensionCatalogue::loadWGL(ext);
}

// GL_CLAMP_TO_EDGE is core since 1.2; no extension is consulted.
bool ExtensionManager::supportsClampToEdge() const
{
    return nMajorVersion_ > 1 || (nMajorVersion_ == 1 && nMinorVersion_ >= 2);
}

// Core since 1.3, but a 2.x version alone does not count here: the texture-unit
// code then relies on GL_ARB_multitexture's entry points, which every 2.x
// driver advertises. Keep it so.
bool ExtensionManager::supportsMultiTexture() const
{
    return (nMajorVersion_ == 1 && nMinorVersion_ >= 3) || isSupported(GL_ARB_MULTITEXTURE);
}

// glDrawBuffers is core in 2.0; otherwise the ARB extension.
bool ExtensionManager::supportsDrawBuffers() const
{
    return nMajorVersion_ == 2 || isSupported(GL_ARB_DRAW_BUFFERS);
}

// Core since 1.2, else GL_EXT_texture3D.
bool ExtensionManager::supportsTexture3D() const
{
    return nMajorVersion_ > 1 || (nMajorVersion_ == 1 && nMinorVersion_ >= 2) || isSupported(GL_EXT_TEXTURE3D);
}

// Any of the three float-texture extensions of the era; the formats of the
// layer's Texture::InternalFormat 38 to 49 are theirs.
bool ExtensionManager::supportsFloatingPointTextures() const
{
    return isSupported(GL_ARB_TEXTURE_FLOAT) || isSupported(GL_ATI_TEXTURE_FLOAT) ||
           isSupported(GL_APPLE_FLOAT_PIXELS);
}

// Fixed at start-up, see NonPowerOfTwoFlag().
bool ExtensionManager::supportsNonPowerOfTwoTextures() const
{
    return bNonPowerOfTwo_;
}

// The WGL questions ask the instance, as callers may hold a stale pointer.
bool ExtensionManager::supportsRenderToTexture() const
{
    return Instance()->isSupported(WGL_ARB_RENDER_TEXTURE);
}

bool ExtensionManager::supportsRenderToTextureRectangle() const
{
    return Instance()->isSupported(WGL_NV_RENDER_TEXTURE_RECTANGLE);
}

bool ExtensionManager::supportsPixelBuffers() const
{
    return Instance()->isSupported(WGL_ARB_PIXEL_FORMAT) && Instance()->isSupported(WGL_ARB_PBUFFER);
}

// The number of entries of the texture-unit table: the image units of the
// fragment-program model where it exists, else the fixed-function units, and
// a single unit without multitexturing.
unsigned int ExtensionManager::numberOfTextureUnits() const
{
    GLint units = 0;
    if (isSupported(GL_ARB_FRAGMENT_PROGRAM))
    {
        isSupported(GL_NV_FRAGMENT_PROGRAM); // asked, not used: fragment programs count image units either way
        glGetIntegerv(kMaxTextureImageUnits, &units);
        return static_cast<unsigned int>(units);
    }
    if (!supportsMultiTexture())
        return 1;
    glGetIntegerv(kMaxTextureUnits, &units);
    return static_cast<unsigned int>(units);
}

// ---------------------------------------------------------------------------
// Parsing the driver's strings. Pure functions of their text.
// ---------------------------------------------------------------------------

namespace
{

// Reads a number from what the stream holds; an unreadable number leaves the
// output as it was. The stream is shared by the numbers of one version string,
// so text that one number leaves unread is in front of the next.
template <class Number>
void readNumber(std::stringstream& stream, std::string const& piece, Number& out)
{
    stream.clear();
    stream << piece;
    Number value;
    if (stream >> value)
        out = value;
}

// Digits only, and few enough to fit an int: a stream reads such a piece whole
// and leaves nothing behind for the next one.
bool isPlainNumber(std::string const& piece)
{
    if (piece.empty() || piece.size() > 9)
        return false;
    for (char c : piece)
        if (c < '0' || c > '9')
            return false;
    return true;
}

unsigned int parsePlainNumber(std::string const& piece)
{
    unsigned int value = 0;
    for (char c : piece)
        value = value * 10 + static_cast<unsigned int>(c - '0');
    return value;
}

// Calls f(name, length) for each name of the text, without copying the text
// or making a string per name: start-up goes through hundreds of names in
// thousands of characters. Sixteen bytes at a time, with a bit per byte: a name starts at a
// byte that follows a separator (blank or terminator) and ends at a separator
// that follows a name's byte. The loads are aligned, so none reaches into a
// page the text does not touch; bytes before the text count as blanks.
template <class Function>
void forEachName(char const* text, Function f)
{
    const __m128i blank = _mm_set1_epi8(' ');
    const __m128i zero = _mm_setzero_si128();
    const unsigned int skip = static_cast<unsigned int>(reinterpret_cast<std::size_t>(text) % 16);
    char const* block = text - skip;
    unsigned int outside = (1u << skip) - 1; // bytes of the first block before the text
    unsigned int separatorBefore = 1;        // the byte before the block
    char const* name = nullptr;
    for (;; block += 16, outside = 0)
    {
        const __m128i bytes = _mm_load_si128(reinterpret_cast<__m128i const*>(block));
        const unsigned int zeros = static_cast<unsigned int>(_mm_movemask_epi8(_mm_cmpeq_epi8(bytes, zero))) & ~outside;
        const unsigned int separators =
            static_cast<unsigned int>(_mm_movemask_epi8(_mm_cmpeq_epi8(bytes, blank))) | zeros | outside;
        const unsigned int shifted = (separators << 1 | separatorBefore) & 0xFFFF;
        // Up to and including the terminator, if the block holds it.
        const unsigned int upTo = zeros ? ((zeros & (0u - zeros)) << 1) - 1 : 0xFFFF;
        const unsigned int starts = ~separators & shifted & upTo;
        unsigned int bounds = (starts | (separators & ~shifted)) & upTo;
        while (bounds != 0)
        {
            const unsigned int at = detail::lowestSetBit(bounds);
            if (starts & (1u << at))
                name = block + at;
            else
                f(name, static_cast<std::size_t>(block + at - name));
            bounds &= bounds - 1;
        }
        if (zeros)
            return;
        separatorBefore = separators >> 15;
    }
}

} // namespace

// "<major>.<minor>[.<release>][ <additional info>]". What drivers report, and
// how it reads:
//
//   "2.0.5399 Build 7"                         2, 0, release 5399, "Build 7"
//   "1.5.0 Vendor 91.47"                       1, 5, release 0, "Vendor 91.47"
//   "2.1.2 NVIDIA 169.21"                      2, 1, release 2, "NVIDIA 169.21"
//   "2.1 Vendor"                               2, 1, no release, "Vendor"
//   "1.4"                                      1, 4, no release, ""
//   "1.4 (2.1 Mesa 7.0.4)"                     1, 4, no release, "(2.1 Mesa 7.0.4)"
//   "4.5 (Compatibility Profile) Mesa 22.3.6"  4, 5, no release, "(Compatibility Profile) Mesa 22.3.6"
//   "3.0.0 - Build 8.15.10.2559"               3, 0, release 0, "- Build 8.15.10.2559"
//
// The minor version ends at the first blank or full stop after the first full
// stop; a full stop there introduces a release number, which ends at the next
// blank. Everything after that blank is additional information, kept as it is.
// A string without any full stop gives the major version only.
void ExtensionManager::TokenizeVersionString(std::string const& version, unsigned int& major, unsigned int& minor,
                                             int& release, std::string& additional)
{
    release = -1;
    additional.clear();

    // The numbers' pieces of text, in order; then they are read.
    std::string pieces[3];
    std::size_t count = 1;
    const std::string::size_type p1 = version.find('.');
    pieces[0] = version.substr(0, p1);
    if (p1 != std::string::npos) // else no minor version at all
    {
        const std::string::size_type p2 = version.find_first_of(" .", p1 + 1);
        pieces[count++] = version.substr(p1 + 1, p2 == std::string::npos ? std::string::npos : p2 - p1 - 1);
        if (p2 != std::string::npos)
        {
            std::string::size_type separator = p2;
            if (version[p2] == '.')
            {
                const std::string::size_type p3 = version.find(' ', p2 + 1);
                pieces[count++] =
                    version.substr(p2 + 1, p3 == std::string::npos ? std::string::npos : p3 - p2 - 1);
                separator = p3;
            }
            if (separator != std::string::npos)
                additional = version.substr(separator + 1);
        }
    }

    bool plain = true;
    for (std::size_t i = 0; i < count; ++i)
        plain = plain && isPlainNumber(pieces[i]);
    if (plain)
    {
        // What drivers report. A stream reads these the same, but the first
        // stream of a process costs a hundred microseconds of locale set-up.
        major = parsePlainNumber(pieces[0]);
        if (count > 1)
            minor = parsePlainNumber(pieces[1]);
        if (count > 2)
            release = static_cast<int>(parsePlainNumber(pieces[2]));
        return;
    }
    std::stringstream numbers;
    readNumber(numbers, pieces[0], major);
    if (count > 1)
        readNumber(numbers, pieces[1], minor);
    if (count > 2)
        readNumber(numbers, pieces[2], release);
}

// Names separated by single blanks; runs of blanks and a trailing blank give no
// empty names. Only the blank separates: drivers put nothing else between
// names, and a name never contains one. The text ends at its first zero, as
// the driver's string does.
void ExtensionManager::TokenizeExtensionString(std::string const& extensions, std::vector<std::string>& tokens)
{
    forEachName(extensions.c_str(),
                [&tokens](char const* name, std::size_t length) { tokens.push_back(std::string(name, length)); });
}

// Case-sensitive, ATI first: "ATI Technologies Inc." and any vendor string with
// those three capitals count as ATI, "NVIDIA Corporation" as NVIDIA.
ExtensionManager::teVendor ExtensionManager::VendorFromString(std::string const& vendor)
{
    if (vendor.find("ATI") != std::string::npos)
        return VENDOR_ATI;
    if (vendor.find("NVIDIA") != std::string::npos)
        return VENDOR_NVIDIA;
    return VENDOR_OTHER;
}

// NVIDIA's 2.0 drivers for older chips report 2.0 without sampling
// non-power-of-two textures in hardware (they fall back to software): there
// only the extension counts. Elsewhere 2.0 made such textures core.
bool ExtensionManager::NonPowerOfTwoFlag(teVendor vendor, bool arbNonPowerOfTwo, bool openGL20)
{
    if (vendor == VENDOR_NVIDIA)
        return arbNonPowerOfTwo;
    return arbNonPowerOfTwo || openGL20;
}

// ---------------------------------------------------------------------------
// The loading steps of construction.
// ---------------------------------------------------------------------------

namespace
{

void markIfLoaded(teExtension id, std::vector<bool>& supported)
{
    if (ExtensionCatalogue::loadGL(id))
        supported[id] = true;
}

} // namespace

// Each core version brings the ones below it, loaded newest first and each on
// its own: a failed 1.5 does not keep 1.4 from being marked. 2.1 is never
// marked, and a driver reporting 3.0 or later matches no case: keep both.
void ExtensionManager::loadCoreVersions(unsigned int major, unsigned int minor, std::vector<bool>& supported)
{
    switch (major)
    {
    case 2:
        markIfLoaded(OPEN_GL_2_0, supported);
        markIfLoaded(OPEN_GL_1_5, supported);
        markIfLoaded(OPEN_GL_1_4, supported);
        markIfLoaded(OPEN_GL_1_3, supported);
        markIfLoaded(OPEN_GL_1_2, supported);
        break;
    case 1:
        switch (minor)
        {
        case 5:
            markIfLoaded(OPEN_GL_1_5, supported);
            // fall through
        case 4:
            markIfLoaded(OPEN_GL_1_4, supported);
            // fall through
        case 3:
            markIfLoaded(OPEN_GL_1_3, supported);
            // fall through
        case 2:
            markIfLoaded(OPEN_GL_1_2, supported);
            break;
        default:
            break; // 1.0 and 1.1 have nothing to load
        }
        break;
    default:
        break;
    }
}

// Names the catalogue does not know are skipped; so is a name whose loader
// fails, which leaves that extension unsupported.
void ExtensionManager::loadGLExtensions(char const* extensions, std::vector<bool>& supported)
{
    forEachName(extensions, [&supported](char const* name, std::size_t length) {
        const teExtension id = ExtensionCatalogue::glExtension(name, length);
        if (id != UNKNOWN_EXTENSION && ExtensionCatalogue::loadGL(id))
            supported[id] = true;
    });
}

// The WGL names come from wglGetExtensionsStringARB for the current device
// context; without that entry point no WGL extension is known.
void ExtensionManager::loadWGLExtensions(std::vector<bool>& supported)
{
    if (!ExtensionCatalogue::loadWGL(WGL_ARB_EXTENSIONS_STRING))
        return;
    char const* text = _wcgmGetExtensionsStringARB(wglGetCurrentDC());
    forEachName(text ? text : "", [&supported](char const* name, std::size_t length) {
        const teExtension id = ExtensionCatalogue::wglExtension(name, length);
        if (id != UNKNOWN_EXTENSION && ExtensionCatalogue::loadWGL(id))
            supported[id] = true;
    });
}

// ---------------------------------------------------------------------------
// Construction: read the strings of the given context, load every core
// version and advertised extension, keep what loaded.
// ---------------------------------------------------------------------------

ExtensionManager::ExtensionManager(Context* pContext, InitOptions const& options)
    : nMajorVersion_(0)
    , nMinorVersion_(0)
    , nReleaseVersion_(-1)
    , vendor_(VENDOR_OTHER)
    , bNonPowerOfTwo_(false)
    , options_(options)
{
    const int kNullContextLine = 556; // whatever throwOnNullContext() says: no context, nothing to read
    ORU_ENFORCE_AT(kNullContextLine, pContext != NULL);
    pContext->makeCurrent();
    supported_.assign(UNKNOWN_EXTENSION, false); // every id is below it

    vendor_ = VendorFromString(glText(GL_VENDOR));
    TokenizeVersionString(glText(GL_VERSION), nMajorVersion_, nMinorVersion_, nReleaseVersion_,
                          additionalVersionInfo_);

    loadCoreVersions(nMajorVersion_, nMinorVersion_, supported_);
    const GLubyte* extensions = glGetString(GL_EXTENSIONS); // read in place: thousands of characters
    char const* extensionText = extensions ? reinterpret_cast<char const*>(extensions) : "";
    if (options_.compatibilityCoreVersions() && IsCompatibilityContext(nMajorVersion_, nMinorVersion_, extensionText))
        loadCompatibilityCoreVersions(supported_);
    loadGLExtensions(extensionText, supported_);
    loadWGLExtensions(supported_);

    bNonPowerOfTwo_ = NonPowerOfTwoFlag(vendor_, isSupported(GL_ARB_TEXTURE_NON_POWER_OF_TWO), isSupported(OPEN_GL_2_0));
    if (options_.driverDebugOutput())
        debugOutput_.reset(new DriverDebugOutput(options_.debugMessageSeverity(), options_.debugMessageSink()));
}

// ---------------------------------------------------------------------------
// Drivers of 3.0 and later. Their compatibility contexts keep every 1.x and
// 2.x function, so with the option on they are treated like a 2.1 driver: the
// 1.2 to 2.1 cores are loaded and marked, and the wrappers work there. A core
// profile lacks the fixed-function half those wrappers rely on and gets none.
// ---------------------------------------------------------------------------

namespace
{

const GLenum kContextProfileMask = 0x9126;         // GL_CONTEXT_PROFILE_MASK, 3.2 and later
const GLint kContextCompatibilityProfileBit = 0x2; // GL_CONTEXT_COMPATIBILITY_PROFILE_BIT

} // namespace

// 3.0 has no profiles; 3.1 keeps the old functions only with GL_ARB_compatibility;
// from 3.2 on the context says which profile it has.
bool ExtensionManager::IsCompatibilityContext(unsigned int major, unsigned int minor, char const* extensions)
{
    if (major < 3)
        return false;
    if (major == 3 && minor == 0)
        return true;
    if (major == 3 && minor == 1)
    {
        bool compatibility = false;
        forEachName(extensions, [&compatibility](char const* name, std::size_t length) {
            compatibility = compatibility || std::string(name, length) == "GL_ARB_compatibility";
        });
        return compatibility;
    }
    GLint profile = 0;
    glGetIntegerv(kContextProfileMask, &profile);
    return (profile & kContextCompatibilityProfileBit) != 0;
}

void ExtensionManager::loadCompatibilityCoreVersions(std::vector<bool>& supported)
{
    markIfLoaded(OPEN_GL_2_1, supported);
    markIfLoaded(OPEN_GL_2_0, supported);
    markIfLoaded(OPEN_GL_1_5, supported);
    markIfLoaded(OPEN_GL_1_4, supported);
    markIfLoaded(OPEN_GL_1_3, supported);
    markIfLoaded(OPEN_GL_1_2, supported);
}

void ExtensionManager::InitOptions::setCompatibilityCoreVersions(bool value)
{
    bCompatibilityCoreVersions_ = value;
}

bool ExtensionManager::InitOptions::compatibilityCoreVersions() const
{
    return bCompatibilityCoreVersions_;
}

void ExtensionManager::InitOptions::setDriverDebugOutput(bool value)
{
    bDriverDebugOutput_ = value;
}

bool ExtensionManager::InitOptions::driverDebugOutput() const
{
    return bDriverDebugOutput_;
}

void ExtensionManager::InitOptions::setDebugMessageSeverity(DriverDebugOutput::teSeverity minimum)
{
    debugMessageSeverity_ = minimum;
}

DriverDebugOutput::teSeverity ExtensionManager::InitOptions::debugMessageSeverity() const
{
    return debugMessageSeverity_;
}

void ExtensionManager::InitOptions::setDebugMessageSink(DriverDebugOutput::Sink const& sink)
{
    debugMessageSink_ = sink;
}

DriverDebugOutput::Sink const& ExtensionManager::InitOptions::debugMessageSink() const
{
    return debugMessageSink_;
}

} // namespace OGL
} // namespace Oru
