# SPDX-License-Identifier: MIT
# A room that uses a higher floor, or one that does not stand before it, ends the configuration.
cmake_minimum_required(VERSION 3.25)

function(expect_refusal uses words)
  file(REMOVE_RECURSE ${WORK})
  file(WRITE ${WORK}/CMakeLists.txt "cmake_minimum_required(VERSION 3.25)\nproject(climb LANGUAGES CXX)\n"
       "add_library(rbtally_options INTERFACE)\ninclude(${ROOMS})\nadd_subdirectory(src/store)\n")
  file(WRITE ${WORK}/src/store/rows.cpp "")
  file(WRITE ${WORK}/src/store/CMakeLists.txt "rbtally_room(SOURCES rows.cpp ${uses})\n")
  execute_process(COMMAND ${CMAKE_COMMAND} -S ${WORK} -B ${WORK}/build RESULT_VARIABLE result ERROR_VARIABLE text
                  OUTPUT_QUIET)
  string(REGEX REPLACE "[ \n]+" " " text "${text}")
  if(result EQUAL 0 OR NOT text MATCHES "${words}")
    message(FATAL_ERROR "${uses}: expected \"${words}\", the configuration said: ${text}")
  endif()
endfunction()

expect_refusal("USES tally" "store uses the higher floor tally")
expect_refusal("USES platform/text" "store uses platform/text, which does not stand before it")
expect_refusal("QT" "store: Qt begins at floor 7")
