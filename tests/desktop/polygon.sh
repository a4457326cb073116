#!/usr/bin/env bash
# A polygon closed by a double click, and a fill by one click.
. "$(dirname "$0")/desktop.sh"

# Every pixel of the picture differs from its neighbours but those that the bucket is to find.
plain=(-fill '#00FF00' -draw "rectangle 100,20 140,50")
picture "$scratch/p.bmp" "${plain[@]}"
picture "$scratch/polygon.bmp" "${plain[@]}" -fill black -draw "rectangle 20,20 60,50"
picture "$scratch/wanted.bmp" "${plain[@]}" -fill black -draw "rectangle 20,20 60,50" -draw "rectangle 100,20 140,50"

open_editor "$scratch/p.bmp"
button $ROOT_GROUPS 0 1
button $ROOT_PANEL 0 2
drag 20 20 60 20
click_at 60 50
click_at 20 50 $DOUBLE
expect_shows "$scratch/polygon.bmp"
button $ROOT_GROUPS 0 0
button $ROOT_PANEL 2 0
click_at 120 30
expect_shows "$scratch/wanted.bmp"
end_with_save
expect_same "$scratch/wanted.bmp" "$scratch/p.bmp"
