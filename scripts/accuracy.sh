#!/usr/bin/env bash
# How exact every result is: builds the program that compares the library with 256-bit arithmetic and prints its table,
# from 20 times the inputs of the test. With --write the table of docs/accuracy.md is replaced instead.
set -euo pipefail
cd "$(dirname "$0")/.."
# shellcheck source=scripts/common.sh
. scripts/common.sh

case "${1:-}" in
    "" | --write) ;;
    *) die "usage: accuracy.sh [--write]" ;;
esac

ensure_packages cmake ninja-build g++ libocct-foundation-dev libgtest-dev libmpfr-dev >&2

build=build/accuracy
{
    cmake -S . -B "$build" -G Ninja -DCMAKE_BUILD_TYPE=Release -DQORMATH_BUILD_EXAMPLES=OFF
    cmake --build "$build" --target qormath_accuracy
} >&2

table() { "$build/tests/accuracy/qormath_accuracy" --load 10 --markdown tests/accuracy/bounds.txt; }

if [ "${1:-}" != --write ]; then
    table
    exit
fi
# What stands below the marker is the program's, what stands above is written by hand.
page=docs/accuracy.md
new=$(mktemp)
trap 'rm -f "$new"' EXIT
sed '/^<!-- the table -->$/q' "$page" >"$new"
table >>"$new"
cat "$new" >"$page"
