#!/usr/bin/env bash
# A start whose picture can not be loaded ends with status 1; one of a settings file that can not be read tells in its
# box which file that is, and ends with status 1 too.
. "$(dirname "$0")/desktop.sh"

# start_editor FILE: with the program directory as it stands
start_editor() {
  start env KISO_HOME="$scratch/home" "$bin/KISO72" "$1" &>"$scratch/KISO72.log"
  editor=$started
}
expect_status() {
  local status=0
  wait "$editor" || status=$?
  [ "$status" = "$1" ] || fail "status $status"
}

mkdir "$scratch/home"
cp "$desktop"/../../assets/DEFAULT.* "$scratch/home"
start_editor "$scratch/gone.bmp"
until_true "the box" eval 'xdotool search --onlyvisible --name "^Kiso $"'
xdotool key Return
expect_status 1

printf 'FEMD , 99999\r\n[EOF]\r\n' >"$scratch/home/KISO.CNF"
start_editor ""
until_true "the box of the error" eval 'xdotool search --onlyvisible --name "^KISO72$"'
xdotool key Return
expect_status 1
