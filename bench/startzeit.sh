#!/usr/bin/env bash
# Start-up to first paint, median of 20 runs each: the main window on the sample game against an
# empty Qt window. Offscreen by default; pass "xvfb" to measure under an X server.
set -euo pipefail
export XDG_RUNTIME_DIR="${XDG_RUNTIME_DIR:-$(mktemp -d)}"
programm="$(dirname "$0")/../build/bench/startzeit"
median() { sort -n | awk '{a[NR]=$1} END {print a[int((NR+1)/2)]}'; }
messe() { for _ in $(seq 20); do "$programm" "$@"; done | median; }
if [ "${1:-}" = "xvfb" ]; then
    exec xvfb-run -a -s "-screen 0 1280x1024x24" "$0" intern
fi
[ "${1:-}" = "intern" ] || export QT_QPA_PLATFORM=offscreen
echo "minimales Qt-Fenster mit Text: $(messe --minimal) ms"
echo "Kalimbo mit Beispielspiel: $(messe) ms"
