#!/usr/bin/env bash
# The arrow keys scroll, by one pixel and with Shift by sixteen; what is drawn then lands where it is seen.
. "$(dirname "$0")/desktop.sh"

picture_of 1600 1200 "$scratch/p.bmp"
picture_of 1600 1200 "$scratch/wanted.bmp" -fill black -draw "point 53,68"
picture_of 1600 1200 "$scratch/seen_before.bmp" -crop 200x150+3+18
picture_of 1600 1200 "$scratch/seen_after.bmp" -fill black -draw "point 53,68" -crop 200x150+3+18

open_editor "$scratch/p.bmp"
xdotool key Right Right Right shift+Down Down Down
expect_shows "$scratch/seen_before.bmp"
stroke 50 50
expect_shows "$scratch/seen_after.bmp"
end_with_save
expect_same "$scratch/wanted.bmp" "$scratch/p.bmp"
