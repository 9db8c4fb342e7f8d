#pragma once

#include <optional>
#include <string>
#include <vector>

#include "state/spielstand.h"

namespace kalimbo {

// The teams whose sheet a click on the team name in row `zeile` (0-based table position) of the
// league table shows: every team t = 0..AnzTeams whose Tabellenplatz equals the row, in that order.
// The window shows each in turn, so the last one stays. Throws Laufzeitfehler::Index when AnzTeams
// lies beyond the table.
std::vector<i16> teamsAufTabellenplatz(const Spielstand& s, int zeile);

// The information sheet of team `team` (0..19): its long name, then points, goals, wins, draws and
// losses overall, at home and away from its league-table row, then six flat lists of its matches
// (home, away, won, drawn, lost, all) on the counted matchdays up to AktSpieltagGlobal with the
// stored results. Lines end with CR LF. Empty when AktSpieltagGlobal is 99 (no current matchday).
// Throws Laufzeitfehler::Index for a team or another index beyond the fixed limits.
std::optional<std::string> TeamInfoText(const Spielstand& s, int team);

}  // namespace kalimbo
