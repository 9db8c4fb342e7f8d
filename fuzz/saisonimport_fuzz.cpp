// The season import on any text: it refuses it with a Dateifehler, or what it accepts is a double
// round robin of 18 or 20 teams (every team once a matchday, every pairing once each way) with
// unique short names, and saves and reads back equal.
#include <cstdint>
#include <set>
#include <sstream>
#include <string>
#include <vector>

#include "pruefen.h"
#include "quellen/spielplan.h"
#include "state/cp1252.h"
#include "state/spieldatei.h"

using namespace kalimbo;

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* daten, std::size_t groesse) {
    std::istringstream csv(std::string(reinterpret_cast<const char*>(daten), groesse));
    Dateiinhalt d;
    try {
        d = importiereSaison(csv, "Fuzz-Liga");
    } catch (const Dateifehler&) {
        return 0;
    }
    const int teams = d.AnzTeams + 1;
    pruefe(teams == 18 || teams == 20, "neither 18 nor 20 teams");
    pruefe(d.AnzSpieltage == 2 * teams - 3 && d.AnzSpiele == teams / 2 - 1, "counts do not fit the teams");
    std::vector<std::vector<int>> gespielt(teams, std::vector<int>(teams));
    for (int tag = 0; tag <= d.AnzSpieltage; ++tag) {
        std::set<int> amTag;
        for (int spiel = 0; spiel <= d.AnzSpiele; ++spiel) {
            const int heim = d.Paarung[tag][spiel][0], gast = d.Paarung[tag][spiel][1];
            pruefe(heim >= 0 && heim < teams && gast >= 0 && gast < teams, "team outside the league");
            pruefe(amTag.insert(heim).second && amTag.insert(gast).second, "a team twice on a matchday");
            ++gespielt[heim][gast];
        }
    }
    for (int heim = 0; heim < teams; ++heim)
        for (int gast = 0; gast < teams; ++gast)
            pruefe(gespielt[heim][gast] == (heim == gast ? 0 : 1), "not a double round robin");

    std::set<std::string> kurz;
    for (int t = 0; t < teams; ++t) {
        const std::string& k = d.TeamnameKurz[t];
        pruefe(!k.empty() && nachCp1252(k).size() <= 4, "short name empty or too long");
        pruefe(kurz.insert(k).second, "short name twice");
    }
    std::istringstream datei(kodiereSpieldatei(d));
    pruefe(leseSpieldatei(datei, "saison.tip") == d, "saved season reads back differently");
    return 0;
}
