#!/bin/bash
# Builds Tipplewise Pourbook and starts it.
set -euo pipefail
# shellcheck source=packaging/setup.sh
source "$(dirname "${BASH_SOURCE[0]}")/packaging/setup.sh"

Usage() {
    cat <<'END'
Usage: ./run.sh [-h]

Installs what is missing (Debian 12; asks sudo unless you are root), builds the release and starts the program.
Where there is no display, the program runs in a virtual screen instead, and a picture of its window is saved.
END
}

case ${1:-} in
"") ;;
-h | --help)
    Usage
    exit
    ;;
*)
    Usage >&2
    exit 2
    ;;
esac

sections=(build run)
if [[ ${WAYLAND_DISPLAY:-} ]]; then
    sections+=(wayland)
elif [[ ! ${DISPLAY:-} ]]; then
    sections+=(screen)
fi
InstallPackages "${sections[@]}"
# A folder that test.sh has configured does as well, and stays as it is.
IsConfigured release || Configure release POURBOOK_TESTS=OFF POURBOOK_BENCH=OFF
Build release pourbook library

program=$root/build/release/bin/pourbook
if [[ ${DISPLAY:-} || ${WAYLAND_DISPLAY:-} ]]; then
    exec "$program"
fi
echo "There is no display (neither DISPLAY nor WAYLAND_DISPLAY is set): the program runs in a virtual screen."
exec "$root/packaging/show-in-virtual-screen.sh" "$program" "$root/build/screenshot.png"
