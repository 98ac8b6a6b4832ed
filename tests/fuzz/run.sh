#!/bin/bash
# run.sh [SECONDS [TARGET...]]: fuzzes each target in turn, ten minutes each when nothing else is said. It ends with the
# first finding, and says which file holds it. What it learns stays in build/fuzz/corpus for the next run.
set -euo pipefail
# shellcheck source=packaging/setup.sh
source "$(dirname "${BASH_SOURCE[0]}")/../../packaging/setup.sh"

seconds=${1:-600}
shift || true
targets=("$@")
((${#targets[@]})) || targets=(Headers LibraryText Options Quantity URL Version)

InstallPackages build test fuzz
Configure fuzz
Build fuzz "${targets[@]/#/fuzz_}"

export QT_QPA_PLATFORM=offscreen
for target in "${targets[@]}"; do
    learned=$root/build/fuzz/corpus/$target
    mkdir -p "$learned"
    "$root/build/fuzz/bin/fuzz_$target" -max_total_time="$seconds" -timeout=5 -rss_limit_mb=1024 -max_len=4096 \
        -print_final_stats=1 -artifact_prefix="$learned-finding-" "$learned" "$root/tests/fuzz/corpus/$target"
done
