#include "infoblaetter.h"

#include "berichtsbefehl.h"
#include "reports/spielerinfo.h"
#include "reports/teaminfo.h"

namespace kalimbo::cli {

int spielerinfo(const std::vector<std::string>& argumente, std::ostream& aus) {
    return berichtsbefehl(argumente, aus, MaxSpieler - 1, "Der Spieler P",
                          [](const Spielstand& spiel, int spieler, const std::string& trenner) {
                              return SpielerInfoText(spiel, spieler, trenner);
                          });
}

int teaminfo(const std::vector<std::string>& argumente, std::ostream& aus) {
    return berichtsbefehl(
        argumente, aus, MaxTeams - 1, "Die Mannschaft T",
        [](const Spielstand& spiel, int team, const std::string&) { return TeamInfoText(spiel, team); });
}

}  // namespace kalimbo::cli
