#include "graph/punktegrafik.h"

#include <gtest/gtest.h>

#include "graph/svg.h"
#include "testdaten.h"

namespace kalimbo::grafik {
namespace {

constexpr Farbe Anna = rgb(200, 0, 0), Bernd = rgb(0, 0, 200), Carl = rgb(0, 150, 0);

// A game in which only the slots `teilnehmer` take part and slot p has the points punkte[p] on matchdays 0,
// 1, ...
Spielstand spiel(std::initializer_list<int> teilnehmer, const std::vector<std::vector<int>>& punkte) {
    Spielstand s;
    s.Teilnehmer.fuelle(0);
    for (const int p : teilnehmer)
        s.Teilnehmer[p] = 1;
    s.Spielerfarbe = {{Anna, Bernd, Carl, 0, 0, 0, 0, 0, 0}};
    for (std::size_t p = 0; p < punkte.size(); ++p)
        for (std::size_t tag = 0; tag < punkte[p].size(); ++tag)
            s.Auswertung[static_cast<int>(p)].SpieltagPunkte[static_cast<int>(tag)] =
                static_cast<i16>(punkte[p][tag]);
    return s;
}

Ansicht ansicht(i16 darstellung, std::initializer_list<int> linien, std::initializer_list<int> zahlen = {}) {
    Ansicht a;
    a.Darstellung = darstellung;
    for (const int p : linien)
        a.LinieZeigen[static_cast<std::size_t>(p)] = true;
    for (const int p : zahlen)
        a.PunkteZeigen[static_cast<std::size_t>(p)] = true;
    return a;
}

// Two matchdays. Total view: Anna takes part with 3 and 1 points and printed numbers; Bernd with 2 and 2, his
// line on and his numbers off; Dora with her line off; Carl does not take part, has 5 and 7 points and his
// line and numbers on: his 12 points set the scale top (s = 7715 / 15 = 514.33 -> 514), yet he is not drawn.
// Matchday view: squares of 300 twips at 480 per point for Anna's 9 and 10 points, the white number starting
// 260 (one digit) or 320 (two digits) left of the square's right edge; then the scale 0..15. Any other view:
// the columns and the grid only.
TEST(Punktegrafik, GoldeneAnsichtenZweierSpieltage) {
    const Spielstand gesamt = spiel({0, 1, 3}, {{3, 1}, {2, 2}, {5, 7}, {1, 1}});
    EXPECT_EQ(alsSvg(punktegrafik(gesamt, 1, ansicht(Gesamtpunkte, {0, 1, 2}, {0, 2}))),
              test::testdatei("grafik/gesamtpunkte.svg"));
    EXPECT_EQ(skalenspitze(gesamt, 1), 12);
    const Spielstand einer = spiel({0}, {{9, 10}});
    EXPECT_EQ(alsSvg(punktegrafik(einer, 1, ansicht(Spieltagspunkte, {0}, {0}))),
              test::testdatei("grafik/spieltagspunkte.svg"));
    EXPECT_EQ(punktegrafik(einer, 1, ansicht(2, {0}, {0})).teile.size(), 2u + 17u);
}

// Column i spans i * w .. (i + 1) * w, w = 12920 / (matchdays + 1) rounded half to even, the shades
// alternating.
TEST(Punktegrafik, SpaltenbreiteIstGerundeterAnteil) {
    for (const auto& [tage, w] :
         {std::pair{33, 380}, {37, 340}, {2, 4307}, {15, 808}, {303, 42}, {0, 12920}}) {
        const Zeichnung z = punktegrafik(spiel({}, {}), static_cast<i16>(tage), ansicht(2, {}));
        ASSERT_EQ(z.teile.size(), static_cast<std::size_t>(tage + 1 + 17));
        for (int i = 0; i <= tage; ++i)
            EXPECT_EQ(z.teile[static_cast<std::size_t>(i)],
                      Primitiv(Rechteck{i * w, 7815, (i + 1) * w, 0,
                                        i % 2 ? rgb(239, 239, 239) : rgb(224, 224, 224)}))
                << tage << ' ' << i;
    }
}

TEST(Punktegrafik, SkalenspitzeZaehltAlleNeunPlaetze) {
    EXPECT_EQ(skalenspitze(spiel({}, {}), 33), 1);
    // Slot 8 does not take part; matchday 2 lies beyond the range of the first.
    const Spielstand s = spiel({}, {{}, {}, {}, {}, {}, {}, {}, {}, {0, 4, 4}});
    EXPECT_EQ((std::array{skalenspitze(s, 1), skalenspitze(s, 2)}), (std::array<i16, 2>{4, 8}));
    EXPECT_EQ(skalenspitze(spiel({}, {{-2}}), 2), 1);  // the highest total is 0
}

TEST(Punktegrafik, KoordinatenBleibenIn16Bit) {
    const std::string Ueberlauf = "Überlauf", DurchNull = "Division durch Null";
    const std::tuple<i16, i16, std::vector<int>, std::string> faelle[] = {
        // 480 * 68 = 32640 still fits, 480 * 69 = 33120 does not.
        {Spieltagspunkte, 0, {68}, ""},
        {Spieltagspunkte, 0, {69}, Ueberlauf},
        // The totals 30000 and 0 give M = 1 and s = 1929: 30000 * 1929 overflows.
        {Gesamtpunkte, 1, {30000, -30000}, Ueberlauf},
        {Gesamtpunkte, -1, {}, DurchNull},
        {Gesamtpunkte, 0, {-3}, DurchNull},  // the scale top -3 plus the head room 3
        {Spieltagspunkte, 38, {}, "Index außerhalb des gültigen Bereichs"},
    };
    for (const auto& [darstellung, tage, punkte, fehler] : faelle)
        EXPECT_EQ(test::fehler([&] {
                      punktegrafik(spiel({0}, std::vector<std::vector<int>>(9, punkte)), tage,
                                   ansicht(darstellung, {0}));
                  }),
                  fehler)
            << darstellung << ' ' << tage << ' ' << testing::PrintToString(punkte);
}

// The first view shows the lines of those taking part; the legend their totals and, whatever is drawn, the
// points of matchday index 12.
TEST(Punktegrafik, ErsteAnsichtUndLegende) {
    Spielstand s = spiel({0, 2, 4, 8}, {});
    const Ansicht a = ersteAnsicht(s);
    EXPECT_EQ(
        std::tuple(a.Darstellung, a.LinieZeigen, a.PunkteZeigen),
        std::tuple(Gesamtpunkte, std::array<bool, 9>{1, 0, 1, 0, 1, 0, 0, 0, 1}, std::array<bool, 9>{}));
    s = spiel({0, 1}, {{}, {}, {4, 4, 4}});
    s.Spielername = {{"Anna", "Bernd", "Carl"}};
    for (const auto& [p, tag, punkte] :
         {std::tuple{0, 11, 1}, {0, 12, 7}, {0, 13, 2}, {1, 11, 4}, {1, 13, 9}})
        s.Auswertung[p].SpieltagPunkte[tag] = static_cast<i16>(punkte);
    s.Auswertung[0].GesamtPunkte = 40;
    s.Auswertung[1].GesamtPunkte = 35;
    s.Auswertung[2].GesamtPunkte = 50;
    const Legendenzeile ohne{"      ---", std::nullopt, "-", "-"};
    EXPECT_EQ(legende(s), (std::array<Legendenzeile, MaxSpieler>{Legendenzeile{"Anna  ", Anna, "40", "7"},
                                                                 Legendenzeile{"Bernd  ", Bernd, "35", "0"},
                                                                 ohne, ohne, ohne, ohne, ohne, ohne, ohne}));
}

}  // namespace
}  // namespace kalimbo::grafik
