#ifndef ORU_REPLAY_RECORDINGPRELUDE_H
#define ORU_REPLAY_RECORDINGPRELUDE_H

// Included before a recording's text, and nowhere else: after it, the GL
// functions beyond 1.1 and some WGL functions are macros.

#include "oru_replay/Replay.h"

#include <iostream>
#include <map>
#include <vector>

// Every token name the recorder writes, and the GL functions beyond 1.1 bound
// to the entry points that the replay loads for each context.
#include "oru_ogl/replay/ReplayGL.h"

// Recorded context handles are the recording machine's; these map them.
#define wglCreateContext oruReplayCreateContext
#define wglCreateLayerContext oruReplayCreateLayerContext
#define wglDeleteContext oruReplayDeleteContext
#define wglShareLists oruReplayShareLists
#define wglCopyContext oruReplayCopyContext
#define wglSwapLayerBuffers oruReplaySwapLayerBuffers

#endif
