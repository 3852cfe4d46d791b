#!/usr/bin/env bash
# Builds the example outline_tour and runs it on a drawing:
#
#   scripts/tour.sh [drawing.dxf] [options]
#
# On Debian 12 it first installs what is missing for that.
set -euo pipefail

tree=$(cd "$(dirname "${BASH_SOURCE[0]}")/.." && pwd)
. "$tree/scripts/common.sh"
build="$tree/build/tour"
drawing="$tree/examples/outline_tour/drawings/part.dxf"
picture="$tree/build/outline_tour.svg"

usage()
{
    cat <<'END'
usage: scripts/tour.sh [drawing.dxf] [options]

Installs what is missing (Debian packages), builds the example outline_tour into build/tour and runs
it on the drawing, by default examples/outline_tour/drawings/part.dxf. The picture goes to
build/outline_tour.svg unless --svg tells another place.

  --cut FROM:TO           the piece to cut out of the first outline
  --beeline X,Y,DEGREES   the straight line whose crossings are listed
  --svg FILE              where the picture goes
  --help                  prints this
END
}

build_tour()
{
    local generator=()
    [ -e "$build/CMakeCache.txt" ] || generator=(-G Ninja)
    local log="$build/build.log"
    mkdir -p "$build"
    if ! { cmake -S "$tree" -B "$build" "${generator[@]}" -DCMAKE_BUILD_TYPE=Release \
               -DQORMATH_BUILD_TESTS=OFF -DQORMATH_BUILD_EXAMPLES=ON &&
           cmake --build "$build" --target outline_tour; } >"$log" 2>&1; then
        cat "$log" >&2
        die "the build failed"
    fi
}

# The drawing and the picture that the arguments don't name are added to them.
arguments=("$@")
has_drawing=no
has_picture=no
while [ $# -gt 0 ]; do
    case "$1" in
    --help | -h)
        usage
        exit 0
        ;;
    --svg) has_picture=yes ;;&
    --svg=*) has_picture=yes ;;
    --cut | --beeline | --svg) [ $# -lt 2 ] || shift ;;
    -*) ;;
    *) has_drawing=yes ;;
    esac
    shift
done
[ "$has_drawing" = yes ] || arguments=("$drawing" "${arguments[@]}")
[ "$has_picture" = yes ] || arguments+=(--svg "$picture")

ensure_packages g++ cmake ninja-build pkgconf libocct-foundation-dev libdxflib-dev
say "building outline_tour in $build"
build_tour
say "running outline_tour"
exec "$build/examples/outline_tour/outline_tour" "${arguments[@]}"
