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

# A display of our own, on the first free number from 90.
n=90
while [ -e "/tmp/.X11-unix/X$n" ] || [ -e "/tmp/.X$n-lock" ]; do n=$((n + 1)); done
mkdir -p "$sortie/run" && chmod 700 "$sortie/run"
export XDG_RUNTIME_DIR="$sortie/run"
Xvfb ":$n" -br -screen 0 2200x1400x24 >/dev/null 2>&1 &
xvfb=$!
trap 'kill $xvfb 2>/dev/null || true' EXIT
sleep 1

capture() { # name, skin folder, "menu" or "", environment...
    local nom=$1 dossier=$2 menu=$3
    shift 3
    env DISPLAY=":$n" "$@" "$build"/src/skin/qt/apercu-skin "$dossier" 5000 $menu &
    local programme=$!
    sleep 3
    import -display ":$n" -window root "$sortie/$nom.png"
    convert "$sortie/$nom.png" -trim +repage "$sortie/$nom.png"
    wait $programme || true
    echo "$sortie/$nom.png"
}
capture skin-96dpi "$skin" ""
capture skin-192dpi "$skin" "" QT_SCALE_FACTOR=2
capture menu-systeme "$skin" menu
capture autre-bitmap "$autre" ""
