#include "fehlerort.h"

namespace kalimbo {

std::string spielerImText(const Spielstand& s, int spieler) {
    const std::string& name = s.Spielername[spieler];
    return "Spieler " + std::to_string(spieler + 1) + (name.empty() ? "" : " („" + name + "“)");
}

std::string teamImText(const std::string& name, int team) {
    return name.empty() ? "Mannschaft " + std::to_string(team + 1) : "„" + name + "“";
}

std::string amSpieltag(int spieltag) {
    return "am " + std::to_string(spieltag + 1) + ". Spieltag";
}

}  // namespace kalimbo
