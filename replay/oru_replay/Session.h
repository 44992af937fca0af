#ifndef ORU_REPLAY_SESSION_H
#define ORU_REPLAY_SESSION_H

// The replay program's side of the harness: what the recorded calls did to
// windows, contexts and frames, for the program's main to start and finish.

#include "oru_replay/Image.h"

namespace Oru
{
namespace Replay
{

/// Size of the windows made for recorded DCs.
/// @param width  client width in pixels
/// @param height client height in pixels
void setWindowSize(int width, int height);

/// The last frame presented through GLRekorderSwapBuffers; when the recording
/// presents none, the back buffer of the context current at the end. False
/// when there is neither.
/// @param frame receives the pixels
/// @return whether there was a frame
bool finalFrame(Image& frame);

/// @return how many frames the recording presented (GLRekorderSwapBuffers)
unsigned int presentedFrames();
/// @return how many recorded calls OpenGLRekorderUnsupported reported
unsigned int unsupportedCalls();

/// Releases the current context, deletes the replay's contexts and windows.
void shutdown();

} // namespace Replay
} // namespace Oru

#endif
