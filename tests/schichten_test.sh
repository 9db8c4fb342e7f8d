#!/bin/sh
# The layers of the house: the core (game, scoring, reports, simulation, graph, sources) includes
# neither Qt nor the windows, the command line or the start-up; the windows include neither the
# command line nor the start-up; the command line no Qt and no windows. Prints every include that
# crosses a layer and fails if there is one.
cd "$(dirname "$0")/../src" || exit 2
verboten() {  # folders, pattern of forbidden includes
    muster=$1
    shift
    grep -rnE "^[[:space:]]*#[[:space:]]*include[[:space:]]*[<\"]($muster)" "$@"
}
fehler=$(
    verboten 'ui/|cli/|app/|Q[A-Za-z]*[>/.]' state scoring reports simulation graph quellen
    verboten 'cli/|app/' ui
    verboten 'ui/|app/|Q[A-Za-z]*[>/.]' cli
)
if [ -n "$fehler" ]; then
    echo "Einbindungen über die Schichten hinweg:"
    echo "$fehler"
    exit 1
fi
