#!/usr/bin/env bash
# Areas of the picture and other programs, through the clipboard: out as PNG and BMP, in from either, and a text is none.
. "$(dirname "$0")/desktop.sh"

# offer KIND FILE: another program has that on the clipboard
offer() {
  start xclip -quiet -selection clipboard -t "$1" -i "$2" &>>"$scratch/xclip.log"
  until_true "$1 on the clipboard" offered "$1" "$2"
}
offered() { xclip -selection clipboard -t "$1" -o | cmp - "$2"; }

# clipboard_is KIND FILE: what other programs get from the clipboard
clipboard_is() {
  xclip -selection clipboard -t "image/$1" -o >"$scratch/clip.$1"
  same "$scratch/clip.$1" "$2"
}

picture "$scratch/p.bmp"
convert "$scratch/p.bmp" -crop 40x30+20+20 +repage "$scratch/area.png"
convert -size 30x20 gradient:'#FF0000'-'#00FF80' -depth 8 "$scratch/offered.png"
convert -size 24x36 gradient:'#FFFF00'-'#0010FF' -depth 8 -type TrueColor BMP3:"$scratch/offered.bmp"
echo a text >"$scratch/text"
convert "$scratch/p.bmp" "$scratch/offered.png" -geometry +70+60 -composite -type TrueColor BMP3:"$scratch/one.bmp"
convert "$scratch/one.bmp" "$scratch/offered.bmp" -geometry +120+14 -composite -type TrueColor BMP3:"$scratch/two.bmp"

open_editor "$scratch/p.bmp"
button $ROOT_GROUPS 0 1
button $ROOT_PANEL 1 0
drag 20 20 58 48  # 39 x 29: made even
until_true "the area as a PNG" clipboard_is png "$scratch/area.png"
until_true "the area as a BMP" clipboard_is bmp "$scratch/area.png"

# The pointer holds the picture by its bottom right corner.
offer image/png "$scratch/offered.png"
button $ROOT_PANEL 1 1
to 100 80
expect_shows "$scratch/one.bmp"
xdotool click 1
to 5 100
expect_shows "$scratch/one.bmp"

offer image/bmp "$scratch/offered.bmp"
button $ROOT_PANEL 1 1
to 144 50
expect_shows "$scratch/two.bmp"
xdotool click 1
to 5 100
expect_shows "$scratch/two.bmp"

offer UTF8_STRING "$scratch/text"
button $ROOT_PANEL 1 1
answer 'Kiso ' 0
until_true "the end of the box" eval '[ "$(xdotool getactivewindow)" = "$window" ]'
end_with_save
expect_same "$scratch/two.bmp" "$scratch/p.bmp"
