#!/usr/bin/env bash
# Screenshots of the graph editor on a virtual screen (Xvfb), as the job GRAPH opens it over the
# sample dossier: scripts/capture-graphik.sh [build folder] [picture folder]
set -euo pipefail
cd "$(dirname "$0")/.."
build=${1:-build}
sortie=${2:-docs/captures}
mkdir -p "$sortie"
. scripts/ecran-virtuel.sh
ecran_virtuel
export MARLO_HOME="$PWD/samples/marlo"
"$build/verdane" GRAPH "$MARLO_HOME/Dossiers/DUPONT" &
programme=$!
# The editor is up when its window is mapped.
for _ in $(seq 1 100); do
    xdotool search --name "Visionneuse" >/dev/null 2>&1 && break
    sleep 0.2
done
sleep 1
import -window root "$sortie/graphik.png"
# The preview tab (a click on its caption), then Escape: the editor saves the library and the
# job ends.
fenetre=$(xdotool search --name "Visionneuse" | head -1)
eval "$(xdotool getwindowgeometry --shell "$fenetre")"
xdotool mousemove $((X + 700)) $((Y + 45)) click 1
sleep 1
import -window root "$sortie/graphik-apercu.png"
xdotool key Escape
wait "$programme"
echo "-> $sortie/graphik.png $sortie/graphik-apercu.png"
