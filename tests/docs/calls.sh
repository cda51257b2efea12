#!/bin/bash
# The table of the platform layer's calls in the manual is what the headers say.
set -euo pipefail
cd "$1"
if ! tools/list-calls.sh | diff -u docs/platform-calls.md - ; then
    echo "FAILED: docs/platform-calls.md is old; run: tools/list-calls.sh >docs/platform-calls.md"
    exit 1
fi
echo passed
