#include "state/spielstand.h"

#include <gtest/gtest.h>

#include "kurzesspiel.h"
#include "scoring/auswertung.h"

namespace kalimbo {
namespace {

const std::string Index = "Index außerhalb des gültigen Bereichs";

// Every array of the game checks its indices; row 20 of the table lies beyond the 20 teams.
TEST(Spielstand, IndexAusserhalbDerGrenzenAendertNichts) {
    Spielstand s;
    EXPECT_EQ(test::fehler([&] {
                  s.getTipp(8, 37, 9, 1);
                  s.getTabInfo(20, 2);
              }),
              "");
    for (const auto& zugriff : std::vector<std::function<void()>>{
             [&] { s.getErgebnis(38, 0, 0); }, [&] { s.getTipp(-1, 0, 0, 0); }, [&] { s.setModus(3, 1); }})
        EXPECT_EQ(test::fehler(zugriff), Index);
    EXPECT_EQ(s.ModusPunkte, Spielstand{}.ModusPunkte);
}

TEST(Spielstand, TabInfoJeArt) {
    Spielstand s;
    s.Tabelle[3] = {.Name = "Hamburger SV",
                    .Punkte = 12,
                    .Tabellenplatz = 5,
                    .Siege = 3,
                    .Unentschieden = 3,
                    .Niederlagen = 1,
                    .Tore = 7,
                    .Gegentore = 13};
    const std::vector<TabInfo> erwartet{i16{5},          std::string("Hamburger SV"),
                                        i16{12},         std::string("7:13"),
                                        i16{-6},         i16{3},
                                        i16{3},          i16{1},
                                        std::monostate{}};
    for (int art = 0; art <= 8; ++art)
        EXPECT_EQ(s.getTabInfo(3, art), erwartet[static_cast<std::size_t>(art)]) << art;
    EXPECT_EQ(s.getTabInfo(3, -1), TabInfo{});
    s.Tabelle[3].Tore = -30000;
    s.Tabelle[3].Gegentore = 10000;
    EXPECT_EQ(test::fehler([&] { s.getTabInfo(3, 4); }), "Überlauf");
}

TEST(Spielstand, DiesTeamFindetDieMannschaftAufDemPlatz) {
    Spielstand s;
    s.AnzTeams = 17;
    s.Tabelle[4].Tabellenplatz = 0;
    s.Tabelle[0].Tabellenplatz = 4;
    EXPECT_EQ((std::array{s.DiesTeam(0), s.DiesTeam(4), s.DiesTeam(18), s.DiesTeam(25)}),
              (std::array<i16, 4>{4, 0, 0, 0}));  // team 18 lies beyond AnzTeams
}

TEST(Spielstand, OeffnenUebernimmtDateiUndArbeitskopienUndVerwirftDieAuswertung) {
    Spielstand s = test::kurzesSpiel();
    s.AktSpieltag = 1;
    werteAus(s, false);  // Carl with 9 points, Essen with 6 on position 0
    Dateiinhalt d;
    d.ErgebnisDatei[0][0] = {{2, 1}};
    d.TippDatei[8][37][9] = {{1, 0}};
    s.oeffne(d);
    EXPECT_EQ(static_cast<const Dateiinhalt&>(s), d);
    EXPECT_EQ(s.getErgebnis(0, 0, 0), 2);
    EXPECT_EQ(s.getTipp(8, 37, 9, 0), 1);
    EXPECT_EQ(s.AktSpieltag, 1);  // not part of the file
    EXPECT_EQ(s.getGesamtPunkte(2), 0);
    EXPECT_EQ(s.getKorrekt(2, 1, 1), -1);
    EXPECT_EQ(s.getTabInfo(4, 2), TabInfo{i16{0}});
    EXPECT_EQ(s.DiesTeam(4), 4);

    s.Tipp[0][0][0] = {{3, 3}};
    s.kopiereArbeitInDatei();
    EXPECT_EQ(s.TippDatei[0][0][0][1], 3);
}

TEST(Spielstand, HoleSpielerDatenUebernimmtAlleNeun) {
    struct Einstellungen : SpielerDatenQuelle {
        std::string getSpielerName(int p) const override { return "Spieler " + std::to_string(p); }
        Farbe getSpielerFarbe(int p) const override { return p; }
        i16 getTeilnehmer(int p) const override { return p % 2 == 0 ? 1 : 0; }
    };
    Spielstand s;
    s.HoleSpielerDaten(Einstellungen{});
    EXPECT_EQ(s.getSpielerName(8), "Spieler 8");
    EXPECT_EQ(s.getSpielerFarbe(5), 5);
    EXPECT_EQ(s.Teilnehmer, (Feld<i16, MaxSpieler>{{1, 0, 1, 0, 1, 0, 1, 0, 1}}));
}

}  // namespace
}  // namespace kalimbo
