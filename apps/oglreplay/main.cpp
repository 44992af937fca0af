// oglreplay: replays a capture made by oru_ogl's CaptureSession on this
// machine's driver, without a compiler, and checks that every presented frame
// equals the captured one; or prints the capture as text.
#include "CaptureExport.h"
#include "CaptureText.h"
#include "Replayer.h"

#include "oru_ogl/extensionator/CaptureReader.h"

#include <CLI/CLI.hpp>

#include <cstdio>
#include <iostream>
#include <map>
#include <string>
#include <vector>

namespace
{

const char* const kDescription =
    "oglreplay: replays a capture of GL calls (CaptureSession) on this machine's OpenGL driver.\n"
    "Every presented frame is compared with the checksum the capture took of it.";
const char* const kFooter =
    "Exit status: 0 when the capture was replayed and every frame equals the captured one,\n"
    "1 when a frame differs, 2 for bad arguments, 3 when the capture cannot be read (cut off,\n"
    "corrupt, of a newer format: the message names the byte offset and the call index).\n"
    "GL errors raised during the replay are reported with their call index; they do not change\n"
    "the status, since the captured program may have raised them as well.";

enum ExitCode
{
    kSuccess = 0,
    kFramesDiffer = 1,
    kBadArguments = 2,
    kBadCapture = 3,
};

} // namespace

int main(int argc, char** argv)
{
    std::string capture;
    bool dump = false, noCompare = false, statistics = false;
    std::vector<std::string> pngs;
    CLI::App app(kDescription, "oglreplay");
    app.add_option("capture", capture, "the capture file")->required();
    auto* dumpOption = app.add_flag("--dump", dump, "print the capture as text, one call per line, and replay nothing");
    app.add_flag("--no-compare", noCompare, "do not compare the frames with the capture's")->excludes(dumpOption);
    app.add_option("--png", pngs, "write frame N (counted from 0) as a PNG file; repeatable")
        ->type_name("N FILE")
        ->expected(2)
        ->allow_extra_args(false)
        ->multi_option_policy(CLI::MultiOptionPolicy::TakeAll)
        ->excludes(dumpOption);
    app.add_flag("--stats", statistics, "time every call and print calls and driver time per function")
        ->excludes(dumpOption);
    std::string exportDirectory, frameRange;
    auto* exportOption = app.add_option("--export", exportDirectory,
                                        "write the capture as a C++ program into DIR (oru_add_capture_replay) "
                                        "and replay nothing")
                             ->type_name("DIR")
                             ->excludes(dumpOption);
    app.add_option("--frames", frameRange,
                   "with --export: compare only frames A to B; the calls before A are exported too, "
                   "the calls after B's SwapBuffers are not")
        ->type_name("A:B")
        ->needs(exportOption);
    std::uint64_t callsPerFile = 5000;
    app.add_option("--calls-per-file", callsPerFile, "with --export: calls per C++ file (each compiles quickly)")
        ->capture_default_str()
        ->check(CLI::PositiveNumber)
        ->needs(exportOption);
    app.footer(kFooter);
    try
    {
        app.parse(argc, argv);
    }
    catch (CLI::CallForHelp const& help)
    {
        return app.exit(help);
    }
    catch (CLI::ParseError const& error)
    {
        app.exit(error);
        return kBadArguments;
    }

    Oru::OGL::Replayer::Options options;
    options.compare = !noCompare;
    options.timeCalls = statistics;
    options.log = &std::cerr;
    for (std::size_t i = 0; i + 1 < pngs.size(); i += 2)
    {
        try
        {
            options.pngs[static_cast<unsigned int>(std::stoul(pngs[i]))] = pngs[i + 1];
        }
        catch (std::exception const&)
        {
            std::cerr << "oglreplay: --png takes a frame number and a file, not '" << pngs[i] << "'\n";
            return kBadArguments;
        }
    }

    try
    {
        Oru::OGL::CaptureReader reader(capture);
        if (dump)
        {
            Oru::OGL::CaptureText::write(reader, std::cout);
            return kSuccess;
        }
        if (!exportDirectory.empty())
        {
            Oru::OGL::CaptureExport::Options exportOptions;
            exportOptions.directory = exportDirectory;
            exportOptions.callsPerPart = callsPerFile;
            exportOptions.captureName = capture.substr(capture.find_last_of("\\/") + 1);
            char rest = 0;
            if (!frameRange.empty() &&
                (std::sscanf(frameRange.c_str(), "%u:%u%c", &exportOptions.firstFrame, &exportOptions.lastFrame,
                             &rest) != 2 ||
                 exportOptions.firstFrame > exportOptions.lastFrame))
            {
                std::cerr << "oglreplay: --frames takes A:B, frame numbers from 0 with A <= B, not '" << frameRange
                          << "'\n";
                return kBadArguments;
            }
            Oru::OGL::CaptureExport exporter(exportOptions);
            try
            {
                exporter.run(reader);
            }
            catch (std::runtime_error const& error)
            {
                std::cerr << "oglreplay: " << error.what() << "\n";
                return dynamic_cast<Oru::OGL::CaptureError const*>(&error) ? kBadCapture : kBadArguments;
            }
            Oru::OGL::CaptureExport::Result const& result = exporter.result();
            std::cout << "exported " << result.calls << " calls, " << result.frames << " frames in " << result.parts
                      << " parts and " << result.dataBytes << " bytes of data to " << exportDirectory << "\n";
            return kSuccess;
        }
        Oru::OGL::Replayer replayer(options);
        int status = kSuccess;
        try
        {
            replayer.run(reader);
        }
        catch (Oru::OGL::CaptureError const& error)
        {
            std::cerr << "oglreplay: " << error.what() << "\n";
            status = kBadCapture;
        }
        Oru::OGL::Replayer::Result const& result = replayer.result();
        double frameTotal = 0;
        for (double seconds : result.frameSeconds)
            frameTotal += seconds;
        std::cout << "replayed " << result.calls << " calls, " << result.frames << " frames ("
                  << result.differingFrames << " differ from the capture), " << result.skipped << " skipped, "
                  << result.glErrors << " GL errors, " << result.seconds << " s";
        if (!result.frameSeconds.empty())
            std::cout << ", " << frameTotal * 1e3 / static_cast<double>(result.frameSeconds.size()) << " ms per frame";
        std::cout << "\n";
        if (statistics)
            replayer.statistics(std::cout);
        if (status == kSuccess && result.differingFrames)
            status = kFramesDiffer;
        return status;
    }
    catch (Oru::OGL::CaptureError const& error)
    {
        std::cerr << "oglreplay: " << error.what() << "\n";
        return kBadCapture;
    }
}
