#!/bin/bash
# How fast the library is beside others and beside the shortest closed forms: builds the program that measures all of
# them on the same inputs, in build/bench, compares their answers and prints one table.
#
# Usage: scripts/bench.sh [--quick] [--markdown | --write] [FILTER]
#
# --markdown prints the table as Markdown; --write puts it into docs/performance.md instead, with date, commit, compiler
# and processor, and draws the picture of the growth from it. --quick measures each case once and briefly. FILTER is a
# regular expression for the names "case|column". Times are processor times for one operation, the least of several
# runs. Debian packages that are missing are installed first.
set -euo pipefail
cd "$(dirname "$0")/.."
# shellcheck source=scripts/common.sh
. scripts/common.sh

form=plain
runs=(--benchmark_repetitions=15 --benchmark_min_time=0.02 --benchmark_enable_random_interleaving=true)
filter=.
while [ $# -gt 0 ]; do
    case "$1" in
        --markdown) form=markdown ;;
        --write) form="write" ;;
        --quick) runs=(--benchmark_min_time=0.01) ;;
        -*) die "usage: bench.sh [--quick] [--markdown | --write] [FILTER]" ;;
        *) filter=$1 ;;
    esac
    shift
done
[ "$form" != write ] || [ "$filter" = . ] || die "a part of the table is not written"

ensure_packages cmake ninja-build g++ pkgconf python3 libocct-foundation-dev libbenchmark-dev lib2geom-dev libcgal-dev \
    libboost-dev libgeos-dev libgsl-dev libgmp-dev libmpfr-dev >&2

build=build/bench
{
    cmake -S . -B "$build" -G Ninja -DCMAKE_BUILD_TYPE=Release -DQORMATH_BUILD_BENCHMARKS=ON \
        -DQORMATH_BUILD_TESTS=OFF -DQORMATH_BUILD_EXAMPLES=OFF
    cmake --build "$build" --target qormath_compare
} >&2

# The answers are compared by the same run, before anything is timed.
results=$build/results.json
"$build/bench/compare/qormath_compare" "${runs[@]}" --benchmark_filter="$filter" --benchmark_out="$results" \
    --benchmark_out_format=json >"$build/run.log" || {
    tail -5 "$build/run.log" >&2
    die "the run failed"
}

processor() { sed -n 's/^model name[[:space:]]*: //p' /proc/cpuinfo | head -1; }

case "$form" in
    plain) scripts/bench_table.py "$results" ;;
    markdown) scripts/bench_table.py "$results" --markdown ;;
    write)
        # What stands below the marker is measured, what stands above is written by hand.
        page=docs/performance.md
        new=$(mktemp)
        trap 'rm -f "$new"' EXIT
        sed '/^<!-- the table -->$/q' "$page" >"$new"
        {
            printf 'Measured on %s at commit %s, %s, Release, %s, %s cores.\n\n' "$(date -u +%F)" \
                "$(git describe --always --dirty --exclude "*")" "$(g++ --version | head -1)" "$(processor)" "$(nproc)"
            scripts/bench_table.py "$results" --markdown
        } >>"$new"
        cat "$new" >"$page"
        scripts/bench_table.py "$results" --growth >docs/images/map_growth.json
        docs/images/draw.py
        ;;
esac
