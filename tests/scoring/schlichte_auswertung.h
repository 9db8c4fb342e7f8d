#pragma once

#include "state/spielstand.h"

namespace kalimbo::test {

// The evaluation written as plainly as the rules read, to hold the fast one against: one loop over players,
// matchdays and matches that scores tip after tip, the league table counted match by match, and the rankings
// as the literal 8-pass bubble sorts. Every figure is summed in a wide integer and checked against the 16-bit
// range where it is stored, in the same order and with the same messages as werteAus; the bounds are checked
// by hand before the loops that rely on them. Fills s.Auswertung and s.Tabelle like werteAus, but leaves them
// half-filled when it throws. It starts from the records and rows verwirfAuswertung leaves.
void werteSchlichtAus(Spielstand& s, bool sonntagsspieleAuslassen);

}  // namespace kalimbo::test
