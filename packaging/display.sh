# For scripts that need a display of their own: sourced, it makes the folder $scratch and the procedures below. When the
# script ends, by itself or by a signal, all that it started ends too and $scratch goes.
# Every service is the leader of a process group of its own: Ctrl-C reaches the script first, and what a service has
# started ends with it.
scratch=$(mktemp -d)
services=()

end_services() {
  trap - EXIT
  trap '' INT TERM HUP
  local i
  for ((i = ${#services[@]} - 1; i >= 0; i--)); do
    kill -- "-${services[i]}" 2>/dev/null || true
  done
  wait
  rm -rf "$scratch"
}
trap end_services EXIT
trap 'exit 130' INT
trap 'exit 143' TERM HUP

# start COMMAND...: a service in the background; $started is its process id
start() {
  setsid "$@" &
  started=$!
  services+=("$started")
}

# until_true WHAT COMMAND...: waits for it at most twenty seconds; then the script ends with the logs in $scratch
until_true() {
  local end=$((SECONDS + 20))
  until "${@:2}" >/dev/null 2>&1; do
    if ((SECONDS > end)); then
      echo "$(basename "$0"): not in time: $1" >&2
      tail -n 20 "$scratch"/*.log >&2
      exit 1
    fi
    sleep 0.05
  done
}

# start_display SERVER...: a display by that X server, with a window manager; sets DISPLAY.
start_display() {
  exec 3>"$scratch/display"
  start "$@" -displayfd 3 -nolisten tcp -noreset &>"$scratch/display.log"
  until_true "the virtual display" test -s "$scratch/display"
  exec 3>&-
  export DISPLAY=:$(<"$scratch/display")
  unset WAYLAND_DISPLAY
  if [ -z "${XDG_RUNTIME_DIR:-}" ]; then  # where nobody has logged in
    mkdir -m 700 "$scratch/runtime"
    export XDG_RUNTIME_DIR=$scratch/runtime
  fi
  start openbox &>"$scratch/openbox.log"
  until_true "the window manager" eval 'xprop -root _NET_SUPPORTING_WM_CHECK | grep -q "window id"'
}
