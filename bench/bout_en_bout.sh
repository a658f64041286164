#!/usr/bin/env bash
# End-to-end benchmark: a generated model of about 3 MB (and 8 times that) made into a document
# by verdane-lot, against the floor (bench/plancher.cpp: the model copied and each series record
# read by one open, one positioned read and one close). Prints our time, the floor's and their
# ratio in CPU seconds (the machine may be shared: wall times are printed too), the memory
# against the model's size, and the cost of a chart.
#
#   bench/bout_en_bout.sh BUILD_DIR [scales...]     (default scales: 1 8)
set -euo pipefail
cd "$(dirname "$0")/.."
construction=${1:-build-bench}
shift || true
echelles=("$@")
[ ${#echelles[@]} -gt 0 ] || echelles=(1 8)
lot="$construction/verdane-lot"
generateur="$construction/bench/genere_modele"
plancher="$construction/bench/plancher"
travail=$(mktemp -d)
trap 'rm -rf "$travail"' EXIT
export MARLO_HOME="$PWD/samples/marlo" QT_QPA_PLATFORM=offscreen

# Best of three: user + system seconds, wall seconds, peak memory in KB.
mesurer() {
    local meilleur="" ligne
    for _ in 1 2 3; do
        ligne=$(/usr/bin/time -f "%U %S %e %M" "$@" 2>&1 >/dev/null | tail -1)
        if [ -z "$meilleur" ] || awk -v a="$ligne" -v b="$meilleur" \
            'BEGIN { split(a, x); split(b, y); exit !(x[1] + x[2] < y[1] + y[2]) }'; then
            meilleur=$ligne
        fi
    done
    echo "$meilleur"
}

printf 'load: %s\n' "$(cut -d' ' -f1-3 /proc/loadavg)"
# The start of the program (libraries, options, dossier) on a model of one line.
"$generateur" "$travail/vide" 1 0 >/dev/null
printf '{\\rtf1 x}\r\n' >"$travail/vide/petit.vdm"
read -r u s _ _ < <(mesurer "$lot" --dossier "$travail/vide/D" --modele "$travail/vide/petit.vdm" \
    --resultat "$travail/vide/petit.rtf" --remplacer)
depart=$(awk -v u="$u" -v s="$s" 'BEGIN { printf "%.3f", u + s }')
printf 'start of the program: %s s CPU\n' "$depart"
for echelle in "${echelles[@]}"; do
    for graphiques in 0 20; do
        dossier="$travail/x$echelle-g$graphiques"
        "$generateur" "$dossier" "$echelle" "$graphiques" >/dev/null
        taille=$(stat -c %s "$dossier/modele.vdm")
        read -r u s mur mem < <(mesurer "$lot" --dossier "$dossier/D" \
            --modele "$dossier/modele.vdm" --resultat "$dossier/resultat.rtf" --remplacer)
        nous=$(awk -v u="$u" -v s="$s" 'BEGIN { printf "%.3f", u + s }')
        if [ "$graphiques" = 0 ]; then
            sans=$nous
            plancherCpu=$(for _ in 1 2 3; do "$plancher" "$dossier"; done |
                sed -E 's/.* ([0-9.]+) s CPU.*/\1/' | sort -n | head -1)
            printf 'x%s, %d bytes, no charts: ours %s s CPU (%s s wall), floor %s s CPU, ratio %s (%s without the start)\n' \
                "$echelle" "$taille" "$nous" "$mur" "$plancherCpu" \
                "$(awk -v a="$nous" -v b="$plancherCpu" 'BEGIN { printf "%.2f", a / b }')" \
                "$(awk -v a="$nous" -v b="$plancherCpu" -v d="$depart" \
                    'BEGIN { printf "%.2f", (a - d) / b }')"
            printf '    peak memory %d KB: the model + %s MiB (at most 1.2 x the model + 30 MiB)\n' \
                "$mem" "$(awk -v m="$mem" -v t="$taille" \
                    'BEGIN { printf "%.1f", (m * 1024 - t) / 1048576 }')"
        else
            printf 'x%s, %d charts: ours %s s CPU (%s s wall), %.1f ms CPU a chart\n' \
                "$echelle" "$((graphiques * echelle))" "$nous" "$mur" \
                "$(awk -v a="$nous" -v b="$sans" -v n="$((graphiques * echelle))" \
                    'BEGIN { printf "%.1f", (a - b) * 1000 / n }')"
        fi
    done
done
