// The line each test program prints before presenting a frame, with
// --print-frames: "frame <n> <width>x<height> <checksum>", the checksum a
// 64-bit FNV-1a of the back buffer read as RGBA bytes (rows packed to 4 bytes).
// Two builds of a program that draw the same frames print the same lines.
#ifndef FRAME_CHECKSUM_H
#define FRAME_CHECKSUM_H

#include <windows.h>
#include <GL/gl.h>

#include <cstdio>
#include <vector>

static unsigned long long frameChecksum(int width, int height)
{
    std::vector<unsigned char> pixels(static_cast<size_t>(width) * height * 4);
    glPixelStorei(GL_PACK_ALIGNMENT, 4);
    glReadBuffer(GL_BACK);
    glReadPixels(0, 0, width, height, GL_RGBA, GL_UNSIGNED_BYTE, pixels.data());
    unsigned long long hash = 14695981039346656037ull;
    for (unsigned char byte : pixels)
    {
        hash ^= byte;
        hash *= 1099511628211ull;
    }
    return hash;
}

static void printFrameLine(int frame, int width, int height)
{
    std::printf("frame %d %dx%d %016llx\n", frame, width, height, frameChecksum(width, height));
    std::fflush(stdout);
}

#endif
