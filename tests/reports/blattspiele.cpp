#include "blattspiele.h"

#include "scoring/auswertung.h"
#include "scoring/regeln.h"
#include "testdaten.h"

namespace kalimbo::test {

namespace {

void tippeImmer(Spielstand& s, int spieler, const char* tipp) {
    std::string tage;
    for (int spiel = 0; spiel <= s.AnzSpiele; ++spiel)
        tage += std::string(tipp) + " ";
    for (int tag = 0; tag < 3; ++tag)
        setzeTipps(s, spieler, tag, tage);
}

void werteWieImFensterAus(Spielstand& s) {
    werteAus(s, false);
    markiereNichtteilnehmer(s);
}

}  // namespace

Spielstand blattspiel20() {
    Spielstand s = kleinesSpiel(20);
    setzeErgebnisse(s, 0, "2:1 0:0 1:3 4:0 1:1 2:2 0:1 3:2 1:0 0:0");
    setzeErgebnisse(s, 1, "1:0 2:2 0:3 1:1 2:0 0:0 3:3 1:2 2:1 0:1");
    setzeErgebnisse(s, 2, "0:2 1:0 2:1 0:0 3:0 1:1 2:3 0:0 4:2 1:0");
    setzeTipps(s, 0, 0, "2:1 1:1 0:2 2:0 0:0 1:0 0:1 1:2 3:1 0:0");
    setzeTipps(s, 0, 1, "1:0 1:1 1:3 0:0 3:1 1:1 1:1 0:1 1:0 1:1");
    setzeTipps(s, 0, 2, "1:2 2:0 2:1 1:1 2:0 0:1 1:2 0:0 3:1 0:2");
    tippeImmer(s, 1, "1:0");
    tippeImmer(s, 2, "0:0");
    tippeImmer(s, 3, "2:1");
    setzeAuswahl(s, "0-2");
    s.AktSpieltagGlobal = 2;
    s.AktSpieltag = 2;
    werteWieImFensterAus(s);
    return s;
}

Spielstand blattspiel18() {
    Spielstand s = kleinesSpiel(18);
    setzeErgebnisse(s, 0, "1:0 2:2 0:1 3:1 0:0 1:2 2:0 1:1 0:3");
    setzeErgebnisse(s, 1, "2:1 0:0 1:1 0:2 3:0 2:2 1:0 0:1 4:1");
    setzeErgebnisse(s, 2, "0:0 1:0 2:3 1:1 0:2 2:1 3:3 0:1 1:0");
    setzeTipps(s, 0, 0, "1:0 1:1 1:2 2:0 0:0 0:1 1:0 2:1 1:2");
    setzeTipps(s, 0, 1, "2:1 0:0 1:1 0:2 3:0 2:2 1:0 0:1 4:1");
    setzeTipps(s, 0, 2, "1:1 2:1 1:2 0:0 0:1 1:0 0:0 1:1 1:0");
    tippeImmer(s, 1, "1:0");
    tippeImmer(s, 2, "0:0");
    tippeImmer(s, 3, "0:1");
    s.Teilnehmer[3] = 0;
    waehleRegel(s, 1);
    setzeAuswahl(s, "0, 2");
    s.AktSpieltagGlobal = 2;
    s.AktSpieltag = 0;
    werteWieImFensterAus(s);
    return s;
}

}  // namespace kalimbo::test
