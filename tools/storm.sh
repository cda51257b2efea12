#!/bin/bash
# tools/storm.sh [events] [seed] [--failing] [--vanishing]: builds the storm with both sanitizers and lets it blow: a dialog with
# every control gets so many random events (20,000 unless told), which follow from the seed. tests/storm/README.md tells more.
source "$(dirname "$0")/common.sh"

install_packages "${build_packages[@]}" "${test_packages[@]}" "${sanitize_packages[@]}"
configure sanitize -DCVUTIL32_TESTS=ON
cmake --build build/sanitize --target storm
exec build/sanitize/bin/storm "$@"
