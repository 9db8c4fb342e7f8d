#include "reports/textexport.h"

#include <gtest/gtest.h>

#include "testdaten.h"

namespace kalimbo {
namespace {

TEST(Textexport, InhaltInWindows1252) {
    // The umlauts, the ß and the euro sign become single bytes; the separator keeps its blank.
    EXPECT_EQ(berichtsdatei("SV Calmbach\r\n  Torverhältnis: \t5:5\r\n", "Spaß für 5 €", "24.12.06", "18:42"),
              "SV Calmbach\r\n  Torverh\xE4ltnis: \t5:5\r\n\r\n  - \r\n  Spa\xDF f\xFCr 5 \x80 [24.12.06, "
              "18:42]\r\n");
    EXPECT_EQ(
        test::fehler([] { berichtsdatei("  Anna\r\n  Gesamtpunkte ✓\r\n", "Fußnote", "1.1.07", "9:00"); }),
        "Der Text enthält in Zeile 2 das Zeichen „✓“ (U+2713), das eine Textdatei in Windows-1252 "
        "nicht speichern kann. Bitte ersetzen Sie es.");
}

TEST(Textexport, ErsetztDieDateiErstWennAllesGeschriebenIst) {
    test::TempOrdner ordner;
    const auto ziel = ordner / "bericht.txt";
    test::schreibeBytes(ziel, "alter Bericht");
    EXPECT_THROW(speichereBericht(ziel, "Gr\xFC\xDF", "F", "D", "Z"), Dateifehler);  // not UTF-8
    EXPECT_EQ(test::leseBytes(ziel), "alter Bericht");
    speichereBericht(ziel, "Köln", "F", "D", "Z");
    EXPECT_EQ(test::leseBytes(ziel), "K\xF6ln\r\n  - \r\n  F [D, Z]\r\n");
}

}  // namespace
}  // namespace kalimbo
