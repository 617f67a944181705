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
source "$3"
window 'Tarnel Wizard'
key Down alt+n
# The trade-off dialog has the selection dialog's title.
newWindow 'Tarnel Wizard'
for _ in $(seq 30); do KEY_DELAY=0.05 key alt+e; done
key alt+n
# Finish is disabled until the results are shown.
untilEnded alt+f
wait "$pid"
DRIVE
timeout 80 "$(dirname "$0")/../scripts/private-display" 1280x1024x24 \
  bash "$out/drive.sh" "$tnwizard" "$out" \
  "$(dirname "$0")/../show_keyboard.sh"

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
