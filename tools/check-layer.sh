#!/bin/bash
# The platform layer holds what is used, and its arrows point one way. Prints what is against that, and fails if there is anything:
# - calls that are declared in platform/include and that nobody but the layer and its own tests makes, unless they are among the
#   ones taken for granted (platform/granted-calls.txt);
# - includes against the order of modules and rooms (platform/rooms.txt), and includes of the library, the gallery and the examples
#   that reach into the layer past its headers;
# - folders with more than 24 source files directly in them, but for those that platform/rooms.txt knows.
set -euo pipefail
cd "$(dirname "$0")/.."

readonly granted=platform/granted-calls.txt
readonly order=platform/rooms.txt
readonly most_granted=60
readonly most_files=24

files=$(mktemp)
calls=$(mktemp)
trap 'rm -f "$files" "$calls"' EXIT
# As a file that is new, or gone, counts before it is committed.
git ls-files --cached --others --exclude-standard | LC_ALL=C sort -u | while read -r file; do
    [ ! -f "$file" ] || echo "$file"
done >"$files"
tools/list-calls.sh | sed -n 's/^| `\([A-Za-z_0-9]*\)` .*/\1/p' >"$calls"

# Names that stand in code outside the layer and its tests; what comments say is no use.
callers() {
    grep -E '\.(c|cpp|h|rc)$' "$files" | grep -vE '^(platform|tests/platform)/' | tr '\n' '\0' | xargs -0 sed -e 's#//.*##' |
        grep -oE '[A-Za-z_][A-Za-z_0-9]*' | LC_ALL=C sort -u
}

# Macros of the headers, each with the names that its text holds: a caller of the macro calls those.
macros() {
    grep '^platform/include/.*\.h$' "$files" | tr '\n' '\0' | xargs -0 awk '
        /^[ \t]*#[ \t]*define[ \t]/ {
            line = $0
            while (line ~ /\\$/ && (getline more) > 0) line = substr(line, 1, length(line) - 1) " " more
            sub(/^[ \t]*#[ \t]*define[ \t]+/, "", line)
            gsub(/[^A-Za-z_0-9]+/, " ", line)
            print line
        }'
}

# $1: what calls, as words; $2: macros; then the calls and the granted ones.
unused_calls() {
    awk -v granted="$granted" -v most="$most_granted" '
        FILENAME == ARGV[1] { used[$1] = 1; next }
        FILENAME == ARGV[2] { macro[++macros] = $0; next }
        FILENAME == ARGV[3] { declared[$1] = 1; call[++calls] = $1; next }
        /^[ \t]+[^ \t]/ { for (i = 1; i <= NF; ++i) { name[++names] = $i; is_granted[$i] = 1 } }
        END {
            do {
                grown = 0
                for (i = 1; i <= macros; ++i) {
                    count = split(macro[i], word, " ")
                    if (!(word[1] in used)) continue
                    for (j = 2; j <= count; ++j) if (!(word[j] in used)) { used[word[j]] = 1; grown = 1 }
                }
            } while (grown)
            for (i = 1; i <= calls; ++i) {
                if (!(call[i] in used) && !(call[i] in is_granted))
                    print "nobody calls " call[i] ", and " granted " does not name it"
            }
            for (i = 1; i <= names; ++i) {
                if (!(name[i] in declared)) print granted " names " name[i] ", which is not declared"
                else if (name[i] in used) print granted " names " name[i] ", which is called"
            }
            if (names > most) print granted " names " names " calls, which are more than " most
        }' <(callers) <(macros) "$calls" "$granted"
}

# Every #include with quotes: the file and what it names.
includes() {
    grep -E '\.(c|cpp|h)$' "$files" | grep -vE '^tests/' | tr '\n' '\0' |
        xargs -0 grep -HE '^[ \t]*#[ \t]*include[ \t]*"' | sed -E 's/^([^:]*):[^"]*"([^"]*)".*/\1 \2/'
}

wrong_includes() {
    awk -v order="$order" '
        function folder_of(path) { sub(/\/?[^\/]*$/, "", path); return path }
        # A path without ".." and ".".
        function plain(path, part, count, i, kept, result) {
            count = split(path, part, "/")
            kept = 0
            for (i = 1; i <= count; ++i) {
                if (part[i] == ".." && kept > 0) --kept
                else if (part[i] != "." && part[i] != "") keep[++kept] = part[i]
            }
            result = ""
            for (i = 1; i <= kept; ++i) result = result (i > 1 ? "/" : "") keep[i]
            return result
        }
        function find(from, name, path) {
            path = plain(folder_of(from) "/" name)
            if (path in exists) return path
            if (("platform/" name) in exists) return "platform/" name
            return plain(name) in exists ? plain(name) : ""
        }
        # The room that a path of a module lies in: the innermost folder that the list names.
        function room_of(path, folder) {
            for (folder = folder_of(path); folder != ""; folder = folder_of(folder)) if (folder in place) return folder
            return ""
        }
        FILENAME == ARGV[1] { exists[$0] = 1; next }
        FILENAME == ARGV[2] && $1 == "module" {
            sub(/:$/, "", $2)
            known[$2] = 1
            for (i = 3; i <= NF; ++i) may[$2, $i] = 1
            next
        }
        FILENAME == ARGV[2] && $1 == "room" {
            place["platform/" $2] = ++places
            next
        }
        FILENAME == ARGV[2] { next }
        {
            target = find($1, $2)
            if (target !~ /^platform\// || target ~ /^platform\/include\//) next
            if ($1 !~ /^platform\//) {
                if ($1 !~ /^(tools|bench)\//) print $1 " includes " $2 ", which lies inside of the layer"
                next
            }
            if ($1 ~ /^platform\/include\//) { print $1 " includes " $2 ", which is no header of the API"; next }
            split($1, from, "/")
            split(target, to, "/")
            if (!(from[2] in known)) { print $1 " lies in no module of " order; next }
            if (from[2] != to[2]) {
                if (!((from[2], to[2]) in may) && !((from[2], substr(target, 10)) in may))
                    print $1 " includes " $2 ": " from[2] " may not know " to[2]
                next
            }
            own = room_of($1)
            other = room_of(target)
            if (own != "" && other != "" && place[other] > place[own])
                print $1 " includes " $2 ": " substr(other, 10) " lies above " substr(own, 10)
        }
        END {
            for (room in place) {
                found = 0
                for (file in exists) if (index(file, room "/") == 1) { found = 1; break }
                if (!found) print order " names " substr(room, 10) ", which is no folder"
            }
        }' "$files" "$order" <(includes)
}

crowded_folders() {
    awk -v order="$order" -v most="$most_files" '
        FILENAME == ARGV[1] && $1 == "crowded" { known[$2] = 1; next }
        FILENAME == ARGV[1] { next }
        /\.(c|cpp|h)$/ { folder = $0; sub(/\/?[^\/]*$/, "", folder); ++count[folder] }
        END {
            for (folder in count) {
                if (count[folder] > most && !(folder in known))
                    print folder " has " count[folder] " source files, which are more than " most
            }
            for (folder in known) {
                if (count[folder] <= most) print order " calls " folder " crowded, which it is not"
            }
        }' "$order" "$files" | LC_ALL=C sort
}

findings=$(
    unused_calls
    wrong_includes
    crowded_folders
)
if [ -n "$findings" ]; then
    echo "$findings"
    exit 1
fi
