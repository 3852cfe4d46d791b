#!/bin/bash
# Whether the headers of positions and maps are free of the dependency: lists every file that each pulls in.
#
# Usage: scripts/check_light_headers.sh [COMPILER]
set -euo pipefail
cd "$(dirname "$0")/.."
compiler=${1:-g++}

# The same question for a header that does pull it in, so that a question that cannot fail is noticed.
pulls_in_dependency()
{
    printf '#include "%s"\n' "$1" |
        "$compiler" -std=c++17 -Iinclude -isystem /usr/include/opencascade -x c++ -M - >"$files" || exit 2
    grep -q -E 'opencascade|/gp_|/Standard_' "$files"
}

files=$(mktemp)
trap 'rm -f "$files"' EXIT

pulls_in_dependency math/AnalyticKernel.h || {
    echo "math/AnalyticKernel.h does not pull in the dependency: the question is not asked rightly" >&2
    exit 1
}
status=0
for header in math/PosRangeD.h math/CPolyPosMap.h math/CPolyPosMapUtilies.h; do
    if pulls_in_dependency "$header"; then
        echo "$header pulls in the dependency" >&2
        status=1
    fi
done
exit $status
