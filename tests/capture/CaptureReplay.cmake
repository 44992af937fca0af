# cmake -DEMULATOR=<runner> -DSCENE=<capture_scene.exe> -DREPLAY=<oglreplay.exe>
#       -DPYTHON=<python3> -DALTER=<alter_capture.py> -DWORK=<folder> -P CaptureReplay.cmake
# Captures the scene, replays it (every frame equal), prints it as text, and
# checks that a spoilt capture is noticed: an altered texture byte makes a
# frame differ; a cut-off file and a newer format are refused with the byte
# offset, the call index, or the version. Replayed on a 1.5 driver, the GLSL
# functions it lacks are named once each and their calls skipped.
cmake_minimum_required(VERSION 3.21)
file(REMOVE_RECURSE ${WORK})
file(MAKE_DIRECTORY ${WORK})

function(expect status match)
  execute_process(COMMAND ${EMULATOR} ${ARGN} WORKING_DIRECTORY ${WORK}
    RESULT_VARIABLE result OUTPUT_VARIABLE output ERROR_VARIABLE errors)
  message("${ARGN}:\n${output}${errors}")
  if(NOT result STREQUAL "${status}")
    message(FATAL_ERROR "exited with ${result}, not ${status}")
  endif()
  if(NOT "${output}${errors}" MATCHES "${match}")
    message(FATAL_ERROR "the output does not match ${match}")
  endif()
endfunction()

function(spoil how)
  execute_process(COMMAND ${PYTHON} ${ALTER} ${WORK}/scene.oglcap ${WORK}/${how}.oglcap ${how}
    RESULT_VARIABLE result)
  if(NOT result EQUAL 0)
    message(FATAL_ERROR "could not spoil the capture (${how})")
  endif()
endfunction()

expect(0 "captured [0-9]+ calls, 4 frames" ${SCENE} scene.oglcap --frames 4)
expect(0 "replayed [0-9]+ calls, 4 frames \\(0 differ from the capture\\), 0 skipped, 0 GL errors"
  ${REPLAY} scene.oglcap --png 3 frame3.png)
if(NOT EXISTS ${WORK}/frame3.png)
  message(FATAL_ERROR "no frame3.png")
endif()
expect(0 "glGetUniformLocation\\([0-9]+, \"tint\"\\) = .*glTexImage2D\\(GL_TEXTURE_2D, 0, 6408, 16, 16, 0, GL_RGBA, GL_UNSIGNED_BYTE, <2016 bytes>\\).*-- client vertex array: 2 x GL_FLOAT.*-- frame 3 128x128 checksum"
  ${REPLAY} scene.oglcap --dump)

spoil(texture)
expect(1 "4 frames \\(4 differ from the capture\\).*frame 0 \\(before call [0-9]+\\) differs from the capture" ${REPLAY} texture.oglcap)
spoil(truncate)
expect(3 "capture truncated: the file ends at byte [0-9]+, inside the (call|record) at byte offset [0-9]+ \\(call index [0-9]+\\)"
  ${REPLAY} truncate.oglcap)
spoil(version)
expect(3 "format version 99, newer than the versions this reader knows \\(up to 1\\)" ${REPLAY} version.oglcap --dump)

set(driver "$ENV{MESA_GL_VERSION_OVERRIDE}")
set(ENV{MESA_GL_VERSION_OVERRIDE} 1.5)
expect(1 "[1-9][0-9]* skipped.*call [0-9]+ glCreateProgram: this driver does not offer it; its calls are skipped.*call [0-9]+ glCreateShader: this driver does not offer it"
  ${REPLAY} scene.oglcap)
set(ENV{MESA_GL_VERSION_OVERRIDE} "${driver}")
