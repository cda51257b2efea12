#!/bin/bash
# The format of all sources and, with clang-tidy, the library itself, each source by itself: from a tree that is only configured,
# as a build compiles in batches. Then what must hold of the sources as a whole.
source "$(dirname "$0")/common.sh"

install_packages "${build_packages[@]}" "${lint_packages[@]}"
commands=build/lint
cmake --preset native -B "$commands" -DCVUTIL32_TESTS=OFF -DCVUTIL32_UNITY=OFF >/dev/null
# What gcc alone understands.
sed -i 's/ -fno-lifetime-dse//; s/ -Wno-restrict//' "$commands/compile_commands.json"

git ls-files '*.cpp' '*.h' '*.c' | xargs clang-format --dry-run -Werror
log=$commands/lint.log
if ! run-clang-tidy -quiet -p "$commands" "^$root/(core|classes|services|controls|dialogs)/" >"$log" 2>&1; then
    sed 's/\x1b\[[0-9;]*m//g' "$log" | grep -E "(warning|error):" | sort -u
    die "clang-tidy has something to say, see $log"
fi
tools/check-structure.sh
say "format, clang-tidy and the structure have nothing to say"
