#pragma once

#include "spielstand.h"

namespace kalimbo {

// Merges another game file into the game: every file field (names, pairings, counts, colours,
// flags, settings, coach periods, and the file copies ErgebnisDatei and TippDatei) becomes the
// other file's; the working results and tips keep their values except where they are 0:0, which
// counts as empty and takes the other file's score. The evaluation records and the table belonged
// to the old state and are cleared, as opening a file does. Changes nothing if copying throws.
void fuegeTippdateiEin(Spielstand& spiel, const Dateiinhalt& andere);

}  // namespace kalimbo
