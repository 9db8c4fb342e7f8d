#include "state/kurznamen.h"

#include <gtest/gtest.h>

#include <set>

#include "state/cp1252.h"
#include "testdaten.h"

namespace kalimbo {
namespace {

TEST(Kurznamen, EchteSaisonsErhaltenEindeutigeLesbareNamen) {
    for (const char* name : {test::Saison18, test::Saison20}) {
        const Dateiinhalt d = test::saison(name);
        std::set<std::string> gesehen;
        for (int t = 0; t <= d.AnzTeams; ++t) {
            const std::string& kurz = d.TeamnameKurz[t];
            EXPECT_TRUE(gesehen.insert(kurz).second) << "twice: " << kurz;
            EXPECT_GE(nachCp1252(kurz).size(), 3u) << kurz;
            EXPECT_LE(nachCp1252(kurz).size(), 4u) << kurz;
        }
    }
}

TEST(Kurznamen, AbkuerzungenUndGleicheAnfaenge) {
    const std::vector<std::string> namen{"Bayern München",
                                         "Bayer 04 Leverkusen",
                                         "Bor. Mönchengladbach",
                                         "VfB Stuttgart",
                                         "Hamburger SV",
                                         "Manchester United",
                                         "Manchester City",
                                         "Blackburn",
                                         "Blackpool",
                                         "FC",
                                         "AAA",
                                         "AAA"};
    const std::vector<std::string> erwartet{"BAM", "BAL",  "MÖN",  "STU", "HAM",  "MAU",
                                            "MAC", "BLAB", "BLAP", "FCX", "AAA1", "AAA2"};
    EXPECT_EQ(kurznamen(namen), erwartet);
}

}  // namespace
}  // namespace kalimbo
