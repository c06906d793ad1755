#!/usr/bin/env bash
# Installs what is missing, builds everything and runs all tests. `./test.sh sanitize` does the same with the address and
# undefined-behaviour sanitizers, in build-sanitize/. Further words go to ctest.
set -euo pipefail
cd "$(dirname "$0")"
. tools/packages.sh

preset=release
folder=build
if [ "${1:-}" = sanitize ]; then
    preset=sanitize
    folder=build-sanitize
    shift
fi

need "${BUILD_PACKAGES[@]}" "${RUN_PACKAGES[@]}" "${TEST_PACKAGES[@]}"
echo "== Configuring ($preset)"
cmake --preset "$preset" -DKOLVAR_TESTS=ON
echo "== Building in $folder/"
cmake --build "$folder"
echo "== Testing"
ctest --test-dir "$folder" --output-on-failure -j "$(nproc)" "$@"
