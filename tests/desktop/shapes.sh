#!/usr/bin/env bash
# Shapes dragged by the pointer at x1: line, box, filled box, circle and an inversion, shown and saved.
. "$(dirname "$0")/desktop.sh"

picture "$scratch/p.bmp"
open_editor "$scratch/p.bmp"
shape $ROOT_PANEL 0 2 20 100 60 100 60 100 -draw "rectangle 20,100 60,100"
shape $ROOT_PANEL 0 3 20 20 60 40 60 40 -draw "rectangle 20,20 60,20" -draw "rectangle 20,40 60,40" \
  -draw "rectangle 20,20 20,40" -draw "rectangle 60,20 60,40"
shape $ROOT_PANEL 1 0 90 70 70 50 70 50 -draw "rectangle 70,50 90,70"
# five by five without its corners
shape $ROOT_PANEL 1 1 100 90 102 92 102 90 -draw "rectangle 99,88 101,88" -draw "rectangle 99,92 101,92" \
  -draw "rectangle 98,89 98,91" -draw "rectangle 102,89 102,91"
button $ROOT_GROUPS 0 1
shape $ROOT_PANEL 0 1 80 60 120 80 120 80 -region 41x21+80+60 -negate +region
end_with_save
expect_same "$scratch/wanted.bmp" "$scratch/p.bmp"
