#!/usr/bin/env bash
# Runs the real `tnwizard show` on the built-in sample as a user would, by keyboard: TradeOffs is
# chosen, all thirty trade-offs are entered, Next shows the results and Finish ends the wizard.
# The host must print the export (the close estimates as weights and as low bounds) and the
# unload with weightsDone true.
set -euo pipefail
tnwizard=$1
out=$(mktemp -d)
trap 'rm -rf "$out"' EXIT

cat >"$out/drive.sh" <<'DRIVE'
set -euo pipefail
QT_QPA_PLATFORM=xcb "$1" show >"$2/show.out" 2>"$2/show.err" &
pid=$!
window() {
  local id=""
  for _ in $(seq 100); do
    id=$(xdotool search --onlyvisible --name '^Tarnel Wizard$' 2>/dev/null | tail -1 || true)
    [ -n "$id" ] && { echo "$id"; return 0; }
    sleep 0.1
  done
  return 1
}
key() { xdotool key --clearmodifiers "$1"; sleep "${2:-0.1}"; }
id=$(window) || { kill "$pid"; echo "no selection dialog appeared"; exit 1; }
xdotool windowfocus --sync "$id"
sleep 0.3
key Down 0.2
key alt+n 1
id=$(window) || { kill "$pid"; echo "no trade-off dialog appeared"; exit 1; }
xdotool windowfocus --sync "$id"
sleep 0.3
for _ in $(seq 30); do key alt+e 0.05; done
key alt+n 1
key alt+f
wait "$pid"
DRIVE
timeout 80 xvfb-run -a -s "-screen 0 1280x1024x24" bash "$out/drive.sh" "$tnwizard" "$out"

python3 - "$out/show.out" <<'CHECK'
import json, sys
events = [json.loads(line) for line in open(sys.argv[1])]
kinds = [e["event"] for e in events]
assert kinds == ["SendMasseges", "SendMasseges", "ExportTradeOffsW", "UnloadTNWizard"], kinds
assert events[1]["msg"] == " Give your preference between the two selected criteria."
ex = events[2]
assert ex["type"] == "MAVT_TRADEOFFS"
assert len(ex["weights"]) == 6 and len(ex["weightsH"]) == 6
assert ex["weightsL"] == ex["weights"], "the close estimates go out as the low bounds too"
assert all(h >= w for h, w in zip(ex["weightsH"], ex["weights"]))
assert events[3] == {"event": "UnloadTNWizard", "fIndex": 1, "weightsDone": True}
CHECK
echo "show: the trade-off method ran to the export"
