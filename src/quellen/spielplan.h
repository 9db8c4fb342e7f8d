#pragma once

#include <iosfwd>
#include <string>

#include "quelle.h"
#include "state/spielstand.h"

namespace kalimbo {

// Builds a new game from a fixture list: teams in order of first appearance with unique short
// names, the pairings of every round as its matchday in the file's order, the results of played
// matches into the file copy (0:0 elsewhere), table colours for the usual positions, `ligaInfo`
// as the league line, defaults for the rest (nine players without names, no matchday selected,
// no current matchday). The season must be a double round robin of 18 or 20 teams with every
// name and `ligaInfo` text that a game file can store; otherwise, and for a result file without
// rounds, throws Dateifehler beginning with the file's name and saying which line (or which
// matchday) is wrong. What it returns can always be saved.
Dateiinhalt neuesSpiel(const Quelle& quelle, const std::string& ligaInfo);

// neuesSpiel of a season CSV read from a stream (see leseSaisontabelle); no more than
// GroessteSaisondatei bytes are read, a longer stream is refused.
Dateiinhalt importiereSaison(std::istream& csv, const std::string& ligaInfo);

// Table colours of an 18- or 20-team league by position: champion, Champions League,
// Champions League qualification, UEFA cup, midfield, relegation.
Feld<Farbe, MaxTeams> tabellenfarben(int anzahlTeams);

}  // namespace kalimbo
