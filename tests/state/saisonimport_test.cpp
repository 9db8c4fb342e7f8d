#include "quellen/spielplan.h"

#include <gtest/gtest.h>

#include <sstream>

#include "testdaten.h"

namespace kalimbo {
namespace {

const std::string Kopf = "matchday,home,away,home_goals,away_goals";

// The lines of the 18-team season's file, the header first.
std::vector<std::string> echteZeilen() {
    std::istringstream ein(
        test::leseBytes(test::gemeinsameDaten(std::string(test::Saison18) + ".matches.csv")));
    std::vector<std::string> zeilen;
    for (std::string zeile; std::getline(ein, zeile);)
        zeilen.push_back(zeile);
    return zeilen;
}

std::string importFehler(const std::vector<std::string>& zeilen, const std::string& liga = "x") {
    std::string text;
    for (const auto& z : zeilen)
        text += z + "\n";
    std::istringstream ein(text);
    return test::fehler([&] { importiereSaison(ein, liga); });
}

TEST(Saisonimport, UngespielteSpieleBleiben0Zu0UndWindowsZeilenenden) {
    auto zeilen = echteZeilen();
    zeilen[1] = "1,Bayern München,Bor. Mönchengladbach,,";
    std::string text;
    for (const auto& z : zeilen)
        text += z + "\r\n";
    std::istringstream ein(text);
    const Dateiinhalt d = importiereSaison(ein, "x");
    EXPECT_EQ(d.ErgebnisDatei[0][0], (Feld<i16, 2>{{0, 0}}));
    EXPECT_EQ(d.Teamname[0], "Bayern München");
}

// Line 3 is the second match of matchday 1; Bayern already plays in line 2. The return match of line 2
// (Gladbach at home against Bayern) is line 155.
TEST(Saisonimport, FehlerNennenDieZeile) {
    const std::vector<std::tuple<std::size_t, std::string, std::string>> faelle{
        {2, "1,Bayern München,1. FC Köln,1,0",
         "Zeile 3: „Bayern München“ spielt am 1. Spieltag zum zweiten Mal."},
        {2, "1,MSV Duisburg,MSV Duisburg,1,1",
         "Zeile 3: „MSV Duisburg“ kann nicht gegen sich selbst spielen."},
        {5, "35,Hamburger SV,1. FC Nürnberg,3,0",
         "Zeile 6: Einen 35. Spieltag gibt es bei 18 Mannschaften nicht (höchstens 34)."},
        {4, "1,1. FC Köln,1. FSV Mainz 05,1",
         "Zeile 5: Es werden 5 Felder erwartet (matchday,home,away,home_goals,away_goals), gefunden 4."},
        {4, "1,1. FC Köln,1. FSV Mainz 05,1,", "Zeile 5: Es sind nur die Tore einer Mannschaft eingetragen."},
        {4, "1,1. FC Köln,1. FSV Mainz 05,1,-2", "Zeile 5: „1:-2“ ist kein gültiges Ergebnis."},
        {4, "erster,1. FC Köln,1. FSV Mainz 05,1,0", "Zeile 5: „erster“ ist keine gültige Spieltagsnummer."},
        {0, "spieltag,heim,gast,tore_heim,tore_gast",
         "Zeile 1: Die Kopfzeile muss „matchday,home,away,home_goals,away_goals“ lauten."},
        {154, "18,Bayern München,Bor. Mönchengladbach,1,1",
         "Zeile 155: Das Spiel „Bayern München“ gegen „Bor. Mönchengladbach“ steht schon in Zeile 2."},
    };
    const auto echt = echteZeilen();
    ASSERT_TRUE(echt[154].starts_with("18,Bor. Mönchengladbach,Bayern München,"));
    for (const auto& [zeile, text, meldung] : faelle) {
        auto z = echt;
        z[zeile] = text;
        EXPECT_EQ(importFehler(z), meldung);
    }
    auto ohne = echt;
    ohne.erase(ohne.begin() + 9);  // the last match of matchday 1
    EXPECT_EQ(importFehler(ohne), "Am 1. Spieltag stehen 8 Spiele statt 9.");
}

TEST(Saisonimport, NurLigenMit18Oder20MannschaftenUndSpeicherbareTexte) {
    std::vector<std::string> viele{Kopf};
    for (int i = 0; i < 11; ++i)
        viele.push_back("1,T" + std::to_string(2 * i) + ",T" + std::to_string(2 * i + 1) + ",0,0");
    const std::vector<std::pair<std::string, std::string>> faelle{
        {importFehler({Kopf, "1,A,B,1,0", "1,C,D,0,0", "2,B,C,,", "2,D,A,,"}),
         "Die Saison hat 4 Mannschaften; eine Tippspiel-Datei fasst nur Ligen mit 18 oder 20 Mannschaften."},
        {importFehler(viele),
         "Zeile 12: „T20“ ist die 21. Mannschaft; eine Tippspiel-Datei fasst höchstens 20."},
        {importFehler({Kopf}), "Die Saisondatei enthält keine Spiele."},
        {importFehler({Kopf, "1,A,B,1,0", "1,Łódź,C,0,0"}),
         "Zeile 3: Der Text „Łódź“ enthält das Zeichen „Ł“ (U+0141), das eine Tippspiel-Datei nicht "
         "speichern kann. Bitte ersetzen Sie es."},
        {importFehler({Kopf, "1,A,\xFF\xFE,1,0"}),
         "Zeile 2: Der Text „\xFF\xFE“ ist kein gültiger UTF-8-Text und kann nicht gespeichert werden."},
        {importFehler({Kopf, "1,A," + std::string(40000, 'b') + ",1,0"}),
         "Zeile 2: Der Text „" + std::string(40, 'b') + "…“ ist zu lang für eine Tippspiel-Datei."},
        {importFehler({Kopf, "1,A,B,1,0"}, "Ekstraklasa Łódź"),
         "Die Liga-Angabe: Der Text „Ekstraklasa Łódź“ enthält das Zeichen „Ł“ (U+0141), das eine "
         "Tippspiel-Datei nicht speichern kann. Bitte ersetzen Sie es."},
    };
    for (const auto& [ist, soll] : faelle)
        EXPECT_EQ(ist, soll);
}

}  // namespace
}  // namespace kalimbo
