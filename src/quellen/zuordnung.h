#pragma once

#include <map>
#include <string>
#include <vector>

#include "state/spielstand.h"
#include "vereinsnamen.h"

namespace kalimbo {

// How the team names of a fixture list or result file meet the teams of a game.
struct Zuordnung {
    // A name of the file that fits no team of the game, or more than one.
    struct Offen {
        std::string name;
        std::vector<int> kandidaten;  // the teams it fits (another name of the file may fit one too)
        int vorschlag = -1;           // the team it most likely means (one of the same club, else the
                                      // most alike of the candidates or, without any, of all teams)
    };
    std::map<std::string, int> team;  // every name of the file that fits one team -> its index
    std::vector<Offen> offen;         // in the file's order
    // Not empty: more than a quarter of the file's names fit no team, so the file belongs to
    // another league and is refused as a whole; the German text says so.
    std::string andereLiga;
};

// Pairs the names of a file (`namen`, as Quelle::mannschaften gives them) with the teams of
// `spiel`. In this order: a pair the user gave in `paare` (file name -> team index; pairs of
// names the file lacks or of teams the game lacks are left out), a team of exactly that name,
// then a team whose name has the same core (`namenskern`) or that the clubs lists know as the same
// club, among the teams not yet taken. A name is open when no team fits it, when several do, or
// when another name of the file fits the same team.
Zuordnung ordneZu(const std::vector<std::string>& namen, const Dateiinhalt& spiel,
                  const Vereinsnamen& vereine, const std::map<std::string, int>& paare = {});

}  // namespace kalimbo
