#!/bin/bash
# Builds the programs, makes the installation tree and opens the wizard on the sample project.
set -euo pipefail
cd "$(dirname "$0")"
source tools/prepare.sh

usage="usage: ./run.sh [--layers]
Installs what is missing, builds, lays the installation tree in build/install and opens the wizard on the sample
project. With --layers, or where there is no display, it makes the sample project's layers of sites, links and buildings
and pictures of them with vltlayers instead.
A second run takes seconds."

onlyLayers=
case ${1:-} in
    "") ;;
    --layers) onlyLayers=yes ;;
    -h | --help) echo "$usage"; exit 0 ;;
    *) echo "$usage" >&2; exit 2 ;;
esac
if [[ -z $onlyLayers && -z ${DISPLAY:-}${WAYLAND_DISPLAY:-} ]]; then
    echo "There is no display (DISPLAY is not set): the sample layers are made instead of opening the wizard."
    onlyLayers=yes
fi

install=$PWD/build/install
samples=$install/examples/lorient
log=$PWD/build/run.log

packages=("${buildPackages[@]}")
[[ -n ${DISPLAY:-} ]] || packages+=(xvfb xauth)
prepare "${packages[@]}"
rm -f "$log"
echo "Building (log: $log) ..."
runLong "$log" cmake --preset release
runLong "$log" cmake --build --preset release --target programs
runLong "$log" cmake --install build/release --prefix "$install"

# Settings of the builder that name the installation; those of the user are not changed.
mkdir -p build/xdg/VELTARO
printf '[General]\nINSTALL_DIR=%s\n' "$install" >build/xdg/VELTARO/Veltaro.conf
export XDG_CONFIG_DIRS=$PWD/build/xdg:${XDG_CONFIG_DIRS:-/etc/xdg}

# Pictures are drawn by OpenGL, which needs a display; a virtual one is enough.
onDisplay() {
    if [[ -n ${DISPLAY:-} ]]; then "$@"; else xvfb-run -a -s "-screen 0 1280x960x24 +extension GLX" "$@"; fi
}

# Makes a layer and its picture. Arguments: name of the files, then the command and its arguments.
makeLayer() {
    local name=$layers/$1
    shift
    "$install/vltlayers" "$@" --project "$samples/city.gvw" -o "$name.lay" --quiet
    onDisplay "$install/vltlayers" snapshot "$name.lay" --project "$samples/city.gvw" -o "$name.png" --quiet
    echo "Layer made: $name.lay, picture: $name.png"
}

makeLayers() {
    local layers=$PWD/build/layers table kind
    mkdir -p "$layers"
    "$install/vltlayers" info "$samples/sites.csv" --project "$samples/city.gvw"
    echo
    for table in sites.csv sites_asset.xlsx sites_atoll.csv sites_mentum.xls sites_cells.csv sites_joined.xlsx links.csv links_miles.xlsx; do
        kind=site
        [[ $table != link* ]] || kind=link
        makeLayer "${table%.*}" "$kind" "$samples/$table"
    done
    makeLayer buildings_colored buildings --image "$samples/coverage/signal_level_dBm.tif" --colormap signal_level_dBm \
        --absolute --mode average
    makeLayer buildings_textured buildings --textures "$samples/textures/same_folder/coverage_6m.tif" --texture-on walls
    echo
    "$install/vltlayers" link "$samples/links.csv" --project "$samples/city.gvw" --report --quiet
    echo
    echo "Installation tree: $install    Try: $install/vltlayers --help"
}

openWizard() {
    echo "Opening the wizard. Try:"
    echo "  1. Choose a kind of layer, then Next: the sample project is chosen already."
    echo "  2. Sites, links: choose a table of $samples, such as sites.csv, sites_cells.csv (a row for each"
    echo "     cell), sites_joined.xlsx (two sheets), sites_misplaced.csv (mistakes in positions) or links.csv."
    echo "     Buildings: Next, then the image coverage/signal_level_dBm.tif. The icon at the lower right becomes the layer."
    echo "  3. Drag the icon onto a folder of your file manager, or copy it with Ctrl+C. Quit ends the program."
    VLT_CURRENT_PROJECT=$samples/city.gvw "$install/VltTelecomLayers"
}

if [[ $onlyLayers ]]; then makeLayers; else openWizard; fi
