#!/usr/bin/env bash
# A fast stroke of Pset by the pointer: each point that the pointer visited is a dot, shown and saved.
. "$(dirname "$0")/desktop.sh"

picture "$scratch/p.bmp"
points=(20 20 27 24 40 33 41 33 60 21 90 80 150 110)
dots=()
for ((i = 0; i < ${#points[@]}; i += 2)); do
  dots+=(-draw "point ${points[i]},${points[i + 1]}")
done
picture "$scratch/wanted.bmp" -fill black "${dots[@]}"

open_editor "$scratch/p.bmp"
stroke "${points[@]}"
expect_shows "$scratch/wanted.bmp"
end_with_save
expect_same "$scratch/wanted.bmp" "$scratch/p.bmp"
