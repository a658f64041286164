#!/usr/bin/env bash
# Builds and runs the benchmarks: scripts/bench.sh [benchmark options...]
set -euo pipefail
cd "$(dirname "$0")/.."
scripts/setup.sh
scripts/build.sh build-bench -DCMAKE_BUILD_TYPE=Release -DVERDANE_BENCHMARKS=ON -DVERDANE_TESTS=OFF
for b in build-bench/bench/bench_*; do
    [ -x "$b" ] && "$b" "$@"
done
