#include "reports/haeufigkeiten.h"

#include <gtest/gtest.h>

#include <map>

#include "kurzesspiel.h"
#include "state/fehler.h"

namespace kalimbo {
namespace {

class Haeufigkeit : public testing::Test {
  protected:
    Spielstand s = test::kurzesSpiel();
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
    EXPECT_EQ(tipps[1], spalte({{"4:4", 3}, {"0:0", 3}}));  // counted although not taking part
    EXPECT_EQ(tipps[2], spalte({{"0:0", 3}, {"1:1", 2}, {"0:3", 1}}));
    EXPECT_EQ(tipps[3], spalte({{"0:0", 6}}));

    std::vector<int> treffer, haeufigster;
    for (int p = 0; p < 4; ++p) {
        treffer.push_back(h.treffer[p]);
        haeufigster.push_back(h.haeufigsterTipp(p));
    }
    EXPECT_EQ(treffer, (std::vector<int>{2, 0, 3, 1}));
    // Bernd tipped 0:0 and 4:4 three times each: the lower class wins the tie.
    EXPECT_EQ(haeufigster, (std::vector<int>{21, 0, 0, 0}));
    EXPECT_EQ(h.hoechsteAnzahl(), 2);
    EXPECT_EQ(h.haeufigstesErgebnis(), 21);
}

TEST_F(Haeufigkeit, ListetDieSpieleEinesErgebnissesUndDieSoGetipptenDerTeilnehmer) {
    const Haeufigkeiten h = zaehleHaeufigkeiten(s);
    EXPECT_EQ(spielliste(s, h, 21),
              "Ergebnis 2:1: 2 Spiele\n"
              "Spieltag 1\tAAC - BOC 2:1\n"
              "Spieltag 2\tBOC - AAC 2:1\n"
              "\n"
              "Anna: 3 Tipps\n"
              "Spieltag 1\tAAC - BOC 2:1\n"
              "Spieltag 2\tBOC - AAC 2:1\n"
              "Spieltag 2\tDRE - COT 1:1\n"
              "\n"
              "Carl: 0 Tipps\n");
    EXPECT_EQ(spielliste(s, h, KlasseAndere),
              "Andere Ergebnisse: 1 Spiel\n"
              "Spieltag 1\tESS - FÜR 10:2\n"
              "\n"
              "Anna: 1 Tipp\n"
              "Spieltag 2\tFÜR - ESS 0:3\n"
              "\n"
              "Carl: 0 Tipps\n");
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
