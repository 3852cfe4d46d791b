#!/bin/sh
# Usage: expect_report.sh REPORT PROGRAM ARGUMENT...
#
# The program has to end with a failure and a report that matches the extended regular expression REPORT.
set -u
report=$1
shift
if output=$("$@" 2>&1); then
    printf '%s\nThe program ended well: the sanitizer is not at work.\n' "$output" >&2
    exit 1
fi
if ! printf '%s\n' "$output" | grep -qE "$report"; then
    printf '%s\nThere is no report of "%s".\n' "$output" "$report" >&2
    exit 1
fi
printf '%s\n' "$output" | grep -E "$report"
