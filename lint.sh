#!/bin/bash
# Checks the scripts, the format and the code: shellcheck, clang-format, clang-tidy. A file that clang-tidy passed is
# not read again until the file, a header or the settings change.
set -euo pipefail
# shellcheck source=packaging/setup.sh
source "$(dirname "${BASH_SOURCE[0]}")/packaging/setup.sh"

# TidyArguments: a file and its mark in turns, for those files whose mark is older than what they depend on.
TidyArguments() {
    local newest file mark
    newest=$(find .clang-tidy lint.sh src tools \( -name '*.h' -o -name .clang-tidy -o -name lint.sh \) \
        -printf '%T@ %p\n' | sort -n | tail -n 1 | cut -d ' ' -f 2-)
    find src tools -name '*.cpp' | sort | while read -r file; do
        mark=build/lint/$file.passed
        [[ $mark -nt $file && $mark -nt $newest ]] || printf '%s\n' "$file" "$mark"
    done
}

InstallPackages build lint
IsConfigured release || Configure release POURBOOK_TESTS=OFF POURBOOK_BENCH=OFF

cd "$root"
status=0
shellcheck --external-sources run.sh test.sh lint.sh .ci/run packaging/*.sh tests/*/*.sh || status=1
find src tools tests bench \( -name '*.cpp' -o -name '*.h' \) -print0 |
    xargs -0 --no-run-if-empty clang-format --dry-run -Werror || status=1
TidyArguments | xargs --no-run-if-empty -n 2 -P "$(nproc)" packaging/tidy-file.sh || status=1

if ((status == 0)); then
    echo "lint: nothing to complain about"
fi
exit "$status"
