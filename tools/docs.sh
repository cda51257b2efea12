#!/bin/bash
# Makes the reference of the public headers with Doxygen, in build/docs/html. A warning is an error: every exported name is
# described, with all its arguments.
source "$(dirname "$0")/common.sh"

install_packages doxygen
mkdir -p build/docs
version=$(sed -nE 's/^project\(cvutil32 VERSION ([0-9.]+).*/\1/p' CMakeLists.txt)
{ cat docs/Doxyfile && echo "PROJECT_NUMBER = $version"; } | doxygen - >build/docs/doxygen.log
say "the reference is in build/docs/html"
