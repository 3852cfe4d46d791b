#!/bin/bash
# Measures which lines and branches of src/ the tests reach, with a Debug build by g++ in build/coverage.
#
# Usage: scripts/coverage.sh
#
# Prints a line for each file, the sum, and every line and branch that is not reached. Fails below 100 % of the lines or
# 95 % of the branches, and when one that is not reached isn't explained in docs/coverage.md. Only branches by which an
# exception leaves a call, and those on lines without code, are left out. Debian packages that are missing are installed
# first.
set -euo pipefail
cd "$(dirname "$0")/.."
. scripts/common.sh

ensure_packages g++ cmake ninja-build libocct-foundation-dev libgtest-dev python3 gcovr

build=build/coverage
jobs=$(nproc)
# The last one refuses memory, and so walks the ways on which lists are let go of.
programs=(primitives intersect polyline position properties allocation)

say "configuring in $build"
cmake -S . -B "$build" -G Ninja -DCMAKE_BUILD_TYPE=Debug -DCMAKE_CXX_COMPILER=g++ -DCMAKE_CXX_FLAGS=--coverage \
    -DQORMATH_WARNINGS_AS_ERRORS=ON -DQORMATH_BUILD_EXAMPLES=OFF
say "building with $jobs jobs"
cmake --build "$build" --parallel "$jobs" --target QorMath "${programs[@]/#/qormath_tests_}"

say "running the tests"
find "$build" -name '*.gcda' -delete
ctest --test-dir "$build" --parallel "$jobs" --output-on-failure --no-tests=error \
    --tests-regex "^($(IFS='|' && printf '%s' "${programs[*]}"))\$"

say "what they reach"
# Inner headers count in the program of the tests that uses them directly, too.
gcovr --root . --object-directory "$build" --filter src/ --exclude-unreachable-branches \
    --json "$build/coverage.json" "$build/CMakeFiles/QorMath.dir" "$build/tests/allocation"
python3 scripts/report_coverage.py "$build/coverage.json" docs/coverage.md
