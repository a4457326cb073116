#!/usr/bin/env bash
# A picture is opened by the file dialog and saved under another name by it. The dialog does not ask about a file that
# is there already: the editor does, once.
. "$(dirname "$0")/desktop.sh"

mkdir "$scratch/pictures"
picture "$scratch/p.bmp"
other=$scratch/pictures/"other picture.bmp"
picture "$other" -fill black -draw "point 30,30"
picture "$scratch/wanted.bmp" -fill black -draw "point 30,30" -draw "point 50,40"
new=$scratch/pictures/new.bmp

open_editor "$scratch/p.bmp"
button $ROOT_GROUPS 1 0
button $ROOT_PANEL 0 2
answer 'Kiso ' 1
choose_file "$OPEN_TITLE" "$other"
until_true "the name of the picture" find_window "Kiso :$other"
expect_shows "$other"

button $ROOT_GROUPS 0 0
button $ROOT_PANEL 0 0
stroke 50 40
button $ROOT_GROUPS 1 0
button $ROOT_PANEL 1 2
choose_file "$SAVE_TITLE" "$new"
until_true "the name of the picture" find_window "Kiso :$new"
expect_same "$scratch/wanted.bmp" "$new"

# Over the picture that was there, whose name the dialog now proposes.
stroke 60 40
picture "$scratch/wanted.bmp" -fill black -draw "point 30,30" -draw "point 50,40" -draw "point 60,40"
button $ROOT_PANEL 1 2
choose_file "$SAVE_TITLE"
answer 'Kiso ' 1
until_true "the file" same "$scratch/wanted.bmp" "$new"

# Escape leaves everything as it is.
button $ROOT_PANEL 1 2
until_true "the dialog" box_is_open "$SAVE_TITLE"
xdotool key Escape
until_true "the palettes" find_palettes
find_window "Kiso :$new" || fail "the name has changed"
expect_shows "$scratch/wanted.bmp"
