#include "state/kurznamen.h"

#include <gtest/gtest.h>

#include <random>
#include <set>

#include "state/cp1252.h"
#include "testdaten.h"

namespace kalimbo {
namespace {

TEST(Kurznamen, AbkuerzungenGleicheAnfaengeUndStaemme) {
    const std::vector<std::pair<std::vector<std::string>, std::vector<std::string>>> faelle{
        {{"Bayern München", "Bayer 04 Leverkusen", "Bor. Mönchengladbach", "VfB Stuttgart", "Hamburger SV",
          "Manchester United", "Manchester City", "Blackburn", "Blackpool", "FC", "AAA", "AAA"},
         {"BAM", "BAL", "MÖN", "STU", "HAM", "MAU", "MAC", "BLAB", "BLAP", "FCX", "AAA1", "AAA2"}},
        {{"Blak", "Bla", "Blac", "Black"}, {"BLA1", "BLA2", "BLA3", "BLA4"}},
        {std::vector<std::string>(11, "AAA"),
         {"AAA1", "AAA2", "AAA3", "AAA4", "AAA5", "AAA6", "AAA7", "AAA8", "AAA9", "AA10", "AA11"}},
        {{"\xFF\xFE", "\xFF Bla", "\xC3"}, {"XXX1", "BLA", "XXX2"}},  // words without valid characters
    };
    for (const auto& [namen, kurz] : faelle)
        EXPECT_EQ(kurznamen(namen), kurz);
}

// Whatever the names, the short names are unique, not empty, at most four characters long and storable in a
// game file: checked on thousands of lists full of clashes.
TEST(Kurznamen, ImmerEindeutigUndNichtLeer) {
    std::vector<std::vector<std::string>> listen;
    const std::vector<std::string> teile{"Bla",  "Blak", "Blac", "Black", "AAA",    "FC",    "1.",
                                         "Bor.", "VfB",  "Ü",    "é",     "\xFF",   "\xC3",  "\xE2\x82\xAC",
                                         "-",    "04",   "X",    "City",  "United", "Ölfeld"};
    std::mt19937 zufall(20060804);
    auto bis = [&](int n) { return static_cast<int>(zufall() % static_cast<unsigned>(n)) + 1; };
    for (int liste = 0; liste < 3000; ++liste) {
        auto& namen = listen.emplace_back(static_cast<std::size_t>(bis(24)));
        for (auto& name : namen)
            for (int teil = bis(4); teil > 0; --teil)
                name += teile[static_cast<std::size_t>(bis(static_cast<int>(teile.size())) - 1)] +
                        (bis(3) == 1 ? "" : " ");
    }
    for (const auto& namen : listen) {
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
