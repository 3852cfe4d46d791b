#!/bin/bash
# Builds the library and runs its tests, from a fresh clone or after a change.
#
# Usage: scripts/test.sh [PRESET [CTEST OPTION...]]
#
# PRESET is one of the presets of CMakePresets.json: release (the default) or dev with g++, clang with clang++, or, with
# sanitizers, asan, ubsan or tsan (docs/robustness.md). It builds in build/PRESET. Options for ctest may follow, for
# instance:  scripts/test.sh dev -R polyline
# Debian packages that are missing are installed first.
set -euo pipefail
cd "$(dirname "$0")/.."
. scripts/common.sh

preset=${1:-release}
shift $(($# > 0 ? 1 : 0))

packages=(g++ cmake ninja-build pkgconf libocct-foundation-dev libgtest-dev libmpfr-dev libdxflib-dev python3)
case $preset in
    release | dev | asan | tsan) ;;
    clang) packages+=(clang) ;;
    ubsan) packages+=(clang libclang-rt-dev) ;;
    *) die "no such preset: $preset (there are release, dev, clang, asan, ubsan and tsan)" ;;
esac
ensure_packages "${packages[@]}"

jobs=$(nproc)
say "preset $preset: configuring in build/$preset"
cmake --preset "$preset"
say "preset $preset: building with $jobs jobs"
cmake --build --preset "$preset" --parallel "$jobs"
say "preset $preset: running the tests"
ctest --preset "$preset" --parallel "$jobs" "$@"
say "preset $preset: all tests passed, $SECONDS seconds in all"
