#!/usr/bin/env bash
# Pictures of foreign kinds, from the first start on: a PNG opens and is saved as a JPEG. An add-in that is killed half-way
# costs no file.
. "$(dirname "$0")/desktop.sh"

# Between the editor and KISOIMG: holds the add-in at its start while the file "hold" is there.
real=$(readlink -f "$bin/addins/KISOIMG")
cat >"$scratch/addin" <<END
#!/bin/sh
[ ! -e "$scratch/hold" ] || { echo \$\$ >"$scratch/held"; kill -STOP \$\$; }
exec "$real" "\$@"
END
chmod +x "$scratch/addin"

# kill_addin: the editor has started it and waits
kill_addin() {
  until_true "the add-in" test -s "$scratch/held"
  kill -KILL "$(<"$scratch/held")"
  rm "$scratch/held"
}

picture "$scratch/p.bmp"
picture "$scratch/drawn.bmp" -fill black -draw "rectangle 40,40 71,71"
photo="$scratch/a  photo; x.PNG"
convert "$scratch/drawn.bmp" "$photo"

open_editor "$scratch/p.bmp"
grep -q '^ADIN,KISOIMG,' "$scratch/home/KISO.AIN" || fail "the shipped add-in is not installed"

# --- a PNG named as nobody should name it
button $ROOT_GROUPS 1 0
button $ROOT_PANEL 0 2
answer 'Kiso ' 1
choose_file "$OPEN_TITLE" "$photo"
until_true "the name of the picture" find_window "Kiso :$photo"
expect_shows "$scratch/drawn.bmp"

# --- saved as a JPEG
button $ROOT_PANEL 1 2
choose_file "$SAVE_TITLE" "$scratch/new.jpg"
until_true "the name of the picture" find_window "Kiso :$scratch/new.jpg"
[ "$(identify -format '%m %w %h' "$scratch/new.jpg")" = 'JPEG 160 120' ] || fail "$(identify "$scratch/new.jpg")"
convert "$scratch/new.jpg" "$scratch/drawn.bmp" -metric PSNR -compare -format '%[distortion]' info: >"$scratch/psnr"
awk '{ exit !($1 > 30) }' "$scratch/psnr" || fail "the JPEG is another picture: PSNR $(cat "$scratch/psnr")"

# --- the add-in killed while it saves, and while it loads
cp "$scratch/new.jpg" "$scratch/before.jpg"
sed -i "s|^ADIN,KISOIMG,[^,]*|ADIN,KISOIMG,$scratch/addin|" "$scratch/home/KISO.AIN"
end_without_save
open_editor "$scratch/p.bmp"
touch "$scratch/hold"
button $ROOT_GROUPS 1 0
button $ROOT_PANEL 1 2
choose_file "$SAVE_TITLE" "$scratch/new.jpg"
answer 'Kiso ' 1
kill_addin
until_true "the name of the picture" find_window "Kiso :$scratch/new.jpg"
cmp "$scratch/before.jpg" "$scratch/new.jpg" || fail "the target has changed"
button $ROOT_PANEL 0 2
answer 'Kiso ' 1
choose_file "$OPEN_TITLE" "$photo"
kill_addin
answer 'Kiso ' 0
until_true "the name of the picture" find_window "Kiso :$photo"
[ -z "$(ls "$scratch/home" | grep '^GT')" ] || fail "temporary files are left"

# --- and the editor goes on
rm "$scratch/hold"
button $ROOT_PANEL 0 2
answer 'Kiso ' 1
choose_file "$OPEN_TITLE" "$photo"
expect_shows "$scratch/drawn.bmp"
