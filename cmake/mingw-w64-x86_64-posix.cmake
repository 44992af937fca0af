# Cross-compiles for Windows x86-64 with MinGW-w64, posix thread model
# (the win32 model lacks std::mutex, which GoogleTest needs).
set(CMAKE_SYSTEM_NAME Windows)
set(CMAKE_SYSTEM_PROCESSOR x86_64)

set(ORU_MINGW_TRIPLET x86_64-w64-mingw32)
set(CMAKE_C_COMPILER   ${ORU_MINGW_TRIPLET}-gcc-posix)
set(CMAKE_CXX_COMPILER ${ORU_MINGW_TRIPLET}-g++-posix)
set(CMAKE_RC_COMPILER  ${ORU_MINGW_TRIPLET}-windres)

set(CMAKE_FIND_ROOT_PATH /usr/${ORU_MINGW_TRIPLET})
# Prefixes named in CMAKE_PREFIX_PATH (an installed oru_ogl, say) hold Windows
# packages too: as roots, they are searched as they are, not under the MinGW root.
list(APPEND CMAKE_FIND_ROOT_PATH ${CMAKE_PREFIX_PATH})
set(CMAKE_FIND_ROOT_PATH_MODE_PROGRAM NEVER)
set(CMAKE_FIND_ROOT_PATH_MODE_LIBRARY ONLY)
set(CMAKE_FIND_ROOT_PATH_MODE_INCLUDE ONLY)
set(CMAKE_FIND_ROOT_PATH_MODE_PACKAGE ONLY)

# Test programs and tools run under Wine on the build machine.
find_program(ORU_WINE64 NAMES wine64 PATHS /usr/lib/wine /usr/lib/wine64 NO_CMAKE_FIND_ROOT_PATH)
if(ORU_WINE64)
  set(CMAKE_CROSSCOMPILING_EMULATOR ${ORU_WINE64})
endif()
