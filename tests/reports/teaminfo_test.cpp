#include "reports/teaminfo.h"

#include <gtest/gtest.h>

#include "blattspiele.h"
#include "testdaten.h"

namespace kalimbo {
namespace {

// 20 teams: every list but one has lines. 18 teams: 9 matches a matchday; the team's match on the
// matchday left out of the selection (JÜB - KÖL 4:1) appears in no list and not in the totals.
TEST(TeamInfo, GoldeneBlaetter) {
    EXPECT_EQ(TeamInfoText(test::blattspiel20(), 2), test::testdatei("berichte/teaminfo-20.txt"));
    EXPECT_EQ(TeamInfoText(test::blattspiel18(), 10), test::testdatei("berichte/teaminfo-18.txt"));
}

TEST(TeamInfo, UngespieltesSpielMitGespeichertemErgebnis) {
    Spielstand s = test::blattspiel20();
    test::setzeAuswahl(s, "0-3");  // matchday 3 has no results: ELS - CAL stands at 0:0
    s.AktSpieltagGlobal = 3;
    const std::string text = *TeamInfoText(s, 2);
    const auto start = text.find("  Die unentschiedenen Spiele");
    EXPECT_EQ(text.substr(start, text.find("\r\n\r\n", start) - start + 2),
              test::crlf("  Die unentschiedenen Spiele\n  -\n  CAL - AHR2:2\n  ELS - CAL0:0\n"));
}

TEST(TeamInfo, OhneAktuellenSpieltagKeinBlattUndFalscherIndex) {
    Spielstand s = test::blattspiel20();
    EXPECT_THROW(TeamInfoText(s, 20), Laufzeitfehler);
    EXPECT_THROW(TeamInfoText(s, -1), Laufzeitfehler);
    s.AktSpieltagGlobal = KeinAktuellerSpieltag;
    EXPECT_FALSE(TeamInfoText(s, 2));
}

TEST(TeamInfo, MannschaftenAufEinerTabellenzeile) {
    Spielstand s18 = test::blattspiel18();
    const i16 erster = s18.DiesTeam(0);
    Spielstand doppelt = s18;
    doppelt.Tabelle[12].Tabellenplatz = doppelt.Tabelle[4].Tabellenplatz;  // as a foreign table might
    const std::vector<std::tuple<const char*, Spielstand*, int, std::vector<i16>>> faelle{
        {"Tabellenführer", &s18, 0, {erster}},
        {"zwei auf einem Platz, in Mannschaftsreihenfolge",
         &doppelt,
         doppelt.Tabelle[4].Tabellenplatz,
         {4, 12}},
        {"Platz ohne Mannschaft", &doppelt, s18.Tabelle[12].Tabellenplatz, {}},
        {"jenseits von AnzTeams", &s18, 18, {}},  // row 18 holds place 18 but is not a team here
    };
    for (const auto& [name, spiel, zeile, teams] : faelle)
        EXPECT_EQ(teamsAufTabellenplatz(*spiel, zeile), teams) << name;
}

}  // namespace
}  // namespace kalimbo
