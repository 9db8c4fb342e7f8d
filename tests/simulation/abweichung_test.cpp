#include "simulation/abweichung.h"

#include <gtest/gtest.h>

#include <sstream>

#include "reports/blattspiele.h"
#include "simulation/vorhersage.h"
#include "testdaten.h"

namespace kalimbo {
namespace {

// A game of d.size() teams in which Anna predicts 1 point for every team (all matches of matchday
// 0 tipped 0:0) and the real table holds 1 - d[t] points, so that team t deviates by d[t].
Spielstand mitAbweichungen(const std::vector<i16>& d) {
    Spielstand s = test::kleinesSpiel(static_cast<int>(d.size()));
    test::setzeAuswahl(s, "0");
    for (int t = 0; t < static_cast<int>(d.size()); ++t)
        s.Tabelle[t].Punkte = static_cast<i16>(1 - d[static_cast<std::size_t>(t)]);
    return s;
}

std::string bericht(const Spielstand& s, std::string_view trenner = ".") {
    return abweichungsbericht(s, 0, vorhergesagteTabelle(s, 0), trenner);
}

std::vector<i16> abweichungen(int teams, std::initializer_list<i16> vorne) {
    std::vector<i16> d(vorne);
    d.resize(static_cast<std::size_t>(teams), 0);
    return d;
}

// 20 teams with every kind of deviation; 18 teams all predicted exactly: every line with the sign
// " ", the figures 0,00 and empty over- and under-rated groups without figures.
TEST(Abweichungsbericht, GoldeneBerichte) {
    EXPECT_EQ(bericht(test::blattspiel20()), test::testdatei("berichte/simulation-20.txt"));
    EXPECT_EQ(bericht(mitAbweichungen(abweichungen(18, {})), ","),
              test::testdatei("berichte/simulation-genau-18.txt"));
}

TEST(Abweichungsbericht, BetragsmaessigSortiertUndAusgerichtet) {
    const std::string text = bericht(mitAbweichungen(abweichungen(20, {9, -10, 10, -9, 5, -5, 0, 1})));
    const auto start = text.find(" -\r\n") + 4;
    EXPECT_EQ(text.substr(start, text.find("     0\t") - start), test::crlf(R"(
   -10→Borussia Bärstadt
   +10→SV Calmbach
   + 9→FC Ahrensfelde
   - 9→TuS Dörpen
   + 5→Eintracht Elsdorf
   - 5→VfB Fürth-Süd
   + 1→Hansa Heide
)"));
    const auto ueber = text.find(" -\r\n", text.find(" Überschätzte")) + 4;
    EXPECT_EQ(
        text.substr(ueber, text.find("\r\n\r\n", ueber) + 2 - ueber),
        test::crlf("    9 FC Ahrensfelde\n   10 SV Calmbach\n    5 Eintracht Elsdorf\n    1 Hansa Heide\n"));
}

// The three figure lines within text[von, bis); "" when there are none.
std::string zahlen(const std::string& text, std::size_t von, std::size_t bis) {
    const auto start = text.find(" Varianz", von);
    if (start >= bis) return "";
    return text.substr(start, text.find("\r\n", text.find(" Durchschnitt", start)) + 2 - start);
}

// "0.55 0.74 0.45" as the three figure lines; "" stays "".
std::string zahlen(const std::string& werte) {
    if (werte.empty()) return "";
    std::istringstream ein(werte);
    std::string v, s, d;
    ein >> v >> s >> d;
    return " Varianz: \t\t\t" + v + "\r\n Standardabweichung: \t\t" + s + "\r\n Durchschnittsabweichung: \t" +
           d + "\r\n";
}

struct Gruppenfall {
    const char* name;
    std::vector<i16> d;
    const char *gesamt, *ueber, *unter;  // variance, standard deviation, average deviation
};

void PrintTo(const Gruppenfall& f, std::ostream* aus) {
    *aus << f.name;
}

class Gruppenkennzahlen : public testing::TestWithParam<Gruppenfall> {};

TEST_P(Gruppenkennzahlen, GesamtInDoppelterGruppenInEinfacherGenauigkeit) {
    const std::string text = bericht(mitAbweichungen(GetParam().d));
    const auto richtig = text.find(" Richtig"), ueber = text.find(" Überschätzte"),
               unter = text.find(" Unterschätzte");
    EXPECT_EQ(zahlen(text, 0, richtig), zahlen(GetParam().gesamt));
    EXPECT_EQ(zahlen(text, ueber, unter), zahlen(GetParam().ueber));
    EXPECT_EQ(zahlen(text, unter, text.size()), zahlen(GetParam().unter));
}

INSTANTIATE_TEST_SUITE_P(Faelle, Gruppenkennzahlen,
                         testing::Values(
                             // Eight teams, sum 9: 1.125 rounds up to 1.13.
                             Gruppenfall{"AchtTeamsUngeradeSumme", abweichungen(20, {1, 1, 1, 1, 1, 1, 1, 2}),
                                         "0.55 0.74 0.45", "1.38 1.17 1.13", ""},
                             // All 18 teams over-rated, squares summing to 3829: the root of the
                             // single-precision quotient is 14.59, that of the double one 14.58.
                             Gruppenfall{"AchtzehnTeamsEinfacheGenauigkeit",
                                         abweichungen(18, {15, 15, 15, 15, 15, 15, 15, 15, 15, 15, 15, 15, 15,
                                                           15, 15, 15, 15, 2}),
                                         "212.72 14.58 14.28", "212.72 14.59 14.28", ""},
                             Gruppenfall{"NurUnterschaetzte", abweichungen(20, {-3, 0, -4}), "1.25 1.12 0.35",
                                         "", "12.50 3.54 3.50"}),
                         [](const auto& info) { return std::string(info.param.name); });

TEST(Abweichungsbericht, UeberlaufDerGesamtsummen) {
    Spielstand differenz = mitAbweichungen(abweichungen(20, {}));
    differenz.Tabelle[4].Punkte = -32767;  // 1 - (-32767) leaves 16 bits
    const std::vector<std::pair<const char*, Spielstand>> faelle{
        {"Quadrat einer Abweichung", mitAbweichungen(abweichungen(20, {0, 0, -182}))},
        {"Summe der Quadrate", mitAbweichungen(abweichungen(20, {100, -100, 100, 100}))},
        {"Differenz", differenz},
    };
    for (const auto& [name, spiel] : faelle) {
        try {
            bericht(spiel);
            ADD_FAILURE() << name;
        } catch (const Laufzeitfehler& e) {
            EXPECT_EQ(e.code(), Laufzeitfehler::Ueberlauf) << name;
        }
    }
}

}  // namespace
}  // namespace kalimbo
