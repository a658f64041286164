#!/usr/bin/env bash
# Builds the fuzzers with clang and runs each for a while: scripts/fuzz.sh [seconds each]
set -euo pipefail
cd "$(dirname "$0")/.."
secondes=${1:-20}
scripts/setup.sh clang libclang-rt-14-dev
CXX=clang++ cmake -S . -B build-fuzz -G Ninja -DCMAKE_BUILD_TYPE=RelWithDebInfo \
    -DVERDANE_FUZZ=ON -DVERDANE_TESTS=OFF -DVERDANE_QT=OFF -DVERDANE_UNO=OFF >/dev/null
cmake --build build-fuzz -j "$(nproc)" --target $(cd fuzz && ls fuzz_*.cpp | sed 's/\.cpp$//')
mkdir -p build-fuzz/corpus
# AddressSanitizer keeps freed blocks aside to catch late uses; by default 256 MB of them, which
# with their guards is several times that in memory for a fuzzer that allocates at each input.
export ASAN_OPTIONS=${ASAN_OPTIONS:-quarantine_size_mb=64}
for f in fuzz/fuzz_*.cpp; do
    nom=$(basename "$f" .cpp)
    mkdir -p "build-fuzz/corpus/$nom"
    echo "== $nom ($secondes s)"
    build-fuzz/fuzz/"$nom" -max_total_time="$secondes" -timeout=10 -rss_limit_mb=2048 \
        -print_final_stats=0 "build-fuzz/corpus/$nom" 2>&1 | tail -n 2
done
