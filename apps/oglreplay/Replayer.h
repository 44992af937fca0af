#ifndef OGLREPLAY_REPLAYER_H
#define OGLREPLAY_REPLAYER_H

#include "oru_ogl/extensionator/CaptureReader.h"
#include "oru_ogl/extensionator/GLStateProbe.h"
#include "oru_ogl/ogl/ContextWrapped.h"

#include "oru_replay/NameMaps.h"
#include "oru_replay/Window.h"

#include <deque>
#include <map>
#include <memory>
#include <ostream>
#include <set>
#include <string>
#include <vector>

namespace Oru
{
namespace OGL
{

/// Replays a capture on this machine's driver: a window for each window the
/// capture saw, a context for each context, every call with the names and
/// locations mapped to what this driver gives, and each presented frame
/// compared with the checksum the capture took of it.
class Replayer
{
public:
    struct Options
    {
        /// Compare every presented frame with the capture's.
        bool compare = true;
        /// Frames to write as PNG, by frame number.
        std::map<unsigned int, std::string> pngs;
        /// Time every call, for statistics().
        bool timeCalls = false;
        /// Where errors, skipped calls and differing frames are reported.
        std::ostream* log = nullptr;
    };

    struct Result
    {
        std::uint64_t calls = 0;
        std::uint64_t skipped = 0;
        std::uint64_t glErrors = 0;
        unsigned int frames = 0;
        unsigned int differingFrames = 0;
        /// Seconds from the first record to the last.
        double seconds = 0;
        /// Seconds of each frame, from the end of the previous one to its SwapBuffers.
        std::vector<double> frameSeconds;
    };

    explicit Replayer(Options const& options);
    ~Replayer();
    Replayer(Replayer const&) = delete;
    Replayer& operator=(Replayer const&) = delete;

    /// Replays the whole capture. Throws CaptureError when the capture is cut off
    /// or corrupt; what was replayed until then stays counted in result().
    void run(CaptureReader& reader);
    Result const& result() const { return result_; }
    /// Per operation: calls and seconds spent in the driver (with timeCalls).
    void statistics(std::ostream& out) const;

    // What the generated call table calls back.
    void* pointer(CaptureRecord& call, unsigned int index);
    void missing(CaptureRecord const& call);
    void called(CaptureRecord& call, long long result);

private:
    struct Surface
    {
        std::unique_ptr<Replay::Window> window;
    };
    struct Context
    {
        HGLRC handle = nullptr;
        ContextFeatures features;
        bool featuresKnown = false;
    };

    void call(CaptureRecord& call);
    void wgl(CaptureRecord& call);
    void surface(CaptureRecord const& record);
    void frame(CaptureRecord const& record);
    void clientArray(CaptureRecord const& record);
    void bufferContents(CaptureRecord const& record);
    void makeCurrent(std::uint64_t device, std::uint64_t context);
    HDC deviceContext(std::uint64_t device);
    HGLRC createContext(std::uint64_t device, std::uint64_t captured);
    Context* currentContext();
    void report(CaptureRecord const& call, std::string const& text);
    void checkError(CaptureRecord const& call);

    Options options_;
    Result result_;
    NameMaps names_;
    std::map<std::uint64_t, Surface> surfaces_;
    std::map<std::uint64_t, Context> contexts_;
    std::uint64_t currentDevice_ = 0;
    std::uint64_t currentContext_ = 0;
    std::map<std::uint32_t, std::pair<std::uint64_t, std::uint64_t>> currentByThread_;
    std::uint32_t thread_ = 0;
    std::unique_ptr<ContextWrapped> layerContext_;
    bool inBeginEnd_ = false;

    // Memory the calls point to: per call, kept while GL may still read it.
    std::vector<std::vector<std::uint64_t>> scratch_;
    void* outputs_[CaptureRecord::kMaxArguments] = {};
    std::vector<std::vector<std::string>> texts_;
    std::vector<std::vector<char const*>> textPointers_;
    std::deque<std::vector<std::uint64_t>> lasting_;
    std::map<std::tuple<std::uint64_t, int, std::uint32_t>, std::vector<std::uint64_t>> arrays_;
    std::map<std::pair<std::uint64_t, std::uint32_t>, void*> mappings_;
    std::vector<bool> reportedMissing_;
    std::set<std::string> unknownFunctions_;

    std::vector<std::uint64_t> counts_;
    std::vector<double> seconds_;
    double frameStart_ = 0;
};

} // namespace OGL
} // namespace Oru

#endif
