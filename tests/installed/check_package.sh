#!/bin/bash
# Makes the Debian package of a build and checks its contents: the files in folders of the system, the dependencies, and
# whether all version numbers are equal.
set -euo pipefail
cpack=$1
build=$2
source=$3

work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT
fail() { echo "FAILED: $*" >&2; exit 1; }

"$cpack" --config "$build/CPackConfig.cmake" -B "$work" >"$work/log" 2>&1 || fail "cpack: $(cat "$work/log")"
package=$(echo "$work"/*.deb)
dpkg-deb -x "$package" "$work/root"
cd "$work/root"

links=0
while IFS= read -r link; do
    [[ -f .$(readlink "$link") ]] || fail "$link leads to $(readlink "$link"), which is not in the package"
    ((++links))
done < <(find . -type l)
((links == 6)) || fail "$links links instead of 6: two programs, four plug-ins"
for file in usr/bin/vltlayers usr/bin/VltTelecomLayers usr/lib/*/gdalplugins/ogr_VltTables.so usr/lib/*/osgPlugins-3.6.*/osgdb_lay.so; do
    [[ -L $file ]] || fail "$file is no link into the package"
done
doc=usr/share/doc/vlttelecomlayers
for file in usr/share/man/man1/vltlayers.1.gz usr/share/applications/org.veltaro.VltTelecomLayers.desktop \
    usr/share/icons/hicolor/48x48/apps/org.veltaro.VltTelecomLayers.png $doc/copyright $doc/changelog.gz $doc/docs/tables.md; do
    [[ -s $file ]] || fail "$file is not in the package"
done

depends=$(dpkg-deb -f "$package" Depends)
for library in libgdal libopenscenegraph libqt6widgets6; do
    [[ $depends == *$library* ]] || fail "the package does not depend on $library: $depends"
done

version=$(dpkg-deb -f "$package" Version)
grep -m 1 '^## ' "$source/CHANGELOG.md" | grep -q "^## $version, " || fail "CHANGELOG.md does not start with $version"
grep -m 1 '<release ' usr/share/metainfo/*.xml | grep -qF "version=\"$version\"" || fail "the AppStream data do not start with $version"
# Not through a pipe into head: zcat ends with an error if its reader ends first.
read -r first < <(zcat $doc/changelog.gz)
[[ $first == *"($version)"* ]] || fail "the package's changelog does not start with $version"
echo "the package is whole"
