// main() of a program exported from a capture (oglreplay CAPTURE --export DIR,
// built with oru_add_capture_replay): runs the exported calls and compares
// every presented frame with the capture's checksum.
#include "oru_replay/CapturedCalls.h"

#include <CLI/CLI.hpp>

#include <windows.h>

#include <iostream>
#include <string>
#include <vector>

namespace
{

enum ExitCode
{
    kSuccess = 0,
    kFramesDiffer = 1,
    kBadArguments = 2,
};

// The data file is copied next to the program when it is built.
std::string besideProgram(std::string const& name)
{
    char path[MAX_PATH] = {};
    const DWORD length = GetModuleFileNameA(nullptr, path, MAX_PATH);
    const std::string program(path, length);
    const std::string::size_type slash = program.find_last_of("\\/");
    return slash == std::string::npos ? name : program.substr(0, slash + 1) + name;
}

} // namespace

int main(int argc, char** argv)
{
    std::string dataFile = besideProgram(oruCapturedProgram.dataFile);
    bool noCompare = false;
    std::vector<std::string> pngs;
    CLI::App app("Replays the OpenGL calls exported from one capture and compares every presented\n"
                 "frame with the checksum the capture took of it.");
    app.add_option("--data", dataFile, "the capture's data file")->type_name("FILE")->capture_default_str();
    app.add_flag("--no-compare", noCompare, "do not compare the frames with the capture's");
    app.add_option("--png", pngs, "write frame N (counted from 0) as a PNG file; repeatable")
        ->type_name("N FILE")
        ->expected(2)
        ->allow_extra_args(false)
        ->multi_option_policy(CLI::MultiOptionPolicy::TakeAll);
    app.footer("Exit status: 0 when every compared frame equals the captured one, 1 when a frame\n"
               "differs, 2 for a bad argument or a data file that cannot be read.");
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

    Oru::Replay::CaptureOptions options;
    options.compare = !noCompare;
    for (std::size_t i = 0; i + 1 < pngs.size(); i += 2)
    {
        try
        {
            options.pngs[static_cast<unsigned int>(std::stoul(pngs[i]))] = pngs[i + 1];
        }
        catch (std::exception const&)
        {
            std::cerr << "replay: --png takes a frame number and a file, not '" << pngs[i] << "'\n";
            return kBadArguments;
        }
    }
    std::string error;
    if (!Oru::Replay::loadCaptureData(dataFile, oruCapturedProgram.dataSize, error))
    {
        std::cerr << "replay: " << error << "\n";
        return kBadArguments;
    }
    Oru::Replay::CaptureResult const result = Oru::Replay::replayCapture(options);
    std::cout << "replayed " << oruCapturedProgram.calls << " calls, " << result.frames << " frames ("
              << result.comparedFrames << " compared, " << result.differingFrames << " differ from the capture), "
              << result.skipped << " skipped, " << result.glErrors << " GL errors\n";
    return result.differingFrames ? kFramesDiffer : kSuccess;
}
