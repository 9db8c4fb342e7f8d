#pragma once

#include "state/spielstand.h"

namespace kalimbo::ui {

// What the windows' layouts depend on, decided in this one place: the season's length, read off
// the highest matchday index as the league files give it (37: 38 matchdays of ten matches, 33: 34
// of nine; any other value keeps a window's layout as it is), and whether the league table has 18
// rows.
struct Saisonform {
    enum Laenge { Lang, Kurz, Andere };
    Laenge laenge;
    bool achtzehnTeams;

    static Saisonform von(const Spielstand& spiel) {
        const i16 tage = spiel.getAnzSpieltage();
        return {tage == 37 ? Lang : tage == 33 ? Kurz : Andere, spiel.getAnzTeams() == 17};
    }
};

}  // namespace kalimbo::ui
