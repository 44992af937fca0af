# cmake -DPYTHON=<python> -DDIR=<folder of the export test> [-DEMULATOR=<runner>] -DPROGRAM=<exported program>
#       -P ReplayAlteredExport.cmake
# Changes one byte of the scene's texture in a copy of the export's data file
# and replays with that copy: the program must report differing frames and exit 1.
cmake_minimum_required(VERSION 3.21)
file(GLOB parts ${DIR}/scene/calls_*.cpp)
set(offset "")
foreach(part IN LISTS parts)
  file(STRINGS ${part} uploads REGEX "glTexImage2D\\(.*data\\([0-9]+\\)\\);")
  if(uploads AND offset STREQUAL "")
    list(GET uploads 0 upload)
    string(REGEX REPLACE ".*data\\(([0-9]+)\\).*" "\\1" offset "${upload}")
  endif()
endforeach()
if(offset STREQUAL "")
  message(FATAL_ERROR "the export uploads no texture from its data file")
endif()
# The scene skips 8 pixels of each row (GL_UNPACK_SKIP_PIXELS): byte 32 is the
# red of the first texel GL reads.
math(EXPR offset "${offset} + 32")
execute_process(COMMAND ${PYTHON} -c
  "import sys; d = bytearray(open(sys.argv[1], 'rb').read()); d[int(sys.argv[3])] ^= 0xFF; open(sys.argv[2], 'wb').write(d)"
  ${DIR}/scene/capture.data ${DIR}/altered.data ${offset} RESULT_VARIABLE status)
if(NOT status EQUAL 0)
  message(FATAL_ERROR "cannot write the altered data file")
endif()
execute_process(COMMAND ${EMULATOR} ${PROGRAM} --data ${DIR}/altered.data
  RESULT_VARIABLE status OUTPUT_VARIABLE output ERROR_VARIABLE errors)
message("${output}${errors}")
if(NOT status EQUAL 1 OR NOT "${errors}" MATCHES "frame 0 differs from the capture: [1-9][0-9]* of 16384 pixels")
  message(FATAL_ERROR "with a texture byte changed, the replay exited with ${status} and did not report frame 0 as differing")
endif()
