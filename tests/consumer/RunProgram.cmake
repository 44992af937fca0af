# cmake -DPROGRAM=<exe> [-DEMULATOR=<runner>] [-DARGS=<argument>] -DPAINTING=<text> -P RunProgram.cmake
# Runs the consumer example and fails unless it exits with 0, says that it
# painted the way PAINTING names, shows a caught ExceptionOGL naming
# main.cpp and a line, and finishes with "all steps passed".
cmake_minimum_required(VERSION 3.21)

execute_process(COMMAND ${EMULATOR} ${PROGRAM} ${ARGS}
  RESULT_VARIABLE status OUTPUT_VARIABLE output ERROR_VARIABLE errors)
message("${output}${errors}")
if(NOT status STREQUAL "0")
  message(FATAL_ERROR "${PROGRAM} exited with ${status}")
endif()
string(FIND "${output}" "${PAINTING}" at)
if(at EQUAL -1)
  message(FATAL_ERROR "${PROGRAM} did not print \"${PAINTING}\"")
endif()
if(NOT output MATCHES "caught ExceptionOGL: [^\n]*main\\.cpp\\([0-9]+\\): ")
  message(FATAL_ERROR "${PROGRAM} did not show an ExceptionOGL naming main.cpp and a line")
endif()
if(NOT output MATCHES "all steps passed\n$")
  message(FATAL_ERROR "${PROGRAM} did not finish with \"all steps passed\"")
endif()
