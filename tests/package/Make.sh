#!/bin/bash
# Make.sh CPACK BUILD_FOLDER FOLDER: makes the Debian package twice, in different time zones, compares the two, and
# leaves one in FOLDER as pourbook.deb, with what is in it in FOLDER/unpacked.
set -euo pipefail

cpack=$1
build=$2
folder=$3

# The rights of the one who builds must not become those of the package; lintian sees to that.
umask 077
rm -rf "$folder"
for place in Europe/Lisbon Asia/Tokyo; do
    TZ=$place "$cpack" --config "$build/CPackConfig.cmake" -B "$folder/$place"
done
cmp "$folder"/*/*/*.deb

mv "$folder/$place"/*.deb "$folder/pourbook.deb"
dpkg-deb --extract "$folder/pourbook.deb" "$folder/unpacked"
