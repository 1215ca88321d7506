# SPDX-License-Identifier: MIT
# usage: cmake -DREADELF=readelf -DPROGRAM=file -P hardened_test.cmake
# Looks whether a program carries the guards of a handed-over build.
function(read_of program arguments result)
  execute_process(COMMAND ${READELF} ${arguments} ${program} OUTPUT_VARIABLE text COMMAND_ERROR_IS_FATAL ANY)
  set(${result} "${text}" PARENT_SCOPE)
endfunction()

read_of(${PROGRAM} -hldW layout)
read_of(${PROGRAM} -sW symbols)
foreach(guard "Type: +DYN" "GNU_RELRO" "NOW")
  if(NOT layout MATCHES "${guard}")
    message(SEND_ERROR "${PROGRAM}: no \"${guard}\" in its layout")
  endif()
endforeach()
# Guarded stacks, library calls that know how long their target is, containers that look at an index.
foreach(guard "__stack_chk_fail" "_chk@" "__glibcxx_assert_fail")
  if(NOT symbols MATCHES "${guard}")
    message(SEND_ERROR "${PROGRAM}: nothing calls \"${guard}\"")
  endif()
endforeach()
