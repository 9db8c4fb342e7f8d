#pragma once

#include <iosfwd>
#include <string>
#include <vector>

#include "aufruf.h"
#include "reports/spieltagsbogen.h"

namespace kalimbo::cli {

// The options that choose a matchday sheet.
inline const std::vector<std::string> BogenOptionen{"--spieltag", "--art"};

// The sheet a command line asks for: the game named by the only positional value, opened and
// evaluated as the window shows it; --spieltag N (1-based, default the highest selected matchday)
// and --art auswertung|live|tippabgabe (default auswertung); dated today. Throws Gebrauchsfehler
// for a wrong kind or a matchday outside the game's season, Dateifehler or Laufzeitfehler else.
Spieltagsbogen bogenAusAufruf(const Aufruf& a);

// kalimbo-cli html SPIEL.tip [--spieltag N] [--art ...]: the sheet as an HTML page on `aus`.
int html(const std::vector<std::string>& argumente, std::ostream& aus);

}  // namespace kalimbo::cli
