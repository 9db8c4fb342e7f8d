#include "blatt.h"

namespace kalimbo {

std::string paarungMitErgebnis(const Spielstand& s, int spieltag, int spiel) {
    return s.getTeamNameKurz(s.getPaarung(spieltag, spiel, 0)) + " - " +
           s.getTeamNameKurz(s.getPaarung(spieltag, spiel, 1)) +
           std::to_string(s.getErgebnis(spieltag, spiel, 0)) + ":" +
           std::to_string(s.getErgebnis(spieltag, spiel, 1));
}

}  // namespace kalimbo
