#pragma once

#include <iosfwd>
#include <optional>

#include "scoring/tabelle.h"

namespace kalimbo::cli {

// A league table (rows 0..anzTeams, anzTeams the highest team index), one line per position, best
// first: position (1-based), name, points, goals:against, difference, wins, draws, losses;
// TAB-separated.
void schreibeTabelle(const Tabellenzeilen& tabelle, i16 anzTeams, std::ostream& aus);

// The nine player slots in overall order: place (1-based), name, total points; TAB-separated.
void schreibeSpieler(const Spielstand& spiel, std::ostream& aus);

}  // namespace kalimbo::cli
