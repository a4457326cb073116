#!/usr/bin/env bash
# The zoom tool enlarges where it clicks; what is drawn on blocks is saved as pixels.
. "$(dirname "$0")/desktop.sh"

picture "$scratch/p.bmp"
picture "$scratch/wanted.bmp" -fill black -draw "point 50,40" -draw "point 51,40" -draw "point 60,44"
picture "$scratch/part.bmp" -crop 80x60+0+0
picture "$scratch/part_drawn.bmp" -fill black -draw "point 50,40" -draw "point 51,40" -draw "point 60,44" -crop 80x60+0+0

open_editor "$scratch/p.bmp"
button $ROOT_GROUPS 0 3
button $ROOT_PANEL 0 3
to 10 10
xdotool click 1
until_true "the picture at x8" eval 'find_draw && [ "$scale" = 8 ]'
expect_shows "$scratch/part.bmp"
button $EXP_PANEL 0 0
stroke 50 40 51 40 60 44
expect_shows "$scratch/part_drawn.bmp"
end_with_save
expect_same "$scratch/wanted.bmp" "$scratch/p.bmp"
