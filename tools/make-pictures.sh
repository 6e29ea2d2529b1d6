#!/bin/bash
# Makes the pictures of the README that show scenes and pages, from an installed tree:
#   tools/make-pictures.sh TREE
# Needs Xvfb, openbox, xdotool and ImageMagick. Every display and folder that it starts ends with it.
set -euo pipefail
cd "$(dirname "$0")/.."
[[ $# == 1 && -x $1/vltlayers ]] || { echo "usage: $0 TREE, an installed tree" >&2; exit 2; }
tree=$(realpath "$1")
pictures=$PWD/docs/pictures
sample=$tree/examples/lorient
work=$(mktemp -d)
children=()
trap 'kill "${children[@]}" 2>/dev/null || true; rm -rf "$work"' EXIT

Xvfb -displayfd 3 -screen 0 1366x768x24 -nolisten tcp 3>"$work/display" 2>/dev/null &
children+=($!)
for ((i = 0; i < 100; ++i)); do [[ -s $work/display ]] && break; sleep 0.1; done
DISPLAY=:$(<"$work/display")
export DISPLAY LIBGL_ALWAYS_SOFTWARE=1 LANG=en_US.UTF-8
openbox >/dev/null 2>&1 &
children+=($!)

layer() { "$tree/vltlayers" "$@" --project "$sample/city.gvw" --language en --quiet; }
picture() { # NAME LAYERS OPTIONS...
    layer snapshot "${@:2}" -o "$work/$1"
    convert "$work/$1" -strip +dither -colors 256 "PNG8:$pictures/$1"
}

# page NAME FILE [X Y]: the page of a table with the file, as it opens, or after a click at X Y.
page() {
    local home=$work/$1.home wizard
    mkdir -p "$home"/{config,data,system/VELTARO}
    printf '[General]\nINSTALL_DIR=%s\n' "$tree" >"$home/system/VELTARO/Veltaro.conf"
    XDG_CONFIG_HOME=$home/config XDG_DATA_HOME=$home/data XDG_CONFIG_DIRS=$home/system \
        VLT_CURRENT_PROJECT=$sample/city.gvw "$tree/VltTelecomLayers" "$2" >/dev/null 2>&1 &
    wizard=$!
    children+=("$wizard")
    sleep 25 # the preview is read and its ground refined
    if (($# > 2)); then
        xdotool mousemove "$3" "$4" click 1
        sleep 3
    fi
    import -window "$(xdotool getactivewindow)" "$work/$1"
    kill "$wizard"
    convert "$work/$1" -strip +dither -colors 256 "PNG8:$pictures/$1"
}

layer site "$sample/sites.csv" -o "$work/sites.lay"
layer site "$sample/sites.csv" --pylon-type lattice_panel -o "$work/lattice.lay"
layer link "$sample/links.csv" --color-by-clearance -o "$work/links.lay"
layer buildings --image "$sample/coverage/signal_level_dBm.tif" --colormap signal_level_dBm --absolute --mode average \
    -o "$work/coverage.lay"
layer buildings --textures "$sample/textures/same_folder/coverage_6m.tif" --texture-on storeys -o "$work/storeys.lay"
picture network.png "$work/sites.lay" "$work/links.lay" --size 1200x700 --view north --north --legend \
    --title "Sites and links of the sample project"
picture sites.png "$work/sites.lay" --size 960x540 --north --legend
picture links.png "$work/links.lay" --size 1100x640 --north --legend
picture pylon.png "$work/lattice.lay" --size 540x720 --view precise
picture colored-buildings.png "$work/coverage.lay" --size 960x540 --north --legend
picture storeys.png "$work/storeys.lay" --size 960x540 --north --legend
layer link "$sample/links.csv" --profile MW-21 -o "$work/profile.png"
convert "$work/profile.png" -strip +dither -colors 256 "PNG8:$pictures/profile.png"
page add-site-page.png "$sample/sites.csv" 1060 330
page add-link-page.png "$sample/links.csv"
