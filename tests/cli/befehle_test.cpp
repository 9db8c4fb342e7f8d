#include "cli/befehle.h"

#include <gtest/gtest.h>

#include "scoring/anzeige.h"

#include <sstream>

#include "cli/lauf.h"
#include "cli/tabellen.h"
#include "speicher.h"
#include "state/spieldatei.h"
#include "testdaten.h"

namespace kalimbo::cli {
namespace {

using test::Lauf;
using test::starte;

TEST(Cli, NeuUndInfo) {
    test::TempOrdner ordner;
    const std::string spiel = (ordner / "bl.tip").string();
    const std::string csv = test::gemeinsameDaten("de1-2005-06.matches.csv").string();
    ASSERT_EQ(starte({"neu", csv, spiel, "--liga", "1. Bundesliga 2005/06"}).code, 0);

    const Lauf info = starte({"info", spiel});
    EXPECT_EQ(info.code, 0);
    EXPECT_EQ(info.fehler, "");
    for (const char* zeile : {"Liga: 1. Bundesliga 2005/06\n", "Mannschaften: 18\n", "Spieltage: 34\n",
                              "Spiele je Spieltag: 9\n", "  1\tBAM\tBayern München\n",
                              "  18\tBAL\tBayer 04 Leverkusen\n", "Regel: 3-2-1-Regel (3/2/1 Punkte)\n",
                              "Aktueller Spieltag: nicht gesetzt\n", "Ausgewählte Spieltage: keine\n"}) {
        EXPECT_NE(info.aus.find(zeile), std::string::npos) << zeile;
    }

    ASSERT_EQ(starte({"neu", test::gemeinsameDaten("en1-2010-11.matches.csv").string(), spiel}).code, 0);
    EXPECT_NE(starte({"info", spiel}).aus.find("Liga: en1-2010-11\n"), std::string::npos);
}

TEST(Cli, FehlerUndFalscherAufruf) {
    test::TempOrdner ordner;
    const Lauf fehlt = starte({"info", (ordner / "fehlt.tip").string()});
    EXPECT_EQ(fehlt.code, 1);
    EXPECT_EQ(fehlt.aus, "");
    EXPECT_EQ(fehlt.fehler.rfind("Fehler: Die Datei „", 0), 0u) << fehlt.fehler;

    test::schreibeBytes(ordner / "kaputt.csv", "matchday,home,away,home_goals,away_goals\n1,A,A,1,1\n");
    const Lauf kaputt = starte({"neu", (ordner / "kaputt.csv").string(), (ordner / "x.tip").string()});
    EXPECT_EQ(kaputt.code, 1);
    EXPECT_NE(kaputt.fehler.find("Zeile 2: „A“ kann nicht gegen sich selbst spielen."), std::string::npos);
    EXPECT_FALSE(std::filesystem::exists(ordner / "x.tip"));

    for (const std::vector<std::string>& aufruf :
         std::vector<std::vector<std::string>>{{},
                                               {"hilfe"},
                                               {"info"},
                                               {"info", "a.tip", "b.tip"},
                                               {"neu", "a.csv", "b.tip", "--farbe", "rot"},
                                               {"neu", "a.csv", "b.tip", "--liga"}}) {
        const Lauf l = starte(aufruf);
        EXPECT_EQ(l.code, 2);
        EXPECT_NE(l.fehler.find("Aufruf: kalimbo-cli"), std::string::npos);
    }
}

TEST(Cli, AuchOhneSpeicherEineDeutscheMeldung) {
    test::TempOrdner ordner;
    const std::vector<std::string> aufruf{"info", (ordner / "spiel.tip").string()};
    speichereSpieldatei(aufruf[1], Dateiinhalt{});
    std::ostringstream aus, fehler;
    test::naechsteAnforderungScheitert = true;
    EXPECT_EQ(fuehreAus(aufruf, aus, fehler), 1);
    EXPECT_EQ(fehler.str(), "Fehler: Nicht genug Arbeitsspeicher; der Vorgang wurde abgebrochen.\n");
}

class TabelleEchteSaison : public testing::TestWithParam<const char*> {};

TEST_P(TabelleEchteSaison, ZeigtDieVeroeffentlichteAbschlusstabelle) {
    test::TempOrdner ordner;
    const std::string spiel = (ordner / "saison.tip").string();
    const std::string name = GetParam();
    ASSERT_EQ(starte({"neu", test::gemeinsameDaten(name + ".matches.csv").string(), spiel}).code, 0);

    std::string erwartet;
    for (const auto& z : test::leseCsv(test::gemeinsameDaten(name + ".final_table.csv"))) {
        const int differenz = std::stoi(z[6]) - std::stoi(z[7]);
        erwartet += z[0] + '\t' + z[1] + '\t' + z[8] + '\t' + z[6] + ':' + z[7] + '\t' +
                    std::to_string(differenz) + '\t' + z[3] + '\t' + z[4] + '\t' + z[5] + '\n';
    }
    const Lauf lauf = starte({"tabelle", spiel, "--alle"});
    EXPECT_EQ(lauf.code, 0);
    EXPECT_EQ(lauf.fehler, "");
    EXPECT_EQ(lauf.aus, erwartet);
}

INSTANTIATE_TEST_SUITE_P(Daten, TabelleEchteSaison, testing::Values(test::Saison18, test::Saison20));

// A game on the 20-team season in which every match ended 2:1, saved with the 3-2-1 rule but the
// points `punkte`; matchdays 0-9 selected, matchday 9 current with Sunday matches 0 and 1. Anna
// tips every match exactly, Bernd the margin, Carl the tendency, Dora misses; Emil to Ida tip
// exactly too but do not take part.
std::string tippspiel(const test::TempOrdner& ordner, std::array<i16, 3> punkte) {
    Dateiinhalt d = test::saison(test::Saison20);
    const std::array<const char*, MaxSpieler> namen{"Anna",  "Bernd",  "Carl",  "Dora", "Emil",
                                                    "Frida", "Gustav", "Hanna", "Ida"};
    const std::array<std::array<i16, 2>, MaxSpieler> tipps{
        {{2, 1}, {3, 2}, {5, 0}, {0, 3}, {2, 1}, {2, 1}, {2, 1}, {2, 1}, {2, 1}}};
    for (int tag = 0; tag < MaxSpieltage; ++tag)
        for (int spiel = 0; spiel < MaxSpiele; ++spiel) {
            d.ErgebnisDatei[tag][spiel] = {{2, 1}};
            for (int p = 0; p < MaxSpieler; ++p)
                d.TippDatei[p][tag][spiel] = {{tipps[p][0], tipps[p][1]}};
        }
    for (int p = 0; p < MaxSpieler; ++p) {
        d.Spielername[p] = namen[p];
        d.Teilnehmer[p] = p < 4 ? 1 : 0;
    }
    for (int tag = 0; tag <= 9; ++tag)
        d.SptgAuswerten[tag] = 1;
    d.AktSpieltagGlobal = 9;
    d.SonntagSpiele = {{0, 1}};
    d.ModusPunkte = {{punkte[0], punkte[1], punkte[2]}};
    const std::string pfad = (ordner / "tippspiel.tip").string();
    speichereSpieldatei(pfad, d);
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
        const Lauf lauf = starte(aufruf);
        EXPECT_EQ(lauf.code, 0);
        EXPECT_EQ(lauf.aus, erwartet + ohnePunkte) << testing::PrintToString(optionen);
    }
}

TEST(Cli, AuswertungWieNachDemOeffnen) {
    test::TempOrdner ordner;
    const Spielstand spiel = ladeWieGezeigt(tippspiel(ordner, {5, 2, 1}));
    EXPECT_EQ(spiel.AktSpieltag, 9);  // the last selected matchday is shown
    EXPECT_EQ(spiel.getSpieltagPunkte(0, 9), 50);
    EXPECT_EQ(spiel.getSpieltagPunkte(4, 9), -1);  // not taking part, on the shown matchday
    EXPECT_EQ(spiel.getSpieltagPunkte(4, 8), 0);
}

TEST(Cli, AuswertungMitFehlern) {
    test::TempOrdner ordner;
    const std::string spiel = tippspiel(ordner, {20000, 2, 1});
    const Lauf ueberlauf = starte({"spieler", spiel});
    EXPECT_EQ(ueberlauf.code, 1);
    EXPECT_EQ(ueberlauf.aus, "");
    EXPECT_EQ(ueberlauf.fehler, "Fehler: Überlauf bei den Punkten von Spieler 1 („Anna“) am 1. Spieltag\n");
    EXPECT_EQ(starte({"tabelle", (ordner / "fehlt.tip").string()}).code, 1);

    for (const std::vector<std::string>& aufruf :
         std::vector<std::vector<std::string>>{{"tabelle"},
                                               {"spieler", spiel, spiel},
                                               {"spieler", spiel, "--regel"},
                                               {"spieler", spiel, "--regel", "4"},
                                               {"tabelle", spiel, "--regel", "x"},
                                               {"tabelle", spiel, "--regel", "-1"},
                                               {"tabelle", spiel, "--liga", "x"}}) {
        const Lauf l = starte(aufruf);
        EXPECT_EQ(l.code, 2) << testing::PrintToString(aufruf);
        EXPECT_EQ(l.aus, "");
        EXPECT_NE(l.fehler.find("Aufruf: kalimbo-cli"), std::string::npos);
    }
}

}  // namespace
}  // namespace kalimbo::cli
