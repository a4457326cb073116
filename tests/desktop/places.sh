#!/usr/bin/env bash
# Windows come back where they were left, as large as they were: the main window, the colour window, and the palette below
# it. A second picture finds them there too.
. "$(dirname "$0")/desktop.sh"

all_places() {
  find_palettes
  echo "$(place_of "$window") / $(place_of "$colours") / $(place_of "$palette")"
}

places_are() { [ "$(all_places)" = "$1" ]; }

# drag_title ID DX DY: moves a window by its frame
drag_title() {
  local x y
  read -r x y _ < <(place_of "$1")
  xdotool mousemove $((x + 40)) $((y - 10)) mousedown 1
  xdotool mousemove_relative --sync -- $(($2 / 2)) $(($3 / 2))
  xdotool mousemove_relative --sync -- $(($2 - $2 / 2)) $(($3 - $3 / 2)) mouseup 1
}

picture "$scratch/p.bmp"
open_editor "$scratch/p.bmp"
until_true "the palettes" find_palettes
first=$(all_places)
xdotool windowsize --sync "$window" 700 500
drag_title "$colours" -77 0
drag_title "$palette" 55 20
drag_title "$window" 30 140
until_true "the moved windows" eval '[ "$(place_of "$window" | cut -d " " -f 3,4)" = "700 500" ]'
sleep 0.3
moved=$(all_places)
[ "${moved%% / *}" != "${first%% / *}" ] || fail "the main window has not moved from $first"
[ "${moved##* / }" != "${first##* / }" ] || fail "the palette has not moved from $first"
end_without_save

# The palette's top follows from the colour window alone.
read -r _ top _ <<<"${first##* / }"
read -r left _ size <<<"${moved##* / }"
kept="${moved% / *} / $left $top $size"
open_editor "$scratch/p.bmp"
until_true "the windows at $kept" places_are "$kept"
end_without_save
picture "$scratch/another.bmp"
open_editor "$scratch/another.bmp"
until_true "the windows at $kept once more" places_are "$kept"
