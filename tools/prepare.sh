# Sourced by run.sh and test.sh: installs the Debian packages that are missing and sets up the compiler cache.
# Asks for rights only when something is missing.

vltRoot=$(cd "$(dirname "${BASH_SOURCE[0]}")/.." && pwd)

buildPackages=(g++ cmake ninja-build ccache pkg-config qt6-base-dev qt6-svg-dev libgdal-dev libproj-dev libiniparser-dev libisal-dev
               libqt6opengl6-dev libopenscenegraph-dev
               qt6-translations-l10n)
testPackages=(gdal-bin python3-xlwt locales clang-format-14 xvfb xauth desktop-file-utils appstream)

# prepare PACKAGE...: makes sure that the packages are there.
prepare() {
    local package missing=()
    for package in "$@"; do
        [[ $(dpkg-query -W -f='${db:Status-Status}' "$package" 2>/dev/null) == installed ]] || missing+=("$package")
    done
    if ((${#missing[@]})); then
        echo "Installing: ${missing[*]}"
        local asRoot=()
        if ((EUID != 0)); then
            command -v sudo >/dev/null || { echo "root or sudo rights are needed to install: ${missing[*]}" >&2; exit 1; }
            asRoot=(sudo)
        fi
        "${asRoot[@]}" apt-get update -qq || echo "some package lists could not be read; going on" >&2
        "${asRoot[@]}" env DEBIAN_FRONTEND=noninteractive apt-get install -y -qq --no-install-recommends "${missing[@]}" \
            >/dev/null
    fi
    export CCACHE_DIR=${CCACHE_DIR:-$vltRoot/build/ccache}
}
