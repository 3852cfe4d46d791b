#!/bin/bash
# How long a file that includes one public header takes to compile: prints a Markdown table, for g++ and clang++, of the
# median of several runs, in milliseconds, and the lines that the compiler reads.
#
# Usage: scripts/header_times.sh [RUNS]
set -euo pipefail
cd "$(dirname "$0")/.."
# shellcheck source=scripts/common.sh
. scripts/common.sh

runs=${1:-5}
ensure_packages g++ clang libocct-foundation-dev >&2

work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT
flags=(-std=c++17 -O0 -Iinclude -isystem /usr/include/opencascade)

# Milliseconds of one compilation.
one_time()
{
    local began ended
    began=$(date +%s%N)
    "$1" "${flags[@]}" -c "$2" -o "$work/out.o"
    ended=$(date +%s%N)
    echo $(((ended - began) / 1000000))
}

median()
{
    local i
    for ((i = 0; i < runs; ++i)); do
        one_time "$1" "$2"
    done | sort -n | sed -n "$(((runs + 1) / 2))p"
}

printf '| header | g++, ms | clang++, ms | lines read |\n|---|--:|--:|--:|\n'
: >"$work/nothing.cpp"
printf '| (none) | %s | %s | 0 |\n' "$(median g++ "$work/nothing.cpp")" "$(median clang++ "$work/nothing.cpp")"
for header in include/math/*.h; do
    name=math/$(basename "$header")
    printf '#include "%s"\n' "$name" >"$work/one.cpp"
    lines=$(g++ "${flags[@]}" -E -P "$work/one.cpp" | wc -l)
    printf '| `%s` | %s | %s | %s |\n' "$name" "$(median g++ "$work/one.cpp")" "$(median clang++ "$work/one.cpp")" \
        "$lines"
done
