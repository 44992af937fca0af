#ifndef ORU_CORE_COREEXPORT_H
#define ORU_CORE_COREEXPORT_H

// ORU_CORE_API marks what oru_core exports: dllexport while the library itself
// is built, dllimport for its clients, nothing for a static build.
#if defined(ORU_CORE_STATIC)
#  define ORU_CORE_API
#elif defined(_WIN32)
#  if defined(ORU_CORE_BUILDING)
#    define ORU_CORE_API __declspec(dllexport)
#  else
#    define ORU_CORE_API __declspec(dllimport)
#  endif
#else
#  define ORU_CORE_API __attribute__((visibility("default")))
#endif

#endif
