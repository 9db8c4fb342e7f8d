#!/usr/bin/env bash
# Installs the build into a temporary prefix and checks what the desktop needs of the installed
# tree: every file in its place, a valid desktop entry that opens game files, game files known by
# their extension, manual pages without warnings, and programs that run from there.
# Usage: installation_test.sh BUILD MIMETYP SPIEL.tip
set -euo pipefail
build=$1 mimetyp=$2 spiel=$3
ziel=$(mktemp -d)
trap 'rm -rf "$ziel"' EXIT
fehler() { echo "FEHLER: $*" >&2; exit 1; }

cmake --install "$build" --prefix "$ziel" >/dev/null
for datei in bin/kalimbo bin/kalimbo-cli share/applications/kalimbo.desktop share/mime/packages/kalimbo.xml \
             share/icons/hicolor/scalable/apps/kalimbo.svg share/icons/hicolor/16x16/apps/kalimbo.png \
             share/icons/hicolor/256x256/apps/kalimbo.png share/man/man1/kalimbo.1.gz share/man/man1/kalimbo-cli.1.gz; do
    [ -e "$ziel/$datei" ] || fehler "nicht installiert: $datei"
done

"$ziel/bin/kalimbo-cli" info "$spiel" | grep -q '^Mannschaften' || fehler "kalimbo-cli läuft nicht"

if command -v desktop-file-validate >/dev/null; then
    desktop-file-validate "$ziel/share/applications/kalimbo.desktop" || fehler "Desktop-Eintrag ungültig"
fi
if command -v update-desktop-database >/dev/null; then
    update-desktop-database "$ziel/share/applications"
    grep -q '^application/x-kalimbo-tippspiel=kalimbo.desktop' "$ziel/share/applications/mimeinfo.cache" \
        || fehler "der Desktop-Eintrag öffnet keine Tippspiel-Dateien"
fi

update-mime-database "$ziel/share/mime"
cp "$spiel" "$ziel/probe.tip"
typ=$(XDG_DATA_DIRS="$ziel/share" "$mimetyp" "$ziel/probe.tip")
[ "$typ" = application/x-kalimbo-tippspiel ] || fehler "Dateityp von *.tip: $typ"
if command -v xdg-mime >/dev/null; then
    standard=$(XDG_DATA_DIRS="$ziel/share" XDG_DATA_HOME="$ziel/leer" xdg-mime query default application/x-kalimbo-tippspiel)
    [ "$standard" = kalimbo.desktop ] || fehler "xdg-mime öffnet Tippspiel-Dateien mit: $standard"
fi

for seite in "$ziel"/share/man/man1/*.1.gz; do
    warnungen=$(zcat "$seite" | groff -k -man -Tutf8 -ww -z 2>&1)
    [ -z "$warnungen" ] || fehler "Handbuchseite ${seite##*/}: $warnungen"
done
echo "Installation in Ordnung"
