// The commands that print sheets, reports, pages, frequencies and the chart of a saved game.
#include <gtest/gtest.h>

#include <algorithm>
#include <regex>

#include "cli/aufruf.h"
#include "cli/lauf.h"
#include "graph/punktegrafik.h"
#include "graph/svg.h"
#include "kurzesspiel.h"
#include "reports/blattspiele.h"
#include "reports/bogenhtml.h"
#include "reports/spielerinfo.h"
#include "scoring/anzeige.h"
#include "state/cp1252.h"

namespace kalimbo::cli {
namespace {

using test::erfolg;
using test::starte;

// The game of the 20-team golden texts, opened as the window opens it, shows matchday 2, the state the golden
// texts were built from.
TEST(CliBerichte, DruckenDenTextWieGebaut) {
    test::TempOrdner ordner;
    Spielstand s = test::blattspiel20();
    const std::string spiel = (ordner / "spiel.tip").string(), ohne = (ordner / "ohne.tip").string(),
                      leer = (ordner / "leer.tip").string();
    test::speichereSpiel(s, spiel);
    const std::string spieler = test::testdatei("berichte/spielerinfo-20.txt");
    const std::string team = test::testdatei("berichte/teaminfo-20.txt");
    const std::string bericht = test::testdatei("berichte/simulation-20.txt");
    std::string komma = bericht;  // the only points in the report are the decimal points
    std::replace(komma.begin(), komma.end(), '.', ',');
    const std::vector<std::pair<std::vector<std::string>, std::string>> faelle{
        {{"spielerinfo", spiel, "0"}, spieler},
        {{"spielerinfo", spiel, "0", "--komma"}, *SpielerInfoText(test::blattspiel20(), 0, ",")},
        {{"spielerinfo", "--cp1252", spiel, "0"}, textNachCp1252(spieler)},
        {{"teaminfo", spiel, "2"}, team},
        {{"teaminfo", spiel, "2", "--cp1252", "--komma"}, textNachCp1252(team)},
        {{"simulation", spiel, "0"}, bericht},
        {{"simulation", spiel, "0", "--komma"}, komma},
        {{"simulation", spiel, "0", "--cp1252"}, textNachCp1252(bericht)},
        {{"spielerinfo", ohne, "1"}, ""},  // no current matchday: no sheet
        {{"teaminfo", ohne, "1"}, ""},
    };
    s.AktSpieltagGlobal = KeinAktuellerSpieltag;
    test::speichereSpiel(s, ohne);
    for (const auto& [aufruf, erwartet] : faelle)
        EXPECT_EQ(starte(aufruf), erfolg(erwartet)) << testing::PrintToString(aufruf);
    EXPECT_NE(textNachCp1252(team).find("Torverh\xE4ltnis"), std::string::npos);  // one byte per umlaut

    s = test::blattspiel20();
    test::setzeAuswahl(s, "");  // no matchday counts: the averages divide by zero
    test::speichereSpiel(s, leer);
    EXPECT_EQ(starte({"spielerinfo", leer, "0"}), (test::Lauf{1, "", "Fehler: Division durch Null\n"}));
    // Bernd's tips are the results: his table is the real one. Anna's own table: VfB Fürth-Süd wins twice and
    // draws once in her tips.
    s = test::blattspiel20();
    s.Tipp[1] = s.Ergebnis;
    test::speichereSpiel(s, spiel);
    EXPECT_EQ(starte({"vorhersage", spiel, "1"}), starte({"tabelle", spiel}));
    const std::string anna = starte({"vorhersage", spiel, "0"}).aus;
    EXPECT_EQ(anna.substr(0, anna.find('\n') + 1), "1\tVfB Fürth-Süd\t7\t5:2\t3\t2\t1\t0\n");
}

// The page of a matchday (1-based; by default the last selected one) of a chosen kind (by default the
// evaluation), as the window shows the game; the frequencies with a column per participant; the chart as
// lines of parts or as the core's SVG.
TEST(CliBerichte, SeiteHaeufigkeitenUndGrafik) {
    test::TempOrdner ordner;
    const std::string pfad = (ordner / "klein.tip").string();
    Spielstand s = test::kurzesSpiel();
    s.Spielername[0] = "Jürgen";
    test::speichereSpiel(s, pfad);
    const auto seite = [&](int spieltag, Bogenart art) {
        return bogenAlsHtml(erstelleBogen(ladeWieGezeigt(pfad), spieltag, art, "TT.MM.JJJJ"));
    };
    const std::vector<std::pair<std::vector<std::string>, std::string>> faelle{
        {{}, seite(1, Bogenart::Auswertung)},
        {{"--spieltag", "1"}, seite(0, Bogenart::Auswertung)},
        {{"--art", "live", "--spieltag", "3"}, seite(2, Bogenart::Live)},
        {{"--art", "tippabgabe"}, seite(1, Bogenart::Tippabgabe)},
    };
    for (const auto& [optionen, erwartet] : faelle) {
        std::vector<std::string> aufruf{"html", pfad};
        aufruf.insert(aufruf.end(), optionen.begin(), optionen.end());
        test::Lauf l = starte(aufruf);
        l.aus = std::regex_replace(l.aus, std::regex("\\d\\d\\.\\d\\d\\.\\d\\d\\d\\d"), "TT.MM.JJJJ");
        EXPECT_EQ(l, erfolg(erwartet)) << testing::PrintToString(optionen);
    }
    EXPECT_EQ(starte({"html", pfad, "--spieltag", "4"})
                  .fehler.rfind("--spieltag muss eine ganze Zahl von 1 bis 3 sein, nicht „4“.\n", 0),
              0u);
    EXPECT_EQ(starte({"grafik", pfad, "--ansicht", "2"})
                  .fehler.rfind("--ansicht muss eine ganze Zahl von 0 bis 1 sein, nicht „2“.\n", 0),
              0u);
    EXPECT_EQ(starte({"haeufigkeiten", pfad}), erfolg(test::testdatei("cli/haeufigkeiten-klein.txt")));
    EXPECT_EQ(starte({"grafik", pfad}), erfolg(test::testdatei("cli/grafik-klein.txt")));
    EXPECT_EQ(starte({"grafik", pfad, "--ansicht", "1", "--zahlen"}),
              erfolg(test::testdatei("cli/grafik-klein-spieltage.txt")));
    const Spielstand spiel = ladeWieGezeigt(pfad);
    grafik::Ansicht ansicht = grafik::ersteAnsicht(spiel);
    ansicht.PunkteZeigen.fill(true);
    EXPECT_EQ(starte({"grafik", pfad, "--svg", "--zahlen"}),
              erfolg(grafik::alsSvg(grafik::punktegrafik(spiel, 2, ansicht))));
}

}  // namespace
}  // namespace kalimbo::cli
