#include "graph/textbreite.h"

#include <gtest/gtest.h>

#include <tuple>
#include <vector>

namespace kalimbo::grafik {
namespace {

TEST(Textbreite, JeZeichenNichtJeByteFettBreiter) {
    const std::vector<std::tuple<const char*, int, bool, int>> faelle{
        {"Koln", 10, false, 480}, {"Köln", 10, false, 480}, {"Köln", 10, true, 528},
        {"€", 8, false, 96},      {"", 12, true, 0},
    };
    for (const auto& [text, groesse, fett, breite] : faelle)
        EXPECT_EQ(geschaetzteTextbreite(text, groesse, fett), breite)
            << text << ' ' << groesse << ' ' << fett;
}

}  // namespace
}  // namespace kalimbo::grafik
