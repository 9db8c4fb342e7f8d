// The information sheets of a player and of a team, and their export as text files.
#include "reports/spielerinfo.h"
#include "reports/teaminfo.h"
#include "reports/textexport.h"

#include <gtest/gtest.h>

#include "blattspiele.h"
#include "scoring/auswertung.h"
#include "testdaten.h"

namespace kalimbo {
namespace {

// 20 teams: every hit kind, the shown matchday is the current one. 18 teams: 9 matches a matchday, 18 team
// lines, a matchday with results left out of the selection, the shown matchday before the current one, the
// 3-point rule ("jeweils 1 Punkte]") and the decimal comma. Dora (slot 3) does not take part there and gets a
// whole sheet, with the -1 the matchday view marked. With the current matchday 0 the lists end there,
// whatever matchday is shown. A player without tips in a game without draws has empty lists.
TEST(SpielerInfo, GoldeneBlaetter) {
    EXPECT_EQ(SpielerInfoText(test::blattspiel20(), 0, "."), test::testdatei("berichte/spielerinfo-20.txt"));
    EXPECT_EQ(SpielerInfoText(test::blattspiel18(), 0, ","), test::testdatei("berichte/spielerinfo-18.txt"));
    EXPECT_EQ(SpielerInfoText(test::blattspiel18(), 3, "."),
              test::testdatei("berichte/spielerinfo-18-nichtteilnehmer.txt"));
    Spielstand s = test::blattspiel20();
    s.AktSpieltagGlobal = 0;
    EXPECT_EQ(SpielerInfoText(s, 0, "."), test::testdatei("berichte/spielerinfo-20-aktuell-1.txt"));
    s = test::kleinesSpiel(18);
    test::setzeErgebnisse(s, 0, "1:0 2:1 0:1 3:1 0:2 1:2 2:0 2:1 0:3");
    test::setzeAuswahl(s, "0");
    s.AktSpieltagGlobal = 0;
    werteAus(s, false);
    EXPECT_EQ(SpielerInfoText(s, 1, "."), test::testdatei("berichte/spielerinfo-ohne-tipps.txt"));
}

TEST(SpielerInfo, DurchschnitteMitEinerOderZweiDezimalen) {
    const std::tuple<i16, const char*, const char*> faelle[] = {
        {25, "0-3", "0.63\r\n    Spieltag: \t6.25"},   // 25 points, 40 matches, 4 matchdays
        {49, "0-7", "0.61\r\n    Spieltag: \t6.13"},   // 6.125: the half goes up
        {-7, "0-1", "-0.35\r\n    Spieltag: \t-3.5"},  // negative own-rule points
    };
    for (const auto& [punkte, auswahl, zeilen] : faelle) {
        Spielstand s = test::blattspiel20();
        test::setzeAuswahl(s, auswahl);
        s.Auswertung[0].GesamtPunkte = punkte;
        EXPECT_NE(SpielerInfoText(s, 0, ".")->find(std::string("\r\n  Punkte pro\r\n    Spiel: \t") + zeilen +
                                                   "\r\n"),
                  std::string::npos)
            << punkte;
    }
    // 12 margin points of the last evaluation, now 7 points a hit; 18 full points, now 4 a hit.
    Spielstand s = test::blattspiel20();
    s.setModus(1, 7);
    s.setModus(0, 4);
    const std::string text = *SpielerInfoText(s, 0, ",");
    EXPECT_NE(text.find("\r\n  Die richtigen Tipps [4,5x]\r\n  [jeweils 4 Punkte]\r\n"), std::string::npos);
    EXPECT_NE(
        text.find("\r\n  Spiele mit richtiger Sieghöhe [1,71428571428571x]\r\n  [jeweils 7 Punkte]\r\n"),
        std::string::npos);
}

// The selection emptied after the evaluation (43 / 0) or a tendency worth 0 points divides by zero; with no
// current matchday nothing is built, so nothing is divided.
TEST(SpielerInfo, DivisionDurchNullUndOhneAktuellenSpieltagKeinBlatt) {
    for (const bool tendenzOhnePunkte : {false, true}) {
        Spielstand s = test::blattspiel20();
        if (tendenzOhnePunkte)
            s.setModus(2, 0);
        else
            test::setzeAuswahl(s, "");
        EXPECT_EQ(test::fehler([&] { SpielerInfoText(s, 0, "."); }), "Division durch Null");
        s.AktSpieltagGlobal = KeinAktuellerSpieltag;
        EXPECT_FALSE(SpielerInfoText(s, 0, "."));
    }
}

TEST(SpielerInfo, GewerteteSpieleUndSpieltageUeberDieGanzeSaison) {
    const std::tuple<int, const char*, int, int> faelle[] = {
        {18, "0, 2, 33", 3, 27},
        {18, "0-37", 34, 306},  // slots 34-37 lie beyond the season
        {20, "", 0, 0},
    };
    for (const auto& [teams, auswahl, spieltage, spiele] : faelle) {
        Spielstand s = test::kleinesSpiel(teams);
        test::setzeAuswahl(s, auswahl);
        EXPECT_EQ((std::array{AnzGewerteteSpieltage(s), AnzGewerteteSpiele(s)}),
                  (std::array{static_cast<i16>(spieltage), static_cast<i16>(spiele)}))
            << auswahl;
    }
}

// 20 teams: every list but one has lines. 18 teams: 9 matches a matchday; the team's match on the matchday
// left out of the selection (JÜB - KÖL 4:1) appears in no list and not in the totals. With matchday 3
// selected and current, its match without a result stands at 0:0 among the draws.
TEST(TeamInfo, GoldeneBlaetter) {
    EXPECT_EQ(TeamInfoText(test::blattspiel20(), 2), test::testdatei("berichte/teaminfo-20.txt"));
    EXPECT_EQ(TeamInfoText(test::blattspiel18(), 10), test::testdatei("berichte/teaminfo-18.txt"));
    Spielstand s = test::blattspiel20();
    test::setzeAuswahl(s, "0-3");
    s.AktSpieltagGlobal = 3;
    EXPECT_EQ(TeamInfoText(s, 2), test::testdatei("berichte/teaminfo-20-spieltag-4.txt"));
    EXPECT_THROW(TeamInfoText(s, 20), Laufzeitfehler);
    EXPECT_THROW(TeamInfoText(s, -1), Laufzeitfehler);
    s.AktSpieltagGlobal = KeinAktuellerSpieltag;
    EXPECT_FALSE(TeamInfoText(s, 2));
}

TEST(TeamInfo, MannschaftenAufEinerTabellenzeile) {
    const Spielstand s = test::blattspiel18();
    Spielstand doppelt = s;
    doppelt.Tabelle[12].Tabellenplatz = doppelt.Tabelle[4].Tabellenplatz;  // as a foreign table might
    EXPECT_EQ(teamsAufTabellenplatz(s, 0), std::vector<i16>{s.DiesTeam(0)});
    EXPECT_EQ(teamsAufTabellenplatz(doppelt, doppelt.Tabelle[4].Tabellenplatz), (std::vector<i16>{4, 12}));
    EXPECT_EQ(teamsAufTabellenplatz(doppelt, s.Tabelle[12].Tabellenplatz), std::vector<i16>{});
    EXPECT_EQ(teamsAufTabellenplatz(s, 18),
              std::vector<i16>{});  // row 18 holds place 18 but is not a team here
}

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
