#!/bin/bash
# Builds the programs, lays the installation tree and makes layers of the sample project.
set -euo pipefail
cd "$(dirname "$0")"
source tools/prepare.sh

case ${1:-} in
    "") ;;
    *) echo "usage: ./run.sh
Installs what is missing, builds, lays the installation tree in build/install and makes the sample project's site
layers with vltlayers. A second run takes seconds."; [[ $1 == --help || $1 == -h ]] && exit 0 || exit 2 ;;
esac

install=$PWD/build/install
layers=$PWD/build/layers
log=$PWD/build/run.log

prepare "${buildPackages[@]}"
mkdir -p build "$layers"
echo "Building (log: $log) ..."
{ cmake --preset release && cmake --build --preset release && cmake --install build/release --prefix "$install"; } \
    >"$log" 2>&1 || { tail -n 30 "$log" >&2; exit 1; }

# The builder's settings, where programs look for the installation; the user's own are not touched.
mkdir -p build/xdg/VELTARO
printf '[General]\nINSTALL_DIR=%s\n' "$install" >build/xdg/VELTARO/Veltaro.conf
export XDG_CONFIG_DIRS=$PWD/build/xdg:${XDG_CONFIG_DIRS:-/etc/xdg}

samples=$install/examples/lorient
"$install/vltlayers" info "$samples/sites.csv" --project "$samples/city.gvw"
echo
for table in sites.csv sites_asset.xlsx sites_atoll.csv sites_mentum.xls; do
    "$install/vltlayers" site "$samples/$table" --project "$samples/city.gvw" -o "$layers/${table%.*}.lay" --quiet
    echo "Layer made: $layers/${table%.*}.lay"
done
echo
echo "Installation tree: $install    Try: $install/vltlayers --help"
