#include "oru_ogl/LibraryOGL.h"
#include "oru_ogl/TokenName.h"
#include "oru_ogl/extensionator/GLStateProbe.h"
#include "oru_ogl/ogl/ContextWrapped.h"

#include "oru_replay/Image.h"
#include "oru_replay/Window.h"

#include <algorithm>
#include <cstring>
#include <deque>
#include <fstream>
#include <iostream>
#include <memory>
#include <tuple>
#include <type_traits>
#include <vector>

// Last: its GL function names are macros.
#include "oru_replay/CapturedCalls.h"

namespace Oru
{
namespace Replay
{

namespace
{

const char kDataMagic[8] = { 'O', 'R', 'U', 'C', 'D', 'A', 'T', 'A' };

struct Context
{
    HGLRC handle = nullptr;
    OGL::ContextFeatures features;
    bool featuresKnown = false;
};

// Everything the exported calls act on; one per program.
struct Player
{
    CaptureOptions options;
    CaptureResult result;
    std::vector<std::uint64_t> data; // 8-byte words: the blocks are aligned
    OGL::NameMaps names;
    std::map<std::uint64_t, std::unique_ptr<Window>> windows;
    std::map<std::uint64_t, Context> contexts;
    std::uint64_t currentDevice = 0;
    std::uint64_t currentContext = 0;
    std::map<std::uint32_t, std::pair<std::uint64_t, std::uint64_t>> currentByThread;
    std::uint32_t thread = 0;
    std::unique_ptr<OGL::ContextWrapped> layerContext;
    std::vector<std::uint64_t> outputs[OGL::CaptureRecord::kMaxArguments];
    std::deque<std::vector<std::uint64_t>> lasting;
    std::vector<std::string> texts;
    std::vector<char const*> textPointers;
    std::vector<GLuint> mappedNames;
    std::map<std::tuple<std::uint64_t, int, std::uint32_t>, std::vector<std::uint64_t>> arrays;
    std::map<std::pair<std::uint64_t, std::uint32_t>, void*> mappings;
};

Player& player()
{
    static Player instance;
    return instance;
}

std::ostream& log()
{
    return std::cerr;
}

// The loaded entry points the driver lacks call these: one message per function.
template <char const* Name, class F>
struct Missing;
template <char const* Name, class Ret, class... P>
struct Missing<Name, Ret (*)(P...)>
{
    static Ret call(P...)
    {
        static bool reported = false;
        ++player().result.skipped;
        if (!reported)
            log() << Name << ": this driver does not offer it; its calls are skipped\n";
        reported = true;
        if constexpr (!std::is_void<Ret>::value)
            return Ret();
    }
};

#define ORU_GL_OPERATION(Ret, Stem, ...) constexpr char kName##Stem[] = "gl" #Stem;
#include "oru_ogl/extensionator/Operations.def"

void fillMissingEntryPoints()
{
#define ORU_MISSING_Direct(Stem)
#define ORU_MISSING_Bracket(Stem)
#define ORU_MISSING_Loaded(Stem)                                                                       \
    if (!_cgm##Stem)                                                                                   \
        _cgm##Stem = &Missing<kName##Stem, decltype(_cgm##Stem)>::call;
#define ORU_GL_OPERATION(Ret, Stem, Owner, Call, ...) ORU_MISSING_##Call(Stem)
#include "oru_ogl/extensionator/Operations.def"
#undef ORU_MISSING_Direct
#undef ORU_MISSING_Bracket
#undef ORU_MISSING_Loaded
}

HDC deviceContext(std::uint64_t device)
{
    std::unique_ptr<Window>& window = player().windows[device];
    if (!window)
        window.reset(new Window(640, 480));
    return window->deviceContext();
}

Context* current()
{
    Player& p = player();
    auto found = p.contexts.find(p.currentContext);
    if (found == p.contexts.end())
        return nullptr;
    if (!found->second.featuresKnown)
    {
        found->second.features = OGL::GLStateProbe::features();
        found->second.featuresKnown = true;
    }
    return &found->second;
}

void reportErrors(unsigned int frameNumber)
{
    if (!player().currentContext)
        return;
    for (GLenum error = glGetError(); error != GL_NO_ERROR; error = glGetError())
    {
        ++player().result.glErrors;
        log() << "GL error " << ::TokenName(error) << " before frame " << frameNumber << "\n";
    }
}

} // namespace

CallPointer data(std::uint64_t offset)
{
    return CallPointer{ reinterpret_cast<char const*>(player().data.data()) + offset };
}

CallPointer address(std::uint64_t value)
{
    return CallPointer{ reinterpret_cast<void const*>(static_cast<std::uintptr_t>(value)) };
}

CallPointer output(unsigned int index, std::uint64_t bytes)
{
    std::vector<std::uint64_t>& room = player().outputs[index];
    room.assign(static_cast<std::size_t>(std::max<std::uint64_t>(1, (bytes + 7) / 8)), 0);
    return CallPointer{ room.data() };
}

CallPointer output(unsigned int index)
{
    return CallPointer{ player().outputs[index].data() };
}

CallPointer lasting(std::uint64_t bytes)
{
    player().lasting.emplace_back(static_cast<std::size_t>(std::max<std::uint64_t>(1, (bytes + 7) / 8)));
    return CallPointer{ player().lasting.back().data() };
}

CallPointer strings(std::uint64_t offset, std::uint32_t count)
{
    Player& p = player();
    p.texts.clear();
    p.textPointers.clear();
    char const* at = static_cast<char const*>(data(offset).address);
    for (std::uint32_t i = 0; i < count; ++i)
    {
        std::uint64_t length = 0;
        std::memcpy(&length, at, sizeof(length));
        p.texts.emplace_back(at + sizeof(length), static_cast<std::size_t>(length));
        at += sizeof(length) + length;
    }
    for (std::string const& text : p.texts)
        p.textPointers.push_back(text.c_str());
    return CallPointer{ p.textPointers.data() };
}

std::uint64_t name(Space space, std::uint64_t captured)
{
    return player().names.replayed(space, captured);
}

CallPointer names(Space space, std::initializer_list<GLuint> captured)
{
    Player& p = player();
    p.mappedNames.clear();
    for (GLuint one : captured)
        p.mappedNames.push_back(static_cast<GLuint>(p.names.replayed(space, one)));
    return CallPointer{ p.mappedNames.data() };
}

float floatBits(std::uint32_t bits)
{
    float value;
    std::memcpy(&value, &bits, sizeof(value));
    return value;
}

double doubleBits(std::uint64_t bits)
{
    double value;
    std::memcpy(&value, &bits, sizeof(value));
    return value;
}

void learn(Space space, std::uint64_t captured, std::uint64_t replayed)
{
    player().names.learnName(space, captured, replayed);
}

void learnNames(Space space, CallPointer written, std::initializer_list<GLuint> captured)
{
    auto const* mine = static_cast<GLuint const*>(written.address);
    for (GLuint one : captured)
        player().names.learnName(space, one, *mine++);
}

void learnLists(std::uint64_t captured, GLsizei range, GLuint replayed)
{
    for (GLsizei i = 0; i < range; ++i)
        player().names.learnName(List, captured + static_cast<std::uint64_t>(i), replayed + static_cast<GLuint>(i));
}

void learnLocation(std::uint64_t program, std::uint64_t captured, GLint replayed)
{
    player().names.learnLocation(program, captured, static_cast<std::uint64_t>(static_cast<long long>(replayed)));
}

void useProgram(std::uint64_t program)
{
    player().names.useProgram(program);
}

void mapped(GLenum target, void* pointer)
{
    player().mappings[std::make_pair(player().currentContext, static_cast<std::uint32_t>(target))] = pointer;
}

void surface(std::uint64_t device, int width, int height)
{
    std::unique_ptr<Window>& window = player().windows[device];
    width = std::max(1, width);
    height = std::max(1, height);
    if (window && window->width() == width && window->height() == height)
        return;
    if (!window)
    {
        window.reset(new Window(width, height));
        if (!window->valid())
            log() << "cannot make a window of " << width << "x" << height << ": " << window->error() << "\n";
        return;
    }
    // The program resized its window: so does the replay, keeping the DC.
    SetWindowPos(window->handle(), nullptr, 0, 0, width, height, SWP_NOMOVE | SWP_NOZORDER | SWP_NOACTIVATE);
}

void createContext(std::uint64_t device, std::uint64_t context)
{
    Context& made = player().contexts[context];
    if (!made.handle)
        made.handle = wglCreateContext(deviceContext(device));
}

void makeCurrent(std::uint64_t device, std::uint64_t context)
{
    Player& p = player();
    p.currentDevice = device;
    p.currentContext = context;
    p.currentByThread[p.thread] = std::make_pair(device, context);
    if (!context)
    {
        wglMakeCurrent(nullptr, nullptr);
        return;
    }
    const HDC dc = deviceContext(device);
    const HGLRC rc = p.contexts[context].handle;
    if (!wglMakeCurrent(dc, rc))
    {
        log() << "wglMakeCurrent failed for a context of the capture\n";
        return;
    }
    if (!p.layerContext)
    {
        // The loaded entry points come from the first context made current.
        p.layerContext.reset(new OGL::ContextWrapped(dc, rc));
        OGL::ExtensionManager::InitOptions options;
        options.setCompatibilityCoreVersions(true);
        OGL::Library::initializeExtensionator(p.layerContext.get(), options);
        fillMissingEntryPoints();
    }
}

void currentContext(std::uint64_t device, std::uint64_t context)
{
    createContext(device, context);
    makeCurrent(device, context);
}

void thread(std::uint32_t id)
{
    // One replay thread: each captured thread's context in turn.
    Player& p = player();
    p.currentByThread[p.thread] = std::make_pair(p.currentDevice, p.currentContext);
    p.thread = id;
    auto const found = p.currentByThread.find(id);
    if (found != p.currentByThread.end())
        makeCurrent(found->second.first, found->second.second);
}

void deleteContext(std::uint64_t context)
{
    Player& p = player();
    auto found = p.contexts.find(context);
    if (found == p.contexts.end() || !found->second.handle)
        return;
    if (context == p.currentContext)
        p.currentContext = 0;
    wglDeleteContext(found->second.handle);
    p.contexts.erase(found);
}

void shareLists(std::uint64_t context1, std::uint64_t context2)
{
    wglShareLists(player().contexts[context1].handle, player().contexts[context2].handle);
}

void copyContext(std::uint64_t source, std::uint64_t destination, UINT mask)
{
    wglCopyContext(player().contexts[source].handle, player().contexts[destination].handle, mask);
}

void swapBuffers(std::uint64_t device)
{
    ::SwapBuffers(deviceContext(device));
}

void skipped(std::uint64_t call, char const* function, char const* why)
{
    ++player().result.skipped;
    log() << "call " << call << " " << function << ": skipped: " << why << "\n";
}

void clientArray(ArrayKind kind, std::uint32_t unit, GLint size, GLenum type, GLsizei stride, bool normalized,
                 std::uint64_t first, std::uint64_t length, CallPointer bytes)
{
    Context* context = current();
    if (!context)
        return;
    Player& p = player();
    if (kind == ArrayKind::Attribute)
        unit = static_cast<std::uint32_t>(p.names.replayed(AttributeLocation, unit));
    auto& memory = p.arrays[std::make_tuple(p.currentContext, static_cast<int>(kind), unit)];
    memory.assign(static_cast<std::size_t>((first + length + 7) / 8), 0);
    char* base = reinterpret_cast<char*>(memory.data());
    std::memcpy(base + first, bytes.address, static_cast<std::size_t>(length));

    GLint arrayBuffer = 0;
    if (context->features.buffers)
    {
        glGetIntegerv(GL_ARRAY_BUFFER_BINDING, &arrayBuffer);
        if (arrayBuffer)
            _cgmBindBuffer(GL_ARRAY_BUFFER, 0);
    }
    switch (kind)
    {
    case ArrayKind::Vertex: glVertexPointer(size, type, stride, base); break;
    case ArrayKind::Normal: glNormalPointer(type, stride, base); break;
    case ArrayKind::Color: glColorPointer(size, type, stride, base); break;
    case ArrayKind::Index: glIndexPointer(type, stride, base); break;
    case ArrayKind::EdgeFlag: glEdgeFlagPointer(stride, base); break;
    case ArrayKind::FogCoord: _cgmFogCoordPointer(type, stride, base); break;
    case ArrayKind::SecondaryColor: _cgmSecondaryColorPointer(size, type, stride, base); break;
    case ArrayKind::TexCoord:
    {
        GLint active = GL_TEXTURE0;
        glGetIntegerv(GL_CLIENT_ACTIVE_TEXTURE, &active);
        _cgmClientActiveTexture(GL_TEXTURE0 + unit);
        glTexCoordPointer(size, type, stride, base);
        _cgmClientActiveTexture(static_cast<GLenum>(active));
        break;
    }
    case ArrayKind::Attribute: _cgmVertexAttribPointer(unit, size, type, normalized, stride, base); break;
    }
    if (arrayBuffer)
        _cgmBindBuffer(GL_ARRAY_BUFFER, static_cast<GLuint>(arrayBuffer));
}

void bufferContents(GLenum target, std::uint64_t offset, std::uint64_t length, CallPointer bytes)
{
    Player& p = player();
    auto found = p.mappings.find(std::make_pair(p.currentContext, static_cast<std::uint32_t>(target)));
    if (found == p.mappings.end() || !found->second)
    {
        log() << "buffer contents for a buffer this replay has not mapped\n";
        return;
    }
    std::memcpy(static_cast<char*>(found->second) + offset, bytes.address, static_cast<std::size_t>(length));
}

void frame(unsigned int number, int width, int height, std::uint64_t checksum, void const* stored)
{
    Player& p = player();
    ++p.result.frames;
    reportErrors(number);
    Context* context = current();
    if (!context)
        return;
    const bool png = p.options.pngs.count(number) != 0;
    if (!p.options.compare && !png)
        return;
    Image image;
    image.width = static_cast<unsigned int>(width);
    image.height = static_cast<unsigned int>(height);
    image.rgba = OGL::GLStateProbe::backBuffer(context->features, width, height);
    if (p.options.compare)
    {
        ++p.result.comparedFrames;
        if (OGL::capture::frameChecksum(image.rgba.data(), image.rgba.size()) != checksum)
        {
            ++p.result.differingFrames;
            log() << "frame " << number << " differs from the capture";
            if (stored)
            {
                Image captured;
                captured.width = image.width;
                captured.height = image.height;
                auto const* pixels = static_cast<unsigned char const*>(stored);
                captured.rgba.assign(pixels, pixels + image.rgba.size());
                log() << ": " << differingPixels(image, captured) << " of " << std::uint64_t(image.width) * image.height
                      << " pixels";
            }
            log() << "\n";
        }
    }
    if (png && !writePng(p.options.pngs[number], image))
        log() << "cannot write " << p.options.pngs[number] << "\n";
}

bool loadCaptureData(std::string const& path, std::uint64_t expectedSize, std::string& error)
{
    std::ifstream file(path, std::ios::binary | std::ios::ate);
    if (!file)
    {
        error = "cannot open the capture's data file " + path;
        return false;
    }
    const std::uint64_t size = static_cast<std::uint64_t>(file.tellg());
    std::vector<std::uint64_t>& data = player().data;
    data.assign(static_cast<std::size_t>((size + 7) / 8), 0);
    file.seekg(0);
    file.read(reinterpret_cast<char*>(data.data()), static_cast<std::streamsize>(size));
    if (!file || size != expectedSize || size < 16 || std::memcmp(data.data(), kDataMagic, sizeof(kDataMagic)) != 0)
    {
        error = path + " is not the data file of this exported capture";
        return false;
    }
    return true;
}

CaptureResult replayCapture(CaptureOptions const& options)
{
    Player& p = player();
    p.options = options;
    for (unsigned int i = 0; i < oruCapturedProgram.partCount; ++i)
        oruCapturedProgram.parts[i]();
    reportErrors(p.result.frames);
    wglMakeCurrent(nullptr, nullptr);
    if (OGL::Library::isExtensionatorInitialized())
        OGL::Library::terminateExtensionator();
    for (auto& context : p.contexts)
        if (context.second.handle)
            wglDeleteContext(context.second.handle);
    p.contexts.clear();
    p.windows.clear();
    return p.result;
}

} // namespace Replay
} // namespace Oru
