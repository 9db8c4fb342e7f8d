#!/usr/bin/env bash
# Start-up to first paint, median (min-max) of 20 runs each: the main window on the sample game against a
# minimal Qt window showing text. Two figures per program: from main() on, and from the launch of
# the process (loading Qt's libraries included). Offscreen by default; "xvfb" uses an X server.
set -euo pipefail
export XDG_RUNTIME_DIR="${XDG_RUNTIME_DIR:-$(mktemp -d)}"
programm="$(dirname "$0")/../build/bench/startzeit"
median() { sort -n | awk '{a[NR]=$1} END {print a[int((NR+1)/2)] " (" a[1] "-" a[NR] ")"}'; }
messe() {
    local ab_main="" ab_start=""
    for _ in $(seq 20); do
        start=$(date +%s%N)
        { read -r ms; read -r ende; } < <("$programm" "$@" 2>/dev/null)
        ab_main+="$ms"$'\n'
        ab_start+="$(awk -v a="$start" -v e="$ende" 'BEGIN {printf "%.2f", (e - a) / 1e6}')"$'\n'
    done
    echo "$(printf '%s' "$ab_main" | median) ms ab main(), $(printf '%s' "$ab_start" | median) ms ab Programmstart"
}
if [ "${1:-}" = "xvfb" ]; then
    exec xvfb-run -a -s "-screen 0 1280x1024x24" "$0" intern
fi
[ "${1:-}" = "intern" ] || export QT_QPA_PLATFORM=offscreen
echo "minimales Qt-Fenster mit Text: $(messe --minimal)"
echo "Kalimbo mit Beispielspiel:     $(messe)"
