# SPDX-License-Identifier: MIT
# usage: cmake -DREADELF=readelf -DFILE=program [-DREFUSED=regex] [-DWANTED=regex] -P needs_test.cmake
# Looks at the libraries that are loaded with a program.
execute_process(COMMAND ${READELF} -dW ${FILE} OUTPUT_VARIABLE text COMMAND_ERROR_IS_FATAL ANY)
string(REGEX MATCHALL "NEEDED[^\n]*\\[[^]\n]*\\]" needed "${text}")
if(NOT needed)
  message(FATAL_ERROR "${FILE}: no library is named in\n${text}")
endif()
if(REFUSED AND needed MATCHES "${REFUSED}")
  message(SEND_ERROR "${FILE} needs ${CMAKE_MATCH_0}: ${needed}")
endif()
if(WANTED AND NOT needed MATCHES "${WANTED}")
  message(SEND_ERROR "${FILE} does not need ${WANTED}: ${needed}")
endif()
