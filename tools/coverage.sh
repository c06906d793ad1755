#!/usr/bin/env bash
# Which lines the tests execute: builds with counters in build-coverage/, runs all tests, prints the lines of src/ that none of
# them reaches, floor by floor, and leaves pages to look at in build-coverage/pages/. tools/coverage.sh [CTEST OPTIONS]
set -euo pipefail
cd "$(dirname "$0")/.."
. tools/packages.sh

need "${BUILD_PACKAGES[@]}" "${RUN_PACKAGES[@]}" "${TEST_PACKAGES[@]}" gcovr
echo "== Building with counters in build-coverage/"
cmake -S . -B build-coverage -G Ninja -DCMAKE_BUILD_TYPE=Debug -DCMAKE_CXX_FLAGS="--coverage -O1 -fprofile-update=atomic" >/dev/null
cmake --build build-coverage | tail -n 1
find build-coverage -name '*.gcda' -delete
echo "== Running the tests"
QT_QPA_PLATFORM=offscreen ctest --test-dir build-coverage -j2 --output-on-failure "$@" | tail -n 12
mkdir -p build-coverage/pages
# What the compiler adds of itself (unwinding, branches of exceptions) is no line of ours.
gcovr --root . --object-directory build-coverage --filter src/ --exclude-throw-branches \
    --txt build-coverage/coverage.txt --html-details build-coverage/pages/index.html --json-summary build-coverage/summary.json
python3 - <<'PYTHON'
import json
from collections import defaultdict

floors = defaultdict(lambda: [0, 0])
for entry in json.load(open("build-coverage/summary.json", encoding="utf-8"))["files"]:
    floor = entry["filename"].split("/")[1]
    floors[floor][0] += entry["line_covered"]
    floors[floor][1] += entry["line_total"]
for floor, (covered, total) in sorted(floors.items()):
    print(f"{floor:10} {covered:6} of {total:6} lines  {100 * covered / total:6.2f} %")
PYTHON
grep -E '^src/.* [0-9,-]+$' build-coverage/coverage.txt || true
