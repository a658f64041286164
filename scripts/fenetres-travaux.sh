#!/bin/sh
# The jobs of Marlo's command line that open a window (CREER, CERFA, OUVRIR), each run on a
# virtual display: the window must show, a screenshot of it is kept, Escape closes it, and the
# process must end with it.
#
#   scripts/fenetres-travaux.sh [build folder] [folder of the screenshots]
#
# Needs Xvfb, xdotool and imagemagick (import); uses the display :6 unless DISPLAY_ESSAI says
# another.
set -eu
cd "$(dirname "$0")/.."
CONSTRUCTION=${1:-build}
CAPTURES=${2:-/tmp/verdane-fenetres}
ECRAN=${DISPLAY_ESSAI:-:6}
export MARLO_HOME="$PWD/samples/marlo"
DOSSIER="$MARLO_HOME/Dossiers/DUPONT"
mkdir -p "$CAPTURES"

Xvfb "$ECRAN" -screen 0 1280x1024x24 >/dev/null 2>&1 &
XVFB=$!
trap 'kill $XVFB 2>/dev/null || true' EXIT
sleep 1
export DISPLAY="$ECRAN"

echec=0
essayer() {
    nom=$1
    shift
    "$CONSTRUCTION/verdane" "$@" </dev/null >"$CAPTURES/$nom.log" 2>&1 &
    pid=$!
    fenetre=""
    for _ in $(seq 1 60); do
        fenetre=$(xdotool search --onlyvisible --pid "$pid" 2>/dev/null | head -n 1 || true)
        [ -n "$fenetre" ] && break
        sleep 0.5
    done
    if [ -z "$fenetre" ]; then
        echo "$nom : aucune fenêtre"
        kill "$pid" 2>/dev/null || true
        echec=1
        return
    fi
    sleep 1
    import -window root "$CAPTURES/$nom.png"
    xdotool windowactivate --sync "$fenetre" key Escape 2>/dev/null || xdotool key Escape
    for _ in $(seq 1 20); do
        kill -0 "$pid" 2>/dev/null || break
        sleep 0.5
    done
    if kill -0 "$pid" 2>/dev/null; then
        echo "$nom : la fenêtre fermée, le programme tourne encore"
        kill "$pid"
        echec=1
        return
    fi
    wait "$pid" && statut=0 || statut=$?
    echo "$nom : fenêtre $(xdotool getwindowname "$fenetre" 2>/dev/null || echo fermée), statut $statut, $CAPTURES/$nom.png"
}

essayer creer CREER "$DOSSIER"
essayer cerfa CERFA "$DOSSIER"
essayer ouvrir OUVRIR "$DOSSIER" Bilan
exit $echec
