# Shared build settings of the project's targets.

# __FILE__ reads as a path relative to the source root (tests/FooTest.cpp), so
# that exceptions name short paths and no build machine's path ends up in a
# binary. oru_short_source_paths() narrows it for one target to its own root
# (ogl/Texture.cpp).
# The options are for the compilers only: the resource compiler takes none.
set(ORU_COMPILERS "$<COMPILE_LANGUAGE:C,CXX>")
if(MSVC)
  add_compile_options("$<${ORU_COMPILERS}:/W4;/permissive-;/EHsc;/d1trimfile:${CMAKE_SOURCE_DIR}/>")
else()
  add_compile_options("$<${ORU_COMPILERS}:-Wall;-Wextra;-fmacro-prefix-map=${CMAKE_SOURCE_DIR}/=>")
endif()
add_compile_definitions(NOMINMAX WIN32_LEAN_AND_MEAN)

# CI builds with a second compiler and takes any warning of it as a failure.
option(ORU_WARNINGS_AS_ERRORS "Treat compiler warnings as errors" OFF)
if(ORU_WARNINGS_AS_ERRORS)
  add_compile_options("$<${ORU_COMPILERS}:$<IF:$<BOOL:${MSVC}>,/WX,-Werror>>")
endif()

function(oru_short_source_paths target)
  foreach(root IN LISTS ARGN)
    if(MSVC)
      target_compile_options(${target} PRIVATE "$<${ORU_COMPILERS}:/d1trimfile:${root}/>")
    else()
      target_compile_options(${target} PRIVATE "$<${ORU_COMPILERS}:-fmacro-prefix-map=${root}/=>")
    endif()
  endforeach()
endfunction()

# MinGW's runtime DLLs next to the programs, so that they run under Wine (or
# on a Windows machine without MinGW) straight from the build tree. GCC names
# them with -print-file-name; a toolchain whose compiler cannot (Clang with
# GCC's runtime) lists their folders in ORU_MINGW_RUNTIME_DIRS.
# ORU_MINGW_RUNTIME_DLLS: their paths; the package lists them for oru_ogl_deploy().
if(MINGW)
  set(ORU_MINGW_RUNTIME_DLLS "")
  foreach(dll libstdc++-6.dll libgcc_s_seh-1.dll libwinpthread-1.dll)
    if(ORU_MINGW_RUNTIME_DIRS)
      find_file(dll_path ${dll} PATHS ${ORU_MINGW_RUNTIME_DIRS} NO_DEFAULT_PATH NO_CMAKE_FIND_ROOT_PATH NO_CACHE)
    else()
      execute_process(COMMAND ${CMAKE_CXX_COMPILER} -print-file-name=${dll}
                      OUTPUT_VARIABLE dll_path OUTPUT_STRIP_TRAILING_WHITESPACE)
    endif()
    if(IS_ABSOLUTE "${dll_path}" AND EXISTS "${dll_path}")
      file(COPY "${dll_path}" DESTINATION ${CMAKE_RUNTIME_OUTPUT_DIRECTORY})
      list(APPEND ORU_MINGW_RUNTIME_DLLS "${dll_path}")
    else()
      message(WARNING "MinGW runtime ${dll} not found; programs may not start outside a MinGW shell.")
    endif()
    unset(dll_path)
  endforeach()
endif()

# oru_version_resource(<target> <description>)
# Gives a DLL or program a version resource with the project's version as file
# and product version, and the description as FileDescription.
function(oru_version_resource target description)
  get_target_property(type ${target} TYPE)
  if(type STREQUAL "EXECUTABLE")
    set(ORU_RC_FILETYPE VFT_APP)
    set(suffix ${CMAKE_EXECUTABLE_SUFFIX})
  else()
    set(ORU_RC_FILETYPE VFT_DLL)
    set(suffix ${CMAKE_SHARED_LIBRARY_SUFFIX})
  endif()
  get_target_property(prefix ${target} PREFIX)
  if(NOT prefix)
    set(prefix "")
  endif()
  get_target_property(name ${target} OUTPUT_NAME)
  if(NOT name)
    set(name ${target})
  endif()
  set(ORU_RC_NAME ${name})
  set(ORU_RC_FILENAME ${prefix}${name}${suffix})
  set(ORU_RC_DESCRIPTION "${description}")
  set(rc ${CMAKE_CURRENT_BINARY_DIR}/${target}_version.rc)
  configure_file(${PROJECT_SOURCE_DIR}/cmake/VersionInfo.rc.in ${rc} @ONLY)
  target_sources(${target} PRIVATE ${rc})
endfunction()
