// The football-data.co.uk reader on any bytes: it refuses them with a German Dateifehler naming
// the line, or what it accepts are plausible matches (pruefeSpiele). The same bytes as a clubs
// list, and the names read paired with a game of those names, end without a crash; every name
// of the file that is a team's exact name meets that team.
#include <cstdint>

#include "pruefen.h"
#include "quellen/quelle.h"
#include "quellen/zuordnung.h"

using namespace kalimbo;

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* daten, std::size_t groesse) {
    const std::string_view bytes(reinterpret_cast<const char*>(daten), groesse);
    Vereinsnamen vereine;
    vereine.lies(bytes);
    Quelle quelle;
    try {
        quelle = leseFootballData(bytes);
    } catch (const Dateifehler& e) {
        const std::string_view meldung = e.what();
        pruefe(meldung.starts_with("Zeile ") || meldung.starts_with("Die Datei enthält keine Zeilen"),
               "refused without its line");
        return 0;
    }
    pruefeSpiele(quelle);
    const auto namen = quelle.mannschaften();
    Dateiinhalt spiel;
    for (std::size_t t = 0; t < namen.size() && t < MaxTeams; ++t)
        spiel.Teamname[static_cast<int>(t)] = namen[t];
    const Zuordnung z = ordneZu(namen, spiel, vereine);
    for (int t = 0; t < MaxTeams && t < static_cast<int>(namen.size()); ++t)
        pruefe(z.team.count(namen[static_cast<std::size_t>(t)]) &&
                   z.team.at(namen[static_cast<std::size_t>(t)]) == t,
               "an exact name did not meet its team");
    return 0;
}
