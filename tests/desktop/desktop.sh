# What the scenarios of this folder share: sourced first, it starts a display with a window manager. A scenario is called
# with the folder of the programs; it opens the editor, acts as a person does, and compares what is seen and what is saved
# with pictures that ImageMagick draws.
set -euo pipefail
desktop=$(dirname "$(readlink -f "${BASH_SOURCE[0]}")")
bin=$1
. "$desktop/../../packaging/display.sh"
# Leaks of Qt's and fontconfig's caches are none of the editor's; everything else that a sanitizer finds ends the program.
export ASAN_OPTIONS=detect_leaks=0 UBSAN_OPTIONS=print_stacktrace=1
start_display

fail() {
  echo "$(basename "$0"): $1" >&2
  tail -n 40 "$scratch/KISO72.log" >&2 || true
  exit 1
}

# --- pictures

# picture FILE [CONVERT_ARGUMENT...]: the test picture, 160 x 120, no two neighbours alike, changed as the arguments say.
# Its corner pixel has a colour that stands nowhere else on the screen.
picture() {
  convert -size 160x120 gradient:'#204060'-'#E0C0A0' \( -size 120x160 gradient:'#000000'-'#1F3F5F' -rotate 90 \) -compose plus \
    -composite -depth 8 -fill '#FF01FE' -draw 'point 0,0' "${@:2}" -type TrueColor BMP3:"$1"
}

# same FILE FILE: size and every pixel
same() {
  [ "$(compare -metric AE "$1" "$2" null: 2>&1)" = 0 ]
}

# expect_saved FILE FILE
expect_same() {
  same "$1" "$2" || fail "$1 and $2 differ in $(compare -metric AE "$1" "$2" null: 2>&1 || true) pixels"
}

# --- the program

# open_editor FILE: with a program directory of its own; sets $window, and $left and $top, the place of DRAW on the screen.
open_editor() {
  start env KISO_HOME="$scratch/home" "$bin/KISO72" "$1" &>"$scratch/KISO72.log"
  editor=$started
  window=
  until_true "the window of $1" find_window "Kiso .*$(basename "$1")"
  until_true "the picture on the screen" find_draw
}

# find_window TITLE: sets $window to the visible window whose title matches
find_window() {
  window=$(xdotool search --onlyvisible --name "$1" | head -n 1)
  [ -n "$window" ]
}

# The corner pixel of the picture is the only one of its colour.
find_draw() {
  local width height
  read -r width height left top < <(import -silent -window root miff:- |
    convert - -fill black +opaque '#FF01FE' -trim -format '%w %h %X %Y\n' info:)
  [ "$width$height" = 11 ]
}

# shows FILE [SCALE]: the picture stands at DRAW's place on the screen, each pixel SCALE x SCALE
shows() {
  convert "$1" -scale "$((${2:-1} * 100))%" "$scratch/wanted.png"
  import -silent -window root -crop "$(identify -format '%wx%h' "$scratch/wanted.png")+$((left))+$((top))" +repage \
    "$scratch/seen.png"
  same "$scratch/wanted.png" "$scratch/seen.png"
}

# --- the person

# to X Y ...: moves the pointer from point to point, in pixels of DRAW
to() {
  local moves=()
  while [ $# -gt 0 ]; do
    moves+=(mousemove $((left + $1)) $((top + $2)))
    shift 2
  done
  xdotool "${moves[@]}"
}

# stroke X Y ...: a stroke with the left button through these points, as fast as the display takes them
stroke() {
  to "$1" "$2"
  xdotool mousedown 1
  to "$@"
  xdotool mouseup 1
}

# keypad DIGIT...: the keypad's keys, with the lock on
declare -A KEYPAD=([7]=79 [8]=80 [9]=81 [4]=83 [6]=85 [1]=87 [2]=88 [3]=89 [0]=90)
keypad() {
  local digit
  for digit; do xdotool key "${KEYPAD[$digit]}"; done
}
