#!/bin/sh
# Usage: compare_hashes.sh FILE FILE...
#
# Compares what several builds of qormath_result_hashes printed. Prints a table of the files, named after themselves
# without their ending, and how many functions agree with the first; names the functions that do not, and fails then.
set -eu
[ $# -ge 2 ] || {
    echo "usage: compare_hashes.sh FILE FILE..." >&2
    exit 2
}

awk '
    # One line a function: hash, class, name. Lines that begin with # are remarks.
    FNR == 1 { ++fileCount; label[fileCount] = FILENAME; sub(/.*\//, "", label[fileCount]); sub(/\.[^.]*$/, "", label[fileCount]) }
    /^#/ { next }
    {
        name = substr($0, index($0, $3))
        if (!(name in isKnown)) { isKnown[name] = 1; order[++nameCount] = name }
        found[fileCount, name] = $1 " " $2
    }
    END {
        printf "%-24s %10s %10s %10s\n", "build", "functions", "agree", "differ"
        for (file = 1; file <= fileCount; ++file) {
            functions = agree = 0
            for (i = 1; i <= nameCount; ++i) {
                name = order[i]
                if ((file, name) in found) { ++functions }
                if (found[file, name] != "" && found[file, name] == found[1, name]) { ++agree }
                else { differs[name] = differs[name] " " label[file]; isDifferent = 1 }
            }
            printf "%-24s %10d %10d %10d\n", label[file], functions, agree, nameCount - agree
        }
        for (i = 1; i <= nameCount; ++i) {
            if (order[i] in differs) { printf "differs from %s in%s: %s\n", label[1], differs[order[i]], order[i] }
        }
        if (nameCount == 0) { print "there is nothing to compare" }
        exit isDifferent || nameCount == 0
    }
' "$@"
