# What the scenarios of this folder share: sourced first, it starts a display with a window manager. A scenario is called
# with the folder of the programs; it opens the editor, acts as a person does, and compares what is seen and what is saved
# with pictures that ImageMagick draws.
set -euo pipefail
export LC_ALL=C.UTF-8
desktop=$(dirname "$(readlink -f "${BASH_SOURCE[0]}")")
bin=$1
. "$desktop/../../packaging/display.sh"
# Qt keeps the places and the history of its file dialogs there.
export XDG_CONFIG_HOME=$scratch/config
# Leaks of Qt's and fontconfig's caches are none of the editor's; everything else that a sanitizer finds ends the program.
export ASAN_OPTIONS=detect_leaks=0 UBSAN_OPTIONS=print_stacktrace=1
start_display Xvfb -screen 0 1280x800x24

# A scenario that fails leaves what the screen showed beside the programs' folder.
keep_screen() {
  local status=$?
  [ $status = 0 ] || import -silent -window root "$bin/../$(basename "$0" .sh).png" || true
  end_services
  exit $status
}
trap keep_screen EXIT

fail() {
  echo "$(basename "$0"): $1" >&2
  tail -n 40 "$scratch/KISO72.log" >&2 || true
  exit 1
}

# --- pictures

# picture FILE [CONVERT_ARGUMENT...]: the test picture, 160 x 120, changed as the arguments say. Every pixel differs from
# its neighbours; the corner pixel has a colour that stands nowhere else on the screen.
picture() {
  picture_of 160 120 "$@"
}

# picture_of WIDTH HEIGHT FILE [CONVERT_ARGUMENT...]
picture_of() {
  convert -size "$1x$2" gradient:'#204060'-'#E0C0A0' \( -size "$2x$1" gradient:'#000000'-'#1F3F5F' -rotate 90 \) \
    -compose plus -composite -depth 8 -fill '#FF01FE' -draw 'point 0,0' "${@:4}" +repage -type TrueColor BMP3:"$3"
}

# same FILE FILE: size and every pixel
same() {
  [ "$(compare -metric AE "$1" "$2" null: 2>&1)" = 0 ]
}

expect_same() {
  same "$1" "$2" || fail "$1 and $2 differ in $(compare -metric AE "$1" "$2" null: 2>&1 || true) pixels"
}

# --- the program

# open_editor FILE [VARIABLE=VALUE...]: as at a first start, in a program directory of its own; sets $editor, its process,
# and $window, and finds the picture.
open_editor() {
  scale='' left='' top=''
  mkdir -p "$scratch/home"
  cp "$desktop"/../../assets/DEFAULT.* "$scratch/home"
  start env "${@:2}" KISO_HOME="$scratch/home" "$bin/KISO72" "$1" &>"$scratch/KISO72.log"
  editor=$started
  until_true "the window of $1" find_window "Kiso :.*$(basename "$1")"
  until_true "the picture on the screen" picture_stands
}

# find_window TITLE: sets $window to the visible window whose title matches
find_window() {
  window=$(xdotool search --onlyvisible --name "$1" | head -n 1)
  [ -n "$window" ]
}

# Sets $left and $top, the place of DRAW's first pixel on the screen, and $scale, the screen pixels a side of a pixel of
# the picture: the corner pixel is the only thing of its colour. They stay as they were where it is not seen.
find_draw() {
  local width height x y
  read -r width height x y < <(import -silent -window root miff:- |
    convert - -fill black +opaque '#FF01FE' -trim -format '%w %h %X %Y\n' info:)
  [ "$width" = "$height" ] && [ "$width" -le 16 ] || return
  scale=$width left=$x top=$y
}

# The corner pixel is seen, and where it was seen a moment ago: a window manager moves a new window once more.
picture_stands() {
  local before="${scale-} ${left-} ${top-}"
  find_draw && [ "$before" = "$scale $left $top" ]
}

# shows FILE: the picture stands at DRAW's place on the screen, each pixel a sharp square; where it does not, the place is
# looked for anew
shows() {
  convert "$1" -scale "$((scale * 100))%" "$scratch/wanted.png"
  import -silent -window root -crop "$(identify -format '%wx%h' "$scratch/wanted.png")+$((left))+$((top))" +repage \
    "$scratch/seen.png"
  same "$scratch/wanted.png" "$scratch/seen.png" || { find_draw || true; return 1; }
}

expect_shows() {
  until_true "$(basename "$1") on the screen" shows "$1"
}

# --- the person

# to X Y ...: moves the pointer from point to point, in pixels of the picture as it is seen
to() {
  local moves=()
  while [ $# -gt 0 ]; do
    moves+=(mousemove $((left + $1 * scale + scale / 2)) $((top + $2 * scale + scale / 2)))
    shift 2
  done
  xdotool "${moves[@]}"
}

# stroke X Y ...: a stroke with the left button through these points, as fast as the display takes them. The press is
# waited for: a window manager holds it back while it gives the window the focus, and the display throws moves away
# meanwhile.
stroke() {
  local before
  to "$1" "$2"
  before=$(dot_at "$1" "$2")
  xdotool mousedown 1
  until_true "the first dot of the stroke" eval "[ '$before' != \"\$(dot_at $1 $2)\" ]"
  to "$@"
  xdotool mouseup 1
}

# drag X1 Y1 X2 Y2 [X Y]: a shape dragged with the left button from one point to the other. The rubber figure is waited
# for at X, Y, at the second point if not told: a move that comes before the press has reached the editor is lost, so
# the pointer goes there again until it shows.
drag() {
  local before
  before=$(dot_at "${5:-$3}" "${6:-$4}")
  to "$1" "$2"
  xdotool mousedown 1
  until_true "the rubber figure" rubber_shows "$3" "$4" "${5:-$3}" "${6:-$4}" "$before"
  xdotool mouseup 1
}

# rubber_shows X2 Y2 X Y BEFORE
rubber_shows() {
  [ "$5" != "$(dot_at "$3" "$4")" ] && return
  to $(($1 + 1)) "$2" "$1" "$2"
  return 1
}

# click_at X Y [XDOTOOL_ARGUMENT...]
click_at() {
  to "$1" "$2"
  xdotool click "${@:3}" 1
}
DOUBLE='--repeat 2 --delay 20'

# dot_at X Y: the colour on the screen
dot_at() {
  import -silent -window root -crop "1x1+$((left + $1 * scale))+$((top + $2 * scale))" txt:- | tail -n 1
}

# keypad DIGIT...: presses and releases keys of the keypad; the lock has to be on
declare -A KEYPAD=([7]=79 [8]=80 [9]=81 [4]=83 [5]=84 [6]=85 [1]=87 [2]=88 [3]=89 [0]=90)
keypad() {
  local digit
  for digit; do xdotool key "${KEYPAD[$digit]}"; done
}

# place_of ID: left, top, width and height on the screen, frame not counted
place_of() {
  xwininfo -id "$1" | awk '/Absolute|Width|Height/ { print $NF }' | xargs
}

# Sets $colours and $palette, the two windows of that name from the top, and $places, where they are. Boxes have the same
# name.
find_palettes() {
  local id
  places=$(for id in $(xdotool search --onlyvisible --name '^Kiso $'); do
    xprop -id "$id" _NET_WM_WINDOW_TYPE | grep -q DIALOG || echo "$(place_of "$id") $id"
  done | sort -n -k 2)
  read -r colours palette < <(awk '{ print $5 }' <<<"$places" | xargs)
  [ -n "$palette" ]
}

# They are shown, and where they were a moment ago: a window manager moves what comes back to the screen once more.
palettes_stand() {
  local before=${places-}
  find_palettes && [ "$before" = "$places" ]
}

# click_in ID X Y: a click on a point of a window
click_in() {
  local x y
  read -r x y _ < <(place_of "$1")
  xdotool mousemove $((x + $2)) $((y + $3)) click 1
}

# button TOP ROW COLUMN: a click on a button of the palette, in the panel that begins at TOP
ROOT_GROUPS=4 ROOT_PANEL=56 EXP_GROUPS=4 EXP_PANEL=32
button() {
  places=''
  until_true "the palettes" palettes_stand
  click_in "$palette" $((4 + 24 * $3 + 12)) $(($1 + 24 * $2 + 12))
}

# shape TOP ROW COLUMN X1 Y1 X2 Y2 PROBE_X PROBE_Y CONVERT_ARGUMENT...: chooses a shape by its button, drags it, and looks
# for it and those before it
wanted=()
shape() {
  button "${@:1:3}"
  drag "${@:4:6}"
  wanted+=("${@:10}")
  picture "$scratch/wanted.bmp" -fill black "${wanted[@]}"
  expect_shows "$scratch/wanted.bmp"
}

# answer TITLE STEPS: takes the button of the box of that title which is STEPS to the left of the one that is proposed
answer() {
  local i box
  until_true "the box '$1'" box_is_open "$1"
  box=$(xdotool getactivewindow)
  for ((i = 0; i < $2; i++)); do xdotool key Left; done
  xdotool key Return
  until_true "the end of the box '$1'" is_gone "$box"  # palettes bear the same title
}

is_gone() {
  ! xwininfo -id "$1" | grep -q IsViewable
}

box_is_open() {
  local box
  box=$(xdotool getactivewindow)
  [ "$(xdotool getwindowname "$box")" = "$1" ] && xprop -id "$box" _NET_WM_WINDOW_TYPE | grep -q DIALOG
}

OPEN_TITLE='ファイルを開く' SAVE_TITLE='名前を付けて保存'

# choose_file TITLE [FILE]: takes a file in the file dialog of that title, the one that it proposes if none is told
choose_file() {
  until_true "the dialog '$1'" box_is_open "$1"
  [ $# = 1 ] || xdotool key ctrl+a type --delay 1 "$2"
  xdotool key Return
  until_true "the end of the dialog '$1'" eval "! box_is_open '$1'"
}

# Closes the main window by the key of its frame. While the focus is on its way to another window a key is lost, so it is
# given again if no question comes.
close_by_key() {
  local i
  xdotool windowactivate "$window" key alt+F4
  for ((i = 0; i < 60; i++)); do
    box_is_open 'Kiso 終了' && return
    sleep 0.05
  done
  return 1
}

# The end dialog's No saves the picture under its own name.
end_with_save() {
  until_true "the question at the end" close_by_key
  answer 'Kiso 終了' 1
  choose_file "$SAVE_TITLE"
  answer 'Kiso ' 1
  expect_end
}

end_without_save() {
  until_true "the question at the end" close_by_key
  answer 'Kiso 終了' 2
  expect_end
}

expect_end() {
  until_true "the end of the program" not_running
  wait "$editor" || fail "the program ended with status $?"
}

not_running() {
  ! kill -0 "$editor"
}
