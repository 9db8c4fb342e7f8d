#include "scoring/auswertung.h"

#include <gtest/gtest.h>

#include "scoring/regeln.h"
#include "testdaten.h"

namespace kalimbo {
namespace {

using V = std::vector<int>;

// Eight teams, four matches a matchday, three matchdays; 3-2-1 rule; all nine slots take part. On matchday 0
// (results 3:0 1:1 0:2 2:1) the tips give slot 0 5 points, slot 1 7, slot 2 5, slot 3 3 and slots 4-8
// nothing. On matchday 1 (all 1:0) nobody scores with the 0:0 tips left there; matchday 2 (all 2:2, tipped so
// by everybody) is not selected.
class Auswertung : public testing::Test {
  protected:
    void SetUp() override {
        test::setzeErgebnisse(s, 0, "3:0 1:1 0:2 2:1");
        test::setzeErgebnisse(s, 1, "1:0 1:0 1:0 1:0");
        test::setzeErgebnisse(s, 2, "2:2 2:2 2:2 2:2");
        const char* tipps[] = {"4:1 2:2 1:3 0:1", "3:0 2:2 0:1 1:0", "3:0 1:0 1:3 0:1", "2:1 1:0 0:1 3:1"};
        for (int p = 0; p < MaxSpieler; ++p) {
            test::setzeTipps(s, p, 0, p < 4 ? tipps[p] : "0:1 1:0 1:0 0:1");
            test::setzeTipps(s, p, 2, "2:2 2:2 2:2 2:2");  // 12 each
        }
        test::setzeAuswahl(s, "0-1");
    }
    // The figure `feld` of every slot.
    template <class Feld>
    V jeSpieler(Feld feld) const {
        V werte;
        for (const auto& a : s.Auswertung)
            werte.push_back(feld(a));
        return werte;
    }
    Spielstand s = test::liga(std::vector<std::string>(8), 3, test::hinUndZurueck, "A B C D E F G H I");
};

TEST_F(Auswertung, GleichePunkteTeilenDenPlatzUndUeberspringenDenNaechsten) {
    werteAus(s, false);
    EXPECT_EQ(jeSpieler([](auto& a) { return a.SpieltagPunkte[0]; }), (V{5, 7, 5, 3, 0, 0, 0, 0, 0}));
    EXPECT_EQ(jeSpieler([](auto& a) { return a.SptgSortierplatz[0]; }), (V{1, 0, 2, 3, 4, 5, 6, 7, 8}));
    EXPECT_EQ(jeSpieler([](auto& a) { return a.Platz; }), (V{1, 0, 1, 3, 4, 4, 4, 4, 4}));
    EXPECT_EQ((std::array{spielerAufPlatz(s, 0), spielerAufPlatz(s, 2), spielerAufPlatz(s, 9),
                          spielerAufSpieltagsplatz(s, 0, 1)}),
              (std::array<i16, 4>{1, 2, 0, 0}));  // nobody holds position 9
    EXPECT_EQ(jeSpieler([](auto& a) { return a.PunkteNachArt[1]; }), (V{4, 2, 2, 0, 0, 0, 0, 0, 0}));
    // Matchday 1 without points: place 0 for everybody, the order of the slots.
    EXPECT_EQ(jeSpieler([](auto& a) { return a.SptgSortierplatz[1]; }), (V{0, 1, 2, 3, 4, 5, 6, 7, 8}));
    EXPECT_EQ(jeSpieler([](auto& a) { return a.Platzierungen[0]; }), (V{1, 2, 1, 1, 1, 1, 1, 1, 1}));
    EXPECT_EQ(jeSpieler([](auto& a) { return a.Platzierungen[4]; }), (V{0, 0, 0, 0, 1, 1, 1, 1, 1}));
    // A tip counts for both teams of its match: slot 1 scored 0-1 exactly and 6-7 by the margin.
    const SpielerAuswertung& a = s.Auswertung[1];
    EXPECT_EQ((std::array{a.TeamPunkteKorrekt[0], a.TeamPunkteKorrekt[1], a.TeamPunkteDiff[6],
                          a.TeamPunkteDiff[7], a.TeamPunkteTendenz[5], a.TeamPunkte[2]}),
              (std::array<i16, 6>{3, 3, 2, 2, 1, 1}));
    // Slot 0's colours: a margin hit, a counted tip without a hit, a tip on a matchday not selected.
    EXPECT_EQ((std::array{s.getSpielFarbe(0, 0, 0), s.getSpielFarbe(0, 0, 3), s.getSpielFarbe(0, 2, 0)}),
              (std::array{Hellgelb, Weiss, Schaltflaechenfarbe}));
}

TEST_F(Auswertung, NichtteilnehmerBekommtNichtsUndBehaeltEinenPlatz) {
    s.Teilnehmer[1] = -1;  // "true", but only 1 means taking part
    s.Teilnehmer[4] = 0;
    test::setzeTipps(s, 4, 0, "3:0 1:1 0:2 2:1");
    werteAus(s, false);
    for (const int p : {1, 4}) {
        EXPECT_EQ(s.getGesamtPunkte(p), 0);
        EXPECT_EQ(s.getSpielFarbe(p, 0, 0), Schaltflaechenfarbe);
        EXPECT_EQ(s.getKorrekt(p, 0, 0), -1);
    }
    EXPECT_EQ(jeSpieler([](auto& a) { return a.Platz; }), (V{0, 3, 0, 2, 3, 3, 3, 3, 3}));
    s.AktSpieltag = 0;
    markiereNichtteilnehmer(s);
    EXPECT_EQ(jeSpieler([](auto& a) { return a.SpieltagPunkte[0]; }), (V{5, -1, 5, 3, -1, 0, 0, 0, 0}));
    EXPECT_EQ(s.getSpieltagPunkte(1, 1), 0);  // only the shown matchday
    s.AktSpieltag = 38;
    EXPECT_THROW(markiereNichtteilnehmer(s), Laufzeitfehler);
}

}  // namespace
}  // namespace kalimbo
