// main() of a replay program: runs the recorded calls of the program's one
// recording (see oru_add_replay), then saves and checks the frame they drew.
// `<replay> --help` lists the options and exit statuses.
#include "oru_replay/Replay.h"
#include "oru_replay/Session.h"

#include <CLI/CLI.hpp>

#include <windows.h>

#include <cstdio>
#include <exception>
#include <fstream>
#include <iostream>
#include <string>

namespace
{

const int kBadArguments = 2;

// The recording's data file is copied next to the program when it is built.
std::string besideProgram(std::string const& name)
{
    char path[MAX_PATH] = {};
    const DWORD length = GetModuleFileNameA(nullptr, path, MAX_PATH);
    const std::string program(path, length);
    const std::string::size_type slash = program.find_last_of("\\/");
    return slash == std::string::npos ? name : program.substr(0, slash + 1) + name;
}

std::string sizeError(std::string const& text)
{
    int width = 0, height = 0;
    char rest = 0;
    if (std::sscanf(text.c_str(), "%dx%d%c", &width, &height, &rest) != 2 || width <= 0 || height <= 0)
        return "expected WIDTHxHEIGHT with both positive, as 640x480";
    return "";
}

} // namespace

int main(int argc, char** argv)
{
    std::string dataFile = besideProgram(oruReplayRecording.dataFile);
    std::string size = std::to_string(oruReplayRecording.width) + "x" + std::to_string(oruReplayRecording.height);
    std::string png, compare;

    CLI::App app("Replays the OpenGL calls of one recording made by OpenGLRekorder and wglRekorder,\n"
                 "then writes or checks the last frame they presented.");
    app.add_option("--data", dataFile, "the recording's binary data file")
        ->type_name("FILE")
        ->capture_default_str();
    app.add_option("--size", size, "size of the window made for each recorded device context")
        ->type_name("WxH")
        ->check(CLI::Validator(sizeError, "WxH", "size"))
        ->capture_default_str();
    app.add_option("--png", png, "write the last presented frame to this PNG file")->type_name("FILE");
    app.add_option("--compare", compare, "compare the last presented frame with this PNG, pixel by pixel")
        ->type_name("PNG");
    app.footer("Exit status: 0 when replayed (and, with --compare, equal to the image), 1 when the\n"
               "frame differs from the --compare image, 2 for a bad argument or when the replay\n"
               "could not run or its files could not be read or written.");
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
    int width = 0, height = 0;
    std::sscanf(size.c_str(), "%dx%d", &width, &height);

    std::ifstream data(dataFile, std::ios::binary);
    if (!data)
    {
        std::cerr << "replay: cannot open the recording's data file " << dataFile << "\n";
        return kBadArguments;
    }
    pBinaryInputStream = &data;
    Oru::Replay::setWindowSize(width, height);

    int status = 0;
    Oru::Replay::Image frame;
    try
    {
        oruReplayRecording.calls();
        if (!Oru::Replay::finalFrame(frame))
        {
            std::cerr << "replay: the recording leaves no frame\n";
            status = kBadArguments;
        }
    }
    catch (std::exception const& e)
    {
        std::cerr << "replay: " << e.what() << "\n";
        status = kBadArguments;
    }
    Oru::Replay::shutdown();
    std::cout << "replayed " << Oru::Replay::presentedFrames() << " presented frame(s), "
              << Oru::Replay::unsupportedCalls() << " call(s) the recording could not capture\n";
    if (status != 0)
        return status;

    if (!png.empty())
    {
        if (!Oru::Replay::writePng(png, frame))
        {
            std::cerr << "replay: cannot write " << png << "\n";
            return kBadArguments;
        }
        std::cout << "frame written to " << png << "\n";
    }
    if (!compare.empty())
    {
        Oru::Replay::Image expected;
        if (!Oru::Replay::readPng(compare, expected))
        {
            std::cerr << "replay: cannot read " << compare << " as an 8-bit RGB or RGBA PNG\n";
            return kBadArguments;
        }
        const unsigned long long differing = Oru::Replay::differingPixels(expected, frame);
        std::cout << differing << " of " << (static_cast<unsigned long long>(frame.width) * frame.height)
                  << " pixels differ from " << compare << "\n";
        if (differing != 0)
            return 1;
    }
    return 0;
}
