#!/usr/bin/env bash
# A stroke of FreeLine joins the points that the pointer visited.
. "$(dirname "$0")/desktop.sh"

picture "$scratch/p.bmp"
picture "$scratch/wanted.bmp" -fill black -draw "rectangle 20,20 90,20" -draw "rectangle 90,20 90,70"

open_editor "$scratch/p.bmp"
button $ROOT_PANEL 0 1
stroke 20 20 27 20 60 20 90 20 90 24 90 70
expect_shows "$scratch/wanted.bmp"
end_with_save
expect_same "$scratch/wanted.bmp" "$scratch/p.bmp"
