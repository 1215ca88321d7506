# SPDX-License-Identifier: MIT
# The floors of the house, lowest first: a file may include its own floor and those below it.
# CheckFloors.cmake holds the table and fails the build at an include that climbs.
add_custom_target(check_floors
  COMMAND ${CMAKE_COMMAND} -DSOURCE_DIR=${CMAKE_SOURCE_DIR}/src -P ${CMAKE_SOURCE_DIR}/cmake/CheckFloors.cmake
  COMMENT "Checking that no include climbs to a higher floor")

function(rbtally_sources)
  target_sources(rbtally_core PRIVATE ${ARGN})
endfunction()
