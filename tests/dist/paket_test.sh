#!/usr/bin/env bash
# Makes the Debian package from the build folder (without building anything) and checks it as the
# archive would: the files it holds, its control fields, the AppStream description and desktop
# entry it installs, and lintian without errors or warnings.
# Usage: paket_test.sh BUILD VERSION VEREINE
set -euo pipefail
build=$1 version=$2 vereine=$3
ziel=$(mktemp -d)
trap 'rm -rf "$ziel"' EXIT
fehler() { echo "FEHLER: $*" >&2; exit 1; }

(cd "$build" && cpack -G DEB -B "$ziel" >/dev/null)
paket="$ziel/kalimbo_${version}_$(dpkg --print-architecture).deb"
[ -f "$paket" ] || fehler "kein Paket $(basename "$paket"): $(ls "$ziel")"

inhalt=$(dpkg-deb -c "$paket" | awk '{print $6}')
erwartet=(bin/kalimbo bin/kalimbo-cli share/applications/kalimbo.desktop share/mime/packages/kalimbo.xml
          share/metainfo/org.example.kalimbo.metainfo.xml share/icons/hicolor/scalable/apps/kalimbo.svg
          share/man/man1/kalimbo.1.gz share/man/man1/kalimbo-cli.1.gz share/doc/kalimbo/copyright
          share/doc/kalimbo/changelog.gz share/kalimbo/beispiele/bundesliga-2005-06.tip)
for liste in "$vereine"/*.txt; do erwartet+=("share/kalimbo/vereine/${liste##*/}"); done
for datei in "${erwartet[@]}"; do
    grep -qx "./usr/$datei" <<<"$inhalt" || fehler "nicht im Paket: /usr/$datei"
done
ausserhalb=$(grep -v '^\./usr/' <<<"$inhalt" || true)
[ -z "$ausserhalb" ] || fehler "außerhalb von /usr: $ausserhalb"

while IFS='|' read -r feld muster; do
    wert=$(dpkg-deb -f "$paket" "$feld")
    grep -Eq "$muster" <<<"$wert" || fehler "Feld $feld passt nicht zu /$muster/: $wert"
done <<FELDER
Package|^kalimbo$
Version|^${version//./\\.}$
Architecture|^$(dpkg --print-architecture)$
Maintainer|^Kalimbo-Projekt <kalimbo@example\.org>$
Depends|(^|, )libqt6widgets6( |,|$)
Depends|(^|, )qt6-translations-l10n(,|$)
Section|^misc$
Description|^ [^ ]
FELDER

wurzel="$ziel/wurzel"
dpkg-deb -x "$paket" "$wurzel"
appstreamcli validate-tree --no-net "$wurzel" >"$ziel/appstream" || fehler "AppStream: $(cat "$ziel/appstream")"
desktop-file-validate "$wurzel/usr/share/applications/kalimbo.desktop" || fehler "Desktop-Eintrag ungültig"
lintian --fail-on error,warning "$paket" 2>/dev/null || fehler "lintian (siehe oben)"
echo "Paket in Ordnung"
