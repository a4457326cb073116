#!/usr/bin/env bash
# The picture goes to other programs through the clipboard, as PNG and as BMP, and theirs come back.
. "$(dirname "$0")/desktop.sh"

# clipboard_to KIND FILE: what another program sees on the clipboard
clipboard_to() {
  timeout 10 xclip -selection clipboard -target "$1" -out >"$2"
}
offers() {
  timeout 10 xclip -selection clipboard -target TARGETS -out | grep -qx "$1"
}
# offer KIND FILE: another program puts it there
offer() {
  start xclip -quiet -selection clipboard -target "$1" -in "$2" &>>"$scratch/xclip.log"
  until_true "the clipboard of the other program" offers "$1"
}

picture "$scratch/p.bmp"
picture_of 200 90 "$scratch/other.bmp"
convert "$scratch/other.bmp" "$scratch/other.png"
convert -size 60x50 xc:none -fill '#FF01FE' -draw 'point 0,0' -fill red -draw 'rectangle 10,10 30,30' \
  "$scratch/through.png"
convert "$scratch/through.png" -background white -flatten BMP3:"$scratch/through.bmp"
echo 'no picture' >"$scratch/rubbish"

open_editor "$scratch/p.bmp"
button $ROOT_GROUPS 1 0
button $ROOT_PANEL 1 3
until_true "the picture on the clipboard" offers image/png
clipboard_to image/png "$scratch/seen.png"
expect_same "$scratch/p.bmp" "$scratch/seen.png"
clipboard_to image/bmp "$scratch/seen.bmp"
expect_same "$scratch/p.bmp" "$scratch/seen.bmp"

# paste FILE: replaces the picture by that of the clipboard, which looks like the file
paste() {
  button $ROOT_PANEL 0 3
  answer 'Kiso ' 1
  expect_shows "$1"
}
offer image/png "$scratch/other.png"
paste "$scratch/other.bmp"
offer image/bmp "$scratch/p.bmp"
paste "$scratch/p.bmp"
offer image/png "$scratch/through.png"
paste "$scratch/through.bmp"

# What is no picture is refused at once, by a box with one button.
offer image/png "$scratch/rubbish"
button $ROOT_PANEL 0 3
answer 'Kiso ' 0
expect_shows "$scratch/through.bmp"
