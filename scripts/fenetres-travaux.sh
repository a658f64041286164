#!/bin/sh
# The jobs of Marlo's command line that open a window (CREER, CERFA, OUVRIR), each run on a
# virtual display: the window must show, a screenshot of it is kept, Escape closes it, and the
# process must end with it.
#
#   scripts/fenetres-travaux.sh [build folder] [folder of the screenshots]
#
# Installs and uses Xvfb, xdotool and ImageMagick (scripts/ecran-virtuel.sh).
set -eu
cd "$(dirname "$0")/.."
CONSTRUCTION=${1:-build}
CAPTURES=${2:-/tmp/verdane-fenetres}
mkdir -p "$CAPTURES"
# A copy of the sample installation: the documents made here don't go into the samples.
rm -rf "$CAPTURES/marlo"
cp -r samples/marlo "$CAPTURES/marlo"
export MARLO_HOME="$CAPTURES/marlo"
DOSSIER="$MARLO_HOME/Dossiers/DUPONT"

. scripts/ecran-virtuel.sh
ecran_virtuel

echec=0
# The first window of process $1, once shown (empty after 30 s).
fenetre_de() {
    for _ in $(seq 1 60); do
        f=$(xdotool search --onlyvisible --pid "$1" 2>/dev/null | head -n 1 || true)
        [ -n "$f" ] && { echo "$f"; return; }
        sleep 0.5
    done
}

essayer() {
    nom=$1
    shift
    "$CONSTRUCTION/verdane" "$@" </dev/null >"$CAPTURES/$nom.log" 2>&1 &
    pid=$!
    fenetre=$(fenetre_de "$pid")
    if [ -z "$fenetre" ]; then
        echo "$nom : aucune fenêtre"
        kill "$pid" 2>/dev/null || true
        echec=1
        return
    fi
    sleep 1
    import -window root "$CAPTURES/$nom.png"
    xdotool windowfocus --sync "$fenetre" key Escape
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

# A document made from the creation dialog (the first model of the list, keys only) is the one
# verdane-lot makes of the same model and dossier.
creer_au_clavier() {
    "$CONSTRUCTION/verdane" CREER "$DOSSIER" </dev/null >"$CAPTURES/clavier.log" 2>&1 &
    pid=$!
    fenetre=$(fenetre_de "$pid")
    [ -n "$fenetre" ] || { echo "clavier : aucune fenêtre"; kill "$pid"; echec=1; return; }
    xdotool windowfocus --sync "$fenetre" key End Home alt+c
    sleep 3
    import -window root "$CAPTURES/export.png"
    xdotool key Escape
    for _ in $(seq 1 20); do kill -0 "$pid" 2>/dev/null || break; sleep 0.5; done
    if kill -0 "$pid" 2>/dev/null; then
        echo "clavier : le programme tourne encore"; kill "$pid"; echec=1; return
    fi
    modele=$(ls "$MARLO_HOME/Verdane/ModlDocs/"*.vdm | head -n 1)
    "$CONSTRUCTION/verdane-lot" --dossier "$DOSSIER" --modele "$modele" \
        --resultat "$CAPTURES/lot.rtf" --remplacer >/dev/null 2>&1
    cree="$DOSSIER/$(basename "$modele" .vdm).rtf"
    if cmp -s "$cree" "$CAPTURES/lot.rtf"; then
        echo "clavier : $cree est le document de verdane-lot"
    else
        echo "clavier : $cree diffère du document de verdane-lot"; echec=1
    fi
}

creer_au_clavier
essayer creer CREER "$DOSSIER"
essayer cerfa CERFA "$DOSSIER"
essayer ouvrir OUVRIR "$DOSSIER" Bilan
exit $echec
