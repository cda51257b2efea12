#!/bin/bash
# What must hold of the sources as a whole: every call of the platform layer has a caller, every arrow between folders points down,
# no folder is crowded. Prints what does not hold.
source "$(dirname "$0")/common.sh"

findings=$(mktemp)
trap 'rm -f "$findings"' EXIT
complain() {
    echo "$*" >>"$findings"
}

# A folder with more sources than this wants rooms.
most_sources=24
while read -r count folder; do
    [ "$count" -le $most_sources ] || complain "$folder: $count sources, at most $most_sources fit into a folder"
done < <(git ls-files '*.cpp' '*.h' '*.c' | xargs -n 1 dirname | sort | uniq -c)

# The sources that are built, without comments.
code_of() {
    git ls-files "$@" | grep -E '\.(cpp|h|c)$' | xargs sed -E 's#//.*##; s#/\*.*\*/##'
}

# Calls that are declared and that nobody makes: not the library, the gallery, an example, a tool, a benchmark or a test but those
# of the layer itself. platform/granted.txt names those that a dialog procedure takes for granted, each with the reason. A macro
# of the headers that somebody uses calls what stands in it.
words='[A-Za-z_][A-Za-z0-9_]*'
uncalled=$(
    awk '
        function words_of(text, list,    count) {
            count = 0
            while (match(text, /[A-Za-z_][A-Za-z0-9_]*/)) {
                list[++count] = substr(text, RSTART, RLENGTH)
                text = substr(text, RSTART + RLENGTH)
            }
            return count
        }
        FILENAME == "-" { used[$1] = 1; next }
        FILENAME ~ /granted\.txt$/ { if ($0 !~ /^#/ && NF) used[$1] = 1; next }
        pending != "" { $0 = pending " " $0; pending = "" }
        /\\$/ { pending = substr($0, 1, length($0) - 1); next }
        /^#define / {
            name = $2
            sub(/\(.*/, "", name)
            body[name] = substr($0, index($0, name) + length(name))
            next
        }
        /^(WIN[A-Z]*API|STDAPI|SHSTDAPI|SHELLAPI) / {
            if ($0 !~ /\(/) { pending = $0; next }
            match($0, /[A-Za-z_0-9]+\(/)
            declared[substr($0, RSTART, RLENGTH - 1)] = 1
        }
        END {
            do {
                grew = 0
                for (name in body) if (name in used) {
                    count = words_of(body[name], list)
                    for (i = 1; i <= count; i++) if (!(list[i] in used)) { used[list[i]] = 1; grew = 1 }
                    delete body[name]
                }
            } while (grew)
            for (name in declared) if (!(name in used)) print name
        }
    ' - $(ls platform/granted.txt 2>/dev/null) $(git ls-files 'platform/include/*.h') < <(
        code_of include core classes services controls dialogs gallery examples tools bench tests ':!tests/platform' |
            grep -oE "$words" | sort -u
    ) | sort
)
for name in $uncalled; do
    complain "$name: declared by the platform layer, called by nobody but its own tests"
done

# rank <README>: the folders of its table, from low to high.
rank() {
    [ ! -f "$1" ] || sed -nE 's#^\| \[`([a-z]+)/`\].*#\1#p' "$1"
}

# arrows <folder> <names from low to high>: includes among them that point up. A folder's above.h is what it asks of those above it.
arrows() {
    local base=$1 order=$2
    git ls-files "platform/$base*.cpp" "platform/$base*.h" ':!platform/include' | xargs grep -HoE "^#include \"$base[a-z]+/[^\"]+\"" |
        awk -v base="$base" -v order="$order" '
            BEGIN { count = split(order, names, /[ \n]+/); for (i = 1; i <= count; i++) place[names[i]] = i }
            {
                split($0, part, ":#include ")
                from = substr(part[1], length("platform/" base) + 1)
                to = substr(part[2], length(base) + 2)
                a = from; sub(/\/.*/, "", a)
                b = to; sub(/\/.*/, "", b)
                if ((a in place) && (b in place) && place[b] > place[a]) print part[1] ": includes " part[2] ", which is above it"
                else if (from ~ /\// && !((a in place) && (b in place))) print part[1] ": no README tells the place of " a " or " b
            }'
}
for module in '' $(rank platform/README.md | sed 's#$#/#'); do
    order=$(rank "platform/${module}README.md")
    [ -z "$order" ] || arrows "$module" "$order" >>"$findings"
done

git ls-files platform/display | xargs grep -HoE '^#include "[a-z]+/' | grep -vE '"(base|display)/' >>"$findings" || true
git ls-files platform ':!platform/display' | xargs grep -HE '^#include "display/' | grep -v '"display/display.h"' >>"$findings" || true

# The seam: the library sees the headers of Windows, the layer nothing of the library.
modules=$(rank platform/README.md | paste -sd'|')
git ls-files core classes services controls dialogs include gallery examples | xargs grep -nE "^#include \"(platform|$modules)/" >>"$findings" || true
git ls-files platform | xargs grep -nE '^#include ["<](cvutil32|core|classes|services|controls|dialogs|gallery)/' >>"$findings" || true

if [ -s "$findings" ]; then
    cat "$findings"
    die "$(wc -l <"$findings") findings"
fi
say "every call has a caller, every arrow points down, no folder is crowded"
