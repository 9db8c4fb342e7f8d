#include "state/zahl16.h"

#include <gtest/gtest.h>

#include <optional>

namespace kalimbo {
namespace {

struct Teilung {
    i16 zaehler, nenner;
    std::optional<i16> quotient;  // none: overflow
};

class Quotient16 : public testing::TestWithParam<Teilung> {};

TEST_P(Quotient16, RundetHalbeZurGeradenZahl) {
    const Teilung& t = GetParam();
    if (t.quotient) {
        EXPECT_EQ(quotient16(t.zaehler, t.nenner), *t.quotient);
    } else {
        try {
            quotient16(t.zaehler, t.nenner);
            ADD_FAILURE() << "no overflow";
        } catch (const Laufzeitfehler& e) {
            EXPECT_EQ(e.code(), Laufzeitfehler::Ueberlauf);
        }
    }
}

INSTANTIATE_TEST_SUITE_P(
    Faelle, Quotient16,
    testing::Values(Teilung{12920, 34, 380}, Teilung{7715, 4, 1929}, Teilung{7715, 7, 1102}, Teilung{5, 2, 2},
                    Teilung{7, 2, 4}, Teilung{1, 2, 0}, Teilung{3, 2, 2}, Teilung{12920, 16, 808},
                    Teilung{-5, 2, -2}, Teilung{-7, 2, -4}, Teilung{5, -2, -2}, Teilung{-7, -2, 4},
                    Teilung{-8, 3, -3}, Teilung{8, -3, -3}, Teilung{10, 3, 3}, Teilung{0, -7, 0},
                    Teilung{INT16_MIN, 1, INT16_MIN}, Teilung{INT16_MIN, -1, std::nullopt}));

TEST(Quotient16, DurchNull) {
    try {
        quotient16(7715, 0);
        ADD_FAILURE() << "no error";
    } catch (const Laufzeitfehler& e) {
        EXPECT_EQ(e.code(), Laufzeitfehler::DivisionDurchNull);
    }
}

}  // namespace
}  // namespace kalimbo
