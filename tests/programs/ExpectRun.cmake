# cmake [-DEMULATOR=<runner>] -DPROGRAM=<exe> [-DARGUMENTS="<a b c>"] -DEXIT=<status> -DMATCH=<regex> -P ExpectRun.cmake
# Runs a program and fails unless it exits with EXIT and its output (standard
# output and error together) matches MATCH.
cmake_minimum_required(VERSION 3.21)
separate_arguments(arguments UNIX_COMMAND "${ARGUMENTS}")
execute_process(COMMAND ${EMULATOR} ${PROGRAM} ${arguments}
  RESULT_VARIABLE status OUTPUT_VARIABLE output ERROR_VARIABLE errors)
message("${output}${errors}")
if(NOT status STREQUAL "${EXIT}")
  message(FATAL_ERROR "${PROGRAM} ${ARGUMENTS} exited with ${status}, not ${EXIT}")
endif()
if(NOT "${output}${errors}" MATCHES "${MATCH}")
  message(FATAL_ERROR "the output of ${PROGRAM} ${ARGUMENTS} does not match ${MATCH}")
endif()
