#!/bin/bash
# Builds the programs and makes their Debian package.
set -euo pipefail
cd "$(dirname "$0")"
source tools/prepare.sh

usage="usage: ./package.sh
Installs what is missing, builds the programs and makes the Debian package in build/package.
To install it: apt install ./build/package/*.deb (as root)."

case ${1:-} in
    "") ;;
    -h | --help) echo "$usage"; exit 0 ;;
    *) echo "$usage" >&2; exit 2 ;;
esac

umask 022
prepare "${buildPackages[@]}" "${packagingPackages[@]}"
log=$PWD/build/package.log
rm -rf "$log" build/package
echo "Building (log: $log) ..."
runLong "$log" cmake --preset release
runLong "$log" cmake --build --preset release --target programs
runLong "$log" cpack --config build/release/CPackConfig.cmake -B "$PWD/build/package"
rm -r build/package/_CPack_Packages
echo "Package made: $(ls "$PWD"/build/package/*.deb)"
