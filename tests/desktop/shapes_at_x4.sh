#!/usr/bin/env bash
# Shapes dragged by the pointer at x4 are whole blocks on the screen and single pixels in the file.
. "$(dirname "$0")/desktop.sh"

picture "$scratch/p.bmp"
open_editor "$scratch/p.bmp"
button $ROOT_GROUPS 0 3
button $ROOT_PANEL 0 2
click_at 10 10
until_true "the picture at x4" eval 'find_draw && [ "$scale" = 4 ]'
shape $EXP_PANEL 0 1 20 100 60 100 60 100 -draw "rectangle 20,100 60,100"
shape $EXP_PANEL 0 2 20 20 60 40 60 40 -draw "rectangle 20,20 60,20" -draw "rectangle 20,40 60,40" \
  -draw "rectangle 20,20 20,40" -draw "rectangle 60,20 60,40"
shape $EXP_PANEL 0 3 90 70 70 50 70 50 -draw "rectangle 70,50 90,70"
# five by five without its corners, filled
shape $EXP_PANEL 2 3 100 90 102 92 102 90 -draw "rectangle 99,88 101,92" -draw "rectangle 98,89 102,91"
end_with_save
expect_same "$scratch/wanted.bmp" "$scratch/p.bmp"
