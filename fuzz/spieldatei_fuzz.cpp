// The game file reader on any bytes: it refuses them with the German damage message, or what it
// accepts writes back to the same bytes (anything after the last field aside), reads back equal,
// and can be evaluated and shown as the window does after opening it.
#include <cstdint>
#include <string>

#include "pruefen.h"
#include "scoring/auswahl.h"
#include "scoring/auswertung.h"
#include "state/spieldatei.h"

using namespace kalimbo;

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* daten, std::size_t groesse) {
    const std::string bytes(reinterpret_cast<const char*>(daten), groesse);
    const auto lies = [](std::istream& ein) { return leseSpieldatei(ein, "fuzz.tip"); };
    const auto inhalt =
        angenommen(bytes, lies, "Die Datei „fuzz.tip“ ist beschädigt oder keine Tippspiel-Datei: ");
    if (!inhalt) return 0;
    pruefeRueckweg(bytes, kodiereSpieldatei(*inhalt), lies, *inhalt);

    Spielstand spiel;
    spiel.oeffne(*inhalt);
    spiel.AktSpieltag = letzterAusgewaehlterSpieltag(spiel);
    for (const bool sonntag : {false, true}) {
        try {
            werteAus(spiel, sonntag);
            markiereNichtteilnehmer(spiel);
        } catch (const Laufzeitfehler&) {
            // an overflow or index error: reported to the user, the game stays usable
        }
    }
    return 0;
}
