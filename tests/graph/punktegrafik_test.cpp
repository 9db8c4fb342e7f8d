#include "graph/punktegrafik.h"

#include <gtest/gtest.h>

#include <initializer_list>
#include <optional>
#include <vector>

namespace kalimbo::grafik {
namespace {

constexpr Farbe Anna = rgb(200, 0, 0), Bernd = rgb(0, 0, 200), Carl = rgb(0, 150, 0);

// A game in which nobody takes part yet and nobody has points.
Spielstand leeresSpiel() {
    Spielstand s;
    s.Teilnehmer.fuelle(0);
    s.Spielerfarbe = {{Anna, Bernd, Carl, 0, 0, 0, 0, 0, 0}};
    return s;
}

void setzePunkte(Spielstand& s, int spieler, std::initializer_list<int> punkte) {
    int tag = 0;
    for (const int p : punkte)
        s.Auswertung[spieler].SpieltagPunkte[tag++] = static_cast<i16>(p);
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

// Columns and grid of a chart of two matchdays (w = 6460), as every view starts.
std::vector<Primitiv> grundZweiSpieltage() {
    std::vector<Primitiv> teile{Rechteck{0, 7815, 6460, 0, rgb(224, 224, 224)},
                                Rechteck{6460, 7815, 12920, 0, rgb(239, 239, 239)}};
    for (const int y :
         {7665, 7185, 6705, 6225, 5745, 5265, 4785, 4305, 3825, 3345, 2865, 2385, 1905, 1425, 945, 465, -15})
        teile.emplace_back(Linie{0, y, 12920, y, rgb(244, 244, 244)});
    return teile;
}

std::vector<Rechteck> rechtecke(const Zeichnung& z, Farbe farbe) {
    std::vector<Rechteck> r;
    for (const Primitiv& teil : z.teile)
        if (const auto* q = std::get_if<Rechteck>(&teil); q && q->farbe == farbe) r.push_back(*q);
    return r;
}

// Anna takes part with 3 and 1 points and printed numbers; Bernd takes part with 2 and 2 points,
// his line on and his numbers off; Dora takes part with her line off; Carl does not take part,
// has 5 and 7 points and his line and numbers on: his 12 points set the scale top
// (s = 7715 / 15 = 514.33 -> 514), yet he is not drawn.
TEST(Punktegrafik, GesamtansichtZweierSpieltageVollstaendig) {
    Spielstand s = leeresSpiel();
    s.Teilnehmer[0] = s.Teilnehmer[1] = s.Teilnehmer[3] = 1;
    setzePunkte(s, 0, {3, 1});
    setzePunkte(s, 1, {2, 2});
    setzePunkte(s, 2, {5, 7});
    setzePunkte(s, 3, {1, 1});
    const Zeichnung z = punktegrafik(s, 1, ansicht(Gesamtpunkte, {0, 1, 2}, {0, 2}));

    std::vector<Primitiv> erwartet = grundZweiSpieltage();
    erwartet.insert(
        erwartet.end(),
        {Rechteck{3180, 6173, 3280, 6073, Anna}, Text{3280, 6073, Anna, "MS Serif", 8, false, "3"},
         Rechteck{9640, 5659, 9740, 5559, Anna}, Text{9740, 5559, Anna, "MS Serif", 8, false, "4"},
         Linie{3230, 6123, 9690, 5609, Anna}, Rechteck{3180, 6687, 3280, 6587, Bernd},
         Rechteck{9640, 5659, 9740, 5559, Bernd}, Linie{3230, 6637, 9690, 5609, Bernd}});
    EXPECT_EQ(z.breite, 12920);
    EXPECT_EQ(z.hoehe, 7815);
    EXPECT_EQ(z.teile, erwartet);
    EXPECT_EQ(skalenspitze(s, 1), 12);
}

// Squares of 300 twips at 480 per point; the white number starts 260 (one digit) or 320 (two
// digits) left of the square's right edge; then the scale 0..15. Printed totals play no part.
TEST(Punktegrafik, SpieltagsansichtZweierSpieltageVollstaendig) {
    Spielstand s = leeresSpiel();
    s.Teilnehmer[0] = 1;
    setzePunkte(s, 0, {9, 10});
    const Zeichnung z = punktegrafik(s, 1, ansicht(Spieltagspunkte, {0}, {0}));

    std::vector<Primitiv> erwartet = grundZweiSpieltage();
    erwartet.insert(
        erwartet.end(),
        {Rechteck{3080, 3495, 3380, 3195, Anna}, Text{3120, 3195, Weiss, "MS Sans Serif", 10, true, "9"},
         Rechteck{9540, 3015, 9840, 2715, Anna}, Text{9520, 2715, Weiss, "MS Sans Serif", 10, true, "10"}});
    for (int k = 0; k <= 15; ++k)
        erwartet.push_back(
            Text{11200, 7545 - 480 * k, rgb(174, 174, 174), "MS Sans Serif", 10, false, std::to_string(k)});
    EXPECT_EQ(z.teile, erwartet);
}

TEST(Punktegrafik, AndereDarstellungZeichntNurSpaltenUndGitter) {
    Spielstand s = leeresSpiel();
    s.Teilnehmer[0] = 1;
    setzePunkte(s, 0, {9, 10});
    EXPECT_EQ(punktegrafik(s, 1, ansicht(2, {0}, {0})).teile, grundZweiSpieltage());
}

// Where the mark of slot 0 sits on the total view: y of its centre per matchday.
struct Marken {
    const char* name;
    std::vector<int> punkte;  // per matchday 0..n-1
    std::vector<int> mitten;  // expected y of each mark's centre
};

class GesamtansichtMarken : public testing::TestWithParam<Marken> {};

TEST_P(GesamtansichtMarken, LiegenBeiGrundlinieMinusSummeMalSchritt) {
    const Marken& m = GetParam();
    Spielstand s = leeresSpiel();
    s.Teilnehmer[0] = 1;
    for (std::size_t tag = 0; tag < m.punkte.size(); ++tag)
        s.Auswertung[0].SpieltagPunkte[static_cast<int>(tag)] = static_cast<i16>(m.punkte[tag]);
    const auto marken =
        rechtecke(punktegrafik(s, static_cast<i16>(m.punkte.size() - 1), ansicht(Gesamtpunkte, {0})), Anna);
    std::vector<int> mitten;
    for (const Rechteck& r : marken) {
        EXPECT_EQ(r.y1 - r.y2, 100);
        EXPECT_EQ(r.x2 - r.x1, 100);
        mitten.push_back((r.y1 + r.y2) / 2);
    }
    EXPECT_EQ(mitten, m.mitten);
}

INSTANTIATE_TEST_SUITE_P(Skala, GesamtansichtMarken,
                         testing::Values(
                             // No points at all: M = 1, every mark on the base line.
                             Marken{"KeinePunkte", std::vector<int>(34, 0), std::vector<int>(34, 7665)},
                             // A total of 0 also gives M = 1: s = 7715 / 4 = 1928.75 -> 1929.
                             Marken{"SummeNull", {1, -1}, {7665 - 1929, 7665}},
                             // M = 4: s = 7715 / 7 = 1102.1 -> 1102.
                             Marken{"VierPunkte", {3, 1}, {7665 - 3 * 1102, 7665 - 4 * 1102}},
                             // M = 3083: s = 7715 / 3086 = 2.5 -> 2, the even neighbour.
                             Marken{"HalberSchrittZurGeradenZahl", {3083}, {7665 - 3083 * 2}}),
                         [](const auto& info) { return info.param.name; });

TEST(Punktegrafik, SkalenspitzeZaehltAlleNeunPlaetze) {
    Spielstand s = leeresSpiel();
    EXPECT_EQ(skalenspitze(s, 33), 1);
    setzePunkte(s, 8, {0, 4, 4});  // slot 8 does not take part; matchday 2 lies beyond the range
    EXPECT_EQ(skalenspitze(s, 1), 4);
    EXPECT_EQ(skalenspitze(s, 2), 8);
    setzePunkte(s, 0, {-2});
    setzePunkte(s, 8, {0, 0, 0});
    EXPECT_EQ(skalenspitze(s, 2), 1);  // the highest total is 0
}

struct Spaltenbreite {
    i16 spieltage;
    int breite;
};

class Spalten : public testing::TestWithParam<Spaltenbreite> {};

// w = 12920 / (Spieltage + 1), rounded half to even.
TEST_P(Spalten, BreiteIstGerundeterAnteil) {
    const Zeichnung z = punktegrafik(leeresSpiel(), GetParam().spieltage, ansicht(2, {}));
    const int w = GetParam().breite;
    ASSERT_EQ(z.teile.size(), static_cast<std::size_t>(GetParam().spieltage + 1 + 17));
    for (int i = 0; i <= GetParam().spieltage; ++i)
        EXPECT_EQ(
            z.teile[static_cast<std::size_t>(i)],
            Primitiv(Rechteck{i * w, 7815, (i + 1) * w, 0, i % 2 ? rgb(239, 239, 239) : rgb(224, 224, 224)}))
            << i;
}

INSTANTIATE_TEST_SUITE_P(Rundung, Spalten,
                         testing::Values(Spaltenbreite{33, 380}, Spaltenbreite{37, 340},
                                         Spaltenbreite{2, 4307}, Spaltenbreite{15, 808},
                                         Spaltenbreite{303, 42}, Spaltenbreite{0, 12920}));

TEST(Punktegrafik, SpaetererPlatzLiegtObenAuf) {
    Spielstand s = leeresSpiel();
    s.Teilnehmer = {{1, 0, 1, 0, 0, 0, 0, 0, 0}};
    s.Spielerfarbe[2] = Carl;
    setzePunkte(s, 0, {2, 2});
    setzePunkte(s, 2, {2, 2});
    for (const i16 darstellung : {Gesamtpunkte, Spieltagspunkte}) {
        const Zeichnung z = punktegrafik(s, 1, ansicht(darstellung, {0, 1, 2}));
        std::vector<Farbe> reihenfolge;
        for (const Primitiv& teil : z.teile)
            if (const auto* r = std::get_if<Rechteck>(&teil); r && (r->farbe == Anna || r->farbe == Carl))
                reihenfolge.push_back(r->farbe);
        EXPECT_EQ(reihenfolge, (std::vector<Farbe>{Anna, Anna, Carl, Carl})) << darstellung;
    }
}

struct Fehlerfall {
    const char* name;
    i16 darstellung;
    i16 spieltage;
    std::vector<int> punkte;  // of every slot; slot 0 takes part and is drawn
    std::optional<Laufzeitfehler::Code> fehler;
};

class Grenzen : public testing::TestWithParam<Fehlerfall> {};

TEST_P(Grenzen, KoordinatenBleibenIn16Bit) {
    const Fehlerfall& f = GetParam();
    Spielstand s = leeresSpiel();
    s.Teilnehmer[0] = 1;
    for (SpielerAuswertung& a : s.Auswertung)
        for (std::size_t tag = 0; tag < f.punkte.size(); ++tag)
            a.SpieltagPunkte[static_cast<int>(tag)] = static_cast<i16>(f.punkte[tag]);
    try {
        punktegrafik(s, f.spieltage, ansicht(f.darstellung, {0}));
        EXPECT_FALSE(f.fehler) << "no error thrown";
    } catch (const Laufzeitfehler& e) {
        ASSERT_TRUE(f.fehler) << e.what();
        EXPECT_EQ(e.code(), *f.fehler);
    }
}

INSTANTIATE_TEST_SUITE_P(
    Fehler, Grenzen,
    testing::Values(
        // 480 * 68 = 32640 still fits, 480 * 69 = 33120 does not.
        Fehlerfall{"SpieltagspunkteAchtundsechzig", Spieltagspunkte, 0, {68}, std::nullopt},
        Fehlerfall{"SpieltagspunkteNeunundsechzig", Spieltagspunkte, 0, {69}, Laufzeitfehler::Ueberlauf},
        Fehlerfall{
            "SpieltagspunkteMinusNeunundsechzig", Spieltagspunkte, 0, {-69}, Laufzeitfehler::Ueberlauf},
        // The totals 30000 and 0 give M = 1 and s = 1929: 30000 * 1929 overflows.
        Fehlerfall{"GesamtpunkteMalSchritt", Gesamtpunkte, 1, {30000, -30000}, Laufzeitfehler::Ueberlauf},
        Fehlerfall{"SummeUeber16Bit", Gesamtpunkte, 1, {30000, 30000}, Laufzeitfehler::Ueberlauf},
        Fehlerfall{"KeinSpieltag", Gesamtpunkte, -1, {}, Laufzeitfehler::DivisionDurchNull},
        Fehlerfall{"SkalenspitzeMinusDrei", Gesamtpunkte, 0, {-3}, Laufzeitfehler::DivisionDurchNull},
        Fehlerfall{"SpieltagJenseitsDerGrenzen", Spieltagspunkte, 38, {}, Laufzeitfehler::Index}),
    [](const auto& info) { return info.param.name; });

TEST(Punktegrafik, ErsteAnsichtZeigtDieLinienDerTeilnehmer) {
    Spielstand s = leeresSpiel();
    s.Teilnehmer = {{1, 0, 1, -1, 1, 0, 0, 0, 1}};
    const Ansicht a = ersteAnsicht(s);
    EXPECT_EQ(a.Darstellung, Gesamtpunkte);
    EXPECT_EQ(a.LinieZeigen,
              (std::array<bool, 9>{true, false, true, false, true, false, false, false, true}));
    EXPECT_EQ(a.PunkteZeigen, (std::array<bool, 9>{}));
}

// The legend shows the totals and, whatever is drawn, the points of matchday index 12.
TEST(Punktegrafik, LegendeMitFestemSpieltagZwoelf) {
    Spielstand s = leeresSpiel();
    s.Teilnehmer[0] = s.Teilnehmer[1] = 1;
    s.Spielername = {{"Anna", "Bernd", "Carl"}};
    setzePunkte(s, 0, {0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 1, 7, 2});
    setzePunkte(s, 1, {0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 4, 0, 9});
    setzePunkte(s, 2, {0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 4, 4, 4});
    s.Auswertung[0].GesamtPunkte = 40;
    s.Auswertung[1].GesamtPunkte = 35;
    s.Auswertung[2].GesamtPunkte = 50;

    const Legendenzeile ohne{"      ---", std::nullopt, "-", "-"};
    const std::array<Legendenzeile, MaxSpieler> erwartet{Legendenzeile{"Anna  ", Anna, "40", "7"},
                                                         Legendenzeile{"Bernd  ", Bernd, "35", "0"},
                                                         ohne,
                                                         ohne,
                                                         ohne,
                                                         ohne,
                                                         ohne,
                                                         ohne,
                                                         ohne};
    EXPECT_EQ(legende(s), erwartet);
}

}  // namespace
}  // namespace kalimbo::grafik
