#!/usr/bin/env bash
# At every scale of the display a pixel of the picture is a sharp square, and is drawn where it is seen.
. "$(dirname "$0")/desktop.sh"

picture "$scratch/wanted.bmp" -fill black -draw "point 50,40" -draw "point 33,21"
for factor in 1.25 1.5 2; do
  picture "$scratch/p.bmp"
  open_editor "$scratch/p.bmp" QT_SCALE_FACTOR=$factor
  expect_shows "$scratch/p.bmp"
  stroke 50 40 33 21
  expect_shows "$scratch/wanted.bmp"
  end_with_save
  expect_same "$scratch/wanted.bmp" "$scratch/p.bmp"
done
[ "$scale" = 2 ] || fail "a display of scale 2 shows pixels of $scale"
