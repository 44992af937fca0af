# cmake -DEMULATOR=<runner> -DPROGRAM=<exe> [-DARGUMENTS="<a b>"] [-DCAPTURE_VARIABLE=ON]
#       -DREPLAY=<oglreplay.exe> -DWORK=<folder> -DFRAMES=<n> [-DDUMP_MATCH=<regex>]
#       [-DDIFFER_MATCH=<regex>] -P CaptureAndReplay.cmake
# Runs a program that captures itself into WORK/program.oglcap (named as its
# first argument, or with CAPTURE_VARIABLE through ORU_CAPTURE), then replays
# the capture: every one of its FRAMES presented frames must equal the
# program's, and the capture's text must match DUMP_MATCH. With DIFFER_MATCH
# the frames must differ instead, and the replay say why (matching it).
cmake_minimum_required(VERSION 3.21)
file(REMOVE_RECURSE ${WORK})
file(MAKE_DIRECTORY ${WORK})
separate_arguments(arguments UNIX_COMMAND "${ARGUMENTS}")
if(CAPTURE_VARIABLE)
  set(ENV{ORU_CAPTURE} program.oglcap)
else()
  list(PREPEND arguments program.oglcap)
endif()
execute_process(COMMAND ${EMULATOR} ${PROGRAM} ${arguments} WORKING_DIRECTORY ${WORK}
  RESULT_VARIABLE result OUTPUT_VARIABLE output ERROR_VARIABLE errors)
unset(ENV{ORU_CAPTURE})
message("${PROGRAM} ${arguments}:\n${output}${errors}")
if(NOT result EQUAL 0 OR NOT EXISTS ${WORK}/program.oglcap)
  message(FATAL_ERROR "the program exited with ${result} and left no capture")
endif()
execute_process(COMMAND ${EMULATOR} ${REPLAY} program.oglcap WORKING_DIRECTORY ${WORK}
  RESULT_VARIABLE result OUTPUT_VARIABLE output ERROR_VARIABLE errors)
message("oglreplay:\n${output}${errors}")
if(DIFFER_MATCH)
  if(NOT result EQUAL 1 OR NOT "${output}${errors}" MATCHES "${DIFFER_MATCH}")
    message(FATAL_ERROR "the replay exited with ${result}; its frames should differ, saying ${DIFFER_MATCH}")
  endif()
elseif(NOT result EQUAL 0 OR NOT output MATCHES "${FRAMES} frames \\(0 differ from the capture\\), 0 skipped")
  message(FATAL_ERROR "the replay exited with ${result}; every one of ${FRAMES} frames should equal the capture's")
endif()
if(DUMP_MATCH)
  execute_process(COMMAND ${EMULATOR} ${REPLAY} program.oglcap --dump WORKING_DIRECTORY ${WORK}
    RESULT_VARIABLE result OUTPUT_VARIABLE output)
  if(NOT result EQUAL 0 OR NOT output MATCHES "${DUMP_MATCH}")
    message(FATAL_ERROR "the capture's text does not match ${DUMP_MATCH}")
  endif()
endif()
