#pragma once

#include <string_view>
#include <vector>

#include "scoring/tabelle.h"

namespace kalimbo {

// The league table that player slot `spieler` (0..8) predicted: every match of every matchday
// 0..AnzSpieltage with SptgAuswerten 1 counted as tipped (no test for a missing tip, no Sunday
// rule), a win 3 points, a draw 1, with the home and away counters; rows named after the teams'
// long names and sorted like the league table (points, goal difference, goals; ties in team
// order) over the teams 0..AnzTeams. Throws Laufzeitfehler::Index for a player, count or paired
// team outside the fixed limits and Laufzeitfehler::Ueberlauf when a counter leaves 16 bits.
Tabellenzeilen vorhergesagteTabelle(const Spielstand& s, int spieler);

// One row of the predicted table as the simulation window shows it.
struct Vorhersageplatz {
    i16 team;                 // the team at this place
    i16 tatsaechlichePunkte;  // its points in the real table (getTabInfo kind 2)
};

// The rows of the predicted table by place, best first, for the places 0..AnzTeams.
std::vector<Vorhersageplatz> vorhersageNachPlatz(const Spielstand& s, const Tabellenzeilen& vorhersage);

// The slots of the players taking part (Teilnehmer 1), in slot order: the choice the simulation offers.
std::vector<i16> waehlbareSpieler(const Spielstand& s);

// The player chosen by name: the first slot 0..8 whose name equals `name` exactly; `bisher` when
// none does.
i16 waehleSpieler(const Spielstand& s, std::string_view name, i16 bisher);

}  // namespace kalimbo
