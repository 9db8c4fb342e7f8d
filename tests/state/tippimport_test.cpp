#include "state/tippimport.h"

#include <gtest/gtest.h>

#include "scoring/auswahl.h"
#include "scoring/auswertung.h"
#include "state/dateifelder.h"
#include "testdaten.h"

namespace kalimbo {
namespace {

// Ten matches each: 0:0 counts as empty, whatever the other file holds; anything else stays. The same on the
// first and the last matchday, for the results and for the tips of slots 0 and 8.
TEST(Tippimport, NurNullZuNullWirdErsetzt) {
    const std::array<const char*, 3> hier{"0:0 0:1 1:0 3:3 0:0 0:0 0:2 5:5 0:0 9:0",
                                          "2:1 2:1 2:1 2:1 0:0 1:1 0:0 0:0 0:3 1:0",
                                          "2:1 0:1 1:0 3:3 0:0 1:1 0:2 5:5 0:3 9:0"};
    std::array<Spielstand, 3> s;  // here, there, and as "here" should be afterwards
    for (std::size_t i = 0; i < 3; ++i)
        for (int tag : {0, 37}) {
            test::setzeErgebnisse(s[i], tag, hier[i]);
            for (int spieler : {0, 8})
                test::setzeTipps(s[i], spieler, tag, hier[i]);
        }
    s[1].kopiereArbeitInDatei();
    fuegeTippdateiEin(s[0], s[1]);
    EXPECT_EQ(s[0].Ergebnis, s[2].Ergebnis);
    EXPECT_EQ(s[0].Tipp, s[2].Tipp);
}

// Changes every element of every file field: numbers and colours by one, texts by a letter.
struct Veraenderer {
    void zahl(i16& z) { z = static_cast<i16>(z + 1); }
    void farbe(Farbe& f) { f ^= 1; }
    void text(std::string& s) { s += "x"; }
};

TEST(Tippimport, JedesDateifeldKommtAusDerAnderenDateiUndDieAuswertungIstFort) {
    Spielstand spiel;
    spiel.oeffne(test::saison(test::Saison18));
    waehleAlle(spiel);
    test::setzeTipps(spiel, 0, 0, "1:1 2:0 0:1");
    werteAus(spiel, false);
    ASSERT_GT(spiel.getGesamtPunkte(0), 0);
    const Ergebnisse ergebnisVorher = spiel.Ergebnis;

    Dateiinhalt andere = spiel;
    Veraenderer v;
    datei::besucheFelder(andere, v);
    fuegeTippdateiEin(spiel, andere);
    EXPECT_EQ(static_cast<const Dateiinhalt&>(spiel), andere);
    EXPECT_EQ(spiel.Ergebnis[0][0], ergebnisVorher[0][0]);     // 3:0 stays
    EXPECT_EQ(spiel.Ergebnis[37][9], (Feld<i16, 2>{{1, 1}}));  // beyond the season: 0:0 was empty
    EXPECT_EQ(spiel.getGesamtPunkte(0), 0);
    EXPECT_EQ(spiel.getKorrekt(0, 0, 0), -1);
    EXPECT_EQ(spiel.getTabInfo(0, 2), TabInfo{i16{0}});
}

}  // namespace
}  // namespace kalimbo
