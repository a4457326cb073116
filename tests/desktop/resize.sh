#!/usr/bin/env bash
# The view follows the size of the window: a part of the picture while it is small, all of it when there is room.
. "$(dirname "$0")/desktop.sh"

picture_of 400 300 "$scratch/p.bmp"
picture_of 400 300 "$scratch/part.bmp" -crop 150x80+0+0

open_editor "$scratch/p.bmp"
xdotool windowsize "$window" 260 200
until_true "the small view" eval '! shows "$scratch/p.bmp"'
find_draw
expect_shows "$scratch/part.bmp"
xdotool windowsize "$window" 700 600
expect_shows "$scratch/p.bmp"
