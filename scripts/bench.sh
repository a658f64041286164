#!/usr/bin/env bash
# Builds and runs the benchmarks: scripts/bench.sh [benchmark options...]
set -euo pipefail
cd "$(dirname "$0")/.."
scripts/setup.sh
scripts/build.sh build-bench -DCMAKE_BUILD_TYPE=Release -DVERDANE_BENCHMARKS=ON -DVERDANE_TESTS=OFF
for b in build-bench/bench/bench_* build-bench/bench/qt_*; do
    [ -x "$b" ] && "$b" "$@"
done
# End to end: a generated model of about 3 MB and 8 times that, against the floor.
bench/bout_en_bout.sh build-bench 1 8
