#!/bin/bash
# Installs the build, moves the tree to a folder with special characters in its name and works in another directory:
# layers of the same table in four formats, layers of buildings, GDAL's own programs with the driver.
set -euo pipefail
cmake=$1
build=$2

work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT
fail() { echo "FAILED: $*" >&2; exit 1; }

"$cmake" --install "$build" --prefix "$work/first" >/dev/null
tree="$work/moved, 100% d'été"
mv "$work/first" "$tree"
for part in VltTelecomLayers vltlayers driver/ogr_VltTables.so addons/telecom/pylons/list.xml addons/telecom/MESSAGES/telecom_fr.ts \
    addons/telecom/template/template_texb.lay addons/telecom/colormaps/signal/signal_level_dBm.txt \
    addons/telecom/tables/vocabulary.json driver/osgdb_lay.so \
    driver/osgdb_texb.so examples/lorient/coverage/signal_level_dBm.tif MESSAGES/veltaro_en.ts VltSrsUtils.ini setup_env.ini examples/lorient/city.gvw share/man/man1/vltlayers.1 \
    share/man/man1/VltTelecomLayers.1 share/applications/org.veltaro.VltTelecomLayers.desktop; do
    [[ -f $tree/$part ]] || fail "$part is not installed"
done

cd /
samples=$tree/examples/lorient
for kind in csv xlsx xls xml; do
    "$tree/vltlayers" site "$samples/sites.$kind" --project "$samples/city.gvw" -o "$work/$kind.lay" --quiet ||
        fail "no layer of sites.$kind"
    # The layer of a spreadsheet has the name of the sheet, that of a text file the name of the file; nothing else may
    # differ.
    sed -E "s/sites\.$kind/sites.TABLE/; s#<layer><!\[CDATA\[[^]]*#<layer><![CDATA[NAME#" "$work/$kind.lay" >"$work/$kind.same"
    cmp "$work/csv.same" "$work/$kind.same" || fail "the layer of sites.$kind differs"
done
grep -qF 'transmitter_scale=100,lods=10000 1000,sites.csv' "$work/csv.lay" || fail "the query does not end in the table"
grep -qF '[Site ID]' "$work/csv.lay" || fail "the information page lacks the table's columns"

# Tables of other shapes, and one with mistakes in its positions.
info() { "$tree/vltlayers" info "$samples/$1" --project "$samples/city.gvw" --language en; }
[[ $(info sites_cells.csv) == *$'\n'"44 rows: 8 sites with 1–9 transmitters"* ]] || fail "the cells do not become 8 sites"
mistakes=$(info sites_misplaced.csv | grep -cE ', rows: (4, 5, 9|12|15)\)') || true
[[ $mistakes == 3 ]] || fail "$mistakes kinds of mistakes are found in sites_misplaced.csv instead of 3"

# Without a display: commands that draw texts must not need one.
env -u DISPLAY "$tree/vltlayers" buildings --project "$samples/city.gvw" --image "$samples/coverage/signal_level_dBm.tif" \
    --colormap signal_level_dBm --absolute -o "$work/city.lay" --quiet || fail "no layer of coloured buildings"
grep -qF "<source><![CDATA[TEXB:$work/city.texb]]>" "$work/city.lay" || fail "the layer does not name its document"
grep -qF "$samples/vectors/buildings.shp" "$work/city.texb" || fail "the document does not name the buildings"
[[ $(od -An -N4 -tx1 "$work/signal_level_dBm_gradient.png") == " 89 50 4e 47" ]] || fail "no legend"
"$tree/vltlayers" buildings --project "$samples/city.gvw" --textures "$samples/textures/same_folder/coverage_6m.tif" \
    --texture-on storeys -o "$work/storeys.lay" --quiet || fail "no layer of textured buildings"
[[ $(grep -c '<texture $' "$work/storeys.texb") == 4 ]] || fail "the document does not name four images"

# The package has links to the scene plug-ins. Plug-ins loaded through links find the table driver in the folder of the
# real files.
mkdir "$work/osg"
ln -s "$tree"/driver/osgdb_*.so "$work/osg"
OSG_LIBRARY_PATH=$work/osg VLT_CURRENT_PROJECT=$samples/city.gvw osgconv "$work/csv.lay" "$work/sites.osgt" >"$work/osgconv.log" 2>&1 &&
    grep -qF Transform "$work/sites.osgt" || fail "osgconv: $(cat "$work/osgconv.log")"

export GDAL_DRIVER_PATH=$tree/driver
[[ $(ogrinfo -al -so "site:$samples/sites.csv") == *"Feature Count: 45"* ]] || fail "ogrinfo does not count 45 sites"
ogr2ogr -f GPKG "$work/out.gpkg" "site:$samples/sites_asset.xlsx" || fail "ogr2ogr"
[[ $(ogrinfo -al -so "$work/out.gpkg") == *"Feature Count: 45"* ]] || fail "the GeoPackage lacks sites"

# The workbook with two sheets has the sites and transmitters of the wide tables.
columns='"Site ID"'
for n in 1 2 3 4 5 6; do columns+=",\"Transmitter-$n Sector ID\",\"Transmitter-$n Azimuth (°)\""; done
for table in sites.csv sites_joined.xlsx; do
    ogr2ogr -f CSV -lco STRING_QUOTING=IF_NEEDED "$work/$table.columns.csv" "site:$samples/$table" \
        -sql "SELECT $columns FROM sites" || fail "ogr2ogr of $table"
done
cmp "$work/sites.csv.columns.csv" "$work/sites_joined.xlsx.columns.csv" || fail "the joined sheets have other transmitters"
echo "the installed tree works"
