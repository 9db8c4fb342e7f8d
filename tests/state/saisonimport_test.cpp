#include "quellen/spielplan.h"

#include <gtest/gtest.h>

#include <fstream>
#include <sstream>

#include "state/spieldatei.h"
#include "testdaten.h"

namespace kalimbo {
namespace {

std::vector<std::string> csvZeilen(const std::string& saison) {
    std::ifstream ein(test::gemeinsameDaten(saison + ".matches.csv"));
    std::vector<std::string> zeilen;
    for (std::string z; std::getline(ein, z);)
        zeilen.push_back(z);
    return zeilen;
}

std::vector<std::string> spalten(const std::string& zeile) {
    std::vector<std::string> s(1);
    for (char c : zeile) {
        if (c == ',')
            s.emplace_back();
        else
            s.back().push_back(c);
    }
    return s;
}

std::string importFehler(const std::vector<std::string>& zeilen) {
    std::string text;
    for (const auto& z : zeilen)
        text += z + "\n";
    std::istringstream ein(text);
    try {
        importiereSaison(ein, "x");
    } catch (const Dateifehler& e) {
        return e.what();
    }
    return "(angenommen)";
}

class EchteSaison : public testing::TestWithParam<const char*> {};

TEST_P(EchteSaison, PaarungenUndErgebnisseUeberstehenDieDatei) {
    const std::string name = GetParam();
    std::istringstream datei(kodiereSpieldatei(test::saison(name)));
    Spielstand spiel;
    spiel.oeffne(leseSpieldatei(datei, name));

    const auto zeilen = csvZeilen(name);
    const int teams = name == test::Saison18 ? 18 : 20;
    EXPECT_EQ(spiel.getAnzTeams(), teams - 1);
    EXPECT_EQ(spiel.getAnzSpieltage(), 2 * teams - 3);
    EXPECT_EQ(spiel.getAnzSpiele(), teams / 2 - 1);
    EXPECT_EQ(spiel.getLigaInfo(), name);
    EXPECT_EQ(spiel.getTabFarbe(0), rgb(255, 0, 0));
    EXPECT_EQ(spiel.getTabFarbe(teams - 1), rgb(255, 255, 255));

    std::vector<int> spieleAmTag(38, 0);
    for (std::size_t i = 1; i < zeilen.size(); ++i) {
        const auto s = spalten(zeilen[i]);
        const int tag = std::stoi(s[0]) - 1;
        const int k = spieleAmTag[tag]++;
        ASSERT_EQ(spiel.getTeamName(spiel.getPaarung(tag, k, 0)), s[1]) << zeilen[i];
        ASSERT_EQ(spiel.getTeamName(spiel.getPaarung(tag, k, 1)), s[2]) << zeilen[i];
        ASSERT_EQ(spiel.getErgebnis(tag, k, 0), std::stoi(s[3])) << zeilen[i];
        ASSERT_EQ(spiel.getErgebnis(tag, k, 1), std::stoi(s[4])) << zeilen[i];
    }
    EXPECT_EQ(spiel.getTeamName(0), spalten(zeilen[1])[1]);  // order of first appearance
    EXPECT_EQ(spiel.getTeamName(1), spalten(zeilen[1])[2]);
}

INSTANTIATE_TEST_SUITE_P(BeideLigen, EchteSaison, testing::Values(test::Saison18, test::Saison20));

TEST(Saisonimport, UngespielteSpieleBleiben0Zu0) {
    auto zeilen = csvZeilen(test::Saison18);
    zeilen[1] = "1,Bayern München,Bor. Mönchengladbach,,";
    std::string text;
    for (const auto& z : zeilen)
        text += z + "\r\n";  // Windows line ends are fine too
    std::istringstream ein(text);
    const Dateiinhalt d = importiereSaison(ein, "x");
    EXPECT_EQ(d.ErgebnisDatei[0][0][0], 0);
    EXPECT_EQ(d.ErgebnisDatei[0][0][1], 0);
    EXPECT_EQ(d.Teamname[0], "Bayern München");
}

TEST(Saisonimport, FehlerNennenDieZeile) {
    const auto echt = csvZeilen(test::Saison18);
    auto mit = [&](std::size_t zeile, const std::string& text) {
        auto z = echt;
        z[zeile] = text;
        return importFehler(z);
    };
    // Line 3 is the second match of matchday 1; Bayern already plays in line 2.
    EXPECT_EQ(mit(2, "1,Bayern München,1. FC Köln,1,0"),
              "Zeile 3: „Bayern München“ spielt am 1. Spieltag zum zweiten Mal.");
    EXPECT_EQ(mit(2, "1,MSV Duisburg,MSV Duisburg,1,1"),
              "Zeile 3: „MSV Duisburg“ kann nicht gegen sich selbst spielen.");
    EXPECT_EQ(mit(5, "35,Hamburger SV,1. FC Nürnberg,3,0"),
              "Zeile 6: Einen 35. Spieltag gibt es bei 18 Mannschaften nicht (höchstens 34).");
    EXPECT_EQ(mit(4, "1,1. FC Köln,1. FSV Mainz 05,1"),
              "Zeile 5: Es werden 5 Felder erwartet (matchday,home,away,home_goals,away_goals), gefunden 4.");
    EXPECT_EQ(mit(4, "1,1. FC Köln,1. FSV Mainz 05,1,"),
              "Zeile 5: Es sind nur die Tore einer Mannschaft eingetragen.");
    EXPECT_EQ(mit(4, "1,1. FC Köln,1. FSV Mainz 05,1,-2"), "Zeile 5: „1:-2“ ist kein gültiges Ergebnis.");
    EXPECT_EQ(mit(4, "erster,1. FC Köln,1. FSV Mainz 05,1,0"),
              "Zeile 5: „erster“ ist keine gültige Spieltagsnummer.");
    EXPECT_EQ(mit(0, "spieltag,heim,gast,tore_heim,tore_gast"),
              "Zeile 1: Die Kopfzeile muss „matchday,home,away,home_goals,away_goals“ lauten.");
}

TEST(Saisonimport, NurTexteDieEineTippspielDateiSpeichernKann) {
    const std::string kopf = "matchday,home,away,home_goals,away_goals";
    EXPECT_EQ(
        importFehler({kopf, "1,A,B,1,0", "1,Łódź,C,0,0"}),
        "Zeile 3: Der Text „Łódź“ enthält das Zeichen „Ł“ (U+0141), das eine Tippspiel-Datei nicht speichern "
        "kann. Bitte ersetzen Sie es.");
    EXPECT_EQ(importFehler({kopf, "1,A,\xFF\xFE,1,0"}),
              "Zeile 2: Der Text „\xFF\xFE“ ist kein gültiger UTF-8-Text und kann nicht gespeichert werden.");
    EXPECT_EQ(importFehler({kopf, "1,A," + std::string(40000, 'b') + ",1,0"}),
              "Zeile 2: Der Text „" + std::string(40, 'b') + "…“ ist zu lang für eine Tippspiel-Datei.");
    std::istringstream ein(kopf + "\n1,A,B,1,0\n");
    try {
        importiereSaison(ein, "Ekstraklasa Łódź");
        FAIL();
    } catch (const Dateifehler& e) {
        EXPECT_EQ(std::string(e.what()),
                  "Die Liga-Angabe: Der Text „Ekstraklasa Łódź“ enthält das Zeichen „Ł“ (U+0141), das eine "
                  "Tippspiel-Datei nicht speichern kann. Bitte ersetzen Sie es.");
    }
}

TEST(Saisonimport, KeineDoppelteRundeWirdAbgelehnt) {
    auto zeilen = csvZeilen(test::Saison18);
    // The return match of line 2 (Gladbach at home against Bayern) played as a second home match.
    std::size_t rueckspiel = 0;
    for (std::size_t i = 1; i < zeilen.size(); ++i)
        if (zeilen[i].find(",Bor. Mönchengladbach,Bayern München,") != std::string::npos) rueckspiel = i;
    ASSERT_GT(rueckspiel, 0u);
    auto s = spalten(zeilen[rueckspiel]);
    zeilen[rueckspiel] = s[0] + ",Bayern München,Bor. Mönchengladbach,1,1";
    EXPECT_EQ(importFehler(zeilen),
              "Zeile " + std::to_string(rueckspiel + 1) +
                  ": Das Spiel „Bayern München“ gegen „Bor. Mönchengladbach“ steht schon in Zeile 2.");

    zeilen = csvZeilen(test::Saison18);
    zeilen.erase(zeilen.begin() + 9);  // the last match of matchday 1
    EXPECT_EQ(importFehler(zeilen), "Am 1. Spieltag stehen 8 Spiele statt 9.");
}

TEST(Saisonimport, NurLigenMit18Oder20Mannschaften) {
    EXPECT_EQ(
        importFehler(
            {"matchday,home,away,home_goals,away_goals", "1,A,B,1,0", "1,C,D,0,0", "2,B,C,,", "2,D,A,,"}),
        "Die Saison hat 4 Mannschaften; eine Tippspiel-Datei fasst nur Ligen mit 18 oder 20 Mannschaften.");
    std::vector<std::string> viele{"matchday,home,away,home_goals,away_goals"};
    for (int i = 0; i < 11; ++i)
        viele.push_back("1,T" + std::to_string(2 * i) + ",T" + std::to_string(2 * i + 1) + ",0,0");
    EXPECT_EQ(importFehler(viele),
              "Zeile 12: „T20“ ist die 21. Mannschaft; eine Tippspiel-Datei fasst höchstens 20.");
    EXPECT_EQ(importFehler({"matchday,home,away,home_goals,away_goals"}),
              "Die Saisondatei enthält keine Spiele.");
}

}  // namespace
}  // namespace kalimbo
