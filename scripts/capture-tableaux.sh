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
. scripts/ecran-virtuel.sh
ecran_virtuel
QT_QPA_PLATFORM=xcb VERDANE_CAPTURES="$sortie" \
    "$build/tests/tables/qt/verdane_tables_qt_tests" --gtest_filter='DialoguesTest.Captures'
cp "$sortie/FrmInserTab.png" docs/captures/tableaux-editeur.png
ls "$sortie"/Frm*.png
