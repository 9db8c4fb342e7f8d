#include "scoring/auswertung.h"

#include <gtest/gtest.h>

#include "scoring/regeln.h"
#include "testdaten.h"

namespace kalimbo {
namespace {

// Eight teams, four matches a matchday, three matchdays; 3-2-1 rule. On matchday 0 (results
// 3:0 1:1 0:2 2:1) the tips give slot 0 5 points, slot 1 7, slot 2 5, slot 3 3 and slots 4-8
// nothing. On matchday 1 (all 1:0) nobody scores with the 0:0 tips left there.
class Auswertung : public testing::Test {
  protected:
    void SetUp() override {
        s.AnzTeams = 7;
        s.AnzSpiele = 3;
        s.AnzSpieltage = 2;
        for (int tag = 0; tag <= 2; ++tag)
            for (int spiel = 0; spiel <= 3; ++spiel) {
                const i16 heim = static_cast<i16>(2 * spiel + tag % 2),
                          aus = static_cast<i16>(2 * spiel + 1 - tag % 2);
                s.Paarung[tag][spiel] = {{heim, aus}};
            }
        test::setzeErgebnisse(s, 0, "3:0 1:1 0:2 2:1");
        test::setzeErgebnisse(s, 1, "1:0 1:0 1:0 1:0");
        test::setzeErgebnisse(s, 2, "2:2 2:2 2:2 2:2");
        test::setzeTipps(s, 0, 0, "4:1 2:2 1:3 0:1");  // 2 + 1 + 2 + 0
        test::setzeTipps(s, 1, 0, "3:0 2:2 0:1 1:0");  // 3 + 1 + 1 + 2
        test::setzeTipps(s, 2, 0, "3:0 1:0 1:3 0:1");  // 3 + 0 + 2 + 0
        test::setzeTipps(s, 3, 0, "2:1 1:0 0:1 3:1");  // 1 + 0 + 1 + 1
        for (int p = 4; p < MaxSpieler; ++p)
            test::setzeTipps(s, p, 0, "0:1 1:0 1:0 0:1");
        for (int p = 0; p < MaxSpieler; ++p)
            test::setzeTipps(s, p, 2, "2:2 2:2 2:2 2:2");  // 12 each
        test::setzeAuswahl(s, "0-1");
    }

    std::vector<int> spieltagsPunkte(int tag) const {
        std::vector<int> punkte;
        for (int p = 0; p < MaxSpieler; ++p)
            punkte.push_back(s.getSpieltagPunkte(p, tag));
        return punkte;
    }
    template <class Feld>
    std::vector<int> jeSpieler(Feld feld) const {
        std::vector<int> werte;
        for (const auto& a : s.Auswertung)
            werte.push_back(feld(a));
        return werte;
    }

    Spielstand s;
};

using V = std::vector<int>;

TEST_F(Auswertung, GleichePunkteTeilenDenPlatzUndUeberspringenDenNaechsten) {
    werteAus(s, false);
    EXPECT_EQ(spieltagsPunkte(0), (V{5, 7, 5, 3, 0, 0, 0, 0, 0}));
    EXPECT_EQ(jeSpieler([](auto& a) { return a.SptgSortierplatz[0]; }), (V{1, 0, 2, 3, 4, 5, 6, 7, 8}));
    EXPECT_EQ(jeSpieler([](auto& a) { return a.SptgPlatz[0]; }), (V{1, 0, 1, 3, 4, 4, 4, 4, 4}));
    EXPECT_EQ(jeSpieler([](auto& a) { return a.Sortierplatz; }), (V{1, 0, 2, 3, 4, 5, 6, 7, 8}));
    EXPECT_EQ(jeSpieler([](auto& a) { return a.Platz; }), (V{1, 0, 1, 3, 4, 4, 4, 4, 4}));
    EXPECT_EQ(spielerAufPlatz(s, 0), 1);
    EXPECT_EQ(spielerAufPlatz(s, 2), 2);
    EXPECT_EQ(spielerAufSpieltagsplatz(s, 0, 1), 0);
    EXPECT_EQ(spielerAufPlatz(s, 9), 0);  // nobody holds it
    EXPECT_EQ(jeSpieler([](auto& a) { return a.PunkteNachArt[0]; }), (V{0, 3, 3, 0, 0, 0, 0, 0, 0}));
    EXPECT_EQ(jeSpieler([](auto& a) { return a.PunkteNachArt[1]; }), (V{4, 2, 2, 0, 0, 0, 0, 0, 0}));
    EXPECT_EQ(jeSpieler([](auto& a) { return a.PunkteNachArt[2]; }), (V{1, 2, 0, 3, 0, 0, 0, 0, 0}));
}

TEST_F(Auswertung, SpieltagOhnePunkteGibtAllenPlatzEins) {
    werteAus(s, false);
    EXPECT_EQ(spieltagsPunkte(1), V(9, 0));
    EXPECT_EQ(jeSpieler([](auto& a) { return a.SptgPlatz[1]; }), V(9, 0));
    EXPECT_EQ(jeSpieler([](auto& a) { return a.SptgSortierplatz[1]; }), (V{0, 1, 2, 3, 4, 5, 6, 7, 8}));
    // Matchday 0 places 1, 0, 1, 3, 4... plus place 0 for everybody on matchday 1.
    EXPECT_EQ(jeSpieler([](auto& a) { return a.Platzierungen[0]; }), (V{1, 2, 1, 1, 1, 1, 1, 1, 1}));
    EXPECT_EQ(jeSpieler([](auto& a) { return a.Platzierungen[1]; }), (V{1, 0, 1, 0, 0, 0, 0, 0, 0}));
    EXPECT_EQ(jeSpieler([](auto& a) { return a.Platzierungen[4]; }), (V{0, 0, 0, 0, 1, 1, 1, 1, 1}));
}

TEST_F(Auswertung, NichtAusgewaehlterSpieltagZaehltNicht) {
    werteAus(s, false);
    for (int p = 0; p < MaxSpieler; ++p) {
        EXPECT_EQ(s.getSpieltagPunkte(p, 2), 0);
        EXPECT_EQ(s.Auswertung[p].SptgSortierplatz[2], p);
        EXPECT_EQ(s.Auswertung[p].SptgPlatz[2], p);
        for (int spiel = 0; spiel <= 3; ++spiel) {
            EXPECT_EQ(s.getSpielFarbe(p, 2, spiel), Schaltflaechenfarbe);
            EXPECT_EQ(s.getKorrekt(p, 2, spiel), -1);
        }
        int platzierungen = 0;
        for (const i16 n : s.Auswertung[p].Platzierungen)
            platzierungen += n;
        EXPECT_EQ(platzierungen, 2);  // matchdays 0 and 1 only
    }
    EXPECT_EQ(s.getSpielFarbe(0, 0, 0), Hellgelb);
    EXPECT_EQ(s.getSpielFarbe(0, 0, 3), Weiss);  // scored, no hit
    EXPECT_EQ(s.getSpielFarbe(0, 3, 0), Weiss);  // beyond the season: untouched
}

TEST_F(Auswertung, NichtteilnehmerBekommtNichtsUndBehaeltEinenPlatz) {
    s.Teilnehmer[1] = -1;  // "true", but only 1 means taking part
    s.Teilnehmer[4] = 0;
    test::setzeTipps(s, 4, 0, "3:0 1:1 0:2 2:1");
    werteAus(s, false);
    for (const int p : {1, 4}) {
        EXPECT_EQ(s.getGesamtPunkte(p), 0);
        for (int tag = 0; tag <= 2; ++tag)
            for (int spiel = 0; spiel <= 3; ++spiel) {
                EXPECT_EQ(s.getSpielFarbe(p, tag, spiel), Schaltflaechenfarbe);
                EXPECT_EQ(s.getKorrekt(p, tag, spiel), -1);
            }
    }
    EXPECT_EQ(jeSpieler([](auto& a) { return a.Sortierplatz; }), (V{0, 3, 1, 2, 4, 5, 6, 7, 8}));
    EXPECT_EQ(jeSpieler([](auto& a) { return a.Platz; }), (V{0, 3, 0, 2, 3, 3, 3, 3, 3}));

    s.AktSpieltag = 0;
    markiereNichtteilnehmer(s);
    EXPECT_EQ(spieltagsPunkte(0), (V{5, -1, 5, 3, -1, 0, 0, 0, 0}));
    EXPECT_EQ(s.getSpieltagPunkte(1, 1), 0);  // only the shown matchday
    s.AktSpieltag = 38;
    EXPECT_THROW(markiereNichtteilnehmer(s), Laufzeitfehler);
}

TEST_F(Auswertung, SonntagsspieleNurAmAktuellenSpieltagAuslassen) {
    for (int p = 0; p < MaxSpieler; ++p)
        test::setzeTipps(s, p, 1, "1:0 1:0 1:0 1:0");  // 3 points each match
    s.AktSpieltagGlobal = 1;
    s.SonntagSpiele = {{3, 1}};

    werteAus(s, true);
    for (int p = 0; p < MaxSpieler; ++p) {
        EXPECT_EQ(s.getSpieltagPunkte(p, 1), 6);
        EXPECT_EQ(s.getSpielFarbe(p, 1, 1), Schaltflaechenfarbe);
        EXPECT_EQ(s.getSpielFarbe(p, 1, 3), Schaltflaechenfarbe);
        EXPECT_EQ(s.getKorrekt(p, 1, 3), -1);
        EXPECT_EQ(s.getKorrekt(p, 1, 0), 0);
    }
    EXPECT_EQ(s.getSpieltagPunkte(1, 0), 7);  // the same match numbers on matchday 0 still count
    EXPECT_EQ(s.Tabelle[2].Punkte + s.Tabelle[3].Punkte, 2);  // only their draw of matchday 0

    werteAus(s, false);
    EXPECT_EQ(s.getSpieltagPunkte(0, 1), 12);
    EXPECT_EQ(s.Tabelle[2].Punkte + s.Tabelle[3].Punkte, 5);
}

TEST_F(Auswertung, TippZaehltFuerBeideMannschaften) {
    werteAus(s, false);
    const SpielerAuswertung& a =
        s.Auswertung[1];  // matchday 0: 0-1 exact, 2-3 tendency, 4-5 tendency, 6-7 margin
    EXPECT_EQ(a.TeamPunkte[0], 3);
    EXPECT_EQ(a.TeamPunkte[1], 3);
    EXPECT_EQ(a.TeamPunkteKorrekt[1], 3);
    EXPECT_EQ(a.TeamPunkteTendenz[2], 1);
    EXPECT_EQ(a.TeamPunkteTendenz[5], 1);
    EXPECT_EQ(a.TeamPunkteDiff[6], 2);
    EXPECT_EQ(a.TeamPunkteDiff[7], 2);
    EXPECT_EQ(a.TeamPunkteKorrekt[6], 0);
    EXPECT_EQ(a.TeamSortierung[5], 5);
}

TEST_F(Auswertung, ErneuteAuswertungBeginntVonVorn) {
    test::setzeAuswahl(s, "0-2");
    werteAus(s, false);
    EXPECT_EQ(s.getGesamtPunkte(1), 19);
    EXPECT_EQ(s.getKorrekt(1, 2, 0), 0);

    test::setzeAuswahl(s, "");
    waehleRegel(s, 0);
    werteAus(s, false);
    for (int p = 0; p < MaxSpieler; ++p) {
        EXPECT_EQ(s.Auswertung[p].Platzierungen, (Feld<i16, MaxSpieler>{}));
        EXPECT_EQ(s.Auswertung[p].TeamPunkte, (Feld<i16, MaxTeams>{}));
        EXPECT_EQ(s.Auswertung[p].Platz, 0);
        EXPECT_EQ(s.Auswertung[p].Sortierplatz, p);
        EXPECT_EQ(s.getKorrekt(p, 2, 0), -1);
    }
}

TEST_F(Auswertung, UeberlaufLaesstAuswertungUndTabelleZurueckgesetzt) {
    test::setzeAuswahl(s, "0-2");  // four exact tips on matchday 2 for everybody
    werteAus(s, false);
    s.setModus(0, 20000);  // the own rule allows any 16-bit value
    try {
        werteAus(s, false);
        FAIL();
    } catch (const Laufzeitfehler& e) {
        EXPECT_EQ(e.code(), Laufzeitfehler::Ueberlauf);
    }
    for (int p = 0; p < MaxSpieler; ++p) {
        EXPECT_EQ(s.getGesamtPunkte(p), 0);
        EXPECT_EQ(s.getKorrekt(p, 0, 0), -1);
        EXPECT_EQ(s.Auswertung[p].Platzierungen, (Feld<i16, MaxSpieler>{}));
    }
    EXPECT_EQ(s.Tabelle[0].Punkte, 0);
}

TEST_F(Auswertung, UeberlaufEinerTippdifferenzNurWennGewertet) {
    test::setzeTipps(s, 3, 2, "32767:-1");  // matchday 2 is not selected
    EXPECT_NO_THROW(werteAus(s, false));
    test::setzeAuswahl(s, "0-2");
    EXPECT_THROW(werteAus(s, false), Laufzeitfehler);
}

}  // namespace
}  // namespace kalimbo
