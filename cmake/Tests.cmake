# SPDX-License-Identifier: MIT
# How the tests of a room are built and run.
option(RBTALLY_SHUFFLE "Run each test program as a whole, its tests in shuffled order" OFF)

rbtally_precompile(tests HEADERS ${kernel_headers} ${test_headers} LIBRARIES GTest::gmock
                   OPTIONS ${RBTALLY_TEST_OPTIONS})
if(RBTALLY_DESKTOP)
  rbtally_precompile(desktop_tests HEADERS ${kernel_headers} ${desktop_headers} ${test_headers}
                     LIBRARIES GTest::gmock Qt6::Widgets Qt6::PrintSupport OPTIONS ${RBTALLY_TEST_OPTIONS})
endif()

# rbtally_takes_product_first(TARGET [QT]): of what several sources make of a template the linker takes the first copy. It
# is to be that of the product, which is optimised; behind a test's the product itself would call the test's.
function(rbtally_takes_product_first target)
  cmake_parse_arguments(ARG "QT" "" "" ${ARGN})
  get_property(rooms GLOBAL PROPERTY RBTALLY_CORE_ROOMS)
  if(ARG_QT)
    get_property(rooms GLOBAL PROPERTY RBTALLY_ROOMS)
    list(TRANSFORM rooms REPLACE "/" "_")
    list(TRANSFORM rooms PREPEND "rbtally_")
  endif()
  add_dependencies(${target} ${rooms})
  list(TRANSFORM rooms REPLACE "(.+)" "$<TARGET_FILE:\\1>")
  target_link_options(${target} PRIVATE -Wl,--whole-archive ${rooms} -Wl,--no-whole-archive)
endfunction()

# What takes long begins early.
set(long_cost 1000)

# rbtally_tests([QT] SOURCES... [LIBRARIES library...] [LONG] [PARTS n]): the tests of the room of the same folder, one
# program. ctest runs each test by itself. Shuffled, one process runs them all, or n processes a part each;
# GTEST_RANDOM_SEED repeats an order. What tests find in their environment is told by the presets: they cannot be
# told in a list here, which gtest_discover_tests takes apart.
function(rbtally_tests)
  cmake_parse_arguments(ARG "QT;LONG" "PARTS" "LIBRARIES" ${ARGN})
  file(RELATIVE_PATH room ${CMAKE_SOURCE_DIR}/tests ${CMAKE_CURRENT_SOURCE_DIR})
  string(REPLACE "/" "_" room "${room}")
  set(name ${room}_test)
  rbtally_join(sources ${name} ${ARG_UNPARSED_ARGUMENTS})
  add_executable(${name} ${sources})
  if(ARG_QT)
    target_sources(${name} PRIVATE ${CMAKE_SOURCE_DIR}/tests/support/desktop/desktop_main.cpp)
    set(main GTest::gtest rbtally_showroom)
    set(qt QT)
    rbtally_reads_precompiled(${name} desktop_tests)
  else()
    set(main GTest::gtest_main)
    set(qt "")
    rbtally_reads_precompiled(${name} tests)
  endif()
  target_compile_options(${name} PRIVATE ${RBTALLY_TEST_OPTIONS})
  rbtally_takes_product_first(${name} ${qt})
  target_link_libraries(${name} PRIVATE test_support rbtally_${room} ${main} GTest::gmock ${ARG_LIBRARIES})
  set(cost 100)
  if(ARG_LONG)
    set(cost ${long_cost})
  endif()
  if(NOT RBTALLY_SHUFFLE)
    gtest_discover_tests(${name} TEST_PREFIX "${name}." DISCOVERY_TIMEOUT 120
      PROPERTIES TIMEOUT 300 COST ${cost})
  elseif(NOT ARG_PARTS)
    add_test(NAME ${name} COMMAND ${name} --gtest_shuffle)
    set_tests_properties(${name} PROPERTIES TIMEOUT 900 COST ${cost})
  else()
    foreach(part RANGE 1 ${ARG_PARTS})
      math(EXPR index "${part} - 1")
      add_test(NAME ${name}/${part} COMMAND ${name} --gtest_shuffle)
      set_tests_properties(${name}/${part} PROPERTIES TIMEOUT 900 COST ${cost}
        ENVIRONMENT "GTEST_TOTAL_SHARDS=${ARG_PARTS};GTEST_SHARD_INDEX=${index}")
    endforeach()
  endif()
endfunction()
