#!/bin/bash
# Draws the small pictures of the pylon types in the list of the site page, from an installed tree:
#   tools/make-pylon-pictures.sh TREE
# Each is the scene's own mast, short and with large antennas, so that it is recognized at 32 pixels.
# Needs Xvfb and ImageMagick.
set -euo pipefail
cd "$(dirname "$0")/.."
[[ $# == 1 && -x $1/vltlayers ]] || { echo "usage: $0 TREE, an installed tree" >&2; exit 2; }
[[ -n ${DISPLAY_FOR_PICTURES:-} ]] || exec env DISPLAY_FOR_PICTURES=1 LIBGL_ALWAYS_SOFTWARE=1 xvfb-run -a "$0" "$@"
tree=$(realpath "$1")
pictures=$PWD/src/resources/pylons
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT
mkdir -p "$pictures"

{
    printf 'Site ID,Longitude,Latitude'
    for n in 1 2 3; do printf ',Transmitter-%s height (m),Transmitter-%s Azimuth (°),Transmitter-%s tilt (°)' $n $n $n; done
    printf '\nA,-3.365447,47.755379,12,240,0,12,120,0,12,0,0\n'
} >"$work/site.csv"
for type in $(grep -o 'type="[a-z_]*"' "$tree/addons/telecom/pylons/list.xml" | cut -d'"' -f2); do
    # the part of the picture of 512 x 512 pixels that shows what distinguishes the type
    case $type in
        watertower*) width=4 part=330x330+91+80 ;;
        rooftop*) width=5 part=440x440+36+90 ;;
        guyed*) width=1.5 part=390x390+61+50 ;;
        lattice*) width=2 part=250x250+131+20 ;;
        *) width=1.5 part=210x210+151+20 ;;
    esac
    "$tree/vltlayers" site "$work/site.csv" --pylon-type "$type" --pylon-width $width --antenna-size 140 \
        -o "$work/$type.lay" --quiet
    "$tree/vltlayers" snapshot "$work/$type.lay" -o "$work/$type.png" --view precise --labels none --size 512x512 --quiet
    for scale in 1 2 3; do
        suffix=; ((scale == 1)) || suffix=@${scale}x
        side=$((32 * scale))
        convert "$work/$type.png" -crop $part +repage -resize ${side}x$side -unsharp 0x0.6 -strip \
            "PNG24:$pictures/$type$suffix.png"
    done
done
