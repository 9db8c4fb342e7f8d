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

// 20 teams: every hit kind, the shown matchday is the current one. 18 teams: 9 matches a matchday,
// 18 team lines, a matchday with results left out of the selection, the shown matchday before the
// current one, the 3-point rule ("jeweils 1 Punkte]") and the decimal comma.
TEST(SpielerInfo, GoldeneBlaetter) {
    EXPECT_EQ(SpielerInfoText(test::blattspiel20(), 0, "."), test::testdatei("berichte/spielerinfo-20.txt"));
    EXPECT_EQ(SpielerInfoText(test::blattspiel18(), 0, ","), test::testdatei("berichte/spielerinfo-18.txt"));
}

TEST(SpielerInfo, NichtteilnehmerBekommtEinGanzesBlatt) {
    const std::string text = *SpielerInfoText(test::blattspiel18(), 3, ".");
    // On the shown matchday the matchday view marked his points -1; his tips scored nothing.
    EXPECT_EQ(abschnitt(text, "  Gesamtpunkte"),
              test::crlf("  Gesamtpunkte: →0 [4]\n  1.Spieltag: →→-1  [4]\n"));
    EXPECT_EQ(abschnitt(text, "  Die richtigen Tipps"),
              test::crlf("  Die richtigen Tipps [0x]\n  [jeweils 3 Punkte]\n  -\n"));
}

TEST(SpielerInfo, SpielerOhneTipps) {
    Spielstand s = test::kleinesSpiel(18);
    test::setzeErgebnisse(s, 0, "1:0 2:1 0:1 3:1 0:2 1:2 2:0 2:1 0:3");  // no draw: 0:0 tips hit nothing
    test::setzeAuswahl(s, "0");
    s.AktSpieltagGlobal = 0;
    werteAus(s, false);
    const std::string text = *SpielerInfoText(s, 1, ".");
    for (const char* liste : {"  Die richtigen Tipps [0x]\n  [jeweils 3 Punkte]\n  -\n",
                              "  Spiele mit richtiger Sieghöhe [0x]\n  [jeweils 2 Punkte]\n  -\n",
                              "  Spiele mit richtiger Tendenz [0x]\n  [jeweils 1 Punkt(e)]\n  -\n"})
        EXPECT_EQ(abschnitt(text, std::string(liste).substr(0, std::string(liste).find('['))),
                  test::crlf(liste));
}

TEST(SpielerInfo, ListenEndenAmAktuellenSpieltagNichtAmGezeigten) {
    Spielstand s = test::blattspiel20();
    s.AktSpieltagGlobal = 0;  // the shown matchday 2 lies after it
    const std::string text = *SpielerInfoText(s, 0, ".");
    EXPECT_EQ(abschnitt(text, "  Gesamtpunkte"),
              test::crlf("  Gesamtpunkte: →43 [1]\n  3.Spieltag: →→14  [1]\n"));
    EXPECT_EQ(abschnitt(text, "  Die richtigen Tipps"),
              test::crlf("  Die richtigen Tipps [6x]\n  [jeweils 3 Punkte]\n  -\n  VÖH - AHR2:1\n  GMÜ - "
                         "NÖR0:1\n  JÜB - KÖL0:0\n"));
    EXPECT_EQ(text.substr(text.rfind("  Spieltag ")), test::crlf(R"(
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
