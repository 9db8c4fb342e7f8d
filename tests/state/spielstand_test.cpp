#include "state/spielstand.h"

#include <gtest/gtest.h>

#include "state/zahl16.h"

namespace kalimbo {
namespace {

template <class F>
Laufzeitfehler::Code fehlercode(F f) {
    try {
        f();
    } catch (const Laufzeitfehler& e) {
        return e.code();
    }
    return Laufzeitfehler::Code{0};
}

TEST(Spielstand, StartwerteEinesNeuenSpiels) {
    const Spielstand s;
    EXPECT_EQ(s.getAnzTeams(), 19);
    EXPECT_EQ(s.getAnzSpieltage(), 37);
    EXPECT_EQ(s.getAnzSpiele(), 9);
    EXPECT_EQ(s.AnzTippfelder, 89);
    EXPECT_EQ(s.AnzSpieler, 8);
    EXPECT_EQ(s.getAktSpieltag(), 0);
    EXPECT_EQ(s.getAktSpieltagGlobal(), 99);
    EXPECT_EQ(s.getModusPunkte(0), 3);
    EXPECT_EQ(s.getModusPunkte(1), 2);
    EXPECT_EQ(s.getModusPunkte(2), 1);
    EXPECT_EQ(s.getModusFarbe(1), rgb(250, 250, 144));
    EXPECT_EQ(s.getFussnote(), "automatisch erstellt mit 'Kalimbo' - Version 5.0.1");
    for (int p = 0; p < MaxSpieler; ++p)
        EXPECT_EQ(s.getTeilnehmer(p), 1);
    EXPECT_EQ(s.getSpielerFarbe(1), rgb(253, 0, 230));
    EXPECT_EQ(s.getSpielerFarbe(8), rgb(204, 204, 255));
}

TEST(Spielstand, AuswertungBeginntOhneTreffer) {
    const Spielstand s;
    for (int p = 0; p < MaxSpieler; ++p)
        for (int tag = 0; tag < MaxSpieltage; ++tag)
            for (int k = 0; k < MaxSpiele; ++k) {
                ASSERT_EQ(s.getKorrekt(p, tag, k), -1);
                ASSERT_EQ(s.getSpielFarbe(p, tag, k), Weiss);
            }
    EXPECT_EQ(s.Auswertung[4].Platz, 4);
    EXPECT_EQ(s.Auswertung[4].SptgSortierplatz[37], 4);
    EXPECT_EQ(s.Auswertung[4].TeamSortierung[19], 19);
}

TEST(Spielstand, IndexAusserhalbDerGrenzen) {
    const Spielstand s;
    EXPECT_EQ(fehlercode([&] { s.getErgebnis(38, 0, 0); }), Laufzeitfehler::Index);
    EXPECT_EQ(fehlercode([&] { s.getErgebnis(0, 10, 0); }), Laufzeitfehler::Index);
    EXPECT_EQ(fehlercode([&] { s.getErgebnis(0, 0, 2); }), Laufzeitfehler::Index);
    EXPECT_EQ(fehlercode([&] { s.getTipp(9, 0, 0, 0); }), Laufzeitfehler::Index);
    EXPECT_EQ(fehlercode([&] { s.getTipp(-1, 0, 0, 0); }), Laufzeitfehler::Index);
    EXPECT_EQ(fehlercode([&] { s.getPaarung(0, 0, -1); }), Laufzeitfehler::Index);
    EXPECT_EQ(fehlercode([&] { s.getTeamName(20); }), Laufzeitfehler::Index);
    EXPECT_EQ(fehlercode([&] { s.getSpielerName(9); }), Laufzeitfehler::Index);
    EXPECT_EQ(fehlercode([&] { s.getSpieltagPunkte(0, 38); }), Laufzeitfehler::Index);
    EXPECT_EQ(fehlercode([&] { s.getKorrekt(0, 0, 10); }), Laufzeitfehler::Index);
    EXPECT_EQ(fehlercode([&] { s.getModusPunkte(3); }), Laufzeitfehler::Index);
    EXPECT_EQ(fehlercode([&] { s.getTabFarbe(20); }), Laufzeitfehler::Index);
    EXPECT_NO_THROW(s.getTabInfo(20, 2));
    EXPECT_EQ(fehlercode([&] { s.getTabInfo(21, 2); }), Laufzeitfehler::Index);

    Spielstand t;
    EXPECT_EQ(fehlercode([&] { t.setModus(3, 1); }), Laufzeitfehler::Index);
    EXPECT_EQ(fehlercode([&] { t.setFarbeMod(-1, 0); }), Laufzeitfehler::Index);
    EXPECT_EQ(t.ModusPunkte, Spielstand{}.ModusPunkte);  // nothing was changed
}

TEST(Spielstand, Ueberlauf16Bit) {
    EXPECT_EQ(plus16(32766, 1), 32767);
    EXPECT_EQ(fehlercode([] { plus16(32767, 1); }), Laufzeitfehler::Ueberlauf);
    EXPECT_EQ(fehlercode([] { minus16(-32768, 1); }), Laufzeitfehler::Ueberlauf);
    EXPECT_EQ(fehlercode([] { mal16(200, 200); }), Laufzeitfehler::Ueberlauf);
    i16 summe = 32000;
    EXPECT_EQ(fehlercode([&] { addiere(summe, 1000); }), Laufzeitfehler::Ueberlauf);
    EXPECT_EQ(summe, 32000);
    EXPECT_STREQ(Laufzeitfehler(Laufzeitfehler::Ueberlauf).what(), "Überlauf");
    EXPECT_STREQ(Laufzeitfehler(Laufzeitfehler::Index).what(), "Index außerhalb des gültigen Bereichs");
}

TEST(Spielstand, TabInfoJeArt) {
    Spielstand s;
    Tabellenzeile& z = s.Tabelle[3];
    z.Name = "Hamburger SV";
    z.Punkte = 12;
    z.Tabellenplatz = 5;
    z.Tore = 7;
    z.Gegentore = 13;
    z.Siege = 3;
    z.Unentschieden = 3;
    z.Niederlagen = 1;
    EXPECT_EQ(s.getTabInfo(3, 0), TabInfo{i16{5}});
    EXPECT_EQ(s.getTabInfo(3, 1), TabInfo{std::string("Hamburger SV")});
    EXPECT_EQ(s.getTabInfo(3, 2), TabInfo{i16{12}});
    EXPECT_EQ(s.getTabInfo(3, 3), TabInfo{std::string("7:13")});
    EXPECT_EQ(s.getTabInfo(3, 4), TabInfo{i16{-6}});
    EXPECT_EQ(s.getTabInfo(3, 5), TabInfo{i16{3}});
    EXPECT_EQ(s.getTabInfo(3, 7), TabInfo{i16{1}});
    EXPECT_TRUE(std::holds_alternative<std::monostate>(s.getTabInfo(3, 8)));
    EXPECT_TRUE(std::holds_alternative<std::monostate>(s.getTabInfo(3, -1)));
    z.Tore = -30000;
    z.Gegentore = 10000;
    EXPECT_EQ(fehlercode([&] { s.getTabInfo(3, 4); }), Laufzeitfehler::Ueberlauf);
    EXPECT_EQ(s.getTabInfo(3, 3), TabInfo{std::string("-30000:10000")});
}

TEST(Spielstand, DiesTeamFindetDieMannschaftAufDemPlatz) {
    Spielstand s;
    s.AnzTeams = 17;
    s.Tabelle[4].Tabellenplatz = 0;
    s.Tabelle[0].Tabellenplatz = 4;
    EXPECT_EQ(s.DiesTeam(0), 4);
    EXPECT_EQ(s.DiesTeam(4), 0);
    EXPECT_EQ(s.DiesTeam(18), 0);  // team 18 lies beyond AnzTeams
    EXPECT_EQ(s.DiesTeam(25), 0);
}

TEST(Spielstand, OeffnenUebernimmtDateiUndArbeitskopien) {
    Spielstand s;
    s.Ergebnis[0][0] = {{9, 9}};
    s.AktSpieltag = 7;
    Dateiinhalt d;
    d.Teamname[0] = "Neu";
    d.ErgebnisDatei[0][0] = {{2, 1}};
    d.TippDatei[8][37][9] = {{1, 0}};
    s.oeffne(d);
    EXPECT_EQ(s.getTeamName(0), "Neu");
    EXPECT_EQ(s.getErgebnis(0, 0, 0), 2);
    EXPECT_EQ(s.getTipp(8, 37, 9, 0), 1);
    EXPECT_EQ(s.AktSpieltag, 7);  // not part of the file

    // Figures of the game evaluated before do not carry over to the one opened.
    s.Auswertung[2].GesamtPunkte = 40;
    s.Auswertung[2].Korrekt[0][0] = 0;
    s.Tabelle[5].Punkte = 9;
    s.Tabelle[5].Tabellenplatz = 0;
    s.oeffne(d);
    EXPECT_EQ(s.getGesamtPunkte(2), 0);
    EXPECT_EQ(s.getKorrekt(2, 0, 0), -1);
    EXPECT_EQ(s.getTabInfo(5, 2), TabInfo{i16{0}});
    EXPECT_EQ(s.DiesTeam(5), 5);

    s.Tipp[0][0][0] = {{3, 3}};
    s.kopiereArbeitInDatei();
    EXPECT_EQ(s.TippDatei[0][0][0][1], 3);
}

struct Einstellungen : SpielerDatenQuelle {
    std::string getSpielerName(int p) const override { return "Spieler " + std::to_string(p); }
    Farbe getSpielerFarbe(int p) const override { return p; }
    i16 getTeilnehmer(int p) const override { return p % 2 == 0 ? 1 : 0; }
};

TEST(Spielstand, HoleSpielerDatenUebernimmtAlleNeun) {
    Spielstand s;
    s.HoleSpielerDaten(Einstellungen{});
    EXPECT_EQ(s.getSpielerName(8), "Spieler 8");
    EXPECT_EQ(s.getSpielerFarbe(5), 5);
    EXPECT_EQ(s.getTeilnehmer(3), 0);
    EXPECT_EQ(s.getTeilnehmer(4), 1);
}

}  // namespace
}  // namespace kalimbo
