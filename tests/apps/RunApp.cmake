# cmake -DEMULATOR=<wine or empty> -DPLAIN=<exe> -DROUTED=<exe> -DWORK=<dir> [-DTRACE=<file> ...]
#       [-DUNTRACEABLE=ON] -P RunApp.cmake
# Runs both builds of a program in WORK with --frames 3 --print-frames; they
# must print the same frame lines, all different (the frames are animated).
# With TRACE (a file in WORK), the routed build runs with ORU_TRACE=TRACE and the
# trace must have, for each of CALLS ("|" between them), a line of SOURCE with it:
# "tests/apps/x.cpp:<line>: <call>...", and no line with UNTRACED.
# With UNTRACEABLE, TRACE cannot be written: the routed build must say so once
# on its standard error and draw the same frames all the same.
cmake_minimum_required(VERSION 3.21)
set(frames 3)

# Runs a build; its frame lines into <var>, its standard error into <var>_errors.
function(run_app program var)
  execute_process(COMMAND ${EMULATOR} ${program} --frames ${frames} --print-frames WORKING_DIRECTORY ${WORK}
    RESULT_VARIABLE status OUTPUT_VARIABLE output ERROR_VARIABLE errors)
  if(NOT status EQUAL 0)
    message(FATAL_ERROR "${program} exited with ${status}:\n${output}\n${errors}")
  endif()
  string(REGEX MATCHALL "frame [0-9]+ [0-9]+x[0-9]+ [0-9a-f]+" lines "${output}")
  list(LENGTH lines count)
  if(count LESS frames)
    message(FATAL_ERROR "${program} printed ${count} frame lines, expected at least ${frames}:\n${output}")
  endif()
  # Each frame differs from the others (they are animated): a blank or frozen
  # picture does not pass for a match.
  string(REGEX REPLACE "frame [0-9]+ [0-9]+x[0-9]+ " "" checksums "${lines}")
  list(REMOVE_DUPLICATES checksums)
  list(LENGTH checksums distinct)
  if(NOT distinct EQUAL count)
    message(FATAL_ERROR "${program} drew frames that are alike:\n${output}")
  endif()
  set(${var} "${lines}" PARENT_SCOPE)
  set(${var}_errors "${errors}" PARENT_SCOPE)
endfunction()

run_app(${PLAIN} plain)
if(TRACE)
  file(REMOVE ${WORK}/${TRACE})
  set(ENV{ORU_TRACE} ${TRACE})
endif()
run_app(${ROUTED} routed)
if(NOT plain STREQUAL routed)
  string(REPLACE ";" "\n" plain "${plain}")
  string(REPLACE ";" "\n" routed "${routed}")
  message(FATAL_ERROR "the routed build drew other frames.\nplain:\n${plain}\nrouted:\n${routed}")
endif()
list(GET plain 0 first)
message(STATUS "the same frames, plain and routed (${first}, ...)")

if(UNTRACEABLE)
  string(REGEX MATCHALL "cannot write the trace file" said "${routed_errors}")
  list(LENGTH said times)
  if(NOT times EQUAL 1 OR EXISTS ${WORK}/${TRACE})
    message(FATAL_ERROR "expected one message about the trace file and no file, got ${times}:\n${routed_errors}")
  endif()
elseif(TRACE)
  if(NOT EXISTS ${WORK}/${TRACE})
    message(FATAL_ERROR "no trace written to ${WORK}/${TRACE}")
  endif()
  file(READ ${WORK}/${TRACE} trace)
  string(REGEX REPLACE "([][+.*()^$?|\\\\])" "\\\\\\1" source "${SOURCE}")
  string(REPLACE "|" ";" calls "${CALLS}")
  foreach(expected IN LISTS calls)
    string(REGEX REPLACE "([][+.*()^$?|\\\\])" "\\\\\\1" call "${expected}")
    if(NOT trace MATCHES "(^|\n)${source}:[0-9]+: ${call}")
      message(FATAL_ERROR "the trace ${TRACE} has no line of ${SOURCE} with ${expected}")
    endif()
  endforeach()
  if(UNTRACED)
    string(FIND "${trace}" ": ${UNTRACED}" found)
    if(NOT found EQUAL -1)
      message(FATAL_ERROR "the trace ${TRACE} has ${UNTRACED}, which the layer does not know")
    endif()
  endif()
  string(REGEX MATCHALL "\n" lines "${trace}")
  list(LENGTH lines count)
  message(STATUS "${count} calls traced, the program's own among them")
endif()
