#pragma once

#include <iosfwd>
#include <string>
#include <vector>

namespace kalimbo::cli {

// "zusammenfuehren ZIEL.tip QUELLE.tip AUSGABE.tip": opens ZIEL as the current game, merges
// QUELLE into it as the menu "Tippdatei" does, and saves the result to AUSGABE as "Speichern"
// does. Both inputs are read before anything is written: a missing or damaged one throws
// Dateifehler and AUSGABE is neither created nor changed. Returns exit code 0.
int zusammenfuehren(const std::vector<std::string>& argumente, std::ostream& aus);

}  // namespace kalimbo::cli
