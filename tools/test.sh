#!/bin/bash
# Builds everything and runs all tests; arguments go to ctest (tools/test.sh -R Date). CVUTIL32_PRESET picks another preset.
source "$(dirname "$0")/common.sh"

preset=${CVUTIL32_PRESET:-native}
packages=("${build_packages[@]}" "${test_packages[@]}")
[ "$preset" != sanitize ] || packages+=("${sanitize_packages[@]}")
install_packages "${packages[@]}"
configure "$preset" -DCVUTIL32_TESTS=ON
cmake --build "build/$preset"

# Nobody's own settings are read or written, and no window opens on the desktop of the person who runs the tests.
export CVUTIL32_HOME=$root/build/$preset/state
export CVUTIL32_DISPLAY=none
rm -rf "$CVUTIL32_HOME"
# Tests mostly wait.
ctest --test-dir "build/$preset" --output-on-failure -j $((2 * $(nproc))) "$@"
