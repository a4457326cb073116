#!/usr/bin/env bash
# The palettes replace each other on the screen as they do in the model, and stay above the main window.
. "$(dirname "$0")/desktop.sh"

picture "$scratch/p.bmp"
picture "$scratch/wanted.bmp" -fill black -draw "point 30,30"

open_editor "$scratch/p.bmp"
button $ROOT_GROUPS 0 3
button $ROOT_PANEL 0 1
to 10 10
xdotool click 1
until_true "the picture at x2" eval 'find_draw && [ "$scale" = 2 ]'
# Where the zoom buttons are now, the root palette has its group of colours.
button $EXP_GROUPS 0 2
button $EXP_PANEL 0 0
until_true "the picture at x1" eval 'find_draw && [ "$scale" = 1 ]'

xdotool windowsize "$window" 1200 700
to 5 5
xdotool click 1 # the main window comes forward; no tool is chosen, nothing is drawn
button $ROOT_GROUPS 0 0
button $ROOT_PANEL 0 0
stroke 30 30
expect_shows "$scratch/wanted.bmp"
