#include "haeufigkeitstabelle.h"

#include <ostream>

#include "aufruf.h"
#include "reports/haeufigkeiten.h"
#include "scoring/anzeige.h"

namespace kalimbo::cli {

void schreibeHaeufigkeiten(const Spielstand& spiel, std::ostream& aus) {
    const Haeufigkeiten h = zaehleHaeufigkeiten(spiel);
    aus << "Ergebnis\tAnzahl";
    for (int p = 0; p < MaxSpieler; ++p)
        if (spiel.getTeilnehmer(p) == 1) aus << '\t' << spiel.getSpielerName(p);
    aus << '\n';
    for (int klasse = 0; klasse < AnzErgebnisklassen; ++klasse) {
        aus << klassenName(klasse) << '\t' << h.anzahl(klasse);
        for (int p = 0; p < MaxSpieler; ++p)
            if (spiel.getTeilnehmer(p) == 1) aus << '\t' << h.anzahlTipps(p, klasse);
        aus << '\n';
    }
}

int haeufigkeiten(const std::vector<std::string>& argumente, std::ostream& aus) {
    const Aufruf a = zerlege(argumente, {});
    erwarteWerte(a, 1);
    schreibeHaeufigkeiten(ladeWieGezeigt(a.werte[0]), aus);
    return 0;
}

}  // namespace kalimbo::cli
