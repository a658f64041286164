#!/bin/sh
# Puts Verdane in the desktop's menu of the current user: the desktop entry, pointing at the
# built program, and its icon. Usage: scripts/installer-bureau.sh [path/to/verdane]
set -eu
racine=$(cd "$(dirname "$0")/.." && pwd)
programme=$(realpath "${1:-$racine/build/verdane}")
[ -x "$programme" ] || { echo "Programme introuvable : $programme" >&2; exit 1; }
donnees=${XDG_DATA_HOME:-$HOME/.local/share}
mkdir -p "$donnees/applications" "$donnees/icons/hicolor/scalable/apps"
cp "$racine/packaging/verdane.svg" "$donnees/icons/hicolor/scalable/apps/verdane.svg"
sed "s|^Exec=.*|Exec=$programme|" "$racine/packaging/verdane.desktop" \
    > "$donnees/applications/verdane.desktop"
command -v update-desktop-database >/dev/null 2>&1 &&
    update-desktop-database "$donnees/applications" || true
echo "Verdane est dans le menu du bureau : $donnees/applications/verdane.desktop"
