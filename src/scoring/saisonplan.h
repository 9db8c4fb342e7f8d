#pragma once

#include <array>

#include "state/spielstand.h"

namespace kalimbo {

// The matches an evaluation counts, read and checked once: the players' tips are scored against
// them and the league table is counted from them. Slot i is matchday i / 10, match i % 10, so that
// a player's tips, hit kinds and colours of the whole season are arrays of the same slots. There
// are 384 of them, a whole number of vectors: the compiler turns loops over them into vector
// instructions only when no remainder is left; the last four never count.
struct Saisonplan {
    static constexpr int Plaetze = 384;
    using Slots = std::array<i16, Plaetze>;

    int letzterTag = -1;    // AnzSpieltage
    int letztesSpiel = -1;  // AnzSpiele
    // 1 where the match counts, else 0; 16 bits wide like the goals, so the scoring loop has one width.
    Slots gewertet{};
    Slots toreHeim{}, toreGast{};              // the result as stored
    Slots differenz{};                         // home minus away goals; 0 where the match does not count
    std::array<Farbe, Plaetze> ohneTreffer{};  // a tip's colour unless it hits
    Slots heim{}, gast{};                      // the teams, 0..19 where the match counts
    // The slots that count, in matchday and match order: gezaehlt[0] .. gezaehlt[anzahl - 1].
    Slots gezaehlt{};
    int anzahl = 0;
};

// Fills `plan` from the matchdays 0..AnzSpieltage, matches 0..AnzSpiele: a match counts when its
// matchday's SptgAuswerten is 1 and it is not a left-out Sunday match. Throws Laufzeitfehler::Index
// for a count beyond the fixed limits or a team index of a counted match outside 0..19, and
// Laufzeitfehler::Ueberlauf for a counted result whose difference leaves 16 bits.
void erstelleSaisonplan(const Spielstand& s, bool sonntagsspieleAuslassen, Saisonplan& plan);

}  // namespace kalimbo
