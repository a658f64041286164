#!/usr/bin/env bash
# Screenshots of sample windows wearing the skin, under Xvfb: scripts/captures-skin.sh [FOLDER]
# The program's own skin at 96 DPI and at 192 DPI (doubled pixels), then the same Skin.ini over
# another bitmap (recoloured by ImageMagick): the windows change with no rebuild.
set -euo pipefail
cd "$(dirname "$0")/.."
sortie=${1:-/tmp/verdane-skin}
build=${BUILD:-build}
cmake --build "$build" --target apercu-skin fabrique-skin >/dev/null
mkdir -p "$sortie"
skin="$sortie/SkinVerdane"
autre="$sortie/SkinAutre"
rm -rf "$skin" "$autre"
"$build"/tools/fabrique/fabrique-skin "$skin"
cp -r "$skin" "$autre"
for f in skin.bmp skin@2x.bmp; do
    convert "$autre/$f" -modulate 100,90,155 "BMP3:$autre/$f"
done

. scripts/ecran-virtuel.sh
ecran_virtuel 2200x1400

capture() { # name, skin folder, "menu" or "", environment...
    local nom=$1 dossier=$2 menu=$3
    shift 3
    env "$@" "$build"/src/skin/qt/apercu-skin "$dossier" 5000 $menu &
    local programme=$!
    sleep 3
    import -window root "$sortie/$nom.png"
    convert "$sortie/$nom.png" -trim +repage "$sortie/$nom.png"
    wait $programme || true
    echo "$sortie/$nom.png"
}
capture skin-96dpi "$skin" ""
capture skin-192dpi "$skin" "" QT_SCALE_FACTOR=2
capture menu-systeme "$skin" menu
capture autre-bitmap "$autre" ""
