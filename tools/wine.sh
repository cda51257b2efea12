#!/bin/bash
# Makes Debian's wine ready for programs of a width, in a prefix of its own, and runs a command with it:
#   tools/wine.sh windows32|windows64 PROGRAM.exe [ARGUMENTS]   a Windows program, on a virtual screen
#   tools/wine.sh windows32|windows64 COMMAND [ARGUMENTS]       anything that runs Windows programs by "$WINE"
#   tools/wine.sh windows32|windows64                           nothing more
# Where that width cannot be run, one line says why and the result is 125.
#
# Wine's 32-bit half is unpacked from Debian's packages and laid over /usr in a mount namespace, for the command alone: the machine
# need not know of another architecture. Where the kernel runs no 32-bit programs, or CVUTIL32_EMULATE is set, they run in
# qemu's user emulation, by an entry of binfmt_misc in a user namespace (kernels from 6.7 on).
#
# Everything is kept in build/wine, or where CVUTIL32_WINE says, so that several working copies can share it.
source "$(dirname "$0")/common.sh"

readonly cannot=125
readonly mount_command=--mount
kept=${CVUTIL32_WINE:-$root/build/wine}
half=$kept/half
emulator=$kept/emulator
log=$kept/prepare.log

# In the namespaces: the 32-bit files and what runs them, then the command.
if [ "${1:-}" = "$mount_command" ]; then
    shift
    if [ -n "${EMULATE:-}" ]; then
        mount -t binfmt_misc none /proc/sys/fs/binfmt_misc
        # Programs for i386, whatever their operating system's number.
        printf %s ":i386:M::\x7fELF\x01\x01\x01\x00\x00\x00\x00\x00\x00\x00\x00\x00\x02\x00\x03\x00:\xff\xff\xff\xff\xff\xfe\xfe\xff\xff\xff\xff\xff\xff\xff\xff\xff\xfe\xff\xff\xff:$emulator/qemu-i386:F" \
            >/proc/sys/fs/binfmt_misc/register
    fi
    mount -t overlay overlay -o "lowerdir=$half/usr:/usr" /usr
    [ -z "${EMULATE:-}" ] || export LD_PRELOAD=libtrapnumber.so
    exec "$@"
fi

preset=${1:-}
case "$preset" in
windows32 | windows64) shift ;;
*) die "usage: tools/wine.sh windows32|windows64 [COMMAND...]" ;;
esac
export WINEPREFIX=$kept/prefix WINEARCH=win64 WINEDEBUG=${WINEDEBUG:--all}
export WINEDLLOVERRIDES="mscoree,mshtml,winemenubuilder.exe,winedbg.exe="

# The first of these programs that is here.
find_program() {
    command -v "$@" | head -n 1 | grep . || die "wine64 is installed but $1 cannot be found"
}

# get_packages <architecture> <suites> <package>...: unpacks Debian's packages into $kept/new, by an apt that has nothing to do
# with the machine's own lists and packages but the mirror.
get_packages() {
    local architecture=$1 suites=$2 work=$kept/apt mirror package
    shift 2
    mirror=$(cat /etc/apt/sources.list /etc/apt/sources.list.d/*.list /etc/apt/sources.list.d/*.sources 2>/dev/null |
        grep -v security | grep -oE 'https?://[^ ]*/debian/?( |$)' | head -n 1 || true)
    [ -n "$mirror" ] || die "E: no mirror of Debian in /etc/apt"
    rm -rf "$work" "$kept/new"
    mkdir -p "$work"/{lists,archives}/partial "$kept/new"
    echo "deb [signed-by=/usr/share/keyrings/debian-archive-keyring.gpg] $mirror $suites main" >"$work/sources.list"
    export APT_CONFIG=$work/apt.conf
    cat >"$APT_CONFIG" <<EOT
APT::Architecture "$architecture"; APT::Architectures "$architecture"; APT::Sandbox::User "root";
Dir::Etc::SourceList "$work/sources.list"; Dir::Etc::SourceParts "-"; Dir::Etc::PreferencesParts "-";
Dir::State "$work"; Dir::State::status "/dev/null"; Dir::Cache "$work";
EOT
    (cd "$work" && apt-get -q update && apt-get -q download "$@")
    for package in "$work"/*.deb; do
        dpkg-deb --extract "$package" "$kept/new"
    done
    rm -rf "$work"
}

get_half() {
    local codename files=$kept/new/usr
    codename=$(. /etc/os-release && echo "$VERSION_CODENAME")
    rm -rf "$half"
    get_packages i386 "$codename" "libwine=$version" "wine32=$version" libc6 libfreetype6 libpng16-16 zlib1g libbrotli1 \
        libfontconfig1 libexpat1 libx11-6 libxext6 libxcb1 libxau6 libxdmcp6 libbsd0 libmd0
    mkdir -p "$half/usr/lib/wine"
    mv "$files/lib/i386-linux-gnu" "$half/usr/lib"
    cp -a "$kept"/new/lib/i386-linux-gnu/. "$half/usr/lib/i386-linux-gnu"
    ln -s i386-linux-gnu/ld-linux.so.2 "$half/usr/lib/ld-linux.so.2"
    mv "$files/lib/wine/wine" "$half/usr/lib/wine"
    # This one the package makes itself when it is installed; the other half has done so.
    cp /usr/lib/x86_64-linux-gnu/wine/i386-windows/zlib1.dll "$half/usr/lib/i386-linux-gnu/wine/i386-windows"
    rm -rf "$kept/new"
}

# With qemu 7.2, Debian 12's own, a fault that is caught ends a program that has had a second thread.
get_emulator() {
    local codename width
    codename=$(. /etc/os-release && echo "$VERSION_CODENAME")
    install_packages gcc
    get_packages amd64 "$codename-backports" qemu-user
    mkdir -p "$emulator"
    mv "$kept/new/usr/bin/qemu-i386" "$emulator"
    rm -rf "$kept/new"
    gcc -m32 -O2 -fPIC -shared -nostdlib -o "$half/usr/lib/i386-linux-gnu/libtrapnumber.so" tools/trap_number.c
    # Programs of 64 bits inherit the wish for the library, and shall find one.
    mkdir -p "$half/usr/lib/x86_64-linux-gnu"
    gcc -shared -nostdlib -o "$half/usr/lib/x86_64-linux-gnu/libtrapnumber.so" -x c /dev/null
}

runs_32_bits() {
    [ -z "${CVUTIL32_EMULATE:-}" ] && "$half/usr/lib/ld-linux.so.2" --version >/dev/null 2>&1
}

make_prefix() {
    rm -rf "$WINEPREFIX"
    on_screen "$WINE" wineboot -i
    # Without a window manager each managed window would wait two seconds for one.
    on_screen "$WINE" reg add 'HKCU\Software\Wine\X11 Driver' /v Managed /d N /f
}

# once <file> <what> <function>: does what is to be done once; on failure one line tells which and why.
once() {
    [ ! -f "$1" ] || return 0
    say "$2"
    # In a shell of its own, so that its first failure ends it.
    (set -e; "$3") >"$log" 2>&1 8>&- &
    if ! wait $!; then
        say "$2: failed: $(grep -m 1 'E: ' "$log" || echo "see $log")"
        exit $cannot
    fi
    touch "$1"
}

# Runs a command on a screen of its own, and ends wine after it.
namespaces=()
on_screen() {
    "${namespaces[@]}" xvfb-run -a -s "-screen 0 1280x1024x24 -nolisten tcp -noreset" \
        bash -c 'code=0; "${@:2}" || code=$?; "$1" -k || true; "$1" -w; exit $code' on_screen "$server" "$@" 8>&-
}

try_install "${wine_packages[@]}" || exit $cannot
WINE=$(find_program wine64 /usr/lib/wine/wine64)
server=$(find_program wineserver wineserver64 /usr/lib/wine/wineserver64)
export WINE
mkdir -p "$kept"
# One run at a time: they share the prefix.
exec 8>"$kept/lock"
flock 8
if [ "$preset" = windows32 ]; then
    version=$(dpkg-query -W -f '${Version}' libwine) || exit $cannot
    once "$half/ready-$version" "getting wine's 32-bit half" get_half
    if ! runs_32_bits; then
        once "$emulator/ready-$version" "getting an emulator for 32 bits" get_emulator
        export EMULATE=1
    fi
    namespaces=(unshare --user --map-root-user --mount "$root/tools/wine.sh" "$mount_command")
    "${namespaces[@]}" true 2>"$log" || { say "no namespace for 32 bits: $(tail -n 1 "$log")"; exit $cannot; }
fi
# One that was made for 32 bits has both halves.
[ "$preset" = windows64 ] && [ -f "$WINEPREFIX/ready-windows32" ] ||
    once "$WINEPREFIX/ready-$preset" "making a prefix for wine" make_prefix
[ $# -gt 0 ] || exit 0
case "$1" in
*.exe) set -- "$WINE" "$@" ;;
esac
on_screen "$@"
