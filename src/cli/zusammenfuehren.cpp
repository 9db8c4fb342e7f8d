#include "zusammenfuehren.h"

#include "aufruf.h"
#include "state/spieldatei.h"
#include "state/tippimport.h"

namespace kalimbo::cli {

int zusammenfuehren(const std::vector<std::string>& argumente, std::ostream&) {
    const Aufruf a = zerlege(argumente, {});
    erwarteWerte(a, 3);
    Spielstand spiel;
    spiel.oeffne(ladeSpieldatei(a.werte[0]));
    fuegeTippdateiEin(spiel, ladeSpieldatei(a.werte[1]));
    spiel.kopiereArbeitInDatei();
    speichereSpieldatei(a.werte[2], spiel);
    return 0;
}

}  // namespace kalimbo::cli
