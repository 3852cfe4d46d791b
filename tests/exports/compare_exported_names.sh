#!/bin/sh
# Usage: compare_exported_names.sh NM LIBRARY LIST
#
# Compares the names that LIBRARY exports with LIST, one demangled name a line. The several symbols that a compiler makes
# of one constructor or destructor demangle to one name, so the list is the same for all compilers and build types.
# QORMATH_UPDATE_EXPORTS=1 in the environment writes LIST anew; look at the difference before it is committed.
set -eu
nm=$1
library=$2
list=$3
LC_ALL=C
export LC_ALL

exported=$("$nm" --dynamic --defined-only --demangle "$library" | cut -d ' ' -f 3- | sort -u)

if [ "${QORMATH_UPDATE_EXPORTS:-0}" = 1 ]; then
    printf '%s\n' "$exported" >"$list"
    echo "Wrote $list"
    exit 0
fi

if ! printf '%s\n' "$exported" | diff -u "$list" -; then
    echo "The exported names (+) differ from the list kept in the tree (-)." >&2
    exit 1
fi
echo "$(printf '%s\n' "$exported" | wc -l) exported names, as listed"
