#pragma once

#include "saisonplan.h"
#include "state/spielstand.h"

namespace kalimbo {

// The rows of a league table, indexed by team; row 20 is a spare that belongs to no team.
using Tabellenzeilen = Feld<Tabellenzeile, MaxTeams + 1>;

// Clears the league table: every row 0..20 gets its team's name (row 20 has none), its team index
// as Tabellenplatz and 0 in every figure.
void setzeTabelleZurueck(Spielstand& s);

// Computes the league table afresh from the real results of every matchday 0..AnzSpieltage whose
// SptgAuswerten is 1: a win 3 points, a draw 1, with the home and away counters; every match counts
// as stored, so an unplayed one (0:0) is a draw. With `sonntagsspieleAuslassen` the Sunday matches
// of the current matchday are left out. Then sorts the table. Throws Laufzeitfehler::Index for a
// count or team index outside the fixed limits and Laufzeitfehler::Ueberlauf for a 16-bit overflow.
void zaehleTabelle(Spielstand& s, bool sonntagsspieleAuslassen);
// The same from the matches an evaluation's plan counts.
void zaehleTabelle(Spielstand& s, const Saisonplan& plan);

// Orders the Tabellenplatz of rows 0..anzTeams (anzTeams is the highest team index) by points,
// then goal difference, then goals scored, best first; teams equal in all three keep their
// current order. The rows' positions must be 0..anzTeams, each once (as the reset leaves them);
// otherwise, or for anzTeams outside 0..20, throws Laufzeitfehler::Index and changes nothing.
void sortiereTabelle(Tabellenzeilen& tabelle, i16 anzTeams);

// The team at the 0-based position `platz` of the rows 0..anzTeams (anzTeams is the highest team
// index): the last row whose Tabellenplatz equals it; 0 if none. Throws Laufzeitfehler::Index for
// anzTeams beyond the rows.
i16 teamAufPlatz(const Tabellenzeilen& tabelle, i16 anzTeams, int platz);

}  // namespace kalimbo
