#pragma once

#include <iosfwd>
#include <string>
#include <vector>

#include "state/spielstand.h"

namespace kalimbo::cli {

// The score frequencies as one TAB-separated table: the head "Ergebnis", "Anzahl" and the names of
// the taking-part players in slot order, then one line per score 0:0, 0:1, ... 9:9 and "andere":
// the score, how often it was the real result, how often each of those players tipped it.
void schreibeHaeufigkeiten(const Spielstand& spiel, std::ostream& aus);

// kalimbo-cli haeufigkeiten SPIEL.tip: the game as the window shows it after opening, counted
// over its selected matchdays.
int haeufigkeiten(const std::vector<std::string>& argumente, std::ostream& aus);

}  // namespace kalimbo::cli
