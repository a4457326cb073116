#!/usr/bin/env bash
# The display goes while the editor runs: it ends with the status for that, and by no fault.
. "$(dirname "$0")/desktop.sh"

picture "$scratch/p.bmp"
open_editor "$scratch/p.bmp"
kill "${services[0]}"  # the X server is the first that was started
status=0
wait "$editor" || status=$?
[ "$status" = 2 ] || fail "status $status"
