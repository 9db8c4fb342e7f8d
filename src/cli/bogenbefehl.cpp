#include "bogenbefehl.h"

#include <ostream>

#include "reports/bogenhtml.h"

namespace kalimbo::cli {

Spieltagsbogen bogenAusAufruf(const Aufruf& a) {
    erwarteWerte(a, 1);
    Bogenart art = Bogenart::Auswertung;
    if (const auto name = a.optionen.find("--art"); name != a.optionen.end()) {
        const auto gewaehlt = bogenartAusName(name->second);
        if (!gewaehlt)
            throw Gebrauchsfehler{"--art erwartet auswertung, live oder tippabgabe, nicht „" + name->second +
                                  "“."};
        art = *gewaehlt;
    }
    const Spielstand spiel = geoeffnetWieImFenster(a.werte[0]);
    int spieltag = spiel.getAktSpieltag();
    if (const auto nummer = a.optionen.find("--spieltag"); nummer != a.optionen.end())
        spieltag = ganzeZahl(nummer->second, 1, spiel.getAnzSpieltage() + 1, "--spieltag") - 1;
    return erstelleBogen(spiel, spieltag, art, heutigesDatum());
}

int html(const std::vector<std::string>& argumente, std::ostream& aus) {
    aus << bogenAlsHtml(bogenAusAufruf(zerlege(argumente, BogenOptionen)));
    return 0;
}

}  // namespace kalimbo::cli
