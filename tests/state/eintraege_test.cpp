#include "state/eintraege.h"

#include <gtest/gtest.h>

#include "quellen/spielplan.h"
#include "state/tabellenfarben.h"
#include "testdaten.h"

namespace kalimbo {
namespace {

TEST(Tastenfilter, NurZiffernUndRuecktasteKommenDurch) {
    for (i16 taste = 0; taste < 300; ++taste)
        EXPECT_EQ(tastenfilter(taste), (taste >= '0' && taste <= '9') || taste == 8 ? taste : '0') << taste;
}

// Boxes as the matchday view shows them: every result and tip "1", so that changes stand out.
Spieltagseintraege volleKaesten() {
    Spieltagseintraege e;
    for (auto* kaesten : {&e.heimTipp, &e.ausTipp})
        kaesten->fill("1");
    e.heimErgebnis.fill("1");
    e.ausErgebnis.fill("1");
    return e;
}

TEST(UebernimmEintraege, SchreibtDenGezeigtenSpieltagUndXSchuetztNurDenHeimtipp) {
    Spielstand s;
    s.AnzSpiele = 8;  // nine matches
    s.AktSpieltag = 5;
    s.Ergebnis[5][9] = {{7, 7}};
    s.Tipp[2][5][3] = s.Tipp[2][5][4] = {{4, 4}};
    auto e = volleKaesten();
    e.heimErgebnis[0] = "3";
    e.ausErgebnis[0] = "";
    e.ausErgebnis[8] = "2";
    e.heimTipp[8 * 10 + 9] = "12";
    e.heimTipp[23] = e.ausTipp[23] = "X";
    e.heimTipp[24] = "x";  // only a capital X protects
    uebernimmEintraege(s, e);
    EXPECT_EQ(s.Ergebnis[5][0], (Feld<i16, 2>{{3, 0}}));
    EXPECT_EQ(s.Ergebnis[5][8], (Feld<i16, 2>{{1, 2}}));
    EXPECT_EQ(s.Ergebnis[5][9],
              (Feld<i16, 2>{{7, 7}}));  // the tenth match of a nine-match league is not read
    EXPECT_EQ(s.Tipp[8][5][9][0], 12);  // but all 90 tip fields are
    EXPECT_EQ(s.Tipp[2][5][3], (Feld<i16, 2>{{4, 0}}));
    EXPECT_EQ(s.Tipp[2][5][4][0], 0);
    EXPECT_EQ(s.Tipp[0][4][0][0], 0);  // other matchdays stay
}

TEST(UebernimmEintraege, UeberlaufAendertNichts) {
    Spielstand s;
    const Spielstand vorher = s;
    auto e = volleKaesten();
    e.ausTipp[89] = "40000";  // the very last box read
    EXPECT_EQ(test::fehler([&] { uebernimmEintraege(s, e); }), "Überlauf");
    EXPECT_EQ(s.Tipp, vorher.Tipp);
    EXPECT_EQ(s.Ergebnis, vorher.Ergebnis);

    uebernimmAktuellenSpieltag(s, "24", "x", " 8");  // non-numeric reads as 0
    for (const auto& [akt, s0, s1] : {std::tuple{"99999", "1", "2"}, {"5", "1", "-40000"}})
        EXPECT_EQ(test::fehler([&] { uebernimmAktuellenSpieltag(s, akt, s0, s1); }), "Überlauf");
    EXPECT_EQ(s.AktSpieltagGlobal, 24);
    EXPECT_EQ(s.SonntagSpiele, (Feld<i16, 2>{{0, 8}}));
}

TEST(PositionsHinweis, JedeFarbeDerLigaHatEinen) {
    for (const Farbe f : tabellenfarben(20))
        EXPECT_NE(positionsHinweis(f), "") << f;
    EXPECT_EQ(positionsHinweis(rgb(254, 255, 255)), "");
}

}  // namespace
}  // namespace kalimbo
