#!/bin/bash
# Installs what all the other scripts need, at once; each of them installs its own when it is called alone.
source "$(dirname "$0")/common.sh"

install_packages "${build_packages[@]}" "${test_packages[@]}" "${sanitize_packages[@]}" "${lint_packages[@]}" \
    "${windows_packages[@]}" doxygen
try_install "${wine_packages[@]}" || say "tests for Windows will not run"
