#pragma once

#include <iosfwd>
#include <string>
#include <vector>

namespace kalimbo::cli {

// kalimbo-cli html SPIEL.tip [--spieltag N] [--art auswertung|live|tippabgabe]: the sheet of the
// game as the window shows it as an HTML page on `aus`. A matchday or kind the game has not is
// wrong use (Gebrauchsfehler).
int html(const std::vector<std::string>& argumente, std::ostream& aus);

}  // namespace kalimbo::cli
