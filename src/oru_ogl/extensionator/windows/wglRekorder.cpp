#include "oru_ogl/extensionator/windows/wglRekorder.h"

#include "oru_ogl/Enforce.h"
#include "oru_ogl/extensionator/CallText.h"

// Each recorded operation writes its statements, then the line end that the GL
// recorder writes ("\t\t// file, line n" with line comments), then forwards.
// The operations without a recording throw before anything is written or
// called: a replay that silently lacked them would draw something else.

namespace Oru
{
namespace OGL
{

using detail::CallText;

wglRekorder::wglRekorder() : outputStream_(nullptr), binaryOutputStream_(nullptr), lineComments_(false) {}

wglRekorder::wglRekorder(std::ostream& code, std::ostream& data, HDC appDC, wglInterceptor* next,
                         bool lineComments)
    : wglInterceptorDecorator(next), outputStream_(&code), binaryOutputStream_(&data), lineComments_(lineComments)
{
    // The replay stands in a window and context of its own for the application's
    // DC, whose context may already be current when recording starts.
    CallText t(*outputStream_);
    t.put("addCurrentAppDC((HDC)0x");
    t.handleDigits(appDC);
    t.put(");\n");
    t.send();
}

wglRekorder::~wglRekorder() = default;

// The context handles are written as the stream writes pointers, without a cast.
BOOL wglRekorder::wcgmCopyContext(const char* file, unsigned int line, HGLRC hglrcSrc, HGLRC hglrcDst, UINT mask)
{
    CallText t(*outputStream_);
    t.put("wglCopyContext(");
    t.address(hglrcSrc);
    t.put(", ");
    t.address(hglrcDst);
    t.put(", ");
    t.unsignedNumber(mask);
    t.put(");");
    send(t, file, line);
    return pInterceptor_->wcgmCopyContext(file, line, hglrcSrc, hglrcDst, mask);
}

// The replay makes a window for the recorded DC and creates the context there.
HGLRC wglRekorder::wcgmCreateContext(const char* file, unsigned int line, HDC hdc)
{
    CallText t(*outputStream_);
    t.put("GLRekorderCreateWindow((HDC)0x");
    t.handleDigits(hdc);
    t.put(");\nstd::map<HDC, HDC>::iterator iter = hdc_map_.find((HDC)0x");
    t.handleDigits(hdc);
    t.put(");\n"
          "if (iter == hdc_map_.end())\n"
          "{\n"
          "    std::cerr << \"Missing HDC in hdc_map_!\\n\";\n"
          "}\n"
          "hDC_Ours = iter->second;\n"
          "wglCreateContext(hDC_Ours);");
    send(t, file, line);
    return pInterceptor_->wcgmCreateContext(file, line, hdc);
}

HGLRC wglRekorder::wcgmCreateLayerContext(const char* file, unsigned int line, HDC hdc, int iLayerPlane)
{
    recordWithNumber(file, line, "wglCreateLayerContext((HDC)0x", hdc, iLayerPlane);
    return pInterceptor_->wcgmCreateLayerContext(file, line, hdc, iLayerPlane);
}

BOOL wglRekorder::wcgmDeleteContext(const char* file, unsigned int line, HGLRC hglrc)
{
    record(file, line, "wglDeleteContext((HGLRC)0x", hglrc, ");");
    return pInterceptor_->wcgmDeleteContext(file, line, hglrc);
}

HGLRC wglRekorder::wcgmGetCurrentContext(const char* file, unsigned int line)
{
    record(file, line, "wglGetCurrentContext();");
    return pInterceptor_->wcgmGetCurrentContext(file, line);
}

HDC wglRekorder::wcgmGetCurrentDC(const char* file, unsigned int line)
{
    record(file, line, "wglGetCurrentDC();");
    return pInterceptor_->wcgmGetCurrentDC(file, line);
}

// An address found at recording time means nothing to the replay.
PROC wglRekorder::wcgmGetProcAddress(const char*, unsigned int, LPCSTR)
{
    ORU_VERIFY(!"Missing code to record this wgl function!");
    return nullptr;
}

BOOL wglRekorder::wcgmMakeCurrent(const char* file, unsigned int line, HDC hdc, HGLRC hglrc)
{
    record(file, line, "GLRekorderMakeCurrent((HDC)0x", hdc, ", (HGLRC)0x", hglrc);
    return pInterceptor_->wcgmMakeCurrent(file, line, hdc, hglrc);
}

BOOL wglRekorder::wcgmShareLists(const char* file, unsigned int line, HGLRC hglrc1, HGLRC hglrc2)
{
    record(file, line, "wglShareLists((HGLRC)0x", hglrc1, ", (HGLRC)0x", hglrc2);
    return pInterceptor_->wcgmShareLists(file, line, hglrc1, hglrc2);
}

BOOL wglRekorder::wcgmUseFontBitmapsA(const char*, unsigned int, HDC, DWORD, DWORD, DWORD)
{
    ORU_VERIFY(!"Missing code to record this wgl function!");
    return FALSE;
}

BOOL wglRekorder::wcgmUseFontBitmapsW(const char*, unsigned int, HDC, DWORD, DWORD, DWORD)
{
    ORU_VERIFY(!"Missing code to record this wgl function!");
    return FALSE;
}

BOOL wglRekorder::wcgmSwapBuffers(const char* file, unsigned int line, HDC hdc)
{
    record(file, line, "GLRekorderSwapBuffers((HDC)0x", hdc, ");");
    return pInterceptor_->wcgmSwapBuffers(file, line, hdc);
}

BOOL wglRekorder::wcgmUseFontOutlinesA(const char*, unsigned int, HDC, DWORD, DWORD, DWORD, FLOAT, FLOAT, int,
                                       LPGLYPHMETRICSFLOAT)
{
    ORU_VERIFY(!"Missing code to record this wgl function!");
    return FALSE;
}

BOOL wglRekorder::wcgmUseFontOutlinesW(const char*, unsigned int, HDC, DWORD, DWORD, DWORD, FLOAT, FLOAT, int,
                                       LPGLYPHMETRICSFLOAT)
{
    ORU_VERIFY(!"Missing code to record this wgl function!");
    return FALSE;
}

// Layer planes and their palettes: none of the drivers the layer meets has them.
BOOL wglRekorder::wcgmDescribeLayerPlane(const char*, unsigned int, HDC, int, int, UINT, LPLAYERPLANEDESCRIPTOR)
{
    ORU_VERIFY(!"Missing code to record this wgl function!");
    return FALSE;
}

// A layer plane's palette belongs to the recording machine's display.
int wglRekorder::wcgmSetLayerPaletteEntries(const char*, unsigned int, HDC, int, int, int, const COLORREF*)
{
    ORU_VERIFY(!"Missing code to record this wgl function!");
    return 0;
}

// What was read at recording time could not be handed to the replay.
int wglRekorder::wcgmGetLayerPaletteEntries(const char*, unsigned int, HDC, int, int, int, COLORREF*)
{
    ORU_VERIFY(!"Missing code to record this wgl function!");
    return 0;
}

BOOL wglRekorder::wcgmRealizeLayerPalette(const char*, unsigned int, HDC, int, BOOL)
{
    ORU_VERIFY(!"Missing code to record this wgl function!");
    return FALSE;
}

BOOL wglRekorder::wcgmSwapLayerBuffers(const char* file, unsigned int line, HDC hdc, UINT fuPlanes)
{
    recordWithNumber(file, line, "wglSwapLayerBuffers((HDC)0x", hdc, fuPlanes);
    return pInterceptor_->wcgmSwapLayerBuffers(file, line, hdc, fuPlanes);
}

DWORD wglRekorder::wcgmSwapMultipleBuffers(const char*, unsigned int, UINT, const WGLSWAP*)
{
    ORU_VERIFY(!"Missing code to record this wgl function!");
    return 0;
}

// ---------------------------------------------------------------------------
// Writing one statement

void wglRekorder::send(CallText& t, char const* file, unsigned int line) const
{
    t.lineEnd(lineComments_, file, line);
    t.send();
}

void wglRekorder::record(char const* file, unsigned int line, char const* text) const
{
    CallText t(*outputStream_);
    t.cString(text);
    send(t, file, line);
}

void wglRekorder::record(char const* file, unsigned int line, char const* head, void const* handle,
                         char const* tail) const
{
    CallText t(*outputStream_);
    t.cString(head);
    t.handleDigits(handle);
    t.cString(tail);
    send(t, file, line);
}

void wglRekorder::record(char const* file, unsigned int line, char const* head, void const* first,
                         char const* middle, void const* second) const
{
    CallText t(*outputStream_);
    t.cString(head);
    t.handleDigits(first);
    t.cString(middle);
    t.handleDigits(second);
    t.put(");");
    send(t, file, line);
}

void wglRekorder::recordWithNumber(char const* file, unsigned int line, char const* head, void const* handle,
                                   long long number) const
{
    CallText t(*outputStream_);
    t.cString(head);
    t.handleDigits(handle);
    t.put(", ");
    t.signedNumber(number);
    t.put(");");
    send(t, file, line);
}

} // namespace OGL
} // namespace Oru
