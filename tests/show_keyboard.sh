# Keyboard helpers for the drivers that run the real `tnwizard show` under xvfb with xdotool.
# Sourced by a driver after it has started the program in the background as $pid.

# Waits until a visible window has exactly this title, and gives it the keyboard; its id is left
# in WINDOW_ID. A loaded machine may take many seconds to start the program: wait up to a minute.
window() {
  awaitWindow "$1" ""
}

# As window, for a dialog that replaces one of the same title: waits until a visible window of
# this title other than WINDOW_ID (the one the driver last had) is shown.
newWindow() {
  awaitWindow "$1" "${WINDOW_ID:-}"
}

awaitWindow() {
  local id=""
  for _ in $(seq 600); do
    id=$(xdotool search --onlyvisible --name "^$1\$" 2>/dev/null | grep -vx "${2:-none}" |
      tail -1 || true)
    if [ -n "$id" ]; then
      xdotool windowactivate --sync "$id" 2>/dev/null || xdotool windowfocus --sync "$id"
      WINDOW_ID=$id
      sleep 0.2
      return 0
    fi
    sleep 0.1
  done
  echo "no window titled \"$1\" appeared" >&2
  kill "$pid" 2>/dev/null || true
  exit 1
}

# Presses this key until the program ends (up to a minute), for a key that ends the wizard once
# its page is shown and does nothing before, such as Finish while the results are being made.
untilEnded() {
  for _ in $(seq 120); do
    xdotool key --clearmodifiers "$1"
    for _ in $(seq 5); do
      kill -0 "$pid" 2>/dev/null || return 0
      sleep 0.1
    done
  done
  echo "the program did not end on $1" >&2
  kill "$pid" 2>/dev/null || true
  exit 1
}

# Mnemonics press their buttons a moment later, as a click does: each key gets time to act
# (KEY_DELAY seconds, 0.3 unless set).
key() {
  for k in "$@"; do
    xdotool key --clearmodifiers "$k"
    sleep "${KEY_DELAY:-0.3}"
  done
}

# Types a text into the focused box.
typeText() {
  xdotool type --delay 60 "$1"
  sleep 0.15
}
