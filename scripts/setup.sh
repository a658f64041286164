#!/usr/bin/env bash
# Installs what the project needs on a fresh Debian machine (root or sudo). Safe to run again:
# packages already present are left alone. Further package names may be given as arguments.
set -euo pipefail

# Debian's qt6-charts-dev does not pull the OpenGL module its CMake files ask for; the desktop
# bar docks itself through libxcb, found by pkg-config; git is used by the test command.
paquets=(cmake ninja-build g++ git libgtest-dev libgmock-dev libbenchmark-dev clang-format
         qt6-base-dev qt6-charts-dev libqt6opengl6-dev libgl-dev libxcb1-dev pkg-config
         zlib1g-dev
         fonts-dejavu-core)
paquets+=("$@")
manquants=()
for p in "${paquets[@]}"; do
    dpkg-query -W -f='${Status}' "$p" 2>/dev/null | grep -q "install ok installed" || manquants+=("$p")
done
if [ ${#manquants[@]} -gt 0 ]; then
    echo "Installation de : ${manquants[*]}"
    sudo_=""
    [ "$(id -u)" -ne 0 ] && sudo_="sudo"
    export DEBIAN_FRONTEND=noninteractive
    $sudo_ apt-get update -qq
    $sudo_ apt-get install -y -qq --no-install-recommends "${manquants[@]}"
fi
