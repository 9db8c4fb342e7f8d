#include "cli/befehle.h"

#include <gtest/gtest.h>

#include "cli/lauf.h"
#include "cli/tabellen.h"
#include "kurzesspiel.h"
#include "scoring/anzeige.h"
#include "state/spieldatei.h"

namespace kalimbo::cli {
namespace {

using test::erfolg;
using test::starte;

// The help names every command with its usage line; each command's own help shows that line and the options
// it takes, runs nothing (the file need not exist) and names no other command.
TEST(Cli, HilfeUndVersion) {
    const std::string hilfe = starte({"--help"}).aus;
    EXPECT_EQ(starte({"-h"}), erfolg(hilfe));
    EXPECT_NE(hilfe.find("--regel N"), std::string::npos);
    EXPECT_NE(hilfe.find("--cp1252"), std::string::npos);
    int befehle = 0;
    for (std::size_t zeile = hilfe.find("\n  "); zeile != std::string::npos;
         zeile = hilfe.find("\n  ", zeile + 1)) {
        const std::string befehl = hilfe.substr(zeile + 3, hilfe.find(' ', zeile + 3) - zeile - 3);
        if (befehl.empty() || befehl.starts_with("-")) continue;
        ++befehle;
        const std::string eigene = starte({befehl, "fehlt.tip", "--help"}).aus;
        EXPECT_EQ(eigene.rfind("Aufruf: kalimbo-cli " + befehl + " ", 0), 0u) << eigene;
        EXPECT_EQ(eigene.find(befehl == "info" ? "\n  neu " : "\n  info "), std::string::npos) << befehl;
        EXPECT_EQ(eigene.find("--sonntag") != std::string::npos,
                  eigene.find("[AUSWERTUNG]") != std::string::npos);
        EXPECT_EQ(eigene.find("--komma") != std::string::npos, eigene.find("[AUSGABE]") != std::string::npos);
    }
    EXPECT_EQ(befehle, 13);
    EXPECT_EQ(starte({"--version"}), erfolg("kalimbo-cli Version: zorb 5.0.1 [04.08.2006]\n"));
}

// Every command refuses a wrong call with exit code 2, the reason and the usage, and prints nothing; one
// whose game file is missing ends with exit code 1 and a German message.
TEST(Cli, FalscherAufrufUndFehlendeDatei) {
    const std::vector<std::pair<std::vector<std::string>, std::string>> faelle{
        {{}, ""},
        {{"hilfe"}, "Unbekannter Befehl hilfe."},
        {{"info"}, "Falsche Anzahl von Angaben."},
        {{"neu", "a.csv", "b.tip", "--farbe", "rot"}, "Unbekannte Option --farbe."},
        {{"neu", "a.csv", "b.tip", "--liga"}, "Der Option --liga fehlt ihr Wert."},
        {{"spieler", "a.tip", "--regel", "4"}, "--regel erwartet 0, 1, 2 oder 3, nicht „4“."},
        {{"tabelle", "a.tip", "--regel", "x"}, ""},
        {{"spielerinfo", "a.tip", "9"}, "Der Spieler P muss eine ganze Zahl von 0 bis 8 sein, nicht „9“."},
        {{"teaminfo", "a.tip", "20"}, ""},
        {{"simulation", "a.tip", "9"}, ""},
        {{"vorhersage", "a.tip", "0", "--komma"}, ""},
        {{"haeufigkeiten", "a.tip", "--alle"}, ""},
        {{"html", "a.tip", "--art", "Live"},
         "--art erwartet auswertung, live oder tippabgabe, nicht „Live“."},
    };
    for (const auto& [aufruf, grund] : faelle) {
        const test::Lauf l = starte(aufruf);
        EXPECT_EQ(l.code, 2) << testing::PrintToString(aufruf);
        EXPECT_EQ(l.aus, "");
        EXPECT_NE(l.fehler.find((grund.empty() ? "" : grund + "\n") + "Aufruf: kalimbo-cli"),
                  std::string::npos)
            << l.fehler;
    }
    for (const char* befehl : {"info", "tabelle", "spieler", "haeufigkeiten", "html", "grafik"})
        EXPECT_EQ(starte({befehl, "fehlt.tip"}),
                  (test::Lauf{
                      1, "",
                      "Fehler: Die Datei „fehlt.tip“ konnte nicht geöffnet werden: Sie existiert nicht.\n"}));
}

TEST(Cli, NeuUndInfo) {
    test::TempOrdner ordner;
    const std::string spiel = (ordner / "bl.tip").string();
    const std::string csv = test::gemeinsameDaten("de1-2005-06.matches.csv").string();
    ASSERT_EQ(starte({"neu", csv, spiel, "--liga", "1. Bundesliga 2005/06"}), erfolg(""));
    EXPECT_EQ(starte({"info", spiel}), erfolg(test::testdatei("cli/info-bundesliga.txt")));
    ASSERT_EQ(starte({"neu", test::gemeinsameDaten("en1-2010-11.matches.csv").string(), spiel}), erfolg(""));
    EXPECT_NE(starte({"info", spiel}).aus.find("Liga: en1-2010-11\n"), std::string::npos);
    test::speichereSpiel(test::kurzesSpiel(), spiel);
    EXPECT_EQ(starte({"info", spiel}), erfolg(test::testdatei("cli/info-klein.txt")));

    test::schreibeBytes(ordner / "kaputt.csv", "matchday,home,away,home_goals,away_goals\n1,A,A,1,1\n");
    const test::Lauf kaputt = starte({"neu", (ordner / "kaputt.csv").string(), (ordner / "x.tip").string()});
    EXPECT_EQ(kaputt.code, 1);
    EXPECT_NE(kaputt.fehler.find("Zeile 2: „A“ kann nicht gegen sich selbst spielen."), std::string::npos);
    EXPECT_FALSE(std::filesystem::exists(ordner / "x.tip"));
}

class TabelleEchteSaison : public testing::TestWithParam<const char*> {};

TEST_P(TabelleEchteSaison, ZeigtDieVeroeffentlichteAbschlusstabelle) {
    test::TempOrdner ordner;
    const std::string spiel = (ordner / "saison.tip").string();
    const std::string name = GetParam();
    ASSERT_EQ(starte({"neu", test::gemeinsameDaten(name + ".matches.csv").string(), spiel}).code, 0);
    std::string erwartet;
    for (const auto& z : test::leseCsv(test::gemeinsameDaten(name + ".final_table.csv")))
        erwartet += z[0] + '\t' + z[1] + '\t' + z[8] + '\t' + z[6] + ':' + z[7] + '\t' +
                    std::to_string(std::stoi(z[6]) - std::stoi(z[7])) + '\t' + z[3] + '\t' + z[4] + '\t' +
                    z[5] + '\n';
    EXPECT_EQ(starte({"tabelle", spiel, "--alle"}), erfolg(erwartet));
}

INSTANTIATE_TEST_SUITE_P(Daten, TabelleEchteSaison, testing::Values(test::Saison18, test::Saison20));

// A game of 20 teams in which every match ended 2:1, saved with the 3-2-1 rule but the points `punkte`;
// matchdays 0-9 selected, matchday 9 current with Sunday matches 0 and 1. Anna tips every match exactly,
// Bernd the margin, Carl the tendency, Dora misses; Emil to Ida tip exactly too but do not take part.
std::string tippspiel(const test::TempOrdner& ordner, std::array<i16, 3> punkte) {
    Spielstand s = test::liga(std::vector<std::string>(20), 38, test::hinUndZurueck,
                              "Anna Bernd Carl Dora -Emil -Frida -Gustav -Hanna -Ida");
    const std::array<i16, 2> tipps[] = {{2, 1}, {3, 2}, {5, 0}, {0, 3}, {2, 1},
                                        {2, 1}, {2, 1}, {2, 1}, {2, 1}};
    for (int tag = 0; tag < MaxSpieltage; ++tag)
        for (int spiel = 0; spiel < MaxSpiele; ++spiel) {
            s.Ergebnis[tag][spiel] = {{2, 1}};
            for (int p = 0; p < MaxSpieler; ++p)
                s.Tipp[p][tag][spiel].werte = tipps[p];
        }
    test::setzeAuswahl(s, "0-9");
    s.AktSpieltagGlobal = 9;
    s.SonntagSpiele = {{0, 1}};
    s.ModusPunkte = {{punkte[0], punkte[1], punkte[2]}};
    const std::string pfad = (ordner / "tippspiel.tip").string();
    test::speichereSpiel(s, pfad);
    return pfad;
}

TEST(Cli, SpielerNachRegelUndAuswahl) {
    test::TempOrdner ordner;
    const std::string spiel = tippspiel(ordner, {5, 2, 1});
    const std::string ohnePunkte = "4\tEmil\t0\n4\tFrida\t0\n4\tGustav\t0\n4\tHanna\t0\n4\tIda\t0\n";
    const std::vector<std::pair<std::vector<std::string>, std::string>> faelle{
        {{}, "1\tAnna\t500\n2\tBernd\t200\n3\tCarl\t100\n4\tDora\t0\n"},  // 100 matches, points as stored
        {{"--regel", "3"}, "1\tAnna\t500\n2\tBernd\t200\n3\tCarl\t100\n4\tDora\t0\n"},
        {{"--regel", "2"}, "1\tAnna\t300\n2\tBernd\t200\n3\tCarl\t100\n4\tDora\t0\n"},
        {{"--regel", "0"}, "1\tAnna\t200\n2\tBernd\t100\n2\tCarl\t100\n4\tDora\t0\n"},
        {{"--alle"}, "1\tAnna\t1900\n2\tBernd\t760\n3\tCarl\t380\n4\tDora\t0\n"},
        {{"--sonntag"}, "1\tAnna\t490\n2\tBernd\t196\n3\tCarl\t98\n4\tDora\t0\n"},
        {{"--alle", "--regel", "1", "--sonntag"}, "1\tAnna\t1134\n2\tBernd\t378\n2\tCarl\t378\n4\tDora\t0\n"},
    };
    for (const auto& [optionen, erwartet] : faelle) {
        std::vector<std::string> aufruf{"spieler", spiel};
        aufruf.insert(aufruf.end(), optionen.begin(), optionen.end());
        EXPECT_EQ(starte(aufruf), erfolg(erwartet + ohnePunkte)) << testing::PrintToString(optionen);
    }

    const Spielstand geoeffnet = ladeWieGezeigt(spiel);
    EXPECT_EQ(geoeffnet.AktSpieltag, 9);  // the last selected matchday is shown
    EXPECT_EQ((std::array{geoeffnet.getSpieltagPunkte(0, 9), geoeffnet.getSpieltagPunkte(4, 9),
                          geoeffnet.getSpieltagPunkte(4, 8)}),
              (std::array<i16, 3>{50, -1, 0}));  // slot 4 does not take part: -1 on the shown matchday
    EXPECT_EQ(
        starte({"spieler", tippspiel(ordner, {20000, 2, 1})}),
        (test::Lauf{1, "", "Fehler: Überlauf bei den Punkten von Spieler 1 („Anna“) am 1. Spieltag\n"}));
}

}  // namespace
}  // namespace kalimbo::cli
