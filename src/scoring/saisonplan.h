#pragma once

#include <array>
#include <cstdint>

#include "state/spielstand.h"

namespace kalimbo {

// The matches that an evaluation counts, read and checked once: the players' tips are scored
// against them and the league table is counted from them. Slot i is matchday i / 10, match i % 10;
// the slots are rounded up to whole vector widths so the scoring loops run without a remainder.
struct Saisonplan {
    static constexpr int Plaetze = 384;
    // The team of a slot whose match does not count: a spare row past the real teams, to which such
    // a slot adds nothing, so the loops need not skip it.
    static constexpr i16 KeinTeam = MaxTeams;

    int letzterTag = -1;                              // AnzSpieltage
    int letztesSpiel = -1;                            // AnzSpiele
    std::array<i16, Plaetze> gewertet{};              // all ones (-1): the match counts; else 0
    std::array<i16, Plaetze> toreHeim{}, toreGast{};  // the result as stored; 0:0 where it does not count
    std::array<i16, Plaetze> differenz{};             // its home minus away goals
    std::array<i16, Plaetze> heim{}, gast{};          // the teams, or KeinTeam
    // The outcome for the home and the away team: 1 a win, 1 << 10 a draw, 1 << 20 a loss, 0 where
    // the match does not count; sums of these count all three at once.
    std::array<std::int32_t, Plaetze> ausgangHeim{}, ausgangGast{};
    std::array<Farbe, Plaetze> ohneTreffer{};  // a tip's colour unless it hits
};

// Fills `plan` from the matchdays 0..AnzSpieltage, matches 0..AnzSpiele: a match counts when its
// matchday's SptgAuswerten is 1 and it is not a left-out Sunday match. Throws Laufzeitfehler::Index
// for a count beyond the fixed limits or a team index of a counted match outside 0..19, and
// Laufzeitfehler::Ueberlauf for a result whose difference leaves 16 bits.
void erstelleSaisonplan(const Spielstand& s, bool sonntagsspieleAuslassen, Saisonplan& plan);

}  // namespace kalimbo
