#!/usr/bin/env bash
# A file dragged from another program's window and dropped on the picture: the other program has its answer while the
# question still stands open, and a second file is not taken meanwhile.
. "$(dirname "$0")/desktop.sh"

picture "$scratch/p.bmp"
picture "$scratch/絵 二.bmp" -fill black -draw "point 30,30"
picture "$scratch/third.bmp" -fill black -draw "point 40,40"
open_editor "$scratch/p.bmp"
start "$bin/drag_source" "$scratch/絵 二.bmp" "$scratch/third.bmp" >"$scratch/source.log"
until_true "the window to drag from" xdotool search --onlyvisible --name '^drag source$'

lines() {
  wc -l <"$scratch/source.log"
}

# drag_and_drop: from the source's window to the picture's, in steps; true if the files were taken
drag_and_drop() {
  local before x
  before=$(lines)
  xdotool mousemove 1060 640 mousedown 1
  until_true "the drag" eval "xdotool mousemove_relative -- -1 0; [ \$(lines) -gt $before ]"
  for ((x = 900; x > 200; x -= 50)); do xdotool mousemove $x 300; done
  xdotool mouseup 1
  until_true "the answer to the source" eval "[ \$(lines) = $((before + 2)) ]"
  [ "$(tail -n 1 "$scratch/source.log")" = dropped ]
}

until_true "the drop" drag_and_drop
until_true "the question" box_is_open 'Kiso '
! drag_and_drop || fail "a second drop was taken while the question stood open"

# find_question: sets $box; the source's window is the active one now
find_question() {
  local id
  for id in $(xdotool search --onlyvisible --name '^Kiso $'); do
    xprop -id "$id" _NET_WM_WINDOW_TYPE | grep -q DIALOG && box=$id && return
  done
  return 1
}
find_question || fail "the question has gone"
xdotool windowactivate "$box"

answer 'Kiso ' 0
expect_shows "$scratch/絵 二.bmp"
find_window "Kiso :.*絵 二.bmp" || fail "the window has not the name of the dropped file"
