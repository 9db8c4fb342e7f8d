#include "state/eintraege.h"

#include <gtest/gtest.h>

#include <tuple>

#include "state/tabellenfarben.h"

namespace kalimbo {
namespace {

TEST(Tastenfilter, NurZiffernUndRuecktasteKommenDurch) {
    for (char c = '0'; c <= '9'; ++c)
        EXPECT_EQ(tastenfilter(c), c);
    EXPECT_EQ(tastenfilter(8), 8);
    for (i16 taste :
         {i16{'a'}, i16{'X'}, i16{'-'}, i16{','}, i16{' '}, i16{13}, i16{27}, i16{':'}, i16{'/'}, i16{252}})
        EXPECT_EQ(tastenfilter(taste), '0') << taste;
}

// Boxes as the matchday view shows them: every result and tip "1", so that changes stand out.
Spieltagseintraege volleKaesten() {
    Spieltagseintraege e;
    e.heimErgebnis.fill("1");
    e.ausErgebnis.fill("1");
    e.heimTipp.fill("1");
    e.ausTipp.fill("1");
    return e;
}

TEST(UebernimmEintraege, SchreibtDenGezeigtenSpieltag) {
    Spielstand s;
    s.AnzSpiele = 8;  // nine matches
    s.AktSpieltag = 5;
    s.Ergebnis[5][9] = {{7, 7}};
    auto e = volleKaesten();
    e.heimErgebnis[0] = "3";
    e.ausErgebnis[0] = "";
    e.heimTipp[8 * 10 + 9] = "12";
    uebernimmEintraege(s, e);
    EXPECT_EQ(s.Ergebnis[5][0][0], 3);
    EXPECT_EQ(s.Ergebnis[5][0][1], 0);
    EXPECT_EQ(s.Ergebnis[5][9][0], 7);  // the tenth match of a nine-match league is not read
    EXPECT_EQ(s.Tipp[8][5][9][0], 12);  // but all 90 tip fields are
    EXPECT_EQ(s.Tipp[0][4][0][0], 0);   // other matchdays stay
}

TEST(UebernimmEintraege, XSchuetztNurDenHeimtipp) {
    Spielstand s;
    s.Tipp[2][0][3] = {{4, 4}};
    auto e = volleKaesten();
    e.heimTipp[23] = "X";
    e.ausTipp[23] = "X";
    uebernimmEintraege(s, e);
    EXPECT_EQ(s.Tipp[2][0][3][0], 4);
    EXPECT_EQ(s.Tipp[2][0][3][1], 0);
    e.heimTipp[23] = "x";  // only a capital X protects
    uebernimmEintraege(s, e);
    EXPECT_EQ(s.Tipp[2][0][3][0], 0);
}

TEST(UebernimmEintraege, UeberlaufAendertNichts) {
    Spielstand s;
    const auto vorher = s.Tipp;
    auto e = volleKaesten();
    e.ausTipp[89] = "40000";  // the very last box read
    try {
        uebernimmEintraege(s, e);
        FAIL();
    } catch (const Laufzeitfehler& f) {
        EXPECT_EQ(f.code(), Laufzeitfehler::Ueberlauf);
    }
    EXPECT_EQ(s.Tipp, vorher);
    EXPECT_EQ(s.Ergebnis[0][0][0], 0);
}

TEST(UebernimmAktuellenSpieltag, NimmtDieZahlenWieGetipptUndBeiUeberlaufNichts) {
    Spielstand s;
    uebernimmAktuellenSpieltag(s, "24", "7", " 8");
    EXPECT_EQ(s.AktSpieltagGlobal, 24);
    EXPECT_EQ(s.SonntagSpiele[0], 7);
    EXPECT_EQ(s.SonntagSpiele[1], 8);
    uebernimmAktuellenSpieltag(s, "", "x", "3");  // empty and non-numeric read as 0
    EXPECT_EQ(s.AktSpieltagGlobal, 0);
    EXPECT_EQ(s.SonntagSpiele[0], 0);
    EXPECT_EQ(s.SonntagSpiele[1], 3);
    for (const auto& [akt, s0, s1] : {std::tuple{"99999", "1", "2"}, {"5", "1", "-40000"}}) {
        EXPECT_THROW(uebernimmAktuellenSpieltag(s, akt, s0, s1), Laufzeitfehler);
        EXPECT_EQ(s.AktSpieltagGlobal, 0);
        EXPECT_EQ(s.SonntagSpiele[1], 3);
    }
}

TEST(PositionsHinweis, NurDieSechsFarbenDerLigaHabenEinen) {
    EXPECT_EQ(positionsHinweis(rgb(255, 0, 0)), "Meister");
    EXPECT_EQ(positionsHinweis(rgb(245, 183, 35)), "Champions-League-Platz");
    EXPECT_EQ(positionsHinweis(rgb(255, 204, 51)), "Champions-League-Qualifikation");
    EXPECT_EQ(positionsHinweis(rgb(255, 255, 0)), "UEFA-Pokal-Platz");
    EXPECT_EQ(positionsHinweis(rgb(255, 255, 192)), "Mittelmaß");
    EXPECT_EQ(positionsHinweis(rgb(255, 255, 255)), "Abstiegsplatz");
    for (const Farbe andere : {rgb(0, 0, 255), rgb(254, 255, 255), rgb(255, 0, 1), 0})
        EXPECT_EQ(positionsHinweis(andere), "");
}

}  // namespace
}  // namespace kalimbo
