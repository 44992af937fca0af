# cmake -DSOURCE_DIR=<dir> -DBUILD_DIR=<dir> -P NoBuildPaths.cmake
# Fails when a built program or DLL carries the source or build folder's path
# (a __FILE__, a baked default file name): the binaries must work, and say
# the same, wherever they were built.
cmake_minimum_required(VERSION 3.21)
file(GLOB binaries
  ${BUILD_DIR}/bin/*.exe ${BUILD_DIR}/bin/*.dll
  ${BUILD_DIR}/replay-e2e/build/*.exe
  ${BUILD_DIR}/consumer/build/*.exe ${BUILD_DIR}/consumer/replay/*.exe)
list(LENGTH binaries count)
if(count LESS 5)
  message(FATAL_ERROR "too few binaries to check (${count}): ${binaries}")
endif()
set(failures "")
foreach(folder IN ITEMS "${SOURCE_DIR}" "${BUILD_DIR}")
  string(REGEX REPLACE "([][+.*()^$?|\\\\])" "\\\\\\1" pattern "${folder}")
  foreach(binary IN LISTS binaries)
    file(STRINGS "${binary}" found REGEX "${pattern}")
    if(found)
      list(GET found 0 first)
      string(APPEND failures "  ${binary}: ${first}\n")
    endif()
  endforeach()
endforeach()
if(failures)
  message(FATAL_ERROR "binaries that name the build machine's folders:\n${failures}")
endif()
message(STATUS "${count} binaries name neither ${SOURCE_DIR} nor ${BUILD_DIR}")
