#!/bin/sh
# Usage: compare_with_kernel.sh NM LIBRARY IMPOSTER
#
# The imposter defines every name of the analytic kernel that the library exports; otherwise it would not be put to the
# test whether the library calls that name outside itself.
set -eu
LC_ALL=C
export LC_ALL

kernel_names()
{
    "$1" --dynamic --defined-only "$2" | sed -n 's/^[0-9a-f]* [A-Z] //p' | grep -E 'IntAna2d|gce_' | sort
}

missing=$(kernel_names "$1" "$2" | while read -r name; do
    kernel_names "$1" "$3" | grep -qxF "$name" || echo "$name"
done)
if [ -n "$missing" ]; then
    printf 'The imposter does not define:\n%s\n' "$missing" >&2
    exit 1
fi
[ -n "$(kernel_names "$1" "$2")" ] || { echo "$2 exports no names of the kernel" >&2; exit 1; }
