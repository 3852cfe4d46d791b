#!/bin/bash
# Whether a key case needs more instructions than before: counts them under valgrind's callgrind and compares them, as
# multiples of two pieces of plain code in the same program, with those kept in bench/instructions/ratios.txt. A case
# that has grown by more than 10 % fails.
#
# Usage: scripts/check_instructions.sh [--write | --self-test]
#
# --write keeps the present numbers. --self-test runs one case twice over and expects to be told. The kept numbers are
# those of Debian 12's g++, Release; another compiler may differ. Debian packages that are missing are installed first.
set -euo pipefail
cd "$(dirname "$0")/.."
# shellcheck source=scripts/common.sh
. scripts/common.sh

case "${1:-}" in
    "" | --write | --self-test) ;;
    *) die "usage: check_instructions.sh [--write | --self-test]" ;;
esac

ensure_packages cmake ninja-build g++ python3 libocct-foundation-dev valgrind >&2

build=build/instructions
mkdir -p "$build"
cmake -S . -B "$build" -G Ninja -DCMAKE_BUILD_TYPE=Release -DCMAKE_CXX_COMPILER=g++ -DQORMATH_BUILD_BENCHMARKS=ON \
    -DQORMATH_BUILD_TESTS=OFF -DQORMATH_BUILD_EXAMPLES=OFF >"$build/configure.log" 2>&1 || {
    cat "$build/configure.log" >&2
    die "the configuration failed"
}
cmake --build "$build" --target qormath_instructions

counts=$(mktemp -d)
trap 'rm -rf "$counts"' EXIT

# Runs the program, with the arguments given to it, and compares. The C runtime picks its functions by processor: all
# processors are made to look alike. Names are looked up beforehand, so that this is not counted with the first case.
compare()
{
    local option=$1
    shift
    rm -f "$counts"/*
    LD_BIND_NOW=1 GLIBC_TUNABLES=glibc.cpu.hwcaps=-AVX2,-AVX,-FMA,-FMA4,-AVX512F,-ERMS,-FSRM \
        valgrind --quiet --tool=callgrind --collect-atstart=no --callgrind-out-file="$counts/out" \
        "$build/bench/instructions/qormath_instructions" "$@"
    scripts/compare_instructions.py "$counts" bench/instructions/ratios.txt "$option"
}

case "${1:-}" in
    --write) compare --write ;;
    --self-test)
        if compare --check composition 2; then
            die "a composition that takes twice as long was not noticed"
        fi
        say "a composition that takes twice as long was noticed"
        ;;
    *) compare --check ;;
esac
