#include "state/kurznamen.h"

#include <gtest/gtest.h>

#include <random>
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

TEST(Kurznamen, GleicheStaemmeUndVieleGleicheNamen) {
    EXPECT_EQ(kurznamen({"Blak", "Bla", "Blac", "Black"}),
              (std::vector<std::string>{"BLA1", "BLA2", "BLA3", "BLA4"}));
    EXPECT_EQ(kurznamen(std::vector<std::string>(12, "AAA")),
              (std::vector<std::string>{"AAA1", "AAA2", "AAA3", "AAA4", "AAA5", "AAA6", "AAA7", "AAA8",
                                        "AAA9", "AA10", "AA11", "AA12"}));
}

TEST(Kurznamen, WoerterOhneGueltigeZeichen) {
    EXPECT_EQ(kurznamen({"\xFF\xFE", "\xFF Bla", "\xC3"}), (std::vector<std::string>{"XXX1", "BLA", "XXX2"}));
}

// Whatever the names, the short names are unique, not empty, at most four characters long and
// storable in a game file: checked on thousands of generated lists full of clashes.
TEST(Kurznamen, ImmerEindeutigUndNichtLeer) {
    const std::vector<std::string> teile{"Bla",  "Blak",         "Blac",   "Black",  "AAA", "FC",
                                         "1.",   "Bor.",         "VfB",    "Ü",      "é",   "\xFF",
                                         "\xC3", "\xE2\x82\xAC", "-",      "04",     "X",   "Manchester",
                                         "City", "United",       "Ölfeld", "München"};
    std::mt19937 zufall(20060804);
    auto bis = [&](int n) { return static_cast<int>(zufall() % static_cast<unsigned>(n)) + 1; };
    for (int liste = 0; liste < 3000; ++liste) {
        std::vector<std::string> namen(static_cast<std::size_t>(bis(24)));
        for (auto& name : namen)
            for (int teil = bis(4); teil > 0; --teil)
                name += teile[static_cast<std::size_t>(bis(static_cast<int>(teile.size())) - 1)] +
                        (bis(3) == 1 ? "" : " ");
        const auto kurz = kurznamen(namen);
        ASSERT_EQ(kurz.size(), namen.size());
        EXPECT_EQ(std::set<std::string>(kurz.begin(), kurz.end()).size(), kurz.size())
            << testing::PrintToString(kurz);
        for (const auto& k : kurz) {
            EXPECT_FALSE(k.empty());
            EXPECT_LE(nachCp1252(k).size(), 4u) << k;  // throws if a game file cannot store it
        }
    }
}

}  // namespace
}  // namespace kalimbo
