#!/usr/bin/env bash
# Without a terminal no run waits for an answer: the question takes its default and says so;
# and the exit statuses of both programs.
set -euo pipefail
verdane=$1
lot=$2
marlo=$3
travail=$(mktemp -d)
trap 'rm -rf "$travail"' EXIT
export MARLO_HOME="$travail/Marlo"
# No display either: with one, the program speaks in windows and the bar opens.
unset DISPLAY WAYLAND_DISPLAY
mkdir -p "$MARLO_HOME"
cp -r "$marlo/ParamLog" "$marlo/Dossiers" "$MARLO_HOME/"
modele="$marlo/Verdane/ModlDocs/lettre.vdm"
echc=0
attendre() { # attendu, commande...
    local attendu=$1; shift
    local statut=0
    timeout 30 "$@" </dev/null >"$travail/sortie" 2>"$travail/erreurs" || statut=$?
    if [ "$statut" != "$attendu" ]; then
        echo "ÉCHEC : $* -> $statut au lieu de $attendu"; cat "$travail/erreurs"; echc=1
    fi
}
printf 'ancien' > "$travail/r.rtf"
attendre 0 "$verdane" INI "$modele" "$travail/r.rtf"
grep -q "réponse par défaut" "$travail/erreurs" || { echo "la réponse par défaut n'est pas dite"; echc=1; }
[ "$(cat "$travail/r.rtf")" = ancien ] || { echo "résultat remplacé sans accord"; echc=1; }
attendre 0 "$verdane" INI "$modele" "$travail/r.rtf" "" remplacer
attendre 1 "$verdane" INI "$travail/absent.vdm" "$travail/r2.rtf"
attendre 1 "$verdane" INI "$modele" "$travail/pas/la/r.rtf"
# The jobs with a window need a display: without one they say so and point to verdane-lot.
sans_ecran() { # job, arguments...
    attendre 2 env -u DISPLAY -u WAYLAND_DISPLAY "$verdane" "$@"
    grep -q "verdane-lot" "$travail/erreurs" || { echo "$1 : verdane-lot n'est pas cité"; echc=1; }
}
sans_ecran CREER "$MARLO_HOME/Dossiers/DUPONT"
sans_ecran CERFA "$MARLO_HOME/Dossiers/DUPONT"
sans_ecran OUVRIR "$MARLO_HOME/Dossiers/DUPONT" Bilan
attendre 2 "$verdane"
attendre 0 "$lot" --help
attendre 0 "$lot" --version
attendre 2 "$lot" --modele "$modele"
attendre 2 "$lot" --dossier "$MARLO_HOME/Dossiers/PERSONNE" --modele "$modele" --resultat "$travail/l.rtf"
attendre 0 "$lot" --dossier "$MARLO_HOME/Dossiers/DUPONT" --modele "$modele" --resultat "$travail/l.rtf" \
    --rapport "$travail/l.json"
grep -q '"documentCree":true' "$travail/l.json" || { echo "rapport incomplet"; echc=1; }
grep -q "Saint-Berthevin" "$travail/l.rtf" || { echo "valeur du dossier absente"; echc=1; }
attendre 2 "$lot" --dossier "$MARLO_HOME/Dossiers/DUPONT" --modele "$modele" --resultat "$travail/l.rtf"
attendre 1 "$lot" --dossier "$MARLO_HOME/Dossiers/DUPONT" --modele "$modele" --resultat "$travail/x/l.rtf"
rm -f "$MARLO_HOME/ParamLog/Marlo.par"
attendre 1 "$verdane" INI "$modele" "$travail/r3.rtf"
grep -q "WinMarlo est introuvable" "$travail/erreurs" || { echo "message de Marlo.par absent"; echc=1; }
if [ $echc = 0 ]; then echo "1 passed, 0 failed"; else echo "0 passed, 1 failed"; exit 1; fi
