#!/bin/bash
# Prints the calls of the platform layer as tables, a topic a table, from the headers in platform/include: what a program can
# call on a host without the Windows API. docs/platform-calls.md is its output, and a test sees that it is up to date.
set -euo pipefail
cd "$(dirname "$0")/../platform/include"

echo "# Calls of the platform layer"
find . -name '*.h' | sed 's#^\./##' | LC_ALL=C sort | while read -r header; do
    awk -v header="$header" '
        function flush_row() {
            if (!started) {
                printf "\n## `%s`\n", header
                started = 1
            }
            if (topic != "" || !table) {
                if (topic != "") printf "\n**%s**\n", toupper(substr(topic, 1, 1)) substr(topic, 2)
                printf "\n| call | remark |\n|---|---|\n"
                topic = ""
                table = 1
            }
            gsub(/\|/, "\\|", remark)
            printf "| `%s` | %s |\n", name, remark
        }
        /^\/\/ --- / { topic = substr($0, 8); next }
        /^\/\/\/ @file/ { next }
        /^\/\/\/ / { remark = remark (remark == "" ? "" : " ") substr($0, 5); next }
        /^(WIN[A-Z]*API|STDAPI|SHSTDAPI|SHELLAPI) / {
            line = $0
            gsub(/__attribute__\(\([a-z_]+\)\)/, "", line)
            while (line !~ /\(/ && (getline more) > 0) line = line " " more
            if (match(line, /[A-Za-z_0-9]+\(/)) {
                name = substr(line, RSTART, RLENGTH - 1)
                flush_row()
            }
            remark = ""
            next
        }
        { remark = "" }
    ' "$header"
done
