#!/usr/bin/env bash
# The displays that scripts start, against others on this machine: no client without the cookie, no screen without the
# password, and wrong passwords do not keep the owner out.
. "$(dirname "$(readlink -f "$0")")/desktop.sh"

expect_cookie_wanted() {
  xprop -root >/dev/null || fail "$1 refuses its owner"
  if XAUTHORITY=/dev/null xprop -root &>/dev/null; then fail "$1 takes a client without the cookie"; fi
}

expect_cookie_wanted "the display of the tests"
start_shared_display
expect_cookie_wanted "the display of ./run"

python3 - "$scratch/screen" "$password" <<'END'
import socket, subprocess, sys


def answer(challenge, password):
    """DES of the challenge; in the bytes of the key the lowest bit counts as the highest."""
    key = bytes(int(f"{byte:08b}"[::-1], 2) for byte in password.encode().ljust(8, b"\0")[:8])
    des = ["openssl", "enc", "-des-ecb", "-nopad", "-provider", "legacy", "-provider", "default", "-K", key.hex()]
    return subprocess.run(des, input=challenge, stdout=subprocess.PIPE, check=True).stdout


def let_in(password):
    with socket.socket(socket.AF_UNIX) as screen:
        screen.settimeout(10)
        screen.connect(sys.argv[1])
        stream = screen.makefile("rwb")

        def send(data):
            stream.write(data)
            stream.flush()

        send(stream.read(12))  # the version
        kinds = stream.read(stream.read(1)[0])
        assert kinds == b"\2", f"the password is not asked for: {kinds}"
        send(b"\2")
        send(answer(stream.read(16), password))
        return stream.read(4) == bytes(4)


for attempt in range(12):
    assert not let_in("wrong"), "a wrong password is taken"
assert let_in(sys.argv[2]), "the owner is refused"
END
