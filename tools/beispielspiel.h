#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "state/spielstand.h"

namespace kalimbo::beispiel {

// What makes one sample game: which season, who plays, how far the season has gone.
struct Vorgabe {
    std::string saison;     // base name of the season files, e.g. "de1-2005-06"
    std::string dateiname;  // name of the game file, e.g. "bundesliga-2005-06.tip"
    std::string liga;       // league line shown in the game
    std::vector<std::string> spieler;
    std::vector<int> trefferquote;  // per player: chance in percent of tipping the right tendency
    int aktuellerSpieltag;          // 1-based; results after it are not yet entered
    i16 modus;                      // fixed rule 0..2
    std::uint32_t startwert;        // seed of the tips
};

// The two sample games shipped in data/.
const std::vector<Vorgabe>& vorgaben();

// Builds the sample game from the imported season: players with tips for the whole season,
// results up to the current matchday, the completed matchdays selected, the rule set.
Dateiinhalt baue(const Dateiinhalt& saison, const Vorgabe& vorgabe);

}  // namespace kalimbo::beispiel
