// The football.json reader on any bytes: it refuses them with a German Dateifehler, or what it
// accepts are plausible matches (pruefeSpiele); a new game made of them is refused with a
// Dateifehler too, or saves and reads back equal.
#include <cstdint>
#include <sstream>

#include "pruefen.h"
#include "quellen/spielplan.h"
#include "state/spieldatei.h"

using namespace kalimbo;

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* daten, std::size_t groesse) {
    const std::string_view bytes(reinterpret_cast<const char*>(daten), groesse);
    Quelle quelle;
    try {
        quelle = leseOpenfootball(bytes);
    } catch (const Dateifehler& e) {
        const std::string_view meldung = e.what();
        pruefe(meldung.starts_with("Zeile ") || meldung.starts_with("Der Datei fehlt"),
               "refused without its line");
        return 0;
    }
    pruefeSpiele(quelle);
    Dateiinhalt d;
    try {
        d = neuesSpiel(quelle, quelle.liga);
    } catch (const Dateifehler&) {
        return 0;
    }
    std::istringstream datei(kodiereSpieldatei(d));
    pruefe(leseSpieldatei(datei, "neu.tip") == d, "new game reads back differently");
    return 0;
}
