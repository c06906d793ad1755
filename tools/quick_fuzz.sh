#!/bin/sh
# Builds the fuzzers with clang and gives each of them 20 seconds: tools/quick_fuzz.sh [SECONDS [NAME...]]
# What it finds lies in build-fuzz/findings; inputs worth keeping go to fuzz/corpus.
set -eu

seconds=${1:-20}
[ $# -eq 0 ] || shift
root=$(cd "$(dirname "$0")/.." && pwd)
[ $# -gt 0 ] || set -- $(sed -n 's/^kolvar_fuzzer(\([a-z_]*\) .*/\1/p' "$root/fuzz/CMakeLists.txt")
build=$root/build-fuzz

mkdir -p "$build"
cmake -S "$root" -B "$build" -G Ninja -DCMAKE_CXX_COMPILER=clang++ -DCMAKE_BUILD_TYPE=RelWithDebInfo \
    -DKOLVAR_FUZZ=ON -DKOLVAR_DESKTOP=OFF -DKOLVAR_TESTS=OFF \
    -DKOLVAR_SANITIZE=fuzzer-no-link,address,undefined >"$build/build.log"
cmake --build "$build" --target $(printf "fuzz_%s " "$@") >>"$build/build.log" || { cat "$build/build.log"; exit 1; }

status=0
for name in "$@"; do
    mkdir -p "$build/corpus/$name" "$build/findings"
    log=$build/$name.log
    # New inputs go to the first folder; the corpus of the project is only read.
    if "$build/fuzz/fuzz_$name" -max_total_time="$seconds" -timeout=10 -max_len=65536 \
        -artifact_prefix="$build/findings/$name-" "$build/corpus/$name" "$root/fuzz/corpus/$name" >"$log" 2>&1; then
        echo "$name: $(grep '^Done' "$log")"
    else
        tail -n 40 "$log"
        echo "$name: failed, see $log and $build/findings"
        status=1
    fi
done
exit $status
