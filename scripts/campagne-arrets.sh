#!/usr/bin/env bash
# Kills verdane-lot (SIGKILL) at random moments, half of the time while it writes a large RTF
# result, half of the time while LibreOffice converts a result (to PDF or ODT), and checks:
# - after each kill, that the result is the old one whole, the new one whole, or absent (when
#   there was none);
# - after the next run, left to end, that it made the new result whole and that nothing of the
#   killed run is left: no ".<name>.part-*" nor ".~lock.<name>#" beside the result, no office
#   process, profile or temporary file of the run, no socket of its pipe.
# Usage: scripts/campagne-arrets.sh [BUILD_DIR=build] [KILLS=100] [MARLO=samples/marlo]
# Prints one line per kill and a summary; exit status 1 if any check failed.
set -euo pipefail
racine=$(cd "$(dirname "$0")/.." && pwd)
build=${1:-$racine/build}
arrets=${2:-100}
marlo=$(cd "${3:-$racine/samples/marlo}" && pwd)
lot=$build/verdane-lot
[ -x "$lot" ] || { echo "verdane-lot absent de $build"; exit 2; }
conversions=1
command -v soffice >/dev/null 2>&1 || conversions=0

travail=$(mktemp -d /tmp/campagne-arrets.XXXXXX)
export TMPDIR="$travail/tmp" MARLO_HOME="$marlo"
mkdir -p "$TMPDIR" "$travail/docs"
trap 'rm -rf "$travail"' EXIT
dossier="$marlo/Dossiers/TILLEULS"
echecs=0
echec() { echo "ÉCHEC : $*"; echecs=$((echecs + 1)); }

# A model of about 20 MB for the writing (its codes are the dossier's name: every run makes the
# same document), the sample sheet for the conversions.
"$racine/tests/integration/gros_modele.sh" "$travail/gros.vdm" 350
fiche="$marlo/Verdane/ModlDocs/fiche-dossier.vdm"

lancer() { # model result: a run left to end
    "$lot" --dossier "$dossier" --modele "$1" --resultat "$2" --remplacer </dev/null \
        >/dev/null 2>"$travail/erreurs"
}

# True when the file is a whole document of the format its name says.
entier() {
    case $1 in
    *.rtf) cmp -s "$1" "$travail/reference.rtf" ;;
    *.pdf) [ "$(head -c 5 "$1")" = %PDF- ] && tail -c 1024 "$1" | grep -q '%%EOF' ;;
    *.odt) python3 -c 'import sys, zipfile; z = zipfile.ZipFile(sys.argv[1]); sys.exit(z.testzip() is not None or "content.xml" not in z.namelist())' "$1" 2>/dev/null ;;
    esac
}

# What the killed run `pid` may have left once the next run is over.
restes() { # label pid
    local nom
    nom=$(basename "$resultat")
    [ -z "$(find "$travail/docs" -name ".$nom.part-*")" ] || echec "$1 : part laissé"
    [ -z "$(find "$travail/docs" -name '.~lock.*')" ] || echec "$1 : verrou laissé"
    [ -z "$(find "$travail/docs" -name '*.rtf' ! -name resultat.rtf)" ] ||
        echec "$1 : copie RTF laissée"
    if pgrep -f -- "$TMPDIR/" >/dev/null; then echec "$1 : un LibreOffice tourne encore"; fi
    [ -z "$(find "$TMPDIR" -mindepth 1 -maxdepth 1 ! -name "verdane-$(id -u)")" ] ||
        echec "$1 : restes dans le temporaire : $(ls -A "$TMPDIR")"
    [ -z "$(find /tmp -maxdepth 1 -name "OSL_PIPE_$(id -u)_verdane_$(id -u)_$2_*" 2>/dev/null)" ] ||
        echec "$1 : tube laissé"
}

# The reference documents and how long a run takes, to kill within it.
debut=$(date +%s.%N)
lancer "$travail/gros.vdm" "$travail/reference.rtf"
duree_rtf=$(echo "$(date +%s.%N) - $debut" | bc)
duree_conv=0
if [ "$conversions" = 1 ]; then
    debut=$(date +%s.%N)
    lancer "$fiche" "$travail/docs/reference.pdf"
    duree_conv=$(echo "$(date +%s.%N) - $debut" | bc)
    rm -f "$travail/docs/reference.pdf"
fi
printf 'une création RTF de %s Mo : %.1f s ; une conversion : %.1f s\n' \
    "$(($(stat -c %s "$travail/reference.rtf") / 1000000))" "$duree_rtf" "$duree_conv"

RANDOM=${GRAINE:-$$}
declare -A issues
for ((i = 1; i <= arrets; i++)); do
    if [ "$conversions" = 1 ] && ((i % 2 == 0)); then
        if ((i % 4 == 0)); then resultat="$travail/docs/resultat.pdf"; else resultat="$travail/docs/resultat.odt"; fi
        modele=$fiche
        duree=$duree_conv
    else
        resultat="$travail/docs/resultat.rtf"
        modele="$travail/gros.vdm"
        duree=$duree_rtf
    fi
    # Before: no result, or an old one (whole, of its format).
    avant=absent
    if [ -e "$resultat" ] && ((RANDOM % 3 > 0)); then
        avant=ancien
        cp "$resultat" "$travail/ancien"
    else
        rm -f "$resultat"
    fi
    delai=$(echo "scale=3; $duree * $RANDOM / 32768" | bc)
    "$lot" --dossier "$dossier" --modele "$modele" --resultat "$resultat" --remplacer \
        </dev/null >/dev/null 2>&1 &
    pid=$!
    sleep "$delai"
    kill -9 "$pid" 2>/dev/null && tue=tué || tue=fini
    wait "$pid" 2>/dev/null || true
    if [ ! -e "$resultat" ]; then
        etat=absent
        [ "$avant" = absent ] || echec "$i : l'ancien résultat a disparu"
    elif [ "$avant" = ancien ] && cmp -s "$resultat" "$travail/ancien"; then
        etat=ancien
    elif entier "$resultat"; then
        etat=nouveau
    else
        etat=tronqué
        echec "$i ($(basename "$resultat"), $tue après $delai s) : résultat ni ancien ni entier"
    fi
    issues["${resultat##*.} $tue $etat"]=$((${issues["${resultat##*.} $tue $etat"]:-0} + 1))
    echo "$i : $(basename "$resultat") $tue après $delai s : $etat"
    # The next run, left to end, cleans what the killed one left.
    lancer "$modele" "$resultat" || echec "$i : la création suivante a échoué ($(cat "$travail/erreurs"))"
    entier "$resultat" || echec "$i : la création suivante n'a pas fait un résultat entier"
    restes "$i" "$pid"
done

echo "--- $arrets arrêts : par format, issue de l'arrêt et état du résultat"
for cle in "${!issues[@]}"; do echo "$cle : ${issues[$cle]}"; done | sort
echo "$echecs échecs"
[ "$echecs" = 0 ]
