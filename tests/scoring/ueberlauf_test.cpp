// An overflow during the evaluation names the figure that overflowed.
#include <gtest/gtest.h>

#include <functional>

#include "scoring/auswertung.h"
#include "testdaten.h"

namespace kalimbo {
namespace {

// Three teams, one match a matchday, three matchdays, all counted and all won 2:1 at home: Xanten - Ypsilon,
// Xanten - Zell, Ypsilon - Zell. Anna and Bernd take part; nobody else does. `zwei`: each match twice a
// matchday.
Spielstand kleineLiga(bool zwei = false) {
    const test::Paarung paarung = [](int tag, int) { return std::array{tag == 2 ? 1 : 0, tag == 0 ? 1 : 2}; };
    Spielstand s = test::liga({"Xanten", "Ypsilon", "Zell"}, 3, paarung, "Anna Bernd");
    s.AnzSpiele = zwei ? 1 : 0;
    for (int tag = 0; tag <= 2; ++tag) {
        s.Paarung[tag][1] = s.Paarung[tag][0];
        test::setzeErgebnisse(s, tag, "2:1 2:1");
    }
    test::setzeAuswahl(s, "0-2");
    return s;
}

// The own rule may give any 16-bit points; tips and results any 16-bit goals.
TEST(Ueberlauf, MeldungNenntWasUebergelaufenIst) {
    using test::setzeErgebnisse, test::setzeTipps;
    const std::vector<std::tuple<bool, std::function<void(Spielstand&)>, std::string>> faelle{
        {false, [](Spielstand& s) { setzeErgebnisse(s, 2, "32767:-1"); },
         "beim Ergebnis des 1. Spiels am 3. Spieltag"},
        {false, [](Spielstand& s) { setzeTipps(s, 1, 1, "-2:32767"); },
         "beim Tipp von Spieler 2 („Bernd“) für das 1. Spiel am 2. Spieltag"},
        {false,
         [](Spielstand& s) {
             s.Spielername[1] = "";
             setzeTipps(s, 1, 1, "-2:32767");
         },
         "beim Tipp von Spieler 2 für das 1. Spiel am 2. Spieltag"},
        {true,  // two exact tips of 20000 on matchday 2
         [](Spielstand& s) {
             s.ModusPunkte = {{20000, 0, 0}};
             setzeTipps(s, 1, 2, "2:1 2:1");
         },
         "bei den Punkten von Spieler 2 („Bernd“) am 3. Spieltag"},
        {false,  // 20000 on each of matchdays 0 and 1
         [](Spielstand& s) {
             s.ModusPunkte = {{20000, 0, 0}};
             setzeTipps(s, 0, 0, "2:1");
             setzeTipps(s, 0, 1, "2:1");
         },
         "bei den Gesamtpunkten von Spieler 1 („Anna“)"},
        {true,  // two exact tips of 20000 and two margins of -20000: 0 in all
         [](Spielstand& s) {
             s.ModusPunkte = {{20000, -20000, 0}};
             setzeTipps(s, 0, 0, "2:1 3:2");
             setzeTipps(s, 0, 1, "2:1 3:2");
         },
         "bei den Punkten von Spieler 1 („Anna“) für ganz richtige Tipps"},
        {false,  // Xanten's two matches give 40000, Ypsilon - Zell -20000
         [](Spielstand& s) {
             s.ModusPunkte = {{20000, 20000, -20000}};
             setzeTipps(s, 0, 0, "2:1");
             setzeTipps(s, 0, 1, "3:2");
             setzeTipps(s, 0, 2, "3:0");
         },
         "bei den Punkten von Spieler 1 („Anna“) aus Spielen von „Xanten“"},
        {false,
         [](Spielstand& s) {
             setzeErgebnisse(s, 0, "30000:0");
             setzeErgebnisse(s, 1, "30000:0");
         },
         "in der Tabellenzeile von „Xanten“"},
        {false,  // 20000 goals for, -20000 against: each result fits
         [](Spielstand& s) {
             setzeErgebnisse(s, 0, "20000:0");
             setzeErgebnisse(s, 1, "0:-20000");
         },
         "bei der Tordifferenz von „Xanten“"},
    };
    for (const auto& [zwei, aendere, wobei] : faelle) {
        Spielstand s = kleineLiga(zwei);
        aendere(s);
        EXPECT_EQ(test::fehler([&] { werteAus(s, false); }), "Überlauf " + wobei);
    }
}

}  // namespace
}  // namespace kalimbo
