# oru_add_replay(<target> CODE <recorded code> DATA <binary file> [WIDTH <w>] [HEIGHT <h>])
#
# Makes a program that replays one recording of OpenGLRekorder and wglRekorder:
# the code file becomes the body of a function compiled against the replay
# harness (oru_replay, with main() from oru_replay_main). The DATA file is
# copied next to the program, where its --data option looks by default (only
# its name goes into the program: no build path); WIDTH x HEIGHT (256 x 256
# unless given) is the default size of the windows it makes for recorded device
# contexts. The DLLs the program needs are copied next to it (oru_ogl_deploy).
function(oru_add_replay target)
  cmake_parse_arguments(R "" "CODE;DATA;WIDTH;HEIGHT" "" ${ARGN})
  if(NOT R_CODE OR NOT R_DATA)
    message(FATAL_ERROR "oru_add_replay(${target}): CODE and DATA are required")
  endif()
  if(NOT R_WIDTH)
    set(R_WIDTH 256)
  endif()
  if(NOT R_HEIGHT)
    set(R_HEIGHT 256)
  endif()
  get_filename_component(ORU_REPLAY_CODE "${R_CODE}" ABSOLUTE)
  get_filename_component(data "${R_DATA}" ABSOLUTE)
  get_filename_component(ORU_REPLAY_DATA "${R_DATA}" NAME)
  set(ORU_REPLAY_TARGET ${target})
  set(ORU_REPLAY_WIDTH ${R_WIDTH})
  set(ORU_REPLAY_HEIGHT ${R_HEIGHT})
  set(unit ${CMAKE_CURRENT_BINARY_DIR}/${target}_recording.cpp)
  configure_file(${CMAKE_CURRENT_FUNCTION_LIST_DIR}/oru_replay/RecordingUnit.cpp.in ${unit} @ONLY)

  add_executable(${target} ${unit})
  if(TARGET oru::replay_main) # from an installed package
    target_link_libraries(${target} PRIVATE oru::replay_main)
  else()
    target_link_libraries(${target} PRIVATE oru_replay_main)
  endif()
  # A recording is one long function of straight-line calls: optimising it
  # takes long and gains nothing. Its text is not ours to warn about.
  if(MSVC)
    set_source_files_properties(${unit} PROPERTIES COMPILE_OPTIONS "/Od;/w;/bigobj")
  else()
    set_source_files_properties(${unit} PROPERTIES COMPILE_OPTIONS "-O0;-w")
  endif()
  # The recorded text is #included: rebuild when it changes.
  set_source_files_properties(${unit} PROPERTIES OBJECT_DEPENDS ${ORU_REPLAY_CODE})
  add_custom_command(TARGET ${target} POST_BUILD
    COMMAND ${CMAKE_COMMAND} -E copy_if_different ${data} $<TARGET_FILE_DIR:${target}>/${ORU_REPLAY_DATA}
    VERBATIM)
  oru_ogl_deploy(${target})
endfunction()

# oru_add_capture_replay(<target> <export directory>)
#
# Makes a program from the C++ that `oglreplay CAPTURE --export DIR` wrote:
# its .cpp files, compiled against the replay harness (main() from
# oru_capture_main). The export's data file is copied next to the program,
# where its --data option looks by default. The DLLs the program needs are
# copied next to it (oru_ogl_deploy).
function(oru_add_capture_replay target dir)
  get_filename_component(dir "${dir}" ABSOLUTE)
  file(GLOB sources CONFIGURE_DEPENDS ${dir}/*.cpp)
  file(GLOB data ${dir}/*.data)
  list(LENGTH data count)
  if(NOT sources OR NOT count EQUAL 1)
    message(FATAL_ERROR "oru_add_capture_replay(${target}): ${dir} holds no export of oglreplay")
  endif()
  get_filename_component(data_name "${data}" NAME)
  add_executable(${target} ${sources})
  if(TARGET oru::capture_main) # from an installed package
    target_link_libraries(${target} PRIVATE oru::capture_main)
  else()
    target_link_libraries(${target} PRIVATE oru_capture_main)
  endif()
  # Straight-line calls: optimising them takes long and gains nothing. The
  # harness's header, with windows.h under it, costs more than the calls of a
  # part: it is compiled once, lean, and shared by every part.
  if(MSVC)
    target_compile_options(${target} PRIVATE /Od /w /bigobj)
  else()
    target_compile_options(${target} PRIVATE -O0 -w)
  endif()
  target_compile_definitions(${target} PRIVATE WIN32_LEAN_AND_MEAN)
  target_precompile_headers(${target} PRIVATE <oru_replay/CapturedCalls.h>)
  add_custom_command(TARGET ${target} POST_BUILD
    COMMAND ${CMAKE_COMMAND} -E copy_if_different ${data} $<TARGET_FILE_DIR:${target}>/${data_name}
    VERBATIM)
  oru_ogl_deploy(${target})
endfunction()
