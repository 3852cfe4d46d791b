#!/bin/sh
# Usage: compare_with_kernel.sh NM LIBRARY IMPOSTER
#
# The imposter defines every name of the analytic kernel that the library exports; otherwise it would not be put to the
# test whether the library calls that name outside itself.
set -eu
nm=$1
library=$2
imposter=$3

kernel_names()
{
    "$nm" --dynamic --defined-only "$1" | sed -n 's/^[0-9a-f]* [A-Z] //p' | grep -E 'IntAna2d|gce_'
}

wanted=$(kernel_names "$library")
given=$(kernel_names "$imposter")
if missing=$(printf '%s\n' "$wanted" | grep -vxF -e "$given"); then
    printf 'The imposter does not define:\n%s\n' "$missing" >&2
    exit 1
fi
echo "$(printf '%s\n' "$wanted" | wc -l) names of the kernel, all defined by the imposter as well"
