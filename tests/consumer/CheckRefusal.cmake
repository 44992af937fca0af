# cmake -DSOURCE_DIR=<project> -DPREFIX=<install prefix> -DWORK=<scratch folder> -DGENERATOR=<generator> -P CheckRefusal.cmake
# Configures, for the build machine itself rather than Windows, the project and
# a project that uses the installed package: each must fail at configure time
# and say why.
cmake_minimum_required(VERSION 3.21)
file(REMOVE_RECURSE "${WORK}")
set(cases
  "project|${SOURCE_DIR}|oru_ogl targets Windows"
  "package|${CMAKE_CURRENT_LIST_DIR}/refusal|oru_ogl is a Windows library")
foreach(case IN LISTS cases)
  string(REPLACE "|" ";" fields "${case}")
  list(GET fields 0 name)
  list(GET fields 1 source)
  list(GET fields 2 reason)
  execute_process(COMMAND ${CMAKE_COMMAND} -S ${source} -B ${WORK}/${name} -G ${GENERATOR}
                          -DCMAKE_PREFIX_PATH=${PREFIX} -DCMAKE_FIND_PACKAGE_NO_PACKAGE_REGISTRY=ON
    RESULT_VARIABLE status OUTPUT_VARIABLE output ERROR_VARIABLE errors)
  if(status EQUAL 0)
    message(FATAL_ERROR "${name}: configuring for ${CMAKE_HOST_SYSTEM_NAME} succeeded\n${output}")
  endif()
  string(REGEX REPLACE "[ \n]+" " " flat "${errors}")
  string(FIND "${flat}" "${reason}" at)
  if(at EQUAL -1)
    message(FATAL_ERROR "${name}: refused without \"${reason}\":\n${errors}")
  endif()
  message(STATUS "${name}: refused with \"${reason}\"")
endforeach()
file(REMOVE_RECURSE "${WORK}")
