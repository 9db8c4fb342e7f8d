#include "tippimport.h"

namespace kalimbo {

namespace {

// Takes `andere` where `ziel` is 0:0, for every matchday and match.
void fuelleLeere(Ergebnisse& ziel, const Ergebnisse& andere) {
    for (int tag = 0; tag < MaxSpieltage; ++tag)
        for (int spiel = 0; spiel < MaxSpiele; ++spiel)
            if (ziel[tag][spiel][0] == 0 && ziel[tag][spiel][1] == 0) ziel[tag][spiel] = andere[tag][spiel];
}

}  // namespace

void fuegeTippdateiEin(Spielstand& spiel, const Dateiinhalt& andere) {
    Dateiinhalt neu = andere;  // the only step that can fail (memory); nothing is changed before it
    static_cast<Dateiinhalt&>(spiel) = std::move(neu);
    fuelleLeere(spiel.Ergebnis, spiel.ErgebnisDatei);
    for (int p = 0; p < MaxSpieler; ++p)
        fuelleLeere(spiel.Tipp[p], spiel.TippDatei[p]);
    spiel.verwirfAuswertung();
}

}  // namespace kalimbo
