// An overflow during the evaluation names the figure that overflowed.
#include <gtest/gtest.h>

#include <functional>

#include "scoring/auswertung.h"
#include "testdaten.h"

namespace kalimbo {
namespace {

// Three teams, one match a matchday, three matchdays, all counted and all won 2:1 at home:
// Xanten - Ypsilon, Xanten - Zell, Ypsilon - Zell. Anna and Bernd take part; nobody else does.
Spielstand kleineLiga() {
    Spielstand s;
    s.AnzTeams = 2;
    s.AnzSpieltage = 2;
    s.AnzSpiele = 0;
    s.Teamname[0] = "Xanten";
    s.Teamname[1] = "Ypsilon";
    s.Teamname[2] = "Zell";
    s.Paarung[0][0] = {{0, 1}};
    s.Paarung[1][0] = {{0, 2}};
    s.Paarung[2][0] = {{1, 2}};
    for (int tag = 0; tag <= 2; ++tag)
        test::setzeErgebnisse(s, tag, "2:1");
    s.Spielername[0] = "Anna";
    s.Spielername[1] = "Bernd";
    s.Teilnehmer = {{1, 1, 0, 0, 0, 0, 0, 0, 0}};
    test::setzeAuswahl(s, "0-2");
    return s;
}

// Each match of kleineLiga() twice a matchday, both won 2:1.
void zweiSpiele(Spielstand& s) {
    s.AnzSpiele = 1;
    for (int tag = 0; tag <= 2; ++tag) {
        s.Paarung[tag][1] = s.Paarung[tag][0];
        test::setzeErgebnisse(s, tag, "2:1 2:1");
    }
}

struct Fall {
    const char* name;
    std::function<void(Spielstand&)> aendere;
    std::string meldung;
};

void PrintTo(const Fall& f, std::ostream* aus) {
    *aus << f.name;
}

class UeberlaufOrt : public testing::TestWithParam<Fall> {};

TEST_P(UeberlaufOrt, MeldungNenntWasUebergelaufenIst) {
    Spielstand s = kleineLiga();
    GetParam().aendere(s);
    try {
        werteAus(s, false);
        FAIL() << "no overflow";
    } catch (const Laufzeitfehler& e) {
        EXPECT_EQ(e.code(), Laufzeitfehler::Ueberlauf);
        EXPECT_EQ(e.what(), GetParam().meldung);
    }
}

// The own rule may give any 16-bit points; tips and results any 16-bit goals.
INSTANTIATE_TEST_SUITE_P(
    Faelle, UeberlaufOrt,
    testing::Values(Fall{"Ergebnis", [](Spielstand& s) { test::setzeErgebnisse(s, 2, "32767:-1"); },
                         "Überlauf beim Ergebnis des 1. Spiels am 3. Spieltag"},
                    Fall{"Tipp", [](Spielstand& s) { test::setzeTipps(s, 1, 1, "-2:32767"); },
                         "Überlauf beim Tipp von Spieler 2 („Bernd“) für das 1. Spiel am 2. Spieltag"},
                    Fall{"TippOhneName",
                         [](Spielstand& s) {
                             s.Spielername[1] = "";
                             test::setzeTipps(s, 1, 1, "-2:32767");
                         },
                         "Überlauf beim Tipp von Spieler 2 für das 1. Spiel am 2. Spieltag"},
                    Fall{"Spieltagspunkte",  // two exact tips of 20000 on matchday 2
                         [](Spielstand& s) {
                             zweiSpiele(s);
                             s.ModusPunkte = {{20000, 0, 0}};
                             test::setzeTipps(s, 1, 2, "2:1 2:1");
                         },
                         "Überlauf bei den Punkten von Spieler 2 („Bernd“) am 3. Spieltag"},
                    Fall{"Gesamtpunkte",  // 20000 on each of matchdays 0 and 1
                         [](Spielstand& s) {
                             s.ModusPunkte = {{20000, 0, 0}};
                             test::setzeTipps(s, 0, 0, "2:1");
                             test::setzeTipps(s, 0, 1, "2:1");
                         },
                         "Überlauf bei den Gesamtpunkten von Spieler 1 („Anna“)"},
                    Fall{"PunkteNachArt",  // two exact tips of 20000 and two margins of -20000: 0 in all
                         [](Spielstand& s) {
                             zweiSpiele(s);
                             s.ModusPunkte = {{20000, -20000, 0}};
                             test::setzeTipps(s, 0, 0, "2:1 3:2");
                             test::setzeTipps(s, 0, 1, "2:1 3:2");
                         },
                         "Überlauf bei den Punkten von Spieler 1 („Anna“) für ganz richtige Tipps"},
                    Fall{
                        "PunkteMitEinerMannschaft",  // Xanten's two matches give 40000, Ypsilon - Zell -20000
                        [](Spielstand& s) {
                            s.ModusPunkte = {{20000, 20000, -20000}};
                            test::setzeTipps(s, 0, 0, "2:1");
                            test::setzeTipps(s, 0, 1, "3:2");
                            test::setzeTipps(s, 0, 2, "3:0");
                        },
                        "Überlauf bei den Punkten von Spieler 1 („Anna“) aus Spielen von „Xanten“"},
                    Fall{"Tabellenzeile",
                         [](Spielstand& s) {
                             test::setzeErgebnisse(s, 0, "30000:0");
                             test::setzeErgebnisse(s, 1, "30000:0");
                         },
                         "Überlauf in der Tabellenzeile von „Xanten“"},
                    Fall{"Tordifferenz",  // 20000 goals for, -20000 against: each result fits
                         [](Spielstand& s) {
                             test::setzeErgebnisse(s, 0, "20000:0");
                             test::setzeErgebnisse(s, 1, "0:-20000");
                         },
                         "Überlauf bei der Tordifferenz von „Xanten“"}),
    [](const testing::TestParamInfo<Fall>& info) { return std::string(info.param.name); });

}  // namespace
}  // namespace kalimbo
