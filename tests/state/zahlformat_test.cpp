#include "state/zahlformat.h"

#include <gtest/gtest.h>

namespace kalimbo {
namespace {

struct Formatfall {
    double wert;
    int min, max;
    const char* text;
};

TEST(FormatiereZahl, RundetDenFuenfzehnstelligenTextHalbWeg) {
    const Formatfall faelle[] = {
        {49.0 / 8, 1, 2, "6.13"},  // 6.125 exactly: away from zero, not to even
        {25.0 / 4, 1, 2, "6.25"},
        {24.0 / 4, 1, 2, "6.0"},
        {23.0 / 40, 1, 2, "0.58"},  // 0.574999999999999955... written as 0.575000000000000
        {1.125, 2, 2, "1.13"},
        {0.125, 2, 2, "0.13"},
        {2.675, 2, 2, "2.68"},  // 2.67499999999999982 in binary
        {0.0, 1, 2, "0.0"},
        {0.0, 2, 2, "0.00"},
        {-0.0, 2, 2, "0.00"},
        {-0.001, 2, 2, "0.00"},  // rounds to zero: no sign
        {-1.125, 2, 2, "-1.13"},
        {9.995, 1, 2, "10.0"},  // the carry runs into the whole part
        {99.996, 2, 2, "100.00"},
        {0.004, 1, 2, "0.0"},
        {0.005, 1, 2, "0.01"},
        {1.1, 1, 2, "1.1"},
        {1234567.891, 1, 2, "1234567.89"},
        {1e20, 2, 2, "100000000000000000000.00"},
        {1.0 / 3, 0, 2, "0.33"},
        {7.0, 0, 2, "7"},
        {3.5, 0, 0, "4"},
    };
    for (const auto& f : faelle)
        EXPECT_EQ(formatiereZahl(f.wert, f.min, f.max, "."), f.text) << f.wert << " " << f.min << f.max;
}

TEST(AllgemeineZahl, GanzOhneDezimalenSonstFuenfzehnStellen) {
    const std::pair<double, const char*> faelle[] = {
        {5.0 / 3, "1.66666666666667"},
        {3.0, "3"},
        {0.0, "0"},
        {-7.0, "-7"},
        {2.5, "2.5"},
        {-0.25, "-0.25"},
        {1.0 / 3, "0.333333333333333"},
        {2.0000000000000004, "2"},  // beyond 15 digits
        {32767.0 / 2, "16383.5"},
        {1.0 / 32767, "0.0000305185094759972"},
        {123456789012345678.0, "123456789012346000"},
    };
    for (const auto& [wert, text] : faelle)
        EXPECT_EQ(allgemeineZahl(wert, "."), text) << wert;
}

TEST(Zahlformat, TrennzeichenVomAufrufer) {
    EXPECT_EQ(formatiereZahl(6.125, 1, 2, "."), "6.13");
    EXPECT_EQ(formatiereZahl(6.125, 1, 2, ","), "6,13");
    EXPECT_EQ(allgemeineZahl(5.0 / 3, ","), "1,66666666666667");
    EXPECT_EQ(allgemeineZahl(12.0, ","), "12");
}

}  // namespace
}  // namespace kalimbo
