#!/bin/sh
# Pictures of the insertion dialogs (data, date, tooltip) over the sample installation, drawn
# on a virtual X display: scripts/captures-insertion.sh [folder] (default /tmp/verdane-captures).
# Needs the build folder `build` with verdane_library_qt_tests.
set -eu
sortie=$(realpath -m "${1:-/tmp/verdane-captures}")
cd "$(dirname "$0")/.."
mkdir -p "$sortie"
. scripts/ecran-virtuel.sh
ecran_virtuel
QT_QPA_PLATFORM=xcb VERDANE_CAPTURES=$sortie \
    "build/tests/library/qt/verdane_library_qt_tests" --gtest_filter='Captures.*'
ls "$sortie"
