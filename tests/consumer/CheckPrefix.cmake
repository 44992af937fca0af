# cmake -DPREFIX=<install prefix> -DSOURCE_DIR=<dir> -DBUILD_DIR=<dir> -P CheckPrefix.cmake
# Checks an installed tree: the libraries, headers and package files are there,
# the build-only headers are not, every quoted #include of an installed header
# resolves inside the prefix, and no installed text file names one of the
# source or build tree: the tree stands on its own.
cmake_minimum_required(VERSION 3.21)

set(failures "")
macro(fail text)
  string(APPEND failures "  ${text}\n")
endmacro()

foreach(required
    bin/oru_ogl.dll bin/oru_core.dll
    include/oru_core/Exceptions.h
    include/oru_ogl/Version.h include/oru_ogl/TokenNames.inc include/oru_ogl/LibraryOGL.h
    include/oru_ogl/extensionator/Extensions.h include/oru_ogl/extensionator/EntryPoints.h
    include/oru_ogl/extensionator/GLCall.h include/oru_ogl/extensionator/OpenGLInterceptorOperations.inc
    include/oru_ogl/extensionator/windows/WglEntryPoints.h
    include/oru_ogl/ogl/Program.h
    lib/cmake/oru_ogl/oru_oglConfig.cmake lib/cmake/oru_ogl/oru_oglConfigVersion.cmake
    lib/cmake/oru_ogl/oru_oglTargets.cmake)
  if(NOT EXISTS "${PREFIX}/${required}")
    fail("missing ${required}")
  endif()
endforeach()
file(GLOB import_libraries "${PREFIX}/lib/*oru_ogl*" "${PREFIX}/lib/*oru_core*")
list(LENGTH import_libraries count)
if(count LESS 2)
  fail("lib/ lacks the import libraries (found: ${import_libraries})")
endif()

foreach(internal oru_ogl/extensionator/ExtensionCatalogueTables.h oru_ogl/testing)
  if(EXISTS "${PREFIX}/include/${internal}")
    fail("build-only include/${internal} is installed")
  endif()
endforeach()

file(GLOB_RECURSE headers "${PREFIX}/include/*")
foreach(header IN LISTS headers)
  file(STRINGS "${header}" includes REGEX "^[ \t]*#[ \t]*include[ \t]*\"")
  foreach(line IN LISTS includes)
    string(REGEX REPLACE "^[^\"]*\"([^\"]+)\".*$" "\\1" included "${line}")
    if(NOT EXISTS "${PREFIX}/include/${included}")
      file(RELATIVE_PATH name "${PREFIX}" "${header}")
      fail("${name} includes \"${included}\", which is not installed")
    endif()
  endforeach()
endforeach()

file(GLOB_RECURSE texts "${PREFIX}/include/*" "${PREFIX}/lib/cmake/*")
foreach(text IN LISTS texts)
  file(READ "${text}" content)
  foreach(path IN ITEMS "${SOURCE_DIR}" "${BUILD_DIR}")
    string(FIND "${content}" "${path}" at)
    if(NOT at EQUAL -1)
      file(RELATIVE_PATH name "${PREFIX}" "${text}")
      fail("${name} names ${path}")
    endif()
  endforeach()
endforeach()

if(failures)
  message(FATAL_ERROR "The installed tree ${PREFIX} is incomplete or not self-contained:\n${failures}")
endif()
message(STATUS "installed tree complete and self-contained: ${PREFIX}")
