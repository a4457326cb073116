#!/usr/bin/env bash
# A drawing by the keypad alone: its keys move the pointer by one pixel, its 0 is the button.
. "$(dirname "$0")/desktop.sh"

picture "$scratch/p.bmp"
picture "$scratch/wanted.bmp" -fill black -draw "point 32,30" -draw "point 33,31" -draw "point 32,30" -draw "point 30,28"

open_editor "$scratch/p.bmp"
to 30 30
xdotool key Num_Lock
keypad 6 6 0 3 0 7 4 4 8 8 5 0
expect_shows "$scratch/wanted.bmp"
end_with_save
expect_same "$scratch/wanted.bmp" "$scratch/p.bmp"
