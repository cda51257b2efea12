# What the scripts of this folder share; sourced by them, from any folder.
set -euo pipefail

script=tools/$(basename "$0")
root=$(cd "$(dirname "${BASH_SOURCE[0]}")/.." && pwd)
cd "$root"

# Windres compiles the resource scripts on every host.
build_packages=(g++ cmake ninja-build pkg-config binutils-mingw-w64-x86-64 libsdl2-dev libicu-dev libfreetype-dev
    libfontconfig-dev libpixman-1-dev libsqlite3-dev xfonts-100dpi)
test_packages=(googletest xvfb xauth xdotool x11-utils x11-xserver-utils openbox wmctrl imagemagick)
bench_packages=(libbenchmark-dev time)
lint_packages=(clang-format clang-tidy)
package_packages=(zip dpkg-dev file doxygen)
# The sanitizers are clang's, which takes half of gcc's time to build what they watch, as the fuzzer is.
sanitize_packages=(clang libclang-rt-dev)
windows_packages=(cmake ninja-build googletest g++-mingw-w64-x86-64-posix g++-mingw-w64-i686-posix
    binutils-mingw-w64-x86-64 binutils-mingw-w64-i686 clang lld llvm)
wine_packages=(wine64 xvfb xauth)

say() {
    echo "$script: $*" >&2
}

die() {
    say "$*"
    exit 1
}

# Prints those of the packages that are not installed.
missing_packages() {
    local installed
    installed=$(dpkg-query -W -f '${db:Status-Status} ${Package}\n' "$@" 2>/dev/null | sed -n 's/^installed //p' || true)
    printf '%s\n' "$@" | grep -vxF -e "$installed" || true
}

# Installs what is missing of the packages. On failure, one line says why and the result is 1.
try_install() {
    if ! command -v dpkg-query >/dev/null; then
        say "not a Debian system: packages are left to you (needs: $*)"
        return 0
    fi
    local missing
    missing=$(missing_packages "$@" | tr '\n' ' ')
    missing=${missing% }
    [ -n "$missing" ] || return 0

    local as_root=()
    if [ "$(id -u)" -ne 0 ]; then
        if command -v sudo >/dev/null && { [ -t 0 ] || sudo -n true 2>/dev/null; }; then
            as_root=(sudo)
        else
            say "cannot install packages: not root and no sudo (needs: $missing)"
            return 1
        fi
    fi
    say "installing $missing"
    mkdir -p build
    if ! { "${as_root[@]}" apt-get update -q &&
        "${as_root[@]}" env DEBIAN_FRONTEND=noninteractive apt-get install -qy --no-install-recommends $missing; } \
        >build/packages.log 2>&1 </dev/null; then
        say "cannot install packages: $(grep -m1 '^E:' build/packages.log || echo see build/packages.log) (needs: $missing)"
        return 1
    fi
}

install_packages() {
    try_install "$@" || exit 1
}

# configure <preset> [options]: only when the preset has no build yet, when the presets changed, or when an option is not
# what the build was configured with; everything else that changes is seen by the build itself.
configure() {
    local preset=$1 build=build/$1 option
    shift
    local stale=no
    [ -f "$build/build.ninja" ] && [ ! CMakePresets.json -nt "$build/build.ninja" ] || stale=yes
    for option in "$@"; do
        option=${option#-D}
        grep -qE "^${option%%=*}:[A-Z]+=${option#*=}\$" "$build/CMakeCache.txt" 2>/dev/null || stale=yes
    done
    [ $stale = no ] || cmake --preset "$preset" "$@"
}

# build_examples <preset> <prefix>: in build/<preset>/examples, against the package that was installed there.
build_examples() {
    local toolchain
    toolchain=$(sed -nE 's/^CMAKE_TOOLCHAIN_FILE:[A-Z]+=//p' "build/$1/CMakeCache.txt")
    # Found as the manual tells, and not where it was the last time.
    cmake -S examples -B "build/$1/examples" -G Ninja -DCMAKE_BUILD_TYPE=Release ${toolchain:+-DCMAKE_TOOLCHAIN_FILE="$toolchain"} \
        -DCMAKE_C_FLAGS="-Wall -Wextra -Werror" -DCMAKE_CXX_FLAGS="-Wall -Wextra -Werror -DWIN32_LEAN_AND_MEAN" \
        -Ucvutil32_DIR -DCMAKE_PREFIX_PATH="$2" >/dev/null
    cmake --build "build/$1/examples"
}

# Runs a command on a virtual X server of its own, which goes on between two programs of it.
on_virtual_screen() {
    xvfb-run -a -s "-screen 0 1280x1024x24 -noreset" "$@"
}
