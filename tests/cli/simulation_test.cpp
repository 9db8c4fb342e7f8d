#include "cli/simulation.h"

#include <gtest/gtest.h>

#include <algorithm>

#include "cli/lauf.h"
#include "reports/blattspiele.h"
#include "state/cp1252.h"
#include "state/spieldatei.h"
#include "testdaten.h"

namespace kalimbo::cli {
namespace {

using test::Lauf;
using test::starte;

// The game of the golden report; Bernd's tips are set to the results, so his predicted table is the
// real one.
std::string speichere(const test::TempOrdner& ordner) {
    Spielstand s = test::blattspiel20();
    s.Tipp[1] = s.Ergebnis;
    s.kopiereArbeitInDatei();
    const std::string pfad = (ordner / "spiel.tip").string();
    speichereSpieldatei(pfad, s);
    return pfad;
}

TEST(CliSimulation, BerichtWieGebaut) {
    test::TempOrdner ordner;
    const std::string spiel = speichere(ordner);
    const std::string bericht = test::testdatei("berichte/simulation-20.txt");
    std::string komma = bericht;  // the only points in the report are the decimal points
    std::replace(komma.begin(), komma.end(), '.', ',');
    const std::vector<std::pair<std::vector<std::string>, std::string>> faelle{
        {{"simulation", spiel, "0"}, bericht},
        {{"simulation", spiel, "0", "--komma"}, komma},
        {{"simulation", spiel, "0", "--cp1252"}, textNachCp1252(bericht)},
    };
    for (const auto& [aufruf, erwartet] : faelle) {
        const Lauf lauf = starte(aufruf);
        EXPECT_EQ(lauf.code, 0);
        EXPECT_EQ(lauf.fehler, "");
        EXPECT_EQ(lauf.aus, erwartet) << testing::PrintToString(aufruf);
    }
}

TEST(CliSimulation, VorhersageImFormatDerTabelle) {
    test::TempOrdner ordner;
    const std::string spiel = speichere(ordner);
    const Lauf tabelle = starte({"tabelle", spiel});
    const Lauf vorhersage = starte({"vorhersage", spiel, "1"});
    EXPECT_EQ(vorhersage.code, 0);
    EXPECT_EQ(vorhersage.aus, tabelle.aus);
    // Anna's own table: VfB Fürth-Süd wins twice and draws once in her tips.
    const std::string anna = starte({"vorhersage", spiel, "0"}).aus;
    EXPECT_EQ(anna.substr(0, anna.find('\n') + 1), "1\tVfB Fürth-Süd\t7\t5:2\t3\t2\t1\t0\n");
}

TEST(CliSimulation, FalscherAufruf) {
    for (const std::vector<std::string>& aufruf :
         std::vector<std::vector<std::string>>{{"simulation", "a.tip"},
                                               {"simulation", "a.tip", "9"},
                                               {"vorhersage", "a.tip", "0", "--komma"},
                                               {"vorhersage", "a.tip"},
                                               {"vorhersage", "a.tip", "x"}}) {
        const Lauf lauf = starte(aufruf);
        EXPECT_EQ(lauf.code, 2) << testing::PrintToString(aufruf);
        EXPECT_EQ(lauf.aus, "");
    }
}

}  // namespace
}  // namespace kalimbo::cli
