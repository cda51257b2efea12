#!/bin/bash
# The gallery's command line, without a desktop.
source "$(dirname "$0")/common.sh"
need convert
export CVUTIL32_DISPLAY=none

expect() { # <exit code> <standard output> <standard error, a pattern> <arguments...>
    local code=0 wanted=$1 out=$2 err=$3
    shift 3
    "$gallery" "$@" >"$work/out" 2>"$work/err" </dev/null || code=$?
    [ "$code" = "$wanted" ] || fail "gallery $*: ended with $code, not $wanted"
    [[ "$(<"$work/out")" == $out ]] || fail "gallery $*: printed $(<"$work/out")"
    [[ "$(<"$work/err")" == $err ]] || fail "gallery $*: said $(<"$work/err")"
}

expect 0 'gallery (CVUTIL32) [0-9]*' '' --version
expect 0 'gallery *--capture PATH*' '' --help
expect 2 '' 'gallery: unknown option: --frobnicate' --frobnicate
expect 2 '' 'gallery: unknown option: file.png' file.png
expect 2 '' 'gallery: a value is missing after --capture' --capture
expect 2 '' "gallery: cannot write the picture: $work/no/such/folder.png" --capture "$work/no/such/folder.png"

expect 0 '' '' --capture "$work/a picture.png"
read -r width height <<<"$(identify -format '%w %h' "$work/a picture.png")"
[ "$width" -gt 300 ] && [ "$height" -gt 200 ] || fail "the picture is $width by $height"
[ "$(find_fields "$work/a picture.png" | wc -l)" = 2 ] || fail "the picture does not show two fields"

expect 0 '' "gallery: no desktop*$CVUTIL32_HOME/gallery.png"
cmp -s "$work/a picture.png" "$CVUTIL32_HOME/gallery.png" || fail "the picture without a desktop is another one"

# Found on the search path, a program is started by its bare name.
by_path=$gallery
gallery=$(basename "$by_path")
PATH=$(dirname "$by_path"):$PATH expect 0 'gallery (CVUTIL32) [0-9]*' '' --version
PATH=$(dirname "$by_path"):$PATH expect 0 '' '' --capture "$work/by path.png"
gallery=$by_path

DISPLAY=:9999 CVUTIL32_DISPLAY=sdl expect 0 '' "cvutil32: no window on the desktop:*"
echo "passed"
