#include "state/zahltext.h"

#include <gtest/gtest.h>

namespace kalimbo {
namespace {

TEST(ZahlAusText, LiestDieZahlAmAnfang) {
    const std::pair<const char*, i16> faelle[] = {
        {"", 0},   {"X", 0},     {"abc", 0}, {"7", 7},   {"  12", 12},     {"12abc", 12},      {"-7", -7},
        {"+3", 3}, {"0012", 12}, {"2.5", 2}, {"3.5", 4}, {"-2.5", -2},     {"2.51", 3},        {"1e2", 100},
        {"1e", 1}, {"1,5", 1},   {".", 0},   {"-", 0},   {"32767", 32767}, {"-32768", -32768}, {"3 4", 3},
    };
    for (const auto& [text, wert] : faelle)
        EXPECT_EQ(zahlAusText(text), wert) << '"' << text << '"';
}

TEST(ZahlAusText, UeberlaufJenseitsVon16Bit) {
    for (const char* text : {"32768", "-32769", "99999999999999999999999", "1e400", "32767.5"}) {
        try {
            zahlAusText(text);
            ADD_FAILURE() << text;
        } catch (const Laufzeitfehler& e) {
            EXPECT_EQ(e.code(), Laufzeitfehler::Ueberlauf);
        }
    }
    EXPECT_EQ(zahlAusText("32766.5"), 32766);  // half to even stays in range
    EXPECT_EQ(zahlAusText("1e-400"), 0);
}

}  // namespace
}  // namespace kalimbo
