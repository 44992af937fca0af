#include "oru_ogl/ogl/Context.h"

#include "oru_ogl/Enforce.h"
#include "oru_ogl/InternalWindow.h"
#include "oru_ogl/extensionator/ExtensionCatalogue.h"
#include "oru_ogl/extensionator/ExtensionManager.h"
#include "oru_ogl/extensionator/windows/WglEntryPoints.h"
#include "oru_ogl/ogl/ScopedContextWrapper.h"

#include "oru_core/Exceptions.h"

#include <memory>

namespace Oru
{
namespace OGL
{

namespace
{

typedef BOOL(WINAPI* ChoosePixelFormatARB)(HDC hdc, const int* intAttributes, const FLOAT* floatAttributes,
                                           UINT maxFormats, int* formats, UINT* formatCount);

const int kDescriptorSize = sizeof(PIXELFORMATDESCRIPTOR); // 40

} // namespace

// Nothing reads it; kept so that the class's layout stays as it was.
bool Context::throwTestException_ = false;

Context::Context()
    : hDC_(nullptr)
    , hRC_(nullptr)
    , nPixelFormat_(0)
{
}

// Releasing is the derived classes' business (destroyContext()).
Context::~Context() noexcept(false) = default;

// Contexts are never duplicated: a copy would own nothing.
Context::Context(Context const&)
    : hDC_(nullptr)
    , hRC_(nullptr)
    , nPixelFormat_(0)
{
}

Context& Context::operator=(Context const&)
{
    return *this;
}

void Context::setThrowTestException(bool value)
{
    throwTestException_ = value;
}

// Starting the layer from a context was given up when the extension manager
// became a singleton of its own: it must be started exactly once, for one
// context, by the application (Library::initializeExtensionator or an
// AutoInitializer), not implicitly by whichever context comes first. The hook
// stays for derived classes written against it, and tells them so.
//
// A decision rather than a failure: the text is a sentence, not a check.
void Context::initializeExtensions()
{
    ORU_THROW("We can't initialize Extensions automatically any more with the new Singleton scheme");
}

void Context::makeCurrent()
{
    if (!wglMakeCurrent(hDC_, hRC_))
        ORU_THROW("Context::can't make this context current" << GetLastError());
}

void Context::swapBuffers()
{
    SwapBuffers(hDC_);
}

void Context::getBitDepths(int* red, int* green, int* blue, int* alpha, int* stencil, int* depth) const
{
    PIXELFORMATDESCRIPTOR descriptor;
    ZeroMemory(&descriptor, sizeof(descriptor));
    DescribePixelFormat(hDC_, GetPixelFormat(hDC_), kDescriptorSize, &descriptor);
    *red = descriptor.cRedBits;
    *green = descriptor.cGreenBits;
    *blue = descriptor.cBlueBits;
    *alpha = descriptor.cAlphaBits;
    *stencil = descriptor.cStencilBits;
    *depth = descriptor.cDepthBits;
}

bool Context::supportsVerticalRetraceControl()
{
    return ExtensionManager::Instance()->isSupported(WGL_EXT_SWAP_CONTROL);
}

// Acts on whatever context is current, as wglSwapIntervalEXT does.
void Context::enableSyncToVerticalRetrace(bool enable)
{
    if (!supportsVerticalRetraceControl())
        ORU_THROW("ContextWindowed::enableSyncToVerticalRetrace unsupported feature");
    _wcgmSwapIntervalEXT(enable ? 1 : 0);
}

int Context::choosePixelFormat(HDC hdc, const BufferFormat& format, bool doubleBuffered)
{
    if (!hdc)
        ORU_THROW("Context:choosePixelFormat invalid device context");
    const PIXELFORMATDESCRIPTOR descriptor = format.pixelFormatDescriptor(doubleBuffered);
    const int index = ChoosePixelFormat(hdc, &descriptor);
    if (index == 0)
        ORU_THROW("Cannot create OpenGL Context. Can't find suitable format. Windows error " << GetLastError());
    return index;
}

// Looked up by name each time (with wglGetProcAddress, through the catalogue's
// resolver): the entry point belongs to whatever context is current, which is
// not necessarily the one the layer was started for.
int Context::choosePixelFormat(HDC hdc, const BufferFormat& format, teBuffering buffering, teMultisample samples,
                               teWindowed target)
{
    const ChoosePixelFormatARB choose = reinterpret_cast<ChoosePixelFormatARB>(
        reinterpret_cast<void*>(ExtensionCatalogue::resolve("wglChoosePixelFormatARB")));
    if (!choose)
        ORU_THROW("wglChoosePixelFormatARB extension not supported");
    if (!hdc)
        ORU_THROW("Context:choosePixelFormat invalid device context");
    if (samples > 1 && buffering != eDoubleBuffered)
        ORU_THROW("Double buffering required with multisampling.");

    const std::vector<int> attributes =
        format.pixelFormatAttributes(buffering == eDoubleBuffered, samples, target == ePixelBuffer);
    const std::vector<float> floatAttributes = BufferFormat::pixelFormatFloatAttributes();
    int index = 0;
    UINT count = 0;
    if (!choose(hdc, attributes.data(), floatAttributes.data(), 1, &index, &count) || count == 0)
        ORU_THROW("Can't find suitable pixel format.");
    return index;
}

void Context::setPixelFormat(HDC hdc, int pixelFormat)
{
    if (pixelFormat <= 0)
        ORU_THROW("Context::setPixelFormat invalid pixel format " << pixelFormat);
    nPixelFormat_ = pixelFormat;
    PIXELFORMATDESCRIPTOR descriptor;
    ZeroMemory(&descriptor, sizeof(descriptor));
    descriptor.nSize = kDescriptorSize;
    if (!SetPixelFormat(hdc, pixelFormat, &descriptor))
        ORU_THROW("Context::setPixelFormat Unable to set pixel format %i on device context. Window Error: "
                  << GetLastError());
}

HGLRC Context::createRenderingContext(HDC hdc)
{
    if (!hdc)
        ORU_THROW("Context:createRenderingContext invalid device context");
    const HGLRC context = wglCreateContext(hdc);
    if (!context)
        ORU_THROW("Context::createRenderingContext Can't create rendering context");
    return context;
}

HGLRC Context::setupRenderingContext(HDC hdc, const BufferFormat& format, bool doubleBuffered)
{
    nPixelFormat_ = choosePixelFormat(hdc, format, doubleBuffered);
    setPixelFormat(hdc, nPixelFormat_);
    return createRenderingContext(hdc);
}

void Context::shareLists(HGLRC other)
{
    if (!wglShareLists(other, hRC_))
        ORU_THROW("Context::shareLists cannot share lists.");
}

// The classic path serves plain integer formats with one sample. Float colour,
// multisampling and the 10-bit formats need wglChoosePixelFormatARB, which only
// a current context can hand out: if none is current, a throw-away context on
// a hidden window of its own is made current for the query, then deleted.
void Context::initialize(HWND window, const BufferFormat& format, teBuffering buffering, teMultisample samples,
                         Context* shareWith)
{
    const ScopedContextWrapper previous; // whatever happens, the caller's context is current again

    hDC_ = GetDC(window);
    if (!hDC_)
        ORU_THROW("ContextWindowed::ctor invalid DC on window");

    std::unique_ptr<InternalWindow> hiddenWindow;
    HGLRC throwAway = nullptr;
    try
    {
        if (!format.floatingPointColor() && samples == eNoMultisample && format.redBits() != 10)
        {
            hRC_ = setupRenderingContext(hDC_, format, buffering == eDoubleBuffered);
        }
        else
        {
            HDC queryDC = nullptr;
            if (wglGetCurrentContext())
            {
                queryDC = wglGetCurrentDC();
            }
            else
            {
                hiddenWindow.reset(new InternalWindow());
                queryDC = GetDC(hiddenWindow->handle());
                throwAway = setupRenderingContext(queryDC, BufferFormat(BufferFormat::eRGB8), false);
                wglMakeCurrent(queryDC, throwAway);
            }
            ExtensionManager::Instance(); // the extended path needs a started layer
            const int index = choosePixelFormat(queryDC, format, buffering, samples, eWindow);
            if (throwAway)
            {
                wglMakeCurrent(nullptr, nullptr);
                wglDeleteContext(throwAway);
                throwAway = nullptr;
                hiddenWindow.reset();
            }
            setPixelFormat(hDC_, index);
            hRC_ = createRenderingContext(hDC_);
        }
        if (shareWith)
            shareLists(shareWith->renderContext());
        makeCurrent();
    }
    catch (LogicalException const& failure)
    {
        if (wglGetCurrentContext() || wglGetCurrentDC())
        {
            if (!wglMakeCurrent(nullptr, nullptr))
                ORU_THROW("ContextWindowed::ContextWindowed failed to release context: fatal exception!");
        }
        if (throwAway && !wglDeleteContext(throwAway))
            ORU_THROW("ContextWindowed::ContextWindowed failed to destroy context: fatal exception!");
        hiddenWindow.reset();
        if (hRC_)
        {
            if (!wglDeleteContext(hRC_))
                ORU_THROW("ContextWindowed::ContextWindowed failed to destroy context: fatal exception!");
            hRC_ = nullptr;
        }
        throw LogicalException(failure);
    }
}

void Context::destroyContext()
{
    const HDC previousDC = wglGetCurrentDC();
    const HGLRC previousRC = wglGetCurrentContext();
    if (previousRC && !wglMakeCurrent(nullptr, nullptr))
        ORU_THROW("ContextWindowed::~ContextWindowed failed to release context: fatal exception!");
    if (!wglDeleteContext(hRC_))
        ORU_THROW("ContextOffscreen::~ContextWindowed failed to delete rendering context: fatal exception");
    if (previousRC && previousRC != hRC_ && !wglMakeCurrent(previousDC, previousRC))
        ORU_VERIFY(!"ContextOffscreen::~ContextOffscreen failed to restore context");
}

// ---------------------------------------------------------------------------
// Versioned contexts. WGL hands out wglCreateContextAttribsARB only while a
// context of the driver is current: the one initialize() made on the same
// device context (and pixel format) serves for that and is then replaced.
// Sharing is asked of the new context's creation itself.
// ---------------------------------------------------------------------------

namespace
{

typedef HGLRC(WINAPI* CreateContextAttribsARB)(HDC hdc, HGLRC shareWith, const int* attributes);
typedef const char*(WINAPI* GetExtensionsStringARB)(HDC hdc);

template <class Function>
Function wglEntryPoint(char const* name)
{
    return reinterpret_cast<Function>(reinterpret_cast<void*>(ExtensionCatalogue::resolve(name)));
}

// Whether the device context's WGL extension string names the extension (whole names only).
bool wglAdvertises(HDC hdc, std::string const& name)
{
    const GetExtensionsStringARB extensionsOf = wglEntryPoint<GetExtensionsStringARB>("wglGetExtensionsStringARB");
    char const* text = extensionsOf ? extensionsOf(hdc) : nullptr;
    const std::string names = " " + std::string(text ? text : "") + " ";
    return names.find(" " + name + " ") != std::string::npos;
}

} // namespace

void Context::createVersionedContext(const ContextAttributes& attributes, Context* shareWith)
{
    const ScopedContextWrapper previous; // whatever happens, the caller's context is current again
    const HGLRC legacy = hRC_;
    HGLRC versioned = nullptr;
    std::ostringstream failure;
    if (!wglMakeCurrent(hDC_, legacy))
        failure << "Context::can't make this context current" << GetLastError();
    else if (!wglEntryPoint<CreateContextAttribsARB>("wglCreateContextAttribsARB"))
        failure << "Context::createVersionedContext WGL_ARB_create_context not supported";
    else if (attributes.namesProfile() && !wglAdvertises(hDC_, "WGL_ARB_create_context_profile"))
        failure << "Context::createVersionedContext WGL_ARB_create_context_profile not supported";
    else
    {
        const std::vector<int> list = attributes.wglAttributes();
        versioned = wglEntryPoint<CreateContextAttribsARB>("wglCreateContextAttribsARB")(
            hDC_, shareWith ? shareWith->renderContext() : nullptr, list.data());
        if (!versioned)
            failure << "Context::createVersionedContext the driver refused " << attributes.description()
                    << ". Windows error " << GetLastError();
        else if (!wglMakeCurrent(hDC_, versioned))
            failure << "Context::can't make this context current" << GetLastError();
    }
    wglMakeCurrent(nullptr, nullptr);
    wglDeleteContext(legacy);
    hRC_ = versioned;
    if (failure.tellp() > 0)
    {
        if (versioned)
            wglDeleteContext(versioned);
        hRC_ = nullptr;
        ORU_THROW(failure.str());
    }
}

} // namespace OGL
} // namespace Oru
