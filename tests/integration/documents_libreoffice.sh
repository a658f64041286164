#!/usr/bin/env bash
# The sample documents made by verdane-lot in each format LibreOffice converts to, with and
# without annotations, twice to the same name: each is of its format (its first bytes), holds
# the dossier's values (read back through LibreOffice), and no lock file, profile or office
# is left behind. A conversion that can't be made exits 1, says why in the report and keeps the
# RTF under its own name. Skipped (exit 77) where LibreOffice isn't installed.
set -euo pipefail
lot=$1
marlo=$2
command -v soffice >/dev/null 2>&1 || { echo "LibreOffice absent"; exit 77; }
travail=$(mktemp -d)
# The offices of the runs keep their profiles here, apart from any other run's.
export TMPDIR="$travail/tmp"
mkdir -p "$TMPDIR"
trap 'rm -rf "$travail"' EXIT
export MARLO_HOME="$marlo"
dossier="$marlo/Dossiers/TILLEULS"
modeles="$marlo/Verdane/ModlDocs"
echecs=0
echec() { echo "ÉCHEC : $*"; echecs=$((echecs + 1)); }

octets() { head -c "$2" "$1" | od -An -tx1 | tr -d ' \n'; }
# True when the file holds the format its extension names.
format_reel() {
    case $1 in
    *.doc) [ "$(octets "$1" 8)" = d0cf11e0a1b11ae1 ] ;;
    *.odt) [ "$(octets "$1" 4)" = 504b0304 ] &&
        [ "$(dd if="$1" bs=1 skip=30 count=47 2>/dev/null)" = \
            mimetypeapplication/vnd.oasis.opendocument.text ] ;;
    *.docx) [ "$(octets "$1" 4)" = 504b0304 ] && grep -qa 'word/document.xml' "$1" ;;
    *.pdf) [ "$(head -c 5 "$1")" = %PDF- ] ;;
    esac
}
restes() {
    if pgrep -f -- "$TMPDIR/" >/dev/null; then echec "$1 : un LibreOffice tourne encore"; fi
    local restes
    restes=$(find "$TMPDIR" -mindepth 1 -maxdepth 1 -name 'verdane-office-*' -o -name 'lu*.tmp')
    if [ -n "$restes" ]; then echec "$1 : restes dans le temporaire : $restes"; fi
    if [ -n "$(find "$travail/docs" -name '.~lock.*')" ]; then echec "$1 : verrou laissé"; fi
}

mkdir -p "$travail/docs"
for modele in fiche-dossier lettre; do
    for ext in doc odt docx pdf; do
        resultat="$travail/docs/$modele.$ext"
        for fois in 1 2; do
            statut=0
            "$lot" --dossier "$dossier" --modele "$modeles/$modele.vdm" --resultat "$resultat" \
                --remplacer --rapport "$travail/rapport.json" </dev/null 2>"$travail/erreurs" ||
                statut=$?
            if [ "$statut" != 0 ]; then
                echec "$modele.$ext ($fois) : statut $statut"; cat "$travail/erreurs"
            fi
            format_reel "$resultat" || echec "$modele.$ext ($fois) n'est pas au format $ext"
            grep -q '"documentCree":true' "$travail/rapport.json" ||
                echec "$modele.$ext ($fois) : le rapport ne dit pas le document créé"
            restes "$modele.$ext ($fois)"
        done
    done
done
[ -z "$(find "$travail/docs" -name '*.rtf')" ] || echec "une copie RTF est restée"

# The text of each document as LibreOffice reads it; a no-break space counts as a blank.
for ext in doc odt docx; do
    mkdir -p "$travail/texte/$ext"
    TMPDIR="$travail" timeout 300 soffice -env:UserInstallation="file://$travail/lecteur" --headless \
        --convert-to txt:Text --outdir "$travail/texte/$ext" "$travail/docs/"*."$ext" \
        >/dev/null 2>&1 || true
    sed -i 's/\xc2\xa0/ /g' "$travail/texte/$ext/"*.txt 2>/dev/null || true
    for attendu in "Exploitant ou société : GAEC des Tilleuls" \
        "Exploitant ou 1er associé JA : Élodie LEROUX, pacsée" \
        "- Élodie LEROUX, né(e) le : 17/09/1999, Jeune Agriculteur" \
        "Exercice 1 : Avr. 2025 - Mars 2026" \
        "Lait vendu : de 612 000 (2025) à 765 000 litres (2029)" \
        "Banque : Crédit Mutuel (Agence de Laval)" \
        "Devise : €uro" \
        "Ce paragraphe reste visible."; do
        grep -qF -- "$attendu" "$travail/texte/$ext/fiche-dossier.txt" 2>/dev/null ||
            echec "fiche-dossier.$ext : absent : $attendu"
    done
    for attendu in "GAEC des Tilleuls" "Madame, Monsieur," \
        "Vous trouverez ci-joint l'étude prévisionnelle de votre exploitation, conduite sur 6 années"; do
        grep -qF -- "$attendu" "$travail/texte/$ext/lettre.txt" 2>/dev/null ||
            echec "lettre.$ext : absent : $attendu"
    done
done

# An office that can't start, named by the options: exit 1, the reason in the report, the
# RTF kept as such.
cp -r "$marlo" "$travail/marlo"
mkdir -p "$travail/bin"
printf '#!/bin/sh\nexit 1\n' >"$travail/bin/soffice"
chmod +x "$travail/bin/soffice"
faux="$travail/bin/soffice"
printf "\\x$(printf %02x ${#faux})\\x00%s" "$faux" >"$travail/marlo/Verdane/Editeur.svg"
statut=0
MARLO_HOME="$travail/marlo" "$lot" --dossier "$dossier" --modele "$modeles/fiche-dossier.vdm" \
    --resultat "$travail/docs/rate.doc" --rapport "$travail/rate.json" </dev/null \
    2>"$travail/erreurs" || statut=$?
[ "$statut" = 1 ] || echec "conversion impossible : statut $statut au lieu de 1"
grep -qF '"documentCree":false,"raison":"Impossible de lancer OpenOffice : LibreOffice ('"$faux"') s' \
    "$travail/rate.json" ||
    { echec "le rapport ne dit pas pourquoi"; cat "$travail/rate.json"; }
[ ! -e "$travail/docs/rate.doc" ] || echec "du RTF sous le nom rate.doc"
[ "$(head -c 5 "$travail/docs/rate.rtf" 2>/dev/null)" = '{\rtf' ] || echec "le RTF n'est pas gardé"
grep -q "rate.rtf" "$travail/erreurs" || echec "le message ne dit pas où est le RTF"
restes "conversion impossible"

if [ $echecs = 0 ]; then echo "1 passed, 0 failed"; else echo "0 passed, 1 failed"; exit 1; fi
