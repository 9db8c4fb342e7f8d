#include "simulation/abweichung.h"

#include <gtest/gtest.h>

#include "reports/blattspiele.h"
#include "simulation/vorhersage.h"
#include "testdaten.h"

namespace kalimbo {
namespace {

// A game of `teams` teams in which Anna predicts 1 point for every team (all matches of matchday 0
// tipped 0:0) and the real table holds 1 - d[t] points, so that team t deviates by d[t] (0 for
// the teams not named).
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

// 20 teams with every kind of deviation; 18 teams all predicted exactly: every line with the sign
// " ", the figures 0,00 and empty over- and under-rated groups without figures; every kind of
// deviation sorted by size and aligned, the groups in team order.
TEST(Abweichungsbericht, GoldeneBerichte) {
    EXPECT_EQ(bericht(test::blattspiel20()), test::testdatei("berichte/simulation-20.txt"));
    EXPECT_EQ(bericht(mitAbweichungen(18, {}), ","), test::testdatei("berichte/simulation-genau-18.txt"));
    EXPECT_EQ(bericht(mitAbweichungen(20, {9, -10, 10, -9, 5, -5, 0, 1})),
              test::testdatei("berichte/simulation-sortiert-20.txt"));
}

// The figures of all teams in double precision, those of the groups in single precision.
TEST(Abweichungsbericht, GesamtInDoppelterGruppenInEinfacherGenauigkeit) {
    const std::tuple<int, std::vector<i16>, std::vector<std::string>> faelle[] = {
        // Eight teams, sum 9: 1.125 rounds up to 1.13.
        {20, {1, 1, 1, 1, 1, 1, 1, 2}, {"0.55", "0.74", "0.45", "1.38", "1.17", "1.13"}},
        // All 18 teams over-rated, squares summing to 3829: the root of the single-precision
        // quotient is 14.59, that of the double one 14.58.
        {18,
         {15, 15, 15, 15, 15, 15, 15, 15, 15, 15, 15, 15, 15, 15, 15, 15, 15, 2},
         {"212.72", "14.58", "14.28", "212.72", "14.59", "14.28"}},
        {20, {-3, 0, -4}, {"1.25", "1.12", "0.35", "12.50", "3.54", "3.50"}},  // only under-rated
    };
    for (const auto& [teams, d, zahlen] : faelle) {
        std::string erwartet;
        for (std::size_t i = 0; i < zahlen.size(); i += 3)
            erwartet += " Varianz: \t\t\t" + zahlen[i] + "\r\n Standardabweichung: \t\t" + zahlen[i + 1] +
                        "\r\n Durchschnittsabweichung: \t" + zahlen[i + 2] + "\r\n";
        std::string ist;
        const std::string text = bericht(mitAbweichungen(teams, d));
        for (auto start = text.find(" Varianz"); start != std::string::npos;
             start = text.find(" Varianz", start + 1))
            ist += text.substr(start, text.find("\r\n", text.find(" Durchschnitt", start)) + 2 - start);
        EXPECT_EQ(ist, erwartet);
    }
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
