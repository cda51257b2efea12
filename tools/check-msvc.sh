#!/bin/bash
# Compiles the library and its resources as Microsoft's compiler would, by clang over the headers of MinGW-w64, for both widths or for
# tools/check-msvc.sh 32|64: whether the build files take such a compiler, and the sources no extension of another. A warning is an
# error. Nothing is linked: there is no C++ runtime library of that kind.
source "$(dirname "$0")/common.sh"

install_packages "${windows_packages[@]}"
# Clang takes that part when it is called so.
mkdir -p build/tools
ln -sf "$(command -v clang)" build/tools/clang-cl
[ $# -gt 0 ] || set -- 32 64
for bits in "$@"; do
    build=build/msvc$bits
    [ -f "$build/build.ninja" ] || cmake -G Ninja -B "$build" -DCMAKE_TOOLCHAIN_FILE="$root/cmake/clang-msvc.cmake" \
        -DCVUTIL32_BITS="$bits" -DCMAKE_BUILD_TYPE=Release -DCVUTIL32_TESTS=OFF >/dev/null
    objects=$(ninja -C "$build" -t targets all | sed -nE 's/^(core\/CMakeFiles\/cvutil32\.dir\/.*\.(obj|res)): .*/\1/p')
    [ -n "$objects" ] || die "nothing to compile in $build"
    ninja -C "$build" $objects
done
say "the library compiles as for Microsoft's compiler"
