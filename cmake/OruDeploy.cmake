# oru_ogl_deploy(<target>)
#
# Copies every DLL the program <target> needs next to it after each build: the
# DLLs of the imported oru_ogl targets it links ($<TARGET_RUNTIME_DLLS>) and the
# runtime DLLs of the toolchain that built oru_ogl (MinGW's libstdc++,
# libgcc_s_seh and libwinpthread), listed in ORU_OGL_RUNTIME_DLLS. Windows
# looks for DLLs next to the program first, so the program then runs from its
# build folder on any machine, without PATH or WINEPATH changes.
#
# Comes with find_package(oru_ogl CONFIG), from an installed prefix or from a
# build tree.
function(oru_ogl_deploy target)
  if(NOT TARGET ${target})
    message(FATAL_ERROR "oru_ogl_deploy(${target}): no such target")
  endif()
  add_custom_command(TARGET ${target} POST_BUILD
    COMMAND ${CMAKE_COMMAND} -E copy_if_different
            $<TARGET_RUNTIME_DLLS:${target}> ${ORU_OGL_RUNTIME_DLLS} $<TARGET_FILE_DIR:${target}>
    COMMAND_EXPAND_LISTS
    VERBATIM)
endfunction()
