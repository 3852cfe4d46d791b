#!/bin/sh
# Usage: check_comparison.sh PROGRAM DIRECTORY
#
# Shows that compare_hashes.sh accepts equal results and refuses results of which one bit differs, by name. PROGRAM is
# qormath_result_hashes; DIRECTORY is a place for its output.
set -eu
program=$1
compare=$(cd "$(dirname "$0")" && pwd)/compare_hashes.sh
cd "$2"
changed='PosRangeD::operator-(PosRangeD const&) const'
other='RegularizeRadian(double)'

"$program" --function "$changed" --function "$other" >one.txt
cp one.txt same.txt
"$program" --function "$changed" --function "$other" --flip-one-bit "$changed" >flipped.txt

sh "$compare" one.txt same.txt
if report=$(sh "$compare" one.txt same.txt flipped.txt); then
    echo "a bit was flipped, and nothing was noticed:"
    echo "$report"
    exit 1
fi
echo "$report"
echo "$report" | grep -qF "differs from one in flipped: $changed"
! echo "$report" | grep -qF "differs from one in flipped: $other"
