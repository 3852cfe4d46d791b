#!/bin/sh
# Usage: check_dynamic_section.sh READELF LIBRARY MAJOR
#
# The library is known as libQorMath.so.MAJOR, binds its own names inside itself, looks for nothing in directories of its
# own, and needs the two foundation toolkits and the run-time libraries of C and C++, but no more.
set -eu
readelf=$1
library=$2
major=$3
LC_ALL=C
export LC_ALL

failures=0
fail()
{
    echo "$1" >&2
    failures=$((failures + 1))
}

section=$("$readelf" --dynamic --wide "$library")
needed=$(printf '%s\n' "$section" | sed -n 's/.*(NEEDED).*\[\(.*\)\].*/\1/p')

for name in $needed; do
    case $name in
        libTKMath.so.* | libTKernel.so.*) ;;
        libstdc++.so.6 | libc++.so.1 | libc++abi.so.1 | libgcc_s.so.1 | libm.so.6 | libc.so.6 | ld-linux*) ;;
        *) fail "needs $name" ;;
    esac
done
for toolkit in libTKMath libTKernel; do
    printf '%s\n' "$needed" | grep -q "^$toolkit\.so" || fail "does not name $toolkit, whose functions it calls"
done
printf '%s\n' "$section" | grep -q "(SONAME).*\[libQorMath\.so\.$major\]" || fail "is not called libQorMath.so.$major"
printf '%s\n' "$section" | grep -q 'SYMBOLIC' || fail "does not bind its own names inside itself"
if printf '%s\n' "$section" | grep -E '\((RPATH|RUNPATH)\)'; then
    fail "names directories to search"
fi

[ "$failures" -eq 0 ] && echo "needs" $needed
