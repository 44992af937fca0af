#include "oru_replay/Replay.h"

#include "oru_replay/Session.h"
#include "oru_replay/Window.h"

#include "oru_ogl/extensionator/ExtensionCatalogue.h"

#include <cstdint>
#include <cstring>
#include <deque>
#include <iostream>
#include <memory>
#include <set>

std::istream* pBinaryInputStream = nullptr;
std::map<HDC, HDC> hdc_map_;
HDC hDC_Ours = nullptr;

namespace
{

using Oru::Replay::Image;
using Oru::Replay::Window;

int gWidth = 256;
int gHeight = 256;

// The replay's windows by the recorded DC they stand for.
std::map<HDC, std::unique_ptr<Window>> gWindows;

// Contexts: the replay's own for each recorded handle. A recording names the
// handles its wglCreateContext calls returned, but not the calls' results, so
// recorded handles are matched to created contexts in order of creation, as
// each handle is first used.
std::map<HGLRC, HGLRC> gContexts;
std::deque<HGLRC> gUnclaimed;
// The stand-in for a context that was current before recording began; it
// answers a recorded handle that no recorded wglCreateContext made.
HGLRC gAppContext = nullptr;
bool gAppContextClaimed = false;
std::set<HGLRC> gLoaded;

Image gFrame;
unsigned int gPresented = 0;
unsigned int gUnsupported = 0;

Window* windowFor(HDC recorded)
{
    auto found = gWindows.find(recorded);
    return found == gWindows.end() ? nullptr : found->second.get();
}

HDC ourDC(HDC recorded)
{
    GLRekorderCreateWindow(recorded);
    Window* window = windowFor(recorded);
    return window ? window->deviceContext() : nullptr;
}

HGLRC claim(HGLRC recorded)
{
    if (!recorded)
        return nullptr;
    auto found = gContexts.find(recorded);
    if (found != gContexts.end())
        return found->second;
    HGLRC ours = nullptr;
    if (!gUnclaimed.empty())
    {
        ours = gUnclaimed.front();
        gUnclaimed.pop_front();
    }
    else if (gAppContext && !gAppContextClaimed)
    {
        ours = gAppContext;
        gAppContextClaimed = true;
    }
    else
    {
        std::cerr << "replay: no context of the replay stands for recorded context " << recorded << "\n";
        return nullptr;
    }
    gContexts[recorded] = ours;
    return ours;
}

// wglGetProcAddress answers per context: load what the recorded GL calls
// beyond 1.1 go through the first time each context is current.
void makeCurrent(HDC dc, HGLRC rc)
{
    if (!wglMakeCurrent(dc, rc))
    {
        std::cerr << "replay: wglMakeCurrent failed (" << GetLastError() << ")\n";
        return;
    }
    if (rc && gLoaded.insert(rc).second)
    {
        for (int id = Oru::OGL::OPEN_GL_1_2; id <= Oru::OGL::GL_WIN_SWAP_HINT; ++id) // the GL ids
            Oru::OGL::ExtensionCatalogue::loadGL(static_cast<Oru::OGL::teExtension>(id));
    }
}

// A swap presents what the current context drew in the window: keep it as the
// replay's last frame.
void presentFrame(Window& window)
{
    if (!wglGetCurrentContext())
        return;
    gFrame = Oru::Replay::readFramebuffer(window.width(), window.height());
    ++gPresented;
}

} // namespace

RecordedFloat makeFloat(int bits)
{
    RecordedFloat result;
    static_assert(sizeof(result.value) == sizeof(bits), "float is not 32 bits wide");
    std::memcpy(&result.value, &bits, sizeof(bits));
    return result;
}

void OpenGLRekorderUnsupported(char const* message)
{
    ++gUnsupported;
    std::cerr << "replay: " << message << "\n";
}

void addCurrentAppDC(HDC recorded)
{
    GLRekorderCreateWindow(recorded);
    Window* window = windowFor(recorded);
    if (!window || gAppContext)
        return;
    gAppContext = wglCreateContext(window->deviceContext());
    if (gAppContext)
        makeCurrent(window->deviceContext(), gAppContext);
}

void GLRekorderCreateWindow(HDC recorded)
{
    if (windowFor(recorded))
        return;
    std::unique_ptr<Window> window(new Window(gWidth, gHeight));
    if (!window->valid())
    {
        std::cerr << "replay: " << window->error() << "\n";
        return;
    }
    hdc_map_[recorded] = window->deviceContext();
    gWindows[recorded] = std::move(window);
}

BOOL GLRekorderMakeCurrent(HDC recorded, HGLRC recordedContext)
{
    if (!recordedContext)
        return wglMakeCurrent(nullptr, nullptr);
    HDC dc = ourDC(recorded);
    HGLRC rc = claim(recordedContext);
    if (!dc || !rc)
        return FALSE;
    makeCurrent(dc, rc);
    return wglGetCurrentContext() == rc;
}

BOOL GLRekorderSwapBuffers(HDC recorded)
{
    Window* window = windowFor(recorded);
    if (!window)
        return FALSE;
    presentFrame(*window);
    return SwapBuffers(window->deviceContext());
}

HGLRC oruReplayCreateContext(HDC ours)
{
    HGLRC rc = ours ? wglCreateContext(ours) : nullptr;
    if (rc)
        gUnclaimed.push_back(rc);
    return rc;
}

HGLRC oruReplayCreateLayerContext(HDC recorded, int layerPlane)
{
    HDC dc = ourDC(recorded);
    HGLRC rc = dc ? wglCreateLayerContext(dc, layerPlane) : nullptr;
    if (rc)
        gUnclaimed.push_back(rc);
    return rc;
}

BOOL oruReplayDeleteContext(HGLRC recorded)
{
    HGLRC rc = claim(recorded);
    if (!rc)
        return FALSE;
    if (wglGetCurrentContext() == rc)
        wglMakeCurrent(nullptr, nullptr);
    gContexts.erase(recorded);
    gLoaded.erase(rc);
    if (rc == gAppContext)
        gAppContext = nullptr;
    return wglDeleteContext(rc);
}

BOOL oruReplayShareLists(HGLRC recorded1, HGLRC recorded2)
{
    HGLRC first = claim(recorded1);
    HGLRC second = claim(recorded2);
    return first && second && wglShareLists(first, second);
}

BOOL oruReplayCopyContext(unsigned long long recordedSource, unsigned long long recordedDestination, UINT mask)
{
    HGLRC source = claim(reinterpret_cast<HGLRC>(static_cast<std::uintptr_t>(recordedSource)));
    HGLRC destination = claim(reinterpret_cast<HGLRC>(static_cast<std::uintptr_t>(recordedDestination)));
    return source && destination && wglCopyContext(source, destination, mask);
}

BOOL oruReplaySwapLayerBuffers(HDC recorded, UINT planes)
{
    Window* window = windowFor(recorded);
    if (!window)
        return FALSE;
    presentFrame(*window);
    return wglSwapLayerBuffers(window->deviceContext(), planes);
}

namespace Oru
{
namespace Replay
{

void setWindowSize(int width, int height)
{
    gWidth = width;
    gHeight = height;
}

bool finalFrame(Image& frame)
{
    if (gPresented == 0)
    {
        if (!wglGetCurrentContext())
            return false;
        gFrame = readFramebuffer(gWidth, gHeight);
    }
    frame = gFrame;
    return true;
}

unsigned int presentedFrames()
{
    return gPresented;
}

unsigned int unsupportedCalls()
{
    return gUnsupported;
}

void shutdown()
{
    wglMakeCurrent(nullptr, nullptr);
    std::set<HGLRC> contexts(gUnclaimed.begin(), gUnclaimed.end());
    for (auto const& entry : gContexts)
        contexts.insert(entry.second);
    if (gAppContext)
        contexts.insert(gAppContext);
    for (HGLRC rc : contexts)
        wglDeleteContext(rc);
    gContexts.clear();
    gUnclaimed.clear();
    gAppContext = nullptr;
    gLoaded.clear();
    hdc_map_.clear();
    gWindows.clear();
}

} // namespace Replay
} // namespace Oru
