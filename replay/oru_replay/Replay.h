#ifndef ORU_REPLAY_REPLAY_H
#define ORU_REPLAY_REPLAY_H

// What a recording made by OpenGLRekorder and wglRekorder calls on, besides GL
// itself. The names are global and spelled as the recorded text spells them.

#include "oru_ogl/extensionator/GLTypes.h"

#include <istream>
#include <map>

/// A recorded float: the bit pattern as written by the recorder, turned back
/// into the very float. It converts to float for the GL parameters; the int
/// conversion serves the int arrays of recorded glTexParameterfv calls, where
/// the recorded text stores floats into ints (truncating them, as recorded)
/// and which would otherwise be narrowing list-initialisations.
struct RecordedFloat
{
    float value; ///< the float, bit for bit as recorded
    /// The float itself.
    operator float() const { return value; }
    /// The float truncated, as the recorded int arrays take it.
    operator int() const { return static_cast<int>(value); }
};

/// The float whose bit pattern the recorder wrote as an int.
/// @param bits the float's bits, as the recording spells them
/// @return the very float
RecordedFloat makeFloat(int bits);

/// A call that the recorder could not capture (pointer data without a recording
/// of its own): reported on the standard error stream and counted.
/// @param message the recorder's text naming the call
void OpenGLRekorderUnsupported(char const* message);

/// The recording's binary side file, opened by the replay program.
extern std::istream* pBinaryInputStream;

/// Recorded device contexts mapped to the replay's own, and the one that the
/// replayed wglCreateContext is to use.
extern std::map<HDC, HDC> hdc_map_;
extern HDC hDC_Ours;

/// The application's DC when recording began: the replay makes a window and a
/// context for it and makes them current, since the recording may start with
/// GL calls on a context that was already current.
/// @param recorded the application's DC as recorded
void addCurrentAppDC(HDC recorded);
/// Makes a window of the replay's size for a recorded DC, unless there is one.
/// @param recorded the DC as recorded
void GLRekorderCreateWindow(HDC recorded);
/// wglMakeCurrent on the replay's own DC and context.
/// @param recorded        the DC as recorded
/// @param recordedContext the context as recorded, null to release
/// @return what wglMakeCurrent returned
BOOL GLRekorderMakeCurrent(HDC recorded, HGLRC recordedContext);
/// Keeps the frame being presented (the replay's result), then presents it.
/// @param recorded the DC as recorded
/// @return what SwapBuffers returned
BOOL GLRekorderSwapBuffers(HDC recorded);

// The other recorded WGL calls name handles of the recording; the prelude of a
// recording routes them here, to the replay's own handles.
HGLRC oruReplayCreateContext(HDC ours);
HGLRC oruReplayCreateLayerContext(HDC recorded, int layerPlane);
BOOL oruReplayDeleteContext(HGLRC recorded);
BOOL oruReplayShareLists(HGLRC recorded1, HGLRC recorded2);
BOOL oruReplayCopyContext(unsigned long long recordedSource, unsigned long long recordedDestination, UINT mask);
BOOL oruReplaySwapLayerBuffers(HDC recorded, UINT planes);

/// One recording compiled into a replay program (oru_add_replay writes it).
struct OruReplayRecording
{
    char const* dataFile; ///< name of the binary file next to the program, the default of --data
    int width;            ///< default width of the replay's windows
    int height;           ///< default height of the replay's windows
    void (*calls)();      ///< the recorded calls
};
extern const OruReplayRecording oruReplayRecording;

#endif
