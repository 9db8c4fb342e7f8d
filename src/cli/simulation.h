#pragma once

#include <iosfwd>
#include <string>
#include <vector>

namespace kalimbo::cli {

// simulation SPIEL.tip P [AUSGABE]: the deviation report of player slot P (0..8), CR LF included, of
// the game as the main window shows it after opening it.
int simulation(const std::vector<std::string>& argumente, std::ostream& aus);

// vorhersage SPIEL.tip P: the table player slot P's tips predict, in the form of `tabelle`.
int vorhersage(const std::vector<std::string>& argumente, std::ostream& aus);

}  // namespace kalimbo::cli
