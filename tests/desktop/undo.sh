#!/usr/bin/env bash
# Blank takes the last stroke back, and gives it again.
. "$(dirname "$0")/desktop.sh"

picture "$scratch/p.bmp"
picture "$scratch/one.bmp" -fill black -draw "point 50,50"
picture "$scratch/two.bmp" -fill black -draw "point 50,50" -draw "point 60,55"

open_editor "$scratch/p.bmp"
stroke 50 50
expect_shows "$scratch/one.bmp"
stroke 60 55
expect_shows "$scratch/two.bmp"
xdotool key space
expect_shows "$scratch/one.bmp"
xdotool key space
expect_shows "$scratch/two.bmp"
