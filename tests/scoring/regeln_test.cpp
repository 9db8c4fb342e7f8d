// The rules: the kind of hit of a tip, the points and colours of a rule, the order of the league table.
#include "scoring/regeln.h"
#include "scoring/tabelle.h"

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

// Points, goals and goals against of teams 0..3, and the order they end in, best first. (The counting of the
// table is held against the plain evaluation in aequivalenz_test.cpp.)
TEST(Tabelle, PunkteDannDifferenzDannToreDannMannschaft) {
    const std::pair<std::array<std::array<i16, 3>, 4>, std::array<i16, 4>> faelle[] = {
        {{{{1, 5, 0}, {3, 0, 5}, {0, 9, 0}, {2, 1, 1}}}, {1, 3, 0, 2}},  // points
        {{{{3, 2, 1}, {3, 3, 1}, {3, 5, 5}, {3, 1, 4}}}, {1, 0, 2, 3}},  // difference
        {{{{3, 1, 0}, {3, 2, 1}, {3, 3, 2}, {1, 0, 0}}}, {2, 1, 0, 3}},  // goals
        {{{{3, 2, 2}, {4, 0, 0}, {3, 2, 2}, {3, 2, 2}}}, {1, 0, 2, 3}},  // team index
        {{{{0, 0, 3}, {0, 2, 3}, {0, 0, 1}, {0, 1, 4}}}, {1, 2, 3, 0}},  // negative differences
    };
    for (const auto& [zeilen, erwartet] : faelle) {
        Spielstand s;
        s.AnzTeams = 3;
        for (int t = 0; t < 4; ++t)
            std::tie(s.Tabelle[t].Punkte, s.Tabelle[t].Tore, s.Tabelle[t].Gegentore) =
                std::tuple_cat(zeilen[t]);
        sortiereTabelle(s.Tabelle, s.AnzTeams);
        EXPECT_EQ((std::array{s.DiesTeam(0), s.DiesTeam(1), s.DiesTeam(2), s.DiesTeam(3)}), erwartet);
        EXPECT_EQ((std::array{teamAufPlatz(s.Tabelle, 3, 0), teamAufPlatz(s.Tabelle, 3, 3)}),
                  (std::array{erwartet[0], erwartet[3]}));
    }
}

TEST(Tabelle, PositionenMuessenEindeutigSein) {
    Spielstand s;
    s.AnzTeams = 3;
    s.Tabelle[1].Punkte = 3;
    s.Tabelle[2].Tabellenplatz = 0;
    const auto vorher = s.Tabelle;
    EXPECT_EQ(test::fehler([&] { sortiereTabelle(s.Tabelle, 3); }), "Index außerhalb des gültigen Bereichs");
    EXPECT_EQ(test::fehler([&] { sortiereTabelle(s.Tabelle, 21); }), "Index außerhalb des gültigen Bereichs");
    EXPECT_EQ(s.Tabelle, vorher);
    // teamAufPlatz takes the last of several rows on one position, and team 0 for a position nobody holds.
    EXPECT_EQ((std::array{teamAufPlatz(s.Tabelle, 3, 0), teamAufPlatz(s.Tabelle, 2, 3)}),
              (std::array<i16, 2>{2, 0}));
}

}  // namespace
}  // namespace kalimbo
