#include "simulation.h"

#include "berichtsbefehl.h"
#include "simulation/abweichung.h"
#include "simulation/vorhersage.h"
#include "tabellen.h"

namespace kalimbo::cli {

int simulation(const std::vector<std::string>& argumente, std::ostream& aus) {
    return berichtsbefehl(argumente, aus, MaxSpieler - 1, "Der Spieler P",
                          [](const Spielstand& spiel, int spieler, const std::string& trenner) {
                              return abweichungsbericht(spiel, spieler, vorhergesagteTabelle(spiel, spieler),
                                                        trenner);
                          });
}

int vorhersage(const std::vector<std::string>& argumente, std::ostream& aus) {
    const auto [spiel, spieler] = spielUndIndex(zerlege(argumente, {}), MaxSpieler - 1, "Der Spieler P");
    schreibeTabelle(vorhergesagteTabelle(spiel, spieler), spiel.getAnzTeams(), aus);
    return 0;
}

}  // namespace kalimbo::cli
