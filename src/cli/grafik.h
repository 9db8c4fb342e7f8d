#pragma once

#include <iosfwd>
#include <string>
#include <vector>

namespace kalimbo::cli {

// "grafik SPIEL.tip [--ansicht 0|1] [--zahlen] [--svg]": the points chart of all matchdays of the
// season as the graph window first shows it (marks for the taking-part slots; --zahlen prints the
// totals for every slot), drawn from the game as the main window shows it after opening. Writes
// one TAB-separated line per primitive and then the nine legend rows, or with --svg the chart as
// an SVG document. Returns 0; throws Gebrauchsfehler, Dateifehler or Laufzeitfehler.
int zeigeGrafik(const std::vector<std::string>& argumente, std::ostream& aus);

}  // namespace kalimbo::cli
