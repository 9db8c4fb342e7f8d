#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "scoring/tabelle.h"

namespace kalimbo {

// How far a predicted table lies from the real one, team by team.
struct Abweichungen {
    Feld<i16, MaxTeams> PunkteDiff;  // by team: predicted minus real points (> 0: over-rated)
    std::vector<i16> reihenfolge;    // teams 0..AnzTeams by absolute deviation, largest first,
                                     // equal ones in team order whatever their sign
};

// The deviations of `vorhersage` (from vorhergesagteTabelle) from the real table's points
// (getTabInfo kind 2). Throws Laufzeitfehler::Ueberlauf when a difference or its absolute value
// leaves 16 bits, Laufzeitfehler::Index for AnzTeams beyond the fixed limits.
Abweichungen berechneAbweichungen(const Spielstand& s, const Tabellenzeilen& vorhersage);

// The deviation report of player slot `spieler` (0..8, for the name) about `vorhersage`: the
// deviations by absolute value, variance, standard deviation and mean absolute deviation over all
// teams, then the rightly, over- and under-rated teams, each group with its own figures when it is
// not empty. Figures in the form "0.00" with the decimal separator `trenner`; lines end with CR LF.
// The overall sums are checked 16-bit figures (Laufzeitfehler::Ueberlauf), the group sums single
// precision.
std::string abweichungsbericht(const Spielstand& s, int spieler, const Tabellenzeilen& vorhersage,
                               std::string_view trenner);

}  // namespace kalimbo
