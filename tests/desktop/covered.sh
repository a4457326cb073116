#!/usr/bin/env bash
# A window that was covered and is uncovered again shows the same picture.
. "$(dirname "$0")/desktop.sh"

picture "$scratch/p.bmp"
picture "$scratch/wanted.bmp" -fill black -draw "point 50,50"

open_editor "$scratch/p.bmp"
stroke 50 50
expect_shows "$scratch/wanted.bmp"
start xmessage -geometry 1200x700+0+0 -title cover cover
until_true "the covering window" find_window cover
until_true "the picture under it" eval '! shows "$scratch/wanted.bmp"'
kill "$started"
expect_shows "$scratch/wanted.bmp"
