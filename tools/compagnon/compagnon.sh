#!/bin/sh
# Draws the news window's companion, compagnonVd.gif: a sprout with a face that sways, blinks
# and waves a leaf, 12 frames of 120x120 looping forever. Needs ImageMagick.
# Usage: tools/compagnon/compagnon.sh [output.gif]
set -eu
sortie=${1:-$(dirname "$0")/../../samples/source/Verdane/Images/compagnonVd.gif}
travail=$(mktemp -d)
trap 'rm -rf "$travail"' EXIT

n=0
for pas in 0 1 2 3 4 5 6 5 4 3 2 1; do
    # Sway of the stem and of the head, in pixels; the eyes close on the sixth frame.
    x=$((pas * 2 - 6))
    feuille=$((pas * 6 - 18))
    if [ "$n" -eq 6 ]; then
        yeux="line $((52 + x)),52 $((58 + x)),52 line $((66 + x)),52 $((72 + x)),52"
    else
        yeux="circle $((55 + x)),52 $((55 + x)),55 circle $((69 + x)),52 $((69 + x)),55"
    fi
    convert -size 120x120 xc:'#f4f7ee' \
        -fill '#8a5a2b' -stroke '#5c3b1a' -strokewidth 2 -draw "rectangle 36,100 84,116" \
        -fill '#a0693a' -draw "rectangle 32,96 88,104" \
        -fill none -stroke '#3f7a1f' -strokewidth 5 -draw "bezier 60,98 60,80 $((62 + x)),72 $((62 + x)),66" \
        -fill '#6dbb3a' -stroke '#3f7a1f' -strokewidth 2 \
        -draw "translate 60,84 rotate $((-30 + feuille)) ellipse 16,0 16,6 0,360" \
        -draw "translate 60,80 rotate $((200 - feuille / 2)) ellipse 14,0 14,5 0,360" \
        -fill '#9be05a' -draw "circle $((62 + x)),52 $((62 + x)),34" \
        -fill '#1f3d0c' -stroke '#1f3d0c' -strokewidth 2 -draw "$yeux" \
        -fill none -draw "arc $((54 + x)),56 $((70 + x)),66 20,160" \
        -fill '#e07a7a' -stroke none -draw "circle $((50 + x)),60 $((50 + x)),63 circle $((74 + x)),60 $((74 + x)),63" \
        "$travail/$(printf %02d $n).png"
    n=$((n + 1))
done
convert -delay 12 -loop 0 -dispose background "$travail"/*.png -layers Optimize "$sortie"
echo "$sortie"
