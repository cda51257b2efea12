# What the scripts of this folder share; sourced with the gallery and a working folder as arguments.
set -euo pipefail

gallery=$1
work=$2
rm -rf "$work"
mkdir -p "$work"

fail() {
    echo "FAILED: $*"
    exit 1
}

skip() {
    echo "skipped: $*"
    exit 77
}

need() {
    local program
    for program in "$@"; do
        command -v "$program" >/dev/null || skip "$program is not installed"
    done
}

# A state of its own, with settings that make the date's order known.
export CVUTIL32_HOME=$work/state
mkdir -p "$CVUTIL32_HOME"
printf '[intl]\r\niDate=0\r\nsDate=/\r\n' >"$CVUTIL32_HOME/win.ini"

# Leaks are looked for by the test programs; the host's video libraries keep memory of their own to the end.
export ASAN_OPTIONS=${ASAN_OPTIONS:+$ASAN_OPTIONS:}detect_leaks=0

# find_fields <picture>: prints "x y width height" of each white field in it, from the top.
find_fields() {
    convert "$1" -fill black +opaque white -define connected-components:verbose=true \
        -define connected-components:area-threshold=300 -connected-components 4 null: |
        sed -nE 's/^ *[0-9]+: ([0-9]+)x([0-9]+)\+([0-9]+)\+([0-9]+) [^ ]+ [0-9]+ (gray\(255\)|srgb\(255,255,255\)|white).*/\3 \4 \1 \2/p' |
        awk '$3 > 50 && $3 < 130 && $4 > 12 && $4 < 26' | sort -n -k2
}
