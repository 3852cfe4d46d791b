#!/bin/bash
# Compares the results of the library, bit for bit, between compilers, build types, optimisation and sanitizers.
#
# Usage: scripts/compare_builds.sh
#
# Builds the library and tests/hashes nine ways in build/hashes, runs each, and prints how many functions agree with
# the first build. Fails with the names of those that do not. docs/bit_for_bit.md tells what is compared. Debian packages
# that are missing are installed first; ccache is used where it is installed.
set -euo pipefail
cd "$(dirname "$0")/.."
. scripts/common.sh

ensure_packages g++ clang libclang-rt-dev cmake ninja-build libocct-foundation-dev libgtest-dev

# name | compiler | build type | its flags | sanitizers. The first is the one that the others are compared with.
builds=(
    "gcc-release-O3|g++|Release|-O3 -DNDEBUG|"
    "gcc-release-O0|g++|Release|-O0 -DNDEBUG|"
    "gcc-debug-O0|g++|Debug|-O0|"
    "gcc-debug-O3|g++|Debug|-O3|"
    "gcc-debug-O1-address|g++|Debug|-O1|address"
    "gcc-debug-O1-thread|g++|Debug|-O1|thread"
    "clang-release-O3|clang++|Release|-O3 -DNDEBUG|"
    "clang-debug-O0|clang++|Debug|-O0|"
    "clang-debug-O1-undefined|clang++|Debug|-O1|undefined;float-cast-overflow;integer"
)
root=build/hashes
target=qormath_result_hashes
jobs=$(nproc)
launcher=()
if command -v ccache >/dev/null; then
    launcher=(-DCMAKE_CXX_COMPILER_LAUNCHER=ccache)
fi

# Flags that change last bits come in through the environment, too: contraction has to be off, and no flag may choose a
# processor or loosen the arithmetic.
check_flags()
{
    local commands
    commands=$(grep '"command"' "$1/compile_commands.json" | grep -E "/(QorMath|$target)\.dir/")
    [ -n "$commands" ] || die "$1: no command compiles the library"
    if grep -v -e ' -ffp-contract=off' <<<"$commands"; then
        die "$1: compiled without -ffp-contract=off"
    fi
    if grep -E -e ' -(march|mtune|mcpu|mfma|mavx[0-9a-z]*|mfpmath|ffast-math|Ofast|funsafe-math-optimizations|ffp-contract=(on|fast))([ =]|$)' \
        <<<"$commands"; then
        die "$1: compiled with a flag that may change last bits"
    fi
}

# Runs a command; what it prints is shown only if it fails.
quietly()
{
    local output
    output=$("$@" 2>&1) || {
        printf '%s\n' "$output" >&2
        die "failed: $*"
    }
}

build()
{
    local name compiler type flags sanitizers
    IFS='|' read -r name compiler type flags sanitizers <<<"$1"
    say "$name: $compiler, $type, $flags${sanitizers:+, sanitizers $sanitizers}"
    quietly cmake -S . -B "$root/$name" -G Ninja -Wno-dev \
        "-DCMAKE_CXX_COMPILER=$compiler" "-DCMAKE_BUILD_TYPE=$type" "-DCMAKE_CXX_FLAGS_${type^^}=$flags" \
        "-DQORMATH_SANITIZE=$sanitizers" -DQORMATH_BUILD_EXAMPLES=OFF -DQORMATH_INSTALL=OFF "${launcher[@]}"
    check_flags "$root/$name"
    quietly cmake --build "$root/$name" --target "$target" --parallel "$jobs"
}

# Runs one build's program; what it prints is moved into place when it is whole.
run()
{
    "$root/$1/tests/hashes/$target" >"$root/$1.part" && mv "$root/$1.part" "$root/$1.txt"
}
export -f run
export root target

names=()
for description in "${builds[@]}"; do
    build "$description"
    names+=("${description%%|*}")
done

say "running ${#names[@]} programs, $jobs at a time"
rm -f "$root"/*.txt
export ASAN_OPTIONS=halt_on_error=1 UBSAN_OPTIONS=halt_on_error=1:print_stacktrace=1
printf '%s\0' "${names[@]}" | xargs -0 -P "$jobs" -I '{}' bash -c 'run "$1"' run '{}' || die "a program failed"

say "results of the builds, compared with those of ${names[0]}"
files=("${names[@]/#/$root/}")
tests/hashes/compare_hashes.sh "${files[@]/%/.txt}" || die "results differ between builds"
# The C runtime as it is on a processor without fused multiplication: what is exact has to stay.
say "the exact functions with the C runtime's routines for plain processors"
plain=$root/without-fma
first=$root/exact-of-${names[0]}
GLIBC_TUNABLES=glibc.cpu.hwcaps=-FMA,-FMA4,-AVX2 "$root/${names[0]}/tests/hashes/$target" >"$plain.all" ||
    die "the program failed"
grep ' exact ' "$root/${names[0]}.txt" >"$first.txt"
grep ' exact ' "$plain.all" >"$plain.txt"
tests/hashes/compare_hashes.sh "$first.txt" "$plain.txt" || die "functions that count as exact depend on the processor"
say "all results agree in all builds, $SECONDS seconds"
