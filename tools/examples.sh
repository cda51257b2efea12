#!/bin/bash
# Builds the examples against an installed package and runs them: tools/examples.sh [native|windows32|windows64]
#
# Those of classes and functions check what they show. Those with a dialog open it on a virtual screen and are closed by Escape.
# For Windows they are only built. The preset is taken as it was built (tools/test.sh, tools/build-windows.sh).
source "$(dirname "$0")/common.sh"

preset=${1:-native}
programs=$root/build/$preset/examples/bin

# A window comes up, and Escape ends its program well. Keys before the window has the focus are lost.
run_dialog() { # <name>
    local try program code=0
    "$programs/$1" &
    program=$!
    for try in {1..100}; do
        ! xdotool search --onlyvisible --pid $program >/dev/null 2>&1 || break
        sleep 0.1
    done
    [ "$try" != 100 ] || die "$1: no window within ten seconds"
    for try in {1..50}; do
        kill -0 $program 2>/dev/null || break
        xdotool key Escape
        sleep 0.2
    done
    [ "$try" != 50 ] || { kill $program; die "$1: does not end after Escape"; }
    wait $program || code=$?
    [ $code = 0 ] || die "$1: ended with $code"
}

run_dialogs() {
    local template count=0
    for template in examples/*.rc; do
        run_dialog "$(basename "$template" .rc)"
        count=$((count + 1))
    done
    say "$count examples opened their dialogs and ended well"
}

case "$preset" in
--dialogs)
    programs=$2
    run_dialogs
    exit
    ;;
native) install_packages "${build_packages[@]}" "${test_packages[@]}" ;;
windows32 | windows64) install_packages "${windows_packages[@]}" ;;
*) die "usage: tools/examples.sh [native|windows32|windows64]" ;;
esac
[ -f "build/$preset/build.ninja" ] || die "build the preset $preset first"

installed=$root/build/$preset/installed
rm -rf "$installed"
cmake --install "build/$preset" --prefix "$installed" >/dev/null
build_examples "$preset" "$installed"
[ "$preset" = native ] || exit 0

export CVUTIL32_HOME=$root/build/$preset/examples/state
rm -rf "$CVUTIL32_HOME"
CVUTIL32_DISPLAY=none ctest --test-dir "build/$preset/examples" --output-on-failure
unset CVUTIL32_DISPLAY WAYLAND_DISPLAY
on_virtual_screen "$0" --dialogs "$programs"
