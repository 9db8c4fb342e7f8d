#pragma once

#include <bitset>
#include <string>
#include <vector>

#include "state/spielstand.h"

namespace kalimbo {

// Outcome of a change of the matchday selection (SptgAuswerten). Nothing is re-evaluated: the new
// selection counts from the next evaluation on.
struct Auswahlergebnis {
    std::string ablehnung;  // not empty: the choice was refused, nothing changed; the text says why
    std::bitset<MaxSpieltage> geaendert;  // matchdays whose flag now differs from before
};

// In the descriptions: L = AnzSpieltage (the last matchday index), C = AktSpieltagGlobal (the
// current matchday, 99 = none), M = AnzSpiele, so that 0..2M is the first half of the season.
// The choices that count from C are refused with a message, changing nothing, when C is 99 ("Es ist
// kein aktueller Spieltag gesetzt.") or outside 0..L. Any other choice that would reach a matchday
// outside 0..37 throws Laufzeitfehler::Index and changes nothing.

// Toggles matchday `spieltag` 0..37: a selected one (flag 1) becomes 0, any other 1.
Auswahlergebnis schalteSpieltag(Spielstand& s, int spieltag);
// Selects 0..L.
Auswahlergebnis waehleAlle(Spielstand& s);
// Deselects all 38 slots, also those beyond a shorter season.
Auswahlergebnis waehleKeine(Spielstand& s);
// Selects 0..2M and deselects 2M+1..4M+1.
Auswahlergebnis waehleHinrunde(Spielstand& s);
// Deselects 0..2M and selects 2M+1..4M+1.
Auswahlergebnis waehleRueckrunde(Spielstand& s);
// Selects the completed matchdays 0..C and deselects C+1..L.
Auswahlergebnis waehleAlleAbsolvierten(Spielstand& s);
// Deselects 0..L, then selects L/2+1..C: nothing when C lies in the first half.
Auswahlergebnis waehleAbsolvierteRueckrunde(Spielstand& s);
// The last `anzahl` completed matchdays: C-anzahl+1..C selected, the rest of 0..L deselected.
// Refused with "Es wurden noch keine N Spieltage absolviert." when fewer are completed or C is 99.
Auswahlergebnis waehleLetzte(Spielstand& s, int anzahl);
// The matchdays of coach period `trainer` 0..9: deselects 0..L, selects VonSpieltag..BisSpieltag,
// where BisSpieltag 99 means up to C. An open period while C is 99 is refused with
// "Es ist kein aktueller Spieltag gesetzt."; a period reaching outside 0..37 is refused too.
Auswahlergebnis waehleTrainerperiode(Spielstand& s, int trainer);

// The matchday a freshly opened game shows: the highest of 0..37 with SptgAuswerten 1, 0 if none.
i16 letzterAusgewaehlterSpieltag(const Spielstand& s);

// Matchday indices (ascending) as 1-based ranges: {0..16, 19, 21..24} gives "1-17, 20, 22-25";
// "keine" when there are none.
std::string spieltagsbereiche(const std::vector<int>& tage);

}  // namespace kalimbo
