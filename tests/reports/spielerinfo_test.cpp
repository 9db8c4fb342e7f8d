#include "reports/spielerinfo.h"

#include <gtest/gtest.h>

#include <functional>

#include "blattspiele.h"
#include "scoring/auswertung.h"
#include "testdaten.h"

namespace kalimbo {
namespace {

// The block of `text` that starts with the line beginning `anfang`, up to the next empty line.
std::string abschnitt(const std::string& text, const std::string& anfang) {
    const auto start = text.find("\r\n" + anfang);
    if (start == std::string::npos) return "(fehlt: " + anfang + ")";
    const auto ende = text.find("\r\n\r\n", start + 2);
    return text.substr(start + 2, ende == std::string::npos ? std::string::npos : ende + 2 - (start + 2));
}

struct Golden {
    const char* name;
    std::function<Spielstand()> spiel;
    const char* trenner;
    const char* datei;
};

void PrintTo(const Golden& g, std::ostream* aus) {
    *aus << g.name;
}

class SpielerInfoGolden : public testing::TestWithParam<Golden> {};

TEST_P(SpielerInfoGolden, ZeichenFuerZeichen) {
    const auto text = SpielerInfoText(GetParam().spiel(), 0, GetParam().trenner);
    ASSERT_TRUE(text);
    EXPECT_EQ(*text, test::testdatei(std::string("berichte/") + GetParam().datei));
}

// 20 teams: every hit kind, shown matchday = current matchday. 18 teams: 9 matches a matchday,
// 18 team lines, a matchday with results left out of the selection, the shown matchday before the
// current one, the 3-point rule ("jeweils 1 Punkte]") and the decimal comma.
INSTANTIATE_TEST_SUITE_P(Spiele, SpielerInfoGolden,
                         testing::Values(Golden{"Zwanzig", test::blattspiel20, ".", "spielerinfo-20.txt"},
                                         Golden{"Achtzehn", test::blattspiel18, ",", "spielerinfo-18.txt"}),
                         [](const auto& info) { return std::string(info.param.name); });

TEST(SpielerInfo, NichtteilnehmerBekommtEinGanzesBlatt) {
    const std::string text = *SpielerInfoText(test::blattspiel18(), 3, ".");
    // On the shown matchday the matchday view marked his points -1; the lists have no hits, the
    // block of all matches still shows his stored tips.
    EXPECT_EQ(abschnitt(text, "  Gesamtpunkte"),
              test::crlf("  Gesamtpunkte: →0 [4]\n  1.Spieltag: →→-1  [4]\n"));
    EXPECT_EQ(abschnitt(text, "  Die richtigen Tipps"),
              test::crlf("  Die richtigen Tipps [0x]\n  [jeweils 3 Punkte]\n  -\n"));
    EXPECT_EQ(abschnitt(text, "  Spieltag 3"), test::crlf(R"(
  Spieltag 3
  SÜC - CAL0:0 (0:1)
  DÖR - BÄR1:0 (0:1)
  ELS - AHR2:3 (0:1)
  FÜR - RÜT1:1 (0:1)
  GMÜ - PLÖ0:2 (0:1)
  HEI - OES2:1 (0:1)
  ILM - NÖR3:3 (0:1)
  JÜB - MÖH0:1 (0:1)
  KÖL - LÜB1:0 (0:1)
)"));
}

TEST(SpielerInfo, SpielerOhneTipps) {
    Spielstand s = test::kleinesSpiel(18);
    test::setzeErgebnisse(s, 0, "1:0 2:1 0:1 3:1 0:2 1:2 2:0 2:1 0:3");  // no draw: 0:0 tips hit nothing
    test::setzeAuswahl(s, "0");
    s.AktSpieltagGlobal = 0;
    werteAus(s, false);
    const std::string text = *SpielerInfoText(s, 1, ".");
    EXPECT_EQ(text.substr(text.find("  Die richtigen Tipps")), test::crlf(R"(
  Die richtigen Tipps [0x]
  [jeweils 3 Punkte]
  -

  Spiele mit richtiger Sieghöhe [0x]
  [jeweils 2 Punkte]
  -

  Spiele mit richtiger Tendenz [0x]
  [jeweils 1 Punkt(e)]
  -


  Alle 81 Spiele
  -

  Spieltag 1
  SÜC - AHR1:0 (0:0)
  BÄR - RÜT2:1 (0:0)
  CAL - PLÖ0:1 (0:0)
  DÖR - OES3:1 (0:0)
  ELS - NÖR0:2 (0:0)
  FÜR - MÖH1:2 (0:0)
  GMÜ - LÜB2:0 (0:0)
  HEI - KÖL2:1 (0:0)
  ILM - JÜB0:3 (0:0)
)"));
}

TEST(SpielerInfo, ListenEndenAmAktuellenSpieltagNichtAmGezeigten) {
    Spielstand s = test::blattspiel20();
    s.AktSpieltagGlobal = 0;  // the shown matchday 2 lies after it
    const std::string text = *SpielerInfoText(s, 0, ".");
    EXPECT_EQ(abschnitt(text, "  Gesamtpunkte"),
              test::crlf("  Gesamtpunkte: →43 [1]\n  3.Spieltag: →→14  [1]\n"));
    EXPECT_EQ(text.substr(text.find("  Die richtigen Tipps")), test::crlf(R"(
  Die richtigen Tipps [6x]
  [jeweils 3 Punkte]
  -
  VÖH - AHR2:1
  GMÜ - NÖR0:1
  JÜB - KÖL0:0

  Spiele mit richtiger Sieghöhe [6x]
  [jeweils 2 Punkte]
  -
  CAL - SÜC1:3 (0:2)

  Spiele mit richtiger Tendenz [13x]
  [jeweils 1 Punkt(e)]
  -
  BÄR - TÖN0:0 (1:1)
  DÖR - RÜT4:0 (2:0)
  ELS - PLÖ1:1 (0:0)
  ILM - LÜB1:0 (3:1)


  Alle 300 Spiele
  -

  Spieltag 1
  VÖH - AHR2:1 (2:1)
  BÄR - TÖN0:0 (1:1)
  CAL - SÜC1:3 (0:2)
  DÖR - RÜT4:0 (2:0)
  ELS - PLÖ1:1 (0:0)
  FÜR - OES2:2 (1:0)
  GMÜ - NÖR0:1 (0:1)
  HEI - MÖH3:2 (1:2)
  ILM - LÜB1:0 (3:1)
  JÜB - KÖL0:0 (0:0)
)"));
}

struct Schnitt {
    i16 punkte;
    const char* auswahl;
    const char* spiel;
    const char* spieltag;
};

TEST(SpielerInfo, DurchschnitteMitEinerOderZweiDezimalen) {
    const Schnitt faelle[] = {
        {25, "0-3", "0.63", "6.25"},                                // 25 points, 40 matches, 4 matchdays
        {24, "0-3", "0.6", "6.0"},    {49, "0-7", "0.61", "6.13"},  // 6.125: the half goes up
        {23, "0-3", "0.58", "5.75"},                                // 0.575 is 0.57499999... in binary
        {-7, "0-1", "-0.35", "-3.5"},                               // negative own-rule points
    };
    for (const auto& f : faelle) {
        Spielstand s = test::blattspiel20();
        test::setzeAuswahl(s, f.auswahl);
        s.Auswertung[0].GesamtPunkte = f.punkte;
        EXPECT_EQ(abschnitt(*SpielerInfoText(s, 0, "."), "  Punkte pro"),
                  test::crlf(std::string("  Punkte pro\n    Spiel: →") + f.spiel + "\n    Spieltag: →" +
                             f.spieltag + "\n"))
            << f.punkte;
    }
}

TEST(SpielerInfo, TrefferzahlAlsBruchNachRegelwechsel) {
    Spielstand s = test::blattspiel20();
    s.setModus(1, 7);  // 12 margin points of the last evaluation, now 7 points a hit
    s.setModus(0, 4);  // 18 full points
    const std::string text = *SpielerInfoText(s, 0, ",");
    EXPECT_NE(text.find("\r\n  Die richtigen Tipps [4,5x]\r\n  [jeweils 4 Punkte]\r\n"), std::string::npos);
    EXPECT_NE(
        text.find("\r\n  Spiele mit richtiger Sieghöhe [1,71428571428571x]\r\n  [jeweils 7 Punkte]\r\n"),
        std::string::npos);
}

TEST(SpielerInfo, DivisionDurchNull) {
    const std::vector<std::pair<const char*, std::function<void(Spielstand&)>>> faelle{
        {"kein Spieltag ausgewählt, 0 / 0",
         [](Spielstand& s) {
             test::setzeAuswahl(s, "");
             werteAus(s, false);
         }},
        {"Auswahl nach der Auswertung geleert, 43 / 0", [](Spielstand& s) { test::setzeAuswahl(s, ""); }},
        {"Tendenz 0 Punkte wert", [](Spielstand& s) { s.setModus(2, 0); }},
    };
    for (const auto& [name, aendere] : faelle) {
        Spielstand s = test::blattspiel20();
        aendere(s);
        try {
            SpielerInfoText(s, 0, ".");
            ADD_FAILURE() << name;
        } catch (const Laufzeitfehler& e) {
            EXPECT_EQ(e.code(), Laufzeitfehler::DivisionDurchNull) << name;
            EXPECT_STREQ(e.what(), "Division durch Null");
        }
    }
}

TEST(SpielerInfo, OhneAktuellenSpieltagKeinBlatt) {
    Spielstand s = test::blattspiel20();
    s.AktSpieltagGlobal = KeinAktuellerSpieltag;
    EXPECT_FALSE(SpielerInfoText(s, 0, "."));
    test::setzeAuswahl(s, "");  // would divide by zero, but nothing is built
    EXPECT_FALSE(SpielerInfoText(s, 0, "."));
}

TEST(SpielerInfo, GewerteteSpieleUndSpieltageUeberDieGanzeSaison) {
    const std::tuple<int, const char*, int, int> faelle[] = {
        {18, "0, 2, 33", 3, 27},
        {18, "0-37", 34, 306},  // slots 34-37 lie beyond the season
        {20, "37", 1, 10},
        {20, "", 0, 0},
    };
    for (const auto& [teams, auswahl, spieltage, spiele] : faelle) {
        Spielstand s = test::kleinesSpiel(teams);
        test::setzeAuswahl(s, auswahl);
        EXPECT_EQ(AnzGewerteteSpieltage(s), spieltage) << auswahl;
        EXPECT_EQ(AnzGewerteteSpiele(s), spiele) << auswahl;
    }
}

}  // namespace
}  // namespace kalimbo
