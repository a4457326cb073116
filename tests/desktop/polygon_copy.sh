#!/usr/bin/env bash
# A polygon cut out of the picture by clicks floats with its own pixels alone, and a click stamps it.
. "$(dirname "$0")/desktop.sh"

# with_shape FILE X Y: the picture with the L-shaped polygon there. Its outline belongs to it, but the last column and the
# last row of its box do not.
with_shape() {
  convert "$scratch/before.bmp" \( "$scratch/before.bmp" -crop 21x40+20+20 +repage \) -geometry "+$2+$3" -composite \
    \( "$scratch/before.bmp" -crop 40x20+20+40 +repage \) -geometry "+$2+$(($3 + 20))" -composite \
    -type TrueColor BMP3:"$1"
}

picture "$scratch/p.bmp"
cp "$scratch/p.bmp" "$scratch/before.bmp"
with_shape "$scratch/floats.bmp" 70 10
with_shape "$scratch/wanted.bmp" 100 50

open_editor "$scratch/p.bmp"
button $ROOT_GROUPS 0 2
button $ROOT_PANEL 2 0
drag 20 20 40 20
click_at 40 40
click_at 60 40
click_at 60 60
click_at 20 60 $DOUBLE
expect_shows "$scratch/before.bmp"
# held by its lower left corner
to 70 50
expect_shows "$scratch/floats.bmp"
to 100 90
expect_shows "$scratch/wanted.bmp"
xdotool click 1
to 5 100
expect_shows "$scratch/wanted.bmp"
xdotool key space
expect_shows "$scratch/before.bmp"
xdotool key space
expect_shows "$scratch/wanted.bmp"
end_with_save
expect_same "$scratch/wanted.bmp" "$scratch/p.bmp"
