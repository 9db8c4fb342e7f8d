#include "graph/textbreite.h"

#include <gtest/gtest.h>

#include <tuple>
#include <vector>

namespace kalimbo::grafik {
namespace {

TEST(Textbreite, NachBreitenklasseJeZeichenNichtJeByteFettBreiter) {
    const std::vector<std::tuple<const char*, int, bool, int>> faelle{
        {"Koln", 10, false, 492}, {"Köln", 10, false, 528}, {"Köln", 10, true, 604}, {"iiii", 10, false, 336},
        {"mmmm", 10, false, 800}, {"€", 8, false, 128},     {"", 12, true, 0},
    };
    for (const auto& [text, groesse, fett, breite] : faelle)
        EXPECT_EQ(geschaetzteTextbreite(text, groesse, fett), breite)
            << text << ' ' << groesse << ' ' << fett;
}

}  // namespace
}  // namespace kalimbo::grafik
