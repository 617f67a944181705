#!/usr/bin/env bash
# Runs the real `tnwizard show` as a host would: a model that cannot be opened ends with status 2;
# on the built-in sample the selection dialog appears, Escape asks to end, and the program
# prints the events and exits 0.
set -euo pipefail
tnwizard=$1
out=$(mktemp -d)
trap 'rm -rf "$out"' EXIT

status=0
"$tnwizard" show /nonexistent/model.nrx >"$out/none.out" 2>"$out/none.err" || status=$?
[ "$status" -eq 2 ] || { echo "show on a missing model: status $status, expected 2"; exit 1; }
grep -qx "There are problems in accessing the relevant data." "$out/none.err" ||
  { echo "missing message on standard error"; cat "$out/none.err"; exit 1; }

cat >"$out/drive.sh" <<'DRIVE'
set -euo pipefail
QT_QPA_PLATFORM=xcb "$1" show >"$2/show.out" 2>"$2/show.err" &
pid=$!
id=""
# A loaded machine may take many seconds to start the program: wait up to a minute.
for _ in $(seq 600); do
  id=$(xdotool search --name '^Tarnel Wizard$' 2>/dev/null | head -1 || true)
  [ -n "$id" ] && break
  sleep 0.1
done
[ -n "$id" ] || { kill "$pid"; echo "no selection dialog appeared"; exit 1; }
# Escape until the program ends: a key that arrives before the dialog takes the keyboard is lost.
for _ in $(seq 30); do
  kill -0 "$pid" 2>/dev/null || break
  xdotool windowfocus --sync "$id" 2>/dev/null || true
  xdotool key --clearmodifiers Escape 2>/dev/null || true
  sleep 1
done
wait "$pid"
DRIVE
timeout 120 "$(dirname "$0")/../scripts/private-display" 1280x1024x24 \
  bash "$out/drive.sh" "$tnwizard" "$out" ||
  { echo "the show run failed; its standard error:"; cat "$out/show.err"; exit 1; }

expected='{"event":"SendMasseges","msg":"Select a method to make value judgments between the attributes."}
{"event":"UnloadTNWizard","fIndex":1,"weightsDone":false}'
if [ "$(cat "$out/show.out")" != "$expected" ]; then
  echo "unexpected events:"; cat "$out/show.out"; exit 1
fi
echo "show: events as expected"
