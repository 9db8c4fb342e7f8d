#include "state/cp1252.h"

#include <gtest/gtest.h>

#include "testdaten.h"

namespace kalimbo {
namespace {

TEST(Cp1252, UmlauteSonderzeichenUndAlleBytesHinUndZurueck) {
    EXPECT_EQ(nachCp1252("Mönchengladbach ü ß € „“"), "M\xF6nchengladbach \xFC \xDF \x80 \x84\x93");
    EXPECT_EQ(vonCp1252("\x80\x9F\xFF"), "€Ÿÿ");
    std::string alle;
    for (int b = 0; b < 256; ++b)
        alle += static_cast<char>(b);
    EXPECT_EQ(nachCp1252(vonCp1252(alle)), alle);
}

TEST(Cp1252, NichtDarstellbaresWirdAbgelehnt) {
    for (const char* text : {"Łódź", "Ā", "\xC2\x80" /* U+0080 */, "kaputt \xC3"})
        EXPECT_NE(test::fehler([&] { nachCp1252(text); }), "") << text;
    EXPECT_NE(test::fehler([] { nachCp1252("Tor ⚽!"); }).find("„Tor ⚽!“ enthält das Zeichen „⚽“ (U+26BD)"),
              std::string::npos);
}

}  // namespace
}  // namespace kalimbo
