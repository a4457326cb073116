#!/usr/bin/env bash
# The settings window by hand: an option by the mouse, another by the keyboard, OK by Enter; both stand in the file at
# the end. Escape gives a change up.
. "$(dirname "$0")/desktop.sh"

# on_settings X Y: moves the pointer to a point of the window, in its own pixels
on_settings() {
  local x y
  read -r x y < <(xwininfo -id "$settings" | awk '/Absolute.*X/ { x = $4 } /Absolute.*Y/ { print x, $4 }')
  xdotool mousemove $((x + $1)) $((y + $2))
}

# Sets $settings to the one window of that title that is wider than a palette.
find_settings() {
  local id
  for id in $(xdotool search --onlyvisible --name '^Kiso $'); do
    settings=$id
    [ "$(xwininfo -id "$id" | awk '/Width:/ { print $2 }')" -lt 400 ] || return 0
  done
  return 1
}
no_settings() { ! find_settings; }

# page N: a click on the N-th of the page buttons, which are equally wide and fill the window's width
page() {
  local width
  width=$(xwininfo -id "$settings" | awk '/Width:/ { print $2 }')
  on_settings $((12 + (width - 24) * (2 * $1 - 1) / 12)) 24
  xdotool click 1
}

open_settings() {
  button $ROOT_PANEL 0 2
  until_true "the settings window" find_settings
  xdotool windowactivate --sync "$settings"
}

# What the marks at the left of the page look like.
marks() { import -silent -window "$settings" -crop 40x120+30+70 -depth 8 txt:- | sha256sum; }

# Clicks from line to line, from the first option, which is on, to the one below it.
press_second_option() {
  local y before
  before=$(marks)
  for ((y = 80; y < 160; y += 4)); do
    on_settings 43 $y
    xdotool click 1
    sleep 0.1
    on_settings 300 20  # what lies under the pointer looks different too
    sleep 0.1
    [ "$before" = "$(marks)" ] || return 0
  done
  return 1
}

picture "$scratch/p.bmp"
open_editor "$scratch/p.bmp"
button $ROOT_GROUPS 1 2
open_settings
press_second_option || fail "no option took the click"

# From the button of the fourth page Tab goes to the option that is on, past those of the pages behind, and the arrows on
# from there: from 5 to 15 minutes.
page 4
xdotool key Tab Tab Tab Down Down
xdotool key Return
until_true "the end of the settings window" no_settings

open_settings
page 6
xdotool key Tab Down Escape
until_true "the end of the settings window" no_settings

xdotool windowactivate --sync "$window"
end_with_save
expect_find() {
  grep -q "^$1 ,  $2 " "$scratch/home/KISO.CNF" || fail "$1 is not $2 in the file: $(grep "^$1" "$scratch/home/KISO.CNF")"
}
expect_find BERM 1
expect_find ASAT 15
expect_find LMOD 0
