#!/bin/bash
# The order of the platform layer, the format of all sources and, with clang-tidy, the library itself. Needs the compile commands of
# a build: tools/test.sh first.
source "$(dirname "$0")/common.sh"

install_packages "${lint_packages[@]}"
commands=build/native
[ -f "$commands/compile_commands.json" ] || die "no build to take the compile commands from: run tools/test.sh first"

tools/check-layer.sh || die "the platform layer holds what nobody uses, or an arrow points the wrong way"

git ls-files '*.cpp' '*.h' '*.c' | xargs clang-format --dry-run -Werror
log=$commands/lint.log
if ! run-clang-tidy -quiet -p "$commands" "^$root/(core|classes|services|controls|dialogs)/" >"$log" 2>&1; then
    sed 's/\x1b\[[0-9;]*m//g' "$log" | grep -E "(warning|error):" | sort -u
    die "clang-tidy has something to say, see $log"
fi
say "format and clang-tidy have nothing to say"
