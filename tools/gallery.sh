#!/bin/bash
# Builds the gallery and runs it; arguments go to the gallery. Standard output carries what the gallery prints, nothing else.
source "$(dirname "$0")/common.sh"

install_packages "${build_packages[@]}"
if [ ! -f build/native/build.ninja ]; then
    configure native -DCVUTIL32_TESTS=OFF >&2
fi
cmake --build build/native --target gallery cvreg >&2
exec build/native/bin/cvutil32-gallery "$@"
