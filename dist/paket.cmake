# The Debian package kalimbo_<version>_<arch>.deb of what "cmake --install" installs: "cpack -G DEB"
# in the build folder, or scripts/paket.
set(CPACK_GENERATOR DEB)
set(CPACK_PACKAGE_NAME kalimbo)
set(CPACK_PACKAGE_CONTACT "Kalimbo-Projekt <kalimbo@example.org>")
set(CPACK_PACKAGING_INSTALL_PREFIX /usr)
set(CPACK_STRIP_FILES ON)
set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
set(CPACK_DEBIAN_PACKAGE_SECTION misc)
# Depends: the libraries the programs link, found by dpkg-shlibdeps, and Qt's German texts, which
# the window loads by name.
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS ON)
set(CPACK_DEBIAN_PACKAGE_DEPENDS qt6-translations-l10n)
set(CPACK_DEBIAN_PACKAGE_CONTROL_STRICT_PERMISSION ON)
# The first line is the synopsis, the rest the long description.
set(CPACK_DEBIAN_PACKAGE_DESCRIPTION "Fußball-Tippspiel verwalten: Tipps, Ergebnisse, Punkte und Tabellen
Kalimbo verwaltet ein Fußball-Tippspiel über eine Saison einer Liga mit 18
oder 20 Mannschaften: bis zu neun Spieler tippen jedes Spiel, die echten
Ergebnisse werden eingetragen, sobald sie feststehen, und die Tipps werden
nach einer von vier Regeln gewertet. Das Fenster zeigt Punkte und Plätze je
Spieltag und insgesamt, die Tabelle der Liga und eine Grafik der Punkte;
Spieltagsbögen gehen auf den Drucker, als PDF oder als HTML hinaus.
.
Das Befehlszeilenwerkzeug kalimbo-cli wertet Tippspiele ohne Fenster aus.")
include(CPack)
