#pragma once

#include <cstddef>
#include <iosfwd>
#include <string>

#include "spielstand.h"

namespace kalimbo {

// The largest season file read: far more than any season's match list needs, little enough for
// the memory.
constexpr std::size_t GroessteSaisondatei = 8 * 1024 * 1024;

// Builds a new game from a season CSV (UTF-8, header "matchday,home,away,home_goals,away_goals",
// matchday 1-based, goals empty for matches not yet played): teams in order of first appearance
// with unique short names, the pairings of every matchday, the results into the file copy,
// table colours for the usual positions, `ligaInfo` as the league line, defaults for the rest.
// The season must be a double round robin of 18 or 20 teams, and every name and `ligaInfo` text
// that a game file can store; otherwise throws Dateifehler saying which line (or which matchday)
// is wrong, or when the CSV is larger than GroessteSaisondatei (no more than that is read). What it
// returns can always be saved.
Dateiinhalt importiereSaison(std::istream& csv, const std::string& ligaInfo);

// Table colours of an 18- or 20-team league by position: champion, Champions League,
// Champions League qualification, UEFA cup, midfield, relegation.
Feld<Farbe, MaxTeams> tabellenfarben(int anzahlTeams);

}  // namespace kalimbo
