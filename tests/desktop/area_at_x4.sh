#!/usr/bin/env bash
# At x4 an area of whole blocks floats and is stamped; a zoom out drops one that floats.
. "$(dirname "$0")/desktop.sh"

# with_area FILE X Y: the picture with the area there
with_area() {
  convert "$scratch/before.bmp" \( "$scratch/before.bmp" -crop 20x15+20+20 +repage \) -geometry "+$2+$3" -composite \
    -type TrueColor BMP3:"$1"
}

picture "$scratch/p.bmp"
cp "$scratch/p.bmp" "$scratch/before.bmp"
with_area "$scratch/floats.bmp" 60 80
with_area "$scratch/wanted.bmp" 100 50

open_editor "$scratch/p.bmp"
button $ROOT_GROUPS 0 3
button $ROOT_PANEL 0 2
click_at 10 10
until_true "the picture at x4" eval 'find_draw && [ "$scale" = 4 ]'
button $EXP_PANEL 1 3
drag 20 20 39 34
to 60 80
expect_shows "$scratch/floats.bmp"
to 100 50
expect_shows "$scratch/wanted.bmp"
xdotool click 1
to 5 100
expect_shows "$scratch/wanted.bmp"

drag 20 20 39 34
to 10 80
button $EXP_GROUPS 0 2
button $EXP_PANEL 0 1
until_true "the picture at x2" eval 'find_draw && [ "$scale" = 2 ]'
expect_shows "$scratch/wanted.bmp"
end_with_save
expect_same "$scratch/wanted.bmp" "$scratch/p.bmp"
