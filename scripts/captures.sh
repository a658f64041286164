#!/bin/sh
# Screenshots of the desktop bar under a virtual X display (Xvfb, 1280x1024): the bar alone,
# each menu rolled down, the news window. Prints what the X server knows of the bar (window
# type, strut, geometry). Usage: scripts/captures.sh [build folder] [output folder]
set -eu
racine=$(cd "$(dirname "$0")/.." && pwd)
build=$(realpath -m "${1:-$racine/build}")
sortie=$(realpath -m "${2:-/tmp/verdane-captures}")
cd "$racine"
mkdir -p "$sortie"
travail=$(mktemp -d)
pids=""
fin() {
    for p in $pids; do kill "$p" 2>/dev/null || true; done
    rm -rf "$travail"
}

# A copy of the sample installation: the bar writes its options file.
cp -r "$racine/samples/marlo" "$travail/marlo"
export MARLO_HOME="$travail/marlo"
. scripts/ecran-virtuel.sh
ecran_virtuel

barre() { xdotool search --onlyvisible --name '^Verdane$' 2>/dev/null | head -1; }
attendre_barre() {
    for _ in $(seq 50); do [ -n "$(barre)" ] && return 0; sleep 0.2; done
    echo "La barre ne s'est pas montrée" >&2; exit 1
}
onglet() { # click the middle of tab $1, whose left is given in pixels
    xdotool mousemove "$1" 24 click 1
    sleep 1
    # A box (a missing skin picture) is answered, so the menu goes on rolling.
    for b in $(xdotool search --onlyvisible --name '^Erreur' 2>/dev/null); do
        import -window root "$sortie/boite.png"
        xdotool windowfocus --sync "$b" key Return 2>/dev/null ||
            xdotool mousemove 630 496 click 1
        sleep 1
    done
}

"$build/verdane" >"$travail/barre.log" 2>&1 &
pids="$pids $!"
attendre_barre
sleep 1
w=$(barre)
echo "Fenêtre de la barre : $w"
xwininfo -id "$w" | grep -E 'Absolute|Width|Height|Map State'
xprop -id "$w" _NET_WM_WINDOW_TYPE _NET_WM_STRUT _NET_WM_STRUT_PARTIAL
import -window root -crop 1280x400+0+0 "$sortie/barre.png"

# Each tab, its menu rolled down, then closed by its own button. Menus stand at 210, 2050,
# 3700, 5670, 7480, 8790 twips (15 twips a pixel), 280 pixels wide (the properties 360).
n=0
for x in 60 180 300 430 540 640; do
    onglet "$x"
    import -window root -crop 1280x400+0+0 "$sortie/menu$n.png"
    gauche=$(echo "14 137 247 378 499 586" | cut -d' ' -f$((n + 1)))
    largeur=280
    [ "$n" -eq 5 ] && largeur=360
    xdotool mousemove $((gauche + largeur - 12)) 52 click 1
    sleep 1
    n=$((n + 1))
done

# A second start leaves the first bar alone.
"$build/verdane" >"$travail/second.log" 2>&1 &
second=$!
pids="$pids $second"
sleep 2
import -window root "$sortie/second.png"
echo "Barres de type dock : $(for f in $(xdotool search --onlyvisible --name '^Verdane$'); do
    xprop -id "$f" _NET_WM_WINDOW_TYPE; done | grep -c DOCK)"
kill "$second" 2>/dev/null || true
echo "Captures dans $sortie"
