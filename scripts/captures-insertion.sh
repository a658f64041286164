#!/bin/sh
# Pictures of the insertion dialogs (data, date, tooltip) over the sample installation, drawn
# on a virtual X display: scripts/captures-insertion.sh [folder] (default /tmp/verdane-captures).
# Needs the build folder `build` with verdane_library_qt_tests, and Xvfb.
set -eu
racine=$(cd "$(dirname "$0")/.." && pwd)
sortie=${1:-/tmp/verdane-captures}
ecran=${VERDANE_ECRAN:-:7}
mkdir -p "$sortie"
Xvfb "$ecran" -screen 0 1280x1024x24 >/dev/null 2>&1 &
xvfb=$!
trap 'kill $xvfb 2>/dev/null || true' EXIT INT TERM
sleep 1
DISPLAY=$ecran QT_QPA_PLATFORM=xcb VERDANE_CAPTURES=$sortie \
    "$racine/build/tests/library/qt/verdane_library_qt_tests" --gtest_filter='Captures.*'
ls "$sortie"
