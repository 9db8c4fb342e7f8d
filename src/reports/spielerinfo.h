#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "state/spielstand.h"

namespace kalimbo {

// Number of matchdays of the whole season (0..AnzSpieltage) whose SptgAuswerten is 1.
// Throws Laufzeitfehler::Index when AnzSpieltage lies beyond the fixed limits.
i16 AnzGewerteteSpieltage(const Spielstand& s);
// Number of matches on those matchdays: AnzGewerteteSpieltage times (AnzSpiele + 1), whether tipped
// or left out on Sunday. Throws Laufzeitfehler::Ueberlauf or ::Index.
i16 AnzGewerteteSpiele(const Spielstand& s);

// The information sheet of player slot `spieler` (0..8, taking part or not) from the game and its
// evaluation records: totals and places (head line for the shown matchday AktSpieltag), points by
// hit kind, the averages per match and per matchday in the form "0.0#" with the decimal separator
// `trenner`, the places, the points per team, the three hit lists and all matches of the counted
// matchdays up to AktSpieltagGlobal. Lines end with CR LF. Empty when AktSpieltagGlobal is 99 (no
// current matchday). Throws Laufzeitfehler::DivisionDurchNull when no matchday counts or a hit kind
// is worth 0 points, ::Index for an index beyond the fixed limits, ::Ueberlauf for a 16-bit overflow.
std::optional<std::string> SpielerInfoText(const Spielstand& s, int spieler, std::string_view trenner);

}  // namespace kalimbo
