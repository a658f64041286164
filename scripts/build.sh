#!/usr/bin/env bash
# Configures and builds into a folder: scripts/build.sh [folder] [extra cmake options...]
set -euo pipefail
cd "$(dirname "$0")/.."
dossier=${1:-build}
shift || true
cmake -S . -B "$dossier" -G Ninja -DCMAKE_BUILD_TYPE=RelWithDebInfo -DVERDANE_WERROR=ON "$@" >/dev/null
cmake --build "$dossier" -j "$(nproc)"
