#!/usr/bin/env bash
# Installs what the LibreOffice link needs on a Debian machine (root or sudo): the office
# without its graphical front ends, its Writer, and the SDK that holds cppumaker and the
# headers of the UNO runtime. The C++ headers of the office's own types are not shipped: the
# build makes them from the type libraries with cppumaker. Safe to run again: packages already
# present are left alone.
set -euo pipefail

paquets=(libreoffice-core-nogui libreoffice-writer-nogui libreoffice-dev libreoffice-dev-common
         ure file)
manquants=()
for p in "${paquets[@]}"; do
    dpkg-query -W -f='${Status}' "$p" 2>/dev/null | grep -q "install ok installed" || manquants+=("$p")
done
if [ ${#manquants[@]} -eq 0 ]; then
    echo "LibreOffice et son SDK sont déjà installés."
    exit 0
fi
echo "Installation de : ${manquants[*]}"
sudo_=""
[ "$(id -u)" -ne 0 ] && sudo_="sudo"
export DEBIAN_FRONTEND=noninteractive
$sudo_ apt-get update -qq
$sudo_ apt-get install -y -qq --no-install-recommends "${manquants[@]}"
