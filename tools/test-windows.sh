#!/bin/bash
# Builds for 64-bit Windows and runs those tests under Debian's wine64, in a prefix of their own. Where the packages cannot be
# had, says so and succeeds.
source "$(dirname "$0")/common.sh"

install_packages "${windows_packages[@]}"
if ! try_install "${wine_packages[@]}"; then
    say "the Windows tests are not run here"
    exit 0
fi
wine=$(command -v wine64 || command -v wine || echo /usr/lib/wine/wine64)
[ -x "$wine" ] || die "wine64 is installed but its program cannot be found"

configure windows64 -DCVUTIL32_TESTS=ON
cmake --build build/windows64

export WINEPREFIX=$root/build/wine WINEDEBUG=-all WINEDLLOVERRIDES="mscoree,mshtml=" WINEARCH=win64
run() {
    local test failed=0 count=0
    "$wine" wineboot -i >/dev/null 2>&1
    # Without a window manager each managed window would wait two seconds for one.
    "$wine" reg add 'HKCU\Software\Wine\X11 Driver' /v Managed /d N /f >/dev/null 2>&1
    for test in build/windows64/bin/*test*.exe; do
        [ -f "$test" ] || die "no tests in build/windows64/bin"
        count=$((count + 1))
        echo "== $(basename "$test")"
        timeout 1800 "$wine" "$test" --gtest_brief=1 </dev/null || { failed=$((failed + 1)); echo "FAILED: $(basename "$test")"; }
    done
    wineserver=$(command -v wineserver || command -v wineserver64 || echo /usr/lib/wine/wineserver64)
    "$wineserver" -k 2>/dev/null || true
    echo "Windows tests: $((count - failed)) of $count programs passed"
    [ "$failed" = 0 ]
}

if [ "${1:-}" = --inside ]; then
    run
else
    on_virtual_screen "$0" --inside
fi
