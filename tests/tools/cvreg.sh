#!/bin/bash
# cvreg on the command line: what it stores, shows, reads and writes, and what it says when it cannot.
set -euo pipefail

cvreg=$1
work=$2
rm -rf "$work"
mkdir -p "$work"
export CVUTIL32_HOME=$work/state
unset CVUTIL32_CODEPAGE
key='HKCU\Software\Calverin\Try'

fail() {
    echo "FAILED: $*"
    exit 1
}

expect() { # <exit code> <standard output> <standard error, a pattern> <arguments...>
    local code=0 wanted=$1 out=$2 err=$3
    shift 3
    "$cvreg" "$@" >"$work/out" 2>"$work/err" <"${input:-/dev/null}" || code=$?
    [ "$code" = "$wanted" ] || fail "cvreg $*: ended with $code, not $wanted: $(<"$work/err")"
    [ "$(<"$work/out")" == "$out" ] || fail "cvreg $*: printed $(<"$work/out")"
    [[ "$(<"$work/err")" == $err ]] || fail "cvreg $*: said $(<"$work/err")"
}

stores() { # <what get prints> <arguments of set behind the key and name, or all of them from -t on>
    local shown=$1
    shift
    if [ "$1" = -t ]; then
        expect 0 '' '' set -t "$2" "$key" Value "$3"
    else
        expect 0 '' '' set "$key" Value "$1"
    fi
    expect 0 "$shown" '' get "$key" Value
}

# --- what set stores
stores text text
stores 'Grüße, 5 €' 'Grüße, 5 €'
stores 640 dword:640
stores 4294967295 dword:0xFFffFFFF
stores 10 dword:010
stores dword:640 -t sz dword:640
stores 7 -t dword 7
stores '%PATH%;x' -t expand_sz '%PATH%;x'
stores '"Value"=hex:01,ff,03' -t binary 01,fF,3
stores '' ''
expect 2 '' "cvreg: '-1' is no 32-bit number" set "$key" Value dword:-1
expect 2 '' "cvreg: '4294967296' is no 32-bit number" set "$key" Value dword:4294967296
expect 2 '' "cvreg: '' is no 32-bit number" set "$key" Value dword:
expect 2 '' "cvreg: '1;2' is no list of bytes" set -t binary "$key" Value '1;2'
expect 2 '' "cvreg: there is no type 'text'*" set -t text "$key" Value x
expect 2 '' 'usage:*' set "$key" Value
expect 1 '' "cvreg: '日本' has characters that the code page 1252 lacks" set "$key" Value 日本
expect 1 '' "cvreg: '*' has characters*" set "$key" Value $'\xFF'
expect 0 '' '' get "$key" Value

# --- errors in words
expect 1 '' "cvreg: $(sed 's/\\/\\\\/g' <<<"$key"), none does not exist" get "$key" none
expect 1 '' 'cvreg: HKXX\\a does not begin with a root*' list 'HKXX\a'
expect 1 '' 'cvreg: HKLM cannot be deleted' delete HKLM
expect 1 '' "cvreg: cannot read $work: it is a folder" import "$work"
expect 1 '' "cvreg: cannot read $work/none: No such file*" import "$work/none"
input=$work expect 1 '' 'cvreg: cannot read the standard input: it is a folder' import
expect 1 '' 'cvreg: the standard input: line 1: the file is empty' import
printf 'REGEDIT4\n[%s]\n"a"="b"\n[HKXX\\c]\n' "$key" >"$work/wrong.reg"
expect 1 '' "cvreg: $work/wrong.reg: line 4: HKXX\\\\c does not begin with a root*" import "$work/wrong.reg"
expect 1 '' '*does not exist' get "$key" a

# --- what it prints must arrive
for command in "list $key" "get $key Value" "export $key" help; do
    code=0
    "$cvreg" $command >/dev/full 2>"$work/err" || code=$?
    [ "$code" = 1 ] || fail "cvreg $command >/dev/full ended with $code"
    grep -q 'cannot write to the standard output: No space left' "$work/err" || fail "it said $(<"$work/err")"
done
expect 1 '' 'cvreg: cannot write /dev/full: No space left*' export "$key" /dev/full

# --- out and in again, with names of several lines
"$cvreg" set "$key\\a
b" 'name
"of" lines' 'C:\new'
expect 0 '' '' export "$key" "$work/first.reg"
expect 0 '' '' delete "$key"
expect 1 '' '*does not exist' list "$key"
expect 0 '' '' import "$work/first.reg"
expect 0 '' '' export "$key" "$work/second.reg"
cmp "$work/first.reg" "$work/second.reg" || fail "it came back as something else"
expect 0 'C:\new' '' get "$key\\a
b" 'name
"of" lines'

# --- a full disk, for which a limit on the size of files stands
head -c 400000 /dev/zero | tr '\0' x | sed 's/^/REGEDIT4\n['"${key//\\/\\\\}"']\n"large"="/; s/$/"\n/' >"$work/large.reg"
code=0
(
    trap '' XFSZ
    ulimit -f 300
    exec "$cvreg" import "$work/large.reg"
) 2>"$work/err" || code=$?
[ "$code" = 1 ] || fail "a full disk ended with $code"
grep -q 'large cannot be written: the disk is full' "$work/err" || fail "it said $(<"$work/err")"
expect 0 'C:\new' '' get "$key\\a
b" 'name
"of" lines'
echo "passed"
