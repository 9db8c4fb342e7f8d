#include "reports/spieltagsbogen.h"

#include <gtest/gtest.h>

#include <map>

#include "kurzesspiel.h"
#include "scoring/auswertung.h"
#include "scoring/regeln.h"

namespace kalimbo {
namespace {

// The colours of the evaluation by name; white is left out.
std::string farbname(Farbe f) {
    const std::map<Farbe, std::string> namen{
        {Rot, "/rot"}, {Hellgelb, "/gelb"}, {Gruen, "/grün"}, {Weiss, ""}, {rgb(240, 240, 240), "/grau"}};
    const auto n = namen.find(f);
    return n == namen.end() ? "/?" : n->second;
}

std::string zelle(const Bogenzelle& z) {
    return "[" + z.text + farbname(z.hintergrund) + "]";
}

// The whole content in lines: head, players, one line per match, the sums, the footer.
std::string alsText(const Spieltagsbogen& b) {
    std::string t = b.liga + " | " + b.titel + " | " + b.art + "\n";
    for (const auto& sp : b.spieler)
        t += sp.name + '#' + std::to_string(sp.farbe) + ' ';
    t += '\n';
    for (const auto& spiel : b.spiele) {
        t += spiel.heim + " - " + spiel.gast + ' ' + zelle(spiel.ergebnis);
        for (const auto& tipp : spiel.tipps)
            t += ' ' + zelle(tipp);
        t += '\n';
    }
    for (const auto& summe : b.summen) {
        t += summe.titel + ':';
        for (const auto& w : summe.werte)
            t += ' ' + w;
        t += '\n';
    }
    return t + b.fussnote + " | " + b.datum + '\n';
}

// The small game evaluated under the 3-2-1 rule, with Carl's first tip of matchday 2 changed to
// 3:2, a margin hit on the 2:1.
class Bogen : public testing::Test {
  protected:
    void SetUp() override {
        s.Tipp[2][1][0] = {{3, 2}};
        werteAus(s, false);
    }
    Spielstand s = test::kurzesSpiel();
};

const std::string Kopf = "Testliga 2024/25 | Spieltag 2 | ";
const std::string Spieler = "Anna#200 Carl#13107200 \n";
const std::string Fuss = "automatisch erstellt mit 'Kalimbo' - Version 5.0.1 | 24.12.2024\n";

TEST_F(Bogen, JedeArtFuelltIhreZellen) {
    const std::vector<std::pair<Bogenart, std::string>> faelle{
        {Bogenart::Auswertung, Kopf + "Auswertung\n" + Spieler +
                                   "Bochum - Aachen [2:1] [2:1/rot] [3:2/gelb]\n"
                                   "Dresden - Cottbus [1:1] [2:1] [1:1/rot]\n"
                                   "Fürth - Rot & Weiß Essen [0:3] [0:12/grün] [0:3/rot]\n"
                                   "Punkte Spieltag: 4 8\n"
                                   "Platz Spieltag: 2 1\n"
                                   "Punkte gesamt: 7 11\n"
                                   "Platz gesamt: 2 1\n" +
                                   Fuss},
        {Bogenart::Live, Kopf + "Live-Spiel\n" + Spieler +
                             "Bochum - Aachen [] [2:1] [3:2]\n"
                             "Dresden - Cottbus [] [2:1] [1:1]\n"
                             "Fürth - Rot & Weiß Essen [] [0:12] [0:3]\n" +
                             Fuss},
        {Bogenart::Tippabgabe, Kopf + "Tippabgabe\n" + Spieler +
                                   "Bochum - Aachen [] [] []\n"
                                   "Dresden - Cottbus [] [] []\n"
                                   "Fürth - Rot & Weiß Essen [] [] []\n" +
                                   Fuss},
    };
    for (const auto& [art, erwartet] : faelle)
        EXPECT_EQ(alsText(erstelleBogen(s, 1, art, "24.12.2024")), erwartet) << bogenartName(art);
}

TEST_F(Bogen, UngewerteteTippsGrauPlaetzeUndPunkteWieAufDemSchirm) {
    s.Teilnehmer[1] = 1;  // Bernd plays along but was not evaluated: his tips were not scored
    EXPECT_EQ(alsText(erstelleBogen(s, 2, Bogenart::Auswertung, "")),
              "Testliga 2024/25 | Spieltag 3 | Auswertung\n"
              "Anna#200 Bernd#15073533 Carl#13107200 \n"
              "Aachen - Bochum [2:1] [2:1/grau] [2:1/grau] [2:1/grau]\n"
              "Cottbus - Dresden [2:1] [2:1/grau] [2:1/grau] [2:1/grau]\n"
              "Rot & Weiß Essen - Fürth [2:1] [2:1/grau] [2:1/grau] [2:1/grau]\n"
              "Punkte Spieltag: 0 0 0\n"
              "Platz Spieltag: 1 2 3\n"
              "Punkte gesamt: 7 0 11\n"
              "Platz gesamt: 2 3 1\n"
              "automatisch erstellt mit 'Kalimbo' - Version 5.0.1 | \n");
}

TEST_F(Bogen, SpieltagAusserhalbDerSaison) {
    for (const int tag : {-1, 3, 38})
        EXPECT_THROW(erstelleBogen(s, tag, Bogenart::Tippabgabe, ""), Laufzeitfehler) << tag;
}

TEST(Bogenart, NamenDerKommandozeile) {
    for (const Bogenart art : {Bogenart::Auswertung, Bogenart::Live, Bogenart::Tippabgabe})
        EXPECT_EQ(bogenartAusName(bogenartName(art)), art);
    EXPECT_EQ(bogenartName(Bogenart::Live), "live");
    EXPECT_EQ(bogenartAusName("Auswertung"), std::nullopt);
    EXPECT_EQ(bogenartAusName(""), std::nullopt);
}

TEST(Druckfarbe, SystemfarbenWerdenFest) {
    EXPECT_EQ(druckfarbe(Schaltflaechenfarbe), rgb(240, 240, 240));
    EXPECT_EQ(druckfarbe(static_cast<Farbe>(0x80000005u)), Weiss);
    EXPECT_EQ(druckfarbe(static_cast<Farbe>(0x80000008u)), rgb(0, 0, 0));
    EXPECT_EQ(druckfarbe(rgb(1, 2, 3)), rgb(1, 2, 3));
}

}  // namespace
}  // namespace kalimbo
