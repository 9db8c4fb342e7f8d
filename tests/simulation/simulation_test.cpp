// The table a player's tips would have produced, and how far it lies from the real one.
#include "simulation/abweichung.h"
#include "simulation/vorhersage.h"

#include <gtest/gtest.h>

#include "reports/blattspiele.h"
#include "testdaten.h"

namespace kalimbo {
namespace {

class VorhersageEchteSaison : public testing::TestWithParam<const char*> {};

// Tips that equal the results predict the real table: every counter, the order with its ties and the rows
// beyond the league, as the league table counts them independently.
TEST_P(VorhersageEchteSaison, TippsGleichErgebnissenErgebenDieEchteTabelle) {
    Spielstand s;
    s.oeffne(test::saison(GetParam()));
    s.Tipp[2] = s.Ergebnis;
    test::setzeTipps(s, 2, 26, "9:0 0:9 9:9");  // on a matchday that is not selected
    test::setzeAuswahl(s, "0-24, 30");
    zaehleTabelle(s, false);
    const Tabellenzeilen vorhersage = vorhergesagteTabelle(s, 2);
    for (int t = 0; t <= MaxTeams; ++t)
        EXPECT_EQ(vorhersage[t], s.Tabelle[t]) << t;
}

INSTANTIATE_TEST_SUITE_P(Daten, VorhersageEchteSaison, testing::Values(test::Saison18, test::Saison20));

// Matchday 0 of the 18-team game pairs 17-0, 1-16, 2-15, ... 8-9. Anna tips every home team to win 1:0; in
// reality every away team won 0:2. Equal in points, difference and goals: team order.
TEST(Vorhersage, PlaetzeMitDenTatsaechlichenPunkten) {
    Spielstand s = test::kleinesSpiel(18);
    test::setzeAuswahl(s, "0");
    test::setzeTipps(s, 0, 0, "1:0 1:0 1:0 1:0 1:0 1:0 1:0 1:0 1:0");
    test::setzeErgebnisse(s, 0, "0:2 0:2 0:2 0:2 0:2 0:2 0:2 0:2 0:2");
    zaehleTabelle(s, false);
    std::string plaetze;
    for (const Vorhersageplatz& p : vorhersageNachPlatz(s, vorhergesagteTabelle(s, 0)))
        plaetze += std::to_string(p.team) + ':' + std::to_string(p.tatsaechlichePunkte) + ' ';
    EXPECT_EQ(plaetze, "1:0 2:0 3:0 4:0 5:0 6:0 7:0 8:0 17:0 0:3 9:3 10:3 11:3 12:3 13:3 14:3 15:3 16:3 ");

    Spielstand heim20 = s, gast20 = s;
    heim20.Paarung[0][3][0] = 20;
    gast20.Paarung[0][4][1] = 20;
    test::setzeAuswahl(s, "0, 17");  // team 0 plays both matchdays
    test::setzeTipps(s, 0, 0, "0:20000");
    test::setzeTipps(s, 0, 17, "20000:0");
    EXPECT_EQ(test::fehler([&] { vorhergesagteTabelle(s, 0); }), "Überlauf");
    for (const Spielstand& falsch : {heim20, gast20})
        EXPECT_EQ(test::fehler([&] { vorhergesagteTabelle(falsch, 0); }),
                  "Index außerhalb des gültigen Bereichs");
}

TEST(Vorhersage, SpielerWahl) {
    Spielstand s = test::kleinesSpiel(20);
    s.Spielername[5] = "Bernd";  // the same name in a higher slot
    s.Teilnehmer[5] = 1;
    s.Teilnehmer[1] = 0;
    EXPECT_EQ(waehlbareSpieler(s), (std::vector<i16>{0, 2, 3, 5}));
    const std::tuple<const char*, i16, i16> faelle[] = {
        {"Carl", 0, 2},  {"Bernd", 3, 1},   // the first slot with the name, taking part or not
        {"", 6, 4},                         // slots 4-8 have no name
        {"bernd", 3, 3}, {"Bernd ", 7, 7},  // no such name: the choice stays
    };
    for (const auto& [name, bisher, gewaehlt] : faelle)
        EXPECT_EQ(waehleSpieler(s, name, bisher), gewaehlt) << '"' << name << '"';
}

// A game of `teams` teams in which Anna predicts 1 point for every team (all matches of matchday 0 tipped
// 0:0) and the real table holds 1 - d[t] points, so that team t deviates by d[t] (0 for the teams not named).
Spielstand mitAbweichungen(int teams, const std::vector<i16>& d) {
    Spielstand s = test::kleinesSpiel(teams);
    test::setzeAuswahl(s, "0");
    for (int t = 0; t < teams; ++t)
        s.Tabelle[t].Punkte =
            static_cast<i16>(1 - (t < static_cast<int>(d.size()) ? d[static_cast<std::size_t>(t)] : 0));
    return s;
}

std::string bericht(const Spielstand& s, std::string_view trenner = ".") {
    return abweichungsbericht(s, 0, vorhergesagteTabelle(s, 0), trenner);
}

// 20 teams with every kind of deviation; 18 teams all predicted exactly: every line with the sign " ", the
// figures 0,00 and empty over- and under-rated groups without figures; every kind of deviation sorted by size
// and aligned, the groups in team order.
TEST(Abweichungsbericht, GoldeneBerichte) {
    EXPECT_EQ(bericht(test::blattspiel20()), test::testdatei("berichte/simulation-20.txt"));
    EXPECT_EQ(bericht(mitAbweichungen(18, {}), ","), test::testdatei("berichte/simulation-genau-18.txt"));
    EXPECT_EQ(bericht(mitAbweichungen(20, {9, -10, 10, -9, 5, -5, 0, 1})),
              test::testdatei("berichte/simulation-sortiert-20.txt"));
    // The figures of all teams in double precision, those of a group in single precision: eight teams with
    // the sum 9 (1.125 rounds up to 1.13); all 18 teams over-rated with squares summing to 3829 (the root of
    // the single-precision quotient is 14.59, that of the double one 14.58); only under-rated teams.
    EXPECT_EQ(bericht(mitAbweichungen(20, {1, 1, 1, 1, 1, 1, 1, 2})),
              test::testdatei("berichte/simulation-acht-20.txt"));
    std::vector<i16> alle(17, 15);
    alle.push_back(2);
    EXPECT_EQ(bericht(mitAbweichungen(18, alle)),
              test::testdatei("berichte/simulation-ueberschaetzt-18.txt"));
    EXPECT_EQ(bericht(mitAbweichungen(20, {-3, 0, -4})),
              test::testdatei("berichte/simulation-unterschaetzt-20.txt"));
}

TEST(Abweichungsbericht, UeberlaufDerGesamtsummen) {
    Spielstand differenz = mitAbweichungen(20, {});
    differenz.Tabelle[4].Punkte = -32767;  // 1 - (-32767) leaves 16 bits
    for (const Spielstand& s :
         {mitAbweichungen(20, {0, 0, -182}),                       // the square of a deviation
          mitAbweichungen(20, {100, -100, 100, 100}), differenz})  // the sum of the squares
        EXPECT_EQ(test::fehler([&] { bericht(s); }), "Überlauf");
}

}  // namespace
}  // namespace kalimbo
