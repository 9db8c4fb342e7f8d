#include "scoring/regeln.h"

#include <gtest/gtest.h>

#include "testdaten.h"

namespace kalimbo {
namespace {

TEST(Regel, TrefferartJeTipp) {
    // Result, tip, kind: 0 exact, 1 margin, 2 tendency, -1 none.
    const std::array<i16, 5> faelle[] = {
        {3, 0, 3, 0, 0},  {3, 0, 4, 1, 1},  {3, 0, 2, 1, 2}, {3, 0, 1, 1, -1},
        {3, 0, 0, 2, -1}, {1, 1, 1, 1, 0},  {1, 1, 2, 2, 2},  // a draw is never a margin hit
        {1, 1, 0, 0, 2},  {1, 1, 2, 1, -1}, {0, 2, 1, 3, 1}, {0, 2, 0, 1, 2},
        {0, 2, 2, 0, -1}, {2, 0, 3, 1, 1},  {0, 0, 0, 0, 0},  // unplayed, tipped 0:0
    };
    for (const auto& [heim, aus, tippHeim, tippAus, art] : faelle)
        EXPECT_EQ(klassifiziere(tippHeim, tippAus, heim, aus), art)
            << heim << ':' << aus << ' ' << tippHeim << ':' << tippAus;
    EXPECT_EQ(test::fehler([] { klassifiziere(-32768, 1, 0, 1); }), "Überlauf");
    EXPECT_EQ(test::fehler([] { klassifiziere(0, 1, 32767, -1); }), "Überlauf");
    EXPECT_EQ(klassifiziere(32767, 0, 32767, 0), 0);
}

TEST(Regel, EigeneRegelBehaeltPunkteUndFarbenUnbekannteAendertNichts) {
    Spielstand s;
    s.setModus(0, 7);
    s.setFarbeMod(1, rgb(1, 2, 3));
    waehleRegel(s, ModusEigeneRegel);
    EXPECT_EQ(s.Modus, 3);
    EXPECT_EQ(s.ModusPunkte, (Feld<i16, 3>{{7, 2, 1}}));
    EXPECT_EQ(s.getModusFarbe(1), rgb(1, 2, 3));
    for (i16 modus = 0; modus < 3; ++modus) {
        waehleRegel(s, modus);
        for (int art = 0; art < 3; ++art) {
            EXPECT_EQ(s.ModusPunkte[art], FesteRegeln[modus].punkte[art]) << modus;
            EXPECT_EQ(s.ModusFarbe[art], FesteRegeln[modus].farben[art]) << modus;
        }
    }
    const Spielstand vorher = s;
    for (const i16 modus : {i16{-1}, i16{4}})
        EXPECT_EQ(test::fehler([&] { waehleRegel(s, modus); }), "Index außerhalb des gültigen Bereichs");
    EXPECT_EQ(s.Modus, 2);
    EXPECT_EQ(s.ModusPunkte, vorher.ModusPunkte);
}

}  // namespace
}  // namespace kalimbo
