#pragma once

#include <iosfwd>
#include <string>
#include <vector>

namespace kalimbo::cli {

// spielerinfo SPIEL.tip P [AUSGABE]: the information sheet of player slot P (0..8), CR LF included,
// of the game as the main window shows it after opening it; nothing without a current matchday.
int spielerinfo(const std::vector<std::string>& argumente, std::ostream& aus);

// teaminfo SPIEL.tip T [AUSGABE]: the information sheet of team T (0..19), likewise.
int teaminfo(const std::vector<std::string>& argumente, std::ostream& aus);

}  // namespace kalimbo::cli
