#!/bin/bash
# Builds everything twice, as released and with the sanitizers, and runs all tests in both.
set -euo pipefail
# shellcheck source=packaging/setup.sh
source "$(dirname "${BASH_SOURCE[0]}")/packaging/setup.sh"

options=(POURBOOK_TESTS=ON)
if [[ ${CI:-} == true ]]; then
    options+=(POURBOOK_WERROR=ON)
fi

InstallPackages build run screen test package
Configure release "${options[@]}" POURBOOK_BENCH=ON
Configure sanitize "${options[@]}"
Build release
Build sanitize

# A failure ends the script, so that the summary on the screen is the one that tells of it.
cd "$root"
ctest --preset release --parallel 2 --no-tests=error
ctest --preset sanitize --parallel 2 --no-tests=error
