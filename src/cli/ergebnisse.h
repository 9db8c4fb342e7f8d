#pragma once

#include <iosfwd>
#include <string>
#include <vector>

namespace kalimbo::cli {

// "ergebnisse SPIEL.tip QUELLE [AUSGABE.tip] [--ersetzen] [--team "QUELLE=SPIEL"]...": takes the
// results of a fixture list or result file into the game (uebernimmErgebnisse), saves it as
// AUSGABE or, without it, in place of SPIEL.tip, and prints the report. The file's team names
// meet the game's through the clubs lists; --team pairs a name of the file with a team given by
// its long name or its number as "info" lists it. A file of another league, or one with a name
// that meets no team or several, is refused with a Dateifehler listing the names; nothing is
// written then. Returns exit code 0.
int ergebnisse(const std::vector<std::string>& argumente, std::ostream& aus);

}  // namespace kalimbo::cli
