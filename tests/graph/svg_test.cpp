#include "graph/svg.h"

#include <gtest/gtest.h>

#include "testdaten.h"

namespace kalimbo::grafik {
namespace {

TEST(Svg, DokumentMitAllenArtenVonTeilen) {
    Zeichnung z;
    z.breite = 1450;
    z.hoehe = 730;
    z.teile = {Rechteck{300, 700, 100, 20, rgb(224, 224, 224)}, Linie{0, 15, 1450, 15, rgb(244, 244, 244)},
               Text{10, 20, rgb(255, 0, 0), "MS Serif", 8, false, "Tor <A & B> \"3\"", 0, {}},
               Text{40, 50, rgb(255, 255, 255), "MS Sans Serif", 10, true, "  ö", 600, Ausrichtung::Mitte},
               Text{40, 80, static_cast<Farbe>(0x80000008u), "DejaVu Serif", 9, false, "'r'", 600,
                    Ausrichtung::Rechts}};
    EXPECT_EQ(alsSvg(z), test::testdatei("grafik/alle-teile.svg"));
    z = {.breite = 12920, .hoehe = 7815, .teile = {}};  // whole points and quarter points
    EXPECT_NE(alsSvg(z).find("width=\"646pt\" height=\"390.75pt\" viewBox=\"0 0 12920 7815\">\n</svg>\n"),
              std::string::npos);
    for (const auto& [farbe, text] : {std::pair{rgb(1, 2, 3), "#010203"},
                                      {rgb(255, 0, 171), "#FF00AB"},
                                      {Schaltflaechenfarbe, "#F0F0F0"}})
        EXPECT_EQ(hexFarbe(farbe), text);
    EXPECT_EQ(gattung("Arial"), Gattung::Serifenlos);
}

}  // namespace
}  // namespace kalimbo::grafik
