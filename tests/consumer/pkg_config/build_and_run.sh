#!/bin/sh
# Usage: build_and_run.sh COMPILER LIBDIR WORK EXPECTED
#
# Compiles the program with what pkg-config says of the installation in LIBDIR, runs it in WORK and compares what it
# prints with the file EXPECTED.
set -eu
compiler=$1
libdir=$2
work=$3
expected=$4
here=$(cd "$(dirname "$0")" && pwd)

PKG_CONFIG_PATH=$libdir/pkgconfig
export PKG_CONFIG_PATH
pkg-config --exists --print-errors 'QorMath >= 1.0'
flags=$(pkg-config --cflags --libs QorMath)
echo "pkg-config says: $flags"

rm -rf "$work"
mkdir -p "$work"
# shellcheck disable=SC2086 # the flags are several words
"$compiler" -std=c++17 -o "$work/consumer" "$here/../program.cpp" $flags

LD_LIBRARY_PATH=$libdir${LD_LIBRARY_PATH:+:$LD_LIBRARY_PATH}
export LD_LIBRARY_PATH
"$work/consumer" | diff -u "$expected" -
echo "Printed what was expected"
