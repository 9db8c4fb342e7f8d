#include "scoring/regeln.h"

#include <gtest/gtest.h>

namespace kalimbo {
namespace {

struct Fall {
    i16 ergebnisHeim, ergebnisAus, tippHeim, tippAus;
    i16 art;
    std::array<i16, 3> punkte;  // of a hit under the 2-Punkte, 3-Punkte and 3-2-1 rule
    std::array<Farbe, 3> farbe;
};

void PrintTo(const Fall& f, std::ostream* aus) {
    *aus << "Ergebnis " << f.ergebnisHeim << ':' << f.ergebnisAus << ", Tipp " << f.tippHeim << ':'
         << f.tippAus;
}

class Klassifikation : public testing::TestWithParam<Fall> {};

TEST_P(Klassifikation, ArtPunkteUndFarbeUnterJederFestenRegel) {
    const Fall& f = GetParam();
    EXPECT_EQ(klassifiziere(f.tippHeim, f.tippAus, f.ergebnisHeim, f.ergebnisAus), f.art);
    for (i16 modus = 0; modus < 3; ++modus) {
        Spielstand s;
        waehleRegel(s, modus);
        if (f.art == KeinTreffer) continue;
        EXPECT_EQ(s.getModusPunkte(f.art), f.punkte[modus]) << regelName(modus);
        EXPECT_EQ(s.getModusFarbe(f.art), f.farbe[modus]) << regelName(modus);
    }
}

constexpr std::array<Farbe, 3> Voll{Rot, Rot, Rot};
constexpr std::array<Farbe, 3> Hoehe{Gruen, Gruen, Hellgelb};
constexpr std::array<Farbe, 3> Tendenz{Gruen, Gruen, Gruen};

INSTANTIATE_TEST_SUITE_P(Tipps, Klassifikation,
                         testing::Values(Fall{3, 0, 3, 0, 0, {2, 3, 3}, Voll},  //
                                         Fall{3, 0, 4, 1, 1, {1, 1, 2}, Hoehe},
                                         Fall{3, 0, 2, 1, 2, {1, 1, 1}, Tendenz},
                                         Fall{3, 0, 1, 1, -1, {}, {}}, Fall{3, 0, 0, 2, -1, {}, {}},
                                         Fall{1, 1, 1, 1, 0, {2, 3, 3}, Voll},
                                         Fall{1, 1, 2, 2, 2, {1, 1, 1}, Tendenz},  // never a margin hit
                                         Fall{1, 1, 0, 0, 2, {1, 1, 1}, Tendenz},
                                         Fall{1, 1, 2, 1, -1, {}, {}}, Fall{0, 2, 1, 3, 1, {1, 1, 2}, Hoehe},
                                         Fall{0, 2, 0, 1, 2, {1, 1, 1}, Tendenz},
                                         Fall{0, 2, 2, 0, -1, {}, {}}, Fall{2, 0, 3, 1, 1, {1, 1, 2}, Hoehe},
                                         Fall{0, 0, 0, 0, 0, {2, 3, 3}, Voll}));  // unplayed, tipped 0:0

TEST(Regel, EigeneRegelBehaeltPunkteUndFarben) {
    Spielstand s;
    s.setModus(0, 7);
    s.setFarbeMod(1, rgb(1, 2, 3));
    waehleRegel(s, ModusEigeneRegel);
    EXPECT_EQ(s.Modus, 3);
    EXPECT_EQ(s.getModusPunkte(0), 7);
    EXPECT_EQ(s.getModusFarbe(1), rgb(1, 2, 3));

    waehleRegel(s, 1);
    EXPECT_EQ(s.Modus, 1);
    EXPECT_EQ(s.ModusPunkte, (Feld<i16, 3>{{3, 1, 1}}));
    EXPECT_EQ(s.ModusFarbe, (Feld<Farbe, 3>{{Rot, Gruen, Gruen}}));
}

TEST(Regel, UnbekannteRegelAendertNichts) {
    for (const i16 modus : {i16{-1}, i16{4}}) {
        Spielstand s;
        s.Modus = 1;
        s.setModus(2, 9);
        try {
            waehleRegel(s, modus);
            ADD_FAILURE() << modus;
        } catch (const Laufzeitfehler& e) {
            EXPECT_EQ(e.code(), Laufzeitfehler::Index);
        }
        EXPECT_EQ(s.Modus, 1);
        EXPECT_EQ(s.getModusPunkte(2), 9);
    }
}

TEST(Regel, DifferenzDerToreWirdAufUeberlaufGeprueft) {
    EXPECT_THROW(klassifiziere(-32768, 1, 0, 1), Laufzeitfehler);
    EXPECT_THROW(klassifiziere(0, 1, 32767, -1), Laufzeitfehler);
    EXPECT_EQ(klassifiziere(32767, 0, 32767, 0), 0);
}

}  // namespace
}  // namespace kalimbo
