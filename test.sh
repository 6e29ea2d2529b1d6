#!/bin/bash
# Builds everything and runs every test.
set -euo pipefail
cd "$(dirname "$0")"
source tools/prepare.sh

usage="usage: ./test.sh [--sanitize | --tidy]
Installs what is missing, builds and runs all tests. A second run takes seconds.
  --sanitize  the same with the address and undefined behaviour sanitizers
  --tidy      clang-tidy over every source instead of the tests"

preset=dev
case ${1:-} in
    "") ;;
    --sanitize) preset=asan ;;
    --tidy) preset=tidy ;;
    --help | -h) echo "$usage"; exit 0 ;;
    *) echo "$usage" >&2; exit 2 ;;
esac

packages=("${buildPackages[@]}" "${testPackages[@]}")
[[ $preset == tidy ]] && packages+=(clang-14 clang-tidy-14)
prepare "${packages[@]}"
prepareWhereOffered "${formatPackages[@]}"

log=$PWD/build/$preset.log
rm -f "$log"
echo "Configuring and building (preset $preset, log: $log) ..."
runLong "$log" cmake --preset "$preset"
if [[ $preset == tidy ]]; then
    runLong "$log" cmake --build --preset tidy -- -k 0 # every finding, not only the first
else
    runLong "$log" cmake --build --preset "$preset"
    ctest --preset "$preset"
fi
