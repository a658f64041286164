# A virtual X display for the scripts that look at the program's windows; sourced, not run, from
# the repository's top folder:
#
#   . scripts/ecran-virtuel.sh
#   ecran_virtuel [WIDTHxHEIGHT]      (default 1280x1024)
#
# installs what looking at windows needs (Xvfb, xdotool, ImageMagick, the X utilities), starts
# Xvfb on the first free display from :90, exports DISPLAY and a private XDG_RUNTIME_DIR, and
# returns once the server answers. When the script ends, its own `fin` runs if it has one, then
# the server stops.
ecran_virtuel() {
    scripts/setup.sh xvfb xdotool imagemagick x11-utils >/dev/null
    _n=90
    while [ -e "/tmp/.X11-unix/X$_n" ] || [ -e "/tmp/.X$_n-lock" ]; do _n=$((_n + 1)); done
    DISPLAY=":$_n"
    XDG_RUNTIME_DIR=$(mktemp -d)
    export DISPLAY XDG_RUNTIME_DIR
    Xvfb "$DISPLAY" -br -nolisten tcp -screen 0 "${1:-1280x1024}x24" >/dev/null 2>&1 &
    _xvfb=$!
    trap _fin_ecran EXIT
    trap 'exit 1' INT TERM
    for _ in $(seq 100); do
        xdpyinfo >/dev/null 2>&1 && return 0
        sleep 0.1
    done
    echo "Xvfb ne répond pas sur $DISPLAY" >&2
    return 1
}

_fin_ecran() {
    if command -v fin >/dev/null 2>&1; then fin; fi
    kill "$_xvfb" 2>/dev/null || true
    rm -rf "$XDG_RUNTIME_DIR"
}
