#!/bin/bash
# The format of all sources and, with clang-tidy, the library itself: from a tree that is only configured, as a build compiles in
# batches. Then what must hold of the sources as a whole.
source "$(dirname "$0")/common.sh"
library=(core classes services controls dialogs)

install_packages "${build_packages[@]}" "${lint_packages[@]}"
commands=build/lint
cmake --preset native -B "$commands" -DCVUTIL32_TESTS=OFF -DCVUTIL32_UNITY=OFF >/dev/null
# What gcc alone understands.
sed -i 's/ -fno-lifetime-dse//; s/ -Wno-restrict//' "$commands/compile_commands.json"

git ls-files '*.cpp' '*.h' '*.c' | xargs clang-format --dry-run -Werror
log=$commands/lint.log
say_no() {
    sed 's/\x1b\[[0-9;]*m//g' "$log" | grep -E "(warning|error):" | sort -u
    die "clang-tidy has something to say, see $log"
}
# What follows all paths takes its time a source; this also sees that each source stands by itself.
run-clang-tidy -quiet -p "$commands" -checks="-bugprone-*,-performance-*,-modernize-*" "^$root/($(IFS='|' && echo "${library[*]}"))/" \
    >"$log" 2>&1 || say_no
# What looks at all that is declared takes its time a reading of the C++ library's headers: all sources in one.
all=$commands/all.cpp
git ls-files "${library[@]/%//*.cpp}" | while read -r source; do
    echo "#line 1 \"$source\""
    cat "$source"
done >"$all"
if ! clang-tidy -quiet -checks="-clang-analyzer-*,-misc-unused-*" "$all" -- -std=c++20 -DNOMINMAX -I. -Iinclude -Iplatform/include \
    >"$log" 2>&1; then
    # Told by the sources' own lines.
    awk -F: -v all="$all" 'FILENAME == all { if (/^#line 1 "/) { name = $0; gsub(/^#line 1 "|"$/, "", name); begin = FNR }
        source[FNR] = name; line[FNR] = FNR - begin; next }
        index($1, all) { place = source[$2] ":" line[$2]; sub(/^[^:]*:[0-9]+/, place) } { print }' "$all" "$log" >"$log.own"
    mv "$log.own" "$log"
    say_no
fi
tools/check-structure.sh
say "format, clang-tidy and the structure have nothing to say"
