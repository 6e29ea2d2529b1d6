#!/bin/bash
# Makes the outputs of the command line and of the table driver with two installed trees, and compares them.
set -euo pipefail

usage="usage: tools/compare-outputs.sh OLD_TREE NEW_TREE [DATA]
Makes information, layers, documents, messages and the driver's tables with both installed trees (cmake --install) and
compares them byte by byte; of pictures only what the program says about them. The input is the sample project of
OLD_TREE and, where it is given, what lies in the folder DATA: tables and, in folders of these names, buildings,
terrain, coverage, subdatasets and colormaps.
Prints what differs. Exit status: 0 nothing differs, 1 something does, 2 wrong usage."

(($# == 2 || $# == 3)) && [[ -x $1/vltlayers && -x $2/vltlayers && -d $1/examples && -d ${3:-.} ]] ||
    { echo "$usage" >&2; exit 2; }
# Pictures are drawn by OpenGL, which needs a display.
[[ -n ${DISPLAY:-} ]] || exec xvfb-run -a -s "-screen 0 1280x960x24 +extension GLX" "$0" "$@"

work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT
run=$work/run # each tree is copied to this path in turn, so that outputs with paths are equal
tree=$run/tree
samples=$run/examples/lorient
data=$run/data
export LC_ALL=C.UTF-8 HOME=$run/home XDG_CONFIG_HOME=$run/home XDG_CONFIG_DIRS=$run/home GDAL_DRIVER_PATH=$tree/driver
unset VLT_CURRENT_PROJECT OSG_LIBRARY_PATH

siteOptions=(--source-srs 4326 --target-srs 2154 --sector-height 12.5 --sector-radius 150.25 --sector-spacing 0.5
    --transparency 40 --symbolic-distance 20000 --pylon-width 1.75 --antenna-size 250 --realistic-distance 500
    --sector-colors Pastel --pylon-type 5)
linkOptions=("${siteOptions[@]}" --link-style tube --link-color 11223344 --color-by-clearance --fresnel-color 00ff80
    --link-width 3.5 --fresnel-zone 2 --fresnel-share 80 --fresnel-transparency 25 --k-factor 0.9)
buildingOptions=(--check-clockwise --distance 3000 --tile-size 125.5 --skirt 2.5 --dtm-nodata -5)
cacheOptions=(--cache all --delayed-write --cache-capacity 7)
colorOptions=(--absolute --color-ranges --mode most-represented --image-nodata -1)
textureOptions=(--textured-distance 700 --buffer 1.5 --dilatation 3 --wall-color 112233 --roof-color colormap
    --edge-color red --force-edges --no-complex-buildings --compression dxt3 --magnify linear)

# keep NAME COMMAND...: stores a command's output, its exit status and the files that it writes in out/NAME.
keep() {
    local folder=$run/out/${1//\//_}
    shift
    while (($(jobs -rp | wc -l) >= $(nproc))); do wait -n || true; done
    mkdir -p "$folder"
    {
        cd "$folder"
        timeout 120 "$@" >stdout 2>stderr </dev/null && echo 0 >status || echo $? >status
        rm -f picture.png
    } &
}

# layers NAME ARGUMENT...: stores the outputs of a command for a layer, in both languages.
layers() {
    local name=$1
    shift
    keep "$name, en" "$tree/vltlayers" "$@" -o layer.lay --language en
    keep "$name, fr" "$tree/vltlayers" "$@" -o layer.lay --language fr --json
}

# table NAME FILE: stores the outputs for a table of unknown kind.
table() {
    keep "info $1" "$tree/vltlayers" info "$2"
    keep "info --link $1" "$tree/vltlayers" info --link --json --language fr "$2"
    layers "site $1" site "$2"
    keep "site $1, all options" "$tree/vltlayers" site "$2" "${siteOptions[@]}" -o layer.lay
    keep "link $1" "$tree/vltlayers" link "$2" --report -o layer.lay
    keep "link $1, all options" "$tree/vltlayers" link "$2" "${linkOptions[@]}" -o layer.lay --language fr
    keep "driver site $1" ogrinfo -al "site:$2"
    keep "driver link $1" ogrinfo -al "link:$2"
}

# The same for the sample project's tables, which have a project and a terrain.
sampleTable() {
    local file=$samples/$1 project=(--project "$samples/city.gvw")
    table "$1" "$file"
    keep "info $1, fr" "$tree/vltlayers" info "$file" --language fr "${project[@]}"
    keep "info $1, json" "$tree/vltlayers" info "$file" --json "${project[@]}"
    keep "info --link $1, project" "$tree/vltlayers" info --link "$file" "${project[@]}"
    layers "site $1, project" site "$file" "${project[@]}"
    layers "site $1, project and all options" site "$file" "${siteOptions[@]}" "${project[@]}"
    layers "link $1, project" link "$file" --report "${project[@]}"
    layers "link $1, project and all options" link "$file" --report "${linkOptions[@]}" "${project[@]}"
    layers "link $1, terrain" link "$file" --link-style billboard --terrain "$samples/terrain/lorient_dem.tif"
    keep "driver site $1, systems" ogrinfo -al "site:s_srs=4326,t_srs=2154,dem_file=$samples/terrain/lorient_dem.tif,$file"
    keep "driver link $1, systems" ogrinfo -al "link:s_srs=4326,t_srs=2154,dem_file=$samples/terrain/lorient_dem.tif,$file"
}

sampleBuildings() {
    local project=(--project "$samples/city.gvw") image=(--image "$samples/coverage/signal_level_dBm.tif") map
    local set=(--textures "$samples/textures/same_folder/coverage_6m.tif")
    layers "buildings" buildings "${project[@]}"
    layers "buildings, no project" buildings "$samples/vectors/buildings.shp" --dtm "$samples/terrain/lorient_dem.tif"
    layers "buildings, all options" buildings "${project[@]}" "${buildingOptions[@]}" "${cacheOptions[@]}" --layer buildings
    layers "colored" buildings "${project[@]}" "${image[@]}"
    layers "colored, all options" buildings "${project[@]}" "${image[@]}" "${buildingOptions[@]}" "${colorOptions[@]}"
    for map in "$tree"/addons/telecom/colormaps/*/*.txt; do
        layers "colored, $(basename "$map")" buildings "${project[@]}" "${image[@]}" --colormap "$map" --mode average
    done
    for where in roofs walls storeys; do
        layers "textured, $where" buildings "${project[@]}" "${set[@]}" --texture-on $where
        layers "textured, $where, all options" buildings "${project[@]}" "${set[@]}" "${image[@]}" --texture-on $where \
            "${buildingOptions[@]}" "${cacheOptions[@]}" "${colorOptions[@]}" "${textureOptions[@]}"
    done
    layers "textured, one image" buildings "${project[@]}" --texture "$samples/textures/storeys.tif=3.5"
    layers "textured, sibling folders" buildings "${project[@]}" --structure sibling-folders \
        --textures "$samples/textures/folder_per_network/4G/coverage 12 m.tif"
    layers "textured, two levels" buildings "${project[@]}" --structure two-levels --filter 5G \
        --textures "$samples/textures/folders_per_operator/Armor Mobile/4G/coverage(12m).tif"
}

# The help, and the errors for wrong values of every option with a value.
usageTexts() {
    local command option value
    for command in info site link buildings snapshot; do
        keep "help $command" "$tree/vltlayers" help $command
        for option in $("$tree/vltlayers" help $command | grep -oE '^  (-o, )?--[a-z-]+ <' | grep -oE -- '--[a-z-]+'); do
            for value in -1 1e15 nonsense; do
                keep "$command $option $value" "$tree/vltlayers" $command "$samples/sites.csv" -o layer.lay "$option=$value"
            done
        done
    done
    keep "help" "$tree/vltlayers" --help
}

# faultsOf NAME: the messages about the layer made under NAME when one of its options is missing or has a wrong value.
faultsOf() {
    local made="$run/out/$1, en" key fault folder
    for key in $(cat "$made"/layer.{lay,texb} 2>/dev/null | grep -oE '(^ *|site:|link:|,)[A-Za-z_]+="?' |
        grep -oE '[A-Za-z_]+=' | sort -u); do
        for fault in missing wrong; do
            folder="$run/faults/$1, ${key}$fault"
            mkdir -p "$folder"
            sed "s#$made#$folder#" "$made/layer.lay" >"$folder/layer.lay"
            [[ ! -f $made/layer.texb ]] || cp "$made/layer.texb" "$folder"
            if [[ $fault == missing ]]; then
                sed -Ei "s/\b$key(\"[^\"]*\"|[^\",>]*,)//" "$folder"/layer.*
            else
                sed -Ei "s/\b($key\"?)[^\",>]*/\1wrong/" "$folder"/layer.*
            fi
            keep "picture of $1, $key$fault, en" "$tree/vltlayers" snapshot "$folder/layer.lay" --size 64x64 \
                -o picture.png --project "$samples/city.gvw"
            keep "picture of $1, $key$fault, fr" "$tree/vltlayers" snapshot "$folder/layer.lay" --size 64x64 \
                -o picture.png --language fr
        done
    done
}

# The scenes of layers, and the program's messages when it makes their pictures.
scenes() {
    local name layer
    for name in "site sites.csv, project" "site sites_mentum.xls, project and all options" "link links.csv, project" \
        "link links.csv, terrain" "link links.csv, project and all options" "buildings" "colored" "textured, roofs" \
        "textured, walls, all options" "textured, storeys, all options"; do
        layer="$run/out/$name, en/layer.lay"
        keep "scene of $name" env OSG_LIBRARY_PATH="$tree/driver" VLT_CURRENT_PROJECT="$samples/city.gvw" \
            osgconv "$layer" scene.osgt
        keep "picture of $name" "$tree/vltlayers" snapshot "$layer" -o picture.png --project "$samples/city.gvw"
    done
    faultsOf "site sites.csv, project"
    faultsOf "link links.csv, terrain"
    faultsOf "textured, storeys, all options"
}

# Layers of the files in DATA.
furtherData() {
    local file name
    find "$data" -type f | grep -iE '\.(csv|txt|tsv|xls|xlsx|xlsm|xml)$' | grep -v /colormaps/ | LC_ALL=C sort >"$run/tables"
    while IFS= read -r file; do
        table "${file#"$data"/}" "$file"
    done <"$run/tables"
    for file in "$data"/buildings/*/*.{shp,*json,fgb}; do
        name=${file#"$data"/}
        layers "$name" buildings "$file" --dtm "$data/terrain/Universite-Gustave-Eiffel/dem.asc"
    done
    for file in "$data"/{terrain,coverage,subdatasets}/{,*/}*.{tif,asc,dt0,grd,nc,hdf,h5}; do
        name=${file#"$data"/}
        layers "$name as image" buildings --project "$samples/city.gvw" --image "$file" --mode maximum
        layers "$name as terrain" buildings "$samples/vectors/buildings.shp" --dtm "$file"
    done
    for file in "$data"/colormaps/{gdal,grass}/* "$data"/colormaps/wild/*/*; do
        layers "${file#"$data"/}" buildings --project "$samples/city.gvw" --colormap "$file" --absolute \
            --image "$samples/coverage/signal_level_dBm.tif"
    done
}

# outputsOf TREE FOLDER: makes all outputs with a tree and leaves them in the folder.
outputsOf() {
    mkdir -p "$run/home" "$run/out"
    cp -r "$1" "$tree"
    cp -r "$examples" "$run/examples"
    [[ -z $further ]] || cp -r "$further" "$data"
    chmod -R u+w "$run"
    usageTexts
    for name in "$samples"/*.{csv,xls,xlsx,xml}; do sampleTable "$(basename "$name")"; done
    sampleBuildings
    [[ -z $further ]] || furtherData
    wait
    scenes
    wait
    mv "$run/out" "$2"
    rm -rf "$run"
}

shopt -s nullglob
examples=$1/examples further=${3:-}
for side in old new; do
    outputsOf "$1" "$work/$side"
    echo "$side: $(find "$work/$side" -name status | wc -l) commands run with $1"
    shift
done

equal=0 differing=0
while IFS= read -r name; do
    if diff -ruN "$work/old/$name" "$work/new/$name" >"$work/diff"; then
        ((++equal))
    else
        ((++differing))
        printf '\n%s:\n' "$name"
        head -n 30 "$work/diff" | cut -c 1-400
    fi
done < <({ ls "$work/old"; ls "$work/new"; } | sort -u)
echo "$equal outputs are equal, $differing differ"
((differing == 0))
