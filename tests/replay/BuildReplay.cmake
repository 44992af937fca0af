# cmake -DSOURCE=<this folder> -DBINARY=<build folder> -DGENERATOR=<generator>
#       -DTOOLCHAIN=<toolchain file> -DORU_BUILD=<project build tree> -DRECORDING=<recording, no suffix>
#       -P BuildReplay.cmake
# Configures and builds the replay program of a recording.
foreach(variable SOURCE BINARY GENERATOR ORU_BUILD RECORDING)
  if(NOT DEFINED ${variable})
    message(FATAL_ERROR "BuildReplay.cmake: ${variable} is not set")
  endif()
endforeach()
set(toolchain "")
if(TOOLCHAIN)
  set(toolchain "-DCMAKE_TOOLCHAIN_FILE=${TOOLCHAIN}")
endif()
execute_process(
  COMMAND ${CMAKE_COMMAND} -S ${SOURCE} -B ${BINARY} -G ${GENERATOR} ${toolchain} -DCMAKE_BUILD_TYPE=Release
          -Doru_ogl_DIR=${ORU_BUILD} -DORU_RECORDING=${RECORDING}
  RESULT_VARIABLE result)
if(NOT result EQUAL 0)
  message(FATAL_ERROR "configuring the replay program failed")
endif()
execute_process(COMMAND ${CMAKE_COMMAND} --build ${BINARY} RESULT_VARIABLE result)
if(NOT result EQUAL 0)
  message(FATAL_ERROR "building the replay program failed")
endif()
