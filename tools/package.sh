#!/bin/bash
# Makes the packages in build/package: a zip for Windows (32 and 64 bits) and a Debian package for this host.
#   tools/package.sh [windows|linux]    one of them alone
source "$(dirname "$0")/common.sh"

wanted=${1:-all}
case "$wanted" in
all | windows | linux) ;;
*) die "usage: tools/package.sh [windows|linux]" ;;
esac
version=$(sed -nE 's/^project\(cvutil32 VERSION ([0-9.]+).*/\1/p' CMakeLists.txt)
packages=$root/build/package
mkdir -p "$packages"

# What a DLL or program may depend on: what every Windows has.
system_libraries='advapi32|comctl32|comdlg32|gdi32|kernel32|msvcrt|ole32|shell32|user32'

# check_imports <file>...: nothing but system libraries, and CVUTIL32.dll itself.
check_imports() {
    local file foreign
    for file in "$@"; do
        foreign=$(x86_64-w64-mingw32-objdump -p "$file" | sed -nE 's/^\s*DLL Name: (.*)\.dll$/\1/Ip' |
            grep -vixE "$system_libraries|cvutil32" || true)
        [ -z "$foreign" ] || die "$(basename "$file") depends on $foreign"
    done
}

# The manual as text and, where Doxygen can be had, the reference.
install_documents() { # <folder>
    mkdir -p "$1"
    cp -r CHANGELOG.md docs/*.md docs/classes docs/functions docs/controls docs/dialogs docs/pictures "$1"/
    # The manual lies beside it here.
    sed 's#(docs/#(#g; s#(examples)#(../examples)#; s#(CONTRIBUTING.md)##' README.md >"$1/README.md"
    tools/docs.sh
    cp -r build/docs/html "$1/reference"
}

package_windows() {
    local name=cvutil32-$version-windows preset
    local folder=$packages/$name
    install_packages "${windows_packages[@]}" "${package_packages[@]}"
    rm -rf "$folder" "$folder.zip"
    for preset in windows32 windows64; do
        tools/build-windows.sh $preset
        cmake --install build/$preset --prefix "$folder" --strip >/dev/null
        # The tool's first lines tell how it was called; what other linkers want to know is whose names these are.
        sed -i -e '1i LIBRARY CVUTIL32.dll' -e '/^;/d' "$folder/$(library_folder $preset)/CVUTIL32.def"
        build_examples $preset "$folder"
        cp build/$preset/examples/bin/*.exe "$folder/$(program_folder $preset)"/
    done
    for preset in lib lib64; do
        [ -f "$folder/$preset/CVUTIL32.lib" ] || die "no $preset/CVUTIL32.lib was made"
    done
    check_imports "$folder"/bin/*.dll "$folder"/bin/*.exe "$folder"/bin64/*.dll "$folder"/bin64/*.exe
    mkdir -p "$folder/examples"
    cp examples/* "$folder/examples"/
    cp LICENSE "$folder"/
    install_documents "$folder/doc"
    sed "1s/.*/# CVUTIL32 $version for Windows/; s#](\([a-z]\)#](doc/\1#g" docs/windows.md >"$folder/README.md"
    (cd "$packages" && zip -qr "$name.zip" "$name")
    say "made build/package/$name.zip"
}

library_folder() {
    [ "$1" = windows32 ] && echo lib || echo lib64
}

program_folder() {
    [ "$1" = windows32 ] && echo bin || echo bin64
}

package_linux() {
    install_packages "${build_packages[@]}" "${package_packages[@]}"
    [ -f build/release/build.ninja ] ||
        cmake --preset native -B build/release -DCMAKE_INSTALL_PREFIX=/usr -DCVUTIL32_TESTS=OFF
    cmake --build build/release
    (cd build/release && cpack -B "$packages" >/dev/null)
    rm -rf "$packages/_CPack_Packages"
    say "made $(cd "$packages" && ls -t *.deb | head -1) in build/package"
}

[ "$wanted" = linux ] || package_windows
[ "$wanted" = windows ] || package_linux
