# Sourced by run.sh, test.sh and package.sh: installs missing Debian packages, sets up the compiler cache and runs long
# commands. Asks for root rights only if packages are missing.

vltRoot=$(cd "$(dirname "${BASH_SOURCE[0]}")/.." && pwd)

buildPackages=(g++ cmake ninja-build ccache pkg-config
    qt6-base-dev qt6-svg-dev libqt6opengl6-dev qt6-translations-l10n
    libgdal-dev libproj-dev libiniparser-dev libisal-dev libuchardet-dev libutf8proc-dev nlohmann-json3-dev libpcre2-dev libopenscenegraph-dev)
packagingPackages=(file dpkg-dev)
testPackages=(gdal-bin openscenegraph python3-xlwt locales xvfb xauth desktop-file-utils appstream "${packagingPackages[@]}")
formatPackages=(clang-format-14) # not in every Debian release

# Prints the installed packages and the names that they provide, one per line.
installedPackages() {
    dpkg-query -W -f='${db:Status-Status}\t${Package}, ${Provides}\n' |
        sed -n 's/^installed\t//p' | tr ',' '\n' | sed 's/(.*//; s/[ \t]//g'
}

# missingPackages PACKAGE...: prints those that are not installed.
missingPackages() {
    comm -23 <(printf '%s\n' "$@" | LC_ALL=C sort -u) <(installedPackages | LC_ALL=C sort -u)
}

# offeredPackages PACKAGE...: prints those that can be installed.
offeredPackages() {
    local package
    for package in "$@"; do
        LC_ALL=C apt-cache policy "$package" | grep -q '^ *Candidate: [^(]' && echo "$package"
    done
    return 0
}

# Reads the output of apt or ninja and prints the progress: on a terminal one line that changes, else a line per 10 %.
showProgress() {
    local line what percent shown='' last=0
    while IFS= read -r line; do
        if [[ $line =~ ^\[([0-9]+)/([0-9]+)\] ]]; then
            what="Building" percent=$((100 * BASH_REMATCH[1] / BASH_REMATCH[2]))
        elif [[ $line =~ ^(dl|pm)status:.*:([0-9]+)[.,][0-9]+: ]]; then
            what="Fetching packages" percent=${BASH_REMATCH[2]}
            [[ ${BASH_REMATCH[1]} == dl ]] || what="Installing packages"
        else
            continue
        fi
        if [[ -t 1 ]]; then
            [[ "$what $percent" == "$shown $last" ]] || printf '\r%-24s %3d %%' "$what" "$percent"
            shown=$what last=$percent
        elif [[ $what != "$shown" ]] || ((percent >= last + 10)); then
            echo "$what: $percent %"
            shown=$what last=$((percent - percent % 10))
        fi
    done
    [[ ! -t 1 || -z $shown ]] || echo
}

# runLong LOG COMMAND...: runs the command and shows its progress, or the errors in its log if it fails.
runLong() {
    local log=$1
    shift
    mkdir -p "$(dirname "$log")"
    "$@" 2>&1 | tee -a "$log" | showProgress && return
    echo "FAILED: $*; the whole log is $log" >&2
    local errors=$(grep -nE -m 1 '^(FAILED: |CMake Error|E: )' "$log" | cut -d: -f1)
    grep -vE '^(dl|pm)status:' <(tail -n "+${errors:-1}" "$log") | { [[ $errors ]] && head -n 60 || tail -n 30; } >&2
    return 1
}

# asRoot COMMAND...: runs the command with root rights.
asRoot() {
    if ((EUID == 0)); then "$@"; else sudo "$@"; fi
}

# prepare PACKAGE...: installs those that are missing.
prepare() {
    local missing log=$vltRoot/build/packages.log
    mapfile -t missing < <(missingPackages "$@")
    if ((${#missing[@]})); then
        if ((EUID != 0)) && ! command -v sudo >/dev/null; then
            echo "root or sudo rights are needed to install: ${missing[*]}" >&2
            exit 1
        fi
        echo "Installing (log: $log): ${missing[*]}"
        mkdir -p "$vltRoot/build"
        rm -f "$log"
        asRoot apt-get update -qq || echo "some package lists could not be read; going on" >&2
        runLong "$log" asRoot env DEBIAN_FRONTEND=noninteractive LC_ALL=C.UTF-8 apt-get install -y -q -o APT::Status-Fd=1 \
            --no-install-recommends "${missing[@]}" || exit 1
    fi
    export CCACHE_DIR=${CCACHE_DIR:-$vltRoot/build/ccache}
}

# prepareWhereOffered PACKAGE...: the same for packages that not every Debian release has; prints those left out.
prepareWhereOffered() {
    local missing offered
    mapfile -t missing < <(missingPackages "$@")
    ((${#missing[@]})) || return 0
    mapfile -t offered < <(offeredPackages "${missing[@]}")
    ((${#offered[@]} == 0)) || prepare "${offered[@]}"
    mapfile -t missing < <(missingPackages "$@")
    ((${#missing[@]} == 0)) || echo "Not offered here, and done without: ${missing[*]}"
}
