# Installation: DLLs and programs in bin/, import libraries in lib/, headers in
# include/ under their own paths (oru_core/..., oru_ogl/...), and the package
# configuration in lib/cmake/oru_ogl/ with the targets exported as oru::<name>.
# A consumer writes
#
#   find_package(oru_ogl CONFIG REQUIRED)
#   target_link_libraries(app PRIVATE oru::ogl)

include(GNUInstallDirs)
include(CMakePackageConfigHelpers)

set(ORU_PACKAGE_DIR ${CMAKE_INSTALL_LIBDIR}/cmake/oru_ogl)

# oru_install_library(<target> <export name> [HEADERS <dir>...])
# Installs a library of the package and exports it as oru::<export name>; each
# HEADERS directory is installed under include/ with its own name, headers only.
# The target names include/ itself as $<INSTALL_INTERFACE:include>.
# Every library of the package is one call of this, next to its add_library.
function(oru_install_library target export_name)
  cmake_parse_arguments(I "" "" "HEADERS" ${ARGN})
  set_target_properties(${target} PROPERTIES EXPORT_NAME ${export_name})
  install(TARGETS ${target} EXPORT oru_oglTargets
    RUNTIME DESTINATION ${CMAKE_INSTALL_BINDIR}
    LIBRARY DESTINATION ${CMAKE_INSTALL_LIBDIR}
    ARCHIVE DESTINATION ${CMAKE_INSTALL_LIBDIR})
  foreach(dir IN LISTS I_HEADERS)
    install(DIRECTORY ${dir} DESTINATION ${CMAKE_INSTALL_INCLUDEDIR}
      FILES_MATCHING PATTERN "*.h" PATTERN "*.inc")
  endforeach()
endfunction()

# The export set and the package files; called once, after every library.
function(oru_install_package)
  install(EXPORT oru_oglTargets NAMESPACE oru:: DESTINATION ${ORU_PACKAGE_DIR})
  set(ORU_MINGW_RUNTIME_DLL_NAMES "")
  foreach(dll IN LISTS ORU_MINGW_RUNTIME_DLLS)
    get_filename_component(name "${dll}" NAME)
    list(APPEND ORU_MINGW_RUNTIME_DLL_NAMES ${name})
  endforeach()
  configure_package_config_file(${PROJECT_SOURCE_DIR}/cmake/oru_oglConfig.cmake.in
    ${CMAKE_BINARY_DIR}/package/oru_oglConfig.cmake
    INSTALL_DESTINATION ${ORU_PACKAGE_DIR})
  # 0.x: a minor version may break compatibility.
  write_basic_package_version_file(${CMAKE_BINARY_DIR}/package/oru_oglConfigVersion.cmake
    COMPATIBILITY SameMinorVersion)
  install(FILES ${CMAKE_BINARY_DIR}/package/oru_oglConfig.cmake
                ${CMAKE_BINARY_DIR}/package/oru_oglConfigVersion.cmake
          DESTINATION ${ORU_PACKAGE_DIR})
  # MinGW's runtime beside the DLLs, so that the installed programs run on a
  # machine without MinGW; the package names them for oru_ogl_deploy().
  if(ORU_MINGW_RUNTIME_DLLS)
    install(FILES ${ORU_MINGW_RUNTIME_DLLS} DESTINATION ${CMAKE_INSTALL_BINDIR})
  endif()
  # oru_ogl_deploy(), and the toolchain files a consumer's cross build can use.
  install(FILES ${PROJECT_SOURCE_DIR}/cmake/OruDeploy.cmake
                ${PROJECT_SOURCE_DIR}/cmake/mingw-w64-x86_64-posix.cmake
                ${PROJECT_SOURCE_DIR}/cmake/clang-mingw-w64-x86_64.cmake
          DESTINATION ${ORU_PACKAGE_DIR})
endfunction()
