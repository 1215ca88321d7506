# SPDX-License-Identifier: MIT
# The house: each folder of sources is one room, a library of its own that stands on one floor.

include(${CMAKE_CURRENT_LIST_DIR}/Joined.cmake)

# The floors, by the folder below src/ that a room lies in; showroom/ and demo/ stand beside the product.
set(RBTALLY_FLOORS
  "platform 0" "store 1" "jet 2" "data 2" "shell 3" "tally 4" "planning 5" "archive 5" "reports 5" "session 6"
  "desktop 7" "screens 8" "cli 9" "app 9" "demo 3" "showroom 10")
# Qt begins here.
set(RBTALLY_QT_FLOOR 7)

function(rbtally_floor_of room out)
  string(REGEX REPLACE "/.*" "" wing "${room}")
  foreach(entry IN LISTS RBTALLY_FLOORS)
    if(entry MATCHES "^${wing} ([0-9]+)$")
      set(${out} ${CMAKE_MATCH_1} PARENT_SCOPE)
      return()
    endif()
  endforeach()
  message(FATAL_ERROR "${room}: its folder has no floor in cmake/Rooms.cmake")
endfunction()

# rbtally_room([QT] [PIC] SOURCES file... [ALONE file...] USES room... [LIBRARIES library...]): the folder as a library.
# A room uses rooms of its own floor or of lower ones, and those stand before it in src/CMakeLists.txt; its files include
# from those alone, and Qt where it says so. What PIC says it of can also stand in a library that is loaded at run time.
# A file that stands ALONE is never compiled together with others.
function(rbtally_room)
  cmake_parse_arguments(ARG "QT;PIC" "" "SOURCES;ALONE;USES;LIBRARIES" ${ARGN})
  file(RELATIVE_PATH room ${CMAKE_SOURCE_DIR}/src ${CMAKE_CURRENT_SOURCE_DIR})
  string(REGEX REPLACE "^\\.\\./" "" room "${room}")
  rbtally_floor_of(${room} floor)
  string(REPLACE "/" "_" name "rbtally_${room}")
  rbtally_join(sources ${name} ${ARG_SOURCES})
  add_library(${name} STATIC ${sources} ${ARG_ALONE})
  add_dependencies(${name} check_rooms)
  target_include_directories(${name} PUBLIC ${CMAKE_SOURCE_DIR}/src)
  if(CMAKE_CURRENT_SOURCE_DIR STREQUAL "${CMAKE_SOURCE_DIR}/${room}")
    target_include_directories(${name} PUBLIC ${CMAKE_SOURCE_DIR})
  endif()
  target_link_libraries(${name} PUBLIC rbtally_options ${ARG_LIBRARIES})
  foreach(used IN LISTS ARG_USES)
    rbtally_floor_of(${used} used_floor)
    if(used_floor GREATER floor)
      message(FATAL_ERROR "${room} uses the higher floor ${used}")
    endif()
    string(REPLACE "/" "_" used_name "rbtally_${used}")
    if(NOT TARGET ${used_name})
      message(FATAL_ERROR "${room} uses ${used}, which does not stand before it")
    endif()
    target_link_libraries(${name} PUBLIC ${used_name})
  endforeach()
  set(qt "-")
  if(ARG_QT)
    if(floor LESS RBTALLY_QT_FLOOR)
      message(FATAL_ERROR "${room}: Qt begins at floor ${RBTALLY_QT_FLOOR}")
    endif()
    set(qt "qt")
    target_link_libraries(${name} PUBLIC Qt6::Widgets Qt6::PrintSupport)
    set_target_properties(${name} PROPERTIES AUTOUIC ON AUTORCC ON)
    rbtally_reads_precompiled(${name} desktop)
  else()
    if(ARG_PIC)
      # Precompiled headers are not; nobody puts functions of his own in the place of ours.
      set_target_properties(${name} PROPERTIES POSITION_INDEPENDENT_CODE ON)
      target_compile_options(${name} PRIVATE -fno-semantic-interposition)
    else()
      rbtally_reads_precompiled(${name} kernel)
    endif()
    if(floor LESS RBTALLY_QT_FLOOR)
      set_property(GLOBAL APPEND PROPERTY RBTALLY_CORE_ROOMS ${name})
    endif()
  endif()
  list(JOIN ARG_USES " " uses)
  set_property(GLOBAL APPEND PROPERTY RBTALLY_ROOMS ${room})
  set_property(GLOBAL APPEND_STRING PROPERTY RBTALLY_HOUSE "${room} ${floor} ${qt} ${uses}\n")
endfunction()

# The include check reads the house as it stands when all rooms are known.
function(rbtally_finish_house)
  get_property(house GLOBAL PROPERTY RBTALLY_HOUSE)
  file(WRITE ${CMAKE_BINARY_DIR}/house.txt "${house}")
endfunction()

# Without the desktop the house is told in part, and there is nothing to hold its files against.
if(RBTALLY_DESKTOP)
  add_custom_target(check_rooms
    COMMAND ${CMAKE_COMMAND} -DROOT=${CMAKE_SOURCE_DIR} -DHOUSE=${CMAKE_BINARY_DIR}/house.txt
            -P ${CMAKE_SOURCE_DIR}/cmake/CheckRooms.cmake
    COMMENT "Checking that every file includes what its room uses")
else()
  add_custom_target(check_rooms)
endif()
