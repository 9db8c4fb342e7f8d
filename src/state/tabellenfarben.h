#pragma once

#include <string_view>

#include "zahl16.h"

namespace kalimbo {

// What a table position's colour (TabFarbe, set when the league is prepared) means, as the hint
// shown on that position: "Meister", "Champions-League-Platz", ... and "Abstiegsplatz" for white.
// Only these six exact colours have a hint; any other colour gives "".
std::string_view positionsHinweis(Farbe farbe);

}  // namespace kalimbo
