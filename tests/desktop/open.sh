#!/usr/bin/env bash
# The picture named on the command line is what the window shows.
. "$(dirname "$0")/desktop.sh"

picture "$scratch/p.bmp"
open_editor "$scratch/p.bmp"
[ "$scale" = 1 ] || fail "a pixel of the picture has $scale pixels a side"
expect_shows "$scratch/p.bmp"
