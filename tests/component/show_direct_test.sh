#!/usr/bin/env bash
# Runs the real `tnwizard show` on the built-in sample as a user would, by keyboard: Direct is
# chosen, every attribute is placed in one of three groups, the reference is chosen, the targets
# are judged (one interval typed, one taken as offered, the reference refused with its message),
# Next shows the results and Finish ends the wizard. The host must print the status texts, the
# export in its documented key order and the unload with weightsDone true, and exit with 0.
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
key alt+n
# Step 0: two attributes in the framed group, an empty group inserted above it, and so on: the
# sample's six attributes end in three groups, the last two the most important.
window 'Tarnel Wizard: Give an importantce order of the attirbutes'
key space space alt+i space space alt+i space space
key alt+n
# Step 1: the focus is on the most important group's first button (Comfort): the reference.
window 'Tarnel Wizard: Select reference attributes for pairwise comparisons'
key space alt+n
# Step 2: the first target (Purchase price) gets a typed interval; its tie follows it.
window 'Tarnel Wizard: Estimate intervals of the weight ratios'
key alt+m
typeText 0.5
key alt+o
typeText 0.7
key alt+e
# Fuel consumption is judged by the tie; Safety rating takes the offered interval.
key alt+g Down
key alt+g Down
key alt+e
# Boot volume is judged by its tie; the reference itself is refused with a message.
key alt+g Down
key alt+g Down
window 'NORIX'
key Return
window 'Tarnel Wizard: Estimate intervals of the weight ratios'
key alt+n
window 'Tarnel Wizard: Results of the value judgments'
key alt+f
wait "$pid"
DRIVE
status=0
timeout 100 "$(dirname "$0")/../scripts/private-display" 1280x1024x24 \
  bash "$out/drive.sh" "$tnwizard" "$out" \
  "$(dirname "$0")/../show_keyboard.sh" ||
  status=$?
if [ "$status" -ne 0 ]; then
  echo "the run ended with status $status"; cat "$out/show.out" "$out/show.err"; exit 1
fi

python3 - "$out/show.out" <<'CHECK'
import json, math, sys
lines = open(sys.argv[1]).read().splitlines()
events = [json.loads(line) for line in lines]
kinds = [e["event"] for e in events]
assert kinds == ["SendMasseges"] * 3 + ["ExportDirectAW", "UnloadTNWizard"], kinds
assert [e["msg"] for e in events[:3]] == [
    "Select a method to make value judgments between the attributes.",
    "Order the attributes according to their relative importance.",
    " Indicate a value reference region on the two selected attributes."], events[:3]
# The export's keys in the documented order, the reference Comfort (index 4).
ex = events[3]
assert list(ex) == ["event", "type", "refAtt", "weights", "weightsH", "weightsL"], lines[3]
assert lines[3].startswith('{"event":"ExportDirectAW","type":"MAVT_DIRECT","refAtt":4,'), lines[3]
for name in ("weights", "weightsH", "weightsL"):
    values = ex[name]
    assert len(values) == 6 and all(isinstance(v, (int, float)) and math.isfinite(v)
                                    for v in values), (name, values)
assert all(l <= w <= h for l, w, h in zip(ex["weightsL"], ex["weights"], ex["weightsH"])), ex
# The typed interval [0.5, 0.7] makes Purchase price lighter than Comfort at either bound.
assert ex["weightsH"][0] < ex["weightsL"][4], ex
assert lines[4] == '{"event":"UnloadTNWizard","fIndex":1,"weightsDone":true}', lines[4]
CHECK
echo "show: the direct method ran to the export"
