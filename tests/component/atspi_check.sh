#!/usr/bin/env bash
# Reads the wizard's painted controls over AT-SPI, as a screen reader does: the real
# `tnwizard show` runs under xvfb with its own session and accessibility bus; the direct method
# is taken to its judgment step (the cone's two handles and the status lamps are read), then the
# trade-off method to its results (the points A and B, and the chart as a table). The reader
# runs on the system Python, where the Debian package python3-pyatspi installs.
set -euo pipefail
tnwizard=$1
here=$(cd "$(dirname "$0")" && pwd)
out=$(mktemp -d)
[ -z "${TNW_KEEP_OUTPUT:-}" ] || echo "output in $out" >&2
trap '[ -n "${TNW_KEEP_OUTPUT:-}" ] || rm -rf "$out"' EXIT

cat >"$out/drive.sh" <<'DRIVE'
set -euo pipefail
export QT_LINUX_ACCESSIBILITY_ALWAYS_ON=1 QT_QPA_PLATFORM=xcb
source "$3"
"$1" show >"$2/direct.out" 2>"$2/direct.err" &
pid=$!
window 'Tarnel Wizard'
key alt+n
window 'Tarnel Wizard: Give an importantce order of the attirbutes'
key space space alt+i space space alt+i space space
key alt+n
window 'Tarnel Wizard: Select reference attributes for pairwise comparisons'
key space alt+n
window 'Tarnel Wizard: Estimate intervals of the weight ratios'
/usr/bin/python3 "$4" direct >"$2/direct.txt"
key alt+c
# Cancel ends the program with its own status; a signal (a status above 128) is a crash.
status=0
wait "$pid" || status=$?
[ "$status" -le 128 ] || { echo "tnwizard show ended by signal $((status - 128))"; exit 1; }

"$1" show >"$2/tradeoffs.out" 2>"$2/tradeoffs.err" &
pid=$!
window 'Tarnel Wizard'
key Down alt+n
# The trade-off dialog has the selection dialog's title.
newWindow 'Tarnel Wizard'
/usr/bin/python3 "$4" panel >"$2/panel.txt"
for _ in $(seq 30); do KEY_DELAY=0.05 key alt+e; done
key alt+n
/usr/bin/python3 "$4" chart >"$2/chart.txt"
key alt+f
wait "$pid"
DRIVE
timeout 150 "$here/../scripts/private-display" 1280x1024x24 dbus-run-session -- \
  bash "$out/drive.sh" "$tnwizard" "$out" "$here/../show_keyboard.sh" "$here/atspi_read.py"

cat "$out/direct.txt" "$out/panel.txt" "$out/chart.txt"
python3 - "$out" <<'CHECK'
import re, sys
out = sys.argv[1]
direct = open(out + "/direct.txt").read()
panel = open(out + "/panel.txt").read()
chart = open(out + "/chart.txt").read()
assert "cone: Preference cone" in direct, direct
handles = re.findall(r"^handle: (.+) slider (\d+\.\d\d)$", direct, re.M)
assert len(handles) == 2, direct
assert all(float(v) > 0 for _, v in handles), direct
assert re.search(r"^lamps: Judgment status: \S+", direct, re.M), direct
assert "panel: Alternatives A and B" in panel, panel
points = re.findall(r"^point: ([AB]) (\d+\.\d)$", panel, re.M)
assert [p for p, _ in points] == ["A", "B"], panel
assert re.search(r"^box: A, \S+", panel, re.M), panel
m = re.search(r"^chart: Attribute Weights and Their Ranges (\d+) x (\d+)$", chart, re.M)
assert m and int(m.group(1)) == 6 and int(m.group(2)) == 4, chart
rows = re.findall(r"^row: (.+)$", chart, re.M)
assert len(rows) == 6 and all(re.fullmatch(r"[^|]+( \| -?\d+\.\d{4}){3}", r) for r in rows), chart
print("AT-SPI check passed")
CHECK
