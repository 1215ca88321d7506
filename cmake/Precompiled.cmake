# SPDX-License-Identifier: MIT
# Headers of libraries that nearly every source reads, compiled once for each kind of target. They spare time and
# nothing else: a source includes what it uses, and ./rbk lint reads every source without them.
option(RBTALLY_PCH "Precompile the headers of libraries" ON)

if(RBTALLY_PCH AND CMAKE_CXX_COMPILER_ID STREQUAL "GNU")
  # g++ 12 forgets with them that a header is the system's, and then tells its wrong guesses about strings. What is
  # truly out of bounds the sanitizers find.
  target_compile_options(rbtally_options INTERFACE -Wno-array-bounds -Wno-stringop-overflow
                         -Wno-stringop-overread)
endif()
if(CMAKE_CXX_COMPILER_ID STREQUAL "Clang")
  # As g++ is told: the compiler cache understands it.
  set(CMAKE_CXX_COMPILE_OPTIONS_USE_PCH -include <PCH_HEADER>)
endif()

set(kernel_headers <algorithm> <array> <cstdint> <filesystem> <functional> <map> <memory> <optional> <set> <span>
    <string> <string_view> <unordered_map> <utility> <variant> <vector> <fmt/format.h>)
set(desktop_headers <QApplication> <QCheckBox> <QKeyEvent> <QLabel> <QLineEdit> <QPainter> <QPushButton> <QRadioButton>
    <QTimer> <QWidget>)
set(test_headers <gmock/gmock.h> <gtest/gtest.h>)

# rbtally_precompile(KIND HEADERS header... [LIBRARIES library...] [OPTIONS option...]): compiled the way the targets of
# that kind are, else the compiler refuses them.
function(rbtally_precompile kind)
  cmake_parse_arguments(ARG "" "" "HEADERS;LIBRARIES;OPTIONS" ${ARGN})
  if(NOT RBTALLY_PCH)
    return()
  endif()
  set(source ${CMAKE_BINARY_DIR}/precompiled.cpp)
  file(CONFIGURE OUTPUT ${source} CONTENT "// The headers are all there is.\n")
  add_library(precompiled_${kind} OBJECT ${source})
  target_compile_options(precompiled_${kind} PRIVATE ${ARG_OPTIONS})
  target_link_libraries(precompiled_${kind} PRIVATE rbtally_options ${ARG_LIBRARIES})
  target_precompile_headers(precompiled_${kind} PRIVATE ${ARG_HEADERS})
endfunction()

# rbtally_reads_precompiled(TARGET KIND)
function(rbtally_reads_precompiled target kind)
  if(RBTALLY_PCH)
    target_precompile_headers(${target} REUSE_FROM precompiled_${kind})
  endif()
endfunction()
