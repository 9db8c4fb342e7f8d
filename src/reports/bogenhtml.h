#pragma once

#include <string>

#include "spieltagsbogen.h"

namespace kalimbo {

// The sheet as one self-contained HTML page (UTF-8, inline CSS, no external resources): headings
// with the league, the matchday and the kind of sheet, one table with a row per match, the player
// columns headed in the players' colours, each tip cell on its background, the rows of points and
// places, and the footer with the date. Well-formed as XML too, so any parser reads it.
std::string bogenAlsHtml(const Spieltagsbogen& bogen);

}  // namespace kalimbo
