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

# add_cookie DISPLAY COOKIE: through standard input, as arguments can be seen by all
add_cookie() {
  xauth -q source - <<<"add $1 . $2"
}

# start_display SERVER...: a display by that X server, with a window manager; sets DISPLAY and XAUTHORITY. Its socket stands
# open to every user of the machine, so it takes nobody without the cookie, which lies in the private $scratch.
start_display() {
  local cookie
  cookie=$(mcookie)
  export XAUTHORITY=$scratch/cookies
  (umask 077 && touch "$XAUTHORITY")
  add_cookie :0 "$cookie"  # the server takes a cookie from whatever line
  exec 3>"$scratch/display"
  start "$@" -auth "$XAUTHORITY" -displayfd 3 -nolisten tcp -noreset &>"$scratch/display.log"
  until_true "the virtual display" test -s "$scratch/display"
  exec 3>&-
  export DISPLAY=:$(<"$scratch/display")
  add_cookie "$DISPLAY" "$cookie"
  unset WAYLAND_DISPLAY
  if [ -z "${XDG_RUNTIME_DIR:-}" ]; then  # where nobody has logged in
    mkdir -m 700 "$scratch/runtime"
    export XDG_RUNTIME_DIR=$scratch/runtime
  fi
  start openbox &>"$scratch/openbox.log"
  until_true "the window manager" eval 'xprop -root _NET_SUPPORTING_WM_CHECK | grep -q "window id"'
}

# start_shared_display: a display whose screen others get from the socket $scratch/screen, with the password $password
start_shared_display() {
  password=$(head -c 6 /dev/urandom | base64 | tr +/ -_)  # 48 bits in the eight characters that VNC looks at
  tigervncpasswd -f <<<"$password" >"$scratch/password"
  # All clients come from one address, that of the socket: were it locked after wrong passwords, any page that is open in
  # the browser could lock the owner out.
  start_display Xtigervnc -geometry 1280x800 -depth 24 -SecurityTypes VncAuth -PasswordFile "$scratch/password" \
    -UseBlacklist=0 -rfbport -1 -rfbunixpath "$scratch/screen"
}
