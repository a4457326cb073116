#!/usr/bin/env bash
# An area lifted by a drag floats with the pointer, cut by the edge of the picture, and a click stamps it.
. "$(dirname "$0")/desktop.sh"

# with_area FILE X Y: the picture with the area there
with_area() {
  convert "$scratch/p.bmp" \( "$scratch/p.bmp" -crop 40x30+20+20 +repage \) -geometry "+$2+$3" -composite \
    -type TrueColor BMP3:"$1"
}
beside_the_picture() { [ "$background" = "$(dot_at 165 110)" ]; }

picture "$scratch/p.bmp"
cp "$scratch/p.bmp" "$scratch/before.bmp"
with_area "$scratch/floats.bmp" 70 10
with_area "$scratch/at_the_edge.bmp" 140 100
with_area "$scratch/wanted.bmp" 90 70

open_editor "$scratch/p.bmp"
background=$(dot_at 165 110)
button $ROOT_GROUPS 0 1
button $ROOT_PANEL 0 0
drag 20 20 59 49
to 70 10
expect_shows "$scratch/floats.bmp"
to 140 100
expect_shows "$scratch/at_the_edge.bmp"
beside_the_picture || fail "the area reaches beyond the picture"
to 90 70
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
