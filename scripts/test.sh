#!/usr/bin/env bash
# Sets up the machine, builds and runs the whole test suite: once in a plain build, once
# under AddressSanitizer and UndefinedBehaviorSanitizer.
set -euo pipefail
cd "$(dirname "$0")/.."
scripts/setup.sh
scripts/setup-libreoffice.sh
# The sources stand as clang-format writes them.
git ls-files -- '*.cpp' '*.h' | xargs clang-format --dry-run -Werror
scripts/build.sh build
ctest --test-dir build --output-on-failure -j "$(nproc)"
scripts/build.sh build-asan -DCMAKE_BUILD_TYPE=Debug -DVERDANE_SANITIZE=ON
ASAN_OPTIONS=detect_leaks=1 UBSAN_OPTIONS=print_stacktrace=1:halt_on_error=1 \
    ctest --test-dir build-asan --output-on-failure -j "$(nproc)"
