#!/usr/bin/env bash
# A curve drawn by hand is the curve that a script draws: its ends by a drag, its bend by the pointer alone, a press.
. "$(dirname "$0")/desktop.sh"

picture "$scratch/p.bmp"
cat >"$scratch/curve.play" <<END
start "$scratch/p.bmp"
view 160 120
click CMD_WIN.ROOT_B(6)
click CMD_WIN.CMD_B(30)
down DRAW 20 80
move DRAW 140 80 left
up DRAW 140 80
move DRAW 90 10
dump DRAW "$scratch/rubber.bmp"
down DRAW 90 10
up DRAW 90 10
dump PIC "$scratch/wanted.bmp"
END
"$bin/kiso-play" "$scratch/curve.play"
same "$scratch/p.bmp" "$scratch/wanted.bmp" && fail "the script has drawn nothing"

open_editor "$scratch/p.bmp"
button $ROOT_GROUPS 0 2
button $ROOT_PANEL 1 2
drag 20 80 140 80
to 100 40 90 10
expect_shows "$scratch/rubber.bmp"
xdotool click 1
expect_shows "$scratch/wanted.bmp"
end_with_save
expect_same "$scratch/wanted.bmp" "$scratch/p.bmp"
