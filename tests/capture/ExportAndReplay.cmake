# cmake -DEMULATOR=<runner> -DPROGRAM=<routed exe> [-DARGUMENTS="<a b>"] -DREPLAY=<oglreplay.exe>
#       -DWORK=<folder> -DFRAMES=<n> -DGENERATOR=<generator> [-DTOOLCHAIN=<file>] -DORU_BUILD=<build tree>
#       -P ExportAndReplay.cmake
# Captures a routed program through ORU_CAPTURE, exports the capture as C++,
# builds that program against the build tree and runs it: every one of its
# FRAMES presented frames must equal the program's.
cmake_minimum_required(VERSION 3.21)
file(REMOVE_RECURSE ${WORK})
file(MAKE_DIRECTORY ${WORK})

function(run what)
  execute_process(COMMAND ${ARGN} WORKING_DIRECTORY ${WORK}
    RESULT_VARIABLE result OUTPUT_VARIABLE output ERROR_VARIABLE errors)
  message("${what}:\n${output}${errors}")
  if(NOT result EQUAL 0)
    message(FATAL_ERROR "${what} exited with ${result}")
  endif()
  set(output "${output}" PARENT_SCOPE)
endfunction()

separate_arguments(arguments UNIX_COMMAND "${ARGUMENTS}")
set(ENV{ORU_CAPTURE} program.oglcap)
run("the program" ${EMULATOR} ${PROGRAM} ${arguments})
unset(ENV{ORU_CAPTURE})
run("the export" ${EMULATOR} ${REPLAY} program.oglcap --export exported)
set(toolchain "")
if(TOOLCHAIN)
  set(toolchain "-DCMAKE_TOOLCHAIN_FILE=${TOOLCHAIN}")
endif()
run("configuring the exported program" ${CMAKE_COMMAND} -S exported -B build -G ${GENERATOR} ${toolchain}
  -DCMAKE_BUILD_TYPE=Release -Doru_ogl_DIR=${ORU_BUILD})
run("building the exported program" ${CMAKE_COMMAND} --build build)
run("the exported program" ${EMULATOR} build/capture_replay.exe)
if(NOT output MATCHES "${FRAMES} frames \\(${FRAMES} compared, 0 differ from the capture\\), 0 skipped")
  message(FATAL_ERROR "every one of ${FRAMES} frames should equal the capture's")
endif()
