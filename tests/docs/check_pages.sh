#!/bin/bash
# The code on the manual's pages is the code of the examples, which are built and run: each block of C, C++ or resource script on a
# page of classes, of functions and of the tour stands in one file of examples/, line by line. The tour's picture has the size that
# the dialog has.
set -euo pipefail
cd "$1"
picture=$2

# The files one behind the other, without the space at the ends of lines and without empty lines.
plain() {
    sed -E 's/^[[:space:]]+//; s/[[:space:]]+$//' "$@" | grep -v '^$'
}

failed=0
count=0
blocks=$(mktemp -d)
trap 'rm -rf "$blocks"' EXIT
for page in docs/tour.md docs/classes/*.md docs/functions/*.md; do
    rm -f "$blocks"/*
    awk -v folder="$blocks" '
        /^ *```/ { inside = !inside; if (inside) { wanted = $0 ~ /```(cpp|c|rc)$/; file = folder "/" ++count } next }
        inside && wanted { print > file }' "$page"
    for block in "$blocks"/*; do
        [ -f "$block" ] || { echo "FAILED: $page shows no code"; failed=1; continue; }
        count=$((count + 1))
        found=no
        for example in examples/*.cpp examples/*.c examples/*.h examples/*.rc; do
            # A block that is somewhere in the file: what is left of it behind the block differs from all of it.
            text=$(plain "$example")
            [ "${text/"$(plain "$block")"/}" = "$text" ] || { found=yes; break; }
        done
        [ $found = yes ] || { echo "FAILED: on $page, and in no example:"; cat "$block"; failed=1; }
    done
done

size() { # of a PNG file: bytes 16 to 23
    od -An -tx1 -j16 -N8 "$1"
}
if [ -f "$picture" ] && [ "$(size "$picture")" != "$(size docs/pictures/tour.png)" ]; then
    echo "FAILED: docs/pictures/tour.png is old; the new one is $picture"
    failed=1
fi
[ $failed = 0 ] && echo "passed: $count blocks"
