#include "scoring/tabelle.h"

#include <gtest/gtest.h>

#include "testdaten.h"

namespace kalimbo {
namespace {

std::vector<int> reihenfolge(const Spielstand& s) {
    std::vector<int> teams;
    for (int platz = 0; platz <= s.AnzTeams; ++platz)
        teams.push_back(s.DiesTeam(platz));
    return teams;
}

struct Gleichstand {
    const char* name;
    std::array<std::array<i16, 3>, 4> zeilen;  // points, goals, goals against of teams 0..3
    std::vector<int> erwartet;                 // teams, best first
};

void PrintTo(const Gleichstand& g, std::ostream* aus) {
    *aus << g.name;
}

class TabellenSortierung : public testing::TestWithParam<Gleichstand> {};

TEST_P(TabellenSortierung, PunkteDannDifferenzDannToreDannMannschaft) {
    Spielstand s;
    s.AnzTeams = 3;
    for (int t = 0; t < 4; ++t) {
        const auto [punkte, tore, gegentore] = GetParam().zeilen[t];
        s.Tabelle[t].Punkte = punkte;
        s.Tabelle[t].Tore = tore;
        s.Tabelle[t].Gegentore = gegentore;
    }
    sortiereTabelle(s.Tabelle, s.AnzTeams);
    EXPECT_EQ(reihenfolge(s), GetParam().erwartet);
}

INSTANTIATE_TEST_SUITE_P(
    Faelle, TabellenSortierung,
    testing::Values(
        Gleichstand{"Punkte", {{{1, 5, 0}, {3, 0, 5}, {0, 9, 0}, {2, 1, 1}}}, {1, 3, 0, 2}},
        Gleichstand{"Differenz", {{{3, 2, 1}, {3, 3, 1}, {3, 5, 5}, {3, 1, 4}}}, {1, 0, 2, 3}},
        Gleichstand{"Tore", {{{3, 1, 0}, {3, 2, 1}, {3, 3, 2}, {1, 0, 0}}}, {2, 1, 0, 3}},
        Gleichstand{"Mannschaftsindex", {{{3, 2, 2}, {4, 0, 0}, {3, 2, 2}, {3, 2, 2}}}, {1, 0, 2, 3}},
        Gleichstand{"NegativeDifferenz", {{{0, 0, 3}, {0, 2, 3}, {0, 0, 1}, {0, 1, 4}}}, {1, 2, 3, 0}}),
    [](const auto& info) { return std::string(info.param.name); });

TEST(Tabelle, TeamAufPlatzNimmtDieLetzteZeile) {
    Tabellenzeilen tabelle;
    for (const auto& [team, platz] : {std::pair{0, 2}, {1, 1}, {2, 1}, {3, 0}, {4, 1}})
        tabelle[team].Tabellenplatz = static_cast<i16>(platz);
    // Row 4 lies beyond the highest team index 3; position 3 is nobody's.
    EXPECT_EQ(
        (std::array{teamAufPlatz(tabelle, 3, 0), teamAufPlatz(tabelle, 3, 1), teamAufPlatz(tabelle, 3, 3)}),
        (std::array<i16, 3>{3, 2, 0}));
}

TEST(Tabelle, PositionenMuessenEindeutigSein) {
    Spielstand s;
    s.AnzTeams = 3;
    s.Tabelle[1].Punkte = 3;
    s.Tabelle[2].Tabellenplatz = 0;
    const auto vorher = s.Tabelle;
    EXPECT_THROW(sortiereTabelle(s.Tabelle, 3), Laufzeitfehler);
    EXPECT_THROW(sortiereTabelle(s.Tabelle, 21), Laufzeitfehler);
    for (int t = 0; t < 4; ++t)
        EXPECT_EQ(s.Tabelle[t].Tabellenplatz, vorher[t].Tabellenplatz);
}

// First matchday of the 18-team season: Bayern München (0) - Bor. Mönchengladbach (1) 3:0.
class Bundesliga : public testing::Test {
  protected:
    void SetUp() override { s.oeffne(test::saison(test::Saison18)); }
    Spielstand s;
};

TEST_F(Bundesliga, HeimUndAuswaertsWerdenGetrenntGezaehlt) {
    test::setzeAuswahl(s, "0");
    test::setzeErgebnisse(s, 0, "3:0 1:1 0:2 0:0 0:0 0:0 0:0 0:0 0:0");
    const int gast2 = s.Paarung[0][1][1];
    const int heim3 = s.Paarung[0][2][0], gast3 = s.Paarung[0][2][1];
    zaehleTabelle(s, false);

    const Tabellenzeile& bayern = s.Tabelle[0];
    EXPECT_EQ(bayern.Name, "Bayern München");
    EXPECT_EQ((std::array{bayern.Punkte, bayern.HeimPunkte, bayern.Siege, bayern.HeimSiege, bayern.HeimTore,
                          bayern.HeimGegentore, bayern.AuswPunkte}),
              (std::array<i16, 7>{3, 3, 1, 1, 3, 0, 0}));
    const Tabellenzeile& gladbach = s.Tabelle[1];
    EXPECT_EQ((std::array{gladbach.Punkte, gladbach.Niederlagen, gladbach.AuswNiederlagen, gladbach.AuswTore,
                          gladbach.AuswGegentore, gladbach.HeimNiederlagen}),
              (std::array<i16, 6>{0, 1, 1, 0, 3, 0}));
    EXPECT_EQ(s.Tabelle[gast2].AuswUnentschieden, 1);
    EXPECT_EQ(s.Tabelle[gast2].AuswPunkte, 1);
    EXPECT_EQ(s.Tabelle[heim3].HeimNiederlagen, 1);
    EXPECT_EQ(s.Tabelle[gast3].AuswSiege, 1);
    EXPECT_EQ(s.Tabelle[gast3].AuswPunkte, 3);
    EXPECT_EQ(s.DiesTeam(0), 0);
    EXPECT_EQ(s.DiesTeam(1), gast3);
    EXPECT_EQ(s.DiesTeam(17), 1);
}

TEST_F(Bundesliga, AusgewaehlterUngespielterSpieltagZaehltNullZuNull) {
    test::setzeAuswahl(s, "5");
    for (int spiel = 0; spiel <= s.AnzSpiele; ++spiel)
        s.Ergebnis[5][spiel] = {{0, 0}};
    zaehleTabelle(s, false);
    for (int t = 0; t <= s.AnzTeams; ++t) {
        EXPECT_EQ(s.Tabelle[t].Punkte, 1);
        EXPECT_EQ(s.Tabelle[t].Unentschieden, 1);
        EXPECT_EQ(s.Tabelle[t].HeimUnentschieden + s.Tabelle[t].AuswUnentschieden, 1);
        EXPECT_EQ(s.Tabelle[t].Tabellenplatz, t);
    }
}

TEST_F(Bundesliga, OhneAuswahlBleibtAllesNullInMannschaftsfolge) {
    zaehleTabelle(s, false);
    for (int t = 0; t <= s.AnzTeams; ++t) {
        EXPECT_EQ(s.Tabelle[t].Name, s.Teamname[t]);
        EXPECT_EQ(s.getTabInfo(t, 3), TabInfo{std::string("0:0")});
        EXPECT_EQ(s.getTabInfo(t, 2), TabInfo{i16{0}});
        EXPECT_EQ(s.DiesTeam(t), t);
    }
}

TEST_F(Bundesliga, SonntagsspieleDesAktuellenSpieltagsZaehlenNicht) {
    test::setzeAuswahl(s, "0-1");
    s.AktSpieltagGlobal = 1;
    s.SonntagSpiele = {{0, 4}};
    Spielstand ohne = s;
    zaehleTabelle(s, true);
    zaehleTabelle(ohne, false);
    int spieleMit = 0, spieleOhne = 0;
    for (int t = 0; t <= s.AnzTeams; ++t) {
        spieleMit += s.Tabelle[t].Siege + s.Tabelle[t].Unentschieden + s.Tabelle[t].Niederlagen;
        spieleOhne += ohne.Tabelle[t].Siege + ohne.Tabelle[t].Unentschieden + ohne.Tabelle[t].Niederlagen;
    }
    EXPECT_EQ(spieleOhne, 2 * 18);
    EXPECT_EQ(spieleMit, 2 * 16);  // matchday 0's matches 0 and 4 still count
    for (const int spiel : {0, 4})
        for (const int seite : {0, 1}) {
            const Tabellenzeile& z = s.Tabelle[s.Paarung[1][spiel][seite]];
            EXPECT_EQ(z.Siege + z.Unentschieden + z.Niederlagen, 1) << z.Name;
        }
}

}  // namespace
}  // namespace kalimbo
