#!/usr/bin/env bash
# A chain of lines ends by a double click on its last corner, at x1 and at x4; each is one stroke of the file.
. "$(dirname "$0")/desktop.sh"

mkdir "$scratch/home"
sed 's/^LMOD , 0/LMOD , 1/' "$desktop/../../assets/DEFAULT.CNF" >"$scratch/home/KISO.CNF"
grep -q '^LMOD , 1' "$scratch/home/KISO.CNF" || fail "the settings have no chains of lines"

# At x1 the last point of a segment is the next one's first; that of the chain stays as it was.
at_x1=(-fill black -draw "rectangle 20,20 60,20" -draw "rectangle 60,20 60,49")
at_x4=(-draw "rectangle 80,60 120,60" -draw "rectangle 120,60 120,90")
picture "$scratch/p.bmp"
picture "$scratch/one.bmp" "${at_x1[@]}"
picture "$scratch/wanted.bmp" "${at_x1[@]}" "${at_x4[@]}"

open_editor "$scratch/p.bmp"
button $ROOT_PANEL 0 2
drag 20 20 60 20
click_at 60 50 $DOUBLE
to 100 100
expect_shows "$scratch/one.bmp"
button $ROOT_GROUPS 0 3
button $ROOT_PANEL 0 2
click_at 10 10
until_true "the picture at x4" eval 'find_draw && [ "$scale" = 4 ]'
button $EXP_PANEL 0 1
drag 80 60 120 60
click_at 120 90 $DOUBLE
to 100 100
expect_shows "$scratch/wanted.bmp"
end_with_save
expect_same "$scratch/wanted.bmp" "$scratch/p.bmp"
