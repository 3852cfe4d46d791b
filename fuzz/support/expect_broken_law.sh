# Usage: sh expect_broken_law.sh TEXT PROGRAM ARGUMENT...
# Passes when the program fails and says TEXT.
text=$1
shift
if output=$("$@" 2>&1); then
    echo "the program did not fail: $output"
    exit 1
fi
echo "$output"
echo "$output" | grep -F -q -e "$text"
