#!/bin/bash
# Runs the coverage-guided fuzzers in turn and tells what they did.
#
# Usage: scripts/fuzz.sh [--coverage] MINUTES [NAME...]
#
# Each fuzzer (segments, intersections, ranges, maps, or those named) runs for MINUTES, which may be a fraction: 0.25 is
# a smoke run. It begins with the inputs kept in fuzz/corpus/NAME and fuzz/findings/NAME and works in
# build/fuzz/work/NAME. An input that finds something is copied to fuzz/findings/NAME, and the script fails at the end.
# --coverage tells at last which part of the lines of src the kept inputs and those of this run reach.
# Debian packages that are missing are installed first.
set -euo pipefail
cd "$(dirname "$0")/.."
. scripts/common.sh

usage()
{
    sed -n '2,/^set /{s/^# \{0,1\}//;/^set /!p}' scripts/fuzz.sh >&2
    exit 2
}

coverage=no
if [ "${1:-}" = --coverage ]; then
    coverage=yes
    shift
fi
[ $# -ge 1 ] || usage
minutes=$1
shift
seconds=$(awk -v minutes="$minutes" 'BEGIN { if (minutes !~ /^[0-9.]+$/ || minutes <= 0) exit 1
    s = int(minutes * 60); print s < 1 ? 1 : s }') || die "no number of minutes: $minutes"
all_fuzzers=(segments intersections ranges maps)
fuzzers=("$@")
[ $# -gt 0 ] || fuzzers=("${all_fuzzers[@]}")
for name in "${fuzzers[@]}"; do
    [[ " ${all_fuzzers[*]} " == *" $name "* ]] || die "no such fuzzer: $name (there are ${all_fuzzers[*]})"
done

ensure_packages clang llvm libclang-rt-14-dev cmake ninja-build libocct-foundation-dev libgtest-dev

build=build/fuzz
sanitizers="address;undefined;float-cast-overflow"

# Configures a directory and builds those programs in it whose names begin alike:
# configure_and_build DIRECTORY PREFIX OPTION...
configure_and_build()
{
    local directory=$1 prefix=$2
    shift 2
    cmake -S . -B "$directory" -G Ninja -DCMAKE_BUILD_TYPE=Debug "-DCMAKE_CXX_FLAGS_DEBUG=-O1 -g1" \
        -DCMAKE_CXX_COMPILER=clang++ -DQORMATH_BUILD_EXAMPLES=OFF "$@" >"$directory.log" ||
        { cat "$directory.log" >&2; die "configuring $directory failed"; }
    cmake --build "$directory" --parallel "$(nproc)" --target "${fuzzers[@]/#/$prefix}" >>"$directory.log" ||
        { tail -n 40 "$directory.log" >&2; die "building $directory failed"; }
}

# The kept inputs of a fuzzer that exist.
kept_inputs()
{
    local directory
    for directory in "fuzz/corpus/$1" "fuzz/findings/$1"; do
        if [ -d "$directory" ]; then
            echo "$directory"
        fi
    done
}

# Runs one fuzzer and prints its row: run_fuzzer NAME. Fails when something was found.
run_fuzzer()
{
    local name=$1 work=$build/work/$1 kept status=0 artifacts figures
    mkdir -p "$work/corpus" "$work/artifacts"
    mapfile -t kept < <(kept_inputs "$name")
    # Angles and counts that take long are kept out of the inputs, so five seconds for one of them is a hang.
    ASAN_OPTIONS=detect_stack_use_after_return=1:malloc_context_size=8 UBSAN_OPTIONS=print_stacktrace=1 \
        "$build/tree/fuzz/qormath_fuzz_$name" -max_total_time="$seconds" -timeout=5 -max_len=300 -rss_limit_mb=4096 \
        -entropic=0 -print_final_stats=1 -artifact_prefix="$work/artifacts/" "$work/corpus" "${kept[@]}" >"$work/log" 2>&1 || status=$?
    mapfile -t artifacts < <(find "$work/artifacts" -type f \( -name 'crash-*' -o -name 'timeout-*' -o -name 'leak-*' \
        -o -name 'oom-*' \) | sort)
    figures=$(awk '/^stat::number_of_executed_units:/ { runs = $2 } /^stat::average_exec_per_sec:/ { rate = $2 }
        / cov: / { for (i = 1; i < NF; i++) { if ($i == "cov:") cov = $(i + 1); if ($i == "ft:") ft = $(i + 1)
                                              if ($i == "corp:") { split($(i + 1), c, "/"); corpus = c[1] } } }
        END { printf "%12s %10s %7s %9s %8s", runs + 0, rate + 0, cov + 0, ft + 0, corpus + 0 }' "$work/log")
    printf '%-14s %s %9d\n' "$name" "$figures" "${#artifacts[@]}"
    if [ "${#artifacts[@]}" -gt 0 ]; then
        mkdir -p "fuzz/findings/$name"
        cp "${artifacts[@]}" "fuzz/findings/$name/"
        grep -E 'broken law|^  in |ERROR: |runtime error' "$work/log" | head -n 12 >&2 || true
        printf '%s: see %s/log; kept in fuzz/findings/%s\n' "$name" "$work" "$name" >&2
        rm "${artifacts[@]}"
        return 1
    fi
    [ "$status" -eq 0 ] || { tail -n 20 "$work/log" >&2; die "the fuzzer of $name ended with $status"; }
}

# Replays all inputs with a library that counts the lines it goes through.
tell_coverage()
{
    local directory=$build/coverage name profiles=() inputs
    configure_and_build "$directory" qormath_fuzz_replay_ -DQORMATH_BUILD_TESTS=ON \
        "-DCMAKE_CXX_FLAGS=-fprofile-instr-generate -fcoverage-mapping"
    for name in "${fuzzers[@]}"; do
        mapfile -t inputs < <(kept_inputs "$name")
        LLVM_PROFILE_FILE="$PWD/$directory/$name.profraw" \
            "$directory/fuzz/qormath_fuzz_replay_$name" "${inputs[@]}" "$build/work/$name/corpus" >/dev/null
        profiles+=("$directory/$name.profraw")
    done
    llvm-profdata merge -sparse "${profiles[@]}" -o "$directory/all.profdata"
    say "lines of src that the inputs reach"
    llvm-cov report "$directory/libQorMath.so" -instr-profile="$directory/all.profdata" -ignore-filename-regex='/usr/' \
        "$PWD/src" | awk '/^-+$/ || /^TOTAL/ || /^Filename/ || $0 !~ /100.00%/ { print }' | cut -c1-160
}

mkdir -p "$build/work"
say "building with the sanitizers $sanitizers"
configure_and_build "$build/tree" qormath_fuzz_ -DQORMATH_BUILD_TESTS=OFF -DQORMATH_BUILD_FUZZERS=ON \
    "-DQORMATH_SANITIZE=$sanitizers"

say "running ${fuzzers[*]}, $seconds seconds each"
printf '%-14s %12s %10s %7s %9s %8s %9s\n' fuzzer inputs per_second edges features corpus findings
found=no
for name in "${fuzzers[@]}"; do
    run_fuzzer "$name" || found=yes
done
if [ "$coverage" = yes ]; then
    tell_coverage
fi
[ "$found" = no ] || die "there are findings"
say "no findings, $SECONDS seconds in all"
