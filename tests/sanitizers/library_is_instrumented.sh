#!/bin/sh
# Usage: library_is_instrumented.sh NM LIBRARY PREFIX
#
# The library calls functions of the sanitizer whose names begin with PREFIX; otherwise only the test programs would be
# watched.
set -eu
count=$("$1" --dynamic --undefined-only "$2" | grep -c " $3" || true)
if [ "$count" -eq 0 ]; then
    echo "$2 calls nothing that begins with $3" >&2
    exit 1
fi
echo "$count functions of the sanitizer are called by the library"
