// main() of a replay program: runs the recorded calls of the program's one
// recording (see oru_add_replay), then saves and checks the frame they drew.
//
//   <replay> [--data FILE] [--size WxH] [--png FILE] [--compare PNG]
//
// Exit status: 0 when replayed (and equal to the --compare image), 1 when the
// frame differs from it, 2 when the replay could not run.
#include "oru_replay/Replay.h"
#include "oru_replay/Session.h"

#include <cstdio>
#include <cstring>
#include <exception>
#include <fstream>
#include <iostream>
#include <string>

namespace
{

int usage(char const* program)
{
    std::cerr << "usage: " << program << " [--data FILE] [--size WxH] [--png FILE] [--compare PNG]\n";
    return 2;
}

} // namespace

int main(int argc, char** argv)
{
    std::string dataFile = oruReplayRecording.dataFile;
    int width = oruReplayRecording.width;
    int height = oruReplayRecording.height;
    std::string png, compare;
    for (int k = 1; k < argc; ++k)
    {
        const std::string option = argv[k];
        if (k + 1 == argc)
            return usage(argv[0]);
        const char* value = argv[++k];
        if (option == "--data")
            dataFile = value;
        else if (option == "--size")
        {
            if (std::sscanf(value, "%dx%d", &width, &height) != 2 || width <= 0 || height <= 0)
                return usage(argv[0]);
        }
        else if (option == "--png")
            png = value;
        else if (option == "--compare")
            compare = value;
        else
            return usage(argv[0]);
    }

    std::ifstream data(dataFile, std::ios::binary);
    if (!data)
    {
        std::cerr << "replay: cannot open the recording's data file " << dataFile << "\n";
        return 2;
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
            status = 2;
        }
    }
    catch (std::exception const& e)
    {
        std::cerr << "replay: " << e.what() << "\n";
        status = 2;
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
            return 2;
        }
        std::cout << "frame written to " << png << "\n";
    }
    if (!compare.empty())
    {
        Oru::Replay::Image expected;
        if (!Oru::Replay::readPng(compare, expected))
        {
            std::cerr << "replay: cannot read " << compare << " (a PNG as the replay writes them)\n";
            return 2;
        }
        const unsigned long long differing = Oru::Replay::differingPixels(expected, frame);
        std::cout << differing << " of " << (static_cast<unsigned long long>(frame.width) * frame.height)
                  << " pixels differ from " << compare << "\n";
        if (differing != 0)
            return 1;
    }
    return 0;
}
