#include "graph/svg.h"

#include <gtest/gtest.h>

#include "state/spielstand.h"

namespace kalimbo::grafik {
namespace {

struct Hex {
    Farbe farbe;
    const char* text;
};

class HexFarbe : public testing::TestWithParam<Hex> {};

TEST_P(HexFarbe, RotGruenBlauInGrossbuchstaben) {
    EXPECT_EQ(hexFarbe(GetParam().farbe), GetParam().text);
}

INSTANTIATE_TEST_SUITE_P(Farben, HexFarbe,
                         testing::Values(Hex{rgb(1, 2, 3), "#010203"}, Hex{rgb(255, 0, 171), "#FF00AB"},
                                         Hex{rgb(0, 0, 0), "#000000"}, Hex{rgb(224, 224, 224), "#E0E0E0"},
                                         Hex{Schaltflaechenfarbe, "#F0F0F0"}));

TEST(Svg, DokumentMitAllenArtenVonTeilen) {
    Zeichnung z;
    z.breite = 1450;
    z.hoehe = 730;
    z.teile = {Rechteck{300, 700, 100, 20, rgb(224, 224, 224)}, Linie{0, 15, 1450, 15, rgb(244, 244, 244)},
               Text{10, 20, rgb(255, 0, 0), "MS Serif", 8, false, "Tor <A & B> \"3\"", 0, {}},
               Text{40, 50, rgb(255, 255, 255), "MS Sans Serif", 10, true, "  ö", 600, Ausrichtung::Mitte},
               Text{40, 80, static_cast<Farbe>(0x80000008u), "MS Sans Serif", 9, false, "'r'", 600,
                    Ausrichtung::Rechts}};
    EXPECT_EQ(alsSvg(z),
              "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n"
              "<svg xmlns=\"http://www.w3.org/2000/svg\" width=\"72.5pt\" height=\"36.5pt\" "
              "viewBox=\"0 0 1450 730\">\n"
              "<rect x=\"100\" y=\"20\" width=\"200\" height=\"680\" fill=\"#E0E0E0\"/>\n"
              "<line x1=\"0\" y1=\"15\" x2=\"1450\" y2=\"15\" stroke=\"#F4F4F4\" stroke-width=\"1\" "
              "vector-effect=\"non-scaling-stroke\"/>\n"
              "<text x=\"10\" y=\"20\" fill=\"#FF0000\" font-family=\"'MS Serif', serif\" font-size=\"160\" "
              "font-weight=\"normal\" text-anchor=\"start\" dominant-baseline=\"text-before-edge\" "
              "xml:space=\"preserve\">Tor &lt;A &amp; B&gt; &quot;3&quot;</text>\n"
              "<text x=\"340\" y=\"50\" fill=\"#FFFFFF\" font-family=\"'MS Sans Serif', sans-serif\" "
              "font-size=\"200\" font-weight=\"bold\" text-anchor=\"middle\" "
              "dominant-baseline=\"text-before-edge\" xml:space=\"preserve\">  ö</text>\n"
              "<text x=\"640\" y=\"80\" fill=\"#000000\" font-family=\"'MS Sans Serif', sans-serif\" "
              "font-size=\"180\" font-weight=\"normal\" text-anchor=\"end\" "
              "dominant-baseline=\"text-before-edge\" xml:space=\"preserve\">&#39;r&#39;</text>\n"
              "</svg>\n");
}

TEST(Svg, ZeichenflaecheInGanzenPunkten) {
    Zeichnung z;
    z.breite = 12920;
    z.hoehe = 7815;
    EXPECT_EQ(alsSvg(z),
              "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n"
              "<svg xmlns=\"http://www.w3.org/2000/svg\" width=\"646pt\" height=\"390.75pt\" "
              "viewBox=\"0 0 12920 7815\">\n"
              "</svg>\n");
}

struct Schriftname {
    const char* name;
    Gattung gattung;
};

class Schriftgattung : public testing::TestWithParam<Schriftname> {};

TEST_P(Schriftgattung, SerifenNurOhneSans) {
    EXPECT_EQ(gattung(GetParam().name), GetParam().gattung);
}

INSTANTIATE_TEST_SUITE_P(Namen, Schriftgattung,
                         testing::Values(Schriftname{"MS Serif", Gattung::Serifen},
                                         Schriftname{"MS Sans Serif", Gattung::Serifenlos},
                                         Schriftname{"DejaVu Serif", Gattung::Serifen},
                                         Schriftname{"Arial", Gattung::Serifenlos}));

}  // namespace
}  // namespace kalimbo::grafik
