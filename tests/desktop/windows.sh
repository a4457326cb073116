#!/usr/bin/env bash
# The frames of the windows, and who has the keyboard: a palette can be closed and neither minimized nor maximized, every
# window bears the program's icon, help opens beside the palettes and Escape closes it, and once a dictionary is chosen
# letters are the picture's again.
. "$(dirname "$0")/desktop.sh"

has_icon() {
  ! xprop -id "$1" _NET_WM_ICON | grep -q 'not found'
}

# colour_at X Y: of a point of the colour window
colour_at() {
  local x y
  read -r x y _ < <(place_of "$colours")
  import -silent -window root -crop "1x1+$((x + $1))+$((y + $2))" -depth 8 txt:- | grep -o '#......' | tail -n 1
}
TARGET='28 17' DICTIONARIES='84 61' LIST='92 85' CELL_G='9 119'

picture "$scratch/p.bmp"
open_editor "$scratch/p.bmp"
until_true "the palettes" palettes_stand
has_icon "$window" || fail "the main window has no icon"
for palette_id in $colours $palette; do
  has_icon "$palette_id" || fail "a palette has no icon"
  actions=$(xprop -id "$palette_id" _NET_WM_ALLOWED_ACTIONS)
  [[ $actions = *CLOSE* ]] || fail "a palette can not be closed: $actions"
  [[ $actions != *MINIMIZE* && $actions != *MAXIMIZE* ]] || fail "a palette has more than a close button: $actions"
done

click_in "$palette" 16 214
until_true "help" eval 'help=$(xdotool search --onlyvisible --name "^Kiso Help$")'
until_true "help in front" eval '[ "$(xdotool getactivewindow)" = "$help" ]'
has_icon "$help" || fail "help has no icon"
read -r help_left _ help_width _ < <(place_of "$help")
for palette_id in $colours $palette; do
  read -r left_of _ width_of _ < <(place_of "$palette_id")
  ((help_left + help_width <= left_of || help_left >= left_of + width_of)) || fail "help covers a palette"
done
xdotool key Escape
until_true "the end of help" eval '! xwininfo -id "$help"'

click_in "$colours" $DICTIONARIES
until_true "the first dictionary" eval '[ "$(colour_at $CELL_G)" = "#FF0000" ]'
choose_next() {
  click_in "$colours" $LIST
  sleep 0.3 # for the list to open: it has no name to wait for
  xdotool key Down Return
  sleep 0.3
  [ "$(colour_at $CELL_G)" != "#FF0000" ]
}
until_true "another dictionary" choose_next
cell=$(colour_at $CELL_G)
[ "$cell" != "$(colour_at $TARGET)" ] || fail "the letter would change nothing"
to 30 30
xdotool key g
until_true "the colour of the letter in the box" eval '[ "$cell" = "$(colour_at $TARGET)" ]'
end_without_save
