#include "cli/befehle.h"

#include <gtest/gtest.h>

#include <sstream>

#include "testdaten.h"

namespace kalimbo::cli {
namespace {

struct Lauf {
    int code;
    std::string aus;
    std::string fehler;
};

Lauf starte(const std::vector<std::string>& argumente) {
    std::ostringstream aus, fehler;
    const int code = fuehreAus(argumente, aus, fehler);
    return {code, aus.str(), fehler.str()};
}

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

}  // namespace
}  // namespace kalimbo::cli
