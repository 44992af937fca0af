#include "Replayer.h"

#include "oru_ogl/LibraryOGL.h"
#include "oru_ogl/TokenName.h"
#include "oru_ogl/extensionator/CaptureCall.h"
#include "oru_ogl/extensionator/EntryPoints.h"
#include "oru_ogl/extensionator/OpenGLInterceptor.h"

#include "oru_replay/Image.h"

#include <algorithm>
#include <cstring>
#include <iomanip>
#include <tuple>
#include <utility>

namespace Oru
{
namespace OGL
{

using namespace capture;

namespace
{

double now()
{
    static const double frequency = [] {
        LARGE_INTEGER f;
        QueryPerformanceFrequency(&f);
        return static_cast<double>(f.QuadPart);
    }();
    LARGE_INTEGER counter;
    QueryPerformanceCounter(&counter);
    return static_cast<double>(counter.QuadPart) / frequency;
}

template <class P>
P argument(Replayer& replayer, CaptureRecord& call, unsigned int index)
{
    if constexpr (detail::kDataPointer<P>)
        return static_cast<P>(replayer.pointer(call, index));
    else if constexpr (std::is_pointer<P>::value)
        return reinterpret_cast<P>(static_cast<std::uintptr_t>(call.arguments[index].as<std::uint64_t>()));
    else
        return call.arguments[index].as<P>();
}

// Calls the driver's function for a captured call, its arguments turned back
// into the parameter types of the operation.
template <class F>
struct Invoker;
template <class C, class Ret, class... P>
struct Invoker<Ret (C::*)(char const*, unsigned int, P...)>
{
    template <class Function>
    static void run(Replayer& replayer, CaptureRecord& call)
    {
        auto function = Function::get();
        if (!function)
            return replayer.missing(call);
        invoke(replayer, call, function, std::index_sequence_for<P...>());
    }

    template <class F, std::size_t... I>
    static void invoke(Replayer& replayer, CaptureRecord& call, F function, std::index_sequence<I...>)
    {
        std::tuple<P...> values{ argument<P>(replayer, call, static_cast<unsigned int>(I))... };
        if constexpr (std::is_void<Ret>::value)
        {
            std::apply(function, values);
            replayer.called(call, 0);
        }
        else
            replayer.called(call, detail::asNumber(std::apply(function, values)));
    }
};

#define ORU_REPLAY_FUNCTION_Direct(Stem) &::gl##Stem
#define ORU_REPLAY_FUNCTION_Bracket(Stem) &::gl##Stem
#define ORU_REPLAY_FUNCTION_Loaded(Stem) _cgm##Stem
#define ORU_GL_OPERATION(Ret, Stem, Owner, Call, Record, Params, Args, Kinds)                          \
    struct Function##Stem                                                                              \
    {                                                                                                  \
        static auto get() { return ORU_REPLAY_FUNCTION_##Call(Stem); }                                 \
    };
#include "oru_ogl/extensionator/Operations.def"

using Invoke = void (*)(Replayer&, CaptureRecord&);
const Invoke kInvokers[] = {
#define ORU_GL_OPERATION(Ret, Stem, ...) &Invoker<decltype(&OpenGLInterceptor::cgm##Stem)>::run<Function##Stem>,
#include "oru_ogl/extensionator/Operations.def"
};

bool isGL(unsigned int operation)
{
    return operation < sizeof(kInvokers) / sizeof(kInvokers[0]);
}

} // namespace

Replayer::Replayer(Options const& options)
    : options_(options), reportedMissing_(kOperationCount), counts_(kOperationCount), seconds_(kOperationCount)
{
}

Replayer::~Replayer()
{
    wglMakeCurrent(nullptr, nullptr);
    if (layerContext_)
        Library::terminateExtensionator();
    for (auto& context : contexts_)
        if (context.second.handle)
            wglDeleteContext(context.second.handle);
}

void Replayer::run(CaptureReader& reader)
{
    const double start = now();
    frameStart_ = start;
    CaptureRecord record;
    try
    {
        while (reader.next(record))
        {
            switch (record.kind)
            {
            case CaptureRecord::Kind::Call: call(record); break;
            case CaptureRecord::Kind::Surface: surface(record); break;
            case CaptureRecord::Kind::Frame: frame(record); break;
            case CaptureRecord::Kind::ClientArray: clientArray(record); break;
            case CaptureRecord::Kind::BufferContents: bufferContents(record); break;
            case CaptureRecord::Kind::CurrentContext:
                createContext(record.device, record.context);
                makeCurrent(record.device, record.context);
                break;
            case CaptureRecord::Kind::Thread:
            {
                // One replay thread: each captured thread's context in turn.
                currentByThread_[thread_] = std::make_pair(currentDevice_, currentContext_);
                thread_ = record.thread;
                auto const current = currentByThread_.find(thread_);
                if (current != currentByThread_.end())
                    makeCurrent(current->second.first, current->second.second);
                break;
            }
            }
        }
    }
    catch (...)
    {
        result_.seconds = now() - start;
        throw;
    }
    result_.seconds = now() - start;
}

void Replayer::report(CaptureRecord const& call, std::string const& text)
{
    if (options_.log)
        *options_.log << "call " << call.callIndex << " " << operationName(call.operation) << ": " << text << "\n";
}

void Replayer::call(CaptureRecord& call)
{
    ++result_.calls;
    if (!isGL(call.operation))
        return wgl(call);
    for (unsigned int i = 0; i < call.argumentCount; ++i)
        if (call.arguments[i].kind == PointerKind::Unsized && call.arguments[i].pointer)
        {
            ++result_.skipped;
            return report(call, "skipped: the capture could not tell the size of its data");
        }
    names_.mapArguments(call);
    scratch_.clear();
    std::fill(std::begin(outputs_), std::end(outputs_), nullptr);
    texts_.clear();
    textPointers_.clear();
    if (options_.timeCalls)
    {
        const double before = now();
        kInvokers[call.operation](*this, call);
        seconds_[call.operation] += now() - before;
        ++counts_[call.operation];
    }
    else
        kInvokers[call.operation](*this, call);
}

void* Replayer::pointer(CaptureRecord& call, unsigned int index)
{
    CapturedArgument const& argument = call.arguments[index];
    switch (argument.kind)
    {
    case PointerKind::Null:
    case PointerKind::Unsized:
        return nullptr;
    case PointerKind::Address:
        return reinterpret_cast<void*>(static_cast<std::uintptr_t>(argument.address));
    case PointerKind::Data:
    {
        scratch_.emplace_back(std::max<std::uint64_t>(1, (argument.length + 7) / 8));
        void* copy = scratch_.back().data();
        std::memcpy(copy, argument.data, static_cast<std::size_t>(argument.length));
        for (NameMaps::Use const& use : names_.uses(call.operation))
            if (use.index == static_cast<int>(index))
            {
                auto* names = static_cast<GLuint*>(copy);
                for (std::size_t i = 0; i < argument.length / sizeof(GLuint); ++i)
                    names[i] = static_cast<GLuint>(names_.replayed(use.space, names[i]));
            }
        return copy;
    }
    case PointerKind::Output:
    case PointerKind::OutputKept:
    {
        const std::size_t words = static_cast<std::size_t>(std::max<std::uint64_t>(1, (argument.length + 7) / 8));
        // Feedback and selection buffers are written by later calls.
        if (call.operation == kGLFeedbackBuffer || call.operation == kGLSelectBuffer)
        {
            lasting_.emplace_back(words);
            return lasting_.back().data();
        }
        scratch_.emplace_back(words);
        outputs_[index] = scratch_.back().data();
        return outputs_[index];
    }
    case PointerKind::Strings:
    {
        texts_.emplace_back();
        textPointers_.emplace_back();
        for (std::uint32_t i = 0; i < argument.count; ++i)
            texts_.back().push_back(argument.text(i));
        for (std::string const& text : texts_.back())
            textPointers_.back().push_back(text.c_str());
        return textPointers_.back().data();
    }
    }
    return nullptr;
}

void Replayer::missing(CaptureRecord const& call)
{
    ++result_.skipped;
    if (!reportedMissing_[call.operation])
    {
        reportedMissing_[call.operation] = true;
        report(call, "this driver does not offer it; its calls are skipped");
    }
}

void Replayer::called(CaptureRecord& call, long long result)
{
    names_.learn(call, outputs_, result);

    switch (call.operation)
    {
    case kGLUseProgram:
    case kGLUseProgramObjectARB: names_.useProgram(static_cast<std::uint64_t>(call.arguments[0].integer())); break;
    case kGLBegin: inBeginEnd_ = true; break;
    case kGLEnd: inBeginEnd_ = false; break;
    case kGLMapBuffer:
    case kGLMapBufferARB:
        mappings_[std::make_pair(currentContext_, call.arguments[0].as<std::uint32_t>())] =
            reinterpret_cast<void*>(static_cast<std::uintptr_t>(result));
        break;
    default: break;
    }
    checkError(call);
}

void Replayer::checkError(CaptureRecord const& call)
{
    if (inBeginEnd_ || !currentContext_)
        return;
    for (GLenum error = glGetError(); error != GL_NO_ERROR; error = glGetError())
    {
        ++result_.glErrors;
        report(call, std::string("GL error ") + TokenName(error));
    }
}

HDC Replayer::deviceContext(std::uint64_t device)
{
    Surface& surface = surfaces_[device];
    if (!surface.window)
        surface.window.reset(new Replay::Window(640, 480));
    return surface.window->deviceContext();
}

void Replayer::surface(CaptureRecord const& record)
{
    Surface& surface = surfaces_[record.device];
    const int width = std::max(1, record.width), height = std::max(1, record.height);
    if (surface.window && surface.window->width() == width && surface.window->height() == height)
        return;
    if (!surface.window)
    {
        surface.window.reset(new Replay::Window(width, height));
        if (!surface.window->valid() && options_.log)
            *options_.log << "cannot make a window of " << width << "x" << height << ": "
                          << surface.window->error() << "\n";
        return;
    }
    // The program resized its window: so does the replay, keeping the DC.
    SetWindowPos(surface.window->handle(), nullptr, 0, 0, width, height, SWP_NOMOVE | SWP_NOZORDER | SWP_NOACTIVATE);
}

HGLRC Replayer::createContext(std::uint64_t device, std::uint64_t captured)
{
    Context& context = contexts_[captured];
    if (!context.handle)
        context.handle = wglCreateContext(deviceContext(device));
    return context.handle;
}

void Replayer::makeCurrent(std::uint64_t device, std::uint64_t context)
{
    currentDevice_ = device;
    currentContext_ = context;
    if (!context)
    {
        wglMakeCurrent(nullptr, nullptr);
        return;
    }
    const HDC dc = deviceContext(device);
    const HGLRC rc = contexts_[context].handle;
    if (!wglMakeCurrent(dc, rc))
    {
        if (options_.log)
            *options_.log << "wglMakeCurrent failed for a context of the capture\n";
        return;
    }
    if (!layerContext_ && !Library::isExtensionatorInitialized())
    {
        // The loaded entry points come from the first context made current.
        layerContext_.reset(new ContextWrapped(dc, rc));
        // Whatever the driver offers, 2.x functions on a 3.0 or later compatibility context included.
        ExtensionManager::InitOptions options;
        options.setCompatibilityCoreVersions(true);
        Library::initializeExtensionator(layerContext_.get(), options);
    }
}

Replayer::Context* Replayer::currentContext()
{
    auto found = contexts_.find(currentContext_);
    if (found == contexts_.end())
        return nullptr;
    if (!found->second.featuresKnown)
    {
        found->second.features = GLStateProbe::features();
        found->second.featuresKnown = true;
    }
    return &found->second;
}

void Replayer::wgl(CaptureRecord& call)
{
    auto const handle = [&call](unsigned int i) { return call.arguments[i].as<std::uint64_t>(); };
    switch (call.operation)
    {
    case kWGLCreateContext:
    case kWGLCreateLayerContext:
        createContext(handle(0), call.result.as<std::uint64_t>());
        break;
    case kWGLMakeCurrent:
        makeCurrent(handle(0), handle(1));
        currentByThread_[thread_] = std::make_pair(currentDevice_, currentContext_);
        break;
    case kWGLDeleteContext:
    {
        auto found = contexts_.find(handle(0));
        if (found != contexts_.end() && found->second.handle)
        {
            if (handle(0) == currentContext_)
                currentContext_ = 0;
            wglDeleteContext(found->second.handle);
            contexts_.erase(found);
        }
        break;
    }
    case kWGLShareLists:
        wglShareLists(contexts_[handle(0)].handle, contexts_[handle(1)].handle);
        break;
    case kWGLCopyContext:
        wglCopyContext(contexts_[handle(0)].handle, contexts_[handle(1)].handle, call.arguments[2].as<UINT>());
        break;
    case kWGLSwapBuffers:
    case kWGLSwapLayerBuffers:
        ::SwapBuffers(deviceContext(handle(0)));
        frameStart_ = now();
        break;
    case kWGLUseFontBitmapsA:
    case kWGLUseFontBitmapsW:
    case kWGLUseFontOutlinesA:
    case kWGLUseFontOutlinesW:
        ++result_.skipped;
        report(call, "skipped: the fonts of the captured device context are not known here");
        break;
    case kWGLGetProcAddress:
        // A function outside the catalogue is invisible to the capture: say so
        // once, since frames that depend on its calls will differ.
        if (call.arguments[0].kind == PointerKind::Data && call.result.as<std::uint64_t>())
        {
            const std::string name(reinterpret_cast<char const*>(call.arguments[0].data));
            if (operationNumber(name.c_str()) == kOperationCount && unknownFunctions_.insert(name).second)
                report(call, "the program fetched " + name +
                                 ", a function the capture does not know: its calls are not in the capture, "
                                 "and frames that depend on them differ");
        }
        break;
    default:
        break; // queries and palettes: nothing the frames depend on
    }
}

void Replayer::frame(CaptureRecord const& record)
{
    result_.frameSeconds.push_back(now() - frameStart_);
    ++result_.frames;
    Context* context = currentContext();
    if (!context)
        return;
    const bool png = options_.pngs.count(record.frame) != 0;
    if (!options_.compare && !png)
        return;
    Replay::Image image;
    image.width = static_cast<unsigned int>(record.width);
    image.height = static_cast<unsigned int>(record.height);
    image.rgba = GLStateProbe::backBuffer(context->features, record.width, record.height);
    if (options_.compare)
    {
        const std::uint64_t checksum = frameChecksum(image.rgba.data(), image.rgba.size());
        if (checksum != record.checksum)
        {
            ++result_.differingFrames;
            if (options_.log)
            {
                *options_.log << "frame " << record.frame << " (before call " << record.callIndex
                              << ") differs from the capture";
                if (record.data)
                {
                    Replay::Image captured;
                    captured.width = image.width;
                    captured.height = image.height;
                    captured.rgba.assign(record.data, record.data + image.rgba.size());
                    *options_.log << ": " << Replay::differingPixels(image, captured) << " of "
                                  << std::uint64_t(image.width) * image.height << " pixels";
                }
                *options_.log << "\n";
            }
        }
    }
    if (png && !Replay::writePng(options_.pngs[record.frame], image) && options_.log)
        *options_.log << "cannot write " << options_.pngs[record.frame] << "\n";
}

void Replayer::clientArray(CaptureRecord const& record)
{
    Context* context = currentContext();
    if (!context)
        return;
    const std::uint32_t unit = record.array == ArrayKind::Attribute
                                   ? static_cast<std::uint32_t>(names_.replayed(NameMaps::AttributeLocation, record.unit))
                                   : record.unit;
    auto& memory = arrays_[std::make_tuple(currentContext_, static_cast<int>(record.array), unit)];
    memory.assign(static_cast<std::size_t>((record.first + record.length + 7) / 8), 0);
    char* base = reinterpret_cast<char*>(memory.data());
    std::memcpy(base + record.first, record.data, static_cast<std::size_t>(record.length));

    GLint arrayBuffer = 0;
    if (context->features.buffers)
    {
        glGetIntegerv(GL_ARRAY_BUFFER_BINDING, &arrayBuffer);
        if (arrayBuffer)
            _cgmBindBuffer(GL_ARRAY_BUFFER, 0);
    }
    const auto type = static_cast<GLenum>(record.type);
    switch (record.array)
    {
    case ArrayKind::Vertex: glVertexPointer(record.size, type, record.stride, base); break;
    case ArrayKind::Normal: glNormalPointer(type, record.stride, base); break;
    case ArrayKind::Color: glColorPointer(record.size, type, record.stride, base); break;
    case ArrayKind::Index: glIndexPointer(type, record.stride, base); break;
    case ArrayKind::EdgeFlag: glEdgeFlagPointer(record.stride, base); break;
    case ArrayKind::FogCoord:
        if (_cgmFogCoordPointer)
            _cgmFogCoordPointer(type, record.stride, base);
        break;
    case ArrayKind::SecondaryColor:
        if (_cgmSecondaryColorPointer)
            _cgmSecondaryColorPointer(record.size, type, record.stride, base);
        break;
    case ArrayKind::TexCoord:
        if (_cgmClientActiveTexture)
        {
            GLint active = GL_TEXTURE0;
            glGetIntegerv(GL_CLIENT_ACTIVE_TEXTURE, &active);
            _cgmClientActiveTexture(GL_TEXTURE0 + unit);
            glTexCoordPointer(record.size, type, record.stride, base);
            _cgmClientActiveTexture(static_cast<GLenum>(active));
        }
        else
            glTexCoordPointer(record.size, type, record.stride, base);
        break;
    case ArrayKind::Attribute:
        if (_cgmVertexAttribPointer)
            _cgmVertexAttribPointer(unit, record.size, type, record.normalized, record.stride, base);
        break;
    }
    if (arrayBuffer)
        _cgmBindBuffer(GL_ARRAY_BUFFER, static_cast<GLuint>(arrayBuffer));
}

void Replayer::bufferContents(CaptureRecord const& record)
{
    auto found = mappings_.find(std::make_pair(currentContext_, record.type));
    if (found == mappings_.end() || !found->second)
    {
        if (options_.log)
            *options_.log << "buffer contents at byte offset " << record.offset
                          << " for a buffer this replay has not mapped\n";
        return;
    }
    std::memcpy(static_cast<char*>(found->second) + record.first, record.data, static_cast<std::size_t>(record.length));
}

void Replayer::statistics(std::ostream& out) const
{
    std::vector<unsigned int> order;
    for (unsigned int i = 0; i < kOperationCount; ++i)
        if (counts_[i])
            order.push_back(i);
    std::sort(order.begin(), order.end(), [this](unsigned int a, unsigned int b) { return seconds_[a] > seconds_[b]; });
    out << std::setw(10) << "calls" << std::setw(14) << "ms in driver" << std::setw(12) << "us/call" << "  function\n";
    for (unsigned int i : order)
        out << std::setw(10) << counts_[i] << std::setw(14) << std::fixed << std::setprecision(3) << seconds_[i] * 1e3
            << std::setw(12) << std::setprecision(3) << seconds_[i] * 1e6 / static_cast<double>(counts_[i]) << "  "
            << operationName(i) << "\n";
}

} // namespace OGL
} // namespace Oru
