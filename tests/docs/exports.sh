#!/bin/bash
# Every name that the library exports stands in a public header, behind a comment that describes it; and every flat function in
# the headers is exported.
set -euo pipefail
source_folder=$1
library=$2
work=$3
mkdir -p "$work"
cd "$source_folder/include/cvutil32"

# Flat functions with a comment right before their declaration, which may have several lines.
awk '
    /^\/\/\// { described = 1; next }
    # A long declaration has its name on the next line.
    /^CVAPI\([^)]*\)$/ { getline following; $0 = $0 " " following }
    /^CVAPI\(/ {
        if (match($0, /\) *[A-Za-z_0-9]+\(/)) {
            name = substr($0, RSTART + 1, RLENGTH - 2)
            gsub(/ /, "", name)
            print name, described ? "described" : "bare"
        }
    }
    { described = 0 }
' *.h | LC_ALL=C sort >"$work/declared"
awk '$2 == "described" { print $1 }' "$work/declared" >"$work/described"
nm -D --defined-only "$library" | awk '$2 == "T" && $3 !~ /^_Z/ && $3 !~ /^_(init|fini)$/ { print $3 }' | LC_ALL=C sort >"$work/exported"

failed=0
complain() { # <what is wrong>; names on standard input, by redirection: a pipe would forget the failure
    local names
    names=$(cat)
    [ -z "$names" ] || { echo "FAILED: $1:"; echo "$names"; failed=1; }
}
complain "declared without a comment" < <(awk '$2 == "bare" { print $1 }' "$work/declared")
complain "exported, but not in a public header" < <(LC_ALL=C comm -13 "$work/described" "$work/exported")
complain "in a public header, but not exported" < <(awk '{ print $1 }' "$work/declared" | LC_ALL=C comm -23 - "$work/exported")
[ "$(wc -l <"$work/exported")" -gt 20 ] || { echo "FAILED: hardly anything is exported"; failed=1; }
[ $failed = 0 ] && echo "passed: $(wc -l <"$work/exported") flat functions"
