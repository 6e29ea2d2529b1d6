#!/bin/bash
# Builds everything and runs every test.
set -euo pipefail
cd "$(dirname "$0")"
source tools/prepare.sh

usage="usage: ./test.sh [--sanitize | --tidy]
Installs what is missing, builds and runs all tests, then those that read files of other people once more with the
address and undefined behaviour sanitizers. A second run takes seconds.
  --sanitize  all tests with the sanitizers instead
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

# build PRESET [ARGUMENT...]: configures and builds.
build() {
    local preset=$1 log=$PWD/build/$1.log
    shift
    rm -f "$log"
    echo "Configuring and building (preset $preset, log: $log) ..."
    runLong "$log" cmake --preset "$preset"
    runLong "$log" cmake --build --preset "$preset" "$@"
}

# runTests PRESET [ARGUMENT...]: runs the tests that are built.
runTests() {
    local preset=$1
    shift
    ctest --preset "$preset" "$@" | tee "build/$preset.tests"
}

case $preset in
    tidy) build tidy -- -k 0 ;; # reports all findings, not only the first
    asan)
        build asan
        runTests asan
        ;;
    dev)
        build dev
        runTests dev
        build asan --target hostile_tests
        runTests asan -L hostile
        echo
        echo "All tests:                           $(grep 'tests passed' build/dev.tests)"
        echo "Hostile input, under the sanitizers: $(grep 'tests passed' build/asan.tests)"
        ;;
esac
