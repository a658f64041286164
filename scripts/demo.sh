#!/usr/bin/env bash
# Sets up the machine, builds, and makes the sample documents from the sample Marlo
# installation (samples/marlo, made by the build from samples/source).
set -euo pipefail
cd "$(dirname "$0")/.."
scripts/setup.sh
scripts/setup-libreoffice.sh
scripts/build.sh build
sortie=${VERDANE_DEMO:-/tmp/verdane-demo}
mkdir -p "$sortie"
export MARLO_HOME="$PWD/samples/marlo"
modeles="$MARLO_HOME/Verdane/ModlDocs"
dossiers="$MARLO_HOME/Dossiers"
# The job INI of the command line makes a document with no dossier (it blanks the current one);
# verdane-lot makes a named dossier's documents.
build/verdane INI "$modeles/lettre.vdm" "$sortie/lettre-sans-dossier.rtf" "" remplacer
echo "-> $sortie/lettre-sans-dossier.rtf"
for dossier in DUPONT TILLEULS; do
    for modele in "$modeles"/*.vdm; do
        nom=$(basename "$modele" .vdm)-$dossier
        build/verdane-lot --dossier "$dossiers/$dossier" --modele "$modele" \
            --resultat "$sortie/$nom.rtf" --remplacer --rapport "$sortie/$nom.json"
        echo "-> $sortie/$nom.rtf"
    done
done
# The whole PDE of the sample dossier, one document.
build/verdane-lot --dossier "$dossiers/DUPONT" --modele "$modeles/PDE/PDECerfa.vdm" \
    --resultat "$sortie/PDE-DUPONT.rtf" --remplacer --reponse non --rapport "$sortie/PDE-DUPONT.json"
echo "-> $sortie/PDE-DUPONT.rtf"
if command -v soffice >/dev/null 2>&1; then
    profil=$(mktemp -d)
    timeout 300 soffice -env:UserInstallation="file://$profil" --headless --convert-to txt:Text \
        --outdir "$sortie" "$sortie"/*.rtf >/dev/null 2>&1 || true
    rm -rf "$profil"
    for t in "$sortie"/*.txt; do
        [ -f "$t" ] || continue
        echo "===== $(basename "$t") ====="
        cat "$t"
    done
fi
