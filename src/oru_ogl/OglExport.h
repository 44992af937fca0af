#ifndef ORU_OGL_OGLEXPORT_H
#define ORU_OGL_OGLEXPORT_H

// ORU_OGL_API marks what oru_ogl exports: dllexport while the library itself
// is built, dllimport for its clients.
#if defined(ORU_OGL_STATIC)
#  define ORU_OGL_API
#elif defined(ORU_OGL_BUILDING)
#  define ORU_OGL_API __declspec(dllexport)
#else
#  define ORU_OGL_API __declspec(dllimport)
#endif

#if defined(_MSC_VER)
// Exported classes hold standard-library members and derive from oru_core's.
#  pragma warning(disable : 4251 4275)
#endif

#endif
