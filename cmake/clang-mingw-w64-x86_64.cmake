# Cross-compiles for Windows x86-64 with Clang, on MinGW-w64's headers and
# libraries and GCC's posix-thread C++ runtime (the same runtime DLLs as the
# GCC build), as Debian packages them: clang, g++-mingw-w64-x86-64-posix.
# The target, search roots and Wine as for GCC; the compilers are replaced below.
include(${CMAKE_CURRENT_LIST_DIR}/mingw-w64-x86_64-posix.cmake)

set(ORU_MINGW_SYSROOT /usr/${ORU_MINGW_TRIPLET})
# GCC's runtime folder, "12-posix" on Debian 12: the newest posix one.
file(GLOB ORU_MINGW_GCC_DIRS LIST_DIRECTORIES true /usr/lib/gcc/${ORU_MINGW_TRIPLET}/*-posix)
list(SORT ORU_MINGW_GCC_DIRS COMPARE NATURAL ORDER DESCENDING)
list(GET ORU_MINGW_GCC_DIRS 0 ORU_MINGW_GCC_DIR)
if(NOT IS_DIRECTORY "${ORU_MINGW_GCC_DIR}/include/c++")
  message(FATAL_ERROR "No posix MinGW-w64 GCC runtime in /usr/lib/gcc/${ORU_MINGW_TRIPLET}: "
    "install g++-mingw-w64-x86-64-posix")
endif()

set(CMAKE_C_COMPILER clang)
set(CMAKE_CXX_COMPILER clang++)
set(CMAKE_C_COMPILER_TARGET ${ORU_MINGW_TRIPLET})
set(CMAKE_CXX_COMPILER_TARGET ${ORU_MINGW_TRIPLET})
set(CMAKE_RC_COMPILER ${ORU_MINGW_TRIPLET}-windres)
set(CMAKE_SYSROOT ${ORU_MINGW_SYSROOT})

# Clang does not find a GCC installation under this sysroot by itself: name
# GCC's C++ headers (ahead of the C headers, as libstdc++ wants) and libraries,
# and link the thread library as GCC's posix specs do.
set(CMAKE_CXX_STANDARD_INCLUDE_DIRECTORIES
  ${ORU_MINGW_GCC_DIR}/include/c++
  ${ORU_MINGW_GCC_DIR}/include/c++/${ORU_MINGW_TRIPLET}
  ${ORU_MINGW_GCC_DIR}/include/c++/backward)
set(CMAKE_EXE_LINKER_FLAGS_INIT "-L${ORU_MINGW_GCC_DIR} -pthread")
set(CMAKE_SHARED_LINKER_FLAGS_INIT "-L${ORU_MINGW_GCC_DIR} -pthread")
set(CMAKE_MODULE_LINKER_FLAGS_INIT "-L${ORU_MINGW_GCC_DIR} -pthread")
# Where the runtime DLLs are (clang++ -print-file-name does not know).
set(ORU_MINGW_RUNTIME_DIRS ${ORU_MINGW_GCC_DIR} ${ORU_MINGW_SYSROOT}/lib)
