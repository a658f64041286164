#!/usr/bin/env bash
# Screenshots of the table editor and of each of its dialogs on a virtual screen (Xvfb), each
# window shown and grabbed by the table windows' test program; the editor's picture is also
# kept as docs/captures/tableaux-editeur.png for the README:
# scripts/capture-tableaux.sh [build folder] [picture folder]
set -euo pipefail
cd "$(dirname "$0")/.."
build=${1:-build}
sortie=$(realpath -m "${2:-${TMPDIR:-/tmp}/verdane-captures-tableaux}")
mkdir -p "$sortie" docs/captures
ecran=:58
Xvfb "$ecran" -screen 0 1280x1024x24 >/dev/null 2>&1 &
xvfb=$!
trap 'kill "$xvfb" 2>/dev/null || true' EXIT
sleep 1
DISPLAY=$ecran QT_QPA_PLATFORM=xcb VERDANE_CAPTURES="$sortie" \
    "$build/tests/tables/qt/verdane_tables_qt_tests" --gtest_filter='DialoguesTest.Captures'
cp "$sortie/FrmInserTab.png" docs/captures/tableaux-editeur.png
ls "$sortie"/Frm*.png
