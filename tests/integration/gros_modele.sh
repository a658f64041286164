#!/usr/bin/env bash
# Writes a large model for the runs that are killed while they write: FILE, then the number of
# blocks of 1,000 lines (about 58 KB each), each line holding the code of the dossier's name.
set -euo pipefail
python3 - "$1" "$2" <<'PY'
import sys
with open(sys.argv[1], 'w') as f:
    f.write('{\\rtf1\n')
    ligne = 'Du texte et un code #mrl(nomDossier)# puis encore du texte\\par\n' * 1000
    for _ in range(int(sys.argv[2])):
        f.write(ligne)
    f.write('}\n')
PY
