# SPDX-License-Identifier: MIT
# Compiler options shared by every target.
option(RBTALLY_WERROR "Warnings are errors" OFF)

add_library(rbtally_options INTERFACE)
target_compile_options(rbtally_options INTERFACE -Wall -Wextra -Wpedantic -Wshadow -Wconversion
                       -Wnon-virtual-dtor -Wold-style-cast -Woverloaded-virtual)
# Figures must be the same on every machine: one rounding per operation, no fused multiply-add.
target_compile_options(rbtally_options INTERFACE -ffp-contract=off)
# g++ 12 takes string concatenation for overlapping copies.
target_compile_options(rbtally_options INTERFACE $<$<CXX_COMPILER_ID:GNU>:-Wno-restrict>)
# The compiler cache sees precompiled headers in what the preprocessor writes.
target_compile_options(rbtally_options INTERFACE $<$<CXX_COMPILER_ID:GNU>:-fpch-preprocess>)
# Nearly every room formats by it, and precompiled headers want the same definitions everywhere.
target_link_libraries(rbtally_options INTERFACE fmt::fmt)
if(RBTALLY_WERROR)
  target_compile_options(rbtally_options INTERFACE -Werror)
endif()
# What is handed over reads files of strangers: a wrong index or a smashed stack ends it there and then, and the tables
# it calls through cannot be written.
if(CMAKE_SYSTEM_PROCESSOR STREQUAL "x86_64")
  set(jumps " -fcf-protection")
endif()
string(APPEND CMAKE_CXX_FLAGS_RELEASE
       " -fstack-protector-strong -fstack-clash-protection${jumps} -D_FORTIFY_SOURCE=2 -D_GLIBCXX_ASSERTIONS")
string(APPEND CMAKE_EXE_LINKER_FLAGS_RELEASE " -Wl,-z,relro,-z,now")
string(APPEND CMAKE_MODULE_LINKER_FLAGS_RELEASE " -Wl,-z,relro,-z,now")
if(RBTALLY_SANITIZE)
  target_compile_options(rbtally_options INTERFACE -fsanitize=${RBTALLY_SANITIZE}
                         -fno-sanitize-recover=all -fno-omit-frame-pointer)
  target_link_options(rbtally_options INTERFACE -fsanitize=${RBTALLY_SANITIZE})
endif()
if(RBTALLY_FUZZ)
  # Coverage of the code under test, not only of the fuzzers themselves.
  target_compile_options(rbtally_options INTERFACE -fsanitize=fuzzer-no-link)
endif()
