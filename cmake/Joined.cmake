# SPDX-License-Identifier: MIT
# Sources of one target, compiled several at once: the headers that they share are read once, and what their templates
# are made into is made once. The gates build so. File by file, as it is developed, every source must stand by itself
# too: clang-tidy reads each one alone, in ./rbk lint.
option(RBTALLY_JOIN "Compile several sources of a target at once" OFF)

# So few that both processors of a small machine have work until the end, and one compiler stays below a gigabyte.
set(joined_at_most 8)
set(joined_folder ${CMAKE_BINARY_DIR}/joined)

# rbtally_join(OUT NAME source...): sets OUT to what a target has to list so that it compiles those sources of the
# current folder; NAME is a name for the files that hold them together. They have names of their own for what is theirs
# alone: a name that two of them give in an anonymous namespace is refused by the compiler. A file includes them by
# their way from it, so that every clone of the repository has the same one.
function(rbtally_join out name)
  list(LENGTH ARGN count)
  if(NOT RBTALLY_JOIN OR count LESS 2)
    set(${out} ${ARGN} PARENT_SCOPE)
    return()
  endif()
  math(EXPR files "(${count} + ${joined_at_most} - 1) / ${joined_at_most}")
  set(joined_files "")
  foreach(file RANGE 1 ${files})
    math(EXPR begin "(${file} - 1) * ${count} / ${files}")
    math(EXPR length "${file} * ${count} / ${files} - ${begin}")
    list(SUBLIST ARGN ${begin} ${length} sources)
    set(text "")
    foreach(source IN LISTS sources)
      file(RELATIVE_PATH way ${joined_folder} ${CMAKE_CURRENT_SOURCE_DIR}/${source})
      string(APPEND text "#include \"${way}\"\n")
    endforeach()
    set(joined ${joined_folder}/${name}_${file}.cpp)
    file(CONFIGURE OUTPUT ${joined} CONTENT "${text}")
    list(APPEND joined_files ${joined})
  endforeach()
  if(CMAKE_CXX_COMPILER_ID STREQUAL "GNU")
    # It takes what is included for a header, whose anonymous types would be other ones in each source.
    set_source_files_properties(${joined_files} PROPERTIES COMPILE_OPTIONS -Wno-subobject-linkage)
  endif()
  # They stay listed: forms are found in them.
  set_source_files_properties(${ARGN} PROPERTIES HEADER_FILE_ONLY ON)
  set(${out} ${ARGN} ${joined_files} PARENT_SCOPE)
endfunction()
