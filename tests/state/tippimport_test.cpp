#include "state/tippimport.h"

#include <gtest/gtest.h>

#include "scoring/auswahl.h"
#include "scoring/auswertung.h"
#include "state/dateifelder.h"
#include "testdaten.h"

namespace kalimbo {
namespace {

// Changes every element of every file field: numbers and colours by one, texts by a letter.
struct Veraenderer {
    void zahl(i16& z) { z = static_cast<i16>(z + 1); }
    void farbe(Farbe& f) { f ^= 1; }
    void text(std::string& s) { s += "x"; }
};

Dateiinhalt jedesFeldAnders(Dateiinhalt d) {
    Veraenderer v;
    datei::besucheFelder(d, v);
    return d;
}

// A matchday's results or one player's tips as the file copy holds them.
struct Fall {
    const char* hier;
    const char* dort;
    const char* danach;
};

void PrintTo(const Fall& f, std::ostream* aus) {
    *aus << f.hier << " <- " << f.dort;
}

class Tippimport : public testing::TestWithParam<Fall> {};

TEST_P(Tippimport, NurNullZuNullWirdErsetzt) {
    const Fall f = GetParam();
    Spielstand hier, dort;
    for (int tag : {0, 37}) {
        test::setzeErgebnisse(hier, tag, f.hier);
        test::setzeErgebnisse(dort, tag, f.dort);
        for (int spieler : {0, 8}) {
            test::setzeTipps(hier, spieler, tag, f.hier);
            test::setzeTipps(dort, spieler, tag, f.dort);
        }
    }
    dort.kopiereArbeitInDatei();
    fuegeTippdateiEin(hier, dort);

    Spielstand erwartet;
    for (int tag : {0, 37}) {
        test::setzeErgebnisse(erwartet, tag, f.danach);
        for (int spieler : {0, 8})
            test::setzeTipps(erwartet, spieler, tag, f.danach);
    }
    EXPECT_EQ(hier.Ergebnis, erwartet.Ergebnis);
    EXPECT_EQ(hier.Tipp, erwartet.Tipp);
}

// Ten matches each: 0:0 counts as empty, whatever the other file holds; anything else stays.
INSTANTIATE_TEST_SUITE_P(
    Faelle, Tippimport,
    testing::Values(Fall{"0:0 0:1 1:0 3:3 0:0 0:0 0:2 5:5 0:0 9:0", "2:1 2:1 2:1 2:1 0:0 1:1 0:0 0:0 0:3 1:0",
                         "2:1 0:1 1:0 3:3 0:0 1:1 0:2 5:5 0:3 9:0"},
                    Fall{"0:0 0:0 0:0 0:0 0:0 0:0 0:0 0:0 0:0 0:0", "1:2 0:1 1:0 7:7 2:2 4:0 0:4 3:1 1:3 2:0",
                         "1:2 0:1 1:0 7:7 2:2 4:0 0:4 3:1 1:3 2:0"}));

TEST(TippimportSpiel, InEinLeeresSpielKommtAlles) {
    Spielstand spiel;
    Dateiinhalt andere = test::saison(test::Saison20);
    for (int p = 0; p < MaxSpieler; ++p)
        for (int tag = 0; tag < MaxSpieltage; ++tag)
            for (int k = 0; k < MaxSpiele; ++k)
                andere.TippDatei[p][tag][k] = {{static_cast<i16>(p % 3), static_cast<i16>((tag + k) % 4)}};
    fuegeTippdateiEin(spiel, andere);
    EXPECT_EQ(static_cast<const Dateiinhalt&>(spiel), andere);
    EXPECT_EQ(spiel.Ergebnis, andere.ErgebnisDatei);
    EXPECT_EQ(spiel.Tipp, andere.TippDatei);
}

TEST(TippimportSpiel, JedesDateifeldKommtAusDerAnderenDateiUndDieAuswertungIstFort) {
    Spielstand spiel;
    spiel.oeffne(test::saison(test::Saison18));
    waehleAlle(spiel);
    test::setzeTipps(spiel, 0, 0, "1:1 2:0 0:1");
    werteAus(spiel, false);
    ASSERT_GT(spiel.getGesamtPunkte(0), 0);
    const Ergebnisse ergebnisVorher = spiel.Ergebnis;

    const Dateiinhalt andere = jedesFeldAnders(spiel);
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
