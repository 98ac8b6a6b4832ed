#!/bin/bash
# tidy-file.sh FILE MARK: runs clang-tidy over one source file; leaves MARK when there was nothing to say.
set -euo pipefail

mkdir -p "$(dirname "$2")"
# The mark bears the time of the beginning, so that an edit made meanwhile counts as newer.
touch "$2.began"
# The error stream counts the warnings of other people's headers; it is shown only when something is wrong.
if output=$(clang-tidy -p build/release --quiet "$1" 2>&1); then
    mv "$2.began" "$2"
else
    printf '%s\n' "$output"
    exit 1
fi
