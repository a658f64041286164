#!/usr/bin/env bash
# Sets up the machine, builds, and makes the sample documents from the sample Marlo
# installation (samples/marlo, made by the build from samples/source).
set -euo pipefail
cd "$(dirname "$0")/.."
scripts/setup.sh
scripts/build.sh build
sortie=${VERDANE_DEMO:-/tmp/verdane-demo}
mkdir -p "$sortie"
export MARLO_HOME="$PWD/samples/marlo"
modeles="$MARLO_HOME/Verdane/ModlDocs"
for modele in "$modeles"/*.vdm; do
    nom=$(basename "$modele" .vdm)
    build/verdane INI "$modele" "$sortie/$nom.rtf" "" remplacer
    echo "-> $sortie/$nom.rtf"
done
if command -v soffice >/dev/null 2>&1; then
    soffice --headless --convert-to txt:Text --outdir "$sortie" "$sortie"/*.rtf >/dev/null 2>&1 || true
    for t in "$sortie"/*.txt; do
        [ -f "$t" ] || continue
        echo "===== $(basename "$t") ====="
        cat "$t"
    done
fi
