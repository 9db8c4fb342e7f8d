#include "reports/haeufigkeiten.h"

#include <gtest/gtest.h>

#include <map>

#include "state/fehler.h"
#include "testdaten.h"

namespace kalimbo {
namespace {

// Six teams A..F, three matches a matchday, matchdays 0 and 1 selected, matchday 2 not (its
// results and tips, all 2:1, must count nowhere). Anna and Bernd take part; slot 2 does not but is
// counted all the same; slots 3-8 keep their 0:0 tips and do not take part either.
class Haeufigkeit : public testing::Test {
  protected:
    void SetUp() override {
        s.AnzTeams = 5;
        s.AnzSpiele = 2;
        s.AnzSpieltage = 2;
        for (int t = 0; t <= 5; ++t)
            s.TeamnameKurz[t] = std::string(1, static_cast<char>('A' + t));
        for (int tag = 0; tag <= 2; ++tag)
            for (int spiel = 0; spiel <= 2; ++spiel)
                s.Paarung[tag][spiel] = {
                    {static_cast<i16>(2 * spiel + tag % 2), static_cast<i16>(2 * spiel + 1 - tag % 2)}};
        test::setzeErgebnisse(s, 0, "2:1 0:0 10:2");
        test::setzeErgebnisse(s, 1, "2:1 1:1 0:3");
        test::setzeErgebnisse(s, 2, "2:1 2:1 2:1");
        test::setzeTipps(s, 0, 0, "2:1 1:0 3:3");
        test::setzeTipps(s, 0, 1, "2:1 2:1 0:12");
        test::setzeTipps(s, 1, 1, "1:1 1:1 0:3");  // matchday 0 stays 0:0 0:0 0:0
        test::setzeTipps(s, 2, 0, "1:0 0:1 5:5");
        test::setzeTipps(s, 2, 1, "0:1 1:0 5:5");
        for (int p = 0; p < MaxSpieler; ++p)
            test::setzeTipps(s, p, 2, "2:1 2:1 2:1");
        s.Spielername[0] = "Anna";
        s.Spielername[1] = "Bernd";
        s.Teilnehmer = {{1, 1, 0, 0, 0, 0, 0, 0, 0}};
        test::setzeAuswahl(s, "0-1");
    }

    Spielstand s;
};

// All 101 counts of one column: the classes named in `ungleichNull`, 0 everywhere else.
std::vector<int> spalte(const std::map<std::string, int>& ungleichNull) {
    std::vector<int> werte(AnzErgebnisklassen, 0);
    for (const auto& [name, anzahl] : ungleichNull)
        for (int k = 0; k < AnzErgebnisklassen; ++k)
            if (klassenName(k) == name) werte[k] = anzahl;
    return werte;
}

TEST_F(Haeufigkeit, ZaehltErgebnisseUndTippsJeKlasseUeberDieAusgewaehltenSpieltage) {
    const Haeufigkeiten h = zaehleHaeufigkeiten(s);
    std::vector<int> ergebnisse;
    std::array<std::vector<int>, 4> tipps;
    for (int k = 0; k < AnzErgebnisklassen; ++k) {
        ergebnisse.push_back(h.anzahl(k));
        for (int p = 0; p < 4; ++p)
            tipps[p].push_back(h.anzahlTipps(p, k));
    }
    EXPECT_EQ(ergebnisse, spalte({{"2:1", 2}, {"0:0", 1}, {"1:1", 1}, {"0:3", 1}, {"andere", 1}}));
    EXPECT_EQ(tipps[0], spalte({{"2:1", 3}, {"1:0", 1}, {"3:3", 1}, {"andere", 1}}));
    EXPECT_EQ(tipps[1], spalte({{"0:0", 3}, {"1:1", 2}, {"0:3", 1}}));
    EXPECT_EQ(tipps[2], spalte({{"1:0", 2}, {"0:1", 2}, {"5:5", 2}}));
    EXPECT_EQ(tipps[3], spalte({{"0:0", 6}}));

    std::vector<int> treffer, haeufigster;
    for (int p = 0; p < 4; ++p) {
        treffer.push_back(h.treffer[p]);
        haeufigster.push_back(h.haeufigsterTipp(p));
    }
    EXPECT_EQ(treffer, (std::vector<int>{2, 3, 0, 1}));
    // Slot 2 tipped 0:1, 1:0 and 5:5 twice each: the lowest class wins the tie.
    EXPECT_EQ(haeufigster, (std::vector<int>{21, 0, 1, 0}));
    EXPECT_EQ(h.hoechsteAnzahl(), 2);
    EXPECT_EQ(h.haeufigstesErgebnis(), 21);
}

TEST_F(Haeufigkeit, ListetDieSpieleEinesErgebnissesUndDieSoGetipptenDerTeilnehmer) {
    const Haeufigkeiten h = zaehleHaeufigkeiten(s);
    EXPECT_EQ(spielliste(s, h, 21),
              "Ergebnis 2:1: 2 Spiele\n"
              "Spieltag 1\tA - B 2:1\n"
              "Spieltag 2\tB - A 2:1\n"
              "\n"
              "Anna: 3 Tipps\n"
              "Spieltag 1\tA - B 2:1\n"
              "Spieltag 2\tB - A 2:1\n"
              "Spieltag 2\tD - C 1:1\n"
              "\n"
              "Bernd: 0 Tipps\n");
    EXPECT_EQ(spielliste(s, h, KlasseAndere),
              "Andere Ergebnisse: 1 Spiel\n"
              "Spieltag 1\tE - F 10:2\n"
              "\n"
              "Anna: 1 Tipp\n"
              "Spieltag 2\tF - E 0:3\n"
              "\n"
              "Bernd: 0 Tipps\n");
}

TEST_F(Haeufigkeit, OhneAusgewaehlteSpieltageZaehltNichts) {
    test::setzeAuswahl(s, "");
    s.Ergebnis[2][0] = {{0, 0}};  // a 0:0 on the deselected matchday stays uncounted too
    const Haeufigkeiten h = zaehleHaeufigkeiten(s);
    EXPECT_EQ(h.hoechsteAnzahl(), 0);
    EXPECT_EQ(h.haeufigstesErgebnis(), -1);
    for (int p = 0; p < MaxSpieler; ++p) {
        EXPECT_EQ(h.haeufigsterTipp(p), -1);
        EXPECT_EQ(h.treffer[p], 0);
    }
}

TEST(Ergebnisklasse, RasterBisNeunSonstAndere) {
    const std::vector<std::tuple<int, int, int, std::string>> faelle{
        {0, 0, 0, "0:0"},       {0, 9, 9, "0:9"},       {2, 1, 21, "2:1"},      {9, 9, 99, "9:9"},
        {10, 0, 100, "andere"}, {0, 10, 100, "andere"}, {-1, 2, 100, "andere"}, {3, -1, 100, "andere"},
    };
    for (const auto& [heim, gast, klasse, name] : faelle) {
        EXPECT_EQ(ergebnisklasse(static_cast<i16>(heim), static_cast<i16>(gast)), klasse)
            << heim << ':' << gast;
        EXPECT_EQ(klassenName(klasse), name);
    }
    EXPECT_THROW(klassenName(101), Laufzeitfehler);
    EXPECT_THROW(klassenName(-1), Laufzeitfehler);
}

TEST(Schattierung, VonWeissZumVollenBlauMitLesbarerSchrift) {
    const std::vector<std::tuple<int, int, Farbe, Farbe>> faelle{
        {0, 5, Weiss, rgb(0, 0, 0)},
        {0, 0, Weiss, rgb(0, 0, 0)},
        {1, 2, rgb(142, 172, 222), rgb(0, 0, 0)},
        {5, 5, rgb(30, 90, 190), Weiss},
    };
    for (const auto& [anzahl, hoechste, hintergrund, schrift] : faelle) {
        EXPECT_EQ(schattierung(anzahl, hoechste), hintergrund) << anzahl << '/' << hoechste;
        EXPECT_EQ(schriftfarbeAuf(hintergrund), schrift) << anzahl << '/' << hoechste;
    }
}

}  // namespace
}  // namespace kalimbo
