#!/usr/bin/env bash
# Dossier files are only ever read: the listing of each dossier folder and the checksum of
# every file in it are the same after verdane-lot runs (lists, investments-financing, the
# whole PDE, answers yes and no) as before, for full dossiers and one without its lists.
set -euo pipefail
lot=$1
marlo=$2
travail=$(mktemp -d)
trap 'rm -rf "$travail"' EXIT
export MARLO_HOME="$travail/Marlo"
mkdir -p "$MARLO_HOME"
cp -r "$marlo/ParamLog" "$marlo/Dossiers" "$MARLO_HOME/"
# A copy of the full dossier whose lists Marlo hasn't written yet.
mkdir "$MARLO_HOME/Dossiers/NOUVEAU"
cp "$MARLO_HOME/Dossiers/DUPONT/DUPONT" "$MARLO_HOME/Dossiers/NOUVEAU/NOUVEAU"
cp "$MARLO_HOME"/Dossiers/DUPONT/*.[dD][oO][nN] "$MARLO_HOME/Dossiers/NOUVEAU/"
modeles="$marlo/Verdane/ModlDocs"

releve() { # the listing with sizes and dates, then the checksums
    (cd "$MARLO_HOME/Dossiers" && find . -printf '%p %y %s %T@\n' | sort &&
        find . -type f -exec sha256sum {} + | sort)
}
releve > "$travail/avant"
echec=0
n=0
for dossier in DUPONT GAEC NOUVEAU; do
    for modele in domaine.vdm PDE/PDECerfasoc.vdm PDE/PDECerfa.vdm fiche-dossier.vdm; do
        for reponse in oui non; do
            n=$((n + 1))
            if ! timeout 120 "$lot" --dossier "$MARLO_HOME/Dossiers/$dossier" \
                --modele "$modeles/$modele" --resultat "$travail/r$n.rtf" \
                --reponse $reponse </dev/null >/dev/null 2>"$travail/erreurs"; then
                echo "ÉCHEC : $dossier $modele"; cat "$travail/erreurs"; echec=1
            fi
        done
    done
done
releve > "$travail/apres"
if ! diff "$travail/avant" "$travail/apres"; then
    echo "le dossier a été modifié"; echec=1
fi
if [ $echec = 0 ]; then echo "1 passed, 0 failed"; else echo "0 passed, 1 failed"; exit 1; fi
