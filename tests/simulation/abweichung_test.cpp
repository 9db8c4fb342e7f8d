#include "simulation/abweichung.h"

#include <gtest/gtest.h>

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

TEST(Abweichungsbericht, GoldenesKleinesSpiel) {
    const Spielstand s = test::blattspiel20();
    EXPECT_EQ(bericht(s), test::testdatei("berichte/simulation-20.txt"));
}

TEST(Abweichungsbericht, AlleGenauGetroffen) {
    EXPECT_EQ(bericht(mitAbweichungen(abweichungen(18, {})), ","), test::crlf(R"(
 Spieler: Anna

 Die punktemäßigen Abweichungen
 [betragsmäßig sortiert]
 -
     0→FC Ahrensfelde
     0→Borussia Bärstadt
     0→SV Calmbach
     0→TuS Dörpen
     0→Eintracht Elsdorf
     0→VfB Fürth-Süd
     0→SC Gmünd
     0→Hansa Heide
     0→Union Ilmenau
     0→Jahn Jübek
     0→Kickers Kölln
     0→Lok Lübars
     0→MSV Möhnesee
     0→Concordia Nörten
     0→Olympia Oese
     0→Preußen Plön
     0→Rot-Weiß Rüthen
     0→Sportfreunde Süchteln


 Varianz: →→→0,00
 Standardabweichung: →→0,00
 Durchschnittsabweichung: →0,00



 Richtig eingeschätzte Mannschaften
 -
   FC Ahrensfelde
   Borussia Bärstadt
   SV Calmbach
   TuS Dörpen
   Eintracht Elsdorf
   VfB Fürth-Süd
   SC Gmünd
   Hansa Heide
   Union Ilmenau
   Jahn Jübek
   Kickers Kölln
   Lok Lübars
   MSV Möhnesee
   Concordia Nörten
   Olympia Oese
   Preußen Plön
   Rot-Weiß Rüthen
   Sportfreunde Süchteln


 Überschätzte Mannschaften [unsortiert]
 -


 Unterschätzte Mannschaften [unsortiert]
 -
)"));
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
    EXPECT_EQ(
        text.substr(text.find(" Überschätzte"), text.find(" Unterschätzte") - text.find(" Überschätzte")),
        test::crlf(R"(
 Überschätzte Mannschaften [unsortiert]
 -
    9 FC Ahrensfelde
   10 SV Calmbach
    5 Eintracht Elsdorf
    1 Hansa Heide


 Varianz: →→→51.75
 Standardabweichung: →→7.19
 Durchschnittsabweichung: →6.25


)"));
}

struct Gruppenfall {
    const char* name;
    std::vector<i16> d;
    const char* gesamt;  // the figures over all teams
    const char* ende;    // the report from " Überschätzte" on
};

void PrintTo(const Gruppenfall& f, std::ostream* aus) {
    *aus << f.name;
}

class Gruppenkennzahlen : public testing::TestWithParam<Gruppenfall> {};

TEST_P(Gruppenkennzahlen, GesamtInDoppelterGruppenInEinfacherGenauigkeit) {
    const std::string text = bericht(mitAbweichungen(GetParam().d));
    const auto start = text.find(" Varianz");
    EXPECT_EQ(text.substr(start, text.find("\r\n\r\n", start) + 2 - start), test::crlf(GetParam().gesamt));
    EXPECT_EQ(text.substr(text.find(" Überschätzte")), test::crlf(GetParam().ende));
}

INSTANTIATE_TEST_SUITE_P(
    Faelle, Gruppenkennzahlen,
    testing::Values(
        // Eight teams, sum 9: 1.125 rounds up to 1.13.
        Gruppenfall{"AchtTeamsUngeradeSumme", abweichungen(20, {1, 1, 1, 1, 1, 1, 1, 2}), R"(
 Varianz: →→→0.55
 Standardabweichung: →→0.74
 Durchschnittsabweichung: →0.45
)",
                    R"(
 Überschätzte Mannschaften [unsortiert]
 -
    1 FC Ahrensfelde
    1 Borussia Bärstadt
    1 SV Calmbach
    1 TuS Dörpen
    1 Eintracht Elsdorf
    1 VfB Fürth-Süd
    1 SC Gmünd
    2 Hansa Heide


 Varianz: →→→1.38
 Standardabweichung: →→1.17
 Durchschnittsabweichung: →1.13


 Unterschätzte Mannschaften [unsortiert]
 -
)"},
        // All 18 teams over-rated, squares summing to 3829: the root of the
        // single-precision quotient gives 14.59, that of the double one 14.58.
        Gruppenfall{"AchtzehnTeamsEinfacheGenauigkeit",
                    abweichungen(18, {15, 15, 15, 15, 15, 15, 15, 15, 15, 15, 15, 15, 15, 15, 15, 15, 15, 2}),
                    R"(
 Varianz: →→→212.72
 Standardabweichung: →→14.58
 Durchschnittsabweichung: →14.28
)",
                    R"(
 Überschätzte Mannschaften [unsortiert]
 -
   15 FC Ahrensfelde
   15 Borussia Bärstadt
   15 SV Calmbach
   15 TuS Dörpen
   15 Eintracht Elsdorf
   15 VfB Fürth-Süd
   15 SC Gmünd
   15 Hansa Heide
   15 Union Ilmenau
   15 Jahn Jübek
   15 Kickers Kölln
   15 Lok Lübars
   15 MSV Möhnesee
   15 Concordia Nörten
   15 Olympia Oese
   15 Preußen Plön
   15 Rot-Weiß Rüthen
    2 Sportfreunde Süchteln


 Varianz: →→→212.72
 Standardabweichung: →→14.59
 Durchschnittsabweichung: →14.28


 Unterschätzte Mannschaften [unsortiert]
 -
)"},
        Gruppenfall{"NurUnterschaetzte", abweichungen(20, {-3, 0, -4}), R"(
 Varianz: →→→1.25
 Standardabweichung: →→1.12
 Durchschnittsabweichung: →0.35
)",
                    R"(
 Überschätzte Mannschaften [unsortiert]
 -


 Unterschätzte Mannschaften [unsortiert]
 -
    3 FC Ahrensfelde
    4 SV Calmbach


 Varianz: →→→12.50
 Standardabweichung: →→3.54
 Durchschnittsabweichung: →3.50
)"}),
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
