#!/usr/bin/env bash
# A result being written when the program is killed: the old result stays whole, and no
# half-written file takes its place.
set -euo pipefail
verdane=$1
travail=$(mktemp -d)
trap 'rm -rf "$travail"' EXIT
mkdir -p "$travail/Marlo/ParamLog"
cp "$2/ParamLog/Marlo.par" "$travail/Marlo/ParamLog/"
# A model of about 40 MB, with codes all along it.
"$(dirname "$0")/gros_modele.sh" "$travail/gros.vdm" 700
printf 'ancien resultat complet\n' > "$travail/resultat.rtf"
for attente in 0.05 0.2 0.5; do
    MARLO_HOME="$travail/Marlo" "$verdane" INI "$travail/gros.vdm" "$travail/resultat.rtf" "" remplacer \
        </dev/null 2>/dev/null &
    pid=$!
    sleep "$attente"
    kill -9 "$pid" 2>/dev/null || true
    wait "$pid" 2>/dev/null || true
    contenu=$(head -c 30 "$travail/resultat.rtf")
    if [ "$contenu" != "ancien resultat complet" ]; then
        # The run may have finished before the kill: then the result must be whole.
        tail -c 5 "$travail/resultat.rtf" | grep -q '}' || { echo "résultat tronqué"; exit 1; }
        printf 'ancien resultat complet\n' > "$travail/resultat.rtf"
    fi
done
# The parts the killed runs left are removed by the next run that writes the same result.
MARLO_HOME="$travail/Marlo" "$verdane" INI "$travail/gros.vdm" "$travail/resultat.rtf" "" remplacer \
    </dev/null 2>/dev/null
restes=$(find "$travail" -maxdepth 1 -name '.resultat.rtf.part-*' | wc -l)
if [ "$restes" != 0 ]; then
    echo "$restes fichiers temporaires laissés après une création complète"
    exit 1
fi
echo "1 passed, 0 failed"
