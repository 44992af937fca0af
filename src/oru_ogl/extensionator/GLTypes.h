#ifndef ORU_OGL_EXTENSIONATOR_GLTYPES_H
#define ORU_OGL_EXTENSIONATOR_GLTYPES_H

// The OpenGL and WGL types of the entry points: OpenGL 1.1 from the system's
// gl.h, the later ones from glext.h and wglext.h where the toolchain has them
// (MinGW does), else defined here the way those headers define them, guarded by
// the same macros so that either header may still be included afterwards.

#include <windows.h>

#include <GL/gl.h>

#include <cstddef>

#if defined(__has_include)
#  if __has_include(<GL/glext.h>)
#    include <GL/glext.h>
#  endif
#  if __has_include(<GL/wglext.h>)
#    include <GL/wglext.h>
#  endif
#endif

#ifndef GL_VERSION_1_5
typedef std::ptrdiff_t GLintptr;
typedef std::ptrdiff_t GLsizeiptr;
#endif
#ifndef GL_VERSION_2_0
typedef char GLchar;
#endif
#ifndef GL_ARB_vertex_buffer_object
typedef std::ptrdiff_t GLintptrARB;
typedef std::ptrdiff_t GLsizeiptrARB;
#endif
#ifndef GL_ARB_shader_objects
typedef char GLcharARB;
typedef unsigned int GLhandleARB;
#endif
#ifndef GL_NV_half_float
typedef unsigned short GLhalfNV;
#endif

#ifndef WGL_ARB_pbuffer
DECLARE_HANDLE(HPBUFFERARB);
#endif
#ifndef WGL_EXT_pbuffer
DECLARE_HANDLE(HPBUFFEREXT);
#endif
#ifndef WGL_NV_gpu_affinity
DECLARE_HANDLE(HGPUNV);
typedef struct _GPU_DEVICE
{
    DWORD cb;
    CHAR DeviceName[32];
    CHAR DeviceString[128];
    DWORD Flags;
    RECT rcVirtualScreen;
} GPU_DEVICE, *PGPU_DEVICE;
#endif

#endif
