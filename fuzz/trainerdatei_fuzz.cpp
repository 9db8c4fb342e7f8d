// The coach-change file reader on any bytes: it refuses them with its German message, or the ten
// records it accepts have active periods inside the season and write back to the bytes read.
#include <cstdint>
#include <string>

#include "pruefen.h"
#include "state/dateifelder.h"
#include "state/trainerdatei.h"

using namespace kalimbo;

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* daten, std::size_t groesse) {
    const std::string bytes(reinterpret_cast<const char*>(daten), groesse);
    const auto lies = [](std::istream& ein) { return leseTrainerdatei(ein, "fuzz"); };
    const auto trainer = angenommen(bytes, lies, "Die Datei „fuzz“ enthält keine Trainerwechsel-Daten: ");
    if (!trainer) return 0;
    datei::Schreiber schreiber;
    for (const Trainerdaten& t : *trainer) {
        pruefe(
            t.Aktiv == 0 || (t.VonSpieltag >= 0 && t.VonSpieltag < MaxSpieltage &&
                             ((t.BisSpieltag >= 0 && t.BisSpieltag < MaxSpieltage) || t.BisSpieltag == 99)),
            "active period outside the season");
        datei::trainerdatensatz(t, schreiber);
    }
    pruefeRueckweg(bytes, schreiber.ergebnis(), lies, *trainer);
    return 0;
}
