#pragma once

#include "graph/zeichnung.h"
#include "spieltagsbogen.h"

namespace kalimbo {

// A4 in twips, portrait; landscape swaps the two.
constexpr int A4Schmal = 11906, A4Lang = 16838;
constexpr int Seitenrand = 720;  // blank margin on every side of the sheet

// The sheet as one A4 page: the league line, the title with the kind of sheet, a grid with one row
// per match (home - away, result, one column per player headed by the name in the player's
// colour, each tip cell on its background), the rows of points and places below it, and the
// footer with the date. Portrait when the grid fits its width, else landscape; when even that is
// too narrow the grid's font shrinks (down to 6 points). All in twips, inside the margins.
grafik::Zeichnung zeichneBogen(const Spieltagsbogen& bogen);

}  // namespace kalimbo
