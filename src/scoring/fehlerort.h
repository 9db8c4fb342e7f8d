#pragma once

#include <string>

#include "state/spielstand.h"

namespace kalimbo {

// How an error message names a player slot: "Spieler 3 („Anna“)", or "Spieler 3" without a name.
std::string spielerImText(const Spielstand& s, int spieler);

// How an error message names a team: "„Bayern München“", or "Mannschaft 4" without a name.
std::string teamImText(const std::string& name, int team);

// "am 5. Spieltag" for matchday index 4.
std::string amSpieltag(int spieltag);

}  // namespace kalimbo
