#include "reports/teaminfo.h"

#include <gtest/gtest.h>

#include "blattspiele.h"
#include "testdaten.h"

namespace kalimbo {
namespace {

// 20 teams: every list but one has lines. 18 teams: 9 matches a matchday; the team's match on the
// matchday left out of the selection (JÜB - KÖL 4:1) appears in no list and not in the totals. With
// matchday 3 selected and current, its match without a result stands at 0:0 among the draws.
TEST(TeamInfo, GoldeneBlaetter) {
    EXPECT_EQ(TeamInfoText(test::blattspiel20(), 2), test::testdatei("berichte/teaminfo-20.txt"));
    EXPECT_EQ(TeamInfoText(test::blattspiel18(), 10), test::testdatei("berichte/teaminfo-18.txt"));
    Spielstand s = test::blattspiel20();
    test::setzeAuswahl(s, "0-3");
    s.AktSpieltagGlobal = 3;
    EXPECT_EQ(TeamInfoText(s, 2), test::testdatei("berichte/teaminfo-20-spieltag-4.txt"));
    EXPECT_THROW(TeamInfoText(s, 20), Laufzeitfehler);
    EXPECT_THROW(TeamInfoText(s, -1), Laufzeitfehler);
    s.AktSpieltagGlobal = KeinAktuellerSpieltag;
    EXPECT_FALSE(TeamInfoText(s, 2));
}

TEST(TeamInfo, MannschaftenAufEinerTabellenzeile) {
    const Spielstand s = test::blattspiel18();
    Spielstand doppelt = s;
    doppelt.Tabelle[12].Tabellenplatz = doppelt.Tabelle[4].Tabellenplatz;  // as a foreign table might
    EXPECT_EQ(teamsAufTabellenplatz(s, 0), std::vector<i16>{s.DiesTeam(0)});
    EXPECT_EQ(teamsAufTabellenplatz(doppelt, doppelt.Tabelle[4].Tabellenplatz), (std::vector<i16>{4, 12}));
    EXPECT_EQ(teamsAufTabellenplatz(doppelt, s.Tabelle[12].Tabellenplatz), std::vector<i16>{});
    EXPECT_EQ(teamsAufTabellenplatz(s, 18),
              std::vector<i16>{});  // row 18 holds place 18 but is not a team here
}

}  // namespace
}  // namespace kalimbo
