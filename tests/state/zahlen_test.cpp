// The 16-bit arithmetic, numbers read from typed text and numbers written with decimals.
#include <gtest/gtest.h>

#include "state/zahlformat.h"
#include "state/zahltext.h"
#include "testdaten.h"

namespace kalimbo {
namespace {

const std::string Ueberlauf = "Überlauf";

// The value `f` returns as text, or the error it throws.
template <class F>
std::string wert(F f) {
    std::string text;
    const std::string fehler = test::fehler([&] { text = std::to_string(f()); });
    return fehler.empty() ? text : fehler;
}

TEST(Zahl16, UeberlaufAendertNichts) {
    i16 summe = 32000;
    EXPECT_EQ(test::fehler([&] { addiere(summe, 1000); }), Ueberlauf);
    EXPECT_EQ(summe, 32000);
    EXPECT_EQ(wert([] { return mal16(200, 200); }), Ueberlauf);
}

TEST(Zahl16, QuotientRundetHalbeZurGeradenZahl) {
    const std::array<i16, 3> faelle[] = {
        {12920, 34, 380}, {7715, 4, 1929},  {7715, 7, 1102}, {5, 2, 2},   {7, 2, 4},           {1, 2, 0},
        {3, 2, 2},        {12920, 16, 808}, {-5, 2, -2},     {-7, 2, -4}, {5, -2, -2},         {-7, -2, 4},
        {-8, 3, -3},      {8, -3, -3},      {10, 3, 3},      {0, -7, 0},  {-32768, 1, -32768},
    };
    for (const auto& [zaehler, nenner, quotient] : faelle)
        EXPECT_EQ(quotient16(zaehler, nenner), quotient) << zaehler << '/' << nenner;
    EXPECT_EQ(wert([] { return quotient16(-32768, -1); }), Ueberlauf);
    EXPECT_EQ(wert([] { return quotient16(7715, 0); }), "Division durch Null");
}

TEST(ZahlAusText, LiestDieZahlAmAnfangHalbeZurGeradenZahl) {
    const std::pair<const char*, i16> faelle[] = {
        {"", 0},     {"X", 0},         {"abc", 0},         {"7", 7},           {"  12", 12},  {"12abc", 12},
        {"-7", -7},  {"+3", 3},        {"0012", 12},       {"2.5", 2},         {"3.5", 4},    {"-2.5", -2},
        {"2.51", 3}, {"1e2", 100},     {"1e", 1},          {"1,5", 1},         {".", 0},      {"-", 0},
        {"3 4", 3},  {"32767", 32767}, {"-32768", -32768}, {"32766.5", 32766}, {"1e-400", 0},
    };
    for (const auto& [text, zahl] : faelle)
        EXPECT_EQ(zahlAusText(text), zahl) << '"' << text << '"';
    for (const char* text : {"32768", "-32769", "99999999999999999999999", "1e400", "32767.5"})
        EXPECT_EQ(wert([&] { return zahlAusText(text); }), Ueberlauf) << text;
}

// Rounded half away from zero on the 15-digit text: 6.125 (exact) gives 6.13, not 6.12; 0.575 (0.57499999...
// in binary) and 2.675 are written as 0.575000000000000 and 2.67500000000000 first. A value rounding to zero
// has no sign; the carry may run into the whole part.
TEST(FormatiereZahl, RundetDenFuenfzehnstelligenTextHalbWeg) {
    const std::tuple<double, int, int, const char*> faelle[] = {
        {49.0 / 8, 1, 2, "6.13"}, {25.0 / 4, 1, 2, "6.25"},
        {24.0 / 4, 1, 2, "6.0"},  {23.0 / 40, 1, 2, "0.58"},
        {0.125, 2, 2, "0.13"},    {2.675, 2, 2, "2.68"},
        {0.0, 2, 2, "0.00"},      {-0.001, 2, 2, "0.00"},
        {-1.125, 2, 2, "-1.13"},  {9.995, 1, 2, "10.0"},
        {99.996, 2, 2, "100.00"}, {0.004, 1, 2, "0.0"},
        {1.1, 1, 2, "1.1"},       {1234567.891, 1, 2, "1234567.89"},
        {1.0 / 3, 0, 2, "0.33"},  {7.0, 0, 2, "7"},
        {3.5, 0, 0, "4"},         {1e20, 2, 2, "100000000000000000000.00"},
    };
    for (const auto& [zahl, min, max, text] : faelle)
        EXPECT_EQ(formatiereZahl(zahl, min, max, "."), text) << zahl << " " << min << max;
    EXPECT_EQ(formatiereZahl(6.125, 1, 2, ","), "6,13");
}

// Whole numbers without decimals, others with 15 significant digits and no exponent.
TEST(AllgemeineZahl, GanzOhneDezimalenSonstFuenfzehnStellen) {
    const std::pair<double, const char*> faelle[] = {
        {5.0 / 3, "1.66666666666667"},
        {3.0, "3"},
        {0.0, "0"},
        {-7.0, "-7"},
        {-0.25, "-0.25"},
        {1.0 / 3, "0.333333333333333"},
        {2.0000000000000004, "2"},
        {32767.0 / 2, "16383.5"},
        {1.0 / 32767, "0.0000305185094759972"},
        {123456789012345678.0, "123456789012346000"},
    };
    for (const auto& [zahl, text] : faelle)
        EXPECT_EQ(allgemeineZahl(zahl, "."), text) << zahl;
    EXPECT_EQ(allgemeineZahl(5.0 / 3, ","), "1,66666666666667");
}

}  // namespace
}  // namespace kalimbo
