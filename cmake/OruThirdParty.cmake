# Header-only libraries the programs and the replay harness use: nlohmann's
# JSON (oglinfo), CLI11 (command lines) and stb's image reader and writer (PNG).
# Debian packages them as nlohmann-json3-dev, libcli11-dev and libstb-dev.
#
# A cross build must not put the build machine's whole include folder on the
# path: its C library headers would shadow MinGW's. Each library's own folder
# (nlohmann/, CLI/, stb/) is copied into third_party/include of the build tree,
# and only that folder is used, as a system include of the targets that need
# it. None of them is part of the installed headers.

set(ORU_THIRD_PARTY_INCLUDE ${CMAKE_BINARY_DIR}/third_party/include)

# oru_header_library(<folder> <header> <Debian package>)
function(oru_header_library folder header package)
  string(TOUPPER "ORU_${folder}_ROOT" root_variable)
  find_path(${root_variable} ${folder}/${header}
    PATHS /usr/include /usr/local/include
    NO_CMAKE_FIND_ROOT_PATH
    DOC "The folder that holds ${folder}/${header}")
  if(NOT ${root_variable})
    message(FATAL_ERROR "${folder}/${header} not found. Install ${package} "
      "(scripts/env.sh does), or set ${root_variable} to the folder that holds ${folder}/.")
  endif()
  file(COPY ${${root_variable}}/${folder} DESTINATION ${ORU_THIRD_PARTY_INCLUDE})
endfunction()

oru_header_library(nlohmann json.hpp nlohmann-json3-dev)
oru_header_library(CLI CLI.hpp libcli11-dev)
oru_header_library(stb stb_image_write.h libstb-dev)
oru_header_library(stb stb_image.h libstb-dev)

# oru_use_header_libraries(<target>): the copied folders, for the target's own
# sources only (so that nothing of them reaches an exported target).
function(oru_use_header_libraries target)
  target_include_directories(${target} SYSTEM PRIVATE ${ORU_THIRD_PARTY_INCLUDE})
endfunction()
