#!/bin/sh
# SPDX-License-Identifier: MIT
# usage: compile.sh SOURCES COMPILER ARGUMENT...
# Runs the compiler through the compiler cache so that a new clone finds what an old one compiled, whatever the language
# of its messages: the gates set it, whoever builds by hand may not. What is compiled with a precompiled header is found
# by the digest of the headers in it: the file itself differs each time it is made.
set -eu
export CCACHE_BASEDIR="$1" CCACHE_NOHASHDIR=1 CCACHE_PCH_EXTSUM=1 CCACHE_SLOPPINESS=pch_defines,time_macros,locale
shift
case " $* " in
  # It names files of this clone.
  *" -emit-pch "*) "$@" ;;
  *" c++-header "*) ccache "$@" ;;
  *) exec ccache "$@" ;;
esac

while [ $# -gt 1 ]; do
  case $1 in
    -o) made=$2 ;;
    -MF) list=$2 ;;
  esac
  shift
done
sed 's/^[^:]*://; s/\\$//' "$list" | xargs cat | sha256sum >"$made.sum"
