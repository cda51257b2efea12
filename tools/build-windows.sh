#!/bin/bash
# Builds the library, the gallery and the tests for Windows: tools/build-windows.sh windows32|windows64
source "$(dirname "$0")/common.sh"

case "${1:-}" in
windows32 | windows64) ;;
*) die "usage: tools/build-windows.sh windows32|windows64" ;;
esac
install_packages "${windows_packages[@]}"
configure "$1" -DCVUTIL32_TESTS=ON
cmake --build "build/$1"
