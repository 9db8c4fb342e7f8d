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

// Saves a game; the game of the 20-team golden texts, opened as the window opens it, shows matchday
// 2, the state the golden texts were built from.
std::string speichere(const test::TempOrdner& ordner, Spielstand s, const std::string& name = "spiel.tip") {
    s.kopiereArbeitInDatei();
    const std::string pfad = (ordner / name).string();
    speichereSpieldatei(pfad, s);
    return pfad;
}

std::string ersetze(std::string text, const std::string& alt, const std::string& neu) {
    text.replace(text.find(alt), alt.size(), neu);
    return text;
}

TEST(CliBerichte, DruckenDenTextWieGebaut) {
    test::TempOrdner ordner;
    const std::string spiel = speichere(ordner, test::blattspiel20());
    const std::string spieler = test::testdatei("berichte/spielerinfo-20.txt");
    const std::string team = test::testdatei("berichte/teaminfo-20.txt");
    const std::string bericht = test::testdatei("berichte/simulation-20.txt");
    std::string komma = bericht;  // the only points in the report are the decimal points
    std::replace(komma.begin(), komma.end(), '.', ',');
    const std::vector<std::pair<std::vector<std::string>, std::string>> faelle{
        {{"spielerinfo", spiel, "0"}, spieler},
        {{"spielerinfo", spiel, "0", "--komma"},
         ersetze(ersetze(spieler, "\t1.43\r\n", "\t1,43\r\n"), "\t14.33\r\n", "\t14,33\r\n")},
        {{"spielerinfo", "--cp1252", spiel, "0"}, textNachCp1252(spieler)},
        {{"teaminfo", spiel, "2"}, team},
        {{"teaminfo", spiel, "2", "--cp1252", "--komma"}, textNachCp1252(team)},
        {{"simulation", spiel, "0"}, bericht},
        {{"simulation", spiel, "0", "--komma"}, komma},
        {{"simulation", spiel, "0", "--cp1252"}, textNachCp1252(bericht)},
    };
    for (const auto& [aufruf, erwartet] : faelle) {
        const Lauf lauf = starte(aufruf);
        EXPECT_EQ(lauf.code, 0) << testing::PrintToString(aufruf);
        EXPECT_EQ(lauf.fehler, "");
        EXPECT_EQ(lauf.aus, erwartet) << testing::PrintToString(aufruf);
    }
    EXPECT_NE(textNachCp1252(team).find("Torverh\xE4ltnis"), std::string::npos);  // one byte per umlaut
}

TEST(CliBerichte, OhneAktuellenSpieltagNichtsUndLaufzeitfehler) {
    test::TempOrdner ordner;
    Spielstand ohne = test::blattspiel20();
    ohne.AktSpieltagGlobal = KeinAktuellerSpieltag;
    const std::string ohneTag = speichere(ordner, ohne, "ohne.tip");
    for (const char* befehl : {"spielerinfo", "teaminfo"}) {
        const Lauf lauf = starte({befehl, ohneTag, "1"});
        EXPECT_EQ(lauf.code, 0);
        EXPECT_EQ(lauf.aus, "");
        EXPECT_EQ(lauf.fehler, "");
    }

    Spielstand leer = test::blattspiel20();
    test::setzeAuswahl(leer, "");  // no matchday counts: the averages divide by zero
    const Lauf lauf = starte({"spielerinfo", speichere(ordner, leer, "leer.tip"), "0"});
    EXPECT_EQ(lauf.code, 1);
    EXPECT_EQ(lauf.aus, "");
    EXPECT_EQ(lauf.fehler, "Fehler: Division durch Null\n");
}

TEST(CliBerichte, VorhersageImFormatDerTabelle) {
    test::TempOrdner ordner;
    Spielstand s = test::blattspiel20();
    s.Tipp[1] = s.Ergebnis;  // Bernd's tips are the results: his table is the real one
    const std::string spiel = speichere(ordner, s);
    const Lauf vorhersage = starte({"vorhersage", spiel, "1"});
    EXPECT_EQ(vorhersage.code, 0);
    EXPECT_EQ(vorhersage.aus, starte({"tabelle", spiel}).aus);
    // Anna's own table: VfB Fürth-Süd wins twice and draws once in her tips.
    const std::string anna = starte({"vorhersage", spiel, "0"}).aus;
    EXPECT_EQ(anna.substr(0, anna.find('\n') + 1), "1\tVfB Fürth-Süd\t7\t5:2\t3\t2\t1\t0\n");
}

TEST(CliBerichte, FalscherAufruf) {
    const std::vector<std::vector<std::string>> aufrufe{
        {"spielerinfo", "a.tip"},     {"spielerinfo", "a.tip", "9"},           {"teaminfo", "a.tip", "20"},
        {"teaminfo", "a.tip", "-1"},  {"spielerinfo", "a.tip", "0", "--alle"}, {"teaminfo", "a.tip", "x"},
        {"simulation", "a.tip", "9"}, {"vorhersage", "a.tip", "0", "--komma"}, {"vorhersage", "a.tip"},
    };
    for (const auto& aufruf : aufrufe) {
        const Lauf lauf = starte(aufruf);
        EXPECT_EQ(lauf.code, 2) << testing::PrintToString(aufruf);
        EXPECT_EQ(lauf.aus, "");
        EXPECT_NE(lauf.fehler.find("AUSGABE:\n  --cp1252"), std::string::npos);
    }
    const std::string meldung = starte({"spielerinfo", "a.tip", "9"}).fehler;
    EXPECT_EQ(meldung.substr(0, meldung.find('\n')),
              "Der Spieler P muss eine ganze Zahl von 0 bis 8 sein, nicht „9“.");
}

}  // namespace
}  // namespace kalimbo::cli
