#pragma once

#include <iosfwd>

#include "state/spielstand.h"

namespace kalimbo::cli {

// Writes the summary of a game: league line, counts (as numbers, not highest indices), teams with
// short names, players taking part, rule, current matchday and the matchdays selected.
void schreibeInfo(const Spielstand& spiel, std::ostream& aus);

}  // namespace kalimbo::cli
