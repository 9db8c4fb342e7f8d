#pragma once

#include "state/spielstand.h"

namespace kalimbo {

// Evaluates the game from scratch, from the working arrays as they stand:
// - resets all nine SpielerAuswertung records (every element, as SpielerAuswertung::leer);
// - scores every tip of every taking-part player (Teilnehmer 1) on every matchday 0..AnzSpieltage
//   with SptgAuswerten 1 under the active rule (ModusPunkte, ModusFarbe), the points going to
//   the player's totals and to both teams of the match; tips not scored get the button-face colour;
//   with `sonntagsspieleAuslassen` the Sunday matches of the current matchday are not scored;
// - computes and sorts the league table (zaehleTabelle);
// - ranks the nine slots on every counted matchday and overall, best first, ties in slot order,
//   equal points sharing a place, and counts the players' matchday places in Platzierungen.
// Throws Laufzeitfehler::Ueberlauf when a figure leaves the 16-bit range (possible with large
// own-rule points; every figure is computed exactly and then checked) and Laufzeitfehler::Index for
// a count or team index outside the fixed limits; the records and the table are then left reset,
// never half-evaluated. Allocates nothing once the table has held the team names.
void werteAus(Spielstand& s, bool sonntagsspieleAuslassen);

// The player slot at the 0-based overall position (Sortierplatz); 0 if no slot holds it.
i16 spielerAufPlatz(const Spielstand& s, int position);
// The player slot at the 0-based position of matchday `spieltag` (SptgSortierplatz); 0 if no slot
// holds it. Throws Laufzeitfehler::Index for a matchday outside 0..37.
i16 spielerAufSpieltagsplatz(const Spielstand& s, int spieltag, int position);

// What showing matchday AktSpieltag writes into the records: SpieltagPunkte of that matchday
// becomes -1 for every slot whose Teilnehmer is not 1, until the next evaluation. Throws
// Laufzeitfehler::Index, changing nothing, when AktSpieltag is outside 0..37.
void markiereNichtteilnehmer(Spielstand& s);

}  // namespace kalimbo
