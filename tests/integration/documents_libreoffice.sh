#!/usr/bin/env bash
# The sample documents, converted by LibreOffice to text, show the dossier's values in their
# places with their accents. Skipped (exit 77) where LibreOffice isn't installed.
set -euo pipefail
lot=$1
marlo=$2
command -v soffice >/dev/null 2>&1 || { echo "LibreOffice absent"; exit 77; }
travail=$(mktemp -d)
trap 'rm -rf "$travail"' EXIT
export MARLO_HOME="$marlo"
"$lot" --dossier "$marlo/Dossiers/TILLEULS" --modele "$marlo/Verdane/ModlDocs/fiche-dossier.vdm" \
    --resultat "$travail/fiche.rtf" </dev/null 2>/dev/null
timeout 300 soffice -env:UserInstallation="file://$travail/profil" --headless \
    --convert-to txt:Text --outdir "$travail" "$travail/fiche.rtf" >/dev/null 2>&1
texte="$travail/fiche.txt"
echc=0
for attendu in "Exploitant ou société : GAEC des Tilleuls" \
               "Exploitant ou 1er associé JA : Élodie LEROUX, pacsée" \
               "- Élodie LEROUX, né(e) le : 17/09/1999, Jeune Agriculteur" \
               "Exercice 1 : Avr. 2025 - Mars 2026" \
               "Lait vendu : de 612 000 (2025) à 765 000 litres (2029)" \
               "Banque : Crédit Mutuel (Agence de Laval)" \
               "Devise : €uro" \
               "Ce paragraphe reste visible."; do
    # LibreOffice writes the thousands mark as a no-break space.
    if ! sed 's/\xc2\xa0/ /g' "$texte" | grep -qF -- "$attendu"; then
        echo "absent : $attendu"; echc=1
    fi
done
if [ $echc = 0 ]; then echo "1 passed, 0 failed"; else echo "0 passed, 1 failed"; exit 1; fi
