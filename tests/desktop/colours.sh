#!/usr/bin/env bash
# Colours by hand: the Spoit takes one from the picture, a dragged bar changes it, a letter stores one in a dictionary
# that gets a name of its own; both are there after a restart.
. "$(dirname "$0")/desktop.sh"

# on_colours X Y: moves the pointer to a point of the colour window, which stands above the palette
on_colours() {
  local x y
  until_true "the palettes" find_palettes
  read -r x y _ < <(place_of "$colours")
  xdotool mousemove $((x + $1)) $((y + $2))
}
TARGET='28 17' RED='12 99' BARS='52 61' DICTIONARY='84 61' H_HANDLE='35 149' NAME='30 85' MODE='67 179' CELL_Q='74 143'

press_on() {
  on_colours "$@"
  xdotool click 1
}

# Sets $target to the colour of the target box, as #RRGGBB.
find_target() {
  on_colours $TARGET
  eval "$(xdotool getmouselocation --shell)"
  target=$(import -silent -window root -crop "1x1+$X+$Y" -depth 8 txt:- | grep -o '#......' | tail -n 1)
}
target_is() { find_target && [ "$target" = "$1" ]; }
target_is_not() { find_target && [ "$target" != "$1" ]; }

picture "$scratch/p.bmp"
sample=$(convert "$scratch/p.bmp" -crop 1x1+120+30 -depth 8 txt:- | grep -o '#......' | tail -n 1)

open_editor "$scratch/p.bmp"
press_on $TARGET
to 120 30
xdotool click 1
until_true "the colour of the picture in the box" target_is "$sample"
press_on $TARGET
stroke 20 20
picture "$scratch/one.bmp" -fill "$sample" -draw "point 20,20"
expect_shows "$scratch/one.bmp"

press_on $RED
until_true "red in the box" target_is '#FF0000'
press_on $BARS
on_colours $H_HANDLE
xdotool mousedown 1 mousemove_relative 6 0 mousemove_relative 6 0 mouseup 1
until_true "another hue in the box" target_is_not '#FF0000'
[[ $target = *FF* && $target = *00* ]] || fail "the hue of $target is not pure"
stroke 40 40
picture "$scratch/two.bmp" -fill "$sample" -draw "point 20,20" -fill "$target" -draw "point 40,40"
expect_shows "$scratch/two.bmp"

press_on $DICTIONARY
press_on $MODE
to 120 30
xdotool key q
press_on $NAME
xdotool key ctrl+a type mine
xdotool key Return
xdotool windowactivate --sync "$window"
end_with_save
expect_same "$scratch/two.bmp" "$scratch/p.bmp"
grep -q "^CNAM , mine" "$scratch/home/KISO.CDI" || fail "the name is not in the file"

open_editor "$scratch/p.bmp"
press_on $CELL_Q  # the pane is open as it was
until_true "the stored colour in the box" target_is "$sample"
