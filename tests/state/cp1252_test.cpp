#include "state/cp1252.h"

#include <gtest/gtest.h>

#include "state/fehler.h"

namespace kalimbo {
namespace {

TEST(Cp1252, UmlauteUndSonderzeichen) {
    EXPECT_EQ(nachCp1252("Mönchengladbach"), "M\xF6nchengladbach");
    EXPECT_EQ(nachCp1252("ü"), "\xFC");
    EXPECT_EQ(nachCp1252("ß"), "\xDF");
    EXPECT_EQ(nachCp1252("€"), "\x80");
    EXPECT_EQ(nachCp1252("„“"), "\x84\x93");
    EXPECT_EQ(vonCp1252("\x80\x9F\xFF"), "€Ÿÿ");
}

TEST(Cp1252, AlleBytesUeberstehenHinUndZurueck) {
    std::string alle;
    for (int b = 0; b < 256; ++b)
        alle += static_cast<char>(b);
    EXPECT_EQ(nachCp1252(vonCp1252(alle)), alle);
}

TEST(Cp1252, NichtDarstellbaresWirdAbgelehnt) {
    for (const char* text : {"Łódź", "Tor ⚽", "Ā", "\xC2\x80" /* U+0080 */, "kaputt \xC3"}) {
        EXPECT_THROW(nachCp1252(text), Dateifehler) << text;
    }
    try {
        nachCp1252("Tor ⚽!");
        FAIL();
    } catch (const Dateifehler& e) {
        EXPECT_NE(std::string(e.what()).find("„Tor ⚽!“ enthält das Zeichen „⚽“ (U+26BD)"), std::string::npos)
            << e.what();
    }
}

}  // namespace
}  // namespace kalimbo
