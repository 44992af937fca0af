#ifndef OGLREPLAY_CAPTUREEXPORT_H
#define OGLREPLAY_CAPTUREEXPORT_H

#include "oru_ogl/extensionator/CaptureReader.h"

#include <cstdint>
#include <fstream>
#include <string>
#include <unordered_map>
#include <vector>

namespace Oru
{
namespace OGL
{

/// Writes a capture as a C++ program of straight-line calls, built with
/// oru_add_capture_replay: the calls in parts of a few thousand
/// (calls_NNNN.cpp), the part table (capture.cpp), a CMakeLists.txt, and all
/// bulk data in one side file (capture.data) of 16-byte aligned blocks that the
/// calls name by offset. Each record becomes what oglreplay does for it.
///
/// A frame range keeps the state it needs: every record before the first
/// frame is exported too, its frames presented but not compared; export stops
/// at the SwapBuffers that presents the last frame of the range.
class CaptureExport
{
public:
    struct Options
    {
        std::string directory;
        /// Frames compared, by frame number; the others before them are presented only.
        unsigned int firstFrame = 0;
        unsigned int lastFrame = ~0u;
        /// Calls per translation unit: each stays quick to compile without optimisation.
        std::uint64_t callsPerPart = 5000;
        /// Named in the files' banners.
        std::string captureName;
    };
    struct Result
    {
        std::uint64_t calls = 0;
        unsigned int parts = 0;
        unsigned int frames = 0;
        std::uint64_t dataBytes = 0;
    };

    explicit CaptureExport(Options const& options);

    /// Writes the export. Throws CaptureError for a capture that is cut off or
    /// corrupt, std::runtime_error when a file cannot be written.
    void run(CaptureReader& reader);
    Result const& result() const { return result_; }

    /// A float as an exact C++ literal (hex-float, or its bits when not finite).
    static std::string floatLiteral(float value);
    static std::string doubleLiteral(double value);

    /// The hex-float literal of a finite value's sign, exponent and fraction fields.
    static std::string hexFloat(bool negative, int exponentField, std::uint64_t fraction, int fractionBits, int bias);

    // What the per-operation argument writers call back.
    std::string pointer(CaptureRecord const& call, unsigned int index);

private:
    void record(CaptureRecord const& record);
    void call(CaptureRecord const& call);
    void wgl(CaptureRecord const& call);
    void line(std::string const& text);
    /// Appends a block to the data file; its offset. Equal blocks are stored once.
    std::uint64_t block(unsigned char const* bytes, std::uint64_t length);
    void openPart();
    void closePart();
    void writeProgram();

    Options options_;
    Result result_;
    std::ofstream part_;
    std::uint64_t callsInPart_ = 0;
    bool lastFrameSeen_ = false;
    bool finished_ = false;
    std::vector<unsigned char> data_;
    std::unordered_map<std::uint64_t, std::vector<std::uint64_t>> blocksByChecksum_;
};

} // namespace OGL
} // namespace Oru

#endif
