#!/usr/bin/env bash
# Installs what the LibreOffice link needs on a Debian machine (root or sudo): the office with
# its full Writer (the desktop program drives a visible Writer, and the variants without a
# front end lack the windows a document's comments need, so the office dies loading them), and
# the SDK that holds cppumaker and the headers of the UNO runtime. The C++ headers of the
# office's own types are not shipped: the build makes them from the type libraries with
# cppumaker. Safe to run again.
set -euo pipefail
exec "$(dirname "$0")/setup.sh" libreoffice-core libreoffice-writer libreoffice-dev \
    libreoffice-dev-common ure file
