# Shared build settings of the project's targets.

# __FILE__ reads as a path relative to the source root (tests/FooTest.cpp), so
# that exceptions name short paths and no build machine's path ends up in a
# binary. oru_short_source_paths() narrows it for one target to its own root
# (ogl/Texture.cpp).
if(MSVC)
  add_compile_options(/W4 /permissive- /EHsc "/d1trimfile:${CMAKE_SOURCE_DIR}/")
else()
  add_compile_options(-Wall -Wextra "-fmacro-prefix-map=${CMAKE_SOURCE_DIR}/=")
endif()
add_compile_definitions(NOMINMAX WIN32_LEAN_AND_MEAN)

function(oru_short_source_paths target)
  foreach(root IN LISTS ARGN)
    if(MSVC)
      target_compile_options(${target} PRIVATE "/d1trimfile:${root}/")
    else()
      target_compile_options(${target} PRIVATE "-fmacro-prefix-map=${root}/=")
    endif()
  endforeach()
endfunction()

# MinGW's runtime DLLs next to the programs, so that they run under Wine (or
# on a Windows machine without MinGW) straight from the build tree.
if(MINGW)
  set(ORU_MINGW_RUNTIME_DLLS "")
  foreach(dll libstdc++-6.dll libgcc_s_seh-1.dll libwinpthread-1.dll)
    execute_process(COMMAND ${CMAKE_CXX_COMPILER} -print-file-name=${dll}
                    OUTPUT_VARIABLE dll_path OUTPUT_STRIP_TRAILING_WHITESPACE)
    if(IS_ABSOLUTE "${dll_path}" AND EXISTS "${dll_path}")
      file(COPY "${dll_path}" DESTINATION ${CMAKE_RUNTIME_OUTPUT_DIRECTORY})
      list(APPEND ORU_MINGW_RUNTIME_DLLS "${dll_path}")
    else()
      message(WARNING "MinGW runtime ${dll} not found; programs may not start outside a MinGW shell.")
    endif()
  endforeach()
endif()
