#include "blattspiele.h"

#include <array>
#include <string>

#include "scoring/auswertung.h"
#include "scoring/regeln.h"
#include "testdaten.h"

namespace kalimbo::test {

namespace {

// Results and Anna's tips of matchdays 0-2; Bernd, Carl and Dora tip the same score everywhere.
struct Spieltage {
    int teams;
    std::array<const char*, 3> ergebnisse, anna;
    std::array<const char*, 3> immer;
};

Spielstand getippt(const Spieltage& d) {
    Spielstand s = kleinesSpiel(d.teams);
    for (int tag = 0; tag < 3; ++tag) {
        setzeErgebnisse(s, tag, d.ergebnisse[static_cast<std::size_t>(tag)]);
        setzeTipps(s, 0, tag, d.anna[static_cast<std::size_t>(tag)]);
        for (int p = 1; p <= 3; ++p) {
            std::string tipps;
            for (int spiel = 0; spiel <= s.AnzSpiele; ++spiel)
                tipps += std::string(d.immer[static_cast<std::size_t>(p - 1)]) + " ";
            setzeTipps(s, p, tag, tipps);
        }
    }
    return s;
}

void werteWieImFensterAus(Spielstand& s) {
    werteAus(s, false);
    markiereNichtteilnehmer(s);
}

}  // namespace

Spielstand blattspiel20() {
    Spielstand s =
        getippt({20,
                 {"2:1 0:0 1:3 4:0 1:1 2:2 0:1 3:2 1:0 0:0", "1:0 2:2 0:3 1:1 2:0 0:0 3:3 1:2 2:1 0:1",
                  "0:2 1:0 2:1 0:0 3:0 1:1 2:3 0:0 4:2 1:0"},
                 {"2:1 1:1 0:2 2:0 0:0 1:0 0:1 1:2 3:1 0:0", "1:0 1:1 1:3 0:0 3:1 1:1 1:1 0:1 1:0 1:1",
                  "1:2 2:0 2:1 1:1 2:0 0:1 1:2 0:0 3:1 0:2"},
                 {"1:0", "0:0", "2:1"}});
    setzeAuswahl(s, "0-2");
    s.AktSpieltagGlobal = 2;
    s.AktSpieltag = 2;
    werteWieImFensterAus(s);
    return s;
}

Spielstand blattspiel18() {
    Spielstand s = getippt({18,
                            {"1:0 2:2 0:1 3:1 0:0 1:2 2:0 1:1 0:3", "2:1 0:0 1:1 0:2 3:0 2:2 1:0 0:1 4:1",
                             "0:0 1:0 2:3 1:1 0:2 2:1 3:3 0:1 1:0"},
                            {"1:0 1:1 1:2 2:0 0:0 0:1 1:0 2:1 1:2", "2:1 0:0 1:1 0:2 3:0 2:2 1:0 0:1 4:1",
                             "1:1 2:1 1:2 0:0 0:1 1:0 0:0 1:1 1:0"},
                            {"1:0", "0:0", "0:1"}});
    s.Teilnehmer[3] = 0;
    waehleRegel(s, 1);
    setzeAuswahl(s, "0, 2");
    s.AktSpieltagGlobal = 2;
    s.AktSpieltag = 0;
    werteWieImFensterAus(s);
    return s;
}

}  // namespace kalimbo::test
