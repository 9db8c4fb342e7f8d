#pragma once

#include <iosfwd>
#include <optional>

#include "scoring/tabelle.h"

namespace kalimbo::cli {

// What the evaluating commands may change about a game before evaluating it.
struct Auswertungsoptionen {
    bool alle = false;         // --alle: every matchday of the season instead of the file's selection
    bool sonntag = false;      // --sonntag: leave out the Sunday matches of the current matchday
    std::optional<i16> regel;  // --regel N: rule 0..3 instead of the file's
};

// Brings a freshly opened game into the state a user sees after opening it and pressing
// "auswerten": shows the last selected matchday, applies the options, evaluates, and marks the
// non-participants' points of the shown matchday as the matchday view does.
void werteWieGeoeffnetAus(Spielstand& spiel, const Auswertungsoptionen& optionen);

// A league table (rows 0..anzTeams, anzTeams the highest team index), one line per position, best
// first: position (1-based), name, points, goals:against, difference, wins, draws, losses;
// TAB-separated.
void schreibeTabelle(const Tabellenzeilen& tabelle, i16 anzTeams, std::ostream& aus);

// The nine player slots in overall order: place (1-based), name, total points; TAB-separated.
void schreibeSpieler(const Spielstand& spiel, std::ostream& aus);

}  // namespace kalimbo::cli
